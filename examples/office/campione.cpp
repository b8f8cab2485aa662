// qvn-campione: makes the sample office's database.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <span>

#include "examples/office/options.h"
#include "examples/office/sample.h"

int main(int argc, char** argv) {
  constexpr int wrongUsage = 2;
  try {
    const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
    const office::Options options = office::readOptions(arguments.subspan(std::min<std::size_t>(1, arguments.size())));
    if (options.help) {
      std::cout << office::usage;
      return EXIT_SUCCESS;
    }
    const office::Contents contents = office::writeSample(options);
    std::cout << options.file << ": " << contents.companies << " companies, " << contents.producers << " producers, "
              << contents.clients << " clients, " << contents.policies << " policies, " << contents.titles
              << " titles, " << contents.claims << " claims\n";
    return EXIT_SUCCESS;
  } catch (const office::UsageError& error) {
    std::cerr << "qvn-campione: " << error.what() << '\n' << office::usage;
    return wrongUsage;
  } catch (const std::exception& error) {
    std::cerr << "qvn-campione: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
