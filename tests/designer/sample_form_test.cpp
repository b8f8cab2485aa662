// The sample form, loaded by a program that knows the panels by name alone.
#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

#include "tests/designer/application.h"
#include "tests/qt/person.h"

namespace qvn::test {
namespace {

QString markOf(const QMetaObject& description, const QString& property) {
  const int index = description.indexOfClassInfo(property.toUtf8());
  return index < 0 ? QString() : QString::fromLatin1(description.classInfo(index).value());
}

/// One property as the form file has it.
struct Stored {
  QString panel;
  QString property;
  QString value;
};

/// The properties of panels in the form file.
QList<Stored> storedProperties() {
  QFile file(QStringLiteral(QVN_FORM));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader reader(&file);
  QList<Stored> all;
  QString panel;
  while (!reader.atEnd()) {
    reader.readNext();
    if (reader.isStartElement() && reader.name() == QLatin1String("widget")) {
      const bool ours = reader.attributes().value("class").startsWith(QLatin1String("qvn::"));
      panel = ours ? reader.attributes().value("name").toString() : QString();
    } else if (reader.isEndElement() && reader.name() == QLatin1String("widget")) {
      panel.clear();
    } else if (reader.isStartElement() && reader.name() == QLatin1String("property") && !panel.isEmpty()) {
      const QString name = reader.attributes().value("name").toString();
      reader.readNextStartElement();
      all.append({panel, name, reader.readElementText(QXmlStreamReader::IncludeChildElements)});
    }
  }
  return all;
}

class SampleForm : public testing::Test {
 public:
  SampleForm() {
    application();
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(QVN_PLUGINS));
    QFile file(QStringLiteral(QVN_FORM));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    form.reset(loader.load(&file));
    EXPECT_NE(form, nullptr) << loader.errorString().toStdString();
  }

  QWidget& panel(const QString& name) { return *form->findChild<QWidget*>(name); }
  QList<QWidget*> panels() {
    QList<QWidget*> all;
    for (QWidget* one : form->findChildren<QWidget*>()) {
      if (qstrncmp(one->metaObject()->className(), "qvn::designer::", 15) == 0) all.append(one);
    }
    return all;
  }
  QVariant call(QWidget& on, const QString& method) {
    QVariant result;
    EXPECT_TRUE(QMetaObject::invokeMethod(&on, "call", Q_RETURN_ARG(QVariant, result), Q_ARG(QString, method),
                                          Q_ARG(QVariantList, QVariantList())));
    QApplication::processEvents();
    return result;
  }
  void show() {
    form->show();
    QApplication::setActiveWindow(form.get());
    QApplication::processEvents();
  }

  std::unique_ptr<QWidget> form;
};

TEST_F(SampleForm, HasAllPanels) {
  QSet<QString> classes;
  for (const QWidget* one : panels()) classes.insert(one->metaObject()->className());
  EXPECT_EQ(panels().size(), 17);
  EXPECT_EQ(classes.size(), 17);
}

TEST_F(SampleForm, SetsWhatItStoresOnThePanels) {
  int read = 0;
  for (const auto& [name, property, value] : storedProperties()) {
    if (!markOf(*panel(name).metaObject(), property).isEmpty()) continue;
    EXPECT_EQ(panel(name).property(property.toUtf8()).toString(), value)
        << name.toStdString() << '.' << property.toStdString();
    ++read;
  }
  EXPECT_GE(read, 40);
}

TEST_F(SampleForm, ShowsWhatThePanelsDoNotGiveBack) {
  show();
  const auto shows = [this](const QString& name, const QString& text) {
    const auto labels = panel(name).findChildren<QLabel*>();
    return std::ranges::any_of(labels, [&](const QLabel* label) { return label->text() == text; });
  };
  EXPECT_EQ(panel("sospesi").property("CLIENTE").toString(), "");
  EXPECT_EQ(panel("sospesi").property("PL").toString(), "0");
  EXPECT_TRUE(shows("sospesi", "ROSSI MARIO"));
  EXPECT_TRUE(shows("sospesi", "€ 1.234,50"));
  EXPECT_EQ(panel("ins_movimenti").property("DESC_CONTO").toString(), "");
  EXPECT_TRUE(shows("ins_movimenti", "CASSA"));
}

TEST_F(SampleForm, TellsWhatTheOperatorChanges) {
  show();
  QWidget& iva = panel("iva");
  const QSignalSpy changed(&iva, SIGNAL(changed(QString)));
  call(iva, "Attiva");
  write("3");
  EXPECT_EQ(iva.property("Codice").toInt(), 3);
  EXPECT_EQ(changed, QList<QList<QVariant>>{{"Codice"}});
}

TEST_F(SampleForm, AsksForADatabaseAndGoesOnWithoutOne) {
  show();
  QWidget& quota = panel("q_polizze");
  const QSignalSpy missing(&quota, SIGNAL(MancaDB()));
  const QSignalSpy failed(&quota, SIGNAL(failed(QString, QString, QString)));
  call(quota, "Attiva");
  press(Qt::Key_Return);
  write("?");
  EXPECT_EQ(missing.size(), 1);
  ASSERT_EQ(failed.size(), 1);
  EXPECT_EQ(failed.front().front().toString(), "TxtCOD_COMP");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(SampleForm, TellsWhyADatabaseCannotBeOpened) {
  bool opened = true;
  QMetaObject::invokeMethod(&panel("fido"), "ImpostaDB", Q_RETURN_ARG(bool, opened), Q_ARG(QString, "nowhere:x"));
  EXPECT_FALSE(opened);
  QString why;
  QMetaObject::invokeMethod(&panel("fido"), "failure", Q_RETURN_ARG(QString, why));
  EXPECT_THAT(why.toStdString(), testing::HasSubstr("nowhere:x"));
}

TEST_F(SampleForm, NamesEveryFieldForAssistivePrograms) {
  show();
  int fields = 0;
  for (QWidget* one : panels()) {
    for (QWidget* inside : one->findChildren<QWidget*>()) {
      if (inside->focusPolicy() == Qt::NoFocus || !inside->isVisible()) continue;
      ++fields;
      const QString name = QAccessible::queryAccessibleInterface(inside)->text(QAccessible::Name);
      EXPECT_FALSE(name.isEmpty()) << one->objectName().toStdString() << ": " << inside->metaObject()->className();
    }
  }
  EXPECT_GE(fields, 60);
}

TEST_F(SampleForm, IsDrawnWithEveryPanelInItsPlace) {
  show();
  const QImage picture = form->grab().toImage();
  for (QWidget* one : panels()) {
    const QRect place(one->mapTo(form.get(), QPoint()), one->size());
    EXPECT_TRUE(picture.rect().contains(place)) << one->objectName().toStdString();
    EXPECT_EQ(one->size(), one->sizeHint()) << one->objectName().toStdString();
    const QImage part = picture.copy(place);
    QSet<QRgb> colours;
    for (int y = 0; y < part.height(); ++y) {
      for (int x = 0; x < part.width(); ++x) colours.insert(part.pixel(x, y));
    }
    EXPECT_GE(colours.size(), 10) << one->objectName().toStdString();
  }
  const QString file = QStringLiteral(QVN_PICTURE);
  ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
  EXPECT_TRUE(picture.save(file));
}

}  // namespace
}  // namespace qvn::test
