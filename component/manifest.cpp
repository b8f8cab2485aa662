#include "component/manifest.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "component/classes.h"
#include "qvn/shared/failure.h"

namespace qvn::component::manifest {

namespace {

/// What every manifest begins with, and no other file.
constexpr std::string_view kHead = "{\n  \"manifest\": \"qvn component\",\n";

std::filesystem::path pathOf(const std::string& path) { return {std::u8string(path.begin(), path.end())}; }

[[noreturn]] void refuse(const std::string& path, std::string_view why) {
  throw Failure(FailureKind::InvalidCall, std::string(path).append(": ").append(why));
}

bool isThere(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(std::filesystem::symlink_status(pathOf(path), error));
}

void requireManifest(const std::string& path) {
  std::ifstream file(pathOf(path), std::ios::binary);
  std::string head(kHead.size(), '\0');
  file.read(head.data(), static_cast<std::streamsize>(head.size()));
  if (!file || head != kHead) refuse(path, "it is no manifest of this library, and stays as it is");
}

/// Names of classes, members and types are plain letters, digits, blanks and slashes.
std::string inQuotes(std::string_view text) { return std::string("\"").append(text).append("\""); }

void addMember(std::string& text, const ListedMember& member) {
  text.append("        {\"name\": ").append(inQuotes(member.name));
  text.append(", \"kind\": ").append(inQuotes(nameOfKind(member.kind)));
  if (!member.type.empty()) text.append(", \"type\": ").append(inQuotes(member.type));
  text.append("}");
}

void addClass(std::string& text, const ComponentClass& one) {
  text.append("    {\n      \"class\": ").append(inQuotes(one.name)).append(",\n      \"members\": [");
  std::string_view between = "\n";
  for (const ListedMember& member : one.members) {
    text.append(std::exchange(between, ",\n"));
    addMember(text, member);
  }
  text.append("\n      ]\n    }");
}

}  // namespace

std::string text() {
  std::string text(kHead);
  text.append("  \"version\": ").append(inQuotes(QVN_VERSION)).append(",\n  \"classes\": [");
  std::string_view between = "\n";
  for (const ComponentClass& one : classes()) {
    text.append(std::exchange(between, ",\n"));
    addClass(text, one);
  }
  return text.append("\n  ]\n}\n");
}

void write(const std::string& path) {
  if (isThere(path)) requireManifest(path);
  const std::string whole = text();
  // Beside it first: one that cannot be written to its end leaves the earlier one as it was.
  const std::filesystem::path beside = pathOf(path + ".part");
  std::ofstream file(beside, std::ios::binary | std::ios::trunc);
  if (!file) refuse(path, "the manifest cannot be written");
  file.write(whole.data(), static_cast<std::streamsize>(whole.size()));
  file.close();
  std::error_code error;
  if (file) std::filesystem::rename(beside, pathOf(path), error);
  if (file && !error) return;
  std::filesystem::remove(beside, error);
  refuse(path, "the manifest cannot be written");
}

bool remove(const std::string& path) {
  if (!isThere(path)) return false;
  requireManifest(path);
  std::error_code error;
  if (!std::filesystem::remove(pathOf(path), error)) refuse(path, "the manifest cannot be removed");
  return true;
}

}  // namespace qvn::component::manifest
