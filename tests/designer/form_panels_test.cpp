// The panels of forms have the properties of the panels, and say of each what can be done with it.
#include <QMetaProperty>
#include <QPointer>
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "platforms/designer/panels.h"
#include "platforms/memory/platform.h"
#include "platforms/qt/platform.h"
#include "platforms/qt/texts.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"
#include "tests/recording_container.h"

namespace qvn::test {
namespace {

using designer::FormPanel;
using designer::formPanels;
using designer::PanelInForm;

std::string panelName(const FormPanel& panel) {
  const std::string name = panel.description.className();
  return name.substr(name.rfind(':') + 1);
}

std::string markOf(const FormPanel& panel, std::string_view property) {
  const int index = panel.description.indexOfClassInfo(std::string(property).c_str());
  return index < 0 ? std::string() : panel.description.classInfo(index).value();
}

std::vector<QMetaProperty> ownProperties(const FormPanel& panel) {
  std::vector<QMetaProperty> properties;
  for (int i = panel.description.propertyOffset(); i < panel.description.propertyCount(); ++i) {
    properties.push_back(panel.description.property(i));
  }
  return properties;
}

/// The members that a form can show: all properties but the reference to the event object.
std::vector<Member> propertiesOf(const FormPanel& panel) {
  std::vector<Member> properties;
  for (const Member& member : panelClass(panelName(panel)).members()) {
    if (member.kind != MemberKind::Method && member.name != "Events") properties.push_back(member);
  }
  return properties;
}

int typeInForms(const Member& member, const std::string& mark) {
  if (!mark.empty()) return QMetaType::QString;
  if (member.type == "boolean") return QMetaType::Bool;
  return member.type.find("integer") != std::string_view::npos ? QMetaType::Int : QMetaType::QString;
}

class FormPanels : public testing::Test {
 public:
  FormPanels() { Globale::install(platform); }
  ~FormPanels() override { Globale::uninstall(); }

  qt::OffscreenPlatform platform;
};

TEST_F(FormPanels, AreAllPanelsOfTheLibrary) {
  std::vector<std::string> names;
  for (const FormPanel& panel : formPanels()) names.push_back(panelName(panel));
  std::vector<std::string> expected;
  for (const PanelClass& one : panelClasses()) expected.emplace_back(one.name);
  EXPECT_EQ(names, expected);
}

TEST_F(FormPanels, HaveThePropertiesOfTheirPanelsInTheirOrder) {
  for (const FormPanel& panel : formPanels()) {
    std::vector<std::string> names;
    for (const QMetaProperty& property : ownProperties(panel)) names.emplace_back(property.name());
    std::vector<std::string> expected;
    for (const Member& member : propertiesOf(panel)) expected.emplace_back(member.name);
    EXPECT_EQ(names, expected) << panelName(panel);
  }
}

TEST_F(FormPanels, HaveTheTypesThatAFormCanShow) {
  for (const FormPanel& panel : formPanels()) {
    for (const Member& member : propertiesOf(panel)) {
      const std::string name(member.name);
      const QMetaProperty property = panel.description.property(panel.description.indexOfProperty(name.c_str()));
      EXPECT_EQ(property.typeId(), typeInForms(member, markOf(panel, name))) << panelName(panel) << '.' << name;
      EXPECT_TRUE(property.isWritable() && property.isDesignable() && property.isStored()) << name;
    }
  }
}

/// Panels in memory, to try values on.
class Probe : public testing::Test {
 public:
  Probe() { Globale::install(platform); }
  ~Probe() override { Globale::uninstall(); }

  std::unique_ptr<Panel> make(const FormPanel& kind) {
    return panelClass(panelName(kind)).make({.container = container, .name = "probe"});
  }
  /// Whether what is written to it can ever be read from it.
  bool isGivenBack(const FormPanel& kind, std::string_view property);

