#include "hosts/ufficio/window_parts.h"

#include <QVBoxLayout>
#include <algorithm>

#include "platforms/qt/texts.h"

namespace qvn::ufficio {

namespace {

constexpr int kChoicesWidth = 320;
constexpr int kPagesWidth = 955;
constexpr int kHeight = 680;

QLabel* makeLine(const QString& name) {
  auto* line = new QLabel;
  line->setObjectName(name);
  line->setTextFormat(Qt::PlainText);
  line->setWordWrap(true);
  return line;
}

QSplitter* makeSplitter(Qt::Orientation orientation, QWidget* first, QWidget* growing) {
  auto* splitter = new QSplitter(orientation);
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(first);
  splitter->addWidget(growing);
  splitter->setStretchFactor(1, 1);
  return splitter;
}

/// List and chooser, the list as high as its entries.
QSplitter* placeChoices(const WindowParts& parts) {
  QSplitter* const choices = makeSplitter(Qt::Vertical, parts.list, parts.chooser);
  const int rows = std::max(parts.list->sizeHintForRow(0), 1) * parts.list->count() + 2 * parts.list->frameWidth();
  choices->setSizes({rows, kHeight});
  return choices;
}

QWidget* placeWork(const WindowParts& parts) {
  auto* work = new QWidget;
  auto* layout = new QVBoxLayout(work);
  layout->addWidget(parts.heading);
  layout->addWidget(parts.pages, 1);
  layout->addWidget(parts.remark);
  return work;
}

}  // namespace

WindowParts layOut(QMainWindow& window, std::span<const ScreenClass> classes) {
  WindowParts parts;
  parts.list = new QListWidget;
  parts.list->setObjectName("schermate");
  parts.list->setAccessibleName("Schermate");
  for (const ScreenClass& made : classes) parts.list->addItem(qt::shown(made.title));
  parts.chooser = new RecordChooser;
  parts.heading = makeLine("intestazione");
  QFont bold = parts.heading->font();
  bold.setBold(true);
  parts.heading->setFont(bold);
  parts.pages = new QStackedWidget;
  parts.pages->addWidget(new QWidget);
  parts.remark = makeLine("osservazione");
  parts.notice = new Notice;

  parts.sides = makeSplitter(Qt::Horizontal, placeChoices(parts), placeWork(parts));
  parts.sides->setSizes({kChoicesWidth, kPagesWidth});
  constexpr int kEdge = 4;
  auto* all = new QWidget;
  auto* layout = new QVBoxLayout(all);
  layout->setContentsMargins(kEdge, kEdge, kEdge, 0);
  layout->setSpacing(0);
  layout->addWidget(parts.sides, 1);
  layout->addWidget(parts.notice);
  window.setCentralWidget(all);
  window.resize(kChoicesWidth + kPagesWidth, kHeight);
  return parts;
}

}  // namespace qvn::ufficio
