// Where the credit line's widgets lie, its members, and how the operator goes through it.
#include <gtest/gtest.h>

#include "tests/documents/credit_bench.h"
#include "tests/noting_platform.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Align;
using toolkit::kBlack;
using toolkit::kBlue;
using toolkit::WidgetKind;

class CreditLayout : public CreditPanel {};
QVN_ON_EVERY_PLATFORM(CreditLayout);

TEST_P(CreditLayout, ItsWidgetsStandInTabOrderAtTheirPlaces) {
  constexpr WidgetKind kBox = WidgetKind::TextBox;
  constexpr WidgetKind kLabel = WidgetKind::Label;
  constexpr Align kRight = Align::Right;
  expectLaidOut(surface(),
                {
                    {.name = "Frame1", .kind = WidgetKind::Frame, .place = {75, 0, 7890, 1065}, .enabled = false},
                    {"TxtCOD_COMP", kBox, {900, 225, 765, 315}},
                    {"Label2", kLabel, {75, 225, 765, 315}, "C. Comp.:", "", kBlack, kRight},
                    {"DESC_COMPAGNIA", kLabel, {1725, 225, 6015, 315}, "", "", kBlack, Align::Left, true},
                    {"Label1", kLabel, {-75, 600, 915, 315}, "Data Fido:", "", kBlack, kRight},
                    {"TxtDATA_FIDO", WidgetKind::DateControl, {900, 600, 1365, 315}, "##/##/####", "", kBlue},
                    {"Label3", kLabel, {2400, 600, 990, 315}, "Affidamento:", "", kBlack, kRight},
                    {"TxtIMPORTO", kBox, {3450, 600, 1590, 315}, "0,0001", "", kBlack, kRight},
                    {"Label4", kLabel, {5175, 600, 915, 315}, "Attuale Esp.:", "", kBlack, kRight},
                    {"ESPOSIZIONE", kLabel, {6150, 600, 1590, 315}, "0", "", kBlack, kRight, true},
                    {"LblCOD_CLIENTE", kLabel, {7200, 225, 540, 315}, "", "", kBlack, Align::Left, true, true, false},
                });
  EXPECT_EQ(surface().layout().name, "ctlFIDO");
  EXPECT_EQ(surface().layout().width, 8040);
  EXPECT_EQ(surface().layout().height, 1140);
}

TEST_P(CreditLayout, TheExposureAloneHasAWhiteBack) {
  for (const toolkit::Widget* widget : surface().widgets()) {
    const bool exposure = widget->Name() == "ESPOSIZIONE";
    EXPECT_EQ(widget->layout().back.has_value(), exposure) << widget->Name();
    if (exposure) {
      EXPECT_EQ(widget->BackColor(), toolkit::kWhite);
    }
  }
}

TEST_P(CreditLayout, ItsMembersStandInOrder) {
  EXPECT_EQ(membersInOrder(),
            "COD_COMP get/let text\n"
            "DATA_FIDO get/let variant\n"
            "Disattiva method \n"
            "FIDO get/let currency\n"
            "Events get clsQVN_Eventi\n"
            "Attiva method \n"
            "COD_CLIENTE get/let text\n");
}

TEST_P(CreditLayout, GivesTheOneEventObject) {
  EXPECT_EQ(panel->Events(), Globale::Eventi());
  EXPECT_EQ(another("altra")->Events(), panel->Events());
  EXPECT_FAILURE(letByName(*panel, "Events", Empty{}), FailureKind::NoSuchMember, "riga.Events");
}

TEST_P(CreditLayout, ANewOneAnnouncesAndAsksNothing) {
  const auto made = another("altra");
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_EQ(panel->COD_COMP(), "");
}

