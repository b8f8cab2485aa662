// One line of the printed journal, loaded by a host and marked by an operator.
#include "qvn/panels/accounting/ctlSTP_MOVIMENTI.h"

#include <limits>

#include "qvn/shared/conversions.h"
#include "tests/plain_panel.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Align;
using toolkit::kBlack;
using toolkit::kWhite;
using toolkit::WidgetKind;

Currency euros(std::string_view amount) { return toCurrency(amount, Locale{}); }

class JournalLine : public PlainPanel<ctlSTP_MOVIMENTI> {
 public:
  toolkit::TextBox& mark() { return box("TxtFLAG"); }
  /// What the debit and the credit column show.
  Strings columns() { return {caption("LblDARE"), caption("LblAVERE")}; }
};
QVN_ON_EVERY_PLATFORM(JournalLine);

TEST_P(JournalLine, IsLaidOutInTabOrderWithTheAmountsPlaceUnseen) {
  const auto shown = [](std::string name, toolkit::Place place, Align align = Align::Left,
                        std::uint32_t fore = kBlack) {
    return LaidOut{.name = std::move(name),
                   .kind = WidgetKind::Label,
                   .place = place,
                   .align = align,
                   .bordered = true,
                   .back = kWhite,
                   .fore = fore};
  };
  const auto unseen = [](std::string name, toolkit::Place place) {
    return LaidOut{.name = std::move(name), .kind = WidgetKind::Label, .place = place, .back = kWhite, .outside = true};
  };
  expectLaidOut({
      {"Frame1", WidgetKind::Frame, {75, 0, 10365, 1065}},
      {"TxtFLAG", WidgetKind::TextBox, {75, 225, 615, 315}},
      shown("LblAVERE", {8550, 600, 1740, 315}, Align::Right, 49152),
      shown("LblDARE", {6750, 600, 1740, 315}, Align::Right, 255),
      shown("LblDESC_2", {75, 600, 6615, 315}),
      shown("LblDESC_1", {4050, 225, 6240, 315}),
      shown("LblDOC", {2850, 225, 1140, 315}),
      shown("LblDATA_RIF", {1650, 225, 1140, 315}, Align::Center),
      shown("LblRIF", {750, 225, 840, 315}, Align::Right),
      unseen("LblTIPO", {7200, 900, 240, 240}),
      unseen("LblIMPORTO", {7725, 825, 765, 315}),
  });
  EXPECT_EQ(surface().layout().name, "ctlSTP_MOVIMENTI");
  EXPECT_EQ(surface().layout().width, 10530);
  EXPECT_EQ(surface().layout().height, 1140);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(JournalLine, HasItsPublicMembersInOrder) {
  EXPECT_EQ(membersInOrder(),
            "FLAG get/let text\n"
            "NRIF get/let 32-bit integer\n"
            "DATA_RIF get/let variant\n"
            "NDOC get/let text\n"
            "DESC_1 get/let text\n"
            "DESC_2 get/let text\n"
            "IMPORTO get/let currency\n"
            "TIPO get/let text\n"
            "Attiva method \n"
            "Disattiva method \n");
}

TEST_P(JournalLine, ShowsTheLineAndGivesBackOnlyTheFlag) {
  panel->FLAG("X");
  panel->NRIF(12);
  panel->DATA_RIF(*Date::of(5, 3, 2026));
  panel->NDOC("417");
  panel->DESC_1("Incasso è");
  panel->DESC_2("Nardò");
  panel->IMPORTO(euros("1500"));
  panel->TIPO("D");
  EXPECT_EQ(mark().Text(), "X");
  EXPECT_EQ(caption("LblRIF"), "12");
  EXPECT_EQ(caption("LblDATA_RIF"), "05/03/2026");
  EXPECT_EQ(caption("LblDOC"), "417");
  EXPECT_EQ(caption("LblDESC_1"), "Incasso è");
  EXPECT_EQ(caption("LblDESC_2"), "Nardò");
  EXPECT_EQ(caption("LblIMPORTO"), "1500");
  EXPECT_EQ(caption("LblTIPO"), "");
  EXPECT_THAT(columns(), ElementsAre("€ 1.500,00", "€ 0,00"));
  EXPECT_EQ(panel->FLAG(), "X");
  EXPECT_EQ(panel->NRIF(), 0);
  EXPECT_TRUE(isEmpty(panel->DATA_RIF()));
  EXPECT_EQ(panel->NDOC(), "");
  EXPECT_EQ(panel->DESC_1(), "");
  EXPECT_EQ(panel->DESC_2(), "");
  EXPECT_EQ(panel->IMPORTO(), Currency());
  EXPECT_EQ(panel->TIPO(), "");
  EXPECT_THAT(heard(), ElementsAre("FLAG"));
}

TEST_P(JournalLine, AFreshOneIsBlankAndReadsTheSame) {
  for (const toolkit::Widget* widget : surface().widgets()) {
    if (widget->Kind() == WidgetKind::Label) {
      EXPECT_EQ(caption(widget->Name()), "") << widget->Name();
    }
  }
  EXPECT_EQ(panel->FLAG(), "");
  EXPECT_EQ(panel->NRIF(), 0);
  EXPECT_TRUE(isEmpty(panel->DATA_RIF()));
  EXPECT_EQ(panel->IMPORTO(), Currency());
}

TEST_P(JournalLine, TheReferenceIsShownInDigits) {
  for (const std::int32_t number : {0, 1234567, -3, std::numeric_limits<std::int32_t>::max()}) {
    panel->NRIF(number);
    EXPECT_EQ(caption("LblRIF"), std::to_string(number));
  }
}

TEST_P(JournalLine, TheDateOfTheReferenceIsShownAsItsPlainText) {
  struct Shown {
    Variant value;
    std::string_view text;
  };
  for (const Shown& one : {Shown{*Date::of(5, 3, 2026), "05/03/2026"},
                           {Date(), "0.00.00"},  // where a pattern would show a day
                           {std::string("2026-03-05"), "2026-03-05"},
                           {std::string("5/3/26"), "5/3/26"},
                           {std::int32_t{46082}, "46082"},
                           {12.5, "12,5"},
                           {true, "True"},
                           {Empty{}, ""},
                           {std::string("0.00.00"), "0.00.00"}}) {
    panel->DATA_RIF(std::string("prima"));
    panel->DATA_RIF(one.value);
    EXPECT_EQ(caption("LblDATA_RIF"), one.text) << kindName(one.value);
    EXPECT_TRUE(isEmpty(panel->DATA_RIF()));
  }
}

TEST_P(JournalLine, ADateOfTheReferenceWithoutTextFailsNamingTheLabel) {
  panel->DATA_RIF(std::string("prima"));
  EXPECT_FAILURE(panel->DATA_RIF(Null{}), FailureKind::InvalidUseOfNull, "LblDATA_RIF");
  EXPECT_FAILURE(panel->DATA_RIF(CurrencyArray{}), FailureKind::TypeMismatch, "LblDATA_RIF");
  EXPECT_EQ(caption("LblDATA_RIF"), "prima");
}

TEST_P(JournalLine, TheAmountWaitsUnseenInPlainText) {
  for (const auto& [amount, plain] : {std::pair{"1500", "1500"},
                                      {"-0,5", "-0,5"},
                                      {"1234567,8901", "1234567,8901"},
                                      {"0", "0"},
                                      {"922337203685477,5807", "922337203685477,5807"}}) {
    panel->IMPORTO(euros(amount));
    EXPECT_EQ(caption("LblIMPORTO"), plain);
    EXPECT_THAT(columns(), ElementsAre("", ""));
  }
}

TEST_P(JournalLine, ADebitStandsInTheDebitColumnBesideAZero) {
  panel->IMPORTO(euros("1500"));
  panel->TIPO("D");
  EXPECT_THAT(columns(), ElementsAre("€ 1.500,00", "€ 0,00"));
  EXPECT_EQ(caption("LblTIPO"), "");
}

TEST_P(JournalLine, EverythingElseStandsInTheCreditColumn) {
  for (const std::string_view side : {"A", "X", "", "d", "DARE", "D ", "a"}) {
    panel->IMPORTO(euros("1500"));
    panel->TIPO("D");
    panel->TIPO(side);
    EXPECT_THAT(columns(), ElementsAre("€ 0,00", "€ 1.500,00")) << side;
    EXPECT_EQ(panel->TIPO(), "");
  }
}

TEST_P(JournalLine, TheColumnsKeepTheirColours) {
  panel->IMPORTO(euros("1500"));
  for (const std::string_view side : {"D", "A"}) {
    panel->TIPO(side);
    EXPECT_EQ(surface().label("LblDARE").ForeColor(), 255U);
    EXPECT_EQ(surface().label("LblAVERE").ForeColor(), 49152U);
  }
}

TEST_P(JournalLine, WithoutAnAmountTheColumnIsEmptyUntilTheNextSide) {
  panel->TIPO("D");
  EXPECT_THAT(columns(), ElementsAre("", "€ 0,00"));
  panel->TIPO("A");
  EXPECT_THAT(columns(), ElementsAre("€ 0,00", ""));
  panel->IMPORTO(euros("1500"));
  EXPECT_THAT(columns(), ElementsAre("€ 0,00", ""));
  panel->TIPO("A");
  EXPECT_THAT(columns(), ElementsAre("€ 0,00", "€ 1.500,00"));
  panel->IMPORTO(euros("7"));
  EXPECT_THAT(columns(), ElementsAre("€ 0,00", "€ 1.500,00"));
  panel->TIPO("D");
  EXPECT_THAT(columns(), ElementsAre("€ 7,00", "€ 0,00"));
}

TEST_P(JournalLine, TheColumnRoundsAsThePatternDoes) {
  for (const auto& [amount, shown] : {std::pair{"2,345", "€ 2,35"},
                                      {"-2,345", "-€ 2,35"},
                                      {"-0,004", "€ 0,00"},
                                      {"922337203685477,5807", "€ 922.337.203.685.477,58"},
                                      {"-922337203685477,5808", "-€ 922.337.203.685.477,58"}}) {
    panel->IMPORTO(euros(amount));
    panel->TIPO("D");
    EXPECT_THAT(columns(), ElementsAre(shown, "€ 0,00")) << amount;
  }
}

TEST_P(JournalLine, AnAmountThatIsNoNumberPassesThrough) {
  surface().label("LblIMPORTO").Caption("sconosciuto");
  panel->TIPO("D");
  EXPECT_THAT(columns(), ElementsAre("sconosciuto", "€ 0,00"));
  panel->TIPO("A");
  EXPECT_THAT(columns(), ElementsAre("€ 0,00", "sconosciuto"));
}

TEST_P(JournalLine, TheAmountsAreThoseOfThePlatformsLocale) {
  setLocale({.decimalSign = '.', .groupingSign = ','});
  panel->IMPORTO(euros("1500,5"));
  EXPECT_EQ(caption("LblIMPORTO"), "1500.5");
  panel->TIPO("D");
  EXPECT_THAT(columns(), ElementsAre("€ 1,500.50", "€ 0.00"));
  panel->DATA_RIF(12.5);
  EXPECT_EQ(caption("LblDATA_RIF"), "12.5");
}

TEST_P(JournalLine, AllButTheFlagIsWrittenWhateverTheLabelsShow) {
  const auto load = [this] {
    panel->FLAG("X");
    panel->NRIF(12);
    panel->DATA_RIF(*Date::of(5, 3, 2026));
    panel->NDOC("417");
    panel->DESC_1("UNO");
    panel->DESC_2("DUE");
    panel->IMPORTO(euros("1500"));
    panel->TIPO("D");
  };
  const Notes labels{"LblRIF.Caption 12",          "LblDATA_RIF.Caption 05/03/2026", "LblDOC.Caption 417",
                     "LblDESC_1.Caption UNO",      "LblDESC_2.Caption DUE",          "LblIMPORTO.Caption 1500",
                     "LblDARE.Caption € 1.500,00", "LblAVERE.Caption € 0,00"};
  Notes all{"TxtFLAG.Text X"};
  all.insert(all.end(), labels.begin(), labels.end());
  EXPECT_EQ(writesOf(load), all);
  EXPECT_EQ(writesOf(load, load), labels);
}

TEST_P(JournalLine, TheDebitColumnIsWrittenFirstOnEitherSide) {
  EXPECT_THAT(writesOf([this] { panel->TIPO("A"); }, [this] { panel->IMPORTO(euros("1500")); }),
              ElementsAre("LblDARE.Caption € 0,00", "LblAVERE.Caption € 1.500,00"));
}

TEST_P(JournalLine, TheFlagIsComparedExactly) {
  panel->FLAG("x");
  EXPECT_THAT(heard(), ElementsAre("FLAG"));
  panel->FLAG("x");
  EXPECT_THAT(heard(), IsEmpty());
  panel->FLAG("X");
  EXPECT_THAT(heard(), ElementsAre("FLAG"));
  panel->FLAG("lungo");  // the limit is the hand's alone
  EXPECT_EQ(panel->FLAG(), "lungo");
}

TEST_P(JournalLine, TheFlagTakesThreeCharactersInCapitals) {
  panel->Attiva();
  typedInto(mark(), "a?bc", "A?B", 1);
  EXPECT_EQ(panel->FLAG(), "A?B");
  EXPECT_THAT(heard(), ElementsAre("FLAG", "FLAG", "FLAG"));
  hands().leave();
  EXPECT_EQ(mark().BackColor(), kWhite);
}

TEST_P(JournalLine, TheFlagIsTheOnlyFieldThatEnterFinds) {
  panel->FLAG("AB");
  panel->Attiva();
  hands().caret(1, 0);
  EXPECT_THAT(pathOf("{Enter}", 2), ElementsAre("TxtFLAG", "TxtFLAG"));
  EXPECT_THAT(pathOf("{Tab}", 1), ElementsAre("TxtFLAG"));
  EXPECT_TRUE(container().failures.empty());
}

TEST_P(JournalLine, TheFlagIsColouredBeforeItIsSelected) { coloursFirst("TxtFLAG"); }

TEST_P(JournalLine, AttivaGoesToTheFlag) {
  attivaGoesTo("TxtFLAG", [this]() -> toolkit::EditableText& { return mark(); });
}

TEST_P(JournalLine, DisattivaFreezesAndKeepsTheValues) {
  disattivaFreezesAndKeeps("AB", [this]() -> toolkit::EditableText& { return mark(); });
  panel->Disattiva();
  panel->FLAG("C");
  EXPECT_EQ(panel->FLAG(), "C");
}

TEST_P(JournalLine, DisattivaSkipsWhatFails) {
  whereItRefuses("Frame1", [this] {
    panel->Disattiva();
    EXPECT_FALSE(frame().Enabled());
  });
  ready();
  mark().LostFocus = [] { throw Failure(FailureKind::Overflow, "on leaving"); };
  panel->Disattiva();
  EXPECT_FALSE(frame().Enabled());
  EXPECT_EQ(focused(), "");
  EXPECT_TRUE(container().failures.empty());
}

TEST_P(JournalLine, AHostMayDropItWhereverItIsAnnounced) {
  dropAtEach([this] { panel->FLAG("X"); });
  dropAtEach([this] { hands().type("x"); });
  dropAtEach([this] { hands().paste("x"); });
}

TEST_P(JournalLine, IsReachedByNameInAnyCase) {
  letByName(*panel, "importo", std::string("12,5"));
  letByName(*panel, "tipo", std::string("D"));
  EXPECT_THAT(columns(), ElementsAre("€ 12,50", "€ 0,00"));
  EXPECT_EQ(getByName(*panel, "IMPORTO"), Variant(Currency()));
  EXPECT_EQ(getByName(*panel, "NRIF"), Variant(std::int32_t{0}));
  EXPECT_EQ(getByName(*panel, "DATA_RIF"), Variant(Empty{}));
  EXPECT_EQ(getByName(*panel, "NDOC"), Variant(std::string()));
  EXPECT_FAILURE(letByName(*panel, "NRIF", 3e9), FailureKind::Overflow, "scheda.NRIF");
  EXPECT_FAILURE(letByName(*panel, "TIPO", Null{}), FailureKind::InvalidUseOfNull, "scheda.TIPO");
  EXPECT_FAILURE(letByName(*panel, "DATA_RIF", Null{}), FailureKind::InvalidUseOfNull, "scheda.DATA_RIF: LblDATA_RIF");
  EXPECT_FAILURE(getByName(*panel, "Events"), FailureKind::NoSuchMember, "scheda.Events");
}

TEST_P(JournalLine, TwoOfThemKeepTheirOwnValues) {
  const auto other = another("altra");
  panel->IMPORTO(euros("1"));
  other->IMPORTO(euros("2"));
  panel->TIPO("D");
  other->TIPO("D");
  EXPECT_EQ(caption("LblDARE"), "€ 1,00");
  EXPECT_EQ(other->surface().label("LblDARE").Caption(), "€ 2,00");
}

}  // namespace
}  // namespace qvn::test
