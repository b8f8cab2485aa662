// What is printed of a session plays in the session player as it does in the model.
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "hosts/play/session.h"
#include "tests/commissions/driver_rows.h"
#include "tests/commissions/model.h"
#include "tests/commissions/steps.h"

namespace qvn::test {
namespace {

class PrintedSessions : public testing::Test {
 public:
  PrintedSessions() { layDownRows(driver_); }

  play::Answer answer(const std::string& line) { return player_.answer(line); }

  /// The panel as the player shows it, and what its journal and the answer tell of the request.
  Seen seen(const play::Answer& answer) {
    Seen seen;
    const play::Answer widgets = this->answer(R"({"do":"look","panel":"p"})")["widgets"];
    for (const play::Answer& widget : widgets) look(widget, seen);
    const play::Answer focused = this->answer(R"({"do":"focused"})")["widget"];
    if (focused.is_string()) seen.focus = focused.get<std::string>();
    if (!answer["ok"].get<bool>()) seen.failure = answer["failure"].get<std::string>();
    const play::Answer journal = this->answer(R"({"do":"journal"})")["journal"];
    for (const play::Answer& entry : journal) happened(entry, seen.events);
    if (answer.contains("failures")) {
      for (const play::Answer& one : answer["failures"]) {
        seen.events.push_back(std::string("failed ")
                                  .append(one["widget"].get<std::string>())
                                  .append(" ")
                                  .append(one["event"].get<std::string>())
                                  .append(" ")
                                  .append(one["failure"].get<std::string>()));
      }
    }
    return seen;
  }

 private:
  static void look(const play::Answer& widget, Seen& seen) {
    const auto name = widget["name"].get<std::string>();
    const auto* const field = std::ranges::find(kFields, name);
    if (field != kFields.end()) {
      SeenField& shown = seen.fields[static_cast<std::size_t>(field - kFields.begin())];
      shown.text = widget["text"].get<std::string>();
      shown.back = widget["back"].get<std::uint32_t>();
      if (!widget.contains("sel")) return;
      shown.selStart = widget["sel"][0].get<std::size_t>();
      shown.selLength = widget["sel"][1].get<std::size_t>();
    }
    const auto* const label = std::ranges::find(kLabels, name);
    if (label != kLabels.end()) {
      seen.captions[static_cast<std::size_t>(label - kLabels.begin())] = widget["caption"].get<std::string>();
    }
    const auto* const frame = std::ranges::find(kFrames, name);
    if (frame != kFrames.end()) {
      seen.enabled[static_cast<std::size_t>(frame - kFrames.begin())] = widget["enabled"].get<bool>();
    }
  }

  static void happened(const play::Answer& entry, std::vector<std::string>& events) {
    if (entry.contains("notice")) events.push_back("notice " + entry["notice"].get<std::string>());
    if (entry.contains("sql")) events.push_back("sql " + entry["sql"].get<std::string>());
    if (entry.contains("beep")) events.emplace_back("beep");
    if (entry.contains("mancadb")) events.emplace_back("mancadb");
    for (const char* const move : {"lost", "got"}) {
      if (entry.contains(move)) events.push_back(std::string(move).append(" ").append(widgetOf(entry[move])));
    }
  }

  static std::string widgetOf(const play::Answer& place) { return place.get<std::string>().substr(2); }

  FakeDriver driver_;
  std::unique_ptr<play::Toolkit> toolkit_ = play::makeToolkit("memory");
  std::array<toolkit::Driver*, 1> drivers_{&driver_};
  play::Session player_{*toolkit_, drivers_};
};

/// The requests of a session on the driver for tests.
std::vector<std::string> linesOf(const Session& session) {
  std::istringstream text(requestsOf(session));
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) {
    if (line.starts_with("#")) continue;
    if (const std::size_t at = line.find("\"sqlite:"); at != std::string::npos) line.replace(at, 8, "\"fake:");
    lines.push_back(line);
  }
  return lines;
}

/// As the player tells it: what a handler fails with by itself, apart from what else has happened; values by their own
/// names, which are the player's.
Seen asPlayed(Seen seen) {
  std::stable_partition(seen.events.begin(), seen.events.end(),
                        [](const std::string& event) { return !event.starts_with("failed "); });
  seen.value.clear();
  return seen;
}

TEST_F(PrintedSessions, PlayAsTheModelTells) {
  constexpr std::size_t kSessions = 60;
  constexpr std::size_t kLength = 40;
  const Rules rules;
  StepMaker maker(3);
  for (std::size_t i = 0; i < kSessions; ++i) {
    Session session = maker.session();
    while (session.steps.size() < kLength) session.steps.push_back(maker.step());
    answer(R"({"do":"unload"})");
    answer(R"({"do":"answer","string":null})");
    answer(R"({"do":"journal"})");
    CommissionsModel model(rules, session.connected, session.visible);
    const std::vector<std::string> lines = linesOf(session);
    const std::size_t before = lines.size() - session.steps.size();
    play::Answer last;
    for (std::size_t line = 0; line < before; ++line) last = answer(lines[line]);
    ASSERT_EQ(differences(seen(last), asPlayed(model.seen())), "") << lines[before - 1];
    for (std::size_t step = 0; step < session.steps.size(); ++step) {
      CommissionsModel after = model;
      try {
        after.play(session.steps[step]);
      } catch (const Undecided&) {
        continue;
      }
      model = std::move(after);
      last = answer(lines[before + step]);
      ASSERT_NE(last.value("failure", ""), "bad request") << lines[before + step];
      ASSERT_EQ(differences(seen(last), asPlayed(model.seen())), "") << lines[before + step];
    }
  }
}

}  // namespace
}  // namespace qvn::test
