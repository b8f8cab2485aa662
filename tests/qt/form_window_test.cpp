// A modal form before a person.
#include <QAbstractButton>
#include <QDialog>
#include <QHeaderView>
#include <QTableView>
#include <QTimer>
#include <array>
#include <functional>
#include <stdexcept>

#include "qvn/toolkit/list_view.h"
#include "tests/qt/on_screen.h"

namespace qvn::test {
namespace {

constexpr std::array<toolkit::WidgetLayout, 3> kWidgets{{
    {.name = "Rows", .kind = toolkit::WidgetKind::ListView, .tabIndex = 0, .place = {72, 72, 4548, 3036}},
    {.name = "OK",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 1,
     .place = {4680, 48, 1188, 600},
     .caption = "OK",
     .defaultButton = true},
    {.name = "Cancel",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 2,
     .place = {4680, 720, 1188, 600},
     .caption = "Annulla",
     .cancelButton = true},
}};
constexpr toolkit::FormLayout kForm{.caption = "Scelta",
                                    .inside = {.name = "Pick", .width = 5940, .height = 3180, .widgets = kWidgets}};

class QtForm : public OnScreen {
 public:
  QtForm() {
    platform.formsWait(true);
    form->Load = [this] {
      rows().addColumn("Codice", 900);
      rows().addColumn("Nome", 2000);
      for (const auto& row : {std::array<std::string_view, 2>{"b", "due"}, {"a", "uno"}, {"c", "tre"}})
        rows().addRow(row);
      form->surface().button("OK").Click = [this] {
        chosen = rows().selected() < 0 ? "-" : rows().text(rows().selected(), 0);
        form->hide();
      };
      form->surface().button("Cancel").Click = [this] { form->unload(); };
      rows().DblClick = [this] {
        chosen = "double " + rows().text(rows().selected(), 0);
        form->hide();
      };
      rows().ColumnClick = [this](std::int16_t column) { rows().SortKey(static_cast<std::int16_t>(column - 1)); };
    };
  }

  toolkit::ListView& rows() { return form->surface().listView("Rows"); }
  QTableView& table() {
    return dynamic_cast<QTableView&>(*platform.widgetOf(static_cast<const toolkit::Widget&>(rows())));
  }
  QDialog& window() { return dynamic_cast<QDialog&>(*table().window()); }

  QPointF middleOf(int row) { return table().visualRect(table().model()->index(row, 0)).center(); }
  void clickAtHead(int column) {
    QHeaderView& heads = *table().horizontalHeader();
    const int middle = heads.sectionViewportPosition(column) + heads.sectionSize(column) / 2;
    clickAt(*heads.viewport(), QPointF(middle, heads.height() / 2.0));
  }

  /// Shows the form, and does this as soon as it waits.
  void showAnd(std::function<void()> act) {
    QTimer::singleShot(0, [act = std::move(act)] { act(); });
    form->showModal();
  }

  std::string chosen;
  std::unique_ptr<toolkit::Form> form = platform.makeForm(kForm, container);
};

TEST_F(QtForm, WaitsForTheDefaultKey) {
  focus(box());
  showAnd([this] {
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().windowTitle(), "Scelta");
    EXPECT_EQ(window().windowModality(), Qt::ApplicationModal);
    QApplication::setActiveWindow(&window());
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_THAT(disagreements(platform, form->surface()), IsEmpty());
    press(Qt::Key_Return, "\r");
  });
  EXPECT_EQ(chosen, "b");
  EXPECT_TRUE(box().hasFocus());
}

TEST_F(QtForm, FollowsItsPlace) {
  showAnd([this] {
    const QSize inside = window().size();
    EXPECT_EQ(inside, platform.widgetOf(form->surface()).size());
    toolkit::Place place = form->place();
    place.left = 1440;
    place.top = 2880;
    form->place(place);
    EXPECT_EQ(window().pos(), QPoint(window().logicalDpiX(), 2 * window().logicalDpiY()));
    EXPECT_EQ(window().size(), inside);
    place = {.left = 0, .top = 0, .width = place.width + 1440, .height = place.height - 720};
    form->place(place);
    EXPECT_EQ(window().pos(), QPoint(0, 0));
    EXPECT_NEAR(window().width(), inside.width() + window().logicalDpiX(), 1);
    EXPECT_NEAR(window().height(), inside.height() - window().logicalDpiY() / 2.0, 1);
    window().close();
  });
}

TEST_F(QtForm, ACellIsToldWholeByItsTooltip) {
  showAnd([this] {
    EXPECT_EQ(table().model()->index(0, 1).data(Qt::ToolTipRole).toString(), "uno");
    window().close();
  });
}

TEST_F(QtForm, TheCancelKeyUnloadsIt) {
  showAnd([this] {
    QApplication::setActiveWindow(&window());
    press(Qt::Key_Escape, "\x1b");
  });
  EXPECT_FALSE(form->loaded());
}

TEST_F(QtForm, NoKeyReachesThePanelsBehindIt) {
  focus(box("B"));
  box("B").Text("");
  showAnd([this] {
    for (const char* name : {"A", "B"}) {
      QKeyEvent key(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QStringLiteral("1"));
      QApplication::sendEvent(&line(name), &key);
      EXPECT_EQ(box(name).Text(), "") << name;
    }
    EXPECT_THAT(reported(), IsEmpty());
    EXPECT_TRUE(rows().hasFocus());
    window().close();
  });
  EXPECT_TRUE(box("B").hasFocus());
}

TEST_F(QtForm, WhatItsUnloadFailsWithGoesToTheContainer) {
  form->Unload = [] { throw std::runtime_error("altro"); };
  showAnd([this] { window().close(); });
  EXPECT_FALSE(form->loaded());
  EXPECT_THAT(reported(), ElementsAre("Rows Unload: altro"));
}

TEST_F(QtForm, StaysWhereAPersonHasMovedIt) {
  showAnd([this] {
    window().move(321, 123);
    form->Caption("Altra scelta");
    EXPECT_EQ(window().windowTitle(), "Altra scelta");
    EXPECT_EQ(window().pos(), QPoint(321, 123));
    window().close();
  });
}

TEST_F(QtForm, ARowThatHasGoneShowsNothing) {
  showAnd([this] {
    const QModelIndex last = table().model()->index(2, 0);
    EXPECT_EQ(last.data().toString(), "c");
    rows().clearRows();
    EXPECT_FALSE(last.data().isValid());
    window().close();
  });
}

TEST_F(QtForm, TheCancelKeyUnloadsItWhereNoFieldHasTheFocus) {
  showAnd([this] {
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QStringLiteral("\x1b"));
    QApplication::sendEvent(&window(), &escape);
  });
  EXPECT_FALSE(form->loaded());
}

