// The insurance branch panel, loaded by a host and typed by an operator.
#include "qvn/panels/master/ctlRAMI.h"

#include <limits>

#include "tests/plain_panel.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Align;
using toolkit::WidgetKind;

const std::vector<std::pair<std::int16_t, std::string>> kKinds{
    {std::int16_t{1}, "Elementari"},
    {std::int16_t{2}, "Auto"},
    {std::int16_t{3}, "Vita"},
    {std::int16_t{4}, "Cauzioni"},
};

class BranchPanel : public PlainPanel<ctlRAMI> {
 public:
  toolkit::TextBox& code() { return box("TxtCOD_RAMO"); }
  toolkit::TextBox& description() { return box("txtDescrizione"); }
  toolkit::ComboBox& screens() { return list("CmbTIPO_SK"); }
  toolkit::CheckBox& ticked() { return flag("ckCompetenze"); }
};
QVN_ON_EVERY_PLATFORM(BranchPanel);

TEST_P(BranchPanel, IsLaidOutInTabOrder) {
  expectLaidOut({
      {"Frame1", WidgetKind::Frame, {75, 75, 6615, 1065}},
      {"Label1", WidgetKind::Label, {225, 225, 1065, 315}, "Cod. Ramo:", Align::Right},
      {"TxtCOD_RAMO", WidgetKind::TextBox, {1350, 225, 840, 315}},
      {"txtDescrizione", WidgetKind::TextBox, {2250, 225, 4215, 315}},
      {"Label3", WidgetKind::Label, {-75, 600, 1365, 315}, "Tipo Schermata:", Align::Right},
      {.name = "CmbTIPO_SK",
       .kind = WidgetKind::ComboBox,
       .place = {1350, 600, 1890, 315},
       .items = {"Elementari", "Auto", "Vita", "Cauzioni"}},
      {"ckCompetenze", WidgetKind::CheckBox, {3480, 600, 1335, 375}, "Competenze", Align::Right},
  });
  EXPECT_EQ(surface().layout().name, "ctlRAMI");
  EXPECT_EQ(surface().layout().width, 6795);
  EXPECT_EQ(surface().layout().height, 1245);
}

TEST_P(BranchPanel, HasItsPublicMembersInOrder) {
  EXPECT_EQ(membersInOrder(),
            "COD_RAMO get/let text\n"
            "competenze get/let text\n"
            "DESCRIZIONE get/let text\n"
            "TIPO_SK get/let 16-bit integer\n"
            "Attiva method \n"
            "Disattiva method \n");
}

TEST_P(BranchPanel, OfAFreshOneNoReadingFails) {
  panel = another("nuova");
  EXPECT_THAT(heard(), IsEmpty());  // no item is shown to begin with
  EXPECT_EQ(panel->TIPO_SK(), 0);
  EXPECT_EQ(panel->competenze(), "0");
  EXPECT_EQ(panel->COD_RAMO(), "");
  EXPECT_EQ(panel->DESCRIZIONE(), "");
  EXPECT_EQ(screens().ListIndex(), -1);
}

TEST_P(BranchPanel, IsLoadedAndReadBackUnderTheNamesItAnnounces) {
  panel->COD_RAMO("FD");
  panel->DESCRIZIONE("Fideiussioni è");
  panel->TIPO_SK(4);
  panel->competenze("1");
  EXPECT_THAT(heard(), ElementsAre("COD_RAMO", "DESCRIZIONE", "TIPO_SK", "competenze"));
  EXPECT_EQ(code().Text(), "FD");
  EXPECT_EQ(description().Text(), "Fideiussioni è");
  EXPECT_EQ(screens().Text(), "Cauzioni");
  EXPECT_EQ(ticked().Value(), 1);
  EXPECT_EQ(panel->COD_RAMO(), "FD");
  EXPECT_EQ(panel->DESCRIZIONE(), "Fideiussioni è");
  EXPECT_EQ(panel->TIPO_SK(), 4);
  EXPECT_EQ(panel->competenze(), "1");
  panel->COD_RAMO("ramo");  // limit and capitals are the hand's alone
  EXPECT_EQ(panel->COD_RAMO(), "ramo");
}

