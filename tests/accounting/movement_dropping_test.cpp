// A host that drops a panel inside one of its announcements, while a list stands open over it, or where it is asked for
// its database.
#include "tests/accounting/movement_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

/// Drops a panel as soon as a form stands over it.
class DropsWhenShown final : public Watcher {
 public:
  explicit DropsWhenShown(std::unique_ptr<Panel>& panel) : panel_(panel) {}
  void lostFocus(const toolkit::Widget&) override {}
  void gotFocus(const toolkit::Widget&) override {}
  void beeped() override {}
  void formShown(std::string_view) override { panel_.reset(); }

 private:
  std::unique_ptr<Panel>& panel_;
};

class MovementDropping : public MovementBench {
 public:
  void start(std::string_view className) {
    container().onNotice = {};
    ready(className, "10", "001");
    if (className == kEntry) let("IMPORTO", Currency());
    forget();
  }

  /// Runs what is to be done on fresh panels, dropping them at the first announcement, at the second, and so on.
  void dropAtEach(std::string_view className, const std::function<void()>& act) {
    start(className);
    act();
    const std::size_t announcements = heard().size();
    ASSERT_GT(announcements, 0U);
    for (std::size_t at = 1; at <= announcements; ++at) {
      SCOPED_TRACE(at);
      start(className);
      container().onNotice = [this, at](toolkit::Surface&, std::string_view) {
        if (container().notices.size() == at) panel.reset();
      };
      act();
      EXPECT_EQ(panel, nullptr);
      EXPECT_EQ(container().notices.size(), at) << "announced by a panel that is gone";
      EXPECT_EQ(platform().focused(), nullptr);
      EXPECT_THAT(container().failures, IsEmpty());
    }
    start(className);
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
QVN_ON_EVERY_PLATFORM(MovementDropping);

TEST_P(MovementDropping, InTheWriteOfEachProperty) {
  withBoth([&](std::string_view className) {
    dropAtEach(className, [&] { write("Mastro", "20"); });
    dropAtEach(className, [&] { write("Conto", "002"); });
    dropAtEach(className, [&] { write("TIPO", "D"); });
  });
  dropAtEach(kEntry, [&] { write("DESC_1", "x"); });
  dropAtEach(kEntry, [&] { let("IMPORTO", Currency::fromTenThousandths(10'000)); });
  dropAtEach(kTemplate, [&] { write("PROGRESSIVO", "1"); });
  dropAtEach(kTemplate, [&] { let("IVA", true); });
  dropAtEach(kTemplate, [&] { let("RIPETI", true); });
  dropAtEach(kTemplate, [&] { write("TIPO_IVA", "C"); });
}

TEST_P(MovementDropping, WhileFieldsAreTypedInto) {
  withBoth([&](std::string_view className) { dropAtEach(className, [&] { type("20{Enter}002{Backspace}"); }); });
  dropAtEach(kEntry, [&] {
    hands().focus(box("TxtIMPORTO"));
    if (panel != nullptr) type("12{Enter}");
  });
  dropAtEach(kEntry, [&] {
    hands().focus(box("TxtDESC_1"));
    type("ab{Enter}c");
  });
}

TEST_P(MovementDropping, AtTheOperatorsPicksAndTicks) {
  withBoth(
      [&](std::string_view className) { dropAtEach(className, [&] { hands().choose(list("cmbTIPO"), "DARE"); }); });
  dropAtEach(kTemplate, [&] { hands().click(surface().checkBox("ChkIVA")); });
  dropAtEach(kTemplate, [&] { hands().click(surface().checkBox("ChkRIPETI")); });
}

TEST_P(MovementDropping, WhereAttivaOrDisattivaLeavesTheAmount) {
  for (const auto method : {"Attiva", "Disattiva"}) {
    SCOPED_TRACE(method);
    start(kEntry);
    hands().focus(box("TxtIMPORTO"));
    forget();
    container().onNotice = [&](toolkit::Surface&, std::string_view) { panel.reset(); };
    call(method);
    container().onNotice = {};
    EXPECT_EQ(panel, nullptr);
    EXPECT_EQ(heard(), Strings{"IMPORTO"});
    EXPECT_EQ(platform().focused(), nullptr);
  }
}

TEST_P(MovementDropping, AtTheWritesOfWhatIsChosenFromAList) {
  listedAccount(accountsSql("10", "001"), "20", "002");
  listedLedger(ledgersSql("10"), "20");
  withBoth([&](std::string_view className) {
    for (const std::string field : {"txtMASTRO", "TxtCONTO"}) {
      SCOPED_TRACE(field);
      dropAtEach(className, [&] {
        hands().focus(box(field));
        takeTheFirst();
        hands().type("?");
      });
    }
  });
}

TEST_P(MovementDropping, WhileAListStands) {
  listedAccount(accountsSql("10", "001"), "20", "002");
  listedAccount(accountsSql("10"), "20", "002");
  listedLedger(ledgersSql("10"), "20");
  withBoth([&](std::string_view className) {
    for (const std::string field : {"txtMASTRO", "TxtCONTO"}) {
      for (const std::string account : {"001", ""}) {
        SCOPED_TRACE(field + account);
        ready(className, "10", account);
        hands().focus(box(field));
        DropsWhenShown watcher(panel);
        watch(&watcher);
        takeTheFirst();
        hands().type("?");
        watch(nullptr);
        EXPECT_EQ(panel, nullptr);
        EXPECT_EQ(platform().focused(), nullptr);
        EXPECT_EQ(platform().forms().count(), 0);
        EXPECT_THAT(heard(), IsEmpty());
        EXPECT_EQ(asked().size(), 1U);
        EXPECT_THAT(container().failures, IsEmpty());
      }
    }
  });
}

TEST_P(MovementDropping, WhileItAsksForTheDatabase) {
  withBoth([&](std::string_view className) {
    for (const std::string property : {"Mastro", "Conto"}) {
      for (const bool answered : {false, true}) {
        SCOPED_TRACE(property);
        start(className);
        Globale::unload();
        const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] {
          panel.reset();
          if (answered) Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
        });
        if (answered) {
          write(property, "20");
          EXPECT_EQ(asked().size(), 1U);  // what was asked for comes, and nothing follows from it
        } else {
          EXPECT_FAILURE(write(property, "20"), FailureKind::Database, "closed");
        }
        EXPECT_EQ(panel, nullptr);
        EXPECT_EQ(heard().size(), 1U);
        Globale::unload();
        Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
      }
    }
  });
}

TEST_P(MovementDropping, WhileAListAsksForTheDatabase) {
  listedAccount(accountsSql("10", "001"), "20", "002");
  listedLedger(ledgersSql("10"), "20");
  withBoth([&](std::string_view className) {
    for (const std::string field : {"txtMASTRO", "TxtCONTO"}) {
      SCOPED_TRACE(field);
      start(className);
      hands().focus(box(field));
      Globale::unload();
      forget();
      const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] {
        panel.reset();
        Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
      });
      takeTheFirst();
      hands().type("?");
      EXPECT_EQ(panel, nullptr);
      EXPECT_THAT(heard(), IsEmpty());
      EXPECT_EQ(asked().size(), 1U);
      EXPECT_EQ(platform().forms().count(), 0);
      EXPECT_THAT(container().failures, IsEmpty());
    }
  });
}

}  // namespace
}  // namespace qvn::test
