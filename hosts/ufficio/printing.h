// What prints the record that a screen shows.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "hosts/ufficio/store.h"

namespace qvn::ufficio {

/// Hears how much of the whole is done; false stops the work.
using Progress = std::function<bool(std::size_t done, std::size_t all)>;

class Printing {
 public:
  virtual ~Printing() = default;
  Printing() = default;
  Printing(const Printing&) = delete;
  Printing& operator=(const Printing&) = delete;

  /// A name for the file, without its folder.
  virtual std::string fileName() const = 0;
  /// Writes the record to a file, in the place of one that is there. False if it was stopped. Then, and where it fails,
  /// with StoreFailure or the library's Failure, no part of the file is written and one that was there stays.
  virtual bool print(Store& store, const std::string& file, const Progress& goesOn) = 0;
};

}  // namespace qvn::ufficio
