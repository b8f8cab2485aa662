// How panels and forms look: every caption in its place, nothing over anything else, at the scale of the screen.
#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <cmath>

#include "platforms/qt/colours.h"
#include "platforms/qt/twips.h"
#include "qvn/fields/Gest_SCHEDE.h"
#include "tests/qt/agreement.h"
#include "tests/qt/each_surface.h"

namespace qvn::test {
namespace {

using toolkit::Place;
using toolkit::WidgetKind;

bool overlap(const Place& a, const Place& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height && b.top < a.top + a.height;
}

QSize sizeOf(const QString& caption, const QWidget& on) {
  return on.fontMetrics().size(Qt::TextSingleLine | Qt::TextShowMnemonic, caption);
}

/// Where a label's caption stands in its widget.
QRect captionRect(const QLabel& label) {
  return QStyle::alignedRect(Qt::LeftToRight, label.alignment(), sizeOf(label.text(), label), label.contentsRect());
}

QSize roomOf(const QAbstractButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  const bool check = button.isCheckable();
  QRect room = button.style()->subElementRect(check ? QStyle::SE_CheckBoxContents : QStyle::SE_PushButtonBevel, &option,
                                              &button);
  if (!check) room.adjust(2, 1, -2, -1);  // the line around it
  return room.size();
}

class Sight : public EachSurface {
 public:
  template <class Shown>
  Shown& as(const toolkit::Widget& widget) {
    return dynamic_cast<Shown&>(shown(widget));
  }

  /// Whether the widget lies wholly within what surrounds it, as it is laid out.
  static bool laidOutWithin(const toolkit::Widget& widget) {
    const toolkit::Place own = widget.place();
    const toolkit::PanelLayout& panel = widget.owner().layout();
    const std::int32_t width = widget.frame() != nullptr ? widget.frame()->place().width : panel.width;
    const std::int32_t height = widget.frame() != nullptr ? widget.frame()->place().height : panel.height;
    return own.left >= 0 && own.top >= 0 && own.left + own.width <= width && own.top + own.height <= height;
  }
};
QVN_ON_EACH_SURFACE(Sight);

TEST_P(Sight, EveryCaptionOfALabelFits) {
  for (toolkit::Widget* widget : visible()) {
    if (widget->Kind() != WidgetKind::Label || widget->layout().caption.empty()) continue;
    const auto& label = as<QLabel>(*widget);
    const QSize needed =
        label.wordWrap() ? label.fontMetrics().boundingRect(label.contentsRect(), Qt::TextWordWrap, label.text()).size()
                         : sizeOf(label.text(), label);
    EXPECT_LE(needed.width(), label.contentsRect().width()) << widget->Name();
    EXPECT_LE(needed.height(), label.height()) << widget->Name();
  }
}

TEST_P(Sight, EveryTitleOfAFrameFits) {
  for (toolkit::Widget* widget : visible()) {
    if (widget->Kind() != WidgetKind::Frame) continue;
    const auto& frame = as<QGroupBox>(*widget);
    EXPECT_LE(sizeOf(frame.title(), frame).width(), frame.width() - 16) << widget->Name();
  }
}

TEST_P(Sight, EveryCaptionOfAButtonAndOfACheckBoxFits) {
  for (toolkit::Widget* widget : visible()) {
    if (widget->Kind() != WidgetKind::CommandButton && widget->Kind() != WidgetKind::CheckBox) continue;
    const auto& button = as<QAbstractButton>(*widget);
    const QSize needed = sizeOf(button.text(), button);
    EXPECT_LE(needed.width(), roomOf(button).width()) << widget->Name();
    EXPECT_LE(needed.height(), roomOf(button).height()) << widget->Name();
  }
}

TEST_P(Sight, EveryCheckBoxStandsOnItsSideOfTheCaption) {
  for (toolkit::Widget* widget : visible()) {
    if (widget->Kind() != WidgetKind::CheckBox) continue;
    const auto& button = as<QAbstractButton>(*widget);
    QStyleOptionButton option;
    option.initFrom(&button);
    const QRect box = button.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &button);
    const QRect caption = button.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &button);
    const bool behind = widget->layout().align == toolkit::Align::Right;
    EXPECT_TRUE(behind ? caption.right() < box.left() : box.right() < caption.left()) << widget->Name();
  }
}

