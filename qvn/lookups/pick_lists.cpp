// The pick lists: one table, and one way through it.
#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/lookups/Lista.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/Ricerca.h"
#include "qvn/lookups/query.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/statements.h"
#include "qvn/toolkit/platform.h"

namespace qvn::QVN_Ricerche {

namespace {

using lookups::fireMancaDB;
using lookups::joined;
using lookups::Lista;
using lookups::Query;
using lookups::removeQuotes;
using statements::PickListTexts;

struct Column {
  std::string_view caption;
  std::int32_t width;  ///< in twips
  std::string_view field;
};

/// The statement for a code and a description without quotes, or none where nothing is to be asked.
using Asked = std::optional<std::string>;
using Narrowing = Asked (*)(const PickListTexts&, std::string_view code, std::string_view description);

struct PickList {
  std::string_view title;
  std::span<const Column> columns;  ///< the description first, then what makes up the code
  const PickListTexts& texts;
  Narrowing narrowed;
};

Asked byDescription(const PickListTexts& texts, std::string_view description) {
  if (description.empty()) return texts.all.empty() ? std::nullopt : Asked(texts.all);
  return joined({texts.byDescription, description, statements::kLikeEnd});
}

Asked byText(const PickListTexts& texts, std::string_view code, std::string_view description) {
  if (code.empty()) return byDescription(texts, description);
  if (code.starts_with('!')) return joined({texts.byDescription, code.substr(1), statements::kLikeEnd});
  return joined({texts.byCode, code, statements::kLikeEnd});
}

Asked byNumber(const PickListTexts& texts, std::string_view code, std::string_view description) {
  if (!isNumber(code, Globale::platform().locale())) return byDescription(texts, description);
  return joined({texts.byCode, code});
}

Asked byAccount(const PickListTexts& texts, std::string_view code, std::string_view description) {
  if (code.empty()) return byDescription(texts, description);
  const std::size_t mark = code.find('?');
  if (mark == std::string_view::npos) {
    throw Failure(FailureKind::InvalidCall,
                  joined({"the code \"", code, "\" is no ledger and account with a \"?\" between them"}));
  }
  const std::string_view ledger = code.substr(0, mark);
  const std::string_view account = code.substr(mark + 1);
  // The ledger must match whole; only the account is searched by its beginning.
  if (account == "%") return joined({texts.byCode, ledger, statements::kQuote});
  return joined({texts.byCode, ledger, statements::kQuoteAndLikeCONTO, account, statements::kLikeEnd});
}

constexpr std::array<Column, 2> kSottorami{{{"DENOM.", 2000, "DESCRIZIONE"}, {"CODICE", 1200, "COD_SRAMO"}}};
constexpr std::array<Column, 2> kCompagnie{{{"DENOM.", 2000, "DESC_COMPAGNIA"}, {"CODICE", 1200, "COD_COMP"}}};
constexpr std::array<Column, 2> kMastri{{{"DESC.", 2000, "DESCRIZIONE"}, {"MASTRO", 1200, "Mastro"}}};
constexpr std::array<Column, 2> kClienti{{{"DENOM.", 2000, "DESC_CLIENTE"}, {"CODICE", 1200, "COD_CLIENTE"}}};
constexpr std::array<Column, 2> kTipiIva{{{"DENOM.", 2000, "DESCRIZIONE"}, {"CODICE", 1200, "COD_IVA"}}};
constexpr std::array<Column, 2> kProduttori{{{"DENOM.", 2000, "Denominazione"}, {"CODICE", 1200, "COD_PROD"}}};
constexpr std::array<Column, 3> kConti{
    {{"DESC.", 2000, "DESCRIZIONE"}, {"MASTRO", 1200, "Mastro"}, {"CONTO", 1200, "Conto"}}};

constexpr PickList kListaSOTTORAMI{"Elenco TIPI SOTTORAMI ASS.", kSottorami, statements::kListaSOTTORAMI, byNumber};
constexpr PickList kListaCOMPAGNIE{"Elenco COMPAGNIE", kCompagnie, statements::kListaCOMPAGNIE, byText};
constexpr PickList kListaMASTRI{"Elenco MASTRI", kMastri, statements::kListaMASTRI, byText};
constexpr PickList kListaCLIENTI{"Elenco CLIENTI", kClienti, statements::kListaCLIENTI, byText};
constexpr PickList kListaTIPI_IVA{"Elenco TIPI IVA", kTipiIva, statements::kListaTIPI_IVA, byNumber};
constexpr PickList kListaPRODUTTORI{"Elenco PRODUTTORI", kProduttori, statements::kListaPRODUTTORI, byText};
constexpr PickList kListaCONTI{"Elenco CONTI", kConti, statements::kListaCONTI, byAccount};

/// Heads the list with the columns and fills it with the rows of the answer.
void fill(toolkit::ListView& list, std::span<const Column> columns, Query& query) {
  // What a list that failed half-way has left behind is no part of this one.
  list.clearRows();
  list.clearColumns();
  for (const Column& column : columns) list.addColumn(column.caption, column.width);

  std::array<std::string, kConti.size()> values;
  std::array<std::string_view, kConti.size()> texts;
  for (; query.found(); query.next()) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      values[i] = query.as<std::string>(columns[i].field);
      texts[i] = values[i];
    }
    list.addRow(std::span(texts).first(columns.size()));
  }
}

