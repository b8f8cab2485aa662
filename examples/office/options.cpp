#include "examples/office/options.h"

#include <charconv>
#include <string_view>
#include <system_error>

namespace office {

const char* const usage =
    "usage: qvn-campione FILE [--scale N] [--storage numeric|real|text] [--force]\n"
    "Writes the sample office's database to FILE, an SQLite database, the same one every time.\n"
    "  --scale N     N times the clients and policies, 1 to 250; 1 is 2,000 clients and 5,000 policies\n"
    "  --storage S   how amounts are stored: numeric (whole ones as integers), real or text; numeric if not said\n"
    "  --force       replace FILE if it is there\n"
    "  --help        show this and do nothing else\n"
    "exit status:\n"
    "  0  the database is written\n"
    "  1  it could not be written, or FILE is there and --force was not given\n"
    "  2  the command line was wrong\n";

namespace {

struct StorageName {
  std::string_view name;
  Storage storage;
};

constexpr StorageName storageNames[] = {
    {"numeric", Storage::numeric}, {"real", Storage::real}, {"text", Storage::text}};

std::string quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

int readScale(std::string_view text) {
  int scale = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), scale);
  if (error != std::errc() || end != text.data() + text.size() || scale < 1 || scale > maxScale) {
    throw UsageError("--scale: " + quoted(text) + " is no whole number from 1 to " + std::to_string(maxScale));
  }
  return scale;
}

Storage readStorage(std::string_view text) {
  for (const StorageName& each : storageNames) {
    if (each.name == text) return each.storage;
  }
  throw UsageError("--storage: " + quoted(text) + " is none of numeric, real, text");
}

}  // namespace

Options readOptions(std::span<const char* const> arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    const auto value = [&]() -> std::string_view {
      if (++i == arguments.size()) throw UsageError(std::string(argument) + " needs a value behind it");
      return arguments[i];
    };
    if (argument == "--help") {
      options.help = true;
      return options;
    }
    if (argument == "--scale") {
      options.scale = readScale(value());
    } else if (argument == "--storage") {
      options.storage = readStorage(value());
    } else if (argument == "--force") {
      options.force = true;
    } else if (argument.starts_with('-')) {
      throw UsageError("unknown option " + quoted(argument));
    } else if (argument.empty()) {
      throw UsageError("FILE is empty");
    } else if (!options.file.empty()) {
      throw UsageError("one FILE only, and both " + quoted(options.file) + " and " + quoted(argument) + " were given");
    } else {
      options.file = argument;
    }
  }
  if (options.file.empty()) throw UsageError("no FILE given");
  return options;
}

}  // namespace office
