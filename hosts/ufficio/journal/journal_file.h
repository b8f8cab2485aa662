// A printed journal as a file.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "hosts/ufficio/journal/journal_pages.h"
#include "hosts/ufficio/printing.h"

namespace qvn::ufficio::journal {

/// Gives the line of a place in the journal, from 0.
using LineAt = std::function<PrintedLine(std::size_t place)>;

/// Writes the journal to a PDF. As Printing::print().
bool writeJournal(const std::string& file, const PrintedJournal& journal, const Balance& carried, const LineAt& lineAt,
                  const Progress& goesOn);

}  // namespace qvn::ufficio::journal
