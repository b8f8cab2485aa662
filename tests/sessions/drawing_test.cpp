// Panels drawn as text: each kind of widget in each state, and layouts that are not easy.
#include "hosts/play/drawing.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hosts/play/canvas.h"
#include "hosts/play/rows.h"
#include "tests/sessions/laid_out.h"

namespace qvn::play {
namespace {

using testing::ElementsAre;
using toolkit::Align;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

class Drawing : public LaidOut {};

TEST_F(Drawing, ShowsEachKindOfWidget) {
  static constexpr std::array<std::string_view, 2> items{"DARE", "AVERE"};
  static constexpr std::array<WidgetLayout, 9> widgets{{
      {.name = "Frame1", .kind = WidgetKind::Frame, .place = {0, 0, 3000, 2000}, .caption = "Dati:"},
      {.name = "Label1",
       .kind = WidgetKind::Label,
       .frame = "Frame1",
       .place = {75, 225, 750, 315},
       .caption = "Nome:",
       .align = Align::Right},
      {.name = "Text1", .frame = "Frame1", .place = {900, 225, 750, 315}, .caption = "Rossi"},
      {.name = "Date1", .kind = WidgetKind::DateControl, .frame = "Frame1", .place = {1725, 225, 1140, 315}},
      {.name = "Combo1", .kind = WidgetKind::ComboBox, .frame = "Frame1", .place = {75, 600, 750, 315}, .items = items},
      {.name = "Check1",
       .kind = WidgetKind::CheckBox,
       .frame = "Frame1",
       .place = {900, 600, 750, 315},
       .caption = "Ann."},
      {.name = "Label2",
       .kind = WidgetKind::Label,
       .frame = "Frame1",
       .place = {1725, 600, 1140, 315},
       .caption = "12,50",
       .align = Align::Right,
       .bordered = true},
      {.name = "Button1",
       .kind = WidgetKind::CommandButton,
       .frame = "Frame1",
       .place = {75, 975, 750, 315},
       .caption = "OK"},
      {.name = "Label3",
       .kind = WidgetKind::Label,
       .frame = "Frame1",
       .place = {900, 975, 1500, 315},
       .caption = "centro",
       .align = Align::Center},
  }};
  toolkit::Surface& panel = place(widgets);
  EXPECT_THAT(drawn(panel),
              ElementsAre("┌─Dati:────────────────────────────────┐",  //
                          "│     Nome: │Rossi   │ │##/##/####   │ │", "││       ▾│ │ │ Ann.   [        12,50] │",
                          "││   OK   │        centro              │", "└──────────────────────────────────────┘"));
}

TEST_F(Drawing, TellsWhatCanBeUsedAndWhatHasTheFocus) {
  static constexpr std::array<WidgetLayout, 8> widgets{{
      {.name = "Text1", .place = {0, 0, 750, 315}, .caption = "uno"},
      {.name = "Text2", .place = {750, 0, 750, 315}, .caption = "due", .enabled = false},
      {.name = "Text3", .place = {1500, 0, 750, 315}, .caption = "tre", .visible = false},
      {.name = "Check1", .kind = WidgetKind::CheckBox, .place = {2250, 0, 750, 315}, .caption = "si"},
      {.name = "Frame1", .kind = WidgetKind::Frame, .place = {0, 375, 1500, 900}, .enabled = false},
      {.name = "Text4", .frame = "Frame1", .place = {75, 225, 750, 315}, .caption = "in"},
      {.name = "Frame2", .kind = WidgetKind::Frame, .place = {1500, 375, 1500, 900}, .visible = false},
      {.name = "Text5", .frame = "Frame2", .place = {75, 225, 750, 315}, .caption = "via"},
  }};
  toolkit::Surface& panel = place(widgets);
  panel.checkBox("Check1").Value(1);
  EXPECT_THAT(drawn(panel), ElementsAre("│uno     │┆due     ┆          │x│ si",  //
                                        "┌┄┄┄┄┄┄┄┄┄┄┄┄┄┄┄┄┄┄┐",                  //
                                        "┆┆in      ┆        ┆",                  //
                                        "└┄┄┄┄┄┄┄┄┄┄┄┄┄┄┄┄┄┄┘"));
  panel.textBox("Text1").SetFocus();
  EXPECT_EQ(drawn(panel).front(), "║uno     ║┆due     ┆          │x│ si");
  panel.checkBox("Check1").SetFocus();
  EXPECT_EQ(drawn(panel).front(), "│uno     │┆due     ┆          ║x║ si");
  panel.frame("Frame1").Enabled(true);
  EXPECT_EQ(drawn(panel)[1], "┌──────────────────┐");
  EXPECT_EQ(drawn(panel)[2], "││in      │        │");
  panel.Enabled(false);
  EXPECT_EQ(drawn(panel).front(), "┆uno     ┆┆due     ┆          ┆x┆ si");
  panel.Visible(false);
  EXPECT_TRUE(drawn(panel).empty());
}

TEST_F(Drawing, TellsWhichLabelsAreDisabledByThemselves) {
  static constexpr std::array<WidgetLayout, 5> widgets{{
      {.name = "Label1", .kind = WidgetKind::Label, .place = {0, 0, 750, 315}, .caption = "Nome:", .enabled = false},
      {.name = "Label2",
       .kind = WidgetKind::Label,
       .place = {750, 0, 750, 315},
       .caption = "12,50",
       .align = Align::Right,
       .enabled = false,
       .bordered = true},
      {.name = "Label3",
       .kind = WidgetKind::Label,
       .place = {1575, 0, 750, 315},
       .caption = "Età:",
       .align = Align::Right,
       .enabled = false},
      {.name = "Label4", .kind = WidgetKind::Label, .place = {2850, 0, 150, 315}, .enabled = false},
      {.name = "Text1", .place = {2400, 0, 375, 315}, .caption = "7"},
  }};
  toolkit::Surface& panel = place(widgets);
  EXPECT_EQ(drawn(panel).front(), "(Nome:)   (   12,50)     (Età:) │7  │");
  for (const char* const label : {"Label1", "Label2", "Label3"}) panel.label(label).Enabled(true);
  EXPECT_EQ(drawn(panel).front(), "Nome:     [   12,50]       Età: │7  │");
}

TEST_F(Drawing, KeepsTheCornersOfANarrowFrame) {
  static constexpr std::array<WidgetLayout, 3> widgets{{
      {.name = "Frame1", .kind = WidgetKind::Frame, .place = {0, 0, 75, 600}, .caption = "Dati:"},
      {.name = "Frame2", .kind = WidgetKind::Frame, .place = {375, 0, 300, 600}, .caption = "Dati:"},
      {.name = "Frame3", .kind = WidgetKind::Frame, .place = {750, 0, 375, 600}, .caption = "Dati:"},
  }};
  EXPECT_THAT(drawn(place(widgets)), ElementsAre("┌…┐  ┌─…┐ ┌─D…┐", "└─┘  └──┘ └───┘"));
}

TEST_F(Drawing, CutsWhatDoesNotFitAndSaysSo) {
  static constexpr std::array<WidgetLayout, 4> widgets{{
      {.name = "Text1", .place = {0, 0, 600, 315}, .caption = "lunghissimo"},
      {.name = "Text2", .place = {600, 0, 600, 315}, .caption = "1.234.567,89", .align = Align::Right},
      {.name = "Text3", .place = {1200, 0, 75, 315}, .caption = "12"},
      {.name = "Text4", .place = {1500, 0, 600, 315}, .caption = "così\tè\n"},
  }};
  EXPECT_THAT(drawn(place(widgets)), ElementsAre("│lungh…││…67,89││…│ │così·…│"));
}

TEST_F(Drawing, LetsFieldsWinOverCaptionsInWhateverOrderTheyStand) {
  static constexpr std::array<WidgetLayout, 4> widgets{{
      {.name = "Text1", .place = {750, 0, 390, 315}, .caption = "22"},
      {.name = "Label1",
       .kind = WidgetKind::Label,
       .place = {375, 0, 1200, 315},
       .caption = "Ded.:",
       .align = Align::Right},
      {.name = "Label2",
       .kind = WidgetKind::Label,
       .place = {-375, 0, 1050, 315},
       .caption = "Saldo:",
       .align = Align::Right},
      {.name = "Text2", .place = {1650, 0, 390, 315}, .caption = "40"},
  }};
  EXPECT_THAT(drawn(place(widgets)), ElementsAre("   Saldo: │22 │ Ded.: │40 │"));
}

TEST_F(Drawing, LetsAFieldWinOverTheCaptionThatBeginsUnderIt) {
  static constexpr std::array<WidgetLayout, 2> widgets{{
      {.name = "Text1", .place = {0, 0, 600, 315}, .caption = "22"},
      {.name = "Label1", .kind = WidgetKind::Label, .place = {0, 0, 900, 315}, .caption = "ABCDEFGHIJKL"},
  }};
  EXPECT_THAT(drawn(place(widgets)), ElementsAre("│22    │IJKL"));
}

TEST_F(Drawing, CutsWhatLiesToTheLeftOfThePanel) {
  static constexpr std::array<WidgetLayout, 1> widgets{{
      {.name = "Text1", .place = {-100, 0, 750, 315}, .caption = "uno"},
  }};
  EXPECT_THAT(drawn(place(widgets)), ElementsAre("uno     │"));
}

TEST_F(Drawing, ShowsCharactersThatDoNotPrintAsDots) {
  EXPECT_THAT(charactersOf("a\x7F\tè\x1F"), ElementsAre("a", "·", "·", "è", "·"));
}

TEST_F(Drawing, PutsTheBoxOfACheckBoxAtTheRightBehindItsCaption) {
  static constexpr std::array<WidgetLayout, 3> widgets{{
      {.name = "Check1", .kind = WidgetKind::CheckBox, .place = {0, 0, 900, 315}, .caption = "prima"},
      {.name = "Check2",
       .kind = WidgetKind::CheckBox,
       .place = {975, 0, 900, 315},
       .caption = "dopo",
       .align = Align::Right},
      {.name = "Check3",
       .kind = WidgetKind::CheckBox,
       .place = {2400, 0, 300, 315},
       .caption = "altro",
       .align = Align::Right},
  }};
  toolkit::Surface& panel = place(widgets);
  EXPECT_EQ(drawn(panel).front(), "│ │ prima        dopo │ │  altro │ │");
  panel.checkBox("Check2").Value(1);
  panel.checkBox("Check2").SetFocus();
  EXPECT_EQ(drawn(panel).front(), "│ │ prima        dopo ║x║  altro │ │");
}

TEST_F(Drawing, RunsALongCaptionOnOverFreeCells) {
  static constexpr std::array<WidgetLayout, 3> widgets{{
      {.name = "Label1",
       .kind = WidgetKind::Label,
       .place = {750, 0, 375, 315},
       .caption = "Affidamento:",
       .align = Align::Right},
      {.name = "Text1", .place = {1125, 0, 390, 315}},
      {.name = "Check1", .kind = WidgetKind::CheckBox, .place = {1575, 0, 270, 315}, .caption = "Vis. Stampa"},
  }};
  EXPECT_THAT(drawn(place(widgets)), ElementsAre("   Affidamento:│   │ │ │ Vis. Stampa"));
}

TEST_F(Drawing, GivesWhatLiesCloseTogetherLinesOfTheirOwn) {
  static constexpr std::array<WidgetLayout, 7> widgets{{
      {.name = "Frame1", .kind = WidgetKind::Frame, .place = {0, 0, 3000, 1065}, .caption = "Dati:"},
      {.name = "Text1", .frame = "Frame1", .place = {75, 225, 750, 315}, .caption = "a"},
      {.name = "Text2", .frame = "Frame1", .place = {75, 600, 750, 315}, .caption = "b"},
      {.name = "Frame2", .kind = WidgetKind::Frame, .place = {1500, 1050, 1500, 690}, .caption = "Tipo:"},
      {.name = "Text3", .frame = "Frame2", .place = {75, 225, 750, 315}, .caption = "c"},
      {.name = "Button1", .kind = WidgetKind::CommandButton, .place = {0, 1050, 750, 240}, .caption = "uno"},
      {.name = "Button2", .kind = WidgetKind::CommandButton, .place = {0, 1275, 750, 240}, .caption = "due"},
  }};
  EXPECT_THAT(drawn(place(widgets)),
              ElementsAre("┌─Dati:────────────────────────────────┐",  //
                          "││a       │                            │", "││b       │                            │",
                          "└──────────────────────────────────────┘", "│  uno   │          ┌─Tipo:────────────┐",
                          "│  due   │          ││c       │        │", "                    └──────────────────┘"));
}

TEST(Rows, AreTheSameForWhatLiesAtAboutTheSameHeight) {
  std::array<int, 5> rows{};
  giveRows({{.twips = 787, .columns = {10, 20}, .row = &rows[1]},
            {.twips = 757, .columns = {0, 10}, .row = &rows[0]},
            {.twips = 797, .columns = {0, 10}, .row = &rows[2]},
            {.twips = 830, .columns = {0, 10}, .row = &rows[3]},
            {.twips = 1100, .columns = {30, 40}, .row = &rows[4]}});
  EXPECT_THAT(rows, ElementsAre(0, 0, 0, 1, 2));
}

}  // namespace
}  // namespace qvn::play
