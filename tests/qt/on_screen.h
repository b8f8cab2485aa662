// The contract's panel in a window on Qt's own display, with a field of the host's beside it.
#pragma once

#include <QLineEdit>
#include <QVBoxLayout>
#include <QWidget>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

#include "platforms/qt/platform.h"
#include "tests/contract/contract_panel.h"
#include "tests/qt/agreement.h"
#include "tests/qt/person.h"
#include "tests/recording_container.h"

namespace qvn::test {

class OnScreen : public testing::Test {
 public:
  OnScreen() {
    auto* layout = new QVBoxLayout(window.get());
    layout->addWidget(&platform.widgetOf(*panel));
    layout->addWidget(hostField);
    window->show();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
  }
  ~OnScreen() override {
    panel.reset();
    window.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  toolkit::TextBox& box(std::string_view name = "A") { return panel->textBox(name); }
  toolkit::ComboBox& list() { return panel->comboBox("List"); }
  toolkit::CheckBox& check() { return panel->checkBox("Check"); }
  QWidget& shown(std::string_view name) {
    return *platform.widgetOf(static_cast<const toolkit::Widget&>(panel->widget(name)));
  }
  QLineEdit& line(std::string_view name = "A") { return dynamic_cast<QLineEdit&>(shown(name)); }

  std::unique_ptr<toolkit::Surface> another(std::string name) {
    return platform.makeSurface(kContractLayout, container, std::move(name));
  }

  /// Gives a widget the focus and shows it.
  void focus(toolkit::Widget& widget) {
    widget.SetFocus();
    QApplication::processEvents();
  }
  /// The desktop gives the window the focus again, after what opened before it has gone.
  void comeBack() {
    QApplication::processEvents();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
  }
  void expectAgreement() {
    QApplication::processEvents();
    EXPECT_THAT(disagreements(platform, *panel), testing::IsEmpty());
  }
  std::vector<std::string> reported() {
    std::vector<std::string> lines;
    lines.reserve(container.failures.size());
    for (const ReportedFailure& failure : container.failures) {
      lines.push_back(failure.widget + " " + failure.event + ": " + failure.message);
    }
    return lines;
  }

  qt::OffscreenPlatform platform;
  RecordingContainer container;
  std::unique_ptr<toolkit::Surface> panel = platform.makeSurface(kContractLayout, container, "panel");
  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  QLineEdit* hostField = new QLineEdit;
};

}  // namespace qvn::test
