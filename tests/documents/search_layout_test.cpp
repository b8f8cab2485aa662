// Where the widgets of the two search panels lie, and what they show before anything is loaded.
#include <gtest/gtest.h>

#include "tests/documents/search_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;
using toolkit::Align;
using toolkit::kBlack;
using toolkit::kBlue;
using toolkit::kRed;
using toolkit::WidgetKind;

class SearchLayout : public SearchBench {};
QVN_ON_EVERY_PLATFORM(SearchLayout);

constexpr std::uint32_t kDarkRed = 192;
constexpr auto kLeft = Align::Left;
constexpr auto kRight = Align::Right;
constexpr auto kCentre = Align::Center;

struct Shown {
  std::string name;
  toolkit::Place place;
  std::string tooltip;
  std::uint32_t fore = kBlack;
  Align align = kLeft;
  bool bold = false;
  std::string frame = {};
  std::string caption = {};
};

/// A frame or a button.
struct Plain {
  std::string name;
  WidgetKind kind;
  toolkit::Place place;
  std::string caption;
  std::string frame = {};
};

struct Laid {
  std::string className;
  std::int32_t width;
  std::int32_t height;
  Strings order;
  std::vector<Plain> plain;
  std::vector<Shown> shown;
};

const Laid& policy() {
  static const std::string in = "FrmDATI_POLIZZA";
  static const Laid laid{
      "ctlRICERCA",
      13320,
      1245,
      {in,
       "LblCLIENTE",
       "LblPROT",
       "LblQUOTA",
       "LblPL",
       "LblDATA_RATA",
       "LblN_POLIZZA",
       "LblCOD_GR",
       "LblDESC_SRAMO",
       "LblGRUPPO",
       "LblTIPO_RATA",
       "LblINT_ASS",
       "CmdPRODUTTORI_ALT",
       "CmdPRODUTTORI",
       "CmdCOMPAGNIE",
       "LblDESC_PROD_DEL",
       "LblCOD_PROD_DEL",
       "LblDESC_COMP_DEL",
       "LblCOD_COMP_DEL",
       "LblSTATO"},
      {{in, WidgetKind::Frame, {120, 0, 13080, 1155}, "Dati Polizza:"},
       {"CmdPRODUTTORI_ALT", WidgetKind::CommandButton, {11640, 860, 1365, 225}, "Vis. Prod. Alt.", in},
       {"CmdPRODUTTORI", WidgetKind::CommandButton, {11640, 540, 1365, 225}, "Vis. Prod.", in},
       {"CmdCOMPAGNIE", WidgetKind::CommandButton, {11640, 220, 1365, 225}, "Vis. Comp.", in}},
      {{"LblCLIENTE", {120, 225, 5910, 255}, "Cliente", kBlue, kLeft, true, in},
       {"LblPROT", {6120, 225, 690, 255}, "N° Protocollo", kBlue, kRight, false, in},
       {"LblQUOTA", {6840, 225, 540, 255}, "Quota", kBlue, kRight, false, in},
       {"LblPL", {10200, 225, 1260, 255}, "Premio Lordo Polizza", kBlue, kRight, true, in},
       {"LblDATA_RATA", {7440, 225, 1095, 255}, "Data Rata Futura", kBlue, kCentre, false, in},
       {"LblN_POLIZZA", {8640, 225, 1485, 255}, "N° Polizza", kBlue, kLeft, false, in},
       {"LblCOD_GR", {120, 525, 660, 255}, "Codice Gruppo Assicurativo", kRed, kCentre, false, in},
       {"LblDESC_SRAMO", {840, 525, 4500, 255}, "Descrizione S.Ramo Assicurativo", kRed, kLeft, false, in},
       {"LblGRUPPO", {5400, 530, 1980, 255}, "Gruppo Assicurato", kRed, kLeft, false, in},
       {"LblTIPO_RATA", {7440, 530, 510, 255}, "Tipo Rata", kRed, kCentre, false, in},
       {"LblINT_ASS", {8025, 530, 3435, 255}, "Interesse Assicurato", kRed, kLeft, false, in},
       {"LblDESC_PROD_DEL", {5760, 825, 3850, 255}, "", kBlack, kLeft, false, in},
       {"LblCOD_PROD_DEL", {5280, 825, 420, 255}, "", kBlack, kCentre, false, in},
       {"LblDESC_COMP_DEL", {600, 825, 4620, 255}, "", kBlack, kLeft, false, in},
       {"LblCOD_COMP_DEL", {120, 830, 420, 255}, "", kBlack, kCentre, false, in},
       {"LblSTATO", {9675, 825, 1785, 255}, "", kDarkRed, kCentre, true, in}}};
  return laid;
}

