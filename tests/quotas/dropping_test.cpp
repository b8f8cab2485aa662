// A host that drops a panel inside one of its own announcements, while it asks for the database, and under a list.
#include <gtest/gtest.h>

#include "tests/quotas/quota_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class QuotaDropping : public QuotaBench {
 public:
  /// Runs what is to be done on fresh panels, dropping them at the first announcement, at the second, and so on.
  void dropAtEach(std::string_view className, const std::function<void()>& start, const std::function<void()>& act) {
    make(className);
    start();
    forget();
    act();
    const std::size_t announcements = heard().size();
    ASSERT_GT(announcements, 0U);
    for (std::size_t at = 1; at <= announcements; ++at) {
      SCOPED_TRACE(at);
      make(className);
      start();
      forget();
      container().onNotice = [this, at](toolkit::Surface& surface, std::string_view) {
        ASSERT_EQ(&surface, &panel->surface());
        if (container().notices.size() == at) panel.reset();
      };
      act();
      container().onNotice = {};
      EXPECT_EQ(panel, nullptr);
      EXPECT_EQ(container().notices.size(), at) << "announced by a panel that is gone";
      EXPECT_EQ(platform().focused(), nullptr);
      EXPECT_THAT(container().failures, IsEmpty());
    }
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
  void callWith(std::string_view method, Variant argument) {
    std::vector<Variant> args{std::move(argument)};
    callByName(*panel, method, args);
  }
};
QVN_ON_EVERY_PLATFORM(QuotaDropping);

TEST_P(QuotaDropping, WhileAQuotaIsTypedAndCorrectsItself) {
  withBoth([&](std::string_view className) {
    const auto start = [&] {
      figures();
      call("Attiva");
    };
    dropAtEach(className, start, [&] { type("250{Backspace}{Backspace}{Backspace}9999"); });
  });
}

TEST_P(QuotaDropping, InTheWriteOfEachProperty) {
  withBoth([&](std::string_view className) {
    for (const bool enabled : {false, true}) {
      const auto start = [&] {
        figures();
        if (enabled) call("Attiva");
      };
      dropAtEach(className, start, [&] { quota(250); });
      dropAtEach(className, start, [&] { quota(5000); });
      dropAtEach(className, start, [&] { let("DELEGATARIA", true); });
      dropAtEach(className, start, [&] { write("COD_COMP", "C1"); });
      dropAtEach(className, start, [&] { write("N_POLIZZA", "1"); });
      if (className == "ctlQ_POLIZZE") {
        dropAtEach(className, start, [&] { write("COD_PROD", "P1"); });
        dropAtEach(className, start, [&] { write("COD_PROD_ALT", "P1"); });
        dropAtEach(className, start, [&] { let("D_RIMESSA", std::string("07/03/2026")); });
      } else {
        dropAtEach(className, start, [&] { write("N_SINISTRO_COMP", "1"); });
      }
    }
  });
}

TEST_P(QuotaDropping, WhereAnEmptyQuotaIsFilled) {
  withBoth([&](std::string_view className) {
    for (const bool enabled : {false, true}) {
      const auto start = [&] {
        if (enabled) call("Attiva");
      };
      dropAtEach(className, start, [&] { callWith("Calcola_QUOTA", std::int16_t{500}); });
      dropAtEach(className, start, [&] { figures(); });
      if (className == "ctlQ_POLIZZE") {
        dropAtEach(className, start, [&] { callWith("Calcola_QUOTA_DELEGATARIA", std::int16_t{500}); });
      }
    }
  });
}

TEST_P(QuotaDropping, WhileTheHandsTickAndEnterADate) {
  withBoth([&](std::string_view className) {
    dropAtEach(
        className, [&] { call("Attiva"); }, [&] { hands().click(lead()); });
  });
  dropAtEach(
      "ctlQ_POLIZZE",
      [&] {
        call("Attiva");
        hands().focus(surface().date("TxtD_RIMESSA"));
      },
      [&] { type("{Enter}"); });
}

TEST_P(QuotaDropping, WhileItAsksForTheDatabase) {
  struct TypedCode {
    std::string className;
    std::string property;
  };
  const std::vector<TypedCode> codes{{"ctlQ_POLIZZE", "COD_COMP"},
                                     {"ctlQ_POLIZZE", "COD_PROD"},
                                     {"ctlQ_POLIZZE", "COD_PROD_ALT"},
                                     {"ctlQ_SINISTRI", "COD_COMP"}};
  for (const TypedCode& code : codes) {
    const std::string& property = code.property;
    SCOPED_TRACE(code.className + "." + property);
    for (const bool answered : {false, true}) {
      make(code.className);
      Globale::unload();
      const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] {
        panel.reset();
        if (answered) Globale::Eventi()->ImpostaDB("fake:");
      });
      if (answered) {
        write(property, "C1");
      } else {
        EXPECT_FAILURE(write(property, "C1"), FailureKind::Database, "");
      }
      EXPECT_EQ(panel, nullptr);
      EXPECT_EQ(heard(), Strings{property});
      Globale::Eventi()->ImpostaDB("failing:fake:");
    }
  }
}

TEST_P(QuotaDropping, WhileAListIsAskedFor) {
  withBoth([&](std::string_view className) {
    ready(className);
    hands().focus(box("TxtCOD_COMP"));
    driver().answers["Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE"] = {
        {"DESC_COMPAGNIA", "COD_COMP"}, {{std::string("GENERALE"), std::string("C1")}}};
    statements.onStatement = [&](std::string_view) { panel.reset(); };
    hands().layDown("Lista", {Act::click("CmdOK")});
    hands().type("?");
    statements.onStatement = {};
    EXPECT_EQ(panel, nullptr);
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_THAT(container().failures, IsEmpty());
    EXPECT_EQ(platform().forms().count(), 0);
  });
}

}  // namespace
}  // namespace qvn::test
