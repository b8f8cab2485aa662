// The rules of who may include whom, checked on sources as text.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace qvn::structure {

/// One source file, its path written from the root of the tree.
struct Source {
  std::string path;
  std::string text;
};

/// What breaks a rule, as "path:line: what is wrong", in the order of the sources; circles come last.
std::vector<std::string> brokenIncludes(std::span<const Source> tree);

}  // namespace qvn::structure
