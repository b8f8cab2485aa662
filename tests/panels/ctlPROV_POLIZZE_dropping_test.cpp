// A host that drops the panel inside one of its own announcements, at each of them.
#include <functional>
#include <gtest/gtest.h>

#include "tests/panels/commission_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class CommissionDropping : public CommissionPanel {
 public:
  /// A panel with all parties entitled and all percents given, so that every rule has something to do.
  void start() {
    container().onNotice = {};
    panel = another("provv");
    everybody();
    panel->CALC_PROD(1);
    for (const CommissionCell& cell : cells()) percentOf(cell, percent("10"));
    panel->VALORI(figures({"1000", "1", "100", "2", "1265", "3"}));
    panel->QUOTA(600);
    forget();
  }

  /// Runs what is to be done on fresh panels, dropping them at the first announcement, at the second, and so on.
  void dropAtEach(const std::function<void()>& act) {
    start();
    act();
    const std::size_t announcements = heard().size();
    ASSERT_GT(announcements, 0U);
    for (std::size_t at = 1; at <= announcements; ++at) {
      SCOPED_TRACE(at);
      start();
      container().onNotice = [this, at](toolkit::Surface& surface, std::string_view) {
        ASSERT_EQ(&surface, &panel->surface());
        if (container().notices.size() == at) panel.reset();
      };
      act();
      EXPECT_EQ(panel, nullptr);
      EXPECT_EQ(container().notices.size(), at) << "announced by a panel that is gone";
      EXPECT_EQ(platform().focused(), nullptr);
      EXPECT_THAT(container().failures, IsEmpty());
    }
    container().onNotice = {};
    panel = another("provv");
  }

  /// Keys up to the one that finds no field any more.
  void type(std::string_view keys) {
    try {
      hands().type(keys);
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.kind(), FailureKind::InvalidCall);
      EXPECT_EQ(panel, nullptr);
    }
  }
};
QVN_ON_EVERY_PLATFORM(CommissionDropping);

TEST_P(CommissionDropping, WhileAPercentIsTyped) {
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    dropAtEach([&] {
      hands().focus(box(cell.percentBox()));
      if (panel != nullptr) type("2.5{Backspace}{Backspace}{Backspace}7");
      hands().leave();
    });
  }
}

TEST_P(CommissionDropping, WhileAnAmountIsTyped) {
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    dropAtEach([&] {
      hands().focus(box(cell.amountBox()));
      if (panel != nullptr) type("2{Backspace}7");
      hands().leave();
    });
  }
}

TEST_P(CommissionDropping, WhileEnterGoesOn) {
  dropAtEach([&] {
    hands().focus(box("TxtP_PN_UFF"));
    if (panel != nullptr) type("2{Enter}3{Enter}4{Enter}5{Enter}6{Enter}7{Enter}");
  });
}

TEST_P(CommissionDropping, WhileABaseIsChosenAndLeft) {
  for (const auto name : {"CmbCALCOLO_PROD", "CmbCALCOLO_PROD_ALT"}) {
    SCOPED_TRACE(name);
    dropAtEach([&] {
      hands().choose(list(name), 1);
      hands().leave();
    });
  }
}

TEST_P(CommissionDropping, InTOTALI) {
  dropAtEach([&] { panel->TOTALI(); });
}

TEST_P(CommissionDropping, InVALORI) {
  dropAtEach([&] { panel->VALORI(figures({"2000", "1", "200", "2", "2265", "3"})); });
}

TEST_P(CommissionDropping, InPercAlt) {
  dropAtEach([&] { panel->percAlt(); });
}

TEST_P(CommissionDropping, InQUOTA) {
  dropAtEach([&] { panel->QUOTA(500); });
}

TEST_P(CommissionDropping, InTheWriteOfEachProperty) {
  for (const CommissionCell& cell : cells()) {
    SCOPED_TRACE(cell.amount);
    dropAtEach([&] { amount(cell, money("7,77")); });
    dropAtEach([&] { percentOf(cell, percent("7,77")); });
    dropAtEach([&] { percentOf(cell, Empty{}); });
  }
  dropAtEach([&] { panel->CALC_PROD(2); });
  dropAtEach([&] { panel->CALC_PROD_ALT(1); });
  dropAtEach([&] { panel->setCombo(); });
}

TEST_P(CommissionDropping, InDisattivaByTheFieldThatIsLeft) {
  for (const auto name : {"TxtP_AQ_UFF", "TxtPN_UFF", "TxtPN_PROD", "TxtPN_PROD_ALT"}) {
    SCOPED_TRACE(name);
    dropAtEach([&] {
      hands().focus(box(name));
      if (panel != nullptr) panel->Disattiva();
    });
  }
}

TEST_P(CommissionDropping, InAttivaByTheFieldThatIsLeft) {
  dropAtEach([&] {
    hands().focus(box("TxtPN_PROD_ALT"));
    if (panel != nullptr) panel->Attiva();
  });
}

TEST_P(CommissionDropping, InTheWriteOfACodeByTheFieldThatIsLeft) {
  dropAtEach([&] {
    hands().focus(box("TxtPN_PROD"));
    if (panel != nullptr) panel->COD_PRODUTTORE("");
  });
}

TEST_P(CommissionDropping, WhileItAsksForTheDatabase) {
  const std::vector<std::function<void()>> acts{[&] { panel->COD_COMPAGNIA("C1"); },
                                                [&] { panel->COD_PRODUTTORE("P3"); },
                                                [&] { panel->COD_PRODUTTORE_ALT("P3"); }, [&] { panel->TOTALI(); }};
  for (std::size_t i = 0; i < acts.size(); ++i) {
    SCOPED_TRACE(i);
    for (const bool answered : {false, true}) {
      start();
      Globale::unload();
      int asks = 0;
      std::size_t noticesBefore = 0;
      const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] {
        if (asks++ == 0) {
          noticesBefore = container().notices.size();
          panel.reset();
        }
        if (answered) Globale::Eventi()->ImpostaDB("fake:");
      });
      if (answered) {
        acts[i]();
      } else {
        EXPECT_FAILURE(acts[i](), FailureKind::Database, "");
      }
      EXPECT_EQ(panel, nullptr);
      EXPECT_EQ(container().notices.size(), noticesBefore);
      Globale::Eventi()->ImpostaDB("failing:fake:");
    }
  }
}

}  // namespace
}  // namespace qvn::test
