// The files of the project as they lie in its tree.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tests/structure/include_rules.h"

namespace qvn::structure {

/// The root of the project's tree.
std::filesystem::path root();

/// The text of a file; fails with std::runtime_error, naming the file, if it cannot be read.
std::string textOf(const std::filesystem::path& file);

/// All files with one of the endings (".h", ".cpp") below the given folders of the root, in order of their paths.
std::vector<Source> filesBelow(std::span<const std::string_view> folders, std::span<const std::string_view> endings);

}  // namespace qvn::structure
