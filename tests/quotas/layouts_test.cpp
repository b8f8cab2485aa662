// Where the widgets of the two panels lie, what they show before anything is loaded, and which public members there
// are.
#include <gtest/gtest.h>

#include "tests/quotas/quota_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;
using toolkit::Align;
using toolkit::Place;
using toolkit::WidgetKind;

struct LaidOut {
  std::string name;
  WidgetKind kind;
  Place place;
  std::string text = {};
  Align align = Align::Left;
};

class QuotaLayouts : public QuotaBench {
 public:
  void expectLaidOut(const std::vector<LaidOut>& rows) {
    ASSERT_EQ(surface().widgets().size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const LaidOut& row = rows[i];
      toolkit::Widget& widget = *surface().widgets()[i];
      SCOPED_TRACE(row.name);
      EXPECT_EQ(widget.Name(), row.name);
      EXPECT_EQ(widget.Kind(), row.kind);
      EXPECT_EQ(widget.TabIndex(), static_cast<std::int16_t>(i));
      EXPECT_EQ(widget.place(), row.place);
      EXPECT_EQ(widget.layout().caption, row.text);
      EXPECT_EQ(widget.layout().align, row.align);
      EXPECT_EQ(widget.layout().bordered, row.kind == WidgetKind::Label && row.text.empty());
      EXPECT_FALSE(widget.layout().bold);
      EXPECT_EQ(widget.ForeColor(), toolkit::kBlack);
      EXPECT_FALSE(widget.layout().back);
      EXPECT_EQ(widget.ToolTip(), "");
      EXPECT_EQ(widget.frame(), nullptr);
      EXPECT_EQ(widget.Enabled(), row.kind == WidgetKind::Label);
      EXPECT_TRUE(widget.Visible());
    }
  }
  /// Wide enough for eight points, and apart from all others.
  void expectWellDrawn() {
    const auto rows = surface().layout().widgets;
    EXPECT_LE(surface().layout().width, 10065);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      SCOPED_TRACE(rows[i].name);
      const Place& a = rows[i].place;
      EXPECT_GE(a.width, 105 * static_cast<std::int32_t>(rows[i].caption.size()));
      EXPECT_LE(a.left + a.width, surface().layout().width);
      EXPECT_LE(a.top + a.height, surface().layout().height);
      for (std::size_t j = i + 1; j < rows.size(); ++j) {
        const Place& b = rows[j].place;
        const bool apart = a.left + a.width < b.left || b.left + b.width < a.left || a.top + a.height < b.top ||
                           b.top + b.height < a.top;
        EXPECT_TRUE(apart) << "lies over " << rows[j].name;
      }
    }
  }
  std::string members() {
    std::string all;
    for (const Member& member : panel->members()) {
      all.append(member.name).append(" ").append(nameOf(member.kind)).append(" ").append(member.type).append("\n");
    }
    return all;
  }
};
QVN_ON_EVERY_PLATFORM(QuotaLayouts);

TEST_P(QuotaLayouts, APolicysQuotaIsLaidOutInTabOrder) {
  make("ctlQ_POLIZZE");
  expectLaidOut({
      {"lblTitQUOTA", WidgetKind::Label, {75, 75, 1470, 315}, "Quota:", Align::Right},
      {"TxtQUOTA", WidgetKind::TextBox, {1605, 75, 690, 315}, "", Align::Right},
      {"lblTitCOD_COMP", WidgetKind::Label, {2355, 75, 945, 315}, "C. Comp.:", Align::Right},
      {"TxtCOD_COMP", WidgetKind::TextBox, {3360, 75, 750, 315}},
      {"DESC_COMPAGNIA", WidgetKind::Label, {4170, 75, 2520, 315}},
      {"lblTitCOD_PROD", WidgetKind::Label, {75, 450, 1470, 315}, "C. Prod.:", Align::Right},
      {"TxtCOD_PROD", WidgetKind::TextBox, {1605, 450, 1065, 315}},
      {"DESC_PRODUTTORE", WidgetKind::Label, {2730, 450, 3960, 315}},
      {"lblTitCOD_PROD_ALT", WidgetKind::Label, {75, 825, 1470, 315}, "C. Prod. Alt.:", Align::Right},
      {"TxtCOD_PROD_ALT", WidgetKind::TextBox, {1605, 825, 1065, 315}},
      {"DESC_PRODUTTORE_ALT", WidgetKind::Label, {2730, 825, 3960, 315}},
      {"lblTitN_POLIZZA", WidgetKind::Label, {75, 1200, 1470, 315}, "N. Pol.:", Align::Right},
      {"TxtN_POLIZZA", WidgetKind::TextBox, {1605, 1200, 1815, 315}},
      {"lblTitD_RIMESSA", WidgetKind::Label, {3510, 1200, 1155, 315}, "D. Rimessa:", Align::Right},
      {"TxtD_RIMESSA", WidgetKind::DateControl, {4725, 1200, 1365, 315}},
      {"ChkDELEGATARIA", WidgetKind::CheckBox, {6150, 1200, 1500, 315}, "Delegataria"},
      {"TAF(0)", WidgetKind::Label, {6750, 75, 1590, 315}, "", Align::Right},
      {"TAF(1)", WidgetKind::Label, {6750, 450, 1590, 315}, "", Align::Right},
      {"TAF(2)", WidgetKind::Label, {6750, 825, 1590, 315}, "", Align::Right},
      {"TRF(0)", WidgetKind::Label, {8400, 75, 1590, 315}, "", Align::Right},
      {"TRF(1)", WidgetKind::Label, {8400, 450, 1590, 315}, "", Align::Right},
      {"TRF(2)", WidgetKind::Label, {8400, 825, 1590, 315}, "", Align::Right},
  });
  EXPECT_EQ(surface().layout().name, "ctlQ_POLIZZE");
  EXPECT_EQ(surface().layout().width, 10065);
  EXPECT_EQ(surface().layout().height, 1590);
}

