// Where the statement line's widgets lie, what a new one shows, and how the operator goes through it.
#include <gtest/gtest.h>

#include "qvn/panels/documents/ctlESTRATTI.h"
#include "tests/documents/line_bench.h"
#include "tests/noting_platform.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Align;
using toolkit::kBlack;
using toolkit::kBlue;
using toolkit::kRed;
using toolkit::kWhite;
using toolkit::WidgetKind;

class StatementLayout : public LinePanel<ctlESTRATTI> {};
QVN_ON_EVERY_PLATFORM(StatementLayout);

TEST_P(StatementLayout, ItsWidgetsStandInTabOrderAtTheirPlaces) {
  constexpr WidgetKind kBox = WidgetKind::TextBox;
  constexpr WidgetKind kDate = WidgetKind::DateControl;
  constexpr WidgetKind kLabel = WidgetKind::Label;
  constexpr WidgetKind kList = WidgetKind::ComboBox;
  constexpr WidgetKind kCheck = WidgetKind::CheckBox;
  constexpr Align kRight = Align::Right;
  constexpr Align kCenter = Align::Center;
  expectLaidOut(surface(),
                {
                    {.name = "FrmDATI_ESTRATTO",
                     .kind = WidgetKind::Frame,
                     .place = {75, 0, 9915, 1365},
                     .text = "Dati Estratto:",
                     .enabled = false},
                    {"TxtDATA_EC", kDate, {150, 225, 1365, 315}, "##/##/####", "", kBlue},
                    {"CmbTIPO_DOC", kList, {1575, 225, 1965, 315}, "P - Polizza", "", kBlue},
                    {"TxtSIGLA_SRAMO", kBox, {3600, 225, 1215, 315}, "", "Sigla Sottoramo", kBlue},
                    {"TxtN_POLIZZA", kBox, {4875, 225, 1590, 315}, "", "N° Polizza", kBlue},
                    {"TxtCOD_CLI", kBox, {6525, 225, 990, 315}, "", "Codice Cliente", kBlue},
                    {"TxtDATA_QUIET", kDate, {7575, 225, 1365, 315}, "##/##/####", "", kBlue},
                    {"ChkANNULLATA", kCheck, {9000, 225, 690, 315}, "Ann."},
                    {"TxtINT_ASS", kBox, {150, 600, 2715, 315}, "", "Interesse Assicurato", kRed},
                    {"LblCOD_GR", kLabel, {2925, 600, 540, 315}, "", "Codice Gruppo", kRed, kCenter, true},
                    {"LblDATA_REG", kLabel, {3525, 600, 1290, 315}, "", "Data Registazione", kRed, kCenter, true},
                    {"TxtPREMIO", kBox, {4875, 600, 1590, 315}, "0,0001", "Premio", kRed, kRight},
                    {"TxtRIMBORSO", kBox, {6525, 600, 1590, 315}, "0,0001", "Rimborso", kRed, kRight},
                    {"TxtPROVVIGIONE", kBox, {8175, 600, 1590, 315}, "0,0001", "Provvigione", kRed, kRight},
                    {"Label1", kLabel, {1680, 960, 2040, 315}, "Stato in Estratti Compagnia:", "", kBlack, kRight},
                    {"CmbST_COMP", kList, {3720, 960, 1755, 315}},
                    {"Label2", kLabel, {5400, 960, 2040, 315}, "Stato in Estratti Produttori:", "", kBlack, kRight},
                    {"CmbST_PROD", kList, {7530, 960, 2235, 315}},
                    {"chkSTAMPA", kCheck, {120, 960, 1170, 315}, "Vis. Stampa"},
                });
  EXPECT_EQ(surface().layout().name, "ctlESTRATTI");
  EXPECT_EQ(surface().layout().width, 10065);
  EXPECT_EQ(surface().layout().height, 1440);
}

TEST_P(StatementLayout, NoWidgetHasABackOfItsOwn) {
  for (const toolkit::Widget* widget : surface().widgets()) {
    EXPECT_FALSE(widget->layout().back.has_value()) << widget->Name();
  }
}

