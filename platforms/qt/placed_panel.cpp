#include "platforms/qt/placed_panel.h"

#include <QPointer>
#include <exception>
#include <vector>

#include "platforms/qt/texts.h"
#include "platforms/qt/variants.h"

namespace qvn::qt {

PlacedPanel::PlacedPanel(Platform& platform, Maker make, const QString& name, QWidget* parent)
    : QWidget(parent), panel_(make({.container = announcements_, .name = utf8(name)})) {
  QWidget& inside = platform.widgetOf(panel_->surface());
  setObjectName(name);
  setFixedSize(inside.size());
  inside.setParent(this);
  inside.move(0, 0);
  connect(&announcements_, &Announcements::changed, this,
          [this](const QString& /*panel*/, const QString& property) { emit changed(property); });
  connect(&announcements_, &Announcements::failed, this,
          [this](const QString& /*panel*/, const QString& widget, const QString& event, const QString& message) {
            emit failed(widget, event, message);
          });
}

PlacedPanel::~PlacedPanel() {
  // It goes with the panel, once Qt no longer stands on it.
  if (auto* inside = findChild<QWidget*>(objectName(), Qt::FindDirectChildrenOnly)) inside->setParent(nullptr);
}

QStringList PlacedPanel::members() const {
  QStringList names;
  for (const Member& member : panel_->members()) names.append(shown(member.name));
  return names;
}

template <class Do>
QVariant PlacedPanel::attempt(Do act) {
  const QPointer<PlacedPanel> alive(this);
  QString reason;
  QVariant result;
  try {
    result = act();
  } catch (const std::exception& failure) {
    reason = shown(failure.what());
  }
  if (alive != nullptr) failure_ = reason;
  return result;
}

QVariant PlacedPanel::value(const QString& property) {
  return attempt([&] { return toQt(getByName(*panel_, utf8(property))); });
}

bool PlacedPanel::setValue(const QString& property, const QVariant& value) {
  return attempt([&] {
           letByName(*panel_, utf8(property), fromQt(value));
           return QVariant(true);
         })
      .isValid();
}

QVariant PlacedPanel::call(const QString& method, const QVariantList& arguments) {
  return attempt([&] {
    std::vector<Variant> args;
    args.reserve(static_cast<std::size_t>(arguments.size()));
    for (const QVariant& argument : arguments) args.push_back(fromQt(argument));
    return toQt(callByName(*panel_, utf8(method), args));
  });
}

}  // namespace qvn::qt
