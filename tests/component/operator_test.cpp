// The operator's hands on the screen, and what there is to see.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/component/component.h"

namespace qvn::component_test {

namespace {

std::string focused(const Handle& onScreen) {
  Value place;
  EXPECT_EQ(QVN_OK, qvn_screen_focused(onScreen.get(), place.place()));
  return place.text();
}

std::string failedActs(const Handle& onScreen) {
  Value lines;
  EXPECT_EQ(QVN_OK, qvn_operator_failed_acts(onScreen.get(), lines.place()));
  return lines.text();
}

class OnScreen : public Component {
 public:
  ~OnScreen() override {
    panel_.reset();
    screen_.reset();
  }
  /// A panel of the class, enabled.
  const Handle& active(const char* className) {
    panel_ = create(screen_, className, "panel");
    call(panel_, "Attiva");
    return panel_;
  }
  const Handle& on() const { return screen_; }

 private:
  Handle screen_ = screen();
  Handle panel_;
};

using Operator = OnScreen;
using Looking = OnScreen;

TEST_F(Operator, typesIntoWhatHasTheFocus) {
  const Handle& panel = active("ctlIVA");
  EXPECT_EQ("panel.TxtCodice", focused(on()));
  type(on(), "22{Enter}ordinaria{Enter}250");
  EXPECT_EQ("ORDINARIA", get(panel, "DESCRIZIONE").text());
  EXPECT_EQ(100, get(panel, "IVA")->as.byte);
  EXPECT_EQ("panel.TxtIVA", focused(on()));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "Gone", qvn_operator_type(on().get(), "{Gone}")));
}

TEST_F(Operator, cannotTypeIntoNothing) {
  EXPECT_EQ("", focused(on()));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "focus", qvn_operator_type(on().get(), "2")));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "focus", qvn_operator_paste(on().get(), "2")));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "focus", qvn_operator_select(on().get(), 0, 1)));
}

TEST_F(Operator, hearsABeepForAKeyThatIsRefused) {
  active("ctlIVA");
  std::int32_t beeps = -1;
  type(on(), "x");
  EXPECT_EQ(QVN_OK, qvn_screen_beeps(on().get(), &beeps));
  EXPECT_EQ(1, beeps);
}

TEST_F(Operator, pastesAndSelects) {
  const Handle& panel = active("ctlIVA");
  ASSERT_EQ(QVN_OK, qvn_operator_focus(panel.get(), "txtDescrizione"));
  ASSERT_EQ(QVN_OK, qvn_operator_paste(on().get(), "esente"));
  ASSERT_EQ(QVN_OK, qvn_operator_select(on().get(), 1, 2));
  Value start;
  ASSERT_EQ(QVN_OK, qvn_widget_get(panel.get(), "txtDescrizione", "SelStart", start.place()));
  EXPECT_EQ(1, start->as.int32);
  ASSERT_EQ(QVN_OK, qvn_widget_get(panel.get(), "txtDescrizione", "SelLength", start.place()));
  EXPECT_EQ(2, start->as.int32);
  type(on(), "{Delete}");
  EXPECT_EQ("ENTE", show(panel, "txtDescrizione", "Text"));
}

TEST_F(Operator, movesTheFocusAndLeaves) {
  const Handle& panel = active("ctlIVA");
  ASSERT_EQ(QVN_OK, qvn_operator_focus(panel.get(), "TxtIVA"));
  EXPECT_EQ("panel.TxtIVA", focused(on()));
  ASSERT_EQ(QVN_OK, qvn_operator_leave(on().get()));
  EXPECT_EQ("", focused(on()));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "lblIVA", qvn_operator_focus(panel.get(), "lblIVA")));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "txtiva", qvn_operator_focus(panel.get(), "txtiva")));
  call(panel, "Disattiva");
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "TxtIVA", qvn_operator_focus(panel.get(), "TxtIVA")));
}

