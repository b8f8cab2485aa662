// What the component system's entry points do: the manifest, class objects, and whether the library may go.
#pragma once

#include <cstdint>

namespace qvn::component {

/// Where the manifest is written; null for nowhere.
void manifestPath(const char* path);

/// Each gives the result that its entry point is documented with.
std::int32_t writeManifest() noexcept;
std::int32_t removeManifest() noexcept;
std::int32_t giveClassObject(const char* className, const char* interfaceName, void** object) noexcept;
std::int32_t mayBeUnloaded() noexcept;

}  // namespace qvn::component