TEST_P(CreditLayout, AttivaEnablesTheFrameAndGoesToTheCompany) {
  panel->COD_COMP("C1");
  forget();
  panel->Attiva();
  EXPECT_TRUE(surface().frame("Frame1").Enabled());
  EXPECT_EQ(focused(), "TxtCOD_COMP");
  EXPECT_TRUE(wholeSelected(companyBox()));
  EXPECT_EQ(companyBox().BackColor(), kYellow);
  hands().caret(1, 0);
  panel->Attiva();
  EXPECT_TRUE(wholeSelected(companyBox()));
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(CreditLayout, TheCompanyIsColouredBeforeItIsSelected) {
  NotingPlatform noting(platform());
  Globale::install(noting);
  renew();
  noting.notes.clear();
  companyBox().GotFocus();
  EXPECT_EQ(noting.notes, (Notes{"TxtCOD_COMP.BackColor 65535", "TxtCOD_COMP.SelStart 0", "TxtCOD_COMP.SelLength 0"}));
  panel.reset();
  Globale::install(platform());
}

TEST_P(CreditLayout, AttivaOnAHiddenPanelDoesAllButMoveTheFocus) {
  panel->COD_COMP("C1");
  surface().Visible(false);
  panel->Attiva();
  EXPECT_TRUE(surface().frame("Frame1").Enabled());
  EXPECT_TRUE(wholeSelected(companyBox()));
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(CreditLayout, AttivaPassesOverAnAnnouncementThatFails) {
  panel->Attiva();
  hands().focus(amountBox());
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  panel->Attiva();
  EXPECT_EQ(focused(), "TxtCOD_COMP");
  hands().focus(amountBox());
  container().failures.clear();
  EXPECT_FAILURE(panel->Disattiva(), FailureKind::InvalidCall, "the host refuses");
  container().onNotice = {};
  EXPECT_FALSE(surface().frame("Frame1").Enabled());
}

TEST_P(CreditLayout, DisattivaFreezesAndClearsNothing) {
  panel->COD_CLIENTE("K1");
  panel->COD_COMP("C1");
  panel->FIDO(money("5000"));
  panel->DATA_FIDO(day(5, 3, 2026));
  panel->Attiva();
  panel->Disattiva();
  panel->Disattiva();
  EXPECT_FALSE(surface().frame("Frame1").Enabled());
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_EQ(companyBox().BackColor(), toolkit::kWhite);
  EXPECT_EQ(panel->COD_COMP(), "C1");
  EXPECT_EQ(panel->FIDO(), money("5000"));
  EXPECT_EQ(panel->DATA_FIDO(), text("05/03/2026"));
  EXPECT_EQ(shown(), (Strings{"GENERALE", "€ 1.234,57"}));
  panel->COD_COMP("C2");
  EXPECT_EQ(shown(), (Strings{"ALPINA", "€ 2.000.000,00"}));
  for (const toolkit::Widget* widget : surface().widgets()) {
    EXPECT_EQ(widget->Enabled(), widget->Name() != "Frame1") << widget->Name();
  }
}

TEST_P(CreditLayout, EnterGoesFromTheCompanyToTheDateAndFromTheAmountToTheCompany) {
  panel->Attiva();
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "TxtDATA_FIDO");
  hands().focus(amountBox());
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "TxtCOD_COMP");
}

TEST_P(CreditLayout, TabGoesThroughTheThreeFields) {
  panel->Attiva();
  EXPECT_THAT(pathOf("{Tab}", 3), ElementsAre("TxtDATA_FIDO", "TxtIMPORTO", "TxtCOD_COMP"));
}

TEST_P(CreditLayout, EachFieldHasItsColourWithTheFocusAndIsWhiteWithout) {
  panel->Attiva();
  for (const std::string_view name : {"TxtCOD_COMP", "TxtDATA_FIDO", "TxtIMPORTO"}) {
    toolkit::Widget& widget = surface().widget(name);
    hands().focus(widget);
    EXPECT_EQ(widget.BackColor(), name == "TxtCOD_COMP" ? kYellow : kCyan) << name;
    hands().leave();
    EXPECT_EQ(widget.BackColor(), toolkit::kWhite) << name;
  }
}

TEST_P(CreditLayout, ANullIsNoTextAndNoAmount) {
  for (const std::string_view name : {"COD_COMP", "FIDO", "COD_CLIENTE"}) {
    EXPECT_FAILURE(letByName(*panel, name, Null{}), FailureKind::InvalidUseOfNull, std::string("riga.").append(name));
  }
  EXPECT_THAT(heard(), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
