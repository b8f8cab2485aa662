#include "qvn/lookups/QVN_Ricerche.h"

#include "qvn/lookups/query.h"
#include "qvn/shared/statements.h"

namespace qvn::QVN_Ricerche {

namespace {

using lookups::Cursor;
using lookups::fireMancaDB;
using lookups::Query;
using lookups::removeQuotes;
using namespace statements;

/// The first row's value, or the type's empty value.
template <class Result>
Result firstOrEmpty(const Query& query, std::string_view column) {
  return query.found() ? query.as<Result>(column) : Result{};
}

}  // namespace

std::int16_t CercaTIPO_SK(std::string& COD_RAMO) {
  fireMancaDB();
  const Query query({kTIPO_SK, COD_RAMO, kQuote}, Cursor{.type = toolkit::adOpenStatic});
  return firstOrEmpty<std::int16_t>(query, "TIPO_SK");
}

Currency CercaR_ACC(std::string& COD_PROD) {
  fireMancaDB();
  removeQuotes(COD_PROD);
  if (COD_PROD.empty()) return {};
  return firstOrEmpty<Currency>(Query({kR_ACC, COD_PROD, kQuote}), "R_ACC");
}

std::string CercaPRODUTTORE(std::string& COD_PROD, bool percent) {
  fireMancaDB();
  removeQuotes(COD_PROD);
  if (COD_PROD.empty()) return {};
  const Query query({kPRODUTTORE, COD_PROD, kQuote});
  if (!query.found()) return {};
  std::string name = query.as<std::string>("Denominazione");
  return percent ? name.append(" (").append(query.generalText("percAlt")).append("%)") : name;
}

std::string CercaCOMPAGNIA(std::string& COD_COMP) {
  fireMancaDB();
  removeQuotes(COD_COMP);
  if (COD_COMP.empty()) return {};
  return firstOrEmpty<std::string>(Query({kCOMPAGNIA, COD_COMP, kQuote}), "DESC_COMPAGNIA");
}

std::string CercaCOMP_DEL(std::int32_t PROT) {
  fireMancaDB();
  if (PROT == 0) return {};
  return firstOrEmpty<std::string>(Query({kCOMP_DEL, std::to_string(PROT), kLead}), "COD_COMP");
}

std::string CercaCOMP_DEL_SIN(std::string& N_SINISTRO) {
  fireMancaDB();
  if (N_SINISTRO == "0") return {};
  return firstOrEmpty<std::string>(Query({kCOMP_DEL_SIN, N_SINISTRO, kQuoteLead}), "COD_COMP");
}

std::string CercaPROD_DEL(std::int32_t PROT) {
  fireMancaDB();
  if (PROT == 0) return {};
  return firstOrEmpty<std::string>(Query({kPROD_DEL, std::to_string(PROT), kLead}), "COD_PROD");
}

std::string CercaPROD_DEL_SOSPESO(std::int32_t PROT, std::int16_t PROG) {
  fireMancaDB();
  if (PROT == 0) return {};
  const Query query({kPROD_DEL_SOSPESO, std::to_string(PROT), kAndPROG, std::to_string(PROG)},
                    Cursor{.type = toolkit::adOpenStatic, .lock = toolkit::adLockReadOnly});
  // A title without a producer holds a Null here, which is no failure.
  if (!query.found() || isNull(query.value("COD_PROD"))) return {};
  return query.as<std::string>("COD_PROD");
}

void CercaIVA(std::string& COD_IVA, std::string& description, std::int16_t& rate) {
  fireMancaDB();
  const Query query({kIVA, COD_IVA});
  if (!query.found()) return;
  description = query.as<std::string>("DESCRIZIONE");
  rate = query.as<std::int16_t>("IVA");
}

std::string CercaESPOSIZIONE(std::string& COD_CLIENTE, std::string& COD_COMP) {
  fireMancaDB();
  if (COD_CLIENTE.empty() || COD_COMP.empty()) return {};
  const Query query({kESPOSIZIONE, COD_CLIENTE, kESPOSIZIONE_COMP, COD_COMP, kESPOSIZIONE_END});
  return firstOrEmpty<std::string>(query, "esp");
}

std::string CercaDESC_CONTO(std::string& MASTRO, std::string& CONTO) {
  fireMancaDB();
  removeQuotes(MASTRO);
  removeQuotes(CONTO);
  if (MASTRO.empty()) return {};
  if (CONTO.empty()) return firstOrEmpty<std::string>(Query({kDESC_MASTRO, MASTRO, kQuote}), "DESCRIZIONE");
  return firstOrEmpty<std::string>(Query({kDESC_CONTO, MASTRO, kQuoteAndCONTO, CONTO, kQuote}), "DESCRIZIONE");
}

std::string CercaSIGLA(std::string& COD_SRAMO) {
  fireMancaDB();
  removeQuotes(COD_SRAMO);
  if (COD_SRAMO.empty()) return {};
  return firstOrEmpty<std::string>(Query({kSIGLA, COD_SRAMO}), "sigla");
}

}  // namespace qvn::QVN_Ricerche
