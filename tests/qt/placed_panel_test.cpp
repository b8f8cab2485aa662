// A panel as one widget, read and written by name.
#include "platforms/qt/placed_panel.h"

#include <QHBoxLayout>
#include <QMainWindow>
#include <QMetaObject>
#include <QPointer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"
#include "tests/qt/person.h"

namespace qvn::test {
namespace {

using qt::PlacedPanel;

class QtPlacedPanel : public testing::Test {
 public:
  QtPlacedPanel() { Globale::install(platform); }
  ~QtPlacedPanel() override {
    window.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Globale::uninstall();
  }

  PlacedPanel* place(const char* type) {
    return new PlacedPanel(platform, panelClass(type).make, QString::fromLatin1(type), window.get());
  }
  void show() {
    window->show();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
  }

  qt::OffscreenPlatform platform;
  std::unique_ptr<QMainWindow> window = std::make_unique<QMainWindow>();
};

TEST_F(QtPlacedPanel, GoesIntoALayoutAndIsTypedInto) {
  auto* middle = new QWidget;
  auto* layout = new QHBoxLayout(middle);
  PlacedPanel* iva = place("ctlIVA");
  layout->addWidget(iva);
  window->setCentralWidget(middle);
  std::vector<std::string> changed;
  QObject::connect(iva, &PlacedPanel::changed, [&](const QString& name) { changed.push_back(name.toStdString()); });
  show();
  iva->call(QStringLiteral("Attiva"));
  QApplication::processEvents();
  write(QStringLiteral("22"));
  press(Qt::Key_Return, QStringLiteral("\r"));
  write(QStringLiteral("ord"));
  EXPECT_EQ(iva->value(QStringLiteral("Codice")), QVariant(22));
  EXPECT_EQ(iva->value(QStringLiteral("descrizione")), QVariant(QStringLiteral("ORD")));
  EXPECT_THAT(changed, testing::ElementsAre("Codice", "Codice", "Descrizione", "Descrizione", "Descrizione"));
  EXPECT_EQ(iva->size(), iva->childrenRect().size());
}

TEST_F(QtPlacedPanel, ShowsNothingOfAPanelThatIsHidden) {
  PlacedPanel* iva = place("ctlIVA");
  window->setCentralWidget(iva);
  iva->panel().surface().Visible(false);
  show();
  EXPECT_TRUE(iva->isVisible());
  EXPECT_FALSE(platform.widgetOf(iva->panel().surface()).isVisible());
  iva->panel().surface().Visible(true);
  QApplication::processEvents();
  EXPECT_TRUE(platform.widgetOf(iva->panel().surface()).isVisible());
}

TEST_F(QtPlacedPanel, IsReadWrittenAndCalledByName) {
  PlacedPanel* iva = place("ctlIVA");
  EXPECT_TRUE(iva->setValue(QStringLiteral("IVA"), 250));
  EXPECT_EQ(iva->value(QStringLiteral("IVA")), QVariant(100));
  EXPECT_FALSE(iva->call(QStringLiteral("Disattiva")).isValid());
  EXPECT_EQ(iva->failure(), QString());
  EXPECT_EQ(iva->members(), QStringList({"Codice", "Deb_Dec", "DESCRIZIONE", "Attiva", "Disattiva", "IVA"}));
}

TEST_F(QtPlacedPanel, IsReachedThroughItsMetaObject) {
  PlacedPanel* iva = place("ctlIVA");
  bool done = false;
  QVariant value;
  EXPECT_TRUE(QMetaObject::invokeMethod(iva, "setValue", Q_RETURN_ARG(bool, done),
                                        Q_ARG(QString, QStringLiteral("IVA")),
                                        Q_ARG(QVariant, QVariant(QStringLiteral("7")))));
  EXPECT_TRUE(done);
  EXPECT_TRUE(
      QMetaObject::invokeMethod(iva, "value", Q_RETURN_ARG(QVariant, value), Q_ARG(QString, QStringLiteral("IVA"))));
  EXPECT_EQ(value, QVariant(7));
}

TEST_F(QtPlacedPanel, AmountsKeepTheirFourDecimals) {
  PlacedPanel* commission = place("ctlPROV_POLIZZE");
  const QVariant amount = QVariant::fromValue(Currency::fromTenThousandths(12'345'600));
  EXPECT_TRUE(commission->setValue(QStringLiteral("PN_UFF"), amount)) << commission->failure().toStdString();
  EXPECT_EQ(commission->value(QStringLiteral("PN_UFF")).value<Currency>(), Currency::fromTenThousandths(12'345'600));
}

TEST_F(QtPlacedPanel, TellsWhatFailedAndForgetsItAtTheNextCall) {
  PlacedPanel* iva = place("ctlIVA");
  EXPECT_FALSE(iva->value(QStringLiteral("Codice")).isValid());
  EXPECT_THAT(iva->failure().toStdString(), testing::AllOf(testing::HasSubstr("ctlIVA"), testing::HasSubstr("Codice")));
  EXPECT_FALSE(iva->setValue(QStringLiteral("Codice"), 300));
  EXPECT_THAT(iva->failure().toStdString(), testing::HasSubstr("300"));
  EXPECT_FALSE(iva->setValue(QStringLiteral("Codice"), QPoint(1, 2)));
  EXPECT_THAT(iva->failure().toStdString(), testing::HasSubstr("QPoint"));
  EXPECT_FALSE(iva->call(QStringLiteral("Salva")).isValid());
  EXPECT_THAT(iva->failure().toStdString(), testing::HasSubstr("Salva"));
  EXPECT_TRUE(iva->setValue(QStringLiteral("Codice"), 30));
  EXPECT_EQ(iva->failure(), QString());
}

TEST_F(QtPlacedPanel, AFailingHandlerArrivesAsASignalAndTheKeysGoOn) {
  PlacedPanel* line = place("ctlINS_IVA");
  window->setCentralWidget(line);
  std::vector<std::string> failed;
  QObject::connect(line, &PlacedPanel::failed, [&](const QString& widget, const QString& event, const QString& why) {
    failed.push_back((widget + ' ' + event + ": " + why).toStdString());
  });
  show();
  line->call(QStringLiteral("Attiva"));
  QApplication::processEvents();
  write(QStringLiteral("12"));
  EXPECT_EQ(line->value(QStringLiteral("COD_IVA")), QVariant(12)) << line->failure().toStdString();
  ASSERT_EQ(failed.size(), 2U);
  EXPECT_THAT(failed.front(), testing::StartsWith("txtCOD_IVA Change: the connection is closed"));
}

TEST_F(QtPlacedPanel, MayBeDeletedInASlotOfItsOwn) {
  QPointer<PlacedPanel> iva = place("ctlIVA");
  window->setCentralWidget(iva);
  show();
  iva->call(QStringLiteral("Attiva"));
  QApplication::processEvents();
  QObject::connect(iva, &PlacedPanel::changed, [&] { delete iva; });
  write(QStringLiteral("2"));
  EXPECT_EQ(iva, nullptr);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

  QPointer<PlacedPanel> second = place("ctlIVA");
  QObject::connect(second, &PlacedPanel::changed, [&] { delete second; });
  EXPECT_TRUE(second->setValue(QStringLiteral("Codice"), 5));
  EXPECT_EQ(second, nullptr);
}

TEST_F(QtPlacedPanel, AsksForAPanelOfItsOwnPlatform) {
  qt::OffscreenPlatform another;
  EXPECT_THROW(PlacedPanel(another, panelClass("ctlIVA").make, QStringLiteral("iva")), Failure);
}

}  // namespace
}  // namespace qvn::test
