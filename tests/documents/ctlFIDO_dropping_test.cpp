// A host that drops the credit line inside one of its announcements, or where it is asked for its database.
#include <functional>
#include <gtest/gtest.h>

#include "tests/documents/credit_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;

class CreditDropping : public CreditPanel {
 public:
  void start() {
    renew();
    panel->COD_CLIENTE("K1");
    panel->COD_COMP("C1");
    panel->FIDO(money("7"));
    panel->Attiva();
    hands().focus(amountBox());
    forget();
  }

  void dropAtEach(const std::function<void()>& act) {
    dropAtEachNotice([this] { start(); }, act);
  }
};
QVN_ON_EVERY_PLATFORM(CreditDropping);

TEST_P(CreditDropping, InTheWriteOfEachProperty) {
  dropAtEach([&] { panel->COD_COMP("C2"); });
  dropAtEach([&] { panel->COD_COMP(""); });
  dropAtEach([&] { panel->FIDO(money("9")); });
  dropAtEach([&] { panel->DATA_FIDO(day(6, 3, 2026)); });
  dropAtEach([&] { letByName(*panel, "COD_COMP", text("C2")); });
}

TEST_P(CreditDropping, AsTheFocusLeavesTheAmount) {
  dropAtEach([&] { panel->Attiva(); });
  dropAtEach([&] { panel->Disattiva(); });
  dropAtEach([&] { callByName(*panel, "Attiva", {}); });
  dropAtEach([&] { hands().leave(); });
}

TEST_P(CreditDropping, UnderTheOperatorsHands) {
  dropAtEach([&] { hands().type("{Backspace}"); });
  dropAtEach([&] { hands().type("5"); });
  dropAtEach([&] { hands().type("{Enter}"); });
}

TEST_P(CreditDropping, AtTheNoticeOfAPickedCompany) {
  driver().answers["Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like 'C1%'"] = {
      {"DESC_COMPAGNIA", "COD_COMP"}, {{std::string("ALPINA"), std::string("C2")}}};
  dropAtEach([&] {
    amountBox().LostFocus = {};
    hands().focus(companyBox());
    hands().layDown("Lista", {Act::row(0), Act::click("CmdOK")});
    hands().type("?");
  });
}

TEST_P(CreditDropping, WhileItAsksForTheDatabase) {
  for (const bool answered : {false, true}) {
    SCOPED_TRACE(answered);
    start();
    Globale::unload();
    forget();
    const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] {
      panel.reset();
      if (answered) Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
    });
    if (answered) {
      panel->COD_COMP("C2");
      EXPECT_THAT(asked(), ElementsAre(companySql("C2"), exposureSql("K1", "C2")));
    } else {
      EXPECT_FAILURE(panel->COD_COMP("C2"), FailureKind::Database, "closed");
    }
    EXPECT_EQ(panel, nullptr);
    EXPECT_THAT(heard(), ElementsAre("COD_COMP"));
    Globale::unload();
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
  }
}

}  // namespace
}  // namespace qvn::test
