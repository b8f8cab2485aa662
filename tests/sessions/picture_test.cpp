// What a look at a widget tells: every key and value, for each kind of widget.
#include "hosts/play/picture.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "hosts/play/form_picture.h"
#include "tests/sessions/laid_out.h"

namespace qvn::play {
namespace {

using toolkit::Align;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr std::array<std::string_view, 3> kItems{"DARE", "AVERE", "SALDO"};
constexpr std::array<WidgetLayout, 9> kWidgets{{
    {.name = "Frame1", .kind = WidgetKind::Frame, .tabIndex = 1, .place = {10, 20, 3000, 2000}, .caption = "Dati:"},
    {.name = "Frame2",
     .kind = WidgetKind::Frame,
     .tabIndex = 2,
     .frame = "Frame1",
     .place = {11, 21, 1500, 1000},
     .caption = "Altri:",
     .enabled = false},
    {.name = "Text1",
     .tabIndex = 3,
     .frame = "Frame2",
     .place = {12, 22, 32, 42},
     .caption = "così",
     .align = Align::Center,
     .fore = toolkit::kBlue,
     .tooltip = "Nome e cognome"},
    {.name = "Label1",
     .kind = WidgetKind::Label,
     .tabIndex = 4,
     .place = {13, 23, 33, 43},
     .caption = "Nome:",
     .align = Align::Right,
     .visible = false},
    {.name = "Combo1", .kind = WidgetKind::ComboBox, .tabIndex = 5, .place = {14, 24, 34, 44}, .items = kItems},
    {.name = "Check1", .kind = WidgetKind::CheckBox, .tabIndex = 6, .place = {15, 25, 35, 45}, .caption = "Annullata"},
    {.name = "Button1",
     .kind = WidgetKind::CommandButton,
     .tabIndex = 7,
     .place = {16, 26, 36, 46},
     .caption = "Cerca"},
    {.name = "Date1", .kind = WidgetKind::DateControl, .tabIndex = 8, .place = {17, 27, 37, 47}},
    {.name = "Text2", .tabIndex = 9, .place = {18, 28, 38, 48}},
}};

class Picture : public LaidOut {
 protected:
  Picture() { place(kWidgets); }
  std::string of(std::string_view name) { return pictureOf(surface_->widget(name)).dump(); }
};

TEST_F(Picture, OfAFrame) {
  EXPECT_EQ(of("Frame1"),
            R"({"name":"Frame1","kind":"frame","tab":1,"frame":null,"left":10,"top":20,"width":3000,"height":2000,)"
            R"("enabled":true,"visible":true,"focus":false,"back":12632256,"fore":0,"tooltip":"","caption":"Dati:"})");
  surface_->frame("Frame2").Caption("Nuovi:");
  EXPECT_EQ(of("Frame2"),
            R"({"name":"Frame2","kind":"frame","tab":2,"frame":"Frame1","left":11,"top":21,"width":1500,)"
            R"("height":1000,"enabled":false,"visible":true,"focus":false,"back":12632256,"fore":0,"tooltip":"",)"
            R"("caption":"Nuovi:"})");
}

TEST_F(Picture, OfATextBox) {
  EXPECT_EQ(of("Text1"),
            R"({"name":"Text1","kind":"text box","tab":3,"frame":"Frame2","left":12,"top":22,"width":32,"height":42,)"
            R"("enabled":true,"visible":true,"focus":false,"back":16777215,"fore":16711680,)"
            R"("tooltip":"Nome e cognome","text":"così","sel":[0,0],"align":"center"})");
}

TEST_F(Picture, OfATextBoxWithTheFocus) {
  toolkit::TextBox& box = surface_->textBox("Text2");
  box.Text("12345");
  box.SelStart(1);
  box.SelLength(3);
  box.BackColor(toolkit::kRed);
  box.place({19, 29, 39, 49});
  box.SetFocus();
  EXPECT_EQ(of("Text2"),
            R"({"name":"Text2","kind":"text box","tab":9,"frame":null,"left":19,"top":29,"width":39,"height":49,)"
            R"("enabled":true,"visible":true,"focus":true,"back":255,"fore":0,"tooltip":"","text":"12345",)"
            R"("sel":[1,3],"align":"left"})");
}

TEST_F(Picture, OfALabel) {
  EXPECT_EQ(of("Label1"),
            R"({"name":"Label1","kind":"label","tab":4,"frame":null,"left":13,"top":23,"width":33,"height":43,)"
            R"("enabled":true,"visible":false,"focus":false,"back":12632256,"fore":0,"tooltip":"",)"
            R"("caption":"Nome:","align":"right"})");
}

TEST_F(Picture, OfAComboBox) {
  constexpr std::string_view common =
      R"({"name":"Combo1","kind":"combo box","tab":5,"frame":null,"left":14,"top":24,"width":34,"height":44,)"
      R"("enabled":true,"visible":true,"focus":false,"back":16777215,"fore":0,"tooltip":"",)"
      R"("items":["DARE","AVERE","SALDO"],)";
  EXPECT_EQ(of("Combo1"), std::string(common).append(R"("index":-1,"text":""})"));
  surface_->comboBox("Combo1").ListIndex(1);
  EXPECT_EQ(of("Combo1"), std::string(common).append(R"("index":1,"text":"AVERE"})"));
}

TEST_F(Picture, OfACheckBox) {
  constexpr std::string_view common =
      R"({"name":"Check1","kind":"check box","tab":6,"frame":null,"left":15,"top":25,"width":35,"height":45,)"
      R"("enabled":true,"visible":true,"focus":false,"back":12632256,"fore":0,"tooltip":"","caption":"Annullata",)";
  EXPECT_EQ(of("Check1"), std::string(common).append(R"("value":0})"));
  surface_->checkBox("Check1").Value(1);
  EXPECT_EQ(of("Check1"), std::string(common).append(R"("value":1})"));
}

TEST_F(Picture, OfAButton) {
  EXPECT_EQ(of("Button1"),
            R"({"name":"Button1","kind":"button","tab":7,"frame":null,"left":16,"top":26,"width":36,"height":46,)"
            R"("enabled":true,"visible":true,"focus":false,"back":12632256,"fore":0,"tooltip":"",)"
            R"("caption":"Cerca"})");
}

TEST_F(Picture, OfADate) {
  constexpr std::string_view common =
      R"({"name":"Date1","kind":"date","tab":8,"frame":null,"left":17,"top":27,"width":37,"height":47,)"
      R"("enabled":true,"visible":true,"focus":false,"back":16777215,"fore":0,"tooltip":"",)";
  EXPECT_EQ(of("Date1"), std::string(common).append(R"("text":"##/##/####","value":null,"sel":[0,0]})"));
  toolkit::DateControl& date = surface_->date("Date1");
  date.Value(std::string("15/11/2026"));
  date.SelStart(3);
  date.SelLength(2);
  EXPECT_EQ(of("Date1"), std::string(common).append(R"("text":"15/11/2026","value":"15/11/2026","sel":[3,2]})"));
}

TEST(PictureOfAForm, HasNoRowsWhereTheFormHasNone) {
  EXPECT_EQ(pictureOf(FormPicture{.form = "Ricerca", .caption = "Attendere"}).dump(),
            R"({"form":"Ricerca","caption":"Attendere"})");
  EXPECT_EQ(pictureOf(FormPicture{.form = "Lista", .caption = "Listato", .shows = FormPicture::Shows::List}).dump(),
            R"({"form":"Lista","caption":"Listato","columns":[],"rows":[],"selected":-1})");
}

}  // namespace
}  // namespace qvn::play