TEST_P(BranchPanel, OnlyWhatDiffersIsWritten) {
  const auto load = [this] {
    panel->COD_RAMO("FD");
    panel->DESCRIZIONE("FIDEIUSSIONI");
    panel->TIPO_SK(2);
    panel->competenze("1");
  };
  EXPECT_THAT(writesOf(load), ElementsAre("TxtCOD_RAMO.Text FD", "txtDescrizione.Text FIDEIUSSIONI",
                                          "CmbTIPO_SK.Text Auto", "ckCompetenze.Value 1"));
  EXPECT_THAT(writesOf(load, load), IsEmpty());
  EXPECT_THAT(writesOf(
                  [this] {
                    panel->COD_RAMO("fd");
                    panel->DESCRIZIONE("Fideiussioni");
                  },
                  load),
              ElementsAre("TxtCOD_RAMO.Text fd", "txtDescrizione.Text Fideiussioni"));
}

TEST_P(BranchPanel, CompetenzeIsComparedBeforeItIsRounded) {
  const auto write = [this](std::string_view state) { return [this, state] { panel->competenze(state); }; };
  EXPECT_THAT(writesOf(write("1,4"), write("1")), ElementsAre("ckCompetenze.Value 1"));
  EXPECT_THAT(writesOf(write("1,00"), write("1")), IsEmpty());
}

TEST_P(BranchPanel, EachKindOfScreenHasItsNumber) {
  for (const auto& [number, item] : kKinds) {
    panel->TIPO_SK(number);
    EXPECT_EQ(screens().Text(), item);
    EXPECT_EQ(panel->TIPO_SK(), number);
  }
  EXPECT_EQ(heard(), Strings(4, "TIPO_SK"));
  ready();
  for (const auto& [number, item] : kKinds) {
    hands().choose(screens(), item);
    EXPECT_EQ(panel->TIPO_SK(), number);
  }
  EXPECT_EQ(heard(), Strings(4, "TIPO_SK"));
}

