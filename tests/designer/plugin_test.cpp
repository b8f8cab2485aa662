// What the plugin offers to Designer.
#include <QDir>
#include <QImage>
#include <QMap>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QSet>
#include <QWidget>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

#include "tests/designer/application.h"

namespace {

QList<QDesignerCustomWidgetInterface*> entries() {
  qvn::test::application();
  const QStringList files = QDir(QStringLiteral(QVN_PLUGINS)).entryList(QDir::Files);
  EXPECT_EQ(files.size(), 1);
  QPluginLoader loader(QDir(QStringLiteral(QVN_PLUGINS)).filePath(files.value(0)));
  auto* const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
  EXPECT_NE(collection, nullptr) << loader.errorString().toStdString();
  return collection == nullptr ? QList<QDesignerCustomWidgetInterface*>() : collection->customWidgets();
}

QDesignerCustomWidgetInterface& entry(const QString& panel) {
  for (QDesignerCustomWidgetInterface* one : entries()) {
    if (one->name() == QStringLiteral("qvn::designer::") + panel) return *one;
  }
  throw std::invalid_argument(panel.toStdString());
}

/// The text of each element of that name in a panel's description, by its attribute "name".
QMap<QString, QString> textsOf(const QString& xml, const QString& element) {
  QMap<QString, QString> texts;
  QXmlStreamReader reader(xml);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != element) continue;
    const QString name = reader.attributes().value("name").toString();
    texts[name] = reader.readElementText();
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  return texts;
}

TEST(DesignerPlugin, OffersTheSeventeenPanelsInOneGroup) {
  QSet<QString> names;
  QSet<QString> groups;
  for (const QDesignerCustomWidgetInterface* one : entries()) {
    names.insert(one->name());
    groups.insert(one->group());
    EXPECT_EQ(one->includeFile(), "platforms/designer/panels.h");
    EXPECT_FALSE(one->isContainer());
  }
  EXPECT_EQ(names.size(), 17);
  EXPECT_EQ(groups, QSet<QString>{QStringLiteral("qvn")});
}

TEST(DesignerPlugin, TellsEachPanelApartByTooltipAndHelp) {
  QSet<QString> tips;
  for (const QDesignerCustomWidgetInterface* one : entries()) {
    const QString panel = one->name().section("::", -1);
    tips.insert(one->toolTip());
    EXPECT_TRUE(one->toolTip().endsWith(" (" + panel + ")")) << one->toolTip().toStdString();
    EXPECT_TRUE(one->whatsThis().startsWith(one->toolTip() + ". Properties: "));
  }
  EXPECT_EQ(tips.size(), 17);
  EXPECT_EQ(entry("ctlIVA").whatsThis(),
            "A VAT code (ctlIVA). Properties: Codice, Deb_Dec, DESCRIZIONE, IVA. Methods: Attiva, Disattiva.");
}

TEST(DesignerPlugin, TellsEachPanelApartByItsIcon) {
  for (const int size : {22, 24, 32}) {
    QList<QImage> seen;
    for (const QDesignerCustomWidgetInterface* one : entries()) {
      const QImage icon = one->icon().pixmap(size).toImage();
      ASSERT_EQ(icon.size(), QSize(size, size)) << one->name().toStdString();
      EXPECT_FALSE(seen.contains(icon)) << one->name().toStdString();
      seen.append(icon);
    }
  }
}

double luminance(QColor colour) {
  const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double contrast(QColor a, QColor b) {
  const double x = luminance(a);
  const double y = luminance(b);
  return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

TEST(DesignerPlugin, HasIconsThatShowOnLightAndDarkPalettesInTheColoursOfFiveRooms) {
  QSet<QRgb> cards;
  for (const QDesignerCustomWidgetInterface* one : entries()) {
    const QColor card = one->icon().pixmap(32).toImage().pixelColor(16, 3);
    EXPECT_GE(contrast(card, Qt::white), 4.5) << one->name().toStdString();
    EXPECT_GE(contrast(card, QColor(0x1E, 0x1E, 0x1E)), 1.5) << one->name().toStdString();
    cards.insert(card.rgb());
  }
  EXPECT_EQ(cards.size(), 5);
}

TEST(DesignerPlugin, DescribesEachPanelInSoundXml) {
  for (QDesignerCustomWidgetInterface* one : entries()) {
    const QString xml = one->domXml();
    EXPECT_TRUE(xml.contains("class=\"" + one->name() + "\"")) << xml.toStdString();
    EXPECT_TRUE(xml.contains("displayname=\"" + one->name().section("::", -1) + "\""));
    const std::unique_ptr<QWidget> panel(one->createWidget(nullptr));
    const QMap<QString, QString> tips = textsOf(xml, "tooltip");
    const QMetaObject& description = *panel->metaObject();
    EXPECT_EQ(description.className(), one->name());
    EXPECT_EQ(tips.size(), description.propertyCount() - description.propertyOffset());
    for (int i = description.propertyOffset(); i < description.propertyCount(); ++i) {
      EXPECT_FALSE(tips.value(description.property(i).name()).isEmpty()) << description.property(i).name();
    }
  }
}

TEST(DesignerPlugin, SaysOfEachPropertyWhatItIsAndWhichAreNotGivenBack) {
  const QMap<QString, QString> title = textsOf(entry("ctlSOSPESI").domXml(), "tooltip");
  EXPECT_EQ(title["DATA_DOC"], "Variant.");
  EXPECT_EQ(title["PL"], "Currency. Shown only: the panel gives back nothing for it, and the host keeps the value.");
  const QMap<QString, QString> line = textsOf(entry("ctlINS_MOVIMENTI").domXml(), "tooltip");
  EXPECT_EQ(line["DESC_CONTO"], "Text. Written only: it cannot be read back.");
}

TEST(DesignerPlugin, MakesPanelsOfTheirOwnSize) {
  for (QDesignerCustomWidgetInterface* one : entries()) {
    const std::unique_ptr<QWidget> panel(one->createWidget(nullptr));
    EXPECT_GE(panel->sizeHint().width(), 300) << one->name().toStdString();
    EXPECT_GE(panel->sizeHint().height(), 40) << one->name().toStdString();
    EXPECT_EQ(panel->sizeHint(), panel->minimumSize());
    EXPECT_EQ(panel->sizeHint(), panel->maximumSize());
  }
}

}  // namespace
