// The panels in Qt's Designer itself, which finds the plugin as it finds all others.
#include <QApplication>
#include <QLabel>
#include <QMetaProperty>
#include <QSettings>
#include <QTemporaryDir>
#include <QUndoStack>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QExtensionManager>
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

#include "tests/designer/application.h"

/// What sets Designer up, of a library that comes without a header.
class QDesignerComponents {
 public:
  static void initializeResources();
  static QDesignerFormEditorInterface* createFormEditor(QObject* parent);
  static void initializePlugins(QDesignerFormEditorInterface* designer);
};

namespace {

/// One for the whole program, as Designer is.
QDesignerFormEditorInterface& designer() {
  static QDesignerFormEditorInterface& instance = []() -> QDesignerFormEditorInterface& {
    QApplication& application = qvn::test::application();
    static const QTemporaryDir settings;  // it stores what it has found
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QCoreApplication::addLibraryPath(QStringLiteral(QVN_PLUGINS "/.."));
    QDesignerComponents::initializeResources();
    QDesignerFormEditorInterface* const made = QDesignerComponents::createFormEditor(&application);
    QDesignerComponents::initializePlugins(made);
    new QDesignerIntegration(made, made);
    return *made;
  }();
  return instance;
}

QString className(const QString& panel) { return QStringLiteral("qvn::designer::") + panel; }

/// A form in Designer with one panel in it.
class InDesigner : public testing::Test {
 public:
  ~InDesigner() override {
    if (form != nullptr) designer().formWindowManager()->removeFormWindow(form);
    delete form;
  }

  void place(const QString& panel) {
    open(QStringLiteral(R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">)"
                        R"(<widget class="%1" name="panel"/></widget></ui>)")
             .arg(className(panel)));
  }
  void open(const QString& contents) {
    delete form;
    form = designer().formWindowManager()->createFormWindow();
    ASSERT_TRUE(form->setContents(contents));
  }

  QWidget& panel() { return *form->findChild<QWidget*>(QStringLiteral("panel")); }
  QDesignerPropertySheetExtension& sheet() {
    return *qt_extension<QDesignerPropertySheetExtension*>(designer().extensionManager(), &panel());
  }
  QString headOf(const char* property) { return sheet().propertyGroup(sheet().indexOf(QLatin1String(property))); }
  /// What the property editor shows, and what it sets.
  QString shown(const char* property) { return panel().property(property).toString(); }
  void set(const char* property, const QVariant& value) {
    form->cursor()->setWidgetProperty(&panel(), QLatin1String(property), value);
  }
  bool isSeen(const QString& text) {
    QApplication::processEvents();
    const auto labels = panel().findChildren<QLabel*>();
    return std::ranges::any_of(labels, [&](const QLabel* label) { return label->text() == text; });
  }

  QDesignerFormWindowInterface* form = nullptr;
};

TEST_F(InDesigner, AllPanelsAreFoundAndNoneIsAContainer) {
  const QDesignerWidgetDataBaseInterface& known = *designer().widgetDataBase();
  int panels = 0;
  for (int i = 0; i < known.count(); ++i) {
    const QDesignerWidgetDataBaseItemInterface& one = *known.item(i);
    if (!one.name().startsWith(className(QString()))) continue;
    ++panels;
    EXPECT_EQ(one.group(), "qvn") << one.name().toStdString();
    EXPECT_EQ(one.includeFile(), "platforms/designer/panels.h") << one.name().toStdString();
    EXPECT_TRUE(one.isCustom() && !one.isContainer() && !one.icon().isNull()) << one.name().toStdString();
  }
  EXPECT_EQ(panels, 17);
}

TEST_F(InDesigner, PropertiesStandUnderHeadsThatSayWhatCanBeDoneWithThem) {
  place("ctlSOSPESI");
  EXPECT_EQ(headOf("DATA_DOC"), "ctlSOSPESI");
  EXPECT_EQ(headOf("PL"), "ctlSOSPESI, shown only");
  EXPECT_EQ(headOf("geometry"), "QWidget");
  place("ctlINS_MOVIMENTI");
  EXPECT_EQ(headOf("DESC_CONTO"), "ctlINS_MOVIMENTI, written only");
  place("ctlPROV_POLIZZE");
  EXPECT_EQ(headOf("P_ATTIVE"), "ctlPROV_POLIZZE, read only");
}

TEST_F(InDesigner, EveryPropertyOfEveryPanelHasAHeadOfItsPanel) {
  const QDesignerWidgetDataBaseInterface& known = *designer().widgetDataBase();
  int properties = 0;
  for (int i = 0; i < known.count(); ++i) {
    if (!known.item(i)->name().startsWith(className(QString()))) continue;
    const QString name = known.item(i)->name().section(QStringLiteral("::"), -1);
    place(name);
    const QMetaObject& description = *panel().metaObject();
    for (int at = description.propertyOffset(); at < description.propertyCount(); ++at, ++properties) {
      const char* const property = description.property(at).name();
      const bool isMarked = description.indexOfClassInfo(property) >= 0;
      EXPECT_THAT(headOf(property).toStdString(), isMarked ? testing::StartsWith(name.toStdString() + ", ")
                                                           : testing::Matcher<std::string>(name.toStdString()))
          << property;
    }
  }
  EXPECT_GE(properties, 100);
}

TEST_F(InDesigner, WhatThePanelDoesNotGiveBackIsStoredInTheForm) {
  place("ctlSOSPESI");
  EXPECT_THAT(form->contents().toStdString(), testing::Not(testing::HasSubstr("CLIENTE")));
  set("CLIENTE", "ROSSI MARIO");
  set("PL", "1234,5");
  EXPECT_TRUE(isSeen("ROSSI MARIO"));
  EXPECT_TRUE(isSeen(QStringLiteral("€ 1.234,50")));
  const QString stored = form->contents();
  open(stored);
  EXPECT_EQ(shown("CLIENTE"), "ROSSI MARIO");
  EXPECT_EQ(shown("PL"), "1234,5");
  EXPECT_TRUE(isSeen("ROSSI MARIO"));
  EXPECT_EQ(form->contents(), stored);
}

TEST_F(InDesigner, WhatCannotBeReadIsStoredInTheForm) {
  place("ctlINS_MOVIMENTI");
  set("DESC_CONTO", "CASSA");
  const QString stored = form->contents();
  open(stored);
  EXPECT_EQ(shown("DESC_CONTO"), "CASSA");
  EXPECT_EQ(form->contents(), stored);
}

TEST_F(InDesigner, WhatIsSetIsTakenBackAndSetAgain) {
  place("ctlSOSPESI");
  set("CLIENTE", "ROSSI");
  set("PL", "1234,5");
  form->commandHistory()->undo();
  EXPECT_EQ(shown("PL"), "");
  EXPECT_EQ(shown("CLIENTE"), "ROSSI");
  form->commandHistory()->undo();
  EXPECT_EQ(shown("CLIENTE"), "");
  EXPECT_FALSE(isSeen("ROSSI"));
  form->commandHistory()->redo();
  EXPECT_EQ(shown("CLIENTE"), "ROSSI");
  EXPECT_TRUE(isSeen("ROSSI"));
}

TEST_F(InDesigner, WhatAPanelRefusesLeavesThePropertyAsItWas) {
  place("ctlIVA");
  set("Codice", 22);
  set("Codice", 300);
  EXPECT_EQ(panel().property("Codice").toInt(), 22);
}

}  // namespace