TEST_F(QtForm, TabGoesRoundAndMovesNoRow) {
  showAnd([this] {
    QApplication::setActiveWindow(&window());
    press(Qt::Key_Down);
    const int row = rows().selected();
    const toolkit::Surface& inside = form->surface();
    for (const char* next : {"OK", "Cancel", "Rows"}) {
      press(Qt::Key_Tab, "\t");
      EXPECT_TRUE(inside.widget(next).hasFocus()) << next;
    }
    press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_TRUE(inside.widget("Cancel").hasFocus());
    EXPECT_EQ(rows().selected(), row);
    EXPECT_THAT(disagreements(platform, inside), IsEmpty());
    window().close();
  });
}

TEST_F(QtForm, TheListTurnsItsPages) {
  showAnd([this] {
    QApplication::setActiveWindow(&window());
    for (int i = 0; i < 100; ++i) rows().addRow(std::array<std::string_view, 2>{"z", "altro"});
    platform.settle();
    press(Qt::Key_Home);
    press(Qt::Key_PageDown);
    EXPECT_GT(rows().selected(), 2);
    EXPECT_LT(rows().selected(), 100);
    press(Qt::Key_PageUp);
    EXPECT_EQ(rows().selected(), 0);
    EXPECT_THAT(disagreements(platform, form->surface()), IsEmpty());
    window().close();
  });
}

TEST_F(QtForm, ARowIsChosenByTheMouse) {
  showAnd([this] {
    QApplication::setActiveWindow(&window());
    clickAt(*table().viewport(), middleOf(2));
    EXPECT_EQ(rows().selected(), 2);
    EXPECT_THAT(disagreements(platform, form->surface()), IsEmpty());
    doubleClickAt(*table().viewport(), middleOf(0));
  });
  EXPECT_EQ(chosen, "double a");
}

TEST_F(QtForm, AColumnHeadSortsAndTheSelectedRowStaysSelected) {
  showAnd([this] {
    QApplication::setActiveWindow(&window());
    int resets = 0;
    QObject::connect(table().model(), &QAbstractItemModel::modelReset, &table(), [&] { ++resets; });
    clickAt(*table().viewport(), middleOf(0));
    EXPECT_EQ(resets, 0);
    clickAtHead(1);
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(rows().text(0, 1), "due");
    EXPECT_EQ(rows().selected(), 2);
    EXPECT_THAT(disagreements(platform, form->surface()), IsEmpty());
    clickAtHead(1);
    EXPECT_EQ(rows().text(0, 1), "due");
    EXPECT_THAT(disagreements(platform, form->surface()), IsEmpty());
    click(*platform.widgetOf(static_cast<const toolkit::Widget&>(form->surface().button("OK"))));
  });
  EXPECT_EQ(chosen, "a");
}

TEST_F(QtForm, ClosingTheWindowUnloadsIt) {
  showAnd([this] { window().close(); });
  EXPECT_FALSE(form->loaded());
}

TEST_F(QtForm, MayBeDestroyedWhileAPersonIsAtIt) {
  showAnd([this] { form.reset(); });
  EXPECT_EQ(form, nullptr);
}

TEST_F(QtForm, ActsLaidDownAreDoneWithoutWaiting) {
  platform.hands().layDown("Pick", {Act::row(1), Act::key("{Enter}")});
  form->showModal();
  EXPECT_EQ(chosen, "b");
}

TEST_F(QtForm, OffscreenNobodyIsWaitedFor) {
  platform.formsWait(false);
  form->showModal();
  EXPECT_FALSE(form->loaded());
}

}  // namespace
}  // namespace qvn::test
