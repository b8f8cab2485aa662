#include "tests/commissions/seen.h"

#include <algorithm>

namespace qvn::test {

namespace {

std::string shown(const SeenField& field) {
  return std::string("\"")
      .append(field.text)
      .append("\" selected ")
      .append(std::to_string(field.selStart))
      .append("+")
      .append(std::to_string(field.selLength))
      .append(" back ")
      .append(std::to_string(field.back));
}

class Differences {
 public:
  void add(std::string_view what, const std::string& panel, const std::string& model) {
    if (panel == model) return;
    lines_.append(what).append(": the panel has ").append(panel).append(", the model ").append(model).append("\n");
  }
  std::string str() const { return lines_; }

 private:
  std::string lines_;
};

std::string eventAt(const std::vector<std::string>& events, std::size_t at) {
  return at < events.size() ? events[at] : std::string("nothing more");
}

}  // namespace

std::string differences(const Seen& panel, const Seen& model) {
  Differences found;
  for (std::size_t i = 0; i < kFieldCount; ++i) found.add(kFields[i], shown(panel.fields[i]), shown(model.fields[i]));
  for (std::size_t i = 0; i < kLabels.size(); ++i) found.add(kLabels[i], panel.captions[i], model.captions[i]);
  for (std::size_t i = 0; i < kFrames.size(); ++i) {
    found.add(kFrames[i], panel.enabled[i] ? "enabled" : "disabled", model.enabled[i] ? "enabled" : "disabled");
  }
  found.add("focus", panel.focus, model.focus);
  found.add("failure of the step", panel.failure, model.failure);
  found.add("value", panel.value, model.value);
  const std::size_t both = std::min(panel.events.size(), model.events.size());
  std::size_t first = 0;
  while (first < both && panel.events[first] == model.events[first]) ++first;
  found.add("event " + std::to_string(first + 1), eventAt(panel.events, first), eventAt(model.events, first));
  return found.str();
}

}  // namespace qvn::test