TEST_P(BranchPanel, ANumberWithoutAKindLeavesTheList) {
  constexpr auto kLeast = std::numeric_limits<std::int16_t>::min();
  constexpr auto kMost = std::numeric_limits<std::int16_t>::max();
  const auto others = {std::int16_t{0}, std::int16_t{5}, std::int16_t{9}, std::int16_t{-1}, kLeast, kMost};
  for (const std::int16_t other : others) panel->TIPO_SK(other);
  EXPECT_EQ(panel->TIPO_SK(), 0);
  panel->TIPO_SK(3);
  EXPECT_EQ(screens().Text(), "Vita");
  EXPECT_THAT(heard(), ElementsAre("TIPO_SK"));
  for (const std::int16_t other : others) {
    panel->TIPO_SK(other);
    EXPECT_EQ(screens().Text(), "Vita") << other;
  }
  panel->TIPO_SK(3);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(BranchPanel, ATextOfTheListThatIsNoKindReadsAsNone) {
  screens().AddItem("auto");  // exact in case
  screens().Text("auto");
  EXPECT_EQ(panel->TIPO_SK(), 0);
  panel->TIPO_SK(2);
  EXPECT_EQ(screens().Text(), "Auto");
}

TEST_P(BranchPanel, CompetenzeIsTheCheckBoxAsText) {
  panel->competenze("1");
  EXPECT_EQ(ticked().Value(), 1);
  EXPECT_EQ(panel->competenze(), "1");
  EXPECT_THAT(heard(), ElementsAre("competenze"));
  panel->competenze("1");
  panel->competenze(" 1,00 ");  // the same number
  EXPECT_THAT(heard(), IsEmpty());
  panel->competenze("0");
  EXPECT_EQ(ticked().Value(), 0);
  EXPECT_EQ(panel->competenze(), "0");
  EXPECT_THAT(heard(), ElementsAre("competenze"));
}

TEST_P(BranchPanel, CompetenzeRoundsItsNumberWithTiesToEven) {
  for (const std::string zero : {"0,4", "0,5", "-0,5", "-0"}) {
    panel->competenze(zero);
    EXPECT_EQ(ticked().Value(), 0) << zero;
  }
  EXPECT_THAT(heard(), IsEmpty());
  for (const std::string one : {"0,51", "1,4", "€ 1,00", "1e0"}) {
    panel->competenze("0");
    panel->competenze(one);
    EXPECT_EQ(ticked().Value(), 1) << one;
  }
}

TEST_P(BranchPanel, CompetenzeThatIsNoNumberFailsNamingTheBox) {
  panel->competenze("1");
  container().notices.clear();
  for (const std::string none : {"", "si", "True", "1x", "1.2"}) {
    EXPECT_FAILURE(panel->competenze(none), FailureKind::TypeMismatch, "ckCompetenze");
  }
  EXPECT_FAILURE(panel->competenze("sempre"), FailureKind::TypeMismatch, "sempre");
  EXPECT_EQ(panel->competenze(), "1");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(BranchPanel, CompetenzeBeyondTheStatesOfTheBoxFailsAndLeavesIt) {
  panel->competenze("1");
  container().notices.clear();
  for (const std::string other : {"2", "-1", "1,5", "255", "32767"}) {
    EXPECT_FAILURE(panel->competenze(other), FailureKind::InvalidCall, "ckCompetenze");
  }
  for (const std::string beyond : {"32768", "-32769", "1E20"}) {
    EXPECT_FAILURE(panel->competenze(beyond), FailureKind::Overflow, "ckCompetenze");
  }
  EXPECT_EQ(panel->competenze(), "1");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(BranchPanel, CompetenzeIsReadInThePlatformsLocale) {
  setLocale({.decimalSign = '.', .groupingSign = ','});
  panel->competenze("1.0");
  EXPECT_EQ(ticked().Value(), 1);
  EXPECT_FAILURE(panel->competenze("0,0"), FailureKind::TypeMismatch, "0,0");
}

TEST_P(BranchPanel, AHostThatFailsAtAnAnnouncementIsHeardUnchanged) {
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  for (const auto& write : std::vector<std::function<void()>>{[this] { panel->competenze("1"); },  //
                                                              [this] { panel->TIPO_SK(1); },       //
                                                              [this] { panel->COD_RAMO("x"); }}) {
    try {
      write();
      ADD_FAILURE() << "did not fail";
    } catch (const Failure& failure) {
      EXPECT_STREQ(failure.what(), "the host refuses");
    }
  }
  container().onNotice = {};
  EXPECT_EQ(panel->competenze(), "1");
}

TEST_P(BranchPanel, ClicksOfTheBoxAreAnnouncedAndLeaveItsColour) {
  panel->Attiva();
  hands().click(ticked());
  EXPECT_EQ(panel->competenze(), "1");
  EXPECT_EQ(focused(), "ckCompetenze");
  EXPECT_EQ(ticked().BackColor(), toolkit::kFaceGray);
  hands().click(ticked());
  EXPECT_EQ(panel->competenze(), "0");
  EXPECT_THAT(heard(), ElementsAre("competenze", "competenze"));
}

TEST_P(BranchPanel, TheListIsColouredWhileItHasTheFocus) {
  panel->Attiva();
  hands().focus(screens());
  EXPECT_EQ(screens().BackColor(), kCyan);
  hands().leave();
  EXPECT_EQ(screens().BackColor(), toolkit::kWhite);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(BranchPanel, AttivaGoesToTheCode) {
  attivaGoesTo("TxtCOD_RAMO", [this]() -> toolkit::EditableText& { return code(); });
}

TEST_P(BranchPanel, DisattivaFreezesAndKeepsTheValues) {
  disattivaFreezesAndKeeps("FD", [this]() -> toolkit::EditableText& { return code(); });
  panel->TIPO_SK(2);
  panel->competenze("1");
  panel->Disattiva();
  EXPECT_EQ(panel->TIPO_SK(), 2);
  EXPECT_EQ(panel->competenze(), "1");
  hands().click(ticked());
  EXPECT_FAILURE(hands().choose(screens(), "Vita"), FailureKind::InvalidCall, "CmbTIPO_SK");
  EXPECT_EQ(panel->TIPO_SK(), 2);
  EXPECT_EQ(panel->competenze(), "1");
  panel->TIPO_SK(3);
  EXPECT_EQ(panel->TIPO_SK(), 3);
}

TEST_P(BranchPanel, DisattivaPassesAFailureOn) {
  disattivaPassesAFailureOn([this]() -> toolkit::EditableText& { return code(); });
}

TEST_P(BranchPanel, EnterLeadsIntoTheListAndNoFurther) {
  panel->COD_RAMO("FD");
  panel->DESCRIZIONE("FIDEIUSSIONI");
  panel->Attiva();
  EXPECT_THAT(pathOf("{Enter}", 1), ElementsAre("txtDescrizione"));
  EXPECT_TRUE(wholeSelected(description()));
  EXPECT_EQ(description().BackColor(), kCyan);
  EXPECT_EQ(code().BackColor(), toolkit::kWhite);
  EXPECT_THAT(pathOf("{Enter}", 3), ElementsAre("CmbTIPO_SK", "CmbTIPO_SK", "CmbTIPO_SK"));
  EXPECT_EQ(description().BackColor(), toolkit::kWhite);
  EXPECT_THAT(pathOf("{Tab}", 1), ElementsAre("ckCompetenze"));
  EXPECT_THAT(pathOf("{Enter}", 1), ElementsAre("ckCompetenze"));
  EXPECT_THAT(pathOf("{Tab}", 1), ElementsAre("TxtCOD_RAMO"));
  EXPECT_TRUE(container().failures.empty());
}

TEST_P(BranchPanel, AFieldIsColouredBeforeItsTextIsSelected) {
  coloursFirst("TxtCOD_RAMO");
  coloursFirst("txtDescrizione");
}

TEST_P(BranchPanel, EachFieldHasItsFilterAndLimit) {
  panel->Attiva();
  typedInto(code(), "f?x", "F?", 1);
  typedInto(description(), std::string(51, 'x'), std::string(50, 'X'), 1);
  EXPECT_EQ(heard().size(), 52U);
}

TEST_P(BranchPanel, EachKeyIsAnnouncedUnderTheFieldsName) {
  panel->Attiva();
  hands().type("1{Backspace}{Enter}a");
  EXPECT_THAT(heard(), ElementsAre("COD_RAMO", "COD_RAMO", "DESCRIZIONE"));
}

TEST_P(BranchPanel, AHostMayDropItWhereverItIsAnnounced) {
  dropAtEach([this] { panel->COD_RAMO("x"); });
  dropAtEach([this] { panel->DESCRIZIONE("x"); });
  dropAtEach([this] { panel->TIPO_SK(2); });
  dropAtEach([this] { panel->competenze("1"); });
  dropAtEach([this] { hands().type("7"); });
  dropAtEach([this] { hands().choose(screens(), "Vita"); });
  dropAtEach([this] { hands().click(ticked()); });
}

TEST_P(BranchPanel, IsReachedByNameInAnyCase) {
  letByName(*panel, "COMPETENZE", std::int32_t{1});
  EXPECT_EQ(getByName(*panel, "Competenze"), Variant(std::string("1")));
  letByName(*panel, "tipo_sk", std::string("2"));
  EXPECT_EQ(getByName(*panel, "TIPO_SK"), Variant(std::int16_t{2}));
  EXPECT_FAILURE(letByName(*panel, "TIPO_SK", std::int32_t{32768}), FailureKind::Overflow, "scheda.TIPO_SK");
  EXPECT_FAILURE(letByName(*panel, "competenze", true), FailureKind::TypeMismatch, "scheda.competenze: ckCompetenze");
  EXPECT_FAILURE(letByName(*panel, "COD_RAMO", Null{}), FailureKind::InvalidUseOfNull, "scheda.COD_RAMO");
  EXPECT_FAILURE(getByName(*panel, "Events"), FailureKind::NoSuchMember, "scheda.Events");
}

TEST_P(BranchPanel, TwoOfThemKeepTheirOwnValues) {
  const auto other = another("altra");
  panel->TIPO_SK(1);
  other->TIPO_SK(2);
  panel->competenze("1");
  EXPECT_EQ(panel->TIPO_SK(), 1);
  EXPECT_EQ(other->TIPO_SK(), 2);
  EXPECT_EQ(other->competenze(), "0");
}

}  // namespace
}  // namespace qvn::test
