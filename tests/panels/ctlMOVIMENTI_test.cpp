// The movement type panel, loaded by a host and typed by an operator.
#include "qvn/panels/master/ctlMOVIMENTI.h"

#include "tests/plain_panel.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Align;
using toolkit::WidgetKind;

class MovementTypePanel : public PlainPanel<ctlMOVIMENTI> {
 public:
  toolkit::TextBox& code() { return box("TxtCodice"); }
  toolkit::TextBox& description() { return box("txtDescrizione"); }
};
QVN_ON_EVERY_PLATFORM(MovementTypePanel);

TEST_P(MovementTypePanel, IsLaidOutInTabOrderWithoutACaptionForTheDescription) {
  expectLaidOut({
      {"Frame1", WidgetKind::Frame, {75, 75, 6765, 690}},
      {"lblCodice", WidgetKind::Label, {75, 225, 690, 315}, "Codice:", Align::Right},
      {"TxtCodice", WidgetKind::TextBox, {825, 225, 540, 315}},
      {"txtDescrizione", WidgetKind::TextBox, {1425, 225, 5190, 315}},
  });
  EXPECT_EQ(surface().layout().name, "ctlMOVIMENTI");
  EXPECT_EQ(surface().layout().width, 6870);
  EXPECT_EQ(surface().layout().height, 840);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(MovementTypePanel, HasItsPublicMembersInOrder) {
  EXPECT_EQ(membersInOrder(),
            "Attiva method \n"
            "Disattiva method \n"
            "COD_MOVIMENTO get/let 8-bit unsigned integer\n"
            "DESCRIZIONE get/let text\n");
}

TEST_P(MovementTypePanel, AnEmptyCodeIsNoNumber) {
  EXPECT_FAILURE(panel->COD_MOVIMENTO(), FailureKind::TypeMismatch, "TxtCodice");
  EXPECT_EQ(panel->DESCRIZIONE(), "");
  panel->COD_MOVIMENTO(7);
  EXPECT_EQ(panel->COD_MOVIMENTO(), 7);
  code().Text("");
  EXPECT_FAILURE(panel->COD_MOVIMENTO(), FailureKind::TypeMismatch, "TxtCodice");
  EXPECT_EQ(code().Text(), "");  // nothing puts a 0 in its place
}

TEST_P(MovementTypePanel, ACodeOutOfRangeFailsNamingTheField) {
  code().Text("256");
  EXPECT_FAILURE(panel->COD_MOVIMENTO(), FailureKind::Overflow, "TxtCodice");
  code().Text("-1");
  EXPECT_FAILURE(panel->COD_MOVIMENTO(), FailureKind::Overflow, "TxtCodice");
  code().Text("7x");
  EXPECT_FAILURE(panel->COD_MOVIMENTO(), FailureKind::TypeMismatch, "7x");
  EXPECT_EQ(code().Text(), "7x");
}

TEST_P(MovementTypePanel, HoldsEveryCodeOfEightBitsWithoutARange) {
  for (int value = 0; value <= 255; ++value) {
    panel->COD_MOVIMENTO(static_cast<std::uint8_t>(value));
    ASSERT_EQ(code().Text(), std::to_string(value));
    ASSERT_EQ(panel->COD_MOVIMENTO(), value);
  }
}

TEST_P(MovementTypePanel, IsLoadedAndReadBackUnderTheNamesItAnnounces) {
  panel->COD_MOVIMENTO(12);
  panel->DESCRIZIONE("Incasso di città");
  EXPECT_EQ(code().Text(), "12");
  EXPECT_EQ(description().Text(), "Incasso di città");
  EXPECT_EQ(panel->DESCRIZIONE(), "Incasso di città");
  EXPECT_THAT(heard(), ElementsAre("COD_MOVIMENTO", "DESCRIZIONE"));
  panel->DESCRIZIONE(std::string(80, 'x'));  // the limit is the hand's alone
  EXPECT_EQ(panel->DESCRIZIONE(), std::string(80, 'x'));
}

TEST_P(MovementTypePanel, BothAreWrittenWhateverTheFieldsShow) {
  const auto load = [this] {
    panel->COD_MOVIMENTO(7);
    panel->DESCRIZIONE("INCASSO");
  };
  EXPECT_THAT(writesOf(load), ElementsAre("TxtCodice.Text 7", "txtDescrizione.Text INCASSO"));
  EXPECT_THAT(writesOf(load, load), ElementsAre("TxtCodice.Text 7", "txtDescrizione.Text INCASSO"));
}

TEST_P(MovementTypePanel, AWriteOfWhatIsThereChangesNothingToBeSeen) {
  ready();
  panel->COD_MOVIMENTO(12);
  hands().caret(1, 1);
  EXPECT_THAT(heard(), ElementsAre("COD_MOVIMENTO"));
  panel->COD_MOVIMENTO(12);
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_EQ(code().SelStart(), 1);
  code().Text("07");
  panel->COD_MOVIMENTO(7);
  EXPECT_EQ(code().Text(), "7");
}

TEST_P(MovementTypePanel, AttivaGoesToTheCode) {
  attivaGoesTo("TxtCodice", [this]() -> toolkit::EditableText& { return code(); });
}

TEST_P(MovementTypePanel, DisattivaFreezesAndKeepsTheValues) {
  disattivaFreezesAndKeeps("12", [this]() -> toolkit::EditableText& { return code(); });
  panel->Disattiva();
  panel->COD_MOVIMENTO(9);
  EXPECT_EQ(panel->COD_MOVIMENTO(), 9);
}

TEST_P(MovementTypePanel, DisattivaPassesAFailureOn) {
  disattivaPassesAFailureOn([this]() -> toolkit::EditableText& { return code(); });
}

TEST_P(MovementTypePanel, EnterGoesBetweenTheTwoFieldsSelectingAndColouringEach) {
  panel->Attiva();
  enterLeads("TxtCodice", "txtDescrizione");
  enterLeads("txtDescrizione", "TxtCodice");
}

TEST_P(MovementTypePanel, TheTextIsSelectedBeforeTheFieldIsColoured) {
  selectsFirst("TxtCodice");
  selectsFirst("txtDescrizione");
}

TEST_P(MovementTypePanel, EachFieldHasItsFilterAndLimit) {
  panel->Attiva();
  typedInto(code(), "1a?23", "12", 3);
  typedInto(description(), "è?" + std::string(49, 'x'), "è?" + std::string(48, 'X'), 1);
  EXPECT_EQ(heard().size(), 52U);
}

TEST_P(MovementTypePanel, EachKeyIsAnnouncedUnderTheFieldsName) {
  panel->Attiva();
  hands().type("1{Backspace}{Enter}a{Enter}");
  EXPECT_THAT(heard(), ElementsAre("COD_MOVIMENTO", "COD_MOVIMENTO", "DESCRIZIONE"));
}

TEST_P(MovementTypePanel, AHostMayDropItWhereverItIsAnnounced) {
  dropAtEach([this] { panel->COD_MOVIMENTO(7); });
  dropAtEach([this] { panel->DESCRIZIONE("x"); });
  dropAtEach([this] { hands().type("7"); });
  dropAtEach([this] {
    hands().focus(description());
    hands().type("a");
  });
}

TEST_P(MovementTypePanel, IsReachedByNameInAnyCase) {
  letByName(*panel, "cod_movimento", std::string("7"));
  EXPECT_EQ(getByName(*panel, "Cod_Movimento"), Variant(std::uint8_t{7}));
  EXPECT_FAILURE(letByName(*panel, "COD_MOVIMENTO", std::int32_t{256}), FailureKind::Overflow, "scheda.COD_MOVIMENTO");
  EXPECT_FAILURE(letByName(*panel, "COD_MOVIMENTO", Null{}), FailureKind::InvalidUseOfNull, "scheda.COD_MOVIMENTO");
  EXPECT_FAILURE(getByName(*panel, "Codice"), FailureKind::NoSuchMember, "scheda.Codice");
  EXPECT_FAILURE(getByName(*panel, "Events"), FailureKind::NoSuchMember, "scheda.Events");
  EXPECT_EQ(panel->COD_MOVIMENTO(), 7);
}

TEST_P(MovementTypePanel, TwoOfThemKeepTheirOwnValues) {
  const auto other = another("altra");
  panel->COD_MOVIMENTO(1);
  other->COD_MOVIMENTO(2);
  EXPECT_EQ(panel->COD_MOVIMENTO(), 1);
  EXPECT_EQ(other->COD_MOVIMENTO(), 2);
}

}  // namespace
}  // namespace qvn::test
