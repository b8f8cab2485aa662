// Keys as texts name them: "12{Enter}".
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace qvn::memory {

enum class KeyName : std::uint8_t {
  Character,
  Enter,
  Tab,
  ShiftTab,
  Backspace,
  Delete,
  Escape,
  Left,
  Right,
  Up,
  Down,
  Home,
  End
};

struct Key {
  KeyName name = KeyName::Character;
  char32_t character = 0;  ///< what the key types; 0 for keys that type nothing
};

/// Reads a text of keys one by one. The text must outlive it.
class KeyReader {
 public:
  explicit KeyReader(std::string_view keys) : rest_(keys) {}

  /// The next key, or nothing at the end. "invalid call", quoting it, on a name in braces that is no key's.
  std::optional<Key> next();

 private:
  std::string_view rest_;
};

}  // namespace qvn::memory