TEST_F(Operator, clicksAndChooses) {
  const Handle& panel = active("ctlQ_POLIZZE");
  ASSERT_EQ(QVN_OK, qvn_operator_click(panel.get(), "ChkDELEGATARIA"));
  EXPECT_EQ(1, get(panel, "DELEGATARIA")->as.boolean);
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "TxtQUOTA", qvn_operator_click(panel.get(), "TxtQUOTA")));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "panel.TxtQUOTA is no", qvn_operator_choose(panel.get(), "TxtQUOTA", "x")));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "panel: there", qvn_operator_choose(panel.get(), "TxtGONE", "x")));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "panel.TxtQUOTA is neither", qvn_operator_click(panel.get(), "TxtQUOTA")));

  const Handle& types = active("ctlDATI_MOVIMENTI");
  Value count;
  std::string list;
  const char* name = nullptr;
  for (std::int32_t i = 0; qvn_widget_at(types.get(), i, &name) == QVN_OK; ++i) {
    if (list.empty() && show(types, name, "Kind") == "combo box") list = name;
  }
  ASSERT_EQ(QVN_OK, qvn_widget_get(types.get(), list.c_str(), "ListCount", count.place()));
  EXPECT_LT(0, count->as.int32);
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "Gone", qvn_operator_choose(types.get(), list.c_str(), "Gone")));
  ASSERT_EQ(QVN_OK, qvn_operator_choose(types.get(), list.c_str(), "AVERE")) << qvn_last_message();
  EXPECT_EQ("AVERE", show(types, list.c_str(), "Text"));
}

TEST_F(Operator, isNotAskedThroughNulls) {
  const Handle& panel = active("ctlIVA");
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_type(nullptr, "2"));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_type(on().get(), nullptr));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_type(panel.get(), "2"));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_paste(on().get(), nullptr));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_select(nullptr, 0, 0));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_focus(panel.get(), nullptr));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_leave(nullptr));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_click(nullptr, "TxtIVA"));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_choose(nullptr, "TxtIVA", ""));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_failed_acts(on().get(), nullptr));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_lay_down(on().get(), nullptr, nullptr, 0));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_lay_down(on().get(), "Lista", nullptr, 1));
  const qvn_act wordless{.kind = QVN_ACT_KEY, .number = 0, .text = nullptr};
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_operator_lay_down(on().get(), "Lista", &wordless, 1));
  const qvn_act unknown{.kind = 9, .number = 0, .text = nullptr};
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "9", qvn_operator_lay_down(on().get(), "Lista", &unknown, 1)));
}

TEST_F(Operator, hasFailedNoActWhereNoneWasDone) { EXPECT_EQ("", failedActs(on())); }

TEST_F(Looking, findsEveryWidgetInTabOrder) {
  const Handle& panel = active("ctlIVA");
  std::vector<std::string> names;
  const char* name = nullptr;
  for (std::int32_t i = 0; qvn_widget_at(panel.get(), i, &name) == QVN_OK; ++i) names.emplace_back(name);
  EXPECT_THAT(names, testing::ElementsAre("Frame1", "lblCodice", "TxtCodice", "lblDescrizione", "txtDescrizione",
                                          "lblIVA", "TxtIVA", "lblDeb_Dec", "txtDeb_Dec"));
  EXPECT_EQ(nullptr, name);
  EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "-1", qvn_widget_at(panel.get(), -1, &name)));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_widget_at(on().get(), 0, &name));
}

