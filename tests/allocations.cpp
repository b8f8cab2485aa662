#include "tests/allocations.h"

#include <algorithm>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace qvn::test {

namespace {

std::int64_t live = 0;
std::int64_t peak = 0;
std::int64_t allocations = 0;

void* allocate(std::size_t size) {
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  live += static_cast<std::int64_t>(malloc_usable_size(memory));
  peak = std::max(peak, live);
  ++allocations;
  return memory;
}

void release(void* memory) noexcept {
  live -= static_cast<std::int64_t>(malloc_usable_size(memory));
  std::free(memory);
}

}  // namespace

std::int64_t liveBytes() { return live; }
std::int64_t peakBytes() { return peak; }
std::int64_t allocationCount() { return allocations; }
void resetPeak() { peak = live; }

}  // namespace qvn::test

void* operator new(std::size_t size) { return qvn::test::allocate(size); }
void* operator new[](std::size_t size) { return qvn::test::allocate(size); }
void operator delete(void* memory) noexcept { qvn::test::release(memory); }
void operator delete[](void* memory) noexcept { qvn::test::release(memory); }
void operator delete(void* memory, std::size_t) noexcept { qvn::test::release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { qvn::test::release(memory); }
