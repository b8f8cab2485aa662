// Where the title panel's widgets lie, and what they show before anything is loaded.
#include <gtest/gtest.h>

#include "tests/documents/title_bench.h"

namespace qvn::test {
namespace {

using toolkit::Align;
using toolkit::kBlack;
using toolkit::kBlue;
using toolkit::kRed;
using toolkit::WidgetKind;

class TitleLayout : public TitlePanel {};
QVN_ON_EVERY_PLATFORM(TitleLayout);

constexpr WidgetKind kLabel = WidgetKind::Label;

struct LaidOut {
  std::string name;
  WidgetKind kind;
  std::string frame = {};
  toolkit::Place place;
  std::string caption = {};
  std::string tooltip = {};
  std::uint32_t fore = kBlack;
  Align align = Align::Left;
  bool bold = false;
  bool bordered = false;
  bool enabled = true;
  bool visible = true;
};

const std::vector<LaidOut>& rows() {
  static const std::string document = "FrmDATI_POLIZZA";
  static const std::string action = "FrmTIPO_CONT";
  static const std::vector<LaidOut> all{
      {.name = document, .kind = WidgetKind::Frame, .place = {75, 0, 9915, 1065}, .caption = "Dati Polizza:"},
      {"LblCLIENTE", kLabel, document, {150, 225, 3765, 315}, "", "Cliente", kBlue, Align::Left, true, true},
      {.name = "TxtDATA_C",
       .kind = WidgetKind::DateControl,
       .frame = document,
       .place = {3975, 225, 1365, 315},
       .enabled = false},
      {"LblPROT", kLabel, document, {5400, 225, 1290, 315}, "", "N° Protocollo", kBlue, Align::Right, false, true},
      {"LblQUOTA", kLabel, document, {6750, 225, 1215, 315}, "0", "Quota", kBlue, Align::Right, false, true},
      {"LblPL", kLabel, document, {8025, 225, 1740, 315}, "0", "Premio Lordo Polizza", kBlue, Align::Right, true, true},
      {"LblDATA_EC", kLabel, document, {150, 600, 1215, 315}, "", "Data E/C", kRed, Align::Center, false, true},
      {"LblN_POLIZZA", kLabel, document, {1425, 600, 1365, 315}, "", "N° Polizza", kRed, Align::Left, false, true},
      {"LblCOD_GR",
       kLabel,
       document,
       {2850, 600, 540, 315},
       "",
       "Codice Gruppo Assicurativo",
       kRed,
       Align::Center,
       false,
       true},
      {"LblDESC_SRAMO",
       kLabel,
       document,
       {3450, 600, 1890, 315},
       "",
       "Descrizione S.Ramo Assicurativo",
       kRed,
       Align::Left,
       false,
       true},
      {.name = "TxtDATA_DOC",
       .kind = WidgetKind::DateControl,
       .frame = document,
       .place = {5400, 600, 1365, 315},
       .enabled = false},
      {"LblTIPO_DOC", kLabel, document, {6825, 600, 390, 315}, "", "Tipo Documento", kRed, Align::Center, false, true},
      {"LblINT_ASS",
       kLabel,
       document,
       {7275, 600, 2490, 315},
       "",
       "Descrizione Documento",
       kRed,
       Align::Left,
       false,
       true},
      {.name = action, .kind = WidgetKind::Frame, .place = {5175, 1050, 4815, 690}, .caption = "Tipo Cont.:"},
      {.name = "CmbTIPO_CONT",
       .kind = WidgetKind::ComboBox,
       .frame = action,
       .place = {150, 225, 2265, 315},
       .enabled = false},
      {"LblSTATO", kLabel, action, {2475, 225, 2190, 315}, "", "", kRed, Align::Center, true, true},
      {.name = "CmdCOMPAGNIE",
       .kind = WidgetKind::CommandButton,
       .place = {3825, 1050, 1290, 240},
       .caption = "Vis. Comp."},
      {.name = "CmdPRODUTTORI",
       .kind = WidgetKind::CommandButton,
       .place = {3825, 1275, 1290, 240},
       .caption = "Vis. Prod."},
      {.name = "CmdPRODUTTORI_ALT",
       .kind = WidgetKind::CommandButton,
       .place = {3825, 1500, 1290, 240},
       .caption = "Vis. Prod. Alt."},
      {.name = "LblPROG",
       .kind = kLabel,
       .frame = document,
       .place = {6300, 225, 390, 315},
       .bordered = true,
       .visible = false},
      {.name = "LblDESC_PROD_DEL", .kind = kLabel, .place = {1050, 1425, 2715, 315}, .bordered = true},
      {.name = "LblCOD_PROD_DEL", .kind = kLabel, .place = {75, 1425, 915, 315}, .bordered = true},
      {.name = "LblDESC_COMP_DEL", .kind = kLabel, .place = {1050, 1125, 2715, 315}, .bordered = true},
      {.name = "LblCOD_COMP_DEL", .kind = kLabel, .place = {75, 1125, 915, 315}, .bordered = true},
  };
  return all;
}

std::string captionOf(toolkit::Widget& widget) {
  switch (widget.Kind()) {
    case WidgetKind::Label:
      return static_cast<toolkit::Label&>(widget).Caption();
    case WidgetKind::Frame:
      return static_cast<toolkit::Frame&>(widget).Caption();
    case WidgetKind::CommandButton:
      return static_cast<toolkit::CommandButton&>(widget).Caption();
    default:
      return "";
  }
}

TEST_P(TitleLayout, ItsWidgetsStandInTabOrderAtTheirPlaces) {
  ASSERT_EQ(surface().widgets().size(), rows().size());
  for (std::size_t i = 0; i < rows().size(); ++i) {
    const LaidOut& row = rows()[i];
    toolkit::Widget& widget = *surface().widgets()[i];
    SCOPED_TRACE(row.name);
    EXPECT_EQ(widget.Name(), row.name);
    EXPECT_EQ(widget.Kind(), row.kind);
    EXPECT_EQ(widget.TabIndex(), static_cast<std::int16_t>(i));
    EXPECT_EQ(widget.frame() == nullptr ? "" : widget.frame()->Name(), row.frame);
    EXPECT_EQ(widget.place(), row.place);
    EXPECT_EQ(captionOf(widget), row.caption);
    EXPECT_EQ(widget.ToolTip(), row.tooltip);
    EXPECT_EQ(widget.Enabled(), row.enabled);
    EXPECT_EQ(widget.Visible(), row.visible);
  }
  EXPECT_EQ(surface().layout().name, "ctlSOSPESI");
  EXPECT_EQ(surface().layout().width, 10065);
  EXPECT_EQ(surface().layout().height, 1830);
}

TEST_P(TitleLayout, ItsWidgetsHaveTheirLook) {
  for (std::size_t i = 0; i < rows().size(); ++i) {
    const LaidOut& row = rows()[i];
    const toolkit::Widget& widget = *surface().widgets()[i];
    SCOPED_TRACE(row.name);
    EXPECT_EQ(widget.ForeColor(), row.fore);
    EXPECT_EQ(widget.layout().align, row.align);
    EXPECT_EQ(widget.layout().bold, row.bold);
    EXPECT_EQ(widget.layout().bordered, row.bordered);
    EXPECT_FALSE(widget.layout().back.has_value());
  }
}

TEST_P(TitleLayout, ANewOneHasBlankDatesNoActionsAndAsksNothing) {
  EXPECT_EQ(date("TxtDATA_C").Text(), "##/##/####");
  EXPECT_EQ(date("TxtDATA_DOC").Text(), "##/##/####");
  EXPECT_EQ(actions().ListCount(), 0);
  EXPECT_EQ(actions().ListIndex(), -1);
  EXPECT_TRUE(container().notices.empty());
  EXPECT_TRUE(driver().ran.empty());
}

}  // namespace
}  // namespace qvn::test
