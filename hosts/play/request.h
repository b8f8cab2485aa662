// One line of a session, read field by field.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/play/values.h"

namespace qvn::play {

/// Each reader fails with BadRequest, naming the field, if the field is missing or of another type.
class Request {
 public:
  /// Reads a line. BadRequest if it is no JSON object with the text "do", or is nested beyond reason.
  explicit Request(std::string_view line);

  const std::string& name() const { return name_; }
  /// What it is done to, as far as the request tells: "panel.member", "panel.widget", a panel, a lookup, a form,
  /// or empty.
  std::string subject() const;
  /// The request in short, for messages: "let panel.member".
  std::string asked() const;
  bool has(const char* field) const { return json_.contains(field); }

  const std::string& text(const char* field) const;
  /// Nothing where the field is null.
  std::optional<std::string> textOrNull(const char* field) const;
  std::int32_t whole(const char* field) const;
  /// The default where the field is left out.
  bool flag(const char* field, bool otherwise) const;
  /// A list of anything.
  const Json& list(const char* field) const;
  /// The value and, in "args", the arguments: none where they are left out. An element of an array that does not
  /// convert fails as the conversion does, naming the subject and which argument it is.
  Variant value(const Locale& locale) const;
  std::vector<Variant> arguments(const Locale& locale) const;
  /// The arguments for an answer where not all of them can be read: those that can as they are read, the others as they
  /// were given.
  Answer argumentsAsGiven(const Locale& locale) const;

 private:
  const Json& field(const char* name) const;

  Json json_;
  std::string name_;
};

}  // namespace qvn::play
