// Pick lists and grids on the screen.
#pragma once

#include <QTableView>
#include <cstdint>
#include <vector>

#include "platforms/memory/list_view.h"
#include "platforms/qt/list_table.h"
#include "platforms/qt/view.h"

namespace qvn::qt {

class ListWidget final : public QTableView, public View {
 public:
  ListWidget(Screen& screen, memory::ListView& model, QWidget& parent);
  QWidget& widget() override { return *this; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// Qt makes the first row the current one of itself.
  void focusInEvent(QFocusEvent* event) override;

 private:
  void showContent() override;
  QPalette paletteFor(std::uint32_t back, std::uint32_t fore) const override;
  memory::ListView& list() const { return static_cast<memory::ListView&>(*subject()); }
  void act(const Act& act, const char* event);

  TableRows<toolkit::ListView>& rows_;
  std::uint64_t shownEdition_ = 0;
  bool gainingFocus_ = false;
};

class GridWidget final : public QTableView, public View {
 public:
  GridWidget(Screen& screen, toolkit::DataGrid& model, QWidget& parent);
  QWidget& widget() override { return *this; }
  void sourceChanged() override { sourceChanged_ = true; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  toolkit::DataGrid& grid() const { return static_cast<toolkit::DataGrid&>(*subject()); }
  void showContent() override;
  /// Makes the widest column as wide as the others leave room.
  void giveRestToWidest();
  QPalette paletteFor(std::uint32_t back, std::uint32_t fore) const override;

  TableRows<toolkit::DataGrid>& rows_;
  std::vector<toolkit::DataGrid::Column> shownColumns_;
  bool sourceChanged_ = true;
};

}  // namespace qvn::qt
