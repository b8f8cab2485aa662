// Whether what is told is drawn: the dots of a picture of the window.
#include <QEvent>
#include <QHeaderView>
#include <QImage>
#include <QTableView>
#include <QWidget>
#include <algorithm>
#include <array>
#include <functional>
#include <map>

#include "qvn/toolkit/list_view.h"
#include "tests/qt/on_screen.h"

namespace qvn::test {
namespace {

/// The dots within a box of a picture that are of another colour than most there.
int dotsOf(const QImage& picture, QRect box) {
  std::map<QRgb, int> dots;
  box &= picture.rect();
  for (int y = box.top(); y <= box.bottom(); ++y) {
    for (int x = box.left(); x <= box.right(); ++x) ++dots[picture.pixel(x, y)];
  }
  int most = 0;
  for (const auto& [colour, count] : dots) most = std::max(most, count);
  return box.width() * box.height() - most;
}

class QtPaint : public OnScreen {
 public:
  /// The inside of a widget, without the lines around it, as the window is drawn now.
  int dotsIn(std::string_view name) {
    QApplication::processEvents();
    const QWidget& widget = shown(name);
    const QRect inside = widget.rect().adjusted(4, 4, -4, -4);
    return dotsOf(window->grab().toImage(), inside.translated(widget.mapTo(window.get(), QPoint(0, 0))));
  }
  int redDotsIn(std::string_view name) {
    QApplication::processEvents();
    const QWidget& widget = shown(name);
    const QImage picture = window->grab(QRect(widget.mapTo(window.get(), QPoint(0, 0)), widget.size())).toImage();
    int dots = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QColor dot = picture.pixelColor(x, y);
        if (dot.red() > dot.green() + 60 && dot.red() > dot.blue() + 60) ++dots;
      }
    }
    return dots;
  }
  QColor middleOf(std::string_view name) {
    QApplication::processEvents();
    const QWidget& widget = shown(name);
    return window->grab().toImage().pixelColor(widget.mapTo(window.get(), widget.rect().center()));
  }
  /// Of the upper edge of a frame, where its title stands: the line around it leaves a row of dots and no more.
  int dotsOfTitle(std::string_view frame) {
    QApplication::processEvents();
    const QWidget& widget = shown(frame);
    const QRect edge(4, 0, widget.width() / 2, widget.fontMetrics().height());
    return dotsOf(window->grab().toImage(), edge.translated(widget.mapTo(window.get(), QPoint(0, 0))));
  }
};

TEST_F(QtPaint, ACaptionIsDrawnAndAnEmptyOneIsNot) {
  EXPECT_GT(dotsIn("Label"), 20);
  panel->label("Label").Caption("");
  EXPECT_EQ(dotsIn("Label"), 0);
  panel->label("Label").Caption("I");
  EXPECT_GT(dotsIn("Label"), 0);
}

TEST_F(QtPaint, AnotherCaptionHasOtherDots) {
  panel->label("Label").Caption("I");
  const int narrow = dotsIn("Label");
  panel->label("Label").Caption("W");
  EXPECT_GT(dotsIn("Label"), narrow);
}

TEST_F(QtPaint, ACaptionIsDrawnInItsColour) {
  panel->label("Label").Caption("MMMM");
  EXPECT_EQ(redDotsIn("Label"), 0);
  panel->label("Label").ForeColor(0x0000C0);
  EXPECT_GT(redDotsIn("Label"), 20);
}

TEST_F(QtPaint, ALabelHasItsBackDrawn) {
  panel->label("Label").Caption("");
  EXPECT_NE(middleOf("Label"), QColor(Qt::cyan));
  panel->label("Label").BackColor(0xFFFF00);
  EXPECT_EQ(middleOf("Label"), QColor(Qt::cyan));
}

TEST_F(QtPaint, NothingIsDrawnOfWhatIsHidden) {
  EXPECT_EQ(dotsIn("Hidden"), 0);
  panel->textBox("Hidden").Text("MMMM");
  EXPECT_EQ(dotsIn("Hidden"), 0);
  panel->textBox("Hidden").Visible(true);
  EXPECT_GT(dotsIn("Hidden"), 20);
  for (const char* name : {"Label", "Button", "Check"}) {
    panel->widget(name).Visible(false);
    EXPECT_EQ(dotsIn(name), 0) << name;
  }
}

TEST_F(QtPaint, TheTextOfAFieldIsDrawn) {
  EXPECT_EQ(dotsIn("A"), 0);
  box().Text("MMMM");
  EXPECT_GT(dotsIn("A"), 20);
  box().Text("");
  EXPECT_EQ(dotsIn("A"), 0);
}

TEST_F(QtPaint, TheTitleOfAFrameBreaksItsLine) {
  panel->frame("Outer").Caption("");
  const int line = dotsOfTitle("Outer");
  panel->frame("Outer").Caption("MMMM");
  EXPECT_GT(dotsOfTitle("Outer"), line / 2 + 40);
  panel->label("Label").Visible(false);
  panel->frame("Outer").Visible(false);
  EXPECT_EQ(dotsOfTitle("Outer"), 0);
}

TEST_F(QtPaint, TheCaptionsOfButtonsAndCheckBoxesAreDrawn) {
  EXPECT_GT(dotsIn("Button"), 40);
  EXPECT_GT(dotsIn("Check"), 40);
}

