#include "tests/structure/tree.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace qvn::structure {

std::filesystem::path root() { return QVN_ROOT; }

std::string textOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<Source> filesBelow(std::span<const std::string_view> folders, std::span<const std::string_view> endings) {
  std::vector<Source> files;
  for (const auto folder : folders) {
    if (!std::filesystem::exists(root() / folder)) continue;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root() / folder)) {
      if (!entry.is_regular_file() || std::ranges::count(endings, entry.path().extension().string()) == 0) continue;
      files.push_back({std::filesystem::relative(entry.path(), root()).generic_string(), textOf(entry.path())});
    }
  }
  std::ranges::sort(files, {}, &Source::path);
  return files;
}

}  // namespace qvn::structure
