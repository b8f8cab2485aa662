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
  void tell(const QString& text);
  /// With a sign that something did not work.
  void warn(const QString& text);

 private:
  void show(const QString& text, bool warning);

  QLabel* sign_;
  QLabel* text_;
};

}  // namespace qvn::ufficio
