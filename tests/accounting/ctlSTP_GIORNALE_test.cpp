// The header of the journal print, loaded by a host and typed by an operator.
#include "qvn/panels/accounting/ctlSTP_GIORNALE.h"

#include <limits>

#include "qvn/shared/conversions.h"
#include "tests/plain_panel.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Align;
using toolkit::kWhite;
using toolkit::WidgetKind;

Variant text(std::string_view value) { return std::string(value); }
Variant day(int day, int month, int year) { return *Date::of(day, month, year); }
Currency money(std::string_view amount) { return toCurrency(amount, Locale{}); }

constexpr std::string_view kMask = "##/##/####";

class JournalHeader : public PlainPanel<ctlSTP_GIORNALE> {
 public:
  toolkit::DateControl& last() { return date("TxtA_DATA"); }
  toolkit::CheckBox& final() { return flag("ChkDEFINITIVO"); }
  std::string first() { return caption("LblDA_DATA"); }
};
QVN_ON_EVERY_PLATFORM(JournalHeader);

TEST_P(JournalHeader, IsLaidOutInTabOrder) {
  const auto caption = [](std::string name, std::string text, toolkit::Place place) {
    return LaidOut{.name = std::move(name),
                   .kind = WidgetKind::Label,
                   .place = place,
                   .text = std::move(text),
                   .align = Align::Right};
  };
  const auto shown = [](std::string name, std::string text, Align align, toolkit::Place place) {
    return LaidOut{.name = std::move(name),
                   .kind = WidgetKind::Label,
                   .place = place,
                   .text = std::move(text),
                   .align = align,
                   .bordered = true,
                   .back = kWhite};
  };
  expectLaidOut({
      {"Frame1", WidgetKind::Frame, {75, 0, 5490, 1440}},
      caption("Label1", "Da Data:", {225, 225, 765, 315}),
      shown("LblDA_DATA", "##/##/####", Align::Left, {1050, 225, 1215, 315}),
      caption("Label2", "A Data:", {2175, 225, 765, 315}),
      {"TxtA_DATA", WidgetKind::DateControl, {3000, 225, 1440, 315}, "##/##/####"},
      {"ChkDEFINITIVO", WidgetKind::CheckBox, {1050, 600, 1065, 315}, "Definitiva"},
      caption("Label3", "N° Righe:", {3525, 600, 765, 315}),
      shown("LblNRighe", "0", Align::Right, {4350, 600, 990, 315}),
      caption("Label4", "Saldo Dare:", {-225, 975, 1215, 315}),
      shown("LblDARE", "0", Align::Right, {1050, 975, 1365, 315}),
      caption("Label6", "Saldo AVERE:", {2700, 975, 1215, 315}),
      shown("LblAVERE", "0", Align::Right, {3975, 975, 1365, 315}),
  });
  EXPECT_EQ(surface().layout().name, "ctlSTP_GIORNALE");
  EXPECT_EQ(surface().layout().width, 5640);
  EXPECT_EQ(surface().layout().height, 1500);
}

TEST_P(JournalHeader, HasItsPublicMembersInOrder) {
  EXPECT_EQ(membersInOrder(),
            "Attiva method \n"
            "Disattiva method \n"
            "DA_DATA get/let variant\n"
            "A_DATA get/let variant\n"
            "N_RIGHE get/let 32-bit integer\n"
            "DARE get/let currency\n"
            "AVERE get/let currency\n"
            "DEFINITIVO get/let boolean\n");
}

TEST_P(JournalHeader, AFreshOneHasNoDatesAndAnnouncesNothing) {
  panel = another("nuova");
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_EQ(first(), kMask);
  EXPECT_TRUE(isNull(panel->DA_DATA()));
  EXPECT_EQ(last().Text(), kMask);
  EXPECT_TRUE(isNull(panel->A_DATA()));
  EXPECT_FALSE(panel->DEFINITIVO());
  EXPECT_EQ(panel->N_RIGHE(), 0);
  EXPECT_EQ(panel->DARE(), Currency());
  EXPECT_EQ(panel->AVERE(), Currency());
}

TEST_P(JournalHeader, TheFirstDayIsShownAndGivenBackAsText) {
  panel->DA_DATA(day(1, 3, 2026));
  EXPECT_EQ(first(), "01/03/2026");
  EXPECT_EQ(panel->DA_DATA(), text("01/03/2026"));
  panel->DA_DATA(text("02/03/2026"));
  EXPECT_EQ(first(), "02/03/2026");
  panel->DA_DATA(std::int32_t{46082});
  EXPECT_EQ(panel->DA_DATA(), text("01/03/2026"));
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_TRUE(isNull(panel->A_DATA()));
}

