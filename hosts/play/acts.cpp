#include "hosts/play/acts.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "hosts/play/bad_request.h"

namespace qvn::play {

namespace {

struct Written {
  enum class Holds : std::uint8_t { Number, Text, True };

  Act::Kind kind;
  std::string_view key;
  Holds holds;
};

constexpr std::array<Written, 7> kActs{{
    {Act::Kind::Row, "row", Written::Holds::Number},
    {Act::Kind::Double, "double", Written::Holds::Number},
    {Act::Kind::Column, "column", Written::Holds::Number},
    {Act::Kind::Key, "key", Written::Holds::Text},
    {Act::Kind::Click, "click", Written::Holds::Text},
    {Act::Kind::Close, "close", Written::Holds::True},
    {Act::Kind::Look, "look", Written::Holds::True},
}};

const Written& writtenAs(const Json& json) {
  if (!json.is_object() || json.size() != 1) throw BadRequest("an act is an object of one key, not " + excerpt(json));
  const auto* found = std::ranges::find(kActs, json.begin().key(), &Written::key);
  if (found == kActs.end()) throw BadRequest("there is no act " + excerpt(json));
  return *found;
}

Act actOf(const Json& json) {
  const Written& written = writtenAs(json);
  const Json& value = json.begin().value();
  const auto require = [&](bool holds, std::string_view what) {
    if (!holds) throw BadRequest(std::string("\"").append(written.key).append("\" is ").append(what) + excerpt(value));
  };
  Act act{.kind = written.kind};
  switch (written.holds) {
    case Written::Holds::Number: {
      const std::optional<std::int32_t> number = wholeNumber(value);
      require(number.has_value(), "no 32-bit integer: ");
      act.number = number.value_or(0);
      break;
    }
    case Written::Holds::Text:
      require(value.is_string(), "no text: ");
      act.text = value.get<std::string>();
      break;
    case Written::Holds::True:
      require(value == true, "not true: ");
      break;
  }
  return act;
}

}  // namespace

std::vector<Act> actsOf(const Json& list) {
  std::vector<Act> acts;
  acts.reserve(list.size());
  for (const Json& one : list) {
    try {
      acts.push_back(actOf(one));
    } catch (const BadRequest& bad) {
      throw BadRequest("act " + std::to_string(acts.size() + 1) + ": " + bad.what());
    }
  }
  return acts;
}

Answer toJson(const Act& act) {
  const Written& written = *std::ranges::find(kActs, act.kind, &Written::kind);
  Answer result = Answer::object();
  Answer& value = result[std::string(written.key)];
  switch (written.holds) {
    case Written::Holds::Number:
      value = act.number;
      break;
    case Written::Holds::Text:
      value = act.text;
      break;
    case Written::Holds::True:
      value = true;
      break;
  }
  return result;
}

}  // namespace qvn::play
