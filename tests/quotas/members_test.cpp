// What the public members of the two panels read and write, and what that announces.
#include <gtest/gtest.h>

#include "tests/quotas/quota_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QuotaMembers : public QuotaBench {};
QVN_ON_EVERY_PLATFORM(QuotaMembers);

struct Text {
  std::string className;
  std::string property;
  std::string field;
  std::size_t limit;
};

const std::vector<Text>& texts() {
  static const std::vector<Text> all{
      {"ctlQ_POLIZZE", "N_POLIZZA", "TxtN_POLIZZA", 15},
      {"ctlQ_SINISTRI", "N_POLIZZA", "TxtN_POLIZZA", 15},
      {"ctlQ_SINISTRI", "N_SINISTRO_COMP", "TxtN_SINISTRO", 20},
  };
  return all;
}

TEST_P(QuotaMembers, ATextIsWrittenToItsFieldAnnouncedAndNotWrittenTwice) {
  for (const Text& one : texts()) {
    SCOPED_TRACE(one.className + "." + one.property);
    make(one.className);
    write(one.property, "abc 12/è");
    EXPECT_EQ(text(one.field), "abc 12/è");
    EXPECT_EQ(read(one.property), "abc 12/è");
    EXPECT_THAT(heard(), ElementsAre(one.property));
    write(one.property, "abc 12/è");
    EXPECT_THAT(heard(), IsEmpty());
    write(one.property, "ABC 12/è");
    EXPECT_THAT(heard(), ElementsAre(one.property));
    write(one.property, "");
    EXPECT_EQ(read(one.property), "");
    EXPECT_THAT(heard(), ElementsAre(one.property));
    write(one.property, std::string(40, 'x'));  // the limit is the hand's alone
    EXPECT_EQ(read(one.property), std::string(40, 'x'));
    EXPECT_THAT(asked(), IsEmpty());
  }
}

TEST_P(QuotaMembers, ATextTakesSoManyCharactersInCapitals) {
  for (const Text& one : texts()) {
    SCOPED_TRACE(one.className + "." + one.property);
    make(one.className);
    call("Attiva");
    hands().focus(box(one.field));
    EXPECT_EQ(box(one.field).BackColor(), kCyan);
    forget();
    const std::int64_t before = beeps();
    hands().type("ab?/-1cdefghilmnopqrstuv");
    EXPECT_EQ(read(one.property), std::string("AB?/-1CDEFGHILMNOPQRSTUV").substr(0, one.limit));
    EXPECT_EQ(beeps(), before + static_cast<std::int64_t>(24 - one.limit));
    EXPECT_EQ(heard(), Strings(one.limit, one.property));
    hands().leave();
    EXPECT_EQ(box(one.field).BackColor(), toolkit::kWhite);
    hands().focus(box(one.field));
    EXPECT_TRUE(wholeSelected(box(one.field)));
  }
}

TEST_P(QuotaMembers, EachPropertyWritesNoOtherField) {
  withBoth([&](std::string_view className) {
    make(className);
    int number = 0;
    std::vector<std::pair<std::string, std::string>> written;
    for (const Member& member : panel->members()) {
      if (member.type != "text") continue;
      const std::string value = std::string("T").append(std::to_string(++number));
      write(member.name, value);
      written.emplace_back(member.name, value);
    }
    EXPECT_EQ(written.size(), className == "ctlQ_POLIZZE" ? 4U : 3U);
    for (const auto& [name, value] : written) EXPECT_EQ(read(name), value) << name;
    EXPECT_EQ(quota(), 0);
  });
}

TEST_P(QuotaMembers, DelegatariaIsTheCheckBoxAndAnnouncedWhenItChanges) {
  withBoth([&](std::string_view className) {
    make(className);
    EXPECT_EQ(getByName(*panel, "DELEGATARIA"), Variant(false));
    let("DELEGATARIA", false);
    EXPECT_THAT(heard(), IsEmpty());
    let("DELEGATARIA", true);
    EXPECT_EQ(lead().Value(), 1);
    EXPECT_EQ(getByName(*panel, "DELEGATARIA"), Variant(true));
    EXPECT_THAT(heard(), ElementsAre("DELEGATARIA"));
    let("DELEGATARIA", true);
    EXPECT_THAT(heard(), IsEmpty());
    let("DELEGATARIA", std::int16_t{0});
    EXPECT_EQ(lead().Value(), 0);
    EXPECT_THAT(heard(), ElementsAre("DELEGATARIA"));
  });
}

