// Where the commission panel's widgets lie, and what they show before anything is loaded.
#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

#include "qvn/panels/commissions/commission_layout.h"
#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

using toolkit::Align;
using toolkit::Place;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

class CommissionLayout : public CommissionPanel {
 public:
  static std::vector<WidgetLayout> in(std::string_view frame) {
    std::vector<WidgetLayout> rows;
    std::ranges::copy_if(commissions::layout().widgets, std::back_inserter(rows),
                         [&](const WidgetLayout& row) { return row.frame == frame; });
    return rows;
  }
  static const WidgetLayout& row(std::string_view name) {
    return *std::ranges::find(commissions::layout().widgets, name, &WidgetLayout::name);
  }
  /// The label with that caption that stands straight to the left of a field, in its line and frame.
  static std::optional<WidgetLayout> beside(const WidgetLayout& field, std::string_view caption) {
    for (const WidgetLayout& other : in(field.frame)) {
      if (other.kind == WidgetKind::Label && other.caption == caption && other.place.top == field.place.top &&
          other.place.left < field.place.left) {
        return other;
      }
    }
    return std::nullopt;
  }
};
QVN_ON_EVERY_PLATFORM(CommissionLayout);

struct LaidOutFrame {
  std::string name;
  Place place;
  std::string caption;
  bool enabled;
};

TEST_P(CommissionLayout, ItsFramesStandAtTheirPlaces) {
  const std::vector<LaidOutFrame> frames{
      {"FrmQUOTA", {75, 0, 6990, 1365}, "", true},
      {"FrmUFF", {75, 1350, 3465, 1815}, "Provvigioni di Ufficio:", false},
      {"FrmRIEPILOGO", {3600, 1350, 3465, 1815}, "Riepilogo:", true},
      {"FrmPROD", {75, 3225, 3465, 2790}, "Provvigioni Produttore:", false},
      {"FrmPROD_ALT", {3600, 3225, 3465, 2790}, "Provvigioni Produttore Alt.:", false},
  };
  std::size_t found = 0;
  for (const toolkit::Widget* widget : surface().widgets()) found += widget->Kind() == WidgetKind::Frame ? 1 : 0;
  EXPECT_EQ(found, frames.size());
  for (const LaidOutFrame& laidOut : frames) {
    SCOPED_TRACE(laidOut.name);
    EXPECT_EQ(frame(laidOut.name).place(), laidOut.place);
    EXPECT_EQ(frame(laidOut.name).Caption(), laidOut.caption);
    EXPECT_EQ(frame(laidOut.name).Enabled(), laidOut.enabled);
    EXPECT_EQ(frame(laidOut.name).frame(), nullptr);
    EXPECT_TRUE(frame(laidOut.name).Visible());
  }
}

TEST_P(CommissionLayout, ThePanelIsAsLargeAsItsFramesNeed) {
  EXPECT_EQ(surface().layout().name, "ctlPROV_POLIZZE");
  for (const WidgetLayout& outer : in("")) {
    SCOPED_TRACE(outer.name);
    EXPECT_LE(outer.place.left + outer.place.width, surface().layout().width);
    EXPECT_LE(outer.place.top + outer.place.height, surface().layout().height);
  }
}

TEST_P(CommissionLayout, NoWidgetOverlapsAnotherInItsFrameOrSticksOut) {
  for (const WidgetLayout& outer : in("")) {
    const auto rows = in(outer.name);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const Place& a = rows[i].place;
      SCOPED_TRACE(rows[i].name);
      EXPECT_GE(a.left, 0);
      EXPECT_GE(a.top, 0);
      EXPECT_LE(a.left + a.width, outer.place.width);
      EXPECT_LE(a.top + a.height, outer.place.height);
      for (std::size_t j = i + 1; j < rows.size(); ++j) {
        const Place& b = rows[j].place;
        const bool apart = a.left + a.width <= b.left || b.left + b.width <= a.left || a.top + a.height <= b.top ||
                           b.top + b.height <= a.top;
        EXPECT_TRUE(apart) << "lies over " << rows[j].name;
      }
    }
  }
}

TEST_P(CommissionLayout, EveryWidgetButAFrameLiesInAFrame) {
  for (const WidgetLayout& outer : in("")) EXPECT_EQ(outer.kind, WidgetKind::Frame) << outer.name;
  for (const auto name : {"LblQUOTA", "LblCOMPAGNIA", "LblPN", "LblACC", "LblPL"}) {
    EXPECT_EQ(row(name).frame, "FrmQUOTA") << name;
  }
  for (const auto name : {"PROVV_ATTIVE", "PROVV_PASSIVE", "RIT_ACCONTO"}) {
    EXPECT_EQ(row(name).frame, "FrmRIEPILOGO") << name;
  }
  EXPECT_EQ(row("LblPRODUTTORE").frame, "FrmPROD");
  EXPECT_EQ(row("LblPRODUTTORE_ALT").frame, "FrmPROD_ALT");
  EXPECT_EQ(row("CmbCALCOLO_PROD").frame, "FrmPROD");
  EXPECT_EQ(row("CmbCALCOLO_PROD_ALT").frame, "FrmPROD_ALT");
  for (const CommissionCell& cell : cells()) {
    EXPECT_EQ(row(cell.percentBox()).frame, cell.frame());
    EXPECT_EQ(row(cell.amountBox()).frame, cell.frame());
  }
}

