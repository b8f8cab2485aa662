#include "platforms/designer/panel_icon.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <algorithm>
#include <array>
#include <vector>

namespace qvn::designer {

namespace {

constexpr std::array kSizes{16, 22, 24, 32, 44, 48, 64};

struct RoomColour {
  std::string_view room;
  QRgb colour;
};
constexpr std::array kRoomColours{RoomColour{"master", 0xFF2E6DA4}, RoomColour{"commissions", 0xFF8A4FA3},
                                  RoomColour{"quotas", 0xFF2F7D4F}, RoomColour{"documents", 0xFFA3541F},
                                  RoomColour{"accounting", 0xFF7A1F3D}};

QColor colourOf(std::string_view room) {
  const auto* const found = std::ranges::find(kRoomColours, room, &RoomColour::room);
  return QColor(found == kRoomColours.end() ? 0xFF505050 : found->colour);
}

struct Span {
  double from = 0;
  double to = 0;
};

bool isField(const toolkit::WidgetLayout& widget) {
  using toolkit::WidgetKind;
  return widget.kind == WidgetKind::TextBox || widget.kind == WidgetKind::ComboBox ||
         widget.kind == WidgetKind::DateControl || widget.bordered;
}

/// Where the fields of the topmost row begin and end, in parts of what the row takes.
std::vector<Span> firstRow(const toolkit::PanelLayout& layout) {
  std::vector<toolkit::Place> fields;
  for (const toolkit::WidgetLayout& widget : layout.widgets) {
    if (isField(widget) && widget.visible) fields.push_back(widget.place);
  }
  if (fields.empty()) return {};
  const auto top = std::ranges::min_element(fields, {}, &toolkit::Place::top);
  const std::int32_t middle = top->top + top->height / 2;
  std::erase_if(fields, [&](const toolkit::Place& place) { return place.top > middle; });
  std::ranges::sort(fields, {}, &toolkit::Place::left);
  const std::int32_t left = fields.front().left;
  std::int32_t right = left;
  for (const toolkit::Place& place : fields) right = std::max(right, place.left + place.width);
  std::vector<Span> row;
  row.reserve(fields.size());
  const double width = std::max(right - left, 1);
  for (const toolkit::Place& place : fields) {
    row.push_back({.from = (place.left - left) / width, .to = (place.left + place.width - left) / width});
  }
  return row;
}

void drawMark(QPainter& painter, const QRectF& place, const QString& mark) {
  QFont font(QStringLiteral("sans-serif"));
  font.setBold(true);
  font.setPixelSize(std::max(static_cast<int>(place.height()), 1));
  while (font.pixelSize() > 5 && QFontMetricsF(font).horizontalAdvance(mark) > place.width()) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, mark);
}

QPixmap drawn(int size, const QColor& colour, const QString& mark, const std::vector<Span>& row) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const double unit = size / 16.0;
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(QRectF(0, unit, size, size - 2 * unit), 2 * unit, 2 * unit);
  drawMark(painter, QRectF(unit, 2 * unit, size - 2 * unit, 7 * unit), mark);

  const QRectF strip(2 * unit, 10 * unit, size - 4 * unit, 3 * unit);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(Qt::NoPen);
  for (const Span& field : row) {
    const int from = qRound(strip.left() + field.from * strip.width());
    const int to = qRound(strip.left() + field.to * strip.width());
    painter.fillRect(QRect(from, qRound(strip.top()), std::max(to - from - 1, 1), qRound(strip.height())), Qt::white);
  }
  return pixmap;
}

}  // namespace

QIcon panelIcon(const toolkit::PanelLayout& layout, std::string_view room, const QString& mark) {
  const std::vector<Span> row = firstRow(layout);
  const QColor colour = colourOf(room);
  QIcon icon;
  for (const int size : kSizes) icon.addPixmap(drawn(size, colour, mark, row));
  return icon;
}

}  // namespace qvn::designer
