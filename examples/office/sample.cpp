#include "examples/office/sample.h"

#include <stdexcept>
#include <string>
#include <string_view>

#include "examples/office/claims.h"
#include "examples/office/database.h"
#include "examples/office/ledger.h"
#include "examples/office/policies.h"
#include "examples/office/registers.h"
#include "examples/office/sql.h"
#include "examples/office/titles.h"
#include "examples/office/unfinished_file.h"

namespace office {

namespace {

constexpr std::uint64_t seed = 19700101;
constexpr int policiesPerScale = 5000;

/// The type of amounts as schema.sql writes it.
constexpr std::string_view amountType = "DECIMAL(19,4)";

std::string schemaFor(Storage storage) {
  std::string schema(sql::schema);
  if (storage == Storage::numeric) return schema;
  const std::string_view type = storage == Storage::real ? "REAL" : "TEXT";
  for (std::size_t at = schema.find(amountType); at != std::string::npos; at = schema.find(amountType, at)) {
    schema.replace(at, amountType.size(), type);
  }
  return schema;
}

Contents fill(Database& database, int scale) {
  Generator generator(seed);
  const Registers registers = fillRegisters(database, scale, generator);
  Policies policies(database, registers, generator);
  Titles titles(database, generator);
  Claims claims(database, generator);
  Ledger ledger(database, generator);
  for (int i = 0; i < scale * policiesPerScale; ++i) {
    const Policy policy = policies.add();
    for (const Title& title : titles.add(policy)) ledger.add(policy, title);
    claims.add(policy);
  }
  return {static_cast<std::int64_t>(registers.companies.size()),
          static_cast<std::int64_t>(registers.producers.size()),
          static_cast<std::int64_t>(registers.clients.size()),
          policies.count(),
          titles.count(),
          claims.count()};
}

}  // namespace

Contents writeSample(const Options& options) {
  UnfinishedFile file(options.file, options.force);
  Contents contents;
  try {
    Database database(file.path(), options.storage);
    database.run("BEGIN");
    database.run(schemaFor(options.storage));
    contents = fill(database, options.scale);
    database.run(std::string(sql::indexes));
    database.run("COMMIT");
    database.close();
  } catch (const std::runtime_error& error) {
    throw std::runtime_error("cannot write '" + options.file + "': " + error.what());
  }
  file.finish();
  return contents;
}

}  // namespace office
