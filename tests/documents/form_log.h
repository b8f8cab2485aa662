// What the forms of a platform go through, for tests that ask in which order.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platforms/operator.h"

namespace qvn::test {

/// What happened to forms, in order, as "load FrmX", "viewer FrmX", "modal FrmX", "unload FrmX"; what a test adds
/// itself stands among it.
class FormLog final : public Watcher {
 public:
  std::vector<std::string> entries;
  /// What a test does at each entry, after it was made; empty for nothing.
  std::function<void(const std::string& entry)> onEntry;

  std::vector<std::string> take() { return std::exchange(entries, {}); }
  void add(std::string entry) {
    entries.push_back(std::move(entry));
    if (onEntry) onEntry(std::string(entries.back()));
  }

  void lostFocus(const toolkit::Widget& /*widget*/) override {}
  void gotFocus(const toolkit::Widget& /*widget*/) override {}
  void beeped() override {}
  void formLoaded(std::string_view form) override { add(std::string("load ").append(form)); }
  void formShown(std::string_view form) override { add(std::string("modal ").append(form)); }
  void formUnloaded(std::string_view form) override { add(std::string("unload ").append(form)); }
  void viewerRuns(std::string_view form, std::string_view /*sql*/) override {
    add(std::string("viewer ").append(form));
  }
};

}  // namespace qvn::test
