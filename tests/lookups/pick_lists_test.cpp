// The seven pick lists: what each asks, what it shows, and what it gives back.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/by_name.h"
#include "qvn/shared/Globale.h"
#include "qvn/toolkit/list_view.h"
#include "tests/failure_matchers.h"
#include "tests/lookups/list_bench.h"

namespace qvn::test {
namespace {

using namespace QVN_Ricerche;
using testing::ElementsAre;
using testing::IsEmpty;

using ListFunction = std::string (*)(std::string& code, std::string& description);

std::string subBranches(std::string& code, std::string& description) {
  std::string third;
  return ListaSOTTORAMI(code, description, third);
}

struct Narrowed {
  std::string code;
  std::string description;
  std::string sql;
};

struct Heading {
  std::string caption;
  std::int32_t width;
};

struct List {
  std::string name;
  ListFunction function;
  std::string title;
  std::vector<Heading> headings;
  std::vector<std::string> fields;  ///< as the database spells them
  std::vector<Narrowed> narrowed;
};

const std::vector<List>& lists() {
  static const std::vector<List> table{
      {"ListaSOTTORAMI",
       subBranches,
       "Elenco TIPI SOTTORAMI ASS.",
       {{"DENOM.", 2000}, {"CODICE", 1200}},
       {"DESCRIZIONE", "COD_SRAMO"},
       {{"5", "", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO = 5"},
        {"5", "INC", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO = 5"},
        {" 5", "", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO =  5"},
        {"1'2", "", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO = 12"},
        {"-1", "", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO = -1"},
        {"0", "", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO = 0"},
        {"", "", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI"},
        {"INC", "", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI"},
        {"!5", "", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI"},
        {"%", "", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI"},
        {"", "IN'C", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where DESCRIZIONE Like 'INC%'"},
        {"INC", "!RC", "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where DESCRIZIONE Like '!RC%'"}}},
      {"ListaCOMPAGNIE",
       ListaCOMPAGNIE,
       "Elenco COMPAGNIE",
       {{"DENOM.", 2000}, {"CODICE", 1200}},
       {"DESC_COMPAGNIA", "COD_COMP"},
       {{"AB", "", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like 'AB%'"},
        {"A'B", "X", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like 'AB%'"},
        {"%", "", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like '%%'"},
        {"7", "", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like '7%'"},
        {"A!B", "", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like 'A!B%'"},
        {"!AB", "", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like 'AB%'"},
        {"'!A'B", "X", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like 'AB%'"},
        {"!", "", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like '%'"},
        {"!!", "", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like '!%'"},
        {"", "", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE"},
        {"''", "'", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE"},
        {"", "AL'FA", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like 'ALFA%'"},
        {"", "!A", "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like '!A%'"}}},
      {"ListaMASTRI",
       ListaMASTRI,
       "Elenco MASTRI",
       {{"DESC.", 2000}, {"MASTRO", 1200}},
       {"DESCRIZIONE", "MASTRO"},
       {{"10", "", "Select DESCRIZIONE, MASTRO From Mastri Where MASTRO Like '10%'"},
        {"!CAS", "X", "Select DESCRIZIONE, MASTRO From Mastri Where DESCRIZIONE Like 'CAS%'"},
        {"", "", "Select DESCRIZIONE, MASTRO From Mastri"},
        {"", "CAS", "Select DESCRIZIONE, MASTRO From Mastri Where DESCRIZIONE Like 'CAS%'"}}},
      {"ListaCLIENTI",
       ListaCLIENTI,
       "Elenco CLIENTI",
       {{"DENOM.", 2000}, {"CODICE", 1200}},
       {"DESC_CLIENTE", "COD_CLIENTE"},
       {{"C1", "", "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where COD_CLIENTE Like 'C1%'"},
        {"!RO", "X", "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where DESC_CLIENTE Like 'RO%'"},
        {"", "", "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI"},
        {"", "RO", "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where DESC_CLIENTE Like 'RO%'"}}},
      {"ListaTIPI_IVA",
       ListaTIPI_IVA,
       "Elenco TIPI IVA",
       {{"DENOM.", 2000}, {"CODICE", 1200}},
       {"DESCRIZIONE", "COD_IVA"},
       {{"22", "", "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = 22"},
        {"0", "", "Select DESCRIZIONE, COD_IVA From TIPI_IVA"},
        {"0", "ORD", "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where DESCRIZIONE Like 'ORD%'"},
        {"00", "", "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = 00"},
        // The code is looked at before its quotes go.
        {"'0'", "", "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = 0"},
        {"", "", "Select DESCRIZIONE, COD_IVA From TIPI_IVA"},
        {"!22", "", "Select DESCRIZIONE, COD_IVA From TIPI_IVA"},
        {"!22", "ORD", "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where DESCRIZIONE Like 'ORD%'"},
        {"ORD", "", "Select DESCRIZIONE, COD_IVA From TIPI_IVA"},
        {"", "ORD", "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where DESCRIZIONE Like 'ORD%'"}}},
      {"ListaPRODUTTORI",
       ListaPRODUTTORI,
       "Elenco PRODUTTORI",
       {{"DENOM.", 2000}, {"CODICE", 1200}},
       {"DENOMINAZIONE", "COD_PROD"},
       {{"P1", "", "Select DENOMINAZIONE, COD_PROD From PRODUTTORI Where COD_PROD Like 'P1%'"},
        {"!RO", "X", "Select DENOMINAZIONE, COD_PROD From PRODUTTORI Where DENOMINAZIONE Like 'RO%'"},
        {"", "", "Select DENOMINAZIONE, COD_PROD From PRODUTTORI"},
        {"", "RO", "Select DENOMINAZIONE, COD_PROD From PRODUTTORI Where DENOMINAZIONE Like 'RO%'"}}},
      {"ListaCONTI",
       ListaCONTI,
       "Elenco CONTI",
       {{"DESC.", 2000}, {"MASTRO", 1200}, {"CONTO", 1200}},
       {"DESCRIZIONE", "MASTRO", "CONTO"},
       {{"10?001", "", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '10' AND CONTO LIKE '001%'"},
        {"%?001", "X", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '%' AND CONTO LIKE '001%'"},
        {"10?%", "", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '10'"},
        {"%?%", "", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '%'"},
        {"1'0?0'1", "", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '10' AND CONTO LIKE '01%'"},
        {"10?", "", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '10' AND CONTO LIKE '%'"},
        {"?", "", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '' AND CONTO LIKE '%'"},
        {"10?0?1", "", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '10' AND CONTO LIKE '0?1%'"},
        {"!CAS?%", "", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '!CAS'"},
        {"", "CAS'", "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where DESCRIZIONE Like 'CAS%'"}}},
  };
  return table;
}

constexpr std::string_view kCompanies = "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE";
constexpr std::string_view kLedgers = "Select DESCRIZIONE, MASTRO From Mastri";
constexpr std::string_view kAccounts = "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '%'";

class PickLists : public ListBench {
 public:
  /// Companies in an order of names, codes and rows that all differ.
  void answerCompanies() {
    answer(kCompanies, {"DESC_COMPAGNIA", "COD_COMP"},
           {{text("Gamma"), text("B")}, {text("alfa"), text("C")}, {text("Beta"), text("a")}});
  }
  std::string companies(std::string code = {}, std::string description = {}) {
    return ListaCOMPAGNIE(code, description);
  }
  std::string ledgers() {
    std::string code;
    std::string description;
    return ListaMASTRI(code, description);
  }
  std::string accounts(std::string code, std::string description = {}) { return ListaCONTI(code, description); }

  /// The codes of a picture's rows in the order shown.
  static std::string codes(const FormPicture& picture) {
    std::string shown;
    for (const auto& row : rowsOf(picture)) shown.append(row[1]);
    return shown;
  }
  /// The codes as they stand at each look of the operator.
  std::vector<std::string> codesShown() {
    std::vector<std::string> all;
    for (const FormPicture& picture : hands().shown()) all.push_back(codes(picture));
    return all;
  }
};
QVN_ON_EVERY_PLATFORM(PickLists);

TEST_P(PickLists, AskForWhatCodeAndDescriptionNarrow) {
  for (const List& list : lists()) {
    for (const Narrowed& narrowed : list.narrowed) {
      SCOPED_TRACE(list.name + " \"" + narrowed.code + "\" \"" + narrowed.description + "\"");
      driver().ran.clear();
      std::string code = narrowed.code;
      std::string description = narrowed.description;
      EXPECT_EQ(list.function(code, description), "");
      EXPECT_THAT(driver().ran, ElementsAre(Ran{narrowed.sql, 2, 3, -1}));
    }
  }
}

TEST_P(PickLists, ShowTheirTitleColumnsAndRowsAndGiveTheCodeOfTheOneConfirmed) {
  for (const List& list : lists()) {
    SCOPED_TRACE(list.name);
    const bool account = list.fields.size() == 3;
    std::vector<std::vector<Variant>> rows{{text("Seconda"), text(" Y2 ")}, {text("Prima"), text("X 1  ")}};
    if (account) {
      rows[0].push_back(text(" 002"));
      rows[1].push_back(text(" 001 "));
    }
    answer(list.narrowed[0].sql, list.fields, rows);
    atLista({Act::click("CmdOK")});
    std::string code = list.narrowed[0].code;
    std::string description;
    EXPECT_EQ(list.function(code, description), account ? "X 1?001" : "X 1");
    const auto shown = hands().shown();
    ASSERT_EQ(shown.size(), 1U);
    const FormPicture& picture = shown[0];
    EXPECT_EQ(picture.form, "Lista");
    EXPECT_EQ(picture.caption, list.title);
    EXPECT_EQ(picture.selected, 0);
    ASSERT_EQ(picture.columns.size(), list.headings.size());
    for (std::size_t i = 0; i < list.headings.size(); ++i) {
      EXPECT_EQ(picture.columns[i].caption, list.headings[i].caption);
      EXPECT_EQ(picture.columns[i].width, list.headings[i].width);
    }
    std::vector<std::vector<std::string>> expected{{"Prima", "X 1  "}, {"Seconda", " Y2 "}};
    if (account) {
      expected[0].emplace_back(" 001 ");
      expected[1].emplace_back(" 002");
    }
    EXPECT_EQ(rowsOf(picture), expected);
    EXPECT_THAT(loadedForms(), IsEmpty());
    EXPECT_THAT(hands().failedActs(), IsEmpty());
  }
}

TEST_P(PickLists, ShowASingleHitAsAnyOther) {
  answer(kLedgers, {"DESCRIZIONE", "MASTRO"}, {{text("Cassa"), text("10")}});
  atLista({Act::key("{Enter}")});
  EXPECT_EQ(ledgers(), "10");
  EXPECT_EQ(hands().shown().size(), 1U);
}

TEST_P(PickLists, GoTheirStepsInOrder) {
  answerCompanies();
  atLista({Act::click("CmdOK")});
  EXPECT_EQ(companies(), "C");
  EXPECT_THAT(log().take(), ElementsAre("load Ricerca", "sql", "load Lista", "unload Ricerca", "modal Lista",
                                        "hide Lista", "unload Lista"));
  atLista({Act::click("CmdAbort")});
  EXPECT_EQ(companies(), "");
  EXPECT_THAT(log().take(),
              ElementsAre("load Ricerca", "sql", "load Lista", "unload Ricerca", "modal Lista", "unload Lista"));
}

TEST_P(PickLists, ShowNothingWhereNoRowIsFound) {
  for (const List& list : lists()) {
    SCOPED_TRACE(list.name);
    std::string code = list.narrowed[0].code;
    std::string description;
    log().entries.clear();
    EXPECT_EQ(list.function(code, description), "");
    EXPECT_THAT(log().take(), ElementsAre("load Ricerca", "sql", "unload Ricerca"));
    EXPECT_THAT(hands().shown(), IsEmpty());
    EXPECT_EQ(beeps(), 0);
  }
}

TEST_P(PickLists, AskForNoAccountsWithoutAKey) {
  EXPECT_EQ(accounts("", ""), "");
  EXPECT_EQ(accounts("'", "''"), "");
  EXPECT_THAT(driver().ran, IsEmpty());
  EXPECT_THAT(log().take(), ElementsAre("load Ricerca", "unload Ricerca", "load Ricerca", "unload Ricerca"));
}

TEST_P(PickLists, FailOnAnAccountKeyWithoutItsMark) {
  EXPECT_FAILURE(accounts("10001", "CAS"), FailureKind::InvalidCall, "\"10001\"");
  EXPECT_THAT(driver().ran, IsEmpty());
  EXPECT_THAT(loadedForms(), ElementsAre("Ricerca"));
  EXPECT_EQ(accounts("", ""), "");
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(PickLists, FireMancaDBBeforeAnythingElse) {
  for (const List& list : lists()) {
    SCOPED_TRACE(list.name);
    Globale::unload();
    std::string code = list.narrowed[0].code + "'";
    std::string description = "'";
    const std::string before = code;
    const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] {
      log().add("mancadb");
      EXPECT_EQ(code, before);
      EXPECT_EQ(description, "'");
      Globale::Eventi()->ImpostaDB("logged:ufficio");
    });
    log().entries.clear();
    EXPECT_EQ(list.function(code, description), "");
    EXPECT_THAT(log().take(), ElementsAre("mancadb", "open", "load Ricerca", "sql", "unload Ricerca"));
    EXPECT_EQ(code, list.narrowed[0].code);
    EXPECT_EQ(description, "");
  }
}

TEST_P(PickLists, EmptyTheVatCodeZeroOnlyAfterMancaDB) {
  Globale::unload();
  std::string code = "0";
  std::string description;
  const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] {
    log().add("mancadb");
    EXPECT_EQ(code, "0");
    Globale::Eventi()->ImpostaDB("logged:ufficio");
  });
  EXPECT_EQ(ListaTIPI_IVA(code, description), "");
  EXPECT_THAT(log().entries, testing::Contains("mancadb"));
  EXPECT_EQ(code, "");
  EXPECT_EQ(driver().ran.back().sql, "Select DESCRIZIONE, COD_IVA From TIPI_IVA");
}

TEST_P(PickLists, TakeTheQuotesFromTheCallersArguments) {
  std::string code = "'A'";
  std::string description = "B''";
  std::string third = "'C'D'";
  EXPECT_EQ(ListaSOTTORAMI(code, description, third), "");
  EXPECT_EQ(code + " " + description + " " + third, "A B CD");
  EXPECT_EQ(driver().ran.back().sql,
            "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where DESCRIZIONE Like 'B%'");  // the third narrows nothing
  code = "0";
  EXPECT_EQ(ListaTIPI_IVA(code, description), "");
  EXPECT_EQ(code, "");
}

TEST_P(PickLists, GiveNothingWhereTheOperatorGoesAway) {
  answerCompanies();
  for (const Act& leaving : {Act::click("CmdAbort"), Act::key("{Escape}"), Act::close()}) {
    atLista({Act::row(1), leaving, Act::click("CmdOK")});  // too late
    EXPECT_EQ(companies(), "");
    EXPECT_THAT(loadedForms(), IsEmpty());
  }
  EXPECT_EQ(companies(), "");  // nothing laid down
  EXPECT_THAT(hands().failedActs(), IsEmpty());
}

TEST_P(PickLists, GiveTheRowThatIsSelectedWhenItIsConfirmed) {
  answerCompanies();
  const auto chosenBy = [&](std::vector<Act> acts) {
    atLista(std::move(acts));
    return companies();
  };
  EXPECT_EQ(chosenBy({Act::click("CmdOK")}), "C");
  EXPECT_EQ(chosenBy({Act::row(1), Act::click("CmdOK")}), "a");
  EXPECT_EQ(chosenBy({Act::key("{Down}"), Act::key("{Down}"), Act::key("{Enter}")}), "B");
  EXPECT_EQ(chosenBy({Act::key("{Enter}")}), "C");
  EXPECT_EQ(chosenBy({Act::doubleClick(2)}), "B");
  EXPECT_EQ(chosenBy({Act::column(2), Act::doubleClick(2)}), "C");
  EXPECT_EQ(chosenBy({Act::column(2), Act::row(2), Act::key("{Enter}")}), "a");
  EXPECT_EQ(chosenBy({Act::key("x"), Act::key("{Enter}")}), "C");  // no other key confirms
  EXPECT_THAT(hands().failedActs(), IsEmpty());
}

TEST_P(PickLists, TakeBlanksAloneFromAroundTheCode) {
  answer(kLedgers, {"DESCRIZIONE", "MASTRO"}, {{text("Cassa"), text(" \t10\n ")}});
  atLista({Act::click("CmdOK")});
  EXPECT_EQ(ledgers(), "\t10\n");
}

TEST_P(PickLists, UnloadTheListOfABlankCodeThatIsConfirmed) {
  answer(kLedgers, {"DESCRIZIONE", "MASTRO"}, {{text("Cassa"), text("  ")}});
  atLista({Act::click("CmdOK")});
  EXPECT_EQ(ledgers(), "");
  EXPECT_EQ(hands().shown().size(), 1U);
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(PickLists, GiveNothingAndUnloadTheListWhereNoRowIsSelected) {
  answerCompanies();
  answer(kAccounts, {"DESCRIZIONE", "MASTRO", "CONTO"}, {{text("Cassa"), text("10"), text("001")}});
  const auto rows = [&]() -> toolkit::ListView& { return loadedForm("Lista")->surface().listView("ListView1"); };
  for (const bool cleared : {false, true}) {
    for (const bool account : {false, true}) {
      log().at("modal Lista", [&] { cleared ? rows().clearRows() : rows().select(-1); });
      atLista({Act::click("CmdOK")});
      EXPECT_EQ(account ? accounts("%?%") : companies(), "");
      EXPECT_THAT(log().take(), testing::IsSupersetOf({"hide Lista", "unload Lista"}));
      EXPECT_THAT(loadedForms(), IsEmpty());
    }
  }
}

TEST_P(PickLists, TakeAClickOnAColumnWithoutARow) {
  answerCompanies();
  log().at("modal Lista", [&] { loadedForm("Lista")->surface().listView("ListView1").clearRows(); });
  atLista({Act::column(1), Act::column(2), Act::click("CmdOK")});
  EXPECT_EQ(companies(), "");
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(PickLists, ConfirmWithEnterOnceThoughTheListAndTheDefaultButtonBothWould) {
  answerCompanies();
  atLista({Act::key("{Enter}")});
  EXPECT_EQ(companies(), "C");
  const auto entries = log().take();
  EXPECT_EQ(std::ranges::count(entries, "hide Lista"), 1);
}

TEST_P(PickLists, ConfirmWithEnterInTheListWhereTheButtonCannot) {
  answerCompanies();
  log().at("modal Lista", [&] { loadedForm("Lista")->surface().button("CmdOK").Enabled(false); });
  atLista({Act::key("{Enter}")});
  EXPECT_EQ(companies(), "C");
}

TEST_P(PickLists, ClearTheirRowsAsTheFormUnloads) {
  answerCompanies();
  log().at("modal Lista", [&] {
    toolkit::Form* form = loadedForm("Lista");
    EXPECT_EQ(form->surface().listView("ListView1").rowCount(), 3);
    form->Unload();
    EXPECT_EQ(form->surface().listView("ListView1").rowCount(), 0);
  });
  EXPECT_EQ(companies(), "");
}

TEST_P(PickLists, SortByTheColumnThatIsClicked) {
  answerCompanies();
  const Act look = Act::look();
  atLista({Act::column(1), look, Act::column(2), look, Act::column(2), look, Act::column(1), look, Act::column(1), look,
           Act::column(1), look, Act::column(2), look});
  EXPECT_EQ(companies(), "");
  EXPECT_THAT(codesShown(), ElementsAre("CaB",         // by name
                                        "BaC",         // the first click of all turns the order round
                                        "aBC", "CBa",  // by code, then round
                                        "CaB", "BaC",  // by name again, ascending, then round
                                        "CaB",         //
                                        "aBC"));       // by code, ascending
}

TEST_P(PickLists, AFirstClickOnAnotherColumnSortsByItAscending) {
  answerCompanies();
  atLista({Act::column(2), Act::look(), Act::column(1), Act::look()});
  companies();
  EXPECT_THAT(codesShown(), ElementsAre("CaB", "aBC", "CaB"));
}

TEST_P(PickLists, SelectTheFirstRowInTheNewOrder) {
  answerCompanies();
  const Act look = Act::look();
  atLista({Act::row(1), look, Act::column(1), look, Act::row(1), Act::column(2), look, Act::row(1), Act::column(2),
           look, Act::row(1), Act::column(1), look});
  companies();
  std::vector<std::int32_t> selected;
  for (const FormPicture& picture : hands().shown()) selected.push_back(picture.selected);
  EXPECT_THAT(selected, ElementsAre(0, 1, 0, 0, 0, 0));
}

TEST_P(PickLists, RememberTheColumnClickedLastBeyondTheUnloadingOfTheForm) {
  answerCompanies();
  const Act look = Act::look();
  atLista({Act::column(2), Act::close()});
  companies();
  hands().shown();

  // The order is the stored one again; only which column was clicked is known still.
  atLista({Act::column(2), look});
  companies();
  EXPECT_THAT(codesShown(), ElementsAre("CaB", "CBa"));  // clicked again: by code, the direction turned round

  atLista({Act::column(1), look, Act::close()});
  companies();
  EXPECT_THAT(codesShown(), ElementsAre("CaB", "CaB"));  // another than the last: ascending

  atLista({Act::column(1), look});
  companies();
  EXPECT_THAT(codesShown(), ElementsAre("CaB", "BaC"));  // the same as the last

  Globale::unload();
  Globale::Eventi()->ImpostaDB("logged:ufficio");
  atLista({Act::column(1), look});
  companies();
  EXPECT_THAT(codesShown(), ElementsAre("CaB", "BaC"));  // the first of all once more
}

TEST_P(PickLists, RememberTheColumnFromOneTableToTheNext) {
  answerCompanies();
  answer(kAccounts, {"DESCRIZIONE", "MASTRO", "CONTO"},
         {{text("B"), text("1"), text("9")}, {text("A"), text("2"), text("8")}});
  atLista({Act::column(3), Act::look()});
  accounts("%?%");
  EXPECT_THAT(codesShown(), ElementsAre("21", "21"));  // A, then by account 8 before 9
  atLista({Act::column(1), Act::look()});
  companies();
  EXPECT_THAT(codesShown(), ElementsAre("CaB", "CaB"));
}

TEST_P(PickLists, LeaveTheWaitFormLoadedWhereTheQueryFails) {
  driver().failingStatement = 1;
  EXPECT_FAILURE(companies(), FailureKind::Database, "COMPAGNIE");
  EXPECT_THAT(loadedForms(), ElementsAre("Ricerca"));
  EXPECT_THAT(hands().shown(), IsEmpty());
  log().entries.clear();
  answerCompanies();
  atLista({Act::click("CmdOK")});
  EXPECT_EQ(companies(), "C");
  EXPECT_THAT(log().take(),
              ElementsAre("sql", "load Lista", "unload Ricerca", "modal Lista", "hide Lista", "unload Lista"));
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(PickLists, LeaveTheWaitFormLoadedWithoutADatabase) {
  Globale::unload();
  EXPECT_FAILURE(companies(), FailureKind::Database, "closed");
  EXPECT_THAT(loadedForms(), ElementsAre("Ricerca"));
}

TEST_P(PickLists, FailOnANullInAnyColumnAndLeaveBothFormsLoaded) {
  for (const List& list : lists()) {
    for (std::size_t column = 0; column < list.fields.size(); ++column) {
      SCOPED_TRACE(list.name + " " + list.fields[column]);
      std::vector<Variant> whole(list.fields.size(), text("X"));
      std::vector<Variant> gap = whole;
      gap[column] = Null{};
      answer(list.narrowed[0].sql, list.fields, {whole, gap, whole});
      std::string code = list.narrowed[0].code;
      std::string description;
      try {
        list.function(code, description);
        ADD_FAILURE() << "did not fail";
      } catch (const Failure& failure) {
        EXPECT_EQ(failure.kind(), FailureKind::InvalidUseOfNull);
        EXPECT_TRUE(
            sameName(std::string_view(failure.what()).substr(0, list.fields[column].size()), list.fields[column]))
            << failure.what();
      }
      EXPECT_THAT(loadedForms(), ElementsAre("Ricerca", "Lista"));
      const toolkit::Form* form = loadedForm("Lista");
      ASSERT_NE(form, nullptr);
      EXPECT_EQ(form->Caption(), list.title);
      EXPECT_THAT(hands().shown(), IsEmpty());
    }
  }
}

TEST_P(PickLists, LoadOverWhatAFailedListHasLeft) {
  answer(kAccounts, {"DESCRIZIONE", "MASTRO", "CONTO"},
         {{text("Cassa"), text("10"), text("001")}, {Null{}, text("11"), text("002")}});
  EXPECT_FAILURE(accounts("%?%"), FailureKind::InvalidUseOfNull, "DESCRIZIONE");
  EXPECT_THAT(loadedForms(), ElementsAre("Ricerca", "Lista"));
  log().entries.clear();
  answerCompanies();
  atLista({Act::click("CmdOK")});
  EXPECT_EQ(companies(), "C");
  EXPECT_THAT(log().take(), ElementsAre("sql", "unload Ricerca", "modal Lista", "hide Lista", "unload Lista"));
  const auto shown = hands().shown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].caption, "Elenco COMPAGNIE");
  EXPECT_EQ(shown[0].columns.size(), 2U);
  EXPECT_EQ(codes(shown[0]), "CaB");
}

TEST_P(PickLists, ShowNumbersOfTheDatabaseAsTheirText) {
  answer("Select DESCRIZIONE, COD_SRAMO From SOTTORAMI", {"DESCRIZIONE", "COD_SRAMO"},
         {{text("Incendio"), std::int32_t{5}}, {std::int32_t{7}, 12.5}});
  atLista({Act::row(1), Act::click("CmdOK")});
  std::string code;
  std::string description;
  EXPECT_EQ(subBranches(code, description), "5");
  EXPECT_EQ(rowsOf(hands().shown().at(0)), (std::vector<std::vector<std::string>>{{"7", "12,5"}, {"Incendio", "5"}}));
}

TEST_P(PickLists, ReadACodeAsANumberInTheFormOfTheOffice) {
  std::string description;
  std::string code = "1.000";
  subBranches(code, description);
  EXPECT_EQ(driver().ran.back().sql, "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO = 1.000");
  code = "1.5";
  subBranches(code, description);
  EXPECT_EQ(driver().ran.back().sql, "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI");
}

TEST_P(PickLists, AreKnownAsLoadedWhileTheyStand) {
  answerCompanies();
  log().at("modal Lista", [&] {
    EXPECT_EQ(Gest_SCHEDE::FormCaricata("lista"), 1);
    EXPECT_EQ(Gest_SCHEDE::FormCaricata("Ricerca"), 0);
  });
  log().at("sql", [&] {
    EXPECT_EQ(Gest_SCHEDE::FormCaricata("Lista"), 0);
    EXPECT_EQ(Gest_SCHEDE::FormCaricata("Ricerca"), 1);
  });
  companies();
  EXPECT_EQ(Gest_SCHEDE::FormCaricata("Lista"), 0);
}

TEST_P(PickLists, AreLaidOutAsEver) {
  answerCompanies();
  log().at("modal Lista", [&] {
    const toolkit::Form* form = loadedForm("Lista");
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->place().left, 800);
    EXPECT_EQ(form->place().top, 800);
    const toolkit::Surface& surface = form->surface();
    ASSERT_EQ(surface.widgets().size(), 3U);
    EXPECT_EQ(surface.listView("ListView1").place(), (toolkit::Place{72, 72, 4548, 3036}));
    EXPECT_EQ(surface.button("CmdOK").place(), (toolkit::Place{4680, 48, 1188, 600}));
    EXPECT_EQ(surface.button("CmdOK").Caption(), "&OK");
    EXPECT_EQ(surface.button("CmdAbort").place(), (toolkit::Place{4680, 720, 1188, 600}));
    EXPECT_EQ(surface.button("CmdAbort").Caption(), "Annulla");
    EXPECT_TRUE(surface.button("CmdOK").layout().defaultButton);
    EXPECT_TRUE(surface.button("CmdAbort").layout().cancelButton);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(surface.widgets()[i]->TabIndex(), static_cast<std::int16_t>(i));
    const toolkit::PanelLayout& inside = surface.layout();
    for (const toolkit::Widget* widget : surface.widgets()) {
      EXPECT_LE(widget->place().left + widget->place().width, inside.width);
      EXPECT_LE(widget->place().top + widget->place().height, inside.height);
    }
  });
  log().at("sql", [&] {
    const toolkit::Form* form = loadedForm("Ricerca");
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->Caption(), "Stampa");
    const toolkit::Place place = form->place();
    const toolkit::ScreenSize screen = platform().screen();
    EXPECT_EQ(place.left, (screen.width - place.width) / 2);
    EXPECT_EQ(place.top, (screen.height - place.height) / 2);
    EXPECT_EQ(form->surface().layout().width, 2160);
    EXPECT_EQ(form->surface().layout().height, 675);
    EXPECT_EQ(form->surface().widgets().size(), 2U);
    EXPECT_EQ(form->surface().label("Label1").Caption(), "Ricerca in Corso ...");
    EXPECT_EQ(form->surface().label("Label1").place(), (toolkit::Place{675, 225, 1380, 225}));
    EXPECT_EQ(form->surface().widget("Image1").Name(), "Image1");
  });
  companies();
}

TEST_P(PickLists, StandAtTheirCornerInTheirStoredSizeWhateverWasClickedBefore) {
  answerCompanies();
  for (int opening = 0; opening < 2; ++opening) {
    toolkit::Place stored;
    log().at("load Lista", [&] { stored = loadedForm("Lista")->place(); });
    log().at("modal Lista", [&] {
      const toolkit::Place place = loadedForm("Lista")->place();
      EXPECT_EQ(place, (toolkit::Place{800, 800, stored.width, stored.height}));
      EXPECT_GE(place.width, 5940);
      EXPECT_GE(place.height, 3180);
      log().add("looked");
    });
    atLista({Act::column(2), Act::close()});
    EXPECT_EQ(companies(), "");
    EXPECT_THAT(log().take(), testing::Contains("looked"));
  }
}

TEST_P(PickLists, RefuseAListWhileAnotherIsShownBeforeTheyAskTheDatabase) {
  answerCompanies();
  answer(kLedgers, {"DESCRIZIONE", "MASTRO"}, {{text("Cassa"), text("10")}});
  log().at("modal Lista", [&] {
    Globale::DB().Close();
    const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] { log().add("mancadb"); });
    log().entries.clear();
    std::string code = "1'";
    std::string description = "'";
    EXPECT_FAILURE(ListaMASTRI(code, description), FailureKind::InvalidCall, "Lista");
    EXPECT_EQ(code + description, "1");
    EXPECT_THAT(log().entries, ElementsAre("mancadb"));
    EXPECT_THAT(loadedForms(), ElementsAre("Lista"));
  });
  atLista({Act::click("CmdOK")});
  EXPECT_EQ(companies(), "C");
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(PickLists, RefuseAListWhileAnotherIsShown) {
  answerCompanies();
  answer(kLedgers, {"DESCRIZIONE", "MASTRO"}, {{text("Cassa"), text("10")}});
  log().at("modal Lista", [&] { EXPECT_FAILURE(ledgers(), FailureKind::InvalidCall, "Lista"); });
  atLista({Act::look(), Act::click("CmdOK")});
  EXPECT_EQ(companies(), "C");
  for (const FormPicture& picture : hands().shown()) EXPECT_EQ(codes(picture), "CaB");
  atLista({Act::click("CmdOK")});
  EXPECT_EQ(ledgers(), "10");
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(PickLists, EndWellWhereTheLibraryIsUnloadedOverThem) {
  answerCompanies();
  log().at("modal Lista", [] { Globale::unload(); });
  atLista({Act::click("CmdOK")});
  EXPECT_EQ(companies(), "C");
  EXPECT_THAT(loadedForms(), IsEmpty());
  log().at("modal Lista", [] { Globale::uninstall(); });
  Globale::Eventi()->ImpostaDB("logged:ufficio");
  atLista({Act::click("CmdOK")});
  EXPECT_FAILURE(companies(), FailureKind::InvalidCall, "platform");
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(PickLists, GoWithTheLibraryWhereAFailureHasLeftThemLoaded) {
  driver().failingStatement = 1;
  EXPECT_FAILURE(companies(), FailureKind::Database, "COMPAGNIE");
  Globale::unload();
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(PickLists, AreCalledByNameWithTheirArgumentsInAndOut) {
  answer("Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like 'AB%'", {"DESC_COMPAGNIA", "COD_COMP"},
         {{text("Alfa"), text("AB")}});
  atLista({Act::click("CmdOK")});
  std::vector<Variant> args{text("A'B"), text("")};
  EXPECT_EQ(callLookup("listacompagnie", args), text("AB"));
  EXPECT_EQ(args, (std::vector<Variant>{text("AB"), text("")}));
  std::vector<Variant> three{text("'5"), text("a'"), text("'")};
  EXPECT_EQ(callLookup("ListaSOTTORAMI", three), text(""));
  EXPECT_EQ(three, (std::vector<Variant>{text("5"), text("a"), text("")}));
  EXPECT_FAILURE(callLookup("ListaSOTTORAMI", args), FailureKind::InvalidCall, "takes 3 arguments, given 2");
  for (const std::string_view name : {"ListaCLIENTI", "ListaMASTRI", "ListaPRODUTTORI", "ListaTIPI_IVA"}) {
    EXPECT_EQ(callLookup(name, args), text("")) << name;
  }
  std::vector<Variant> noMark{text("10"), text("")};
  EXPECT_FAILURE(callLookup("ListaCONTI", noMark), FailureKind::InvalidCall, "ListaCONTI: the code \"10\"");
}

}  // namespace
}  // namespace qvn::test
