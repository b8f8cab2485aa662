// The sample office's database, made anew.
#pragma once

#include <cstdint>

#include "examples/office/options.h"

namespace office {

/// How many of each kind the sample holds.
struct Contents {
  std::int64_t companies = 0;
  std::int64_t producers = 0;
  std::int64_t clients = 0;
  std::int64_t policies = 0;
  std::int64_t titles = 0;
  std::int64_t claims = 0;
};

/// Writes the file that the options name. The same options always give the same contents. Fails with
/// std::runtime_error, and then leaves nothing behind and whatever stood in the file's place as it was.
Contents writeSample(const Options& options);

}  // namespace office