TEST_F(Looking, readsWhatAWidgetShows) {
  const Handle& panel = active("ctlIVA");
  const auto read = [&](const char* widget, const char* property) {
    Value value;
    EXPECT_EQ(QVN_OK, qvn_widget_get(panel.get(), widget, property, value.place())) << qvn_last_message();
    return value;
  };
  EXPECT_EQ("Codice:", read("lblCodice", "caption").text());
  EXPECT_EQ("label", read("lblCodice", "Kind").text());
  EXPECT_EQ("", read("lblCodice", "ToolTip").text());
  EXPECT_EQ(1, read("Frame1", "Enabled")->as.boolean);
  EXPECT_EQ(1, read("Frame1", "VISIBLE")->as.boolean);
  EXPECT_EQ(6, read("TxtIVA", "TabIndex")->as.int16);
  EXPECT_EQ(6225, read("TxtIVA", "Left")->as.int32);
  EXPECT_EQ(300, read("TxtIVA", "Top")->as.int32);
  EXPECT_EQ(465, read("TxtIVA", "Width")->as.int32);
  EXPECT_EQ(315, read("TxtIVA", "Height")->as.int32);
  EXPECT_EQ(0xFFFF00, read("TxtCodice", "BackColor")->as.int32) << "cyan under the focus, red being the low byte";
  EXPECT_EQ(0, read("TxtCodice", "ForeColor")->as.int32);
  Value value;
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "panel.lblIVA", qvn_widget_get(panel.get(), "lblIVA", "Text", value.place())));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "gone", qvn_widget_get(panel.get(), "gone", "Text", value.place())));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_widget_get(panel.get(), nullptr, "Text", value.place()));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_widget_get(panel.get(), "TxtIVA", nullptr, value.place()));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_widget_get(panel.get(), "TxtIVA", "Text", nullptr));
}

TEST_F(Looking, readsWhatKindsOfWidgetsHaveOfTheirOwn) {
  const Handle& panel = active("ctlQ_POLIZZE");
  EXPECT_EQ("##/##/####", show(panel, "TxtD_RIMESSA", "Text"));
  Value value;
  EXPECT_EQ(QVN_OK, qvn_widget_get(panel.get(), "TxtD_RIMESSA", "Value", value.place()));
  EXPECT_EQ(QVN_NULL, value->kind);
  EXPECT_EQ("Delegataria", show(panel, "ChkDELEGATARIA", "Caption"));
  EXPECT_EQ(QVN_OK, qvn_widget_get(panel.get(), "ChkDELEGATARIA", "Value", value.place()));
  EXPECT_EQ(0, value->as.int16);
}

/// What a property of a widget is to be.
struct Shown {
  const char* widget;
  const char* property;
  std::int32_t kind;
  const char* text;
};

void expectShown(const Handle& panel, const std::vector<Shown>& all) {
  for (const Shown& shown : all) {
    Value value;
    EXPECT_EQ(QVN_OK, qvn_widget_get(panel.get(), shown.widget, shown.property, value.place())) << qvn_last_message();
    EXPECT_EQ(shown.kind, value->kind) << shown.widget << "." << shown.property;
    Value converted;
    EXPECT_EQ(QVN_OK, qvn_value_convert(&*value, QVN_TEXT, converted.place())) << qvn_last_message();
    EXPECT_EQ(shown.text, converted.text()) << shown.widget << "." << shown.property;
  }
}

TEST_F(Looking, readsTextBoxesListsFramesAndLabels) {
  const Handle& panel = active("ctlPROV_POLIZZE");
  type(on(), "12,5");
  ASSERT_EQ(QVN_OK, qvn_operator_select(on().get(), 1, 2));
  let(panel, "CALC_PROD", number(2));
  expectShown(panel, {{"TxtP_PN_UFF", "Kind", QVN_TEXT, "text box"},
                      {"TxtP_PN_UFF", "Text", QVN_TEXT, "12,5"},
                      {"TxtP_PN_UFF", "SelStart", QVN_INT32, "1"},
                      {"TxtP_PN_UFF", "SelLength", QVN_INT32, "2"},
                      {"CmbCALCOLO_PROD", "Kind", QVN_TEXT, "combo box"},
                      {"CmbCALCOLO_PROD", "Text", QVN_TEXT, "2 - Provv. Ufficio"},
                      {"CmbCALCOLO_PROD", "ListIndex", QVN_INT32, "1"},
                      {"CmbCALCOLO_PROD", "ListCount", QVN_INT32, "2"},
                      {"FrmUFF", "Kind", QVN_TEXT, "frame"},
                      {"FrmUFF", "Caption", QVN_TEXT, "Provvigioni di Ufficio:"},
                      {"lblTitPROVV_ATTIVE", "Kind", QVN_TEXT, "label"},
                      {"lblTitPROVV_ATTIVE", "Caption", QVN_TEXT, "Provv. Attive:"}});
}