TEST_P(Sight, EveryLineOfAFieldFits) {
  for (toolkit::Widget* widget : visible()) {
    QWidget& field = shown(*widget);
    if (auto* line = dynamic_cast<QLineEdit*>(&field)) {
      EXPECT_LE(line->fontMetrics().height(), line->contentsRect().height() - 4) << widget->Name();
      EXPECT_LE(sizeOf(line->text(), *line).width(), line->contentsRect().width() - 6) << widget->Name();
    }
    if (auto* list = dynamic_cast<QComboBox*>(&field)) {
      QStyleOptionComboBox option;
      option.initFrom(list);
      option.editable = false;
      const QSize room =
          list->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list).size();
      EXPECT_LE(list->fontMetrics().height(), room.height()) << widget->Name();
      for (int i = 0; i < list->count(); ++i) {
        EXPECT_LE(sizeOf(list->itemText(i), *list).width(), room.width()) << widget->Name() << ' ' << i;
      }
    }
  }
}

TEST_P(Sight, NoCaptionStandsUnderAField) {
  for (toolkit::Widget* widget : visible()) {
    if (widget->Kind() != WidgetKind::Label || widget->layout().bordered) continue;
    const auto& label = as<QLabel>(*widget);
    if (label.text().isEmpty()) continue;
    const QRect caption = captionRect(label).translated(label.pos());
    for (toolkit::Widget* other : visible()) {
      const bool solid = other->Kind() != WidgetKind::Label || other->layout().bordered;
      if (!solid || other->frame() != widget->frame() || other == widget->frame()) continue;
      EXPECT_FALSE(caption.intersects(shown(*other).geometry())) << widget->Name() << " and " << other->Name();
    }
  }
}

TEST_P(Sight, NoCaptionStandsOutsideOfWhatSurroundsIt) {
  for (toolkit::Widget* widget : visible()) {
    if (widget->Kind() != WidgetKind::Label || widget->layout().caption.empty()) continue;
    const auto& label = as<QLabel>(*widget);
    const QRect inside = label.parentWidget()->rect().adjusted(2, 0, -2, 0);
    EXPECT_TRUE(inside.contains(captionRect(label).translated(label.pos()))) << widget->Name();
  }
}

TEST_P(Sight, NothingLiesOverAnythingThatTheLayoutKeepsApart) {
  const auto widgets = visible();
  for (std::size_t i = 0; i < widgets.size(); ++i) {
    const QRect one = shown(*widgets[i]).geometry();
    if (laidOutWithin(*widgets[i])) {
      EXPECT_TRUE(shown(*widgets[i]).parentWidget()->rect().contains(one)) << widgets[i]->Name();
    }
    for (std::size_t j = i + 1; j < widgets.size(); ++j) {
      if (widgets[i]->frame() != widgets[j]->frame() || overlap(widgets[i]->place(), widgets[j]->place())) continue;
      EXPECT_FALSE(one.intersects(shown(*widgets[j]).geometry()))
          << widgets[i]->Name() << " and " << widgets[j]->Name();
    }
  }
}

TEST_P(Sight, TheMouseReachesEveryFieldInItsMiddle) {
  for (toolkit::Widget* widget : visible()) {
    QWidget& field = shown(*widget);
    if (field.focusPolicy() == Qt::NoFocus) continue;
    QWidget* reached = whole().childAt(field.mapTo(&whole(), field.rect().center()));
    EXPECT_TRUE(reached == &field || field.isAncestorOf(reached)) << widget->Name();
  }
}

TEST_P(Sight, PlacesAndLettersGrowWithTheResolution) {
  for (toolkit::Widget* widget : visible()) {
    const QWidget& field = shown(*widget);
    const double dots = field.logicalDpiX() / qt::kTwipsPerInch;
    EXPECT_NEAR(field.width(), widget->place().width * dots, 1) << widget->Name();
    EXPECT_NEAR(field.font().pixelSize(), 165 * dots, 1) << widget->Name();
  }
}

