// A host that drops the statement line inside one of its announcements, or where it is asked for its database.
#include <functional>
#include <gtest/gtest.h>

#include "qvn/panels/documents/ctlESTRATTI.h"
#include "tests/documents/line_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class StatementDropping : public LinePanel<ctlESTRATTI> {
 public:
  void start() {
    renew();
    panel->COD_PROD("P1");
    panel->PREMIO(money("7"));
    panel->DATA_EC(day(5, 3, 2026));
    panel->Attiva();
    hands().focus(box("TxtPREMIO"));
    forget();
  }

  void dropAtEach(const std::function<void()>& act) {
    dropAtEachNotice([this] { start(); }, act);
  }
};
QVN_ON_EVERY_PLATFORM(StatementDropping);

TEST_P(StatementDropping, InTheWriteOfEachProperty) {
  dropAtEach([&] { panel->COD_CLIENTE("C1"); });
  dropAtEach([&] { panel->PREMIO(money("9")); });
  dropAtEach([&] { panel->DATA_EC(day(6, 3, 2026)); });
  dropAtEach([&] { panel->DATA_QUIET(day(6, 3, 2026)); });
  dropAtEach([&] { panel->SIGLA_SRAMO("RCA"); });
  dropAtEach([&] { panel->TIPO_DOC("V"); });
  dropAtEach([&] { panel->ANNULLATA(true); });
  dropAtEach([&] { panel->STAMPA(true); });
  dropAtEach([&] { panel->ST_COMP(text("S")); });
  dropAtEach([&] { panel->ST_PROD(text("")); });
  dropAtEach([&] { letByName(*panel, "ST_PROD", text("S")); });
}

TEST_P(StatementDropping, AsTheFocusLeavesAnAmount) {
  dropAtEach([&] { panel->Attiva(); });
  dropAtEach([&] { panel->Disattiva(); });
  dropAtEach([&] { callByName(*panel, "Attiva", {}); });
  dropAtEach([&] { hands().leave(); });
}

TEST_P(StatementDropping, UnderTheOperatorsHands) {
  dropAtEach([&] { hands().type("{Backspace}"); });
  dropAtEach([&] { hands().type("5"); });
  dropAtEach([&] { hands().type("{Enter}"); });
  dropAtEach([&] { hands().choose(list("CmbTIPO_DOC"), 2); });
  dropAtEach([&] { hands().choose(list("CmbST_COMP"), 0); });
  dropAtEach([&] { hands().click(flag("chkSTAMPA")); });
}

TEST_P(StatementDropping, AtTheNoticeOfAPickedCode) {
  driver().answers["Select DESC_CLIENTE, COD_CLIENTE From CLIENTI"] = {{"DESC_CLIENTE", "COD_CLIENTE"},
                                                                       {{std::string("A"), std::string("C1")}}};
  driver().answers["Select DESCRIZIONE, COD_SRAMO From SOTTORAMI"] = {{"DESCRIZIONE", "COD_SRAMO"},
                                                                      {{std::string("A"), std::int32_t{7}}}};
  driver().answers["Select sigla From SOTTORAMI Where COD_SRAMO = 7"] = {{"sigla"}, {{std::string("RCA")}}};
  for (const std::string_view name : {"TxtCOD_CLI", "TxtSIGLA_SRAMO"}) {
    SCOPED_TRACE(name);
    dropAtEach([&] {
      box("TxtPREMIO").LostFocus = {};
      hands().focus(box(name));
      hands().layDown("Lista", {Act::row(0), Act::click("CmdOK")});
      hands().type("?");
    });
  }
}

TEST_P(StatementDropping, WhileItAsksForTheDatabaseOfAList) {
  driver().answers["Select DESCRIZIONE, COD_SRAMO From SOTTORAMI"] = {{"DESCRIZIONE", "COD_SRAMO"},
                                                                      {{std::string("A"), std::int32_t{7}}}};
  driver().answers["Select sigla From SOTTORAMI Where COD_SRAMO = 7"] = {{"sigla"}, {{std::string("RCA")}}};
  for (const std::string_view name : {"TxtCOD_CLI", "TxtSIGLA_SRAMO"}) {
    SCOPED_TRACE(name);
    start();
    hands().focus(box(name));
    Globale::unload();
    forget();
    const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] {
      panel.reset();
      Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
    });
    hands().layDown("Lista", {Act::row(0), Act::click("CmdOK")});
    hands().type("?");
    EXPECT_EQ(panel, nullptr);
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_EQ(asked().size(), 1U);  // the list alone: nobody needs the initials any more
    EXPECT_THAT(container().failures, IsEmpty());
  }
}

}  // namespace
}  // namespace qvn::test
