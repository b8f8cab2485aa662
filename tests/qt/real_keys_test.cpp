// Every panel, typed into by real key events in any order, beside the same panel driven by the hands in memory.
#include <array>
#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "platforms/memory/usable.h"
#include "platforms/qt/platform.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/clsQVN_Eventi.h"
#include "tests/fake_database.h"
#include "tests/qt/agreement.h"
#include "tests/qt/person.h"
#include "tests/recording_container.h"

namespace qvn::test {
namespace {

/// A key of the keyboard, and as the hands know it.
struct KeyOnBoth {
  const char* hands;
  int key;
  const char* text = "";
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

constexpr std::array kKeys{
    KeyOnBoth{"0", Qt::Key_0, "0"},
    KeyOnBoth{"1", Qt::Key_1, "1", Qt::KeypadModifier},
    KeyOnBoth{"2", Qt::Key_2, "2"},
    KeyOnBoth{"5", Qt::Key_5, "5", Qt::KeypadModifier},
    KeyOnBoth{"9", Qt::Key_9, "9"},
    KeyOnBoth{",", Qt::Key_Period, ".", Qt::KeypadModifier},
    KeyOnBoth{".", Qt::Key_Period, "."},
    KeyOnBoth{"-", Qt::Key_Minus, "-", Qt::KeypadModifier},
    KeyOnBoth{"a", Qt::Key_A, "a"},
    KeyOnBoth{"D", Qt::Key_D, "D", Qt::ShiftModifier},
    KeyOnBoth{"à", Qt::Key_Agrave, "à"},
    KeyOnBoth{" ", Qt::Key_Space, " "},
    KeyOnBoth{"?", Qt::Key_Question, "?", Qt::ShiftModifier},
    KeyOnBoth{"{Enter}", Qt::Key_Return, "\r"},
    KeyOnBoth{"{Enter}", Qt::Key_Enter, "\r", Qt::KeypadModifier},
    KeyOnBoth{"{Tab}", Qt::Key_Tab, "\t"},
    KeyOnBoth{"{ShiftTab}", Qt::Key_Backtab, "", Qt::ShiftModifier},
    KeyOnBoth{"{Backspace}", Qt::Key_Backspace, "\b"},
    KeyOnBoth{"{Delete}", Qt::Key_Delete, "\x7f"},
    KeyOnBoth{"{Escape}", Qt::Key_Escape, "\x1b"},
    KeyOnBoth{"{Left}", Qt::Key_Left},
    KeyOnBoth{"{Right}", Qt::Key_Right},
    KeyOnBoth{"{Up}", Qt::Key_Up},
    KeyOnBoth{"{Down}", Qt::Key_Down},
    KeyOnBoth{"{Home}", Qt::Key_Home},
    KeyOnBoth{"{End}", Qt::Key_End},
};

std::vector<KeyOnBoth> keysFor(const std::string& panel) {
  constexpr std::size_t kMany = 400;
  std::mt19937 random(static_cast<std::uint32_t>(panel.size() * 31 + static_cast<unsigned char>(panel.back())));
  std::vector<KeyOnBoth> keys;
  keys.reserve(kMany);
  while (keys.size() < kMany) keys.push_back(kKeys.at(random() % kKeys.size()));
  return keys;
}

/// What a widget says that keys may change.
std::string contentOf(const toolkit::Widget& widget) {
  std::ostringstream says;
  says << widget.Name() << (widget.Enabled() ? "" : " off") << (widget.Visible() ? "" : " hidden") << ' ' << std::hex
       << widget.BackColor() << std::dec << ' ';
  switch (widget.Kind()) {
    case toolkit::WidgetKind::TextBox:
    case toolkit::WidgetKind::DateControl: {
      const auto& field = static_cast<const toolkit::EditableText&>(widget);
      says << field.Text();
      if (field.hasFocus()) says << " at " << field.SelStart() << '+' << field.SelLength();
      break;
    }
    case toolkit::WidgetKind::Label:
      says << static_cast<const toolkit::Label&>(widget).Caption();
      break;
    case toolkit::WidgetKind::ComboBox:
      says << static_cast<const toolkit::ComboBox&>(widget).ListIndex();
      break;
    case toolkit::WidgetKind::CheckBox:
      says << static_cast<const toolkit::CheckBox&>(widget).Value();
      break;
    default:
      break;
  }
  return says.str();
}

/// One panel on a platform, with its operator's side.
template <class P>
class Placed {
 public:
  explicit Placed(const std::string& type) {
    platform.drivers().add(driver_);
    platform.today(Date::of(15, 11, 2026).value());
    Globale::install(platform);
    Globale::Eventi()->ImpostaDB("fake:empty");
    panel_ = panelClass(type).make({.container = container_, .name = type});
    for (const Member& member : panel_->members()) {
      if (member.name == "Attiva") activate(type == "ctlSOSPESI" ? 1 : 0);
    }
  }
  ~Placed() {
    panel_.reset();
    Globale::unload();
    Globale::uninstall();
  }
  Placed(const Placed&) = delete;
  Placed& operator=(const Placed&) = delete;

