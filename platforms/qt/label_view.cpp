#include "platforms/qt/label_view.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <array>
#include <limits>

#include "platforms/qt/captions.h"
#include "platforms/qt/colours.h"
#include "platforms/qt/texts.h"
#include "platforms/qt/twips.h"

namespace qvn::qt {

namespace {
constexpr int kAir = 3;  // pixels between a caption and the line around it
constexpr std::array kAlignments{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
}  // namespace

LabelView::LabelView(Screen& screen, toolkit::Label& model, QWidget& parent)
    : QLabel(&parent), View(screen, model), bordered_(model.layout().bordered) {
  setTextFormat(Qt::PlainText);
  setAlignment(kAlignments.at(static_cast<std::size_t>(model.layout().align)) | Qt::AlignVCenter);
  if (bordered_) {
    setContentsMargins(kAir, 0, kAir, 0);
  } else {
    const Covered covered = coveredPart(model);
    setContentsMargins(pixels(covered.left, logicalDpiX()), 0, pixels(covered.right, logicalDpiX()), 0);
  }
}

void LabelView::showContent() {
  const QString caption = shown(static_cast<toolkit::Label&>(*subject()).Caption());
  setWordWrap(height() >= 2 * fontMetrics().lineSpacing());
  if (text() != caption) setText(caption);
  fitCaption(*this, caption, wordWrap() ? std::numeric_limits<int>::max() : contentsRect().width());
  const QString tip = shown(subject()->ToolTip());
  const bool cut = !wordWrap() && shownText() != caption;
  setToolTip(cut ? (tip.isEmpty() ? caption : tip + QStringLiteral(": ") + caption) : tip);
  if (bordered_) setAccessibleName(spokenName_ + QStringLiteral(": ") + caption);
}

QString LabelView::shownText() const {
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

QPalette LabelView::paletteFor(std::uint32_t back, std::uint32_t fore) const {
  return back == toolkit::kFaceGray ? textColours(QApplication::palette(), fore)
                                    : labelColours(QApplication::palette(), back, fore);
}

void LabelView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (subject() != nullptr && subject()->BackColor() != toolkit::kFaceGray) {
    painter.fillRect(rect(), palette().color(QPalette::Window));
  }
  if (bordered_) drawLineAround(rect(), lineColour(QApplication::palette()), painter);
  if (wordWrap()) {
    painter.end();
    return QLabel::paintEvent(event);
  }
  const QRect room = contentsRect();
  style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(), shownText(),
                        foregroundRole());
}

DataControlView::DataControlView(Screen& screen, toolkit::Widget& model, QWidget& parent)
    : QLabel(&parent), View(screen, model) {}

}  // namespace qvn::qt
