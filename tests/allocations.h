// What the program holds on the heap, counted by its own operator new, which allocations.cpp brings.
#pragma once

#include <cstdint>

namespace qvn::test {

/// Bytes on the heap now, as the allocator hands them out.
std::int64_t liveBytes();
/// The most bytes since the last call of resetPeak().
std::int64_t peakBytes();
/// Allocations since the program began.
std::int64_t allocationCount();
/// Starts the peak anew from what is live now.
void resetPeak();

}  // namespace qvn::test
