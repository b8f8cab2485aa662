// What a document of the project may say: links that lead somewhere, and C++ that stands in a compiled file.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/structure/include_rules.h"

namespace qvn::structure {

/// What is wrong in a Markdown document, as "path:line: what is wrong". Links to other files lead from the document's
/// folder, below the root; one with "#heading" names a heading of that file. A block of C++ follows a comment that
/// names the file it is taken from, "<!-- examples/host/host.cpp -->", and stands there to the letter.
std::vector<std::string> wrongInDocument(const Source& document, const std::filesystem::path& root);

}  // namespace qvn::structure
