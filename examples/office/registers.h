// The registers: those that stay, and the companies, producers and clients, which grow with the scale.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "examples/office/database.h"
#include "examples/office/generator.h"

namespace office {

struct Producer {
  std::string code;
  int withholding;  ///< R_ACC in hundredths of a percent
};

/// A sub-branch with its branch.
struct Branch {
  int subBranch;
  std::string initials;
  std::string code;
  int kind;  ///< TIPO_SK
};

/// What the policies draw from.
struct Registers {
  std::vector<std::string> companies;
  std::vector<Producer> producers;
  std::vector<std::string> clients;
  std::vector<Branch> branches;
  std::vector<int> groups;
};

Registers fillRegisters(Database& database, int scale, Generator& generator);

}  // namespace office