TEST_P(JournalHeader, TheNoDateMarkBringsTheMaskBackInTheLabelToo) {
  for (const Variant& mark : {text("0.00.00"), Variant(Date()), Variant(std::int32_t{0}), Variant(Empty{})}) {
    SCOPED_TRACE(kindName(mark));
    panel->DA_DATA(day(1, 3, 2026));
    panel->DA_DATA(mark);
    EXPECT_EQ(first(), kMask);
    EXPECT_TRUE(isNull(panel->DA_DATA()));
    panel->DA_DATA(mark);
    EXPECT_EQ(first(), kMask);
  }
}

TEST_P(JournalHeader, ANullLeavesTheFirstDay) {
  panel->DA_DATA(Null{});
  EXPECT_EQ(first(), kMask);
  panel->DA_DATA(day(1, 3, 2026));
  panel->DA_DATA(Null{});
  EXPECT_EQ(first(), "01/03/2026");
  EXPECT_EQ(panel->DA_DATA(), text("01/03/2026"));
}

TEST_P(JournalHeader, AFirstDayThatIsNoDateIsShownAndReadsAsNull) {
  for (const std::string_view other : {"domani", "32/01/2026", "29/02/2026", "1/3/2026", "12/##/####", ""}) {
    panel->DA_DATA(day(1, 3, 2026));
    panel->DA_DATA(text(other));
    EXPECT_EQ(first(), other);
    EXPECT_TRUE(isNull(panel->DA_DATA())) << other;
  }
  panel->DA_DATA(text("29/02/2028"));
  EXPECT_EQ(panel->DA_DATA(), text("29/02/2028"));
}

TEST_P(JournalHeader, AFirstDayWithoutTextFailsNamingTheLabel) {
  panel->DA_DATA(day(1, 3, 2026));
  EXPECT_FAILURE(panel->DA_DATA(CurrencyArray{}), FailureKind::TypeMismatch, "LblDA_DATA");
  EXPECT_FAILURE(panel->DA_DATA(1e9), FailureKind::Overflow, "LblDA_DATA");
  EXPECT_EQ(first(), "01/03/2026");
}

TEST_P(JournalHeader, TheFirstDayIsWrittenOnlyWhereItDiffers) {
  const auto load = [this] { panel->DA_DATA(day(1, 3, 2026)); };
  EXPECT_THAT(writesOf(load), ElementsAre("LblDA_DATA.Caption 01/03/2026"));
  EXPECT_THAT(writesOf(load, load), IsEmpty());
  EXPECT_THAT(writesOf([this] { panel->DA_DATA(Null{}); }, load), IsEmpty());
  EXPECT_THAT(writesOf([this] { panel->DA_DATA(text("0.00.00")); }, load),
              ElementsAre("LblDA_DATA.Caption ##/##/####"));
}

TEST_P(JournalHeader, TheDateOfZeroIsFirstComparedAsTheDayThatThePatternGives) {
  panel->DA_DATA(text("30/12/1899"));
  panel->DA_DATA(Date());
  EXPECT_EQ(first(), "30/12/1899");
  panel->DA_DATA(text("0.00.00"));
  EXPECT_EQ(first(), kMask);
}

TEST_P(JournalHeader, FiguresAreThoseOfThePlatformsLocale) {
  setLocale({.decimalSign = '.', .groupingSign = ','});
  panel->DARE(money("1500,5"));
  panel->AVERE(money("-1500,5"));
  EXPECT_EQ(caption("LblDARE"), "€ 1,500.50");
  EXPECT_EQ(caption("LblAVERE"), "-€ 1,500.50");
  panel->DARE(money("1500,5"));
  EXPECT_EQ(caption("LblDARE"), "€ 1,500.50");
}

TEST_P(JournalHeader, AnEqualCountStaysInTheFormThatItHas) {
  surface().label("LblNRighe").Caption("1.500");
  panel->N_RIGHE(1500);
  EXPECT_EQ(caption("LblNRighe"), "1.500");
}

