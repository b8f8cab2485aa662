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
Kind& ofKind(Widget& widget, WidgetKind kind) {
  if (widget.Kind() != kind) {
    throw Failure(FailureKind::NoSuchMember, std::string(widget.owner().name())
                                                 .append(": the widget ")
                                                 .append(widget.Name())
                                                 .append(" is no ")
                                                 .append(nameOf(kind)));
  }
  return static_cast<Kind&>(widget);
}

}  // namespace

TextBox& Surface::textBox(std::string_view name) const { return ofKind<TextBox>(widget(name), WidgetKind::TextBox); }
Label& Surface::label(std::string_view name) const { return ofKind<Label>(widget(name), WidgetKind::Label); }
Label& Surface::label(std::string_view group, std::int32_t index) const {
  return label(std::string(group).append("(").append(std::to_string(index)).append(")"));
}
ComboBox& Surface::comboBox(std::string_view name) const {
  return ofKind<ComboBox>(widget(name), WidgetKind::ComboBox);
}
CheckBox& Surface::checkBox(std::string_view name) const {
  return ofKind<CheckBox>(widget(name), WidgetKind::CheckBox);
}
Frame& Surface::frame(std::string_view name) const { return ofKind<Frame>(widget(name), WidgetKind::Frame); }
CommandButton& Surface::button(std::string_view name) const {
  return ofKind<CommandButton>(widget(name), WidgetKind::CommandButton);
}
DateControl& Surface::date(std::string_view name) const {
  return ofKind<DateControl>(widget(name), WidgetKind::DateControl);
}

ListView& Surface::listView(std::string_view name) const {
  return ofKind<ListView>(widget(name), WidgetKind::ListView);
}
DataGrid& Surface::grid(std::string_view name) const { return ofKind<DataGrid>(widget(name), WidgetKind::DataGrid); }
DataControl& Surface::dataControl(std::string_view name) const {
  return ofKind<DataControl>(widget(name), WidgetKind::DataControl);
}

}  // namespace qvn::toolkit
