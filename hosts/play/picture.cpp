#include "hosts/play/picture.h"

#include <array>
#include <string_view>

namespace qvn::play {

namespace {

using toolkit::Widget;
using toolkit::WidgetKind;

std::string_view alignName(toolkit::Align align) {
  static constexpr std::array<std::string_view, 3> names{"left", "right", "center"};
  return names.at(static_cast<std::size_t>(align));
}

Answer selection(const toolkit::EditableText& field) { return Answer::array({field.SelStart(), field.SelLength()}); }

void add(Answer& picture, const toolkit::TextBox& field) {
  picture["text"] = field.Text();
  picture["sel"] = selection(field);
  picture["align"] = alignName(field.layout().align);
}

void add(Answer& picture, const toolkit::Label& label) {
  picture["caption"] = label.Caption();
  picture["align"] = alignName(label.layout().align);
}

void add(Answer& picture, const toolkit::ComboBox& list) {
  Answer& items = picture["items"] = Answer::array();
  for (std::int32_t i = 0; i < list.ListCount(); ++i) items.push_back(list.List(i));
  picture["index"] = list.ListIndex();
  picture["text"] = list.Text();
}

void add(Answer& picture, const toolkit::CheckBox& box) {
  picture["caption"] = box.Caption();
  picture["value"] = box.Value();
}

void add(Answer& picture, const toolkit::Frame& frame) { picture["caption"] = frame.Caption(); }

void add(Answer& picture, const toolkit::CommandButton& button) { picture["caption"] = button.Caption(); }

void add(Answer& picture, const toolkit::DateControl& field) {
  picture["text"] = field.Text();
  picture["value"] = toJson(field.Value());
  picture["sel"] = selection(field);
}

template <class Kind>
void addAs(Answer& picture, const Widget& widget) {
  add(picture, static_cast<const Kind&>(widget));
}

void addByKind(Answer& picture, const Widget& widget) {
  switch (widget.Kind()) {
    case WidgetKind::TextBox:
      return addAs<toolkit::TextBox>(picture, widget);
    case WidgetKind::Label:
      return addAs<toolkit::Label>(picture, widget);
    case WidgetKind::ComboBox:
      return addAs<toolkit::ComboBox>(picture, widget);
    case WidgetKind::CheckBox:
      return addAs<toolkit::CheckBox>(picture, widget);
    case WidgetKind::Frame:
      return addAs<toolkit::Frame>(picture, widget);
    case WidgetKind::CommandButton:
      return addAs<toolkit::CommandButton>(picture, widget);
    case WidgetKind::DateControl:
      return addAs<toolkit::DateControl>(picture, widget);
    case WidgetKind::ListView:
    case WidgetKind::DataGrid:
    case WidgetKind::DataControl:
      return;  // they stand on forms only
  }
}

}  // namespace

Answer pictureOf(const Widget& widget) {
  const toolkit::Place place = widget.place();
  Answer picture = Answer::object();
  picture["name"] = widget.Name();
  picture["kind"] = nameOf(widget.Kind());
  picture["tab"] = widget.TabIndex();
  picture["frame"] = widget.frame() != nullptr ? Answer(widget.frame()->Name()) : Answer();
  picture["left"] = place.left;
  picture["top"] = place.top;
  picture["width"] = place.width;
  picture["height"] = place.height;
  picture["enabled"] = widget.Enabled();
  picture["visible"] = widget.Visible();
  picture["focus"] = widget.hasFocus();
  picture["back"] = widget.BackColor();
  picture["fore"] = widget.ForeColor();
  picture["tooltip"] = widget.ToolTip();
  addByKind(picture, widget);
  return picture;
}

}  // namespace qvn::play
