#include "hosts/ufficio/record_chooser.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platforms/qt/texts.h"

namespace qvn::ufficio {

RecordChooser::RecordChooser(QWidget* parent)
    : QWidget(parent), filter_(new QLineEdit(this)), records_(new QListWidget(this)), more_(new QLabel(this)) {
  filter_->setObjectName("filtro");
  filter_->setPlaceholderText("Cerca…");
  filter_->setClearButtonEnabled(true);
  filter_->setAccessibleName("Cerca un record");
  filter_->installEventFilter(this);
  records_->setObjectName("record");
  records_->setAccessibleName("Record trovati");
  records_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  more_->setWordWrap(true);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(filter_);
  layout->addWidget(records_, 1);
  layout->addWidget(more_);

  connect(filter_, &QLineEdit::textChanged, this, &RecordChooser::filterChanged);
  connect(filter_, &QLineEdit::returnPressed, this, [this] { choose(std::max(records_->currentRow(), 0)); });
  connect(records_, &QListWidget::itemActivated, this, [this] { choose(records_->currentRow()); });
  connect(records_, &QListWidget::itemClicked, this, [this] { choose(records_->currentRow()); });
}

void RecordChooser::clearFilter() {
  const QSignalBlocker silent(this);
  filter_->clear();
}

void RecordChooser::show(std::vector<Found> found, int most) {
  const bool more = found.size() > static_cast<std::size_t>(most);
  if (more) found.resize(static_cast<std::size_t>(most));
  found_ = std::move(found);
  records_->clear();
  for (const Found& record : found_) {
    auto* item = new QListWidgetItem(qt::shown(record.text), records_);
    item->setToolTip(item->text());
  }
  records_->scrollToTop();
  if (more) {
    more_->setText(QString("Sono solo i primi %1: scrivere un testo più lungo per restringere la ricerca.").arg(most));
  } else {
    more_->setText(found_.empty() ? "Nessun record trovato." : "");
  }
  more_->setVisible(!more_->text().isEmpty());
}

void RecordChooser::clear() {
  show({});
  more_->hide();
}

void RecordChooser::mark(const Key& key) {
  const auto at = std::ranges::find(found_, key, &Found::key);
  records_->setCurrentRow(at == found_.end() ? -1 : static_cast<int>(at - found_.begin()));
}

void RecordChooser::focusFilter() {
  filter_->setFocus();
  filter_->selectAll();
}

void RecordChooser::focusFirst() {
  records_->setCurrentRow(std::max(records_->currentRow(), 0));
  records_->setFocus();
}

void RecordChooser::choose(int row) {
  if (row < 0 || static_cast<std::size_t>(row) >= found_.size()) return;
  const Found record = found_[static_cast<std::size_t>(row)];  // what it leads to may find others
  emit chosen(record);
}

bool RecordChooser::eventFilter(QObject* watched, QEvent* event) {
  if (watched == filter_ && event->type() == QEvent::KeyPress && !found_.empty() &&
      static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Down) {
    focusFirst();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace qvn::ufficio