TEST_P(QuotaLayouts, AClaimsQuotaIsLaidOutInTabOrder) {
  make("ctlQ_SINISTRI");
  expectLaidOut({
      {"lblTitQUOTA", WidgetKind::Label, {75, 75, 945, 315}, "Quota:", Align::Right},
      {"TxtQUOTA", WidgetKind::TextBox, {1080, 75, 690, 315}, "", Align::Right},
      {"ChkDELEGATARIA", WidgetKind::CheckBox, {1830, 75, 1395, 315}, "Delegataria"},
      {"lblTitCOD_COMP", WidgetKind::Label, {3285, 75, 1050, 315}, "C. Comp.:", Align::Right},
      {"TxtCOD_COMP", WidgetKind::TextBox, {4395, 75, 750, 315}},
      {"DESC_COMPAGNIA", WidgetKind::Label, {5205, 75, 4785, 315}},
      {"lblTitN_POLIZZA", WidgetKind::Label, {75, 450, 945, 315}, "N. Pol.:", Align::Right},
      {"TxtN_POLIZZA", WidgetKind::TextBox, {1080, 450, 1815, 315}},
      {"lblTitN_SINISTRO", WidgetKind::Label, {3285, 450, 1050, 315}, "N. Sin.:", Align::Right},
      {"TxtN_SINISTRO", WidgetKind::TextBox, {4395, 450, 2340, 315}},
      {"lblTitSTIMATO", WidgetKind::Label, {75, 825, 945, 315}, "Q. Stim.:", Align::Right},
      {"STIMATO", WidgetKind::Label, {1080, 825, 1590, 315}, "", Align::Right},
      {"lblTitLIQUIDATO", WidgetKind::Label, {3285, 825, 1050, 315}, "Q Liquid.:", Align::Right},
      {"LIQUIDATO", WidgetKind::Label, {4395, 825, 1590, 315}, "", Align::Right},
  });
  EXPECT_EQ(surface().layout().name, "ctlQ_SINISTRI");
  EXPECT_EQ(surface().layout().width, 10065);
  EXPECT_EQ(surface().layout().height, 1215);
}

TEST_P(QuotaLayouts, AllIsReadAndNothingLiesOverAnother) {
  withBoth([&](std::string_view className) {
    make(className);
    expectWellDrawn();
  });
}

TEST_P(QuotaLayouts, ANewPanelIsBlankAndHasSaidAndAskedNothing) {
  withBoth([&](std::string_view className) {
    panel = panelClass(className).make(PanelSite{container(), "quota"});
    EXPECT_THAT(container().notices, IsEmpty());
    EXPECT_THAT(asked(), IsEmpty());
    for (const toolkit::Widget* widget : surface().widgets()) {
      const std::string name(widget->Name());
      if (widget->Kind() == WidgetKind::TextBox) {
        EXPECT_EQ(text(name), "") << name;
      } else if (widget->layout().bordered) {
        EXPECT_EQ(caption(name), "") << name;
      }
    }
    EXPECT_EQ(lead().Value(), 0);
  });
}

TEST_P(QuotaLayouts, APolicysPublicMembersStandInInterfaceOrder) {
  make("ctlQ_POLIZZE");
  EXPECT_EQ(members(),
            "Calcola_QUOTA method \n"
            "Calcola_QUOTA_DELEGATARIA method \n"
            "Imposta_VALORI method \n"
            "Events get clsQVN_Eventi\n"
            "Attiva method \n"
            "Disattiva method \n"
            "COD_PROD get/let text\n"
            "COD_COMP get/let text\n"
            "N_POLIZZA get/let text\n"
            "COD_PROD_ALT get/let text\n"
            "D_RIMESSA get/let variant\n"
            "QUOTA get/let 16-bit integer\n"
            "DELEGATARIA get/let boolean\n");
}

TEST_P(QuotaLayouts, AClaimsPublicMembersStandInInterfaceOrder) {
  make("ctlQ_SINISTRI");
  EXPECT_EQ(members(),
            "Calcola_QUOTA method \n"
            "Imposta_VALORI method \n"
            "Events get clsQVN_Eventi\n"
            "Attiva method \n"
            "Disattiva method \n"
            "N_SINISTRO_COMP get/let text\n"
            "COD_COMP get/let text\n"
            "N_POLIZZA get/let text\n"
            "QUOTA get/let 16-bit integer\n"
            "DELEGATARIA get/let boolean\n");
}

}  // namespace
}  // namespace qvn::test