TEST_P(JournalHeader, TheLastDayIsTheFieldsDateAndAnnounced) {
  panel->A_DATA(day(31, 3, 2026));
  EXPECT_EQ(last().Text(), "31/03/2026");
  EXPECT_EQ(panel->A_DATA(), text("31/03/2026"));
  EXPECT_THAT(heard(), ElementsAre("A_DATA"));
  panel->A_DATA(text("31/03/2026"));
  panel->A_DATA(day(31, 3, 2026));
  panel->A_DATA(Null{});
  EXPECT_EQ(panel->A_DATA(), text("31/03/2026"));
  EXPECT_THAT(heard(), IsEmpty());
  for (const Variant& mark : {text("0.00.00"), Variant(Date()), Variant(Empty{})}) {
    SCOPED_TRACE(kindName(mark));
    panel->A_DATA(day(31, 3, 2026));
    container().notices.clear();
    panel->A_DATA(mark);
    EXPECT_TRUE(isNull(panel->A_DATA()));
    EXPECT_EQ(last().Text(), kMask);
    EXPECT_THAT(heard(), ElementsAre("A_DATA"));
    panel->A_DATA(mark);
    EXPECT_THAT(heard(), IsEmpty());
  }
  EXPECT_EQ(first(), kMask);
}

TEST_P(JournalHeader, ALastDayThatIsNoDateFailsNamingTheField) {
  panel->A_DATA(day(31, 3, 2026));
  container().notices.clear();
  EXPECT_FAILURE(panel->A_DATA(text("domani")), FailureKind::TypeMismatch, "TxtA_DATA");
  EXPECT_FAILURE(panel->A_DATA(text("domani")), FailureKind::TypeMismatch, "domani");
  EXPECT_FAILURE(panel->A_DATA(CurrencyArray{}), FailureKind::TypeMismatch, "TxtA_DATA");
  EXPECT_EQ(panel->A_DATA(), text("31/03/2026"));
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(JournalHeader, TheLastDayIsTypedOverItsMaskAndCompletedByEnter) {
  today(*Date::of(15, 11, 2026));
  panel->Attiva();
  EXPECT_EQ(last().BackColor(), kCyan);
  hands().type("3x");
  EXPECT_EQ(last().Text(), "3#/##/####");
  EXPECT_EQ(panel->A_DATA(), text("3#/##/####"));
  hands().type("{Enter}");
  EXPECT_EQ(panel->A_DATA(), text("03/11/2026"));
  EXPECT_EQ(focused(), "TxtA_DATA");
  EXPECT_TRUE(wholeSelected(last()));
  hands().caret(0, 0);
  hands().type("{Enter}");  // a whole date keeps the focus too, selected
  EXPECT_EQ(focused(), "TxtA_DATA");
  EXPECT_TRUE(wholeSelected(last()));
  EXPECT_THAT(heard(), ElementsAre("A_DATA", "A_DATA"));
  hands().leave();
  EXPECT_EQ(last().BackColor(), kWhite);
}

TEST_P(JournalHeader, ABlankLastDayBecomesTodayByEnter) {
  today(*Date::of(15, 11, 2026));
  panel->Attiva();
  hands().type("{Enter}");
  EXPECT_EQ(panel->A_DATA(), text("15/11/2026"));
  EXPECT_THAT(heard(), ElementsAre("A_DATA"));
}

TEST_P(JournalHeader, TheEnterIsCancelledAndEveryOtherKeyLeft) {
  for (const std::int16_t key : {std::int16_t{'7'}, std::int16_t{'?'}, std::int16_t{8}, std::int16_t{27}}) {
    std::int16_t pressed = key;
    last().KeyPress(pressed);
    EXPECT_EQ(pressed, key);
  }
  std::int16_t enter = 13;
  last().KeyPress(enter);
  EXPECT_EQ(enter, 0);
}

TEST_P(JournalHeader, TheEnterIsCancelledBeforeTheDateIsCompleted) {
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  std::int16_t enter = 13;
  EXPECT_FAILURE(last().KeyPress(enter), FailureKind::InvalidCall, "refuses");
  container().onNotice = {};
  EXPECT_EQ(enter, 0);
}

TEST_P(JournalHeader, TheDateIsColouredBeforeItIsSelected) {
  EXPECT_THAT(writesOf([this] { last().GotFocus(); }),
              ElementsAre("TxtA_DATA.BackColor 16776960", "TxtA_DATA.SelStart 0", "TxtA_DATA.SelLength 10"));
}

TEST_P(JournalHeader, TheCountOfLinesIsShownInDigitsAndReadsAsZero) {
  for (const std::int32_t count :
       {1, 1234567, -5, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
    panel->N_RIGHE(count);
    EXPECT_EQ(caption("LblNRighe"), std::to_string(count));
    EXPECT_EQ(panel->N_RIGHE(), 0);
  }
  panel->N_RIGHE(0);
  EXPECT_EQ(caption("LblNRighe"), "0");
  EXPECT_EQ(caption("LblDARE"), "0");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(JournalHeader, TheBalancesAreShownAsCurrencyAndReadAsZero) {
  panel->DARE(money("1500"));
  panel->AVERE(money("-1234567,891"));
  EXPECT_EQ(caption("LblDARE"), "€ 1.500,00");
  EXPECT_EQ(caption("LblAVERE"), "-€ 1.234.567,89");
  EXPECT_EQ(panel->DARE(), Currency());
  EXPECT_EQ(panel->AVERE(), Currency());
  panel->DARE(money("922337203685477,5807"));
  panel->AVERE(money("-922337203685477,5808"));
  EXPECT_EQ(caption("LblDARE"), "€ 922.337.203.685.477,58");
  EXPECT_EQ(caption("LblAVERE"), "-€ 922.337.203.685.477,58");
  panel->DARE(money("0"));
  EXPECT_EQ(caption("LblDARE"), "€ 0,00");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(JournalHeader, AnEqualBalanceStaysInTheFormThatItHas) {
  panel->DARE(Currency());
  panel->AVERE(Currency());
  EXPECT_EQ(caption("LblDARE"), "0");
  EXPECT_EQ(caption("LblAVERE"), "0");
  surface().label("LblDARE").Caption("1500,0");
  surface().label("LblAVERE").Caption("1500,0");
  panel->DARE(money("1500"));
  panel->AVERE(money("1500"));
  EXPECT_EQ(caption("LblDARE"), "1500,0");
  EXPECT_EQ(caption("LblAVERE"), "1500,0");
  panel->AVERE(money("1500,0001"));  // another amount, which shows the same
  EXPECT_EQ(caption("LblAVERE"), "€ 1.500,00");
}

TEST_P(JournalHeader, AnEqualFigureIsNotWritten) {
  const auto load = [this] {
    panel->N_RIGHE(12);
    panel->DARE(money("1500"));
    panel->AVERE(money("1500"));
  };
  EXPECT_THAT(writesOf(load),
              ElementsAre("LblNRighe.Caption 12", "LblDARE.Caption € 1.500,00", "LblAVERE.Caption € 1.500,00"));
  EXPECT_THAT(writesOf(load, load), IsEmpty());
}

TEST_P(JournalHeader, AFigureIsReadBeforeItIsWritten) {
  for (const auto name : {"LblNRighe", "LblDARE", "LblAVERE"}) surface().label(name).Caption("molte");
  EXPECT_FAILURE(panel->N_RIGHE(1), FailureKind::TypeMismatch, "LblNRighe");
  EXPECT_FAILURE(panel->DARE(money("1")), FailureKind::TypeMismatch, "LblDARE");
  EXPECT_FAILURE(panel->AVERE(money("1")), FailureKind::TypeMismatch, "LblAVERE");
  surface().label("LblNRighe").Caption("2147483648");
  EXPECT_FAILURE(panel->N_RIGHE(1), FailureKind::Overflow, "LblNRighe");
  EXPECT_EQ(caption("LblDARE"), "molte");
}

TEST_P(JournalHeader, TickingTellsTheHostOnceAndChangesNothingElse) {
  panel->DA_DATA(day(1, 3, 2026));
  panel->A_DATA(day(31, 3, 2026));
  panel->DARE(money("1500"));
  panel->Attiva();
  container().notices.clear();
  hands().click(final());
  EXPECT_TRUE(panel->DEFINITIVO());
  EXPECT_THAT(heard(), ElementsAre("DEFINITIVO"));
  EXPECT_EQ(first(), "01/03/2026");
  EXPECT_EQ(panel->A_DATA(), text("31/03/2026"));
  EXPECT_EQ(caption("LblDARE"), "€ 1.500,00");
  EXPECT_TRUE(last().Enabled());
  EXPECT_TRUE(frame().Enabled());
  EXPECT_EQ(final().BackColor(), toolkit::kFaceGray);
  hands().click(final());
  EXPECT_FALSE(panel->DEFINITIVO());
  EXPECT_THAT(heard(), ElementsAre("DEFINITIVO"));
}

TEST_P(JournalHeader, TheFlagOfTheHostTicksAndClears) {
  panel->DEFINITIVO(true);
  EXPECT_EQ(final().Value(), 1);
  EXPECT_TRUE(panel->DEFINITIVO());
  EXPECT_THAT(heard(), ElementsAre("DEFINITIVO"));
  panel->DEFINITIVO(true);
  EXPECT_TRUE(panel->DEFINITIVO());
  EXPECT_THAT(heard(), IsEmpty());
  panel->DEFINITIVO(false);
  EXPECT_EQ(final().Value(), 0);
  EXPECT_FALSE(panel->DEFINITIVO());
  EXPECT_THAT(heard(), ElementsAre("DEFINITIVO"));
  panel->DEFINITIVO(false);
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(JournalHeader, ATrueFlagIsWrittenOverATickedBoxAndAFalseOneNotOverAClearOne) {
  const auto set = [this](bool flag) { return [this, flag] { panel->DEFINITIVO(flag); }; };
  EXPECT_THAT(writesOf(set(true)), ElementsAre("ChkDEFINITIVO.Value 1"));
  EXPECT_THAT(writesOf(set(true), set(true)), ElementsAre("ChkDEFINITIVO.Value 1"));
  EXPECT_THAT(writesOf(set(false), set(true)), ElementsAre("ChkDEFINITIVO.Value 0"));
  EXPECT_THAT(writesOf(set(false)), IsEmpty());
}

TEST_P(JournalHeader, AttivaGoesToTheLastDay) {
  attivaGoesTo("TxtA_DATA", [this]() -> toolkit::EditableText& { return last(); });
}

TEST_P(JournalHeader, DisattivaFreezesAndKeepsTheValues) {
  disattivaFreezesAndKeeps("31/03/2026", [this]() -> toolkit::EditableText& { return last(); });
  panel->Disattiva();
  hands().click(final());
  EXPECT_FALSE(panel->DEFINITIVO());
  panel->DEFINITIVO(true);
  panel->DA_DATA(day(1, 3, 2026));
  EXPECT_TRUE(panel->DEFINITIVO());
  EXPECT_EQ(panel->DA_DATA(), text("01/03/2026"));
}

TEST_P(JournalHeader, DisattivaPassesAFailureOn) {
  disattivaPassesAFailureOn([this]() -> toolkit::EditableText& { return last(); });
}

TEST_P(JournalHeader, TheOperatorReachesTheLastDayAndTheFlagAlone) {
  panel->Attiva();
  EXPECT_THAT(pathOf("{Tab}", 3), ElementsAre("ChkDEFINITIVO", "TxtA_DATA", "ChkDEFINITIVO"));
  EXPECT_THAT(pathOf("{Enter}", 1), ElementsAre("ChkDEFINITIVO"));
  EXPECT_FALSE(panel->DEFINITIVO());
}

TEST_P(JournalHeader, AHostMayDropItWhereverItIsAnnounced) {
  today(*Date::of(15, 11, 2026));
  dropAtEach([this] { panel->A_DATA(day(31, 3, 2026)); });
  dropAtEach([this] { panel->DEFINITIVO(true); });
  dropAtEach([this] { hands().type("3"); });
  dropAtEach([this] { hands().type("{Enter}"); });
  dropAtEach([this] { hands().click(final()); });
}

TEST_P(JournalHeader, IsReachedByNameInAnyCase) {
  letByName(*panel, "definitivo", std::int32_t{7});
  EXPECT_EQ(getByName(*panel, "Definitivo"), Variant(true));
  letByName(*panel, "dare", std::string("12,5"));
  EXPECT_EQ(caption("LblDARE"), "€ 12,50");
  EXPECT_EQ(getByName(*panel, "DARE"), Variant(Currency()));
  EXPECT_EQ(getByName(*panel, "N_RIGHE"), Variant(std::int32_t{0}));
  EXPECT_EQ(getByName(*panel, "DA_DATA"), Variant(Null{}));
  EXPECT_FAILURE(letByName(*panel, "N_RIGHE", 3e9), FailureKind::Overflow, "scheda.N_RIGHE");
  EXPECT_FAILURE(letByName(*panel, "DARE", Null{}), FailureKind::InvalidUseOfNull, "scheda.DARE");
  EXPECT_FAILURE(letByName(*panel, "A_DATA", std::string("x")), FailureKind::TypeMismatch, "TxtA_DATA: \"x\"");
  EXPECT_FAILURE(getByName(*panel, "Events"), FailureKind::NoSuchMember, "scheda.Events");
}

TEST_P(JournalHeader, TwoOfThemKeepTheirOwnValues) {
  const auto other = another("altra");
  panel->DA_DATA(day(1, 3, 2026));
  other->DA_DATA(day(2, 3, 2026));
  panel->DEFINITIVO(true);
  EXPECT_EQ(panel->DA_DATA(), text("01/03/2026"));
  EXPECT_EQ(other->DA_DATA(), text("02/03/2026"));
  EXPECT_FALSE(other->DEFINITIVO());
}

}  // namespace
}  // namespace qvn::test
