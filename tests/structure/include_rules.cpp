#include "tests/structure/include_rules.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string_view>

namespace qvn::structure {

namespace {

/// A folder of the tree and where its files may include from.
struct Room {
  std::string_view folder;
  std::string_view mayInclude;  ///< folders, with a blank between them
  bool standardLibraryOnly;     ///< of what is not the project's own
};

constexpr std::array kRooms{
    Room{"qvn/toolkit/", "qvn/toolkit/ qvn/shared/", true},
    Room{"qvn/shared/", "qvn/toolkit/ qvn/shared/", true},
    Room{"qvn/fields/", "qvn/toolkit/ qvn/shared/ qvn/fields/", true},
    Room{"qvn/lookups/", "qvn/toolkit/ qvn/shared/ qvn/fields/ qvn/lookups/", true},
    Room{"qvn/panels/", "qvn/", true},
    Room{"platforms/memory/", "qvn/ platforms/", true},
    Room{"platforms/", "qvn/ platforms/", false},
    Room{"component/", "qvn/ platforms/ component/", false},
    Room{"hosts/", "qvn/ platforms/ hosts/", false},
    Room{"examples/", "qvn/ platforms/ component/ examples/", false},
    Room{"tests/", "qvn/ platforms/ component/ hosts/ examples/ tests/", false},
    Room{"bench/", "qvn/ platforms/ component/ hosts/ examples/ tests/ bench/", false},
    Room{"fuzz/", "qvn/ platforms/ hosts/ examples/ tests/ fuzz/", false},
};

/// Folders whose own folders do not know each other.
constexpr std::array<std::string_view, 3> kHouses{"qvn/panels/", "platforms/", "hosts/"};

/// The one file of the library that knows all panels.
constexpr std::string_view kPanelRegister = "qvn/panels/classes.cpp";

struct Include {
  std::size_t line;
  std::string name;
  bool quoted;
};

std::vector<Include> includesOf(const Source& source, std::vector<std::string>& broken) {
  static const std::regex directive(R"(^\s*#\s*include\b\s*(.*)$)");
  static const std::regex written(R"re(^(?:"([^"]+)"|<([^>]+)>).*$)re");
  std::vector<Include> includes;
  std::istringstream lines(source.text);
  std::string line;
  for (std::size_t number = 1; std::getline(lines, line); ++number) {
    std::smatch found;
    if (!std::regex_match(line, found, directive)) continue;
    const std::string what = found[1];
    if (!std::regex_match(what, found, written)) {
      broken.push_back(source.path + ":" + std::to_string(number) + ": the included file is not written out: " + what);
      continue;
    }
    includes.push_back({number, found[1].matched ? found[1] : found[2], found[1].matched});
  }
  return includes;
}

const Room* roomOf(std::string_view path) {
  const auto* room = std::ranges::find_if(kRooms, [&](const Room& r) { return path.starts_with(r.folder); });
  return room == kRooms.end() ? nullptr : room;
}

bool liesInOneOf(std::string_view path, std::string_view folders) {
  while (!folders.empty()) {
    const auto folder = folders.substr(0, folders.find(' '));
    if (path.starts_with(folder)) return true;
    folders.remove_prefix(std::min(folders.size(), folder.size() + 1));
  }
  return false;
}

/// The folder of a path within a house, empty for a file that lies in the house itself.
std::string_view folderIn(std::string_view house, std::string_view path) {
  const auto inside = path.substr(house.size());
  const auto slash = inside.find('/');
  return slash == std::string_view::npos ? std::string_view() : inside.substr(0, slash);
}

/// A house's folder that another rests on.
using Foundation = std::pair<std::string_view, std::string_view>;
constexpr std::array kFoundations{Foundation{"platforms/qt/", "platforms/memory/"},
                                  Foundation{"platforms/designer/", "platforms/qt/"},
                                  Foundation{"platforms/designer/", "platforms/sqlite/"}};

/// Where Qt may be included.
constexpr std::string_view kQtRooms =
    "platforms/qt/ platforms/designer/ hosts/ufficio/ tests/qt/ tests/designer/ tests/ufficio/ bench/";

bool areStrangers(std::string_view a, std::string_view b) {
  for (const auto& [above, foundation] : kFoundations) {
    if (a.starts_with(above) && b.starts_with(foundation)) return false;
  }
  return std::ranges::any_of(kHouses, [&](std::string_view house) {
    if (!a.starts_with(house) || !b.starts_with(house)) return false;
    const auto x = folderIn(house, a);
    const auto y = folderIn(house, b);
    return !x.empty() && !y.empty() && x != y;
  });
}

bool isStandardHeader(std::string_view name) {
  return std::ranges::all_of(name, [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_'; });
}

bool isPanel(const std::filesystem::path& path) {
  return path.generic_string().starts_with("qvn/panels/") && path.stem().string().starts_with("ctl");
}

/// What is wrong with one include, if anything.
std::optional<std::string> wrongWith(const std::string& path, const Room& room, const Include& include,
                                     const std::set<std::string>& paths) {
  const bool own = roomOf(include.name) != nullptr;
  if (!include.quoted) {
    if (own) return "is the project's own and wants quotes";
    if (room.standardLibraryOnly && !isStandardHeader(include.name)) return "is not of the standard library";
    if (include.name.front() == 'Q' && !liesInOneOf(path, kQtRooms)) return "is Qt's, outside " + std::string(kQtRooms);
    return {};
  }
  if (!own || include.name.find("..") != std::string::npos) return "is not written from the root";
  if (!paths.contains(include.name)) return "does not exist";
  if (!liesInOneOf(include.name, room.mayInclude)) return "stands below " + std::string(room.folder);
  if (areStrangers(path, include.name)) return "lies in another room of the same house";
  const std::filesystem::path from(path);
  const std::filesystem::path to(include.name);
  if (path.starts_with("qvn/") && isPanel(to) && path != kPanelRegister && from.stem() != to.stem())
    return "is a panel, known only to its own source and to " + std::string(kPanelRegister);
  return {};
}

using Graph = std::map<std::string, std::vector<std::string>>;

/// Walks on from a file; a way that comes back to a file on it is a circle.
void findCircles(const Graph& graph, const std::string& file, std::vector<std::string>& way,
                 std::set<std::string>& done, std::vector<std::string>& broken) {
  if (done.contains(file)) return;
  if (const auto met = std::ranges::find(way, file); met != way.end()) {
    std::string circle = "circle: ";
    for (auto step = met; step != way.end(); ++step) circle += *step + " -> ";
    broken.push_back(circle + file);
    return;
  }
  way.push_back(file);
  if (const auto node = graph.find(file); node != graph.end()) {
    for (const auto& next : node->second) findCircles(graph, next, way, done, broken);
  }
  way.pop_back();
  done.insert(file);
}

}  // namespace

std::vector<std::string> brokenIncludes(std::span<const Source> tree) {
  std::set<std::string> paths;
  for (const auto& source : tree) paths.insert(source.path);

  std::vector<std::string> broken;
  Graph graph;
  for (const auto& source : tree) {
    const auto* room = roomOf(source.path);
    if (room == nullptr) {
      broken.push_back(source.path + ":1: stands in no room");
      continue;
    }
    for (const auto& include : includesOf(source, broken)) {
      if (const auto wrong = wrongWith(source.path, *room, include, paths))
        broken.push_back(source.path + ":" + std::to_string(include.line) + ": " + include.name + " " + *wrong);
      if (include.quoted) graph[source.path].push_back(include.name);
    }
  }

  std::set<std::string> done;
  std::vector<std::string> way;
  for (const auto& [file, includes] : graph) findCircles(graph, file, way, done, broken);
  return broken;
}

}  // namespace qvn::structure
