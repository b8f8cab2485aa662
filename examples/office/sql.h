// The texts of schema.sql, registers.sql and indexes.sql.
#pragma once

#include <string_view>

namespace office::sql {

extern const std::string_view schema;
extern const std::string_view registers;
extern const std::string_view indexes;

}  // namespace office::sql
