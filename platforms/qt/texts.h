// Texts and positions between the library, which counts characters of UTF-8, and Qt, which counts units of UTF-16.
#pragma once

#include <QString>
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace qvn::qt {

inline QString shown(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string utf8(const QString& text) { return text.toStdString(); }

/// The units before the character of that index.
inline int unitsBefore(const QString& text, std::int32_t character) {
  qsizetype at = 0;
  for (; character > 0 && at < text.size(); --character) at += text.at(at).isHighSurrogate() ? 2 : 1;
  return static_cast<int>(std::min(at, text.size()));
}

/// The characters that begin before the unit of that index.
inline std::int32_t charactersBefore(const QString& text, qsizetype unit) {
  const auto begin = text.begin();
  const auto end = begin + std::clamp<qsizetype>(unit, 0, text.size());
  return static_cast<std::int32_t>(std::count_if(begin, end, [](QChar c) { return !c.isLowSurrogate(); }));
}

}  // namespace qvn::qt
