// What a panel looks like, as one row of data a widget. Panels lay their rows down in tab order.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace qvn::toolkit {

/// What a widget is; the class of the same name in widget.h, list_view.h or data_grid.h.
enum class WidgetKind : std::uint8_t {
  TextBox,
  Label,
  ComboBox,
  CheckBox,
  Frame,
  CommandButton,
  DateControl,
  ListView,
  DataGrid,
  DataControl,
};

/// "text box", "label", "combo box", "check box", "frame", "button", "date", "list", "grid" or "data control".
std::string_view nameOf(WidgetKind kind);

/// Position and size in twips, relative to the surrounding frame.
struct Place {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;

  friend bool operator==(const Place&, const Place&) = default;
};

enum class Align : std::uint8_t { Left, Right, Center };

inline constexpr std::uint32_t kBlack = 0x000000;
inline constexpr std::uint32_t kWhite = 0xFFFFFF;
/// The face of frames and buttons; what a label reads back, though it shows no back of its own.
inline constexpr std::uint32_t kFaceGray = 0xC0C0C0;
inline constexpr std::uint32_t kBlue = 0xFF0000;  // red is the low byte
inline constexpr std::uint32_t kRed = 0x0000FF;

/// One column of a grid.
struct GridColumn {
  std::string_view caption;
  std::string_view dataField;
  std::string_view numberFormat = {};  ///< a pattern's name, empty for none
};

/// One widget. The row and what it points to live as long as the surface made from it.
struct WidgetLayout {
  std::string_view name;
  WidgetKind kind = WidgetKind::TextBox;
  std::int16_t tabIndex = 0;
  std::string_view frame = {};  ///< the name of the frame it lies in, a row above this one; empty for none
  Place place = {};
  std::string_view caption = {};  ///< caption, or the text that a field starts with
  Align align = Align::Left;      ///< of the text; Right puts the box of a check box behind its caption
  bool enabled = true;
  bool visible = true;
  bool bordered = false;  ///< a label with a border around it
  bool bold = false;
  std::uint32_t fore = kBlack;
  std::optional<std::uint32_t> back = {};  ///< the colour of a back other than the kind's own
  std::string_view tooltip = {};
  std::span<const std::string_view> items = {};  ///< the items of a closed list
  bool defaultButton = false;                    ///< pressed by Enter anywhere on its form
  bool cancelButton = false;                     ///< pressed by Escape anywhere on its form
  std::span<const GridColumn> columns = {};      ///< the columns of a grid
  std::string_view dataSource = {};              ///< the name of the data control that a grid shows, a row above
};

/// A panel as it is laid out: its size in twips and its widgets.
struct PanelLayout {
  std::string_view name;  ///< the panel's class, or the form's name
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::span<const WidgetLayout> widgets = {};
};

/// A form as it is laid out. Its inside bears the form's name and has the size within the window's frame.
struct FormLayout {
  std::string_view caption;
  PanelLayout inside;
};

}  // namespace qvn::toolkit
