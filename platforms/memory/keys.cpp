#include "platforms/memory/keys.h"

#include <algorithm>
#include <array>
#include <string>

#include "platforms/memory/utf8.h"
#include "qvn/shared/failure.h"

namespace qvn::memory {

namespace {

struct NamedKey {
  std::string_view text;
  Key key;
};

constexpr std::array<NamedKey, 13> kNamedKeys{{{"{{", {KeyName::Character, U'{'}},
                                               {"{Enter}", {KeyName::Enter, 13}},
                                               {"{Tab}", {KeyName::Tab, 0}},
                                               {"{ShiftTab}", {KeyName::ShiftTab, 0}},
                                               {"{Backspace}", {KeyName::Backspace, 8}},
                                               {"{Delete}", {KeyName::Delete, 0}},
                                               {"{Escape}", {KeyName::Escape, 27}},
                                               {"{Left}", {KeyName::Left, 0}},
                                               {"{Right}", {KeyName::Right, 0}},
                                               {"{Up}", {KeyName::Up, 0}},
                                               {"{Down}", {KeyName::Down, 0}},
                                               {"{Home}", {KeyName::Home, 0}},
                                               {"{End}", {KeyName::End, 0}}}};

}  // namespace

std::optional<Key> KeyReader::next() {
  if (rest_.empty()) return std::nullopt;
  if (rest_.front() != '{') return Key{.name = KeyName::Character, .character = utf8::takeFirst(rest_)};
  const auto* const named =
      std::ranges::find_if(kNamedKeys, [&](const NamedKey& candidate) { return rest_.starts_with(candidate.text); });
  if (named == kNamedKeys.end()) {
    const std::size_t close = std::min(rest_.find('}'), rest_.size() - 1);
    const std::string_view unknown = rest_.substr(0, close + 1);
    throw Failure(FailureKind::InvalidCall, std::string("there is no key \"").append(unknown).append("\""));
  }
  rest_.remove_prefix(named->text.size());
  return named->key;
}

}  // namespace qvn::memory
