#include "tests/structure/document_rules.h"

#include <algorithm>
#include <cctype>
#include <regex>
#include <sstream>

#include "tests/structure/tree.h"

namespace qvn::structure {

namespace {

constexpr std::string_view kFence = "```";
constexpr std::string_view kIndented = "    ";

/// The name by which a link reaches a heading.
std::string anchorOf(std::string_view heading) {
  std::string anchor;
  for (const char c : heading) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == ' ') anchor += '-';
    if (std::isalnum(byte) != 0 || c == '-' || c == '_' || byte >= 0x80)
      anchor += static_cast<char>(std::tolower(byte));
  }
  return anchor;
}

bool hasHeading(const std::string& text, const std::string& anchor) {
  std::istringstream lines(text);
  std::string line;
  while (std::getline(lines, line)) {
    const auto level = line.find_first_not_of('#');
    if (level == 0 || level == std::string::npos || line[level] != ' ') continue;
    if (anchorOf(std::string_view(line).substr(level + 1)) == anchor) return true;
  }
  return false;
}

/// What is wrong with where a link leads, empty if nothing is.
std::string wrongWithLink(const std::string& link, const Source& document, const std::filesystem::path& root) {
  if (link.find("://") != std::string::npos || link.starts_with("mailto:")) return {};
  const auto hash = std::min(link.find('#'), link.size());
  const auto target = hash == 0 ? root / document.path
                                : root / std::filesystem::path(document.path).parent_path() / link.substr(0, hash);
  if (!std::filesystem::exists(target)) return "leads nowhere";
  if (hash == link.size()) return {};
  const auto text = hash == 0 ? document.text : textOf(target);
  return hasHeading(text, link.substr(hash + 1)) ? "" : "leads to no heading";
}

/// What is wrong with a block of code under a comment, empty if nothing is.
std::string wrongWithCode(const std::string& comment, const std::string& code, const std::filesystem::path& root) {
  static const std::regex sample(R"(^<!-- sample [a-z_]+/\S+ -->$)");
  static const std::regex named(R"(^<!-- (\S+) -->$)");
  if (std::regex_match(comment, sample)) return {};
  std::smatch found;
  if (!std::regex_match(comment, found, named)) return "is no sample and names no file that it is taken from";
  const auto file = root / found[1].str();
  if (!std::filesystem::is_regular_file(file)) return "names " + found[1].str() + ", which is not there";
  return textOf(file).find(code) == std::string::npos ? "does not stand like this in " + found[1].str() : "";
}

}  // namespace

std::vector<std::string> wrongInDocument(const Source& document, const std::filesystem::path& root) {
  static const std::regex link(R"(\]\(([^()\s]+)\))");
  std::vector<std::string> wrong;
  const auto complain = [&](std::size_t line, const std::string& what) {
    wrong.push_back(document.path + ":" + std::to_string(line) + ": " + what);
  };

  std::istringstream lines(document.text);
  std::string line;
  std::string above;
  for (std::size_t number = 1; std::getline(lines, line); ++number) {
    if (line.starts_with(kFence)) {
      const auto opened = number;
      const bool isCode = line == "```cpp" || line == "```c";
      std::string code;
      while (std::getline(lines, line) && line != kFence) {
        ++number;
        code += line + "\n";
      }
      ++number;
      if (line != kFence) complain(opened, "the block does not end");
      if (isCode) {
        if (const auto what = wrongWithCode(above, code, root); !what.empty()) complain(opened, "the code " + what);
      }
    }
    if (line.starts_with(kIndented) && line.ends_with(';')) complain(number, "the code stands in no block");
    for (std::sregex_iterator found(line.begin(), line.end(), link), end; found != end; ++found) {
      if (const auto what = wrongWithLink((*found)[1], document, root); !what.empty())
        complain(number, (*found)[1].str() + " " + what);
    }
    above = line;
  }
  return wrong;
}

}  // namespace qvn::structure
