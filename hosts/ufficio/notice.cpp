#include "hosts/ufficio/notice.h"

#include <QHBoxLayout>
#include <QStyle>

namespace qvn::ufficio {

Notice::Notice(QWidget* parent) : QWidget(parent), sign_(new QLabel(this)), text_(new QLabel(this)) {
  setObjectName("avviso");
  auto* layout = new QHBoxLayout(this);
  constexpr int kMargin = 4;
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(sign_);
  layout->addWidget(text_, 1);
  const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
  sign_->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
  sign_->hide();
  text_->setObjectName("testo");
  text_->setWordWrap(true);
  text_->setTextFormat(Qt::PlainText);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text_->setAccessibleName("Avviso");
}

void Notice::tell(const QString& text) { show(text, {}, false); }
void Notice::warn(const QString& text, const QString& words) { show(text, words, true); }

void Notice::show(const QString& text, const QString& words, bool warning) {
  sign_->setVisible(warning);
  text_->setText(text);
  text_->setToolTip(words);
}

}  // namespace qvn::ufficio
