// A session with its database as the session player and sqlite3 take them.
#include <array>

#include "tests/commissions/office_rows.h"
#include "tests/commissions/steps.h"

namespace qvn::test {

namespace {

std::string text(std::string_view value) {
  return value.empty() ? std::string("NULL") : std::string("'").append(value).append("'");
}
std::string number(std::string_view value) { return std::string(value.empty() ? "NULL" : value); }

std::string databaseComments() {
  std::string lines = "# sqlite3 provvigioni.db <<END\n";
  lines.append("#   CREATE TABLE PRODUTTORI (COD_PROD TEXT, DENOMINAZIONE TEXT, R_ACC NUMERIC, PERCALT NUMERIC);\n");
  for (const ProducerRow& row : kProducers) {
    lines.append("#   INSERT INTO PRODUTTORI VALUES (").append(text(row.code)).append(", ").append(text(row.name));
    lines.append(", ").append(number(row.withholding)).append(", ").append(number(row.percent)).append(");\n");
  }
  lines.append("#   CREATE TABLE COMPAGNIE (COD_COMP TEXT, DESC_COMPAGNIA TEXT);\n");
  for (const CompanyRow& row : kCompanies) {
    lines.append("#   INSERT INTO COMPAGNIE VALUES (").append(text(row.code)).append(", ").append(text(row.name));
    lines.append(");\n");
  }
  return lines.append("# END\n");
}

}  // namespace

std::string requestsOf(const Session& session) {
  std::string lines = databaseComments();
  if (session.connected) lines.append(requestOf({.what = Step::Do::Connect})).append("\n");
  lines.append("{\"do\":\"new\",\"panel\":\"p\",\"class\":\"ctlPROV_POLIZZE\"");
  lines.append(session.visible ? "}\n" : ",\"visible\":false}\n");
  for (const Step& step : session.steps) lines.append(requestOf(step)).append("\n");
  return lines;
}

}  // namespace qvn::test