TEST_P(Sight, LinesRunAlongWholeDots) {
  const QImage picture = whole().grab().toImage();
  const double scale = picture.devicePixelRatio();
  for (toolkit::Widget* widget : visible()) {
    const bool lined = widget->Kind() == WidgetKind::Frame || widget->layout().bordered;
    if (!lined || !laidOutWithin(*widget)) continue;
    const QWidget& box = shown(*widget);
    const QPoint corner = box.mapTo(&whole(), QPoint(0, 0));
    const int left = static_cast<int>(std::lround(corner.x() * scale));
    const int bottom = static_cast<int>(std::lround((corner.y() + box.height()) * scale)) - 1;
    const int middle = static_cast<int>(std::lround((corner.y() + 0.6 * box.height()) * scale));
    const QRgb line = qt::lineColour(QApplication::palette()).rgb();
    EXPECT_EQ(picture.pixel(left, middle), line) << widget->Name();
    EXPECT_EQ(picture.pixel(left + static_cast<int>(5 * scale), bottom), line) << widget->Name();
  }
}

class SightInAnotherFont : public Sight {
 public:
  SightInAnotherFont() {
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans Mono")));
    QApplication::processEvents();
    platform.settle();
  }
  ~SightInAnotherFont() override { QApplication::setFont(before_); }

 private:
  QFont before_ = QApplication::font();
};
INSTANTIATE_TEST_SUITE_P(Some, SightInAnotherFont, testing::Values("ctlIVA", "ctlPROV_POLIZZE"));

TEST_P(SightInAnotherFont, CaptionsAreFittedAnew) {
  int captions = 0;
  for (toolkit::Widget* widget : visible()) {
    if (widget->Kind() != WidgetKind::Label || widget->layout().caption.empty()) continue;
    const auto& label = as<QLabel>(*widget);
    EXPECT_EQ(label.font().family(), QStringLiteral("DejaVu Sans Mono")) << widget->Name();
    EXPECT_LE(sizeOf(label.text(), label).width(), label.contentsRect().width()) << widget->Name();
    ++captions;
  }
  EXPECT_GT(captions, 0);
}

TEST(SightScale, IsThatOfTheScreen) {
  const qt::OffscreenPlatform platform;
  const QWidget widget;
  EXPECT_EQ(widget.devicePixelRatioF(), qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble());
  EXPECT_EQ(widget.logicalDpiX(), qEnvironmentVariable("QT_FONT_DPI", "96").toInt());
}

/// The texts of a widget's kind, each with what it stands on.
std::vector<std::pair<QPalette::ColorRole, QPalette::ColorRole>> textsOf(WidgetKind kind) {
  switch (kind) {
    case WidgetKind::TextBox:
    case WidgetKind::DateControl:
    case WidgetKind::ListView:
    case WidgetKind::DataGrid:
      return {{QPalette::Text, QPalette::Base}};
    case WidgetKind::ComboBox:
      return {{QPalette::Text, QPalette::Base}, {QPalette::ButtonText, QPalette::Button}};
    case WidgetKind::CommandButton:
      return {{QPalette::ButtonText, QPalette::Button}};
    default:
      return {{QPalette::WindowText, QPalette::Window}};
  }
}

TEST_P(Sight, EveryTextCanBeReadInEveryStateOnALightAndOnADarkDesktop) {
  const QPalette light = QApplication::palette();
  for (const QPalette& desktop : {light, darkDesktop()}) {
    QApplication::setPalette(desktop);
    QApplication::processEvents();
    platform.settle();
    EXPECT_THAT(disagreements(platform, surface()), testing::IsEmpty());
    for (const std::uint32_t back : {toolkit::kWhite, std::uint32_t{0xFFFF00}, std::uint32_t{0x00FFFF}}) {
      for (toolkit::Widget* widget : surface().widgets()) {
        const bool coloured = textsOf(widget->Kind()).front().first == QPalette::Text;
        if (coloured) widget->BackColor(back);
        platform.settle();
        for (const auto& [text, base] : textsOf(widget->Kind())) {
          for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const QPalette& palette = shown(*widget).palette();
            EXPECT_GE(qt::contrast(palette.color(group, text), palette.color(group, base)), qt::kReadable)
                << widget->Name() << ' ' << back << ' ' << group;
          }
        }
      }
    }
  }
  QApplication::setPalette(light);
}

}  // namespace
}  // namespace qvn::test