TEST_F(Looking, readsDatesAndCheckBoxes) {
  const Handle& panel = active("ctlQ_POLIZZE");
  ASSERT_EQ(QVN_OK, qvn_operator_click(panel.get(), "ChkDELEGATARIA"));
  let(panel, "D_RIMESSA", text("21/11/2026"));
  ASSERT_EQ(QVN_OK, qvn_operator_focus(panel.get(), "TxtD_RIMESSA"));
  ASSERT_EQ(QVN_OK, qvn_operator_select(on().get(), 3, 2));
  expectShown(panel, {{"TxtD_RIMESSA", "Kind", QVN_TEXT, "date"},
                      {"TxtD_RIMESSA", "Text", QVN_TEXT, "21/11/2026"},
                      {"TxtD_RIMESSA", "Value", QVN_TEXT, "21/11/2026"},
                      {"TxtD_RIMESSA", "SelStart", QVN_INT32, "3"},
                      {"TxtD_RIMESSA", "SelLength", QVN_INT32, "2"},
                      {"ChkDELEGATARIA", "Kind", QVN_TEXT, "check box"},
                      {"ChkDELEGATARIA", "Caption", QVN_TEXT, "Delegataria"},
                      {"ChkDELEGATARIA", "Value", QVN_INT16, "1"}});
}

TEST_F(Looking, readsButtons) {
  const Handle panel = create(on(), "ctlSOSPESI", "title");
  expectShown(panel, {{"CmdPRODUTTORI_ALT", "Kind", QVN_TEXT, "button"},
                      {"CmdPRODUTTORI_ALT", "Caption", QVN_TEXT, "Vis. Prod. Alt."},
                      {"CmbTIPO_CONT", "ListCount", QVN_INT32, "0"},
                      {"CmbTIPO_CONT", "ListIndex", QVN_INT32, "-1"}});
}

TEST_F(Looking, seesNoFormWhereNoneIsLoaded) {
  Value name;
  std::int32_t rows = -1;
  std::int32_t columns = -1;
  EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "0", qvn_form_at(on().get(), 0, name.place())));
  EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "-1", qvn_form_at(on().get(), -1, name.place())));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "Lista", qvn_form_size(on().get(), "Lista", &rows, &columns)));
  EXPECT_EQ(0, rows);
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "Lista", qvn_form_text(on().get(), "Lista", 0, 0, name.place())));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_form_size(on().get(), "Lista", nullptr, &columns));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_form_size(on().get(), "Lista", &rows, nullptr));
}

TEST_F(Looking, hidesAndShowsAPanel) {
  const Handle& panel = active("ctlIVA");
  ASSERT_EQ(QVN_OK, qvn_panel_show(panel.get(), 0));
  EXPECT_EQ("", focused(on()));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "TxtIVA", qvn_operator_focus(panel.get(), "TxtIVA")));
  ASSERT_EQ(QVN_OK, qvn_panel_show(panel.get(), 2));
  EXPECT_EQ(QVN_OK, qvn_operator_focus(panel.get(), "TxtIVA"));
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_panel_show(on().get(), 1));
}

TEST_F(Looking, tellsThePanelThatFailsAsItIsHidden) {
  const Handle& panel = active("ctlPROV_POLIZZE");
  ASSERT_EQ(QVN_OK, qvn_operator_focus(panel.get(), "TxtPN_UFF"));
  type(on(), "1,{Home}{Delete}");
  EXPECT_TRUE(failed(QVN_TYPE_MISMATCH, "panel: PROVV_ATTIVE: TxtPN_UFF", qvn_panel_show(panel.get(), 0)));
  EXPECT_EQ("", focused(on()));
}

}  // namespace

}  // namespace qvn::component_test
