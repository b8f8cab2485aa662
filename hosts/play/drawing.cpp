#include "hosts/play/drawing.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "hosts/play/canvas.h"
#include "hosts/play/rows.h"

namespace qvn::play {

namespace {

using toolkit::Align;
using toolkit::Widget;
using toolkit::WidgetKind;
using Characters = std::vector<std::string>;

constexpr std::int32_t kTwipsAColumn = 75;  // the grid that panels are laid out on, and about a letter of their font
constexpr int kBoxCells = 3;                // a check box without its caption
constexpr std::int32_t kFrameLine = 97;     // a frame's top line runs through the middle of its caption

/// A widget that is to be drawn: its columns, and its line, a frame's top and bottom one.
struct Drawn {
  const Widget* widget = nullptr;
  Columns columns = {};
  int row = 0;
  int bottomRow = 0;
};

bool isFrame(const Drawn& one) { return one.widget->Kind() == WidgetKind::Frame; }

/// Whether the flag holds for the widget, all frames around it and the panel.
template <class Flag>
bool throughout(const Widget& widget, Flag&& flag) {
  for (const toolkit::Frame* frame = widget.frame(); frame != nullptr; frame = frame->frame()) {
    if (!flag(*frame)) return false;
  }
  return flag(widget) && flag(widget.owner());
}

bool isSeen(const Widget& widget) {
  return throughout(widget, [](const auto& one) { return one.Visible(); });
}

bool isUsable(const Widget& widget) {
  return throughout(widget, [](const auto& one) { return one.Enabled(); });
}

int columnOf(std::int32_t twips) {
  const std::int32_t shifted = twips + kTwipsAColumn / 2;
  return shifted / kTwipsAColumn - (shifted % kTwipsAColumn < 0 ? 1 : 0);
}

std::vector<Drawn> layOut(const toolkit::Surface& panel) {
  std::vector<Drawn> drawn;
  std::vector<std::int32_t> tops;
  for (const Widget* widget : panel.widgets()) {
    if (!isSeen(*widget)) continue;
    toolkit::Place place = widget->place();
    for (const toolkit::Frame* frame = widget->frame(); frame != nullptr; frame = frame->frame()) {
      place.left += frame->place().left;
      place.top += frame->place().top;
    }
    const int left = columnOf(place.left);
    drawn.push_back({.widget = widget, .columns = {left, std::max(columnOf(place.left + place.width), left + 3)}});
    tops.push_back(place.top);
  }

  std::vector<Mark> marks;
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    const std::int32_t height = drawn[i].widget->place().height;
    if (isFrame(drawn[i])) {
      marks.push_back({.twips = tops[i] + kFrameLine, .columns = drawn[i].columns, .row = &drawn[i].row});
      marks.push_back({.twips = tops[i] + height, .columns = drawn[i].columns, .row = &drawn[i].bottomRow});
    } else {
      marks.push_back({.twips = tops[i] + height / 2, .columns = drawn[i].columns, .row = &drawn[i].row});
    }
  }
  giveRows(marks);
  return drawn;
}

/// The characters in so many cells: at their side where they fit, cut at the other where they do not.
Characters fitted(Characters characters, int cells, Align align) {
  const auto room = static_cast<std::size_t>(std::max(cells, 1));
  if (characters.size() > room) {
    if (align == Align::Right) {
      characters.erase(characters.begin(), characters.end() - static_cast<std::ptrdiff_t>(room));
      characters.front() = "…";
    } else {
      characters.resize(room);
      characters.back() = "…";
    }
    return characters;
  }
  const std::size_t blanks = room - characters.size();
  const std::size_t before = align == Align::Right ? blanks : align == Align::Center ? blanks / 2 : 0;
  characters.insert(characters.begin(), before, " ");
  characters.resize(room, " ");
  return characters;
}

using Sides = std::pair<std::string_view, std::string_view>;
constexpr Sides kBordered{"[", "]"};
constexpr Sides kDisabled{"(", ")"};

/// What surrounds a widget that the operator can use.
Sides sidesOf(const Widget& widget) {
  if (widget.hasFocus()) return {"║", "║"};
  if (isUsable(widget)) return {"│", "│"};
  return {"┆", "┆"};
}

void writeBetween(Canvas& canvas, int row, int column, const Sides& sides, const Characters& inside) {
  canvas.put(row, column, sides.first);
  canvas.write(row, column + 1, inside);
  canvas.put(row, column + 1 + static_cast<int>(inside.size()), sides.second);
}

void drawFrame(Canvas& canvas, const Drawn& frame) {
  const bool usable = isUsable(*frame.widget);
  const std::string_view across = usable ? "─" : "┄";
  const std::string_view down = usable ? "│" : "┆";
  const int first = frame.columns.from;
  const int last = frame.columns.to - 1;
  for (const int row : {frame.row, frame.bottomRow}) {
    for (int column = first; column <= last; ++column) canvas.put(row, column, across);
  }
  for (int row = frame.row; row <= frame.bottomRow; ++row) {
    for (const int column : {first, last}) canvas.put(row, column, down);
  }
  canvas.put(frame.row, first, "┌");
  canvas.put(frame.row, last, "┐");
  canvas.put(frame.bottomRow, first, "└");
  canvas.put(frame.bottomRow, last, "┘");
  Characters caption = charactersOf(static_cast<const toolkit::Frame&>(*frame.widget).Caption());
  const int from = std::min(first + 2, last - 1);
  if (static_cast<int>(caption.size()) > last - from) caption = fitted(std::move(caption), last - from, Align::Left);
  canvas.write(frame.row, from, caption);
}

/// Where the box of a check box begins, which may stand behind its caption.
int columnOfBox(const Drawn& drawn) {
  return drawn.widget->layout().align == Align::Right ? drawn.columns.to - kBoxCells : drawn.columns.from;
}

/// What hides whatever lies under it.
void drawSolid(Canvas& canvas, const Drawn& drawn) {
  const Widget& widget = *drawn.widget;
  const int room = drawn.columns.to - drawn.columns.from - 2;
  const Sides sides = sidesOf(widget);
  const auto between = [&](const Sides& around, const Characters& inside) {
    writeBetween(canvas, drawn.row, drawn.columns.from, around, inside);
  };
  switch (widget.Kind()) {
    case WidgetKind::TextBox:
    case WidgetKind::DateControl: {
      const auto& field = static_cast<const toolkit::EditableText&>(widget);
      return between(sides, fitted(charactersOf(field.Text()), room, field.layout().align));
    }
    case WidgetKind::ComboBox: {
      const auto& list = static_cast<const toolkit::ComboBox&>(widget);
      Characters inside = fitted(charactersOf(list.Text()), room - 2, Align::Left);
      inside.insert(inside.end(), {" ", "▾"});
      return between(sides, inside);
    }
    case WidgetKind::CheckBox: {
      const auto& box = static_cast<const toolkit::CheckBox&>(widget);
      return writeBetween(canvas, drawn.row, columnOfBox(drawn), sides, {box.Value() != 0 ? "x" : " "});
    }
    case WidgetKind::CommandButton: {
      const auto& button = static_cast<const toolkit::CommandButton&>(widget);
      return between(sides, fitted(charactersOf(button.Caption()), room, Align::Center));
    }
    case WidgetKind::Label: {
      const auto& label = static_cast<const toolkit::Label&>(widget);
      if (!label.layout().bordered) return;
      return between(label.Enabled() ? kBordered : kDisabled,
                     fitted(charactersOf(label.Caption()), room, label.layout().align));
    }
    default:
      return;
  }
}

/// Captions, which leave what lies under them to be seen; one that is too long runs on over free cells.
void drawCaption(Canvas& canvas, const Drawn& drawn) {
  const Widget& widget = *drawn.widget;
  if (widget.Kind() == WidgetKind::CheckBox) {
    const Characters caption = charactersOf(static_cast<const toolkit::CheckBox&>(widget).Caption());
    const int box = columnOfBox(drawn);
    const bool behind = widget.layout().align == Align::Right;
    canvas.writeBehind(drawn.row, behind ? box - 1 - static_cast<int>(caption.size()) : box + kBoxCells + 1, caption);
  }
  if (widget.Kind() != WidgetKind::Label || widget.layout().bordered) return;
  Characters caption = charactersOf(static_cast<const toolkit::Label&>(widget).Caption());
  if (!widget.Enabled() && !caption.empty()) {
    caption.insert(caption.begin(), std::string(kDisabled.first));
    caption.emplace_back(kDisabled.second);
  }
  const int blanks = drawn.columns.to - drawn.columns.from - static_cast<int>(caption.size());
  const Align align = widget.layout().align;
  const int before = align == Align::Right ? blanks : align == Align::Center ? blanks / 2 : 0;
  canvas.writeBehind(drawn.row, drawn.columns.from + before, caption);
}

}  // namespace

std::vector<std::string> drawn(const toolkit::Surface& panel) {
  const std::vector<Drawn> all = layOut(panel);
  Canvas canvas;
  for (const Drawn& one : all) {
    if (isFrame(one)) drawFrame(canvas, one);
  }
  for (const Drawn& one : all) drawSolid(canvas, one);
  for (const Drawn& one : all) drawCaption(canvas, one);
  return canvas.lines();
}

}  // namespace qvn::play
