#include "platforms/designer/palette_entry.h"

#include <QMetaProperty>
#include <QXmlStreamWriter>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <array>
#include <memory>

#include "platforms/designer/panel_icon.h"
#include "platforms/qt/texts.h"
#include "qvn/panels/classes.h"

namespace qvn::designer {

namespace {

/// The name of the panel's own class.
QString panelName(const QMetaObject& description) {
  return QString::fromLatin1(description.className()).section(QStringLiteral("::"), -1);
}

QString classInfo(const QMetaObject& description, const char* name) {
  const int index = description.indexOfClassInfo(name);
  return index < 0 ? QString() : QString::fromLatin1(description.classInfo(index).value());
}

/// How a property differs from one that is both read and written.
struct Use {
  const char* mark;
  const char* group;  ///< in the property editor, behind the panel's name
  const char* words;
};
constexpr std::array kUses{
    Use{"shown", "shown only", "Shown only: the panel gives back nothing for it, and the host keeps the value."},
    Use{"read", "read only", "Read only: the panel works it out, and writing does nothing."},
    Use{"written", "written only", "Written only: it cannot be read back."}};

const Use* useOf(const QMetaObject& description, const char* property) {
  const QString mark = classInfo(description, property);
  for (const Use& use : kUses) {
    if (mark == QLatin1String(use.mark)) return &use;
  }
  return nullptr;
}

QList<QMetaProperty> ownProperties(const QMetaObject& description) {
  QList<QMetaProperty> properties;
  for (int i = description.propertyOffset(); i < description.propertyCount(); ++i) {
    properties.append(description.property(i));
  }
  return properties;
}

/// The type of a member as the panel tells it.
QString typeOf(const QMetaObject& description, const char* member) {
  for (const Member& one : panelClass(panelName(description).toStdString()).members()) {
    if (one.name == member) return qt::shown(one.type);
  }
  return {};
}

QString tooltipOf(const QMetaObject& description, const QMetaProperty& property) {
  const QString type = typeOf(description, property.name());
  const Use* const use = useOf(description, property.name());
  QString text = type.left(1).toUpper() + type.mid(1) + QLatin1Char('.');
  if (use != nullptr) text += QLatin1Char(' ') + QLatin1String(use->words);
  return text;
}

void writeTooltips(QXmlStreamWriter& xml, const QMetaObject& description) {
  xml.writeStartElement(
      QStringLiteral("propertyspec"
                     "ifications"));
  for (const QMetaProperty& property : ownProperties(description)) {
    xml.writeStartElement(QStringLiteral("tooltip"));
    xml.writeAttribute(QStringLiteral("name"), QString::fromLatin1(property.name()));
    xml.writeCharacters(tooltipOf(description, property));
    xml.writeEndElement();
    if (property.typeId() != QMetaType::QString) continue;
    xml.writeEmptyElement(
        QStringLiteral("stringpropertyspec"
                       "ification"));
    xml.writeAttribute(QStringLiteral("name"), QString::fromLatin1(property.name()));
    xml.writeAttribute(QStringLiteral("notr"), QStringLiteral("true"));
    xml.writeAttribute(QStringLiteral("type"), QStringLiteral("singleline"));
  }
  xml.writeEndElement();
}

/// Puts the properties that are not both read and written under heads of their own.
void groupProperties(QObject& designer, QWidget& panel, const QMetaObject& description) {
  for (QObject* const child : designer.children()) {
    auto* const manager = qobject_cast<QAbstractExtensionManager*>(child);
    if (manager == nullptr) continue;
    auto* const sheet = qt_extension<QDesignerPropertySheetExtension*>(manager, &panel);
    if (sheet == nullptr) continue;
    for (const QMetaProperty& property : ownProperties(description)) {
      const Use* const use = useOf(description, property.name());
      const int index = sheet->indexOf(QString::fromLatin1(property.name()));
      const QString head = panelName(description);
      sheet->setPropertyGroup(index, use == nullptr ? head : head + QStringLiteral(", ") + QLatin1String(use->group));
    }
  }
}

}  // namespace

QString PaletteEntry::toolTip() const {
  return classInfo(panel_.description, "what") + QStringLiteral(" (") + panelName(panel_.description) +
         QLatin1Char(')');
}

QString PaletteEntry::whatsThis() const {
  QString text = toolTip() + QStringLiteral(". Properties: ");
  QStringList properties;
  for (const QMetaProperty& property : ownProperties(panel_.description)) {
    const Use* const use = useOf(panel_.description, property.name());
    QString one = QString::fromLatin1(property.name());
    if (use != nullptr) one += QStringLiteral(" (") + QLatin1String(use->group) + QLatin1Char(')');
    properties.append(one);
  }
  QStringList methods;
  for (const Member& member : panelClass(panelName(panel_.description).toStdString()).members()) {
    if (member.kind == MemberKind::Method) methods.append(qt::shown(member.name));
  }
  text += properties.join(QStringLiteral(", ")) + QLatin1Char('.');
  if (!methods.isEmpty()) text += QStringLiteral(" Methods: ") + methods.join(QStringLiteral(", ")) + QLatin1Char('.');
  return text;
}

QIcon PaletteEntry::icon() const {
  const std::unique_ptr<PanelInForm> sample(panel_.make(nullptr));
  if (sample->placed() == nullptr) return {};
  return panelIcon(sample->placed()->panel().surface().layout(), classInfo(panel_.description, "room").toStdString(),
                   classInfo(panel_.description, "mark"));
}

QWidget* PaletteEntry::createWidget(QWidget* parent) {
  PanelInForm* const panel = panel_.make(parent);
  if (designer_ == nullptr) return panel;
  panel->keepWhatIsWritten();
  groupProperties(*designer_, *panel, panel_.description);
  return panel;
}

void PaletteEntry::initialize(QDesignerFormEditorInterface* designer) { designer_ = designer; }

QString PaletteEntry::domXml() const {
  const QString panel = panelName(panel_.description);
  QString text;
  QXmlStreamWriter xml(&text);
  xml.writeStartElement(QStringLiteral("ui"));
  xml.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
  xml.writeAttribute(QStringLiteral("displayname"), panel);
  xml.writeEmptyElement(QStringLiteral("widget"));
  xml.writeAttribute(QStringLiteral("class"), name());
  xml.writeAttribute(QStringLiteral("name"), panel.mid(3).toLower());
  xml.writeStartElement(QStringLiteral("customwidgets"));
  xml.writeStartElement(QStringLiteral("customwidget"));
  xml.writeTextElement(QStringLiteral("class"), name());
  xml.writeTextElement(QStringLiteral("extends"), QStringLiteral("QWidget"));
  xml.writeTextElement(QStringLiteral("header"), includeFile());
  writeTooltips(xml, panel_.description);
  xml.writeEndElement();
  xml.writeEndElement();
  xml.writeEndElement();
  return text;
}

}  // namespace qvn::designer
