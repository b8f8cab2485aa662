#include "tests/quotas/quota_model.h"

namespace qvn::test {

namespace {

std::string listed(const std::vector<std::string>& items) {
  std::string all;
  for (const std::string& item : items) all.append(all.empty() ? "" : " | ").append(item);
  return all;
}

constexpr std::array<std::string_view, 16> kDone{"focus",
                                                 "leave",
                                                 "caret",
                                                 "type",
                                                 "paste",
                                                 "tick",
                                                 "write",
                                                 "let QUOTA",
                                                 "get QUOTA",
                                                 "let DELEGATARIA",
                                                 "Imposta_VALORI",
                                                 "Calcola_QUOTA",
                                                 "Calcola_QUOTA_DELEGATARIA",
                                                 "Attiva",
                                                 "Disattiva",
                                                 "show"};

}  // namespace

std::string toldInWords(const QuotaStep& step) {
  std::string told(kDone.at(static_cast<std::size_t>(step.what)));
  if (!step.text.empty()) told.append(" \"").append(step.text).append("\"");
  told.append(" ").append(std::to_string(step.number)).append(" ").append(std::to_string(step.length));
  for (const std::size_t extent : step.extents) told.append(" [").append(std::to_string(extent)).append("]");
  for (const std::int64_t figure : step.figures) told.append(" ").append(std::to_string(figure));
  return told;
}

std::string toldInWords(const QuotaSeen& seen) {
  std::string told = std::string("\"").append(seen.text).append("\" selected ");
  told.append(std::to_string(seen.selStart)).append(" ").append(std::to_string(seen.selLength));
  told.append(seen.focused ? " with the focus" : "").append(seen.lead ? " lead" : "");
  told.append("\n  shows ").append(listed(seen.captions));
  told.append("\n  failed ").append(seen.failure).append(" gave ").append(seen.value);
  return told.append("\n  heard ").append(listed(seen.events)).append("\n");
}

std::vector<std::string> quotaKeys(const std::string& keys) {
  std::vector<std::string> all;
  for (std::size_t i = 0; i < keys.size();) {
    const std::size_t end = keys[i] == '{' ? keys.find('}', i) + 1 : i + 1;
    all.push_back(keys.substr(i, end - i));
    i = end;
  }
  return all;
}

std::string QuotaSteps::keys() {
  constexpr std::array<std::string_view, 8> kOther{"{Backspace}", "{Backspace}", "{Delete}", "{Left}",
                                                   "{Home}",      "{End}",       "x",        ","};
  std::string all;
  for (std::size_t count = 1 + below(5); count > 0; --count) {
    if (below(3) == 0) {
      all.append(kOther.at(below(kOther.size())));
    } else {
      all.append(std::to_string(below(10)));
    }
  }
  return all;
}

std::string QuotaSteps::fieldText() {
  constexpr std::array<std::string_view, 14> kTexts{"",   "0",   "0250", "2,5",   "3,5",    "1000,4",   "1000",
                                                    "-5", "12x", "€ 7",  "1.234", "-40000", "999,9999", "40000"};
  return std::string(kTexts.at(below(kTexts.size())));
}

std::int64_t QuotaSteps::figure() {
  // The largest have more digits than a double tells apart, so that what they are worth is seldom decided.
  static constexpr std::array<std::size_t, 4> kSizes{200, 100'000, 50'000'000, 90'000'000'000};
  const std::size_t size = below(60) == 0 ? 9'200'000'000'000'000'000 : kSizes.at(below(kSizes.size()));
  const auto figure = static_cast<std::int64_t>(below(size));
  const std::int64_t rounded = below(2) == 0 ? figure / 100 * 100 : figure;
  return below(8) == 0 ? -rounded : rounded;
}

std::int16_t QuotaSteps::thousandths() {
  switch (below(8)) {
    case 0:
      return static_cast<std::int16_t>(below(65536) - 32768);
    case 1:
      return static_cast<std::int16_t>(999 + below(4));
    case 2:
      return 0;
    default:
      return static_cast<std::int16_t>(below(1001));
  }
}

QuotaStep QuotaSteps::figuresOfSomeShape() {
  QuotaStep step{.what = QuotaStep::Do::Figures};
  step.extents = ofPolicy_ ? std::vector<std::size_t>{3, 3} : std::vector<std::size_t>{3};
  if (below(5) == 0) {
    for (std::size_t& extent : step.extents) extent = below(5);
    if (below(3) == 0) step.extents = ofPolicy_ ? std::vector<std::size_t>{9} : std::vector<std::size_t>{3, 3};
  }
  std::size_t count = 1;
  for (const std::size_t extent : step.extents) count *= extent;
  while (step.figures.size() < count) step.figures.push_back(figure());
  return step;
}

QuotaStep QuotaSteps::next() {
  using Do = QuotaStep::Do;
  switch (below(ofPolicy_ ? 20 : 19)) {
    case 0:
      return {.what = Do::Focus};
    case 1:
      return {.what = Do::Leave};
    case 2:
      return {.what = Do::Caret, .number = static_cast<std::int16_t>(below(5)), .length = static_cast<int>(below(4))};
    case 3:
    case 4:
    case 5:
    case 6:
      return {.what = Do::Type, .text = keys()};
    case 7:
      return {.what = Do::Paste, .text = std::to_string(below(20'000))};
    case 8:
      return {.what = Do::Tick};
    case 9:
      return {.what = Do::Write, .text = fieldText()};
    case 10:
    case 11:
      return {.what = Do::LetQuota, .number = thousandths()};
    case 12:
      return {.what = Do::GetQuota};
    case 13:
      return {.what = Do::LetLead, .number = static_cast<std::int16_t>(below(2))};
    case 14:
    case 15:
      return figuresOfSomeShape();
    case 16:
      return {.what = Do::Apply, .number = thousandths()};
    case 17:
      return {.what = below(3) == 0 ? Do::Disattiva : Do::Attiva};
    case 18:
      return {.what = Do::Show, .number = static_cast<std::int16_t>(below(4) == 0 ? 0 : 1)};
    default:
      return {.what = Do::ApplyOfLead, .number = thousandths()};
  }
}

}  // namespace qvn::test