TEST_F(QtPaint, ATickIsDrawn) {
  const QImage unticked = shown("Check").grab().toImage();
  check().Value(1);
  QApplication::processEvents();
  EXPECT_NE(shown("Check").grab().toImage(), unticked);
  check().Value(0);
  QApplication::processEvents();
  EXPECT_EQ(shown("Check").grab().toImage(), unticked);
}

TEST_F(QtPaint, TheItemOfAListIsDrawn) {
  const int none = dotsIn("List");  // the arrow
  list().ListIndex(2);
  EXPECT_GT(dotsIn("List"), none + 20);
  list().ListIndex(-1);
  EXPECT_EQ(dotsIn("List"), none);
}

TEST_F(QtPaint, ABackIsDrawnInItsColour) {
  box().BackColor(0xFFFF00);
  EXPECT_EQ(middleOf("A"), QColor(Qt::cyan));
}

constexpr std::array<toolkit::WidgetLayout, 2> kRows{{
    {.name = "Rows", .kind = toolkit::WidgetKind::ListView, .tabIndex = 0, .place = {0, 0, 4500, 3000}},
    {.name = "Word",
     .kind = toolkit::WidgetKind::Label,
     .tabIndex = 1,
     .place = {0, 3000, 4500, 300},
     .caption = "prima"},
}};
constexpr toolkit::FormLayout kPaintedForm{.caption = "Scelta",
                                           .inside = {.name = "Pick", .width = 4500, .height = 3300, .widgets = kRows}};

/// Counts the times that a widget, or one within it, is drawn.
class Paints final : public QObject {
 public:
  explicit Paints(QWidget& of) : of_(of) { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget != nullptr && event->type() == QEvent::Paint && (widget == &of_ || of_.isAncestorOf(widget))) ++count;
    return false;
  }

  int count = 0;

 private:
  QWidget& of_;
};

class QtPaintForm : public QtPaint {
 public:
  QtPaintForm() { form->load(); }

  toolkit::ListView& rows() { return form->surface().listView("Rows"); }
  QWidget& inside() { return platform.widgetOf(form->surface()); }
  /// Does this while the form stands.
  void showAnd(std::function<void()> act) {
    form->surface().listView("Rows").DblClick = std::move(act);
    rows().addColumn("Codice", 900);
    rows().addColumn("Nome", 2000);
    rows().addRow(std::array<std::string_view, 2>{"MMMM", "MMMM"});
    platform.hands().layDown("Pick", {Act::doubleClick(0)});
    form->showModal();
    EXPECT_TRUE(container.failures.empty());
  }

  std::unique_ptr<toolkit::Form> form = platform.makeForm(kPaintedForm, container);
};

TEST_F(QtPaintForm, IsDrawnWithinItsRefresh) {
  int times = 0;
  showAnd([&] {
    QApplication::processEvents();
    Paints paints(inside());
    form->surface().label("Word").Caption("durante");
    EXPECT_EQ(paints.count, 0);
    form->refresh();
    EXPECT_GT(paints.count, 0);
    ++times;
  });
  EXPECT_EQ(times, 1);
}

TEST_F(QtPaintForm, ACaptionIsDrawnAsItIsWrittenOnOneLineAndOnMore) {
  toolkit::Label& word = form->surface().label("Word");
  for (const std::int32_t height : {300, 900}) {
    const auto dotsAs = [&](std::string_view caption) {
      word.place({0, 2400, 4500, height});
      word.Caption(caption);
      platform.settle();
      QWidget& label = *platform.widgetOf(static_cast<const toolkit::Widget&>(word));
      return dotsOf(label.grab().toImage(), label.rect());
    };
    const int plain = dotsAs("x");
    EXPECT_GT(plain, 0);
    EXPECT_GT(dotsAs("<b>x</b>"), 3 * plain) << height;
  }
}

TEST_F(QtPaintForm, ThatIsOnlyLoadedIsNotOnTheScreen) {
  Paints paints(inside());
  form->surface().label("Word").Caption("durante");
  form->refresh();
  EXPECT_EQ(paints.count, 0);
  EXPECT_FALSE(inside().isVisible());
}

TEST_F(QtPaintForm, ARowHasItsDotsAndTheRoomBelowHasNone) {
  int times = 0;
  showAnd([&] {
    auto& table = dynamic_cast<QTableView&>(*platform.widgetOf(static_cast<const toolkit::Widget&>(rows())));
    const auto dotsOfRow = [&](int row) {
      const QRect place = table.visualRect(table.model()->index(0, 1));
      return dotsOf(table.viewport()->grab().toImage(), place.translated(0, row * place.height()));
    };
    EXPECT_GT(dotsOfRow(0), 40);
    EXPECT_EQ(dotsOfRow(1), 0);
    rows().addRow(std::array<std::string_view, 2>{"N", "NNNN"});
    form->refresh();
    EXPECT_GT(dotsOfRow(1), 40);
    EXPECT_EQ(dotsOfRow(2), 0);
    rows().clearRows();
    rows().addRow(std::array<std::string_view, 2>{"A", ""});
    form->refresh();
    EXPECT_EQ(dotsOfRow(0), 0);
    const QWidget& heads = *table.horizontalHeader();
    EXPECT_GT(dotsOf(table.horizontalHeader()->grab().toImage(), heads.rect().adjusted(2, 2, -2, -2)), 40);
    ++times;
  });
  EXPECT_EQ(times, 1);
}

}  // namespace
}  // namespace qvn::test
