// What is to be seen on a screen, for C.
#include <string>

#include "component/boundary.h"
#include "component/form_table.h"
#include "component/object.h"
#include "component/panel_object.h"
#include "component/qvn.h"
#include "component/screen_object.h"
#include "component/values.h"
#include "component/widget_properties.h"
#include "qvn/shared/failure.h"

using namespace qvn::component;

int32_t qvn_screen_beeps(qvn_object* screen, int32_t* beeps) {
  return guarded([&] {
    given(beeps, "the place for the number") = 0;
    *beeps = static_cast<int32_t>(ofKind<ScreenObject>(screen).platform().beeps());
  });
}

int32_t qvn_screen_focused(qvn_object* screen, qvn_value* place) {
  return guarded([&] {
    given(place, "the place for the text") = {};
    const qvn::toolkit::Widget* widget = ofKind<ScreenObject>(screen).platform().focused();
    std::string text;
    if (widget != nullptr) text.append(widget->owner().name()).append(".").append(widget->Name());
    give(text, *place);
  });
}

int32_t qvn_form_at(qvn_object* screen, int32_t index, qvn_value* name) {
  return guarded([&] {
    given(name, "the place for the name") = {};
    give(std::string(ofKind<ScreenObject>(screen).platform().forms().at(index).Name()), *name);
  });
}

int32_t qvn_form_size(qvn_object* screen, const char* form, int32_t* rows, int32_t* columns) {
  return guarded([&] {
    given(rows, "the place for the rows") = 0;
    given(columns, "the place for the columns") = 0;
    const FormTable table(ofKind<ScreenObject>(screen).form(givenText(form, "the form's name")));
    *rows = table.rowCount();
    *columns = table.columnCount();
  });
}

int32_t qvn_form_text(qvn_object* screen, const char* form, int32_t row, int32_t column, qvn_value* text) {
  return guarded([&] {
    given(text, "the place for the text") = {};
    const FormTable table(ofKind<ScreenObject>(screen).form(givenText(form, "the form's name")));
    give(row == -1 ? table.head(column) : table.text(row, column), *text);
  });
}

int32_t qvn_panel_show(qvn_object* panel, int32_t visible) {
  return guarded([&] {
    qvn::toolkit::Surface& surface = ofKind<PanelObject>(panel).surface();
    qvn::placed(std::string(surface.name()), [&] { surface.Visible(visible != 0); });
  });
}

int32_t qvn_widget_at(qvn_object* panel, int32_t index, const char** name) {
  return guarded([&] {
    given(name, "the place for the name") = nullptr;
    *name = at(ofKind<PanelObject>(panel).surface().widgets(), index, "widget")->Name().data();
  });
}

int32_t qvn_widget_get(qvn_object* panel, const char* widget, const char* property, qvn_value* value) {
  return guarded([&] {
    given(value, "the place for the value") = {};
    const qvn::toolkit::Surface& surface = ofKind<PanelObject>(panel).surface();
    give(propertyOf(surface.widget(givenText(widget, "the widget's name")), givenText(property, "the property's name")),
         *value);
  });
}
