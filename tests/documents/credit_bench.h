// The credit line of a client with companies, some of which it has something open with.
#pragma once

#include <string>
#include <string_view>

#include "qvn/panels/documents/ctlFIDO.h"
#include "tests/documents/line_bench.h"

namespace qvn::test {

inline std::string exposureSql(std::string_view client, std::string_view company) {
  return std::string(
             "SELECT POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP, Sum([CAUZIONE]*[QUOTA]/1000) AS ESP "
             "FROM (DATI_POLIZZE_4 INNER JOIN QUOTE_POLIZZE ON DATI_POLIZZE_4.PROT = QUOTE_POLIZZE.PROT) "
             "INNER JOIN POLIZZE ON QUOTE_POLIZZE.PROT = POLIZZE.PROT "
             "WHERE (((POLIZZE.STATO) Is Null Or (POLIZZE.STATO)='')) "
             "GROUP BY POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP "
             "HAVING (((POLIZZE.COD_CLIENTE)='")
      .append(client)
      .append("') AND ((QUOTE_POLIZZE.COD_COMP)='")
      .append(company)
      .append("'))");
}

class CreditPanel : public LinePanel<ctlFIDO> {
 public:
  CreditPanel() {
    company("C1", "GENERALE");
    company("C2", "ALPINA");
    company("C3", "RIUNIONE");
    exposure("K1", "C1", 1234.565);
    exposure("K1", "C2", std::int32_t{2'000'000});
    exposure("K2", "C1", 5.0);
  }
  void exposure(std::string_view client, std::string_view code, Variant sum) {
    driver().answers[exposureSql(client, code)] = {{"COD_CLIENTE", "COD_COMP", "ESP"},
                                                   {{std::string(client), std::string(code), std::move(sum)}}};
  }
  /// What stands beside the company and beside the amount.
  Strings shown() { return {caption("DESC_COMPAGNIA"), caption("ESPOSIZIONE")}; }
  toolkit::TextBox& companyBox() { return box("TxtCOD_COMP"); }
  toolkit::TextBox& amountBox() { return box("TxtIMPORTO"); }
};

}  // namespace qvn::test
