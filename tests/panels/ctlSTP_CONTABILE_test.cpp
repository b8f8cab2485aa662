// The accounting print code panel, loaded by a host and typed by an operator.
#include "qvn/panels/master/ctlSTP_CONTABILE.h"

#include "tests/plain_panel.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Align;
using toolkit::WidgetKind;

class AccountingPrintPanel : public PlainPanel<ctlSTP_CONTABILE> {
 public:
  toolkit::TextBox& code() { return box("TxtCodice"); }
  toolkit::TextBox& description() { return box("txtDescrizione"); }
};
QVN_ON_EVERY_PLATFORM(AccountingPrintPanel);

TEST_P(AccountingPrintPanel, IsLaidOutInTabOrderFromTheTop) {
  expectLaidOut({
      {"Frame1", WidgetKind::Frame, {75, 0, 6240, 840}},
      {"lblCodice", WidgetKind::Label, {75, 300, 615, 315}, "Codice:", Align::Right},
      {"TxtCodice", WidgetKind::TextBox, {750, 300, 690, 315}},
      {"lblDescrizione", WidgetKind::Label, {1425, 300, 1065, 315}, "Descrizione:", Align::Right},
      {"txtDescrizione", WidgetKind::TextBox, {2550, 300, 3540, 315}},
  });
  EXPECT_EQ(surface().layout().name, "ctlSTP_CONTABILE");
  EXPECT_EQ(surface().layout().width, 6405);
  EXPECT_EQ(surface().layout().height, 915);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(AccountingPrintPanel, HasItsPublicMembersInOrder) {
  EXPECT_EQ(membersInOrder(),
            "Codice get/let text\n"
            "DESCRIZIONE get/let text\n"
            "Attiva method \n"
            "Disattiva method \n");
}

TEST_P(AccountingPrintPanel, AFreshOneReadsEmptyTexts) {
  EXPECT_EQ(panel->Codice(), "");
  EXPECT_EQ(panel->DESCRIZIONE(), "");
}

TEST_P(AccountingPrintPanel, TheCodeIsATextAndItsReadingCannotFail) {
  for (const std::string code : {"GI01", "abc", "12x", "256", "", "è", "0012", "codice lunghissimo"}) {
    panel->Codice(code);
    EXPECT_EQ(panel->Codice(), code);
    EXPECT_EQ(this->code().Text(), code);
  }
}

TEST_P(AccountingPrintPanel, IsLoadedAndReadBackUnderTheNamesItAnnounces) {
  panel->Codice("GI");
  panel->DESCRIZIONE("Giornale è");
  EXPECT_EQ(code().Text(), "GI");
  EXPECT_EQ(description().Text(), "Giornale è");
  EXPECT_EQ(panel->DESCRIZIONE(), "Giornale è");
  EXPECT_THAT(heard(), ElementsAre("Codice", "Descrizione"));
}

TEST_P(AccountingPrintPanel, OnlyWhatDiffersIsWritten) {
  const auto load = [this] {
    panel->Codice("GI");
    panel->DESCRIZIONE("GIORNALE");
  };
  EXPECT_THAT(writesOf(load), ElementsAre("TxtCodice.Text GI", "txtDescrizione.Text GIORNALE"));
  EXPECT_THAT(writesOf(load, load), IsEmpty());
  EXPECT_THAT(writesOf(
                  [this] {
                    panel->Codice("gi");
                    panel->DESCRIZIONE("Giornale");
                  },
                  load),
              ElementsAre("TxtCodice.Text gi", "txtDescrizione.Text Giornale"));
}

TEST_P(AccountingPrintPanel, AttivaGoesToTheCode) {
  attivaGoesTo("TxtCodice", [this]() -> toolkit::EditableText& { return code(); });
}

TEST_P(AccountingPrintPanel, DisattivaFreezesAndKeepsTheValues) {
  disattivaFreezesAndKeeps("GI", [this]() -> toolkit::EditableText& { return code(); });
  panel->Disattiva();
  panel->Codice("MA");
  EXPECT_EQ(panel->Codice(), "MA");
}

TEST_P(AccountingPrintPanel, DisattivaPassesAFailureOn) {
  disattivaPassesAFailureOn([this]() -> toolkit::EditableText& { return code(); });
}

TEST_P(AccountingPrintPanel, TypedLettersBecomeCapitalsUpToFive) {
  panel->Attiva();
  hands().type("abc");
  EXPECT_EQ(panel->Codice(), "ABC");
  typedInto(code(), "def", "ABCDE", 1);
  hands().caret(0, 5);
  typedInto(code(), "x", "X", 0);
}

TEST_P(AccountingPrintPanel, EachFieldHasItsFilterAndLimit) {
  panel->Attiva();
  typedInto(code(), "a1?-èz", "A1?-è", 1);
  typedInto(description(), std::string(51, 'x'), std::string(50, 'X'), 1);
  EXPECT_EQ(heard().size(), 55U);
}

TEST_P(AccountingPrintPanel, EnterGoesBetweenTheTwoFieldsSelectingAndColouringEach) {
  panel->Attiva();
  enterLeads("TxtCodice", "txtDescrizione");
  enterLeads("txtDescrizione", "TxtCodice");
}

TEST_P(AccountingPrintPanel, TheTextIsSelectedBeforeTheFieldIsColoured) {
  selectsFirst("TxtCodice");
  selectsFirst("txtDescrizione");
}

TEST_P(AccountingPrintPanel, EachKeyIsAnnouncedUnderTheFieldsName) {
  panel->Attiva();
  hands().type("1{Backspace}{Enter}a{Enter}");
  EXPECT_THAT(heard(), ElementsAre("Codice", "Codice", "Descrizione"));
}

TEST_P(AccountingPrintPanel, AHostMayDropItWhereverItIsAnnounced) {
  dropAtEach([this] { panel->Codice("x"); });
  dropAtEach([this] { panel->DESCRIZIONE("x"); });
  dropAtEach([this] { hands().type("7"); });
  dropAtEach([this] {
    hands().focus(description());
    hands().type("a");
  });
}

TEST_P(AccountingPrintPanel, IsReachedByNameInAnyCase) {
  letByName(*panel, "CODICE", std::int32_t{7});
  EXPECT_EQ(getByName(*panel, "codice"), Variant(std::string("7")));
  letByName(*panel, "Descrizione", std::string("x"));
  EXPECT_EQ(getByName(*panel, "descrizione"), Variant(std::string("x")));
  EXPECT_FAILURE(letByName(*panel, "Codice", Null{}), FailureKind::InvalidUseOfNull, "scheda.Codice");
  EXPECT_FAILURE(getByName(*panel, "COD_MOVIMENTO"), FailureKind::NoSuchMember, "scheda.COD_MOVIMENTO");
  EXPECT_FAILURE(getByName(*panel, "Events"), FailureKind::NoSuchMember, "scheda.Events");
}

TEST_P(AccountingPrintPanel, TwoOfThemKeepTheirOwnValues) {
  const auto other = another("altra");
  panel->Codice("A");
  other->Codice("B");
  EXPECT_EQ(panel->Codice(), "A");
  EXPECT_EQ(other->Codice(), "B");
}

}  // namespace
}  // namespace qvn::test
