// A grid before a person.
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTableView>

#include "qvn/toolkit/data_grid.h"
#include "tests/qt/agreement.h"
#include "tests/qt/each_surface.h"

namespace qvn::test {
namespace {

class QtGrid : public EachSurface {
 public:
  toolkit::DataGrid& grid() { return surface().grid("TDBGrid1"); }
  QTableView& table() { return dynamic_cast<QTableView&>(shown(grid())); }
};
INSTANTIATE_TEST_SUITE_P(Viewer, QtGrid, testing::Values("FrmVIS_COMPAGNIE"));

TEST_P(QtGrid, KeepsAColumnAsWideAsAPersonDraggedIt) {
  table().setColumnWidth(0, 123);
  grid().Enabled(false);
  platform.settle();
  EXPECT_EQ(table().columnWidth(0), 123);
}

TEST_P(QtGrid, ShowsAColumnThatIsWrittenAnew) {
  table().setColumnWidth(0, 123);
  toolkit::DataGrid::Column column = grid().column(0);
  column.caption = "Altro";
  grid().column(0, column);
  platform.settle();
  EXPECT_EQ(table().model()->headerData(0, Qt::Horizontal).toString(), "Altro");
  EXPECT_NE(table().columnWidth(0), 123);
}

TEST_P(QtGrid, IsWalkedByTheArrowKeysAndShowsNumbersToTheRight) {
  driver().answers["select"] = {.columns = {"COD_COMP", "DESC_COMPAGNIA", "PL", "PA"},
                                .rows = {{std::string("GEN"), std::string("Generali"), 1.5, 2.5},
                                         {std::string("ALL"), std::string("Altra"), 3.5, 4.5}}};
  toolkit::DataControl& data = grid().DataSource();
  data.ConnectionString("fake:office");
  data.RecordSource("select");
  data.Refresh();
  platform.settle();
  table().setCurrentIndex(table().model()->index(0, 0));
  for (const int key : {Qt::Key_Down, Qt::Key_Right}) {
    QKeyEvent arrow(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&table(), &arrow);
  }
  EXPECT_EQ(table().currentIndex(), table().model()->index(1, 1));
  QApplication::clipboard()->clear();
  QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier, QStringLiteral("\x03"));
  QApplication::sendEvent(&table(), &copy);
  EXPECT_EQ(QApplication::clipboard()->text(), "Altra");
  whole().show();
  QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
  QApplication::sendEvent(&table(), &tab);
  whole().hide();
  EXPECT_EQ(table().currentIndex(), table().model()->index(1, 1));
  EXPECT_THAT(disagreements(platform, surface()), testing::IsEmpty());
}

TEST_P(QtGrid, IsFilledByItsColumns) {
  const int rest = table().width() - table().horizontalHeader()->length();
  EXPECT_GE(rest, 0);
  EXPECT_LE(rest, 2 * table().frameWidth() + table().verticalScrollBar()->sizeHint().width());
}

TEST_P(QtGrid, ForgetsItsRowsOnlyWhenItsSourceIsAskedAgain) {
  int resets = 0;
  QObject::connect(table().model(), &QAbstractItemModel::modelReset, &table(), [&] { ++resets; });
  grid().BackColor(0xFFFF00);
  platform.settle();
  EXPECT_EQ(resets, 0);
  EXPECT_THROW(grid().DataSource().Refresh(), Failure);
  platform.settle();
  EXPECT_EQ(resets, 1);
}

}  // namespace
}  // namespace qvn::test
