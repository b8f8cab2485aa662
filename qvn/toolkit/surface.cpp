#include "qvn/toolkit/surface.h"

#include <string>

#include "qvn/shared/failure.h"
#include "qvn/toolkit/data_grid.h"
#include "qvn/toolkit/list_view.h"

namespace qvn::toolkit {

Widget& Surface::widget(std::string_view name) const {
  for (Widget* candidate : widgets()) {
    if (candidate->Name() == name) return *candidate;
  }
  throw Failure(FailureKind::NoSuchMember,
                std::string(this->name()).append(": there is no widget \"").append(name).append("\""));
}

namespace {

template <class Kind>
Kind& ofKind(Widget& widget, WidgetKind kind, std::string_view kindText) {
  if (widget.Kind() != kind) {
    throw Failure(FailureKind::NoSuchMember, std::string(widget.owner().name())
                                                 .append(": the widget ")
                                                 .append(widget.Name())
                                                 .append(" is no ")
                                                 .append(kindText));
  }
  return static_cast<Kind&>(widget);
}

}  // namespace

TextBox& Surface::textBox(std::string_view name) const {
  return ofKind<TextBox>(widget(name), WidgetKind::TextBox, "text box");
}
Label& Surface::label(std::string_view name) const { return ofKind<Label>(widget(name), WidgetKind::Label, "label"); }
Label& Surface::label(std::string_view group, std::int32_t index) const {
  return label(std::string(group).append("(").append(std::to_string(index)).append(")"));
}
ComboBox& Surface::comboBox(std::string_view name) const {
  return ofKind<ComboBox>(widget(name), WidgetKind::ComboBox, "combo box");
}
CheckBox& Surface::checkBox(std::string_view name) const {
  return ofKind<CheckBox>(widget(name), WidgetKind::CheckBox, "check box");
}
Frame& Surface::frame(std::string_view name) const { return ofKind<Frame>(widget(name), WidgetKind::Frame, "frame"); }
CommandButton& Surface::button(std::string_view name) const {
  return ofKind<CommandButton>(widget(name), WidgetKind::CommandButton, "button");
}
DateControl& Surface::date(std::string_view name) const {
  return ofKind<DateControl>(widget(name), WidgetKind::DateControl, "date control");
}

ListView& Surface::listView(std::string_view name) const {
  return ofKind<ListView>(widget(name), WidgetKind::ListView, "list view");
}
DataGrid& Surface::grid(std::string_view name) const {
  return ofKind<DataGrid>(widget(name), WidgetKind::DataGrid, "grid");
}
DataControl& Surface::dataControl(std::string_view name) const {
  return ofKind<DataControl>(widget(name), WidgetKind::DataControl, "data control");
}

}  // namespace qvn::toolkit
