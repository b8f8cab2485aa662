// The library on a platform under test and on a database whose statements are kept, each of which can be made to fail.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "qvn/shared/Globale.h"
#include "qvn/shared/clsQVN_Eventi.h"
#include "tests/failing_query.h"
#include "tests/on_platform.h"

namespace qvn::test {

class OnDatabase : public OnPlatform {
 public:
  OnDatabase() {
    platform().drivers().add(statements);
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
  }

  FailingQuery statements{driver()};

  static std::string companySql(std::string_view code) {
    return std::string("Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = '").append(code).append("'");
  }
  static std::string producerSql(std::string_view code) {
    return std::string("Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = '").append(code).append("'");
  }
  void company(std::string_view code, std::string name) {
    driver().answers[companySql(code)] = {{"DESC_COMPAGNIA"}, {{std::move(name)}}};
  }
  void producer(std::string_view code, std::string name, Variant PERCALT = std::int32_t{30}) {
    driver().answers[producerSql(code)] = {{"DENOMINAZIONE", "PERCALT"}, {{std::move(name), std::move(PERCALT)}}};
  }

  /// The statements run since it was last asked, in order.
  Strings asked() {
    Strings sql;
    sql.reserve(driver().ran.size());
    for (const Ran& ran : std::exchange(driver().ran, {})) sql.push_back(ran.sql);
    return sql;
  }
  /// Neither the announcements nor the statements so far are asked for.
  void forget() {
    container().notices.clear();
    driver().ran.clear();
  }
};

}  // namespace qvn::test
