#include "platforms/qt/label_view.h"

#include <algorithm>
#include <array>

#include "platforms/qt/texts.h"

namespace qvn::qt {

namespace {
constexpr int kAir = 5;         // pixels beside a caption, so that it does not touch the field before it
constexpr int kNarrowest = 70;  // in hundredths of the letters' own width
constexpr std::array kAlignments{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
}  // namespace

LabelView::LabelView(Screen& screen, toolkit::Label& model, QWidget& parent) : QLabel(&parent), View(screen, model) {
  const toolkit::WidgetLayout& row = model.layout();
  setTextFormat(Qt::PlainText);
  setAlignment(kAlignments.at(static_cast<std::size_t>(row.align)) | Qt::AlignVCenter);
  if (row.bordered) setFrameStyle(QFrame::Panel | QFrame::Sunken);
  if (row.bordered) setMargin(1);
}

void LabelView::showContent() {
  const QString caption = shown(static_cast<toolkit::Label&>(*subject()).Caption());
  setWordWrap(height() >= 2 * fontMetrics().lineSpacing());
  if (text() == caption) return;
  setText(caption);
  if (!wordWrap() && frameShape() == QFrame::NoFrame) fitCaption();
}

void LabelView::fitCaption() {
  QFont plain = font();
  plain.setStretch(QFont::Unstretched);
  const int needed = QFontMetrics(plain).horizontalAdvance(text()) + kAir;
  const int stretch = needed <= width() ? QFont::Unstretched : std::max(kNarrowest, 100 * width() / needed);
  if (stretch == stretch_) return;
  stretch_ = stretch;
  plain.setStretch(stretch);
  setFont(plain);
}

DataControlView::DataControlView(Screen& screen, toolkit::Widget& model, QWidget& parent)
    : QLabel(&parent), View(screen, model) {
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
}

}  // namespace qvn::qt
