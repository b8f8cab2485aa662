// Every panel of the library and every form of it, one a test, on the screen.
#pragma once

#include <QApplication>
#include <QWidget>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "platforms/qt/platform.h"
#include "qvn/lookups/Lista.h"
#include "qvn/lookups/Ricerca.h"
#include "qvn/lookups/viewer.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/clsQVN_Eventi.h"
#include "tests/fake_database.h"
#include "tests/qt/dark_desktop.h"
#include "tests/recording_container.h"

namespace qvn::test {

/// The classes of the panels, with the forms of the library behind them.
inline std::vector<std::string> namesOfSurfaces() {
  std::vector<std::string> names;
  for (const PanelClass& panel : panelClasses()) names.emplace_back(panel.name);
  for (const char* form : {"Lista", "Ricerca", "FrmVIS_COMPAGNIE", "FrmVIS_PRODUTTORI"}) names.emplace_back(form);
  return names;
}

class EachSurface : public testing::TestWithParam<std::string> {
 public:
  EachSurface() {
    platform.drivers().add(driver_);
    Globale::install(platform);
    Globale::Eventi()->ImpostaDB("fake:empty");
    surface_ = &make(GetParam());
    platform.settle();
  }
  ~EachSurface() override {
    panel_.reset();
    list_.reset();
    wait_.reset();
    viewer_.reset();
    Globale::unload();
    Globale::uninstall();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  toolkit::Surface& surface() { return *surface_; }
  QWidget& whole() { return platform.widgetOf(surface()); }
  QWidget& shown(const toolkit::Widget& widget) { return *std::as_const(platform).widgetOf(widget); }

  /// The widgets that the operator sees.
  std::vector<toolkit::Widget*> visible() {
    std::vector<toolkit::Widget*> seen;
    for (toolkit::Widget* widget : surface().widgets()) {
      const bool inFrame = widget->frame() == nullptr || widget->frame()->Visible();
      if (widget->Visible() && inFrame) seen.push_back(widget);
    }
    return seen;
  }

  FakeDriver& driver() { return driver_; }

  qt::OffscreenPlatform platform;
  RecordingContainer container;

 private:
  toolkit::Surface& make(const std::string& name) {
    if (name == "Lista") {
      list_ = std::make_unique<lookups::Lista>();
      list_->load();
      list_->list().addColumn("DENOM.", 2000);
      list_->list().addColumn("CODICE", 1200);
      return list_->form().surface();
    }
    if (name == "Ricerca") {
      wait_ = std::make_unique<lookups::Ricerca>();
      wait_->load();
      return platform.forms().at(0).surface();
    }
    if (name.starts_with("FrmVIS")) {
      viewer_ = name == "FrmVIS_COMPAGNIE" ? lookups::companiesViewer() : lookups::producersViewer();
      viewer_->load();
      return viewer_->form().surface();
    }
    panel_ = panelClass(name).make({.container = container, .name = name});
    return panel_->surface();
  }

  FakeDriver driver_;
  std::unique_ptr<Panel> panel_;
  std::unique_ptr<lookups::Lista> list_;
  std::unique_ptr<lookups::Ricerca> wait_;
  std::shared_ptr<lookups::Viewer> viewer_;
  toolkit::Surface* surface_ = nullptr;
};

}  // namespace qvn::test

/// Runs a suite derived from EachSurface on all of them.
#define QVN_ON_EACH_SURFACE(Suite)                                                          \
  INSTANTIATE_TEST_SUITE_P(All, Suite, ::testing::ValuesIn(::qvn::test::namesOfSurfaces()), \
                           [](const ::testing::TestParamInfo<std::string>& name) { return name.param; })