TEST_P(StatementLayout, ItsListsHaveTheirItems) {
  const auto items = [&](std::string_view name) {
    Strings texts;
    for (std::int32_t i = 0; i < list(name).ListCount(); ++i) texts.push_back(list(name).List(i));
    return texts;
  };
  EXPECT_EQ(items("CmbTIPO_DOC"), (Strings{"P - Polizza", "A - Appendice", "Q - Quietanza", "V - Varie"}));
  EXPECT_EQ(items("CmbST_COMP"), (Strings{"SCARICATO", "ATTIVO"}));
  EXPECT_EQ(items("CmbST_PROD"), (Strings{"SCARICATO", "ATTIVO"}));
}

TEST_P(StatementLayout, ANewOneShowsAPolicyWithoutStatesAndAsksNothing) {
  EXPECT_EQ(list("CmbTIPO_DOC").ListIndex(), 0);
  EXPECT_EQ(panel->TIPO_DOC(), "P");
  EXPECT_EQ(list("CmbST_COMP").ListIndex(), -1);
  EXPECT_EQ(list("CmbST_PROD").ListIndex(), -1);
  EXPECT_EQ(flag("ChkANNULLATA").Value(), 0);
  EXPECT_EQ(flag("chkSTAMPA").Value(), 0);
  EXPECT_EQ(panel->COD_PROD(), "");
  EXPECT_EQ(panel->COD_PROD_ALT(), "");
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(StatementLayout, TheFirstKindIsAnnouncedAsItIsSelected) {
  const auto made = another("altra");
  EXPECT_EQ(heard(), Strings{"TIPO_DOC"});
}

TEST_P(StatementLayout, EnterGoesThroughTheFieldsUpToTheNextListOrDate) {
  panel->Attiva();
  hands().focus(box("TxtSIGLA_SRAMO"));
  EXPECT_THAT(pathOf("{Enter}", 3), ElementsAre("TxtN_POLIZZA", "TxtCOD_CLI", "TxtDATA_QUIET"));
  hands().focus(box("TxtINT_ASS"));
  EXPECT_THAT(pathOf("{Enter}", 4), ElementsAre("TxtPREMIO", "TxtRIMBORSO", "TxtPROVVIGIONE", "CmbST_COMP"));
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(StatementLayout, AFieldIsColouredBeforeItIsSelectedAndAnAmountRewrittenBetween) {
  NotingPlatform noting(platform());
  Globale::install(noting);
  renew();
  const auto written = [&](const std::string& name) {
    noting.notes.clear();
    box(name).GotFocus();
    return noting.notes;
  };
  for (const std::string field : {"TxtSIGLA_SRAMO", "TxtCOD_CLI"}) {
    EXPECT_EQ(written(field), (Notes{field + ".BackColor 65535", field + ".SelStart 0", field + ".SelLength 0"}));
  }
  for (const std::string field : {"TxtN_POLIZZA", "TxtINT_ASS"}) {
    EXPECT_EQ(written(field), (Notes{field + ".BackColor 16776960", field + ".SelStart 0", field + ".SelLength 0"}));
  }
  for (const std::string field : {"TxtPREMIO", "TxtRIMBORSO", "TxtPROVVIGIONE"}) {
    EXPECT_EQ(written(field), (Notes{field + ".BackColor 16776960", field + ".Text 0,00", field + ".SelStart 0",
                                     field + ".SelLength 4"}));
  }
  panel.reset();
  Globale::install(platform());
}

TEST_P(StatementLayout, EnterOnAListDoesNothing) {
  panel->ST_COMP(text(""));
  panel->ST_PROD(text(""));
  panel->COD_PROD("P1");
  panel->Attiva();
  for (const std::string_view name : {"CmbTIPO_DOC", "CmbST_COMP", "CmbST_PROD"}) {
    hands().focus(list(name));
    forget();
    hands().type("{Enter}");
    EXPECT_EQ(focused(), name);
    EXPECT_THAT(heard(), IsEmpty());
  }
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(StatementLayout, TabGoesThroughAllFieldsInOrder) {
  panel->COD_PROD("P1");
  panel->Attiva();
  EXPECT_EQ(focused(), "TxtDATA_EC");
  EXPECT_EQ(pathOf("{Tab}", 15),
            (Strings{"CmbTIPO_DOC", "TxtSIGLA_SRAMO", "TxtN_POLIZZA", "TxtCOD_CLI", "TxtDATA_QUIET", "ChkANNULLATA",
                     "TxtINT_ASS", "TxtPREMIO", "TxtRIMBORSO", "TxtPROVVIGIONE", "CmbST_COMP", "CmbST_PROD",
                     "chkSTAMPA", "TxtDATA_EC", "CmbTIPO_DOC"}));
}

TEST_P(StatementLayout, EachFieldHasItsColourWithTheFocusAndIsWhiteWithout) {
  struct Field {
    std::string_view name;
    std::uint32_t colour;
  };
  panel->COD_PROD("P1");
  panel->Attiva();
  for (const Field field : {Field{"TxtDATA_EC", kCyan}, Field{"CmbTIPO_DOC", kCyan}, Field{"TxtSIGLA_SRAMO", kYellow},
                            Field{"TxtN_POLIZZA", kCyan}, Field{"TxtCOD_CLI", kYellow}, Field{"TxtDATA_QUIET", kCyan},
                            Field{"TxtINT_ASS", kCyan}, Field{"TxtPREMIO", kCyan}, Field{"TxtRIMBORSO", kCyan},
                            Field{"TxtPROVVIGIONE", kCyan}, Field{"CmbST_COMP", kCyan}, Field{"CmbST_PROD", kCyan}}) {
    SCOPED_TRACE(field.name);
    toolkit::Widget& widget = surface().widget(field.name);
    hands().focus(widget);
    EXPECT_EQ(widget.BackColor(), field.colour);
    hands().leave();
    EXPECT_EQ(widget.BackColor(), kWhite);
  }
}

TEST_P(StatementLayout, TheTextOfAFieldIsSelectedWithTheFocus) {
  panel->SIGLA_SRAMO("RCA");
  panel->N_POLIZZA("123/45");
  panel->COD_CLIENTE("C00001");
  panel->INT_ASS("AUTO");
  panel->Attiva();
  for (const std::string_view name : {"TxtSIGLA_SRAMO", "TxtN_POLIZZA", "TxtCOD_CLI", "TxtINT_ASS"}) {
    hands().focus(box(name));
    EXPECT_TRUE(wholeSelected(box(name))) << name;
  }
}

TEST_P(StatementLayout, TheFieldsTakeSoManyCharactersInCapitals) {
  struct Field {
    std::string_view name;
    std::size_t limit;
  };
  panel->Attiva();
  for (const Field field :
       {Field{"TxtSIGLA_SRAMO", 6}, Field{"TxtN_POLIZZA", 15}, Field{"TxtCOD_CLI", 6}, Field{"TxtINT_ASS", 20}}) {
    SCOPED_TRACE(field.name);
    const std::string typed = "ab/9-zq.w12;xy34kl+567mn";
    const std::string capitals = "AB/9-ZQ.W12;XY34KL+567MN";
    hands().focus(box(field.name));
    const std::int64_t before = beeps();
    hands().type(typed);
    EXPECT_EQ(box(field.name).Text(), capitals.substr(0, field.limit));
    EXPECT_EQ(beeps(), before + static_cast<std::int64_t>(typed.size() - field.limit));
  }
}

TEST_P(StatementLayout, AQuestionMarkIsTypedWhereThereIsNoList) {
  panel->Attiva();
  for (const std::string_view name : {"TxtN_POLIZZA", "TxtINT_ASS"}) {
    hands().focus(box(name));
    hands().type("?");
    EXPECT_EQ(box(name).Text(), "?") << name;
  }
  EXPECT_THAT(asked(), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
