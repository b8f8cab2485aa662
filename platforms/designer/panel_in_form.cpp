#include "platforms/designer/panel_in_form.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QPointer>
#include <exception>

#include "platforms/designer/form_platform.h"
#include "platforms/qt/texts.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"

namespace qvn::designer {

namespace {

Q_LOGGING_CATEGORY(inForms, "qvn.designer")

/// The value of a property as that type; its empty value where there is no such panel or value.
template <class Value>
Value read(const qt::PlacedPanel* placed, const char* property) {
  if (placed == nullptr) return {};
  try {
    return as<Value>(getByName(placed->panel(), property), Globale::platform().locale());
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace

PanelInForm::PanelInForm(const char* panel, QWidget* parent) : QWidget(parent) {
  try {
    place(panel);
  } catch (const std::exception& failure) {
    showReason(qt::shown(failure.what()));
  }
}

PanelInForm::~PanelInForm() = default;

void PanelInForm::place(const char* panel) {
  qt::Platform& platform = formPlatform();
  placed_ = new qt::PlacedPanel(platform, panelClass(panel).make, QString::fromLatin1(panel), this);
  setFixedSize(placed_->size());
  connect(placed_, &qt::PlacedPanel::changed, this, &PanelInForm::changed);
  connect(placed_, &qt::PlacedPanel::failed, this, &PanelInForm::failed);
  connect(placed_, &qt::PlacedPanel::failed, this,
          [](const QString& /*widget*/, const QString& /*event*/, const QString& message) {
            qCWarning(inForms).noquote() << message;
          });
  missing_ = Globale::Eventi()->MancaDB.subscribe([this] { emit MancaDB(); });
}

void PanelInForm::showReason(const QString& reason) {
  failure_ = reason;
  auto* const label = new QLabel(reason, this);
  label->adjustSize();
  setFixedSize(label->size());
}

QSize PanelInForm::sizeHint() const { return minimumSize(); }

QStringList PanelInForm::members() const { return placed_ == nullptr ? QStringList() : placed_->members(); }

QVariant PanelInForm::value(const QString& property) {
  if (placed_ == nullptr) return {};
  QVariant result = placed_->value(property);
  failure_ = placed_->failure();
  return result;
}

bool PanelInForm::setValue(const QString& property, const QVariant& value) {
  if (placed_ == nullptr) return false;
  const QPointer<PanelInForm> alive(this);
  const bool done = placed_->setValue(property, value);
  if (alive != nullptr) failure_ = placed_->failure();
  return done;
}

QVariant PanelInForm::call(const QString& method, const QVariantList& arguments) {
  if (placed_ == nullptr) return {};
  const QPointer<PanelInForm> alive(this);
  QVariant result = placed_->call(method, arguments);
  if (alive != nullptr) failure_ = placed_->failure();
  return result;
}

bool PanelInForm::ImpostaDB(const QString& connection) {
  failure_.clear();
  try {
    Globale::Eventi()->ImpostaDB(qt::utf8(connection));
    return true;
  } catch (const std::exception& failure) {
    failure_ = qt::shown(failure.what());
    return false;
  }
}

QString PanelInForm::text(const char* property) const { return qt::shown(read<std::string>(placed_, property)); }

int PanelInForm::number(const char* property) const { return read<std::int32_t>(placed_, property); }

bool PanelInForm::flag(const char* property) const { return read<bool>(placed_, property); }

QString PanelInForm::unread(const char* property) const { return keeps_ ? kept_.value(property) : text(property); }

void PanelInForm::let(const char* property, const QVariant& value) {
  if (keeps_) kept_.insert(property, value.toString());
  const QPointer<PanelInForm> alive(this);
  if (setValue(QString::fromLatin1(property), value) || alive == nullptr) return;
  qCWarning(inForms).noquote() << failure_;
}

}  // namespace qvn::designer
