#include "hosts/play/request.h"

#include "hosts/play/bad_request.h"
#include "qvn/shared/failure.h"

namespace qvn::play {

namespace {

constexpr int kDeepest = 64;  // values nest three deep; what nests further would only cost stack

Json parsed(std::string_view line) {
  try {
    return Json::parse(line, [](int depth, Json::parse_event_t /*event*/, Json& /*value*/) {
      if (depth > kDeepest) throw BadRequest("no JSON object: nested too deeply");
      return true;
    });
  } catch (const Json::parse_error& error) {
    throw BadRequest("no JSON object, from byte " + std::to_string(error.byte) +
                     " on: " + shortened(std::string(line)));
  } catch (const Json::exception&) {
    throw BadRequest("no JSON object, for a number out of range: " + shortened(std::string(line)));
  }
}

}  // namespace

Request::Request(std::string_view line) : json_(parsed(line)) {
  if (!json_.is_object()) throw BadRequest("no JSON object: " + excerpt(json_));
  const auto wanted = json_.find("do");
  if (wanted == json_.end() || !wanted->is_string()) throw BadRequest("no text \"do\" in " + excerpt(json_));
  name_ = wanted->get<std::string>();
}

const Json& Request::field(const char* name) const {
  const auto found = json_.find(name);
  if (found == json_.end()) throw BadRequest(std::string("the field \"") + name + "\" is missing");
  return *found;
}

const std::string& Request::text(const char* name) const {
  const Json& value = field(name);
  if (!value.is_string()) throw BadRequest(std::string("\"") + name + "\" is no text: " + excerpt(value));
  return value.get_ref<const std::string&>();
}

std::optional<std::string> Request::textOrNull(const char* name) const {
  if (field(name).is_null()) return std::nullopt;
  return text(name);
}

std::int32_t Request::whole(const char* name) const {
  const Json& value = field(name);
  if (const std::optional<std::int32_t> number = wholeNumber(value)) return *number;
  throw BadRequest(std::string("\"") + name + "\" is no 32-bit integer: " + excerpt(value));
}

bool Request::flag(const char* name, bool otherwise) const {
  if (!has(name)) return otherwise;
  const Json& value = field(name);
  if (!value.is_boolean())
    throw BadRequest(std::string("\"") + name + "\" is neither true nor false: " + excerpt(value));
  return value.get<bool>();
}

std::string Request::subject() const {
  const auto textOf = [this](const char* name) -> std::optional<std::string> {
    const auto found = json_.find(name);
    if (found == json_.end() || !found->is_string()) return std::nullopt;
    return shortened(found->get<std::string>());
  };
  const std::optional<std::string> panel = textOf("panel");
  const std::optional<std::string> part = has("name") ? textOf("name") : textOf("widget");
  if (panel && part) return *panel + "." + *part;
  if (panel || part) return panel ? *panel : *part;
  return textOf("form").value_or("");
}

std::string Request::asked() const {
  const std::string to = subject();
  return to.empty() ? name_ : name_ + " " + to;
}

const Json& Request::list(const char* name) const {
  const Json& value = field(name);
  if (!value.is_array()) throw BadRequest(std::string("\"") + name + "\" is no list: " + excerpt(value));
  return value;
}

Variant Request::value(const Locale& locale) const {
  try {
    return toVariant(field("value"), locale);
  } catch (const Failure& failure) {
    throw failure.within(subject());
  }
}

std::vector<Variant> Request::arguments(const Locale& locale) const {
  std::vector<Variant> result;
  if (!has("args")) return result;
  for (const Json& one : list("args")) {
    const std::string place = "argument " + std::to_string(result.size() + 1);
    try {
      result.push_back(toVariant(one, locale));
    } catch (const BadRequest& bad) {
      throw BadRequest(place + ": " + bad.what());
    } catch (const Failure& failure) {
      throw failure.within(place).within(subject());
    }
  }
  return result;
}

Answer Request::argumentsAsGiven(const Locale& locale) const {
  Answer result = Answer::array();
  for (const Json& one : list("args")) {
    try {
      result.push_back(toJson(toVariant(one, locale)));
    } catch (const BadRequest&) {
      result.push_back(Answer(one));
    } catch (const Failure&) {
      result.push_back(Answer(one));
    }
  }
  return result;
}

}  // namespace qvn::play