const Laid& claim() {
  static const std::string in = "FrmDATI_SINISTRO";
  static const Laid laid{
      "ctlRIC_SINISTRI",
      10065,
      1830,
      {in, "LblCLIENTE", "LblPROT", "LblQUOTA", "LblDANNO", "LblDATA_SINISTRO", "LblN_POLIZZA", "LblCOD_GR",
       "LblDESC_SRAMO", "LblCONTROPARTE", "LblINT_ASS", "CmdCOMPAGNIE", "LblSTATO", "LblCOD_COMP_DEL",
       "LblDESC_COMP_DEL", "LblCOD_PROD_DEL", "LblDESC_PROD_DEL"},
      {{in, WidgetKind::Frame, {75, 0, 9915, 1065}, "Dati Sinistro:"},
       {"CmdCOMPAGNIE", WidgetKind::CommandButton, {5250, 1275, 1365, 315}, "Vis. Comp."}},
      {{"LblCLIENTE", {150, 225, 5190, 315}, "Cliente", kBlue, kLeft, true, in},
       {"LblPROT", {5400, 225, 1290, 315}, "N° Protocollo", kBlue, kRight, false, in},
       {"LblQUOTA", {6750, 225, 840, 315}, "Quota", kBlue, kRight, false, in, "0"},
       {"LblDANNO", {7650, 225, 2115, 315}, "Premio Lordo Polizza", kBlue, kCentre, false, in},
       {"LblDATA_SINISTRO", {150, 600, 1215, 315}, "Data Rata Futura", kRed, kCentre, false, in},
       {"LblN_POLIZZA", {1425, 600, 1365, 315}, "N° Polizza", kRed, kLeft, false, in},
       {"LblCOD_GR", {2850, 600, 540, 315}, "Codice Gruppo Assicurativo", kRed, kCentre, false, in},
       {"LblDESC_SRAMO", {3450, 600, 1890, 315}, "Descrizione S.Ramo Assicurativo", kRed, kLeft, false, in},
       {"LblCONTROPARTE", {5400, 600, 2190, 315}, "Gruppo Assicurato", kRed, kLeft, false, in},
       {"LblINT_ASS", {7650, 600, 2115, 315}, "Interesse Assicurato", kRed, kLeft, false, in},
       {"LblSTATO", {6675, 1275, 3240, 315}, "", kRed, kCentre, true},
       {"LblCOD_COMP_DEL", {75, 1125, 915, 315}, ""},
       {"LblDESC_COMP_DEL", {1050, 1125, 4140, 315}, ""},
       {"LblCOD_PROD_DEL", {75, 1425, 915, 315}, ""},
       {"LblDESC_PROD_DEL", {1050, 1425, 4140, 315}, ""}}};
  return laid;
}

std::string frameOf(const toolkit::Widget& widget) {
  return widget.frame() == nullptr ? "" : std::string(widget.frame()->Name());
}

TEST_P(SearchLayout, TheWidgetsStandInTabOrder) {
  for (const Laid* laid : {&policy(), &claim()}) {
    SCOPED_TRACE(laid->className);
    const auto panel = make(laid->className);
    const toolkit::Surface& surface = panel->surface();
    EXPECT_EQ(surface.layout().name, laid->className);
    EXPECT_EQ(surface.layout().width, laid->width);
    EXPECT_EQ(surface.layout().height, laid->height);
    Strings order;
    std::int16_t tab = 0;
    for (const toolkit::Widget* widget : surface.widgets()) {
      order.emplace_back(widget->Name());
      EXPECT_EQ(widget->TabIndex(), tab++) << widget->Name();
      EXPECT_TRUE(widget->Enabled()) << widget->Name();
      EXPECT_TRUE(widget->Visible()) << widget->Name();
    }
    EXPECT_EQ(order, laid->order);
    EXPECT_EQ(laid->plain.size() + laid->shown.size(), laid->order.size());
  }
}

TEST_P(SearchLayout, TheLabelsHaveTheirPlacesTooltipsAndLooks) {
  for (const Laid* laid : {&policy(), &claim()}) {
    const auto panel = make(laid->className);
    for (const Shown& row : laid->shown) {
      SCOPED_TRACE(laid->className + "." + row.name);
      const toolkit::Label& label = panel->surface().label(row.name);
      EXPECT_EQ(label.place(), row.place);
      EXPECT_EQ(frameOf(label), row.frame);
      EXPECT_EQ(label.Caption(), row.caption);
      EXPECT_EQ(label.ToolTip(), row.tooltip);
      EXPECT_EQ(label.ForeColor(), row.fore);
      EXPECT_EQ(label.layout().align, row.align);
      EXPECT_EQ(label.layout().bold, row.bold);
      EXPECT_TRUE(label.layout().bordered);
      EXPECT_FALSE(label.layout().back.has_value());
    }
  }
}

TEST_P(SearchLayout, TheFrameAndTheButtonsHaveTheirPlacesAndCaptions) {
  for (const Laid* laid : {&policy(), &claim()}) {
    const auto panel = make(laid->className);
    for (const Plain& row : laid->plain) {
      SCOPED_TRACE(laid->className + "." + row.name);
      const toolkit::Widget& widget = panel->surface().widget(row.name);
      EXPECT_EQ(widget.Kind(), row.kind);
      EXPECT_EQ(widget.place(), row.place);
      EXPECT_EQ(frameOf(widget), row.frame);
      EXPECT_EQ(widget.ToolTip(), "");
      EXPECT_EQ(row.kind == WidgetKind::Frame ? panel->surface().frame(row.name).Caption()
                                              : panel->surface().button(row.name).Caption(),
                row.caption);
    }
  }
}

TEST_P(SearchLayout, ANewOneAsksAndAnnouncesNothing) {
  for (const Laid* laid : {&policy(), &claim()}) {
    Globale::unload();
    int asks = 0;
    const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
    const auto panel = make(laid->className);
    EXPECT_EQ(asks, 0);
    EXPECT_THAT(asked(), IsEmpty());
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(SearchLayout, TabGoesRoundTheButtonsAlone) {
  const auto walk = [&](std::string_view className, std::string_view first, int steps) {
    const auto panel = make(className);
    hands().focus(panel->surface().button(first));
    Strings path;
    for (int i = 0; i < steps; ++i) {
      hands().type("{Tab}");
      path.emplace_back(platform().focused()->Name());
    }
    return path;
  };
  EXPECT_EQ(walk("ctlRICERCA", "CmdPRODUTTORI_ALT", 3),
            (Strings{"CmdPRODUTTORI", "CmdCOMPAGNIE", "CmdPRODUTTORI_ALT"}));
  EXPECT_EQ(walk("ctlRIC_SINISTRI", "CmdCOMPAGNIE", 1), Strings{"CmdCOMPAGNIE"});
}

}  // namespace
}  // namespace qvn::test