/// Asks the database under the wait form and fills the list. False if no row was found, and then no list is loaded.
bool ask(const PickList& pickList, Lista& lista, std::string_view code, std::string_view description) {
  const auto wait = Globale::the<lookups::Ricerca>();
  wait->load();
  bool found = false;
  if (const Asked sql = pickList.narrowed(pickList.texts, code, description)) {
    Query query({*sql});
    found = query.found();
    if (found) {
      lista.load();
      lista.form().Caption(pickList.title);
      fill(lista.list(), pickList.columns, query);
    }
  }
  wait->unload();
  return found;
}

std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, text.find_first_not_of(' '));
  return text;
}

/// The code of the selected row: what stands behind its first column, joined by "?" where it has several parts. Empty
/// if no row is selected, which a host can bring about.
std::string selectedCode(const toolkit::ListView& list) {
  std::string code;
  if (list.selected() < 0) return code;
  for (std::int32_t column = 1; column < list.columnCount(); ++column) {
    if (column > 1) code.append("?");
    code.append(trimmed(list.text(list.selected(), column)));
  }
  return code;
}

std::string choose(const PickList& pickList, std::string_view code, std::string_view description) {
  const auto lista = Globale::the<Lista>();
  lista->requireNotShown();
  if (!ask(pickList, *lista, code, description)) return {};
  lista->selectFirst();
  lista->show();
  // A choice that was confirmed leaves the form loaded.
  if (Gest_SCHEDE::FormCaricata(lista->form().Name()) == 0) return {};
  std::string chosen = selectedCode(lista->list());
  lista->form().unload();
  return chosen;
}

/// What all pick lists do but the one of the VAT codes, which looks at its code before the quotes go.
template <class... Unused>
std::string chooseWithoutQuotes(const PickList& pickList, std::string& code, std::string& description,
                                Unused&... unused) {
  fireMancaDB();
  removeQuotes(code);
  removeQuotes(description);
  (removeQuotes(unused), ...);
  return choose(pickList, code, description);
}

}  // namespace

std::string ListaSOTTORAMI(std::string& COD_SRAMO, std::string& description, std::string& unused) {
  return chooseWithoutQuotes(kListaSOTTORAMI, COD_SRAMO, description, unused);
}

std::string ListaCOMPAGNIE(std::string& COD_COMP, std::string& description) {
  return chooseWithoutQuotes(kListaCOMPAGNIE, COD_COMP, description);
}

std::string ListaMASTRI(std::string& MASTRO, std::string& description) {
  return chooseWithoutQuotes(kListaMASTRI, MASTRO, description);
}

std::string ListaCLIENTI(std::string& COD_CLIENTE, std::string& description) {
  return chooseWithoutQuotes(kListaCLIENTI, COD_CLIENTE, description);
}

std::string ListaTIPI_IVA(std::string& COD_IVA, std::string& description) {
  fireMancaDB();
  if (COD_IVA == "0") COD_IVA.clear();
  removeQuotes(COD_IVA);
  removeQuotes(description);
  return choose(kListaTIPI_IVA, COD_IVA, description);
}

std::string ListaPRODUTTORI(std::string& COD_PROD, std::string& description) {
  return chooseWithoutQuotes(kListaPRODUTTORI, COD_PROD, description);
}

std::string ListaCONTI(std::string& MASTRO_CONTO, std::string& description) {
  return chooseWithoutQuotes(kListaCONTI, MASTRO_CONTO, description);
}

}  // namespace qvn::QVN_Ricerche
