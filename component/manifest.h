// The manifest: a file that tells what classes the component has, for tools that list components.
#pragma once

#include <string>

namespace qvn::component::manifest {

/// The classes with their members, as JSON.
std::string text();

/// Puts the manifest at the path, in the place of an earlier one. Fails with "invalid call", naming the path, if it
/// cannot be written or another kind of file is there, which stays.
void write(const std::string& path);

/// Removes the manifest at the path; false if nothing is there. Fails likewise on another kind of file, and if the
/// manifest cannot be removed.
bool remove(const std::string& path);

}  // namespace qvn::component::manifest