  memory::Platform platform;
  RecordingContainer container;
};

/// Values of every kind that a property may take: what its panel's lists offer, and some of each type.
std::vector<Variant> samples(const toolkit::PanelLayout& layout) {
  std::vector<Variant> values{
      std::string("A"), std::string("D"), std::string("1"), std::string("05/06/2024"), std::int32_t{2}, true, false};
  for (const toolkit::WidgetLayout& widget : layout.widgets) {
    for (const std::string_view item : widget.items) {
      values.emplace_back(std::string(item));
      values.emplace_back(std::string(item.substr(0, 1)));
    }
  }
  return values;
}

Variant readOf(Panel& panel, std::string_view property) {
  try {
    return getByName(panel, property);
  } catch (const Failure& failure) {
    return std::string(failure.what());
  }
}

/// A code stays written where its look-up fails.
void write(Panel& panel, std::string_view property, const Variant& value) {
  try {
    letByName(panel, property, value);
  } catch (const Failure& failure) {
    EXPECT_THAT(failure.what(), testing::HasSubstr(std::string(property)));
  }
}

bool Probe::isGivenBack(const FormPanel& kind, std::string_view property) {
  for (const Variant& value : samples(make(kind)->surface().layout())) {
    const std::unique_ptr<Panel> panel = make(kind);
    const Variant before = readOf(*panel, property);
    write(*panel, property, value);
    if (readOf(*panel, property) != before) return true;
  }
  return false;
}

TEST_F(Probe, FindsTheMarksOfWhatThePanelDoesNotGiveBack) {
  for (const FormPanel& panel : formPanels()) {
    for (const Member& member : propertiesOf(panel)) {
      std::string expected;
      if (member.kind == MemberKind::Let) {
        expected = "written";
      } else if (member.name == "P_ATTIVE" || member.name == "P_PASSIVE") {
        expected = "read";
      } else if (!isGivenBack(panel, member.name)) {
        expected = "shown";
      }
      EXPECT_EQ(markOf(panel, member.name), expected) << panelName(panel) << '.' << member.name;
    }
  }
}

TEST_F(Probe, FindsNoEffectOfWritingWhatThePanelWorksOut) {
  const FormPanel& kind = *std::ranges::find(formPanels(), "ctlPROV_POLIZZE", panelName);
  for (const char* property : {"P_ATTIVE", "P_PASSIVE"}) EXPECT_FALSE(isGivenBack(kind, property)) << property;
}

TEST_F(FormPanels, KeepWhatIsWrittenForWhoeverWritesTheForm) {
  const std::unique_ptr<PanelInForm> used(designer::makeFormPanel("qvn::designer::ctlSOSPESI", nullptr));
  const std::unique_ptr<PanelInForm> designed(designer::makeFormPanel("qvn::designer::ctlSOSPESI", nullptr));
  designed->keepWhatIsWritten();
  for (PanelInForm* panel : {used.get(), designed.get()}) panel->setProperty("CLIENTE", "ROSSI");
  EXPECT_EQ(used->property("CLIENTE").toString(), "");
  EXPECT_EQ(designed->property("CLIENTE").toString(), "ROSSI");
}

TEST_F(FormPanels, AreOnTheHostsPlatform) {
  for (const FormPanel& kind : formPanels()) {
    const std::unique_ptr<PanelInForm> panel(kind.make(nullptr));
    EXPECT_EQ(&panel->placed()->panel().surface().platform(), &platform);
    EXPECT_EQ(panel->size(), platform.widgetOf(panel->placed()->panel().surface()).size());
    EXPECT_EQ(panel->sizeHint(), panel->size());
  }
}

TEST_F(FormPanels, AreMadeByTheNamesOfTheirClasses) {
  const std::unique_ptr<PanelInForm> panel(designer::makeFormPanel("qvn::designer::ctlIVA", nullptr));
  ASSERT_NE(panel, nullptr);
  EXPECT_STREQ(panel->metaObject()->className(), "qvn::designer::ctlIVA");
  EXPECT_EQ(designer::makeFormPanel("QLineEdit", nullptr), nullptr);
  EXPECT_EQ(designer::makeFormPanel("ctlIVA", nullptr), nullptr);
}

TEST_F(FormPanels, TellWhyAValueIsRefused) {
  designer::ctlIVA panel;
  panel.Codice(22);
  EXPECT_EQ(panel.failure(), "");
  panel.Codice(300);
  EXPECT_EQ(panel.Codice(), 22);
  EXPECT_THAT(panel.failure().toStdString(), testing::HasSubstr("ctlIVA.Codice"));
}

TEST_F(FormPanels, MayBeDroppedWhileTheyAnnounceAChange) {
  const QPointer<designer::ctlIVA> panel(new designer::ctlIVA);
  QObject::connect(panel, &PanelInForm::changed, [&](const QString& property) {
    EXPECT_EQ(property, "Codice");
    delete panel;
  });
  panel->Codice(22);
  EXPECT_EQ(panel, nullptr);
}

TEST(FormPanelsElsewhere, SayWhyTheyCannotBeMade) {
  memory::Platform elsewhere;
  const qt::OffscreenPlatform application;
  Globale::install(elsewhere);
  designer::ctlIVA panel;
  EXPECT_EQ(panel.placed(), nullptr);
  EXPECT_EQ(panel.failure(), R"(the library is on the platform "memory")");
  panel.Codice(22);
  EXPECT_EQ(panel.Codice(), 0);
  EXPECT_TRUE(panel.members().isEmpty());
  EXPECT_FALSE(panel.call("Attiva").isValid());
  EXPECT_FALSE(panel.value("Codice").isValid());
  Globale::uninstall();
}

}  // namespace
}  // namespace qvn::test
