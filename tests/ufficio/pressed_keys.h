// An operator in a program that no test can reach into: a plugin of Qt that presses keys when its window stands. They
// are told by the environment, QT_QPA_GENERIC_PLUGINS=qvn-keys:KEYS, as in "qvn-keys:F6 Down Ctrl+Q".
#pragma once

#include <QGenericPlugin>
#include <QStringList>

namespace qvn::test {

class PressedKeys final : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "pressed_keys.json")

 public:
  QObject* create(const QString& name, const QString& keys) override;

 private:
  void pressNext();

  QStringList keys_;
};

}  // namespace qvn::test