TEST_P(CommissionLayout, WhatTakesTheFocusStandsInTabOrder) {
  std::vector<WidgetLayout> rows;
  for (const WidgetLayout& widget : commissions::layout().widgets) {
    if (widget.kind != WidgetKind::Label && widget.kind != WidgetKind::Frame) rows.push_back(widget);
  }
  std::ranges::sort(rows, {}, &WidgetLayout::tabIndex);
  Strings names;
  names.reserve(rows.size());
  for (const WidgetLayout& widget : rows) names.emplace_back(widget.name);
  EXPECT_EQ(names, (Strings{"TxtP_PN_UFF",       "TxtPN_UFF",           "TxtP_ACC_UFF",     "TxtACC_UFF",
                            "TxtP_AQ_UFF",       "TxtAQ_UFF",           "CmbCALCOLO_PROD",  "TxtP_PN_PROD",
                            "TxtPN_PROD",        "TxtP_ACC_PROD",       "TxtACC_PROD",      "TxtP_AQ_PROD",
                            "TxtAQ_PROD",        "CmbCALCOLO_PROD_ALT", "TxtP_PN_PROD_ALT", "TxtPN_PROD_ALT",
                            "TxtP_ACC_PROD_ALT", "TxtACC_PROD_ALT",     "TxtP_AQ_PROD_ALT", "TxtAQ_PROD_ALT"}));
  EXPECT_GT(rows.front().tabIndex, 0);
  EXPECT_EQ(row("FrmQUOTA").tabIndex, 0);
}

TEST_P(CommissionLayout, ItsBoxesStartRightAlignedWithAZero) {
  for (const CommissionCell& cell : cells()) {
    for (const std::string& name : {cell.percentBox(), cell.amountBox()}) {
      EXPECT_EQ(row(name).kind, WidgetKind::TextBox) << name;
      EXPECT_EQ(row(name).caption, "0") << name;
      EXPECT_EQ(row(name).align, Align::Right) << name;
      EXPECT_TRUE(row(name).enabled) << name;
    }
  }
}

TEST_P(CommissionLayout, ItsLabelsStartWithTheirCaptions) {
  for (const auto name : {"LblQUOTA", "LblPN", "LblACC", "LblPL", "PROVV_ATTIVE", "PROVV_PASSIVE", "RIT_ACCONTO"}) {
    EXPECT_EQ(row(name).kind, WidgetKind::Label) << name;
    EXPECT_EQ(row(name).caption, "0") << name;
  }
  for (const auto name : {"LblCOMPAGNIA", "LblPRODUTTORE", "LblPRODUTTORE_ALT"})
    EXPECT_EQ(row(name).caption, "") << name;
}

TEST_P(CommissionLayout, EachFieldHasItsTitleBesideIt) {
  const std::vector<std::pair<std::string, std::string>> titles{
      {"LblQUOTA", "Quota:"},
      {"LblCOMPAGNIA", "Compagnia"},
      {"LblPN", "PN:"},
      {"LblACC", "ACC:"},
      {"LblPL", "PL:"},
      {"PROVV_ATTIVE", "Provv. Attive:"},
      {"PROVV_PASSIVE", "Provv. Passive:"},
      {"RIT_ACCONTO", "Rit. Acconto:"},
      {"CmbCALCOLO_PROD", "Calcola su:"},
      {"CmbCALCOLO_PROD_ALT", "Calcola su:"},
  };
  for (const auto& [field, title] : titles) EXPECT_TRUE(beside(row(field), title)) << field;
  for (const CommissionCell& cell : cells()) {
    const std::string title = cell.amount.substr(0, cell.amount.find('_')) + ":";
    EXPECT_TRUE(beside(row(cell.percentBox()), title)) << cell.percentBox();
    EXPECT_EQ(row(cell.percentBox()).place.top, row(cell.amountBox()).place.top) << cell.amount;
    EXPECT_LT(row(cell.percentBox()).place.left, row(cell.amountBox()).place.left) << cell.amount;
  }
}

TEST_P(CommissionLayout, HeadsStandOverBothColumnsOfEachParty) {
  for (const std::string party : {"UFF", "PROD", "PROD_ALT"}) {
    for (const auto& [field, caption] : {std::pair{"TxtP_PN_" + party, "%"}, std::pair{"TxtPN_" + party, "Importi"}}) {
      SCOPED_TRACE(field);
      const Place& below = row(field).place;
      const auto rows = in("Frm" + party);
      const auto head = std::ranges::find(rows, caption, &WidgetLayout::caption);
      ASSERT_NE(head, rows.end());
      EXPECT_EQ(head->place.left, below.left);
      EXPECT_LE(head->place.top + head->place.height, below.top);
    }
    const auto& PN = row("TxtP_PN_" + party).place;
    const auto& ACC = row("TxtP_ACC_" + party).place;
    const auto& AQ = row("TxtP_AQ_" + party).place;
    EXPECT_LT(PN.top, ACC.top);
    EXPECT_LT(ACC.top, AQ.top);
  }
}

TEST_P(CommissionLayout, TheListsOfBasesAreClosedAndStartWithNothingChosen) {
  for (const auto name : {"CmbCALCOLO_PROD", "CmbCALCOLO_PROD_ALT"}) {
    SCOPED_TRACE(name);
    ASSERT_EQ(list(name).ListCount(), 2);
    EXPECT_EQ(list(name).List(0), "1 - Premi Polizza");
    EXPECT_EQ(list(name).List(1), "2 - Provv. Ufficio");
    EXPECT_EQ(list(name).ListIndex(), -1);
    EXPECT_EQ(list(name).Text(), "");
  }
}

}  // namespace
}  // namespace qvn::test
