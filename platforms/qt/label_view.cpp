#include "platforms/qt/label_view.h"

#include <array>

#include "platforms/qt/texts.h"

namespace qvn::qt {

namespace {
constexpr std::array kAlignments{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
}

LabelView::LabelView(Screen& screen, toolkit::Label& model, QWidget& parent) : QLabel(&parent), View(screen, model) {
  const toolkit::WidgetLayout& row = model.layout();
  setTextFormat(Qt::PlainText);
  setAlignment(kAlignments.at(static_cast<std::size_t>(row.align)) | Qt::AlignVCenter);
  if (row.bordered) setFrameStyle(QFrame::Panel | QFrame::Sunken);
  if (row.bordered) setMargin(1);
}

void LabelView::showContent() {
  const QString caption = shown(static_cast<toolkit::Label&>(*subject()).Caption());
  if (text() != caption) setText(caption);
  setWordWrap(height() >= 2 * fontMetrics().lineSpacing());
}

DataControlView::DataControlView(Screen& screen, toolkit::Widget& model, QWidget& parent)
    : QLabel(&parent), View(screen, model) {
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
}

}  // namespace qvn::qt
