// Names of nobody: companies, people and firms, put together from lists.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "examples/office/generator.h"

namespace office {

struct NamedCode {
  std::string code;
  std::string name;
};

/// How many different companies there are.
inline constexpr std::size_t companyNames = 85;

/// The company number `index`, below companyNames: its code of up to 5 characters, and its name.
NamedCode company(std::size_t index);

/// "D'Angelo Nicolò"
std::string person(Generator& generator);
/// "Officine Meccaniche L'Aquila S.r.l."
std::string firm(Generator& generator);
/// What a policy or a title is about, up to 20 characters.
std::string interest(Generator& generator);

/// The first `count` plain letters of `name`, as capitals: "DANGE".
std::string lettersOf(std::string_view name, std::size_t count);

/// `number` in decimal, filled with zeros to `digits`. Fails with std::length_error if it has more.
std::string padded(std::int64_t number, std::size_t digits);

}  // namespace office
