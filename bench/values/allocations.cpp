#include "bench/values/allocations.h"

#include <cstdlib>
#include <new>
#include <unicode/uclean.h>

namespace {

std::int64_t count = 0;

void* allocate(const void* /*context*/, std::size_t size) {
  ++count;
  return std::malloc(size);  // NOLINT
}
void* reallocate(const void* /*context*/, void* memory, std::size_t size) {
  ++count;
  return std::realloc(memory, size);  // NOLINT
}
void release(const void* /*context*/, void* memory) { std::free(memory); }  // NOLINT

/// Before anything of ICU is used, as it demands.
const bool countsIcu = [] {
  UErrorCode error = U_ZERO_ERROR;
  u_setMemoryFunctions(nullptr, allocate, reallocate, release, &error);
  if (U_FAILURE(error)) std::abort();
  return true;
}();

}  // namespace

void* operator new(std::size_t size) {
  if (void* memory = allocate(nullptr, size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }               // NOLINT
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }  // NOLINT

namespace qvn::bench {

std::int64_t allocations() { return count; }

}  // namespace qvn::bench
