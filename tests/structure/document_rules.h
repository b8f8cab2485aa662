// What a document of the project may say: links that lead somewhere, and no code that is not compiled.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/structure/include_rules.h"

namespace qvn::structure {

/// What is wrong in a Markdown document, as "path:line: what is wrong". Links to other files lead from the document's
/// folder, below the root; one with "#heading" names a heading of that file. A block of C++ or C follows a comment
/// "<!-- sample NAME/FILE -->", by which the tests of samples take it out of the document, compile and run it, or one
/// that names the file it is taken from, "<!-- examples/c/host.c -->", and stands there to the letter. What is indented
/// outside of blocks and ends in a semicolon is such code too, and belongs in one.
std::vector<std::string> wrongInDocument(const Source& document, const std::filesystem::path& root);

}  // namespace qvn::structure
