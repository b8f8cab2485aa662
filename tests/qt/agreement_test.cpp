// The comparison of the screen with the widgets sees whatever is shown wrong.
#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <array>

#include "tests/qt/on_screen.h"

namespace qvn::test {
namespace {

struct Wrong {
  const char* widget;
  const char* told;
  void (*make)(QWidget&);
};

void colour(QWidget& widget, QPalette::ColorRole role, const QColor& with) {
  QPalette palette = widget.palette();
  palette.setColor(role, with);
  widget.setPalette(palette);
}

constexpr std::array kWrong{
    Wrong{"A", "A: text",
          [](QWidget& w) {
            const QSignalBlocker unheard(w);  // or else it is put back at once
            dynamic_cast<QLineEdit&>(w).setText(QStringLiteral("x"));
          }},
    Wrong{"A", "A: alignment", [](QWidget& w) { dynamic_cast<QLineEdit&>(w).setAlignment(Qt::AlignRight); }},
    Wrong{"A", "A: back", [](QWidget& w) { colour(w, QPalette::Base, Qt::cyan); }},
    Wrong{"A", "A: colour", [](QWidget& w) { colour(w, QPalette::Text, Qt::red); }},
    Wrong{"A", "A: place", [](QWidget& w) { w.move(w.x() + 1, w.y()); }},
    Wrong{"A", "A: visible", [](QWidget& w) { w.hide(); }},
    Wrong{"A", "A: enabled", [](QWidget& w) { w.setEnabled(false); }},
    Wrong{"A", "A: bold",
          [](QWidget& w) {
            QFont font = w.font();
            font.setBold(true);
            w.setFont(font);
          }},
    Wrong{"B", "B: usable", [](QWidget& w) { w.parentWidget()->setEnabled(false); }},
    Wrong{"Label", "Label: caption", [](QWidget& w) { dynamic_cast<QLabel&>(w).setText(QStringLiteral("x")); }},
    Wrong{"Label", "Label: tooltip", [](QWidget& w) { w.setToolTip(QStringLiteral("x")); }},
    Wrong{"Outer", "Outer: caption", [](QWidget& w) { dynamic_cast<QGroupBox&>(w).setTitle(QStringLiteral("x")); }},
    Wrong{"List", "List: current item", [](QWidget& w) { dynamic_cast<QComboBox&>(w).setCurrentIndex(2); }},
    Wrong{"List", "List: items", [](QWidget& w) { dynamic_cast<QComboBox&>(w).addItem(QStringLiteral("x")); }},
    Wrong{"Check", "Check: value", [](QWidget& w) { dynamic_cast<QAbstractButton&>(w).setChecked(true); }},
    Wrong{"Button", "Button: caption",
          [](QWidget& w) { dynamic_cast<QAbstractButton&>(w).setText(QStringLiteral("x")); }},
};

class QtAgreement : public OnScreen {};

TEST_F(QtAgreement, SeesWhateverIsShownWrong) {
  for (const Wrong& wrong : kWrong) {
    const auto fresh = another("other");
    QWidget& widget = *platform.widgetOf(static_cast<const toolkit::Widget&>(fresh->widget(wrong.widget)));
    ASSERT_THAT(disagreements(platform, *fresh), IsEmpty());
    wrong.make(widget);
    EXPECT_THAT(disagreements(platform, *fresh), testing::Contains(testing::HasSubstr(wrong.told))) << wrong.told;
  }
}

}  // namespace
}  // namespace qvn::test
