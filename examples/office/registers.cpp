#include "examples/office/registers.h"

#include <array>
#include <bit>
#include <cstdint>
#include <optional>

#include "examples/office/names.h"
#include "examples/office/sql.h"

namespace office {

namespace {

constexpr int clientsPerScale = 2000;

// A broker with a hundred times the clients has some more companies and producers, not a hundred times as many.
std::size_t grown(std::size_t base, std::size_t perDoubling, int scale) {
  return base + perDoubling * (static_cast<std::size_t>(std::bit_width(static_cast<unsigned>(scale))) - 1);
}

/// A percent in hundredths.
struct Percent {
  int hundredths;
};

std::string percentText(Percent percent) {
  std::string text = std::to_string(percent.hundredths / 100);
  if (percent.hundredths % 100 != 0) text.append(".").append(padded(percent.hundredths % 100, 2));
  return text;
}

constexpr Chance<std::optional<Percent>> alternatePercents[] = {{std::nullopt, 25},  {Percent{1000}, 15},
                                                                {Percent{1250}, 20}, {Percent{3333}, 10},
                                                                {Percent{5000}, 20}, {Percent{0}, 10}};
constexpr Chance<int> withholdings[] = {{1150, 50}, {2300, 25}, {460, 15}, {0, 10}};

std::vector<std::string> fillCompanies(const Database& database, int scale) {
  Insert table(database, "COMPAGNIE", {"COD_COMP", "DESC_COMPAGNIA"});
  std::vector<std::string> companies;
  for (std::size_t i = 0; i < grown(40, 5, scale); ++i) {
    const NamedCode each = company(i);
    table.add(each.code, each.name);
    companies.push_back(each.code);
  }
  return companies;
}

std::vector<Producer> fillProducers(const Database& database, int scale, Generator& generator) {
  Insert table(database, "PRODUTTORI", {"COD_PROD", "DENOMINAZIONE", "PERCALT", "R_ACC"});
  std::vector<Producer> producers;
  for (std::size_t i = 0; i < grown(60, 20, scale); ++i) {
    const std::string name = person(generator);
    const std::optional<Percent> percent = generator.draw(alternatePercents);
    const int withholding = generator.draw(withholdings);
    const std::string code = lettersOf(name, 5) + padded(static_cast<std::int64_t>(i) + 1, 3);
    table.add(code, name, percent ? std::optional(percentText(*percent)) : std::nullopt,
              percentText(Percent{withholding}));
    producers.push_back({code, withholding});
  }
  return producers;
}

std::vector<std::string> fillClients(const Database& database, int scale, Generator& generator) {
  Insert table(database, "CLIENTI", {"COD_CLIENTE", "DESC_CLIENTE"});
  std::vector<std::string> clients;
  clients.reserve(static_cast<std::size_t>(scale) * clientsPerScale);
  std::array<std::int64_t, 26> numbers{};
  for (int i = 0; i < scale * clientsPerScale; ++i) {
    const std::string name = generator.happens(70) ? person(generator) : firm(generator);
    const std::string initial = lettersOf(name, 1);
    const std::int64_t number = ++numbers[static_cast<std::size_t>(initial[0] - 'A')];
    clients.push_back(initial + padded(number, 5));
    table.add(clients.back(), name);
  }
  return clients;
}

std::string textOf(sqlite3_stmt& row, int column) {
  return reinterpret_cast<const char*>(sqlite3_column_text(&row, column));
}

std::vector<Branch> readBranches(const Database& database) {
  const Prepared rows = prepare(database,
                                "SELECT COD_SRAMO, sigla, COD_RAMO, TIPO_SK FROM SOTTORAMI JOIN RAMI USING (COD_RAMO) "
                                "ORDER BY COD_SRAMO");
  std::vector<Branch> branches;
  while (step(*rows)) {
    branches.push_back(
        {sqlite3_column_int(rows.get(), 0), textOf(*rows, 1), textOf(*rows, 2), sqlite3_column_int(rows.get(), 3)});
  }
  return branches;
}

std::vector<int> readGroups(const Database& database) {
  const Prepared rows = prepare(database, "SELECT COD_GRUPPO FROM GRUPPI ORDER BY COD_GRUPPO");
  std::vector<int> groups;
  while (step(*rows)) groups.push_back(sqlite3_column_int(rows.get(), 0));
  return groups;
}

}  // namespace

Registers fillRegisters(Database& database, int scale, Generator& generator) {
  database.run(std::string(sql::registers));
  Registers registers;
  registers.companies = fillCompanies(database, scale);
  registers.producers = fillProducers(database, scale, generator);
  registers.clients = fillClients(database, scale, generator);
  registers.branches = readBranches(database);
  registers.groups = readGroups(database);
  return registers;
}

}  // namespace office