TEST_P(QuotaMembers, TickingAnnouncesAndWorksOutNothing) {
  withBoth([&](std::string_view className) {
    ready(className);
    quota(250);
    const Strings before = shares();
    forget();
    hands().click(lead());
    EXPECT_EQ(getByName(*panel, "DELEGATARIA"), Variant(true));
    EXPECT_THAT(heard(), ElementsAre("DELEGATARIA"));
    EXPECT_EQ(shares(), before);
    EXPECT_EQ(lead().BackColor(), toolkit::kFaceGray);  // no colour of the focus
    hands().click(lead());
    EXPECT_EQ(getByName(*panel, "DELEGATARIA"), Variant(false));
    EXPECT_THAT(heard(), ElementsAre("DELEGATARIA"));
    EXPECT_THAT(asked(), IsEmpty());
  });
}

TEST_P(QuotaMembers, ThePanelsGiveTheOneEventObject) {
  Strings classes = kBothClasses;
  for (const std::string& className : classes) {
    SCOPED_TRACE(className);
    make(className);
    EXPECT_EQ(std::get<EventsReference>(getByName(*panel, "events")), Globale::Eventi());
    EXPECT_FAILURE(let("Events", Empty{}), FailureKind::NoSuchMember, "quota.Events");
  }
}

TEST_P(QuotaMembers, AreReachedByNameInAnyCase) {
  make("ctlQ_POLIZZE");
  let("quota", std::string("250"));
  EXPECT_EQ(getByName(*panel, "Quota"), Variant(std::int16_t{250}));
  std::vector<Variant> figures{ofPolicy({"1000", "50", "800", "0", "0", "0", "0", "0", "0"})};
  callByName(*panel, "imposta_valori", figures);
  EXPECT_EQ(figures[0], Variant(ofPolicy({"1000", "50", "800", "0", "0", "0", "0", "0", "0"})));
  std::vector<Variant> thousandths{std::string("500")};
  callByName(*panel, "calcola_quota", thousandths);
  EXPECT_EQ(caption("TAF(0)"), "€ 500,00");
  EXPECT_EQ(thousandths[0], Variant(std::string("500")));
  std::vector<Variant> beyond{std::int32_t{32768}};
  EXPECT_FAILURE(callByName(*panel, "Calcola_QUOTA", beyond), FailureKind::Overflow, "quota.Calcola_QUOTA");
  EXPECT_FAILURE(call("Calcola_QUOTA"), FailureKind::InvalidCall, "quota.Calcola_QUOTA");
  EXPECT_FAILURE(let("QUOTA", Null{}), FailureKind::InvalidUseOfNull, "quota.QUOTA");
  make("ctlQ_SINISTRI");
  EXPECT_FAILURE(callByName(*panel, "Calcola_QUOTA_DELEGATARIA", thousandths), FailureKind::NoSuchMember, "quota");
  EXPECT_FAILURE(getByName(*panel, "D_RIMESSA"), FailureKind::NoSuchMember, "quota.D_RIMESSA");
  EXPECT_FAILURE(getByName(*panel, "N_SINISTRO"), FailureKind::NoSuchMember, "quota.N_SINISTRO");
}

TEST_P(QuotaMembers, TwoPanelsKeepTheirOwnValues) {
  auto& one = make<ctlQ_POLIZZE>();
  ctlQ_POLIZZE other(PanelSite{container(), "altra"});
  one.Imposta_VALORI(ofPolicy({"1000", "0", "0", "0", "0", "0", "0", "0", "0"}));
  other.Imposta_VALORI(ofPolicy({"7", "0", "0", "0", "0", "0", "0", "0", "0"}));
  one.Calcola_QUOTA(1000);
  other.Calcola_QUOTA(1000);
  one.COD_COMP("C1");
  EXPECT_EQ(columnsOf(one.surface()).front(), "€ 1.000,00");
  EXPECT_EQ(columnsOf(other.surface()).front(), "€ 7,00");
  EXPECT_EQ(other.COD_COMP(), "");
}

}  // namespace
}  // namespace qvn::test