  toolkit::Surface& surface() { return panel_->surface(); }
  /// Gives the focus to the first that takes it, if nothing has it. False if nothing takes it.
  bool reach() {
    if (platform.focused() != nullptr) return true;
    for (toolkit::Widget* widget : surface().widgets()) {
      if (!memory::canHoldFocus(*widget)) continue;
      widget->SetFocus();
      return true;
    }
    return false;
  }
  /// What stands and what was told since it was last asked.
  std::string state() {
    std::ostringstream says;
    says << (platform.focused() == nullptr ? "-" : platform.focused()->Name()) << ", beeps " << platform.beeps();
    for (const std::string& notice : container_.notices) says << ", " << notice;
    for (const ReportedFailure& failure : container_.failures) says << ", " << failure;
    container_.notices.clear();
    container_.failures.clear();
    for (const toolkit::Widget* widget : surface().widgets()) says << '\n' << contentOf(*widget);
    return says.str();
  }

  P platform;

 private:
  /// Whoever is asked whether he is authorised is.
  void activate(std::size_t arguments) {
    std::vector<Variant> authorised(arguments, true);
    callByName(*panel_, "Attiva", authorised);
  }

  FakeDriver driver_;
  RecordingContainer container_;
  std::unique_ptr<Panel> panel_;
};

std::vector<std::string> namesOfPanels() {
  std::vector<std::string> names;
  for (const PanelClass& panel : panelClasses()) names.emplace_back(panel.name);
  return names;
}

class QtRealKeys : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(All, QtRealKeys, testing::ValuesIn(namesOfPanels()),
                         [](const testing::TestParamInfo<std::string>& name) { return name.param; });

TEST_P(QtRealKeys, InAnyOrderGiveWhatTheHandsGive) {
  const std::vector<KeyOnBoth> keys = keysFor(GetParam());
  std::vector<std::string> expected;
  expected.reserve(keys.size());
  {
    Placed<memory::Platform> inMemory(GetParam());
    for (const KeyOnBoth& key : keys) {
      if (!inMemory.reach()) break;
      inMemory.platform.hands().type(key.hands);
      expected.push_back(inMemory.state());
    }
  }
  Placed<qt::OffscreenPlatform> onScreen(GetParam());
  QWidget& window = onScreen.platform.widgetOf(onScreen.surface());
  onScreen.platform.settle();
  window.show();
  for (std::size_t i = 0; i < expected.size(); ++i) {
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(onScreen.reach());
    QApplication::processEvents();
    press(keys[i].key, QString::fromUtf8(keys[i].text), keys[i].modifiers);
    ASSERT_EQ(onScreen.state(), expected[i]) << "after the key " << i << ", " << keys[i].hands;
    QApplication::processEvents();
    ASSERT_THAT(disagreements(onScreen.platform, onScreen.surface()), testing::IsEmpty()) << keys[i].hands;
  }
}

}  // namespace
}  // namespace qvn::test
