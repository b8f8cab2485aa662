// The state of the policy or claim that has been found, by its letter and its branch.
#include <gtest/gtest.h>

#include "tests/documents/search_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class SearchState : public SearchBench {
 public:
  static constexpr std::array<std::string_view, 2> kClasses{"ctlRICERCA", "ctlRIC_SINISTRI"};

  static std::string stateOf(const Panel& panel) { return captionOf(panel, "LblSTATO"); }
  /// A panel in the state of having been cancelled, with the branch of that code.
  std::unique_ptr<Panel> cancelled(std::string_view className, std::string_view branch) {
    auto panel = make(className);
    letByName(*panel, "COD_GR", text(branch));
    letByName(*panel, "STATO", text("A"));
    EXPECT_EQ(stateOf(*panel), "ANNULLATA");
    return panel;
  }
};
QVN_ON_EVERY_PLATFORM(SearchState);

TEST_P(SearchState, ACancelledOneIsToldWhateverItsBranch) {
  for (const std::string_view name : kClasses) {
    for (const std::string_view branch : {"CA", "EL", ""}) cancelled(name, branch);
  }
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(SearchState, AnEndedGuaranteeIsReleasedAndAnyOtherDiscontinued) {
  struct Branch {
    std::string code;
    std::string state;
  };
  answer(kindSql("AU"), "TIPO_SK", std::int32_t{2});
  answer(kindSql("VI"), "TIPO_SK", std::int32_t{3});
  answer(kindSql("ZE"), "TIPO_SK", std::int32_t{0});
  answer(kindSql("ME"), "TIPO_SK", std::int32_t{-4});
  answer(kindSql("CI"), "TIPO_SK", std::int32_t{5});
  answer(kindSql("TE"), "TIPO_SK", text("4"));
  for (const std::string_view name : kClasses) {
    for (const Branch& branch : {Branch{"CA", "SVINCOLATA"}, Branch{"EL", "DISDETTA"}, Branch{"AU", "DISDETTA"},
                                 Branch{"VI", "DISDETTA"}, Branch{"ZE", "DISDETTA"}, Branch{"ME", "DISDETTA"},
                                 Branch{"CI", "DISDETTA"}, Branch{"TE", "SVINCOLATA"}, Branch{"??", "DISDETTA"}}) {
      SCOPED_TRACE(std::string(name).append(" ").append(branch.code));
      const auto panel = cancelled(name, branch.code);
      letByName(*panel, "STATO", text("D"));
      EXPECT_EQ(stateOf(*panel), branch.state);
      EXPECT_EQ(driver().ran, (std::vector<Ran>{{kindSql(branch.code), 3, 3, -1}}));
      EXPECT_EQ(getByName(*panel, "STATO"), Variant(Empty{}));
      driver().ran.clear();
    }
  }
}

TEST_P(SearchState, WithoutABranchItIsDiscontinuedAndTheEmptyBranchIsAskedFor) {
  for (const std::string_view name : kClasses) {
    const auto panel = make(name);
    letByName(*panel, "STATO", text("D"));
    EXPECT_EQ(stateOf(*panel), "DISDETTA");
    EXPECT_EQ(asked(), Strings{kindSql("")});
    letByName(*panel, "COD_GR", text("CA"));  // too late
    EXPECT_EQ(stateOf(*panel), "DISDETTA");
    EXPECT_THAT(asked(), IsEmpty());
    letByName(*panel, "STATO", text("D"));
    EXPECT_EQ(stateOf(*panel), "SVINCOLATA");
    EXPECT_EQ(asked(), Strings{kindSql("CA")});
  }
}

TEST_P(SearchState, AnyOtherValueShowsNone) {
  for (const std::string_view name : kClasses) {
    for (const Variant& other :
         {text(""), text(" "), text("X"), text("a"), text("d"), text("A "), text("ANNULLATA"), text("S"),
          Variant(Null{}), Variant(Empty{}), Variant(std::int32_t{0}), Variant(true), Variant(CurrencyArray{})}) {
      SCOPED_TRACE(kindName(other));
      const auto panel = cancelled(name, "CA");
      letByName(*panel, "STATO", other);
      EXPECT_EQ(stateOf(*panel), "");
    }
  }
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(SearchState, TheCodeOfTheBranchGoesIntoTheStatementAsItIs) {
  for (const std::string_view name : kClasses) {
    const auto panel = cancelled(name, "C'A");
    letByName(*panel, "STATO", text("D"));
    EXPECT_EQ(asked(), Strings{kindSql("C'A")});
    EXPECT_EQ(captionOf(*panel, "LblCOD_GR"), "C'A");
  }
}

TEST_P(SearchState, ALookUpThatFailsLeavesTheFormerState) {
  answer(kindSql("NU"), "TIPO_SK", Null{});
  answer(kindSql("GR"), "TIPO_SK", std::int32_t{32768});
  for (const std::string_view name : kClasses) {
    const auto panel = cancelled(name, "CA");
    statements.failAt(1);
    EXPECT_FAILURE(letByName(*panel, "STATO", text("D")), FailureKind::Database, kindSql("CA"));
    EXPECT_EQ(stateOf(*panel), "ANNULLATA");
    statements.failAt(0);
    EXPECT_FAILURE(letByName(*cancelled(name, "NU"), "STATO", text("D")), FailureKind::InvalidUseOfNull, "TIPO_SK");
    EXPECT_FAILURE(letByName(*cancelled(name, "GR"), "STATO", text("D")), FailureKind::Overflow, "TIPO_SK");
  }
}

TEST_P(SearchState, DiscontinuedAloneAsksForAMissingDatabase) {
  for (const std::string_view name : kClasses) {
    Globale::unload();
    int asks = 0;
    const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
    const auto panel = make(name);
    letByName(*panel, "STATO", text("A"));
    letByName(*panel, "STATO", text(""));
    EXPECT_EQ(asks, 0);
    EXPECT_FAILURE(letByName(*panel, "STATO", text("D")), FailureKind::Database, "closed");
    EXPECT_EQ(asks, 1);
  }
}

TEST_P(SearchState, TheBranchIsReadBeforeTheDatabaseIsAskedFor) {
  for (const std::string_view name : kClasses) {
    const auto panel = cancelled(name, "CA");
    const auto subscription = whenAskedForTheDatabase([&] { letByName(*panel, "COD_GR", text("EL")); });
    letByName(*panel, "STATO", text("D"));
    EXPECT_EQ(asked(), Strings{kindSql("CA")});
    EXPECT_EQ(stateOf(*panel), "SVINCOLATA");
  }
}

}  // namespace
}  // namespace qvn::test
