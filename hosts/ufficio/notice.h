// The line at the foot of the window that tells how things went.
#pragma once

#include <QLabel>
#include <QWidget>

namespace qvn::ufficio {

/// Stays until the next one. A long text breaks into several lines.
class Notice final : public QWidget {
 public:
  explicit Notice(QWidget* parent = nullptr);

  QString text() const { return text_->text(); }
  /// The words that the text has behind it, as its tooltip shows them.
  QString words() const { return text_->toolTip(); }
  void tell(const QString& text);
  /// With a sign that something did not work.
  void warn(const QString& text, const QString& words = {});

 private:
  void show(const QString& text, const QString& words, bool warning);

  QLabel* sign_;
  QLabel* text_;
};

}  // namespace qvn::ufficio
