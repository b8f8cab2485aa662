// A host that drops a search panel while it looks something up, asks for its database or shows a viewer.
#include <functional>
#include <gtest/gtest.h>

#include "tests/documents/search_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class SearchDropping : public PolicyFound {
 public:
  SearchDropping() {
    answer(ClaimFound::leadCompanySql("S/1"), "COD_COMP", text("C1"));
    answer("Select U_CALCOLO FROM POLIZZE WHERE PROT = 9", "U_CALCOLO", text("TRF"));
  }

  /// What a host or an operator does on a panel that is ready for it.
  struct Doing {
    std::string className;
    std::string what;
    std::function<void(Panel&)> act;
  };
  std::vector<Doing> doings() {
    const auto let = [](std::string property, Variant value) {
      return [property = std::move(property), value = std::move(value)](Panel& on) { letByName(on, property, value); };
    };
    const auto press = [this](std::string button) {
      return [this, button = std::move(button)](Panel& on) { hands().click(on.surface().button(button)); };
    };
    return {{"ctlRICERCA", "PROT", let("PROT", std::int32_t{7})},
            {"ctlRICERCA", "STATO", let("STATO", text("D"))},
            {"ctlRICERCA", "CmdCOMPAGNIE", press("CmdCOMPAGNIE")},
            {"ctlRICERCA", "CmdPRODUTTORI", press("CmdPRODUTTORI")},
            {"ctlRICERCA", "CmdPRODUTTORI_ALT", press("CmdPRODUTTORI_ALT")},
            {"ctlRIC_SINISTRI", "PROT", let("PROT", text("S/1"))},
            {"ctlRIC_SINISTRI", "STATO", let("STATO", text("D"))},
            {"ctlRIC_SINISTRI", "COD_PROD", let("COD_PROD", text("P1"))},
            {"ctlRIC_SINISTRI", "CmdCOMPAGNIE", press("CmdCOMPAGNIE")}};
  }
  std::unique_ptr<Panel> dropped;
  void start(const Doing& doing) {
    dropped = make(doing.className);
    letByName(*dropped, "PROT", std::int32_t{9});
    letByName(*dropped, "COD_GR", text("CA"));
    statements.failAt(0);
    asked();
  }
};
QVN_ON_EVERY_PLATFORM(SearchDropping);

TEST_P(SearchDropping, AtEachOfItsStatements) {
  for (const Doing& doing : doings()) {
    start(doing);
    doing.act(*dropped);
    const std::size_t count = statements.count();
    ASSERT_GT(count, 0U) << doing.what;
    for (std::size_t at = 1; at <= count; ++at) {
      SCOPED_TRACE(doing.className + "." + doing.what + " at " + std::to_string(at));
      start(doing);
      statements.onStatement = [&](std::string_view) {
        if (statements.count() + 1 == at) dropped.reset();
      };
      doing.act(*dropped);
      statements.onStatement = {};
      EXPECT_EQ(dropped, nullptr);
      EXPECT_GE(statements.count(), at);
      EXPECT_THAT(container().failures, IsEmpty());
      EXPECT_THAT(loadedForms(), IsEmpty());
    }
  }
}

TEST_P(SearchDropping, WhereTheDatabaseIsAskedFor) {
  for (const Doing& doing : doings()) {
    SCOPED_TRACE(doing.className + "." + doing.what);
    start(doing);
    const auto subscription = whenAskedForTheDatabase([&] { dropped.reset(); });
    doing.act(*dropped);
    EXPECT_EQ(dropped, nullptr);
    EXPECT_FALSE(asked().empty());  // what was asked for comes all the same
    EXPECT_THAT(container().failures, IsEmpty());
    Globale::unload();
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
  }
}

TEST_P(SearchDropping, WhereTheDatabaseIsAskedForAndNotGiven) {
  for (const Doing& doing : doings()) {
    SCOPED_TRACE(doing.className + "." + doing.what);
    start(doing);
    Globale::unload();
    const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] { dropped.reset(); });
    if (doing.what.starts_with("Cmd")) {
      doing.act(*dropped);
    } else {
      EXPECT_FAILURE(doing.act(*dropped), FailureKind::Database, "closed");
    }
    EXPECT_EQ(dropped, nullptr);
    EXPECT_THAT(asked(), IsEmpty());
    container().failures.clear();
    Globale::unload();
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
  }
}

TEST_P(SearchDropping, WhileAViewerStands) {
  for (const Doing& doing : doings()) {
    if (!doing.what.starts_with("Cmd")) continue;
    SCOPED_TRACE(doing.className + "." + doing.what);
    start(doing);
    hands().shown();
    log.onEntry = [&](const std::string& entry) {
      if (entry.starts_with("modal")) dropped.reset();
    };
    doing.act(*dropped);
    log.onEntry = {};
    EXPECT_EQ(dropped, nullptr);
    EXPECT_EQ(hands().shown().size(), 1U);
    EXPECT_THAT(loadedForms(), IsEmpty());
    EXPECT_THAT(container().failures, IsEmpty());
  }
}

}  // namespace
}  // namespace qvn::test
