#include "qvn/panels/commissions/commission_layout.h"

#include <cstddef>
#include <cstdint>

namespace qvn::commissions {

namespace {

using toolkit::Align;
using toolkit::Place;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr std::int32_t kLine = 315;

// The grid of a party: titles of the rows, percents, amounts; a summary has its values in one column.
constexpr Place kRowTitle{.left = 75, .width = 615};
constexpr Place kPercent{.left = 750, .width = 1065};
constexpr Place kAmount{.left = 1875, .width = 1440};
constexpr Place kSummaryTitle{.left = 75, .width = 1365};
constexpr Place kSummaryValue{.left = 1500, .width = 1815};

// Tops within the frames. The summary's rows stand beside those of the office.
constexpr std::int32_t kOfficeHeads = 270;
constexpr std::array<std::int32_t, 3> kOfficeRows{540, 930, 1320};
constexpr std::int32_t kProducerHeads = 1200;
constexpr std::array<std::int32_t, 3> kProducerRows{1470, 1860, 2250};

constexpr Place in(Place column, std::int32_t top, std::int32_t height = kLine) {
  return {.left = column.left, .top = top, .width = column.width, .height = height};
}

constexpr WidgetLayout frame(std::string_view name, Place place, std::string_view caption, bool enabled) {
  return {.name = name, .kind = WidgetKind::Frame, .place = place, .caption = caption, .enabled = enabled};
}

constexpr WidgetLayout title(std::string_view name, std::string_view frame, Place place, std::string_view caption,
                             Align align = Align::Right) {
  return {.name = name, .kind = WidgetKind::Label, .frame = frame, .place = place, .caption = caption, .align = align};
}

/// A label that shows a figure.
constexpr WidgetLayout figure(std::string_view name, std::string_view frame, Place place) {
  return {.name = name,
          .kind = WidgetKind::Label,
          .frame = frame,
          .place = place,
          .caption = "0",
          .align = Align::Right,
          .bordered = true};
}

/// A label that shows a code with its description.
constexpr WidgetLayout description(std::string_view name, std::string_view frame, Place place) {
  return {.name = name, .kind = WidgetKind::Label, .frame = frame, .place = place, .bordered = true};
}

constexpr WidgetLayout box(std::string_view name, std::string_view frame, Place column, std::int32_t top) {
  return {.name = name, .frame = frame, .place = in(column, top), .caption = "0", .align = Align::Right};
}

constexpr WidgetLayout percent(std::string_view name, std::string_view frame, std::int32_t top) {
  return box(name, frame, kPercent, top);
}

constexpr WidgetLayout amount(std::string_view name, std::string_view frame, std::int32_t top) {
  return box(name, frame, kAmount, top);
}

constexpr WidgetLayout head(std::string_view name, std::string_view frame, Place column, std::int32_t top,
                            std::string_view caption) {
  return title(name, frame, in(column, top, 225), caption, Align::Center);
}

constexpr WidgetLayout rowTitle(std::string_view name, std::string_view frame, std::int32_t top,
                                std::string_view caption) {
  return title(name, frame, in(kRowTitle, top), caption);
}

constexpr WidgetLayout baseList(std::string_view name, std::string_view frame) {
  return {
      .name = name, .kind = WidgetKind::ComboBox, .frame = frame, .place = {1125, 765, 2190, kLine}, .items = kBases};
}

template <std::size_t N>
constexpr std::array<WidgetLayout, N> inTabOrder(std::array<WidgetLayout, N> rows) {
  std::int16_t next = 0;
  for (WidgetLayout& row : rows) row.tabIndex = next++;
  return rows;
}

constexpr auto kWidgets = inTabOrder(std::array{
    frame("FrmQUOTA", {75, 0, 6990, 1365}, "", true),
    title("lblTitQUOTA", "FrmQUOTA", {75, 300, 690, kLine}, "Quota:"),
    figure("LblQUOTA", "FrmQUOTA", {825, 300, 690, kLine}),
    title("lblTitCOMPAGNIA", "FrmQUOTA", {1575, 300, 1125, kLine}, "Compagnia"),
    description("LblCOMPAGNIA", "FrmQUOTA", {2775, 300, 4065, kLine}),
    title("lblTitPN", "FrmQUOTA", {75, 825, 690, kLine}, "PN:"),
    figure("LblPN", "FrmQUOTA", {825, 825, 1590, kLine}),
    title("lblTitACC", "FrmQUOTA", {2475, 825, 540, kLine}, "ACC:"),
    figure("LblACC", "FrmQUOTA", {3075, 825, 1590, kLine}),
    title("lblTitPL", "FrmQUOTA", {4725, 825, 465, kLine}, "PL:"),
    figure("LblPL", "FrmQUOTA", {5250, 825, 1590, kLine}),

    frame("FrmUFF", {75, 1350, 3465, 1815}, "Provvigioni di Ufficio:", false),
    head("lblTitPerc_UFF", "FrmUFF", kPercent, kOfficeHeads, "%"),
    head("lblTitImporti_UFF", "FrmUFF", kAmount, kOfficeHeads, "Importi"),
    rowTitle("lblTitPN_UFF", "FrmUFF", kOfficeRows[0], "PN:"),
    percent("TxtP_PN_UFF", "FrmUFF", kOfficeRows[0]),
    amount("TxtPN_UFF", "FrmUFF", kOfficeRows[0]),
    rowTitle("lblTitACC_UFF", "FrmUFF", kOfficeRows[1], "ACC:"),
    percent("TxtP_ACC_UFF", "FrmUFF", kOfficeRows[1]),
    amount("TxtACC_UFF", "FrmUFF", kOfficeRows[1]),
    rowTitle("lblTitAQ_UFF", "FrmUFF", kOfficeRows[2], "AQ:"),
    percent("TxtP_AQ_UFF", "FrmUFF", kOfficeRows[2]),
    amount("TxtAQ_UFF", "FrmUFF", kOfficeRows[2]),

    frame("FrmRIEPILOGO", {3600, 1350, 3465, 1815}, "Riepilogo:", true),
    title("lblTitPROVV_ATTIVE", "FrmRIEPILOGO", in(kSummaryTitle, kOfficeRows[0]), "Provv. Attive:"),
    figure("PROVV_ATTIVE", "FrmRIEPILOGO", in(kSummaryValue, kOfficeRows[0])),
    title("lblTitPROVV_PASSIVE", "FrmRIEPILOGO", in(kSummaryTitle, kOfficeRows[1]), "Provv. Passive:"),
    figure("PROVV_PASSIVE", "FrmRIEPILOGO", in(kSummaryValue, kOfficeRows[1])),
    title("lblTitRIT_ACCONTO", "FrmRIEPILOGO", in(kSummaryTitle, kOfficeRows[2]), "Rit. Acconto:"),
    figure("RIT_ACCONTO", "FrmRIEPILOGO", in(kSummaryValue, kOfficeRows[2])),

    frame("FrmPROD", {75, 3225, 3465, 2790}, "Provvigioni Produttore:", false),
    description("LblPRODUTTORE", "FrmPROD", {150, 330, 3165, kLine}),
    title("lblTitCALCOLO_PROD", "FrmPROD", {75, 765, 990, kLine}, "Calcola su:"),
    baseList("CmbCALCOLO_PROD", "FrmPROD"),
    head("lblTitPerc_PROD", "FrmPROD", kPercent, kProducerHeads, "%"),
    head("lblTitImporti_PROD", "FrmPROD", kAmount, kProducerHeads, "Importi"),
    rowTitle("lblTitPN_PROD", "FrmPROD", kProducerRows[0], "PN:"),
    percent("TxtP_PN_PROD", "FrmPROD", kProducerRows[0]),
    amount("TxtPN_PROD", "FrmPROD", kProducerRows[0]),
    rowTitle("lblTitACC_PROD", "FrmPROD", kProducerRows[1], "ACC:"),
    percent("TxtP_ACC_PROD", "FrmPROD", kProducerRows[1]),
    amount("TxtACC_PROD", "FrmPROD", kProducerRows[1]),
    rowTitle("lblTitAQ_PROD", "FrmPROD", kProducerRows[2], "AQ:"),
    percent("TxtP_AQ_PROD", "FrmPROD", kProducerRows[2]),
    amount("TxtAQ_PROD", "FrmPROD", kProducerRows[2]),

    frame("FrmPROD_ALT", {3600, 3225, 3465, 2790}, "Provvigioni Produttore Alt.:", false),
    description("LblPRODUTTORE_ALT", "FrmPROD_ALT", {150, 330, 3165, kLine}),
    title("lblTitCALCOLO_PROD_ALT", "FrmPROD_ALT", {75, 765, 990, kLine}, "Calcola su:"),
    baseList("CmbCALCOLO_PROD_ALT", "FrmPROD_ALT"),
    head("lblTitPerc_PROD_ALT", "FrmPROD_ALT", kPercent, kProducerHeads, "%"),
    head("lblTitImporti_PROD_ALT", "FrmPROD_ALT", kAmount, kProducerHeads, "Importi"),
    rowTitle("lblTitPN_PROD_ALT", "FrmPROD_ALT", kProducerRows[0], "PN:"),
    percent("TxtP_PN_PROD_ALT", "FrmPROD_ALT", kProducerRows[0]),
    amount("TxtPN_PROD_ALT", "FrmPROD_ALT", kProducerRows[0]),
    rowTitle("lblTitACC_PROD_ALT", "FrmPROD_ALT", kProducerRows[1], "ACC:"),
    percent("TxtP_ACC_PROD_ALT", "FrmPROD_ALT", kProducerRows[1]),
    amount("TxtACC_PROD_ALT", "FrmPROD_ALT", kProducerRows[1]),
    rowTitle("lblTitAQ_PROD_ALT", "FrmPROD_ALT", kProducerRows[2], "AQ:"),
    percent("TxtP_AQ_PROD_ALT", "FrmPROD_ALT", kProducerRows[2]),
    amount("TxtAQ_PROD_ALT", "FrmPROD_ALT", kProducerRows[2]),
});

constexpr toolkit::PanelLayout kLayout{.name = "ctlPROV_POLIZZE", .width = 7140, .height = 6090, .widgets = kWidgets};

}  // namespace

const toolkit::PanelLayout& layout() { return kLayout; }

}  // namespace qvn::commissions
