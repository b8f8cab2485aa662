// A host that drops the title panel inside one of its own announcements, or where it is asked for its database.
#include <functional>
#include <gtest/gtest.h>

#include "tests/documents/title_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class TitleDropping : public TitlePanel {
 public:
  void start() {
    container().onNotice = {};
    panel = another("titolo");
    panel->DATA_C(day(5, 3, 2026));
    panel->DATA_DOC(day(5, 3, 2026));
    title("S", "I");
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
      container().onNotice = [this, at](toolkit::Surface&, std::string_view) {
        if (container().notices.size() == at) panel.reset();
      };
      act();
      EXPECT_EQ(panel, nullptr);
      EXPECT_EQ(container().notices.size(), at) << "announced by a panel that is gone";
      EXPECT_EQ(platform().focused(), nullptr);
      EXPECT_THAT(container().failures, IsEmpty());
    }
    start();
  }
};
QVN_ON_EVERY_PLATFORM(TitleDropping);

TEST_P(TitleDropping, InTheWriteOfEachProperty) {
  dropAtEach([&] { panel->N_STATO(text("A")); });
  dropAtEach([&] { panel->DATA_C(day(6, 3, 2026)); });
  dropAtEach([&] { panel->DATA_C(text("0.00.00")); });
  dropAtEach([&] { panel->DATA_DOC(day(6, 3, 2026)); });
  dropAtEach([&] { letByName(*panel, "N_STATO", text("C")); });
}

TEST_P(TitleDropping, AtEachVisitOfAttiva) {
  dropAtEach([&] { panel->Attiva(false); });
  dropAtEach([&] {
    std::vector<Variant> args{Variant(false)};
    callByName(*panel, "Attiva", args);
  });
}

TEST_P(TitleDropping, AtTheOperatorsPick) {
  dropAtEach([&] {
    panel->Attiva(true);
    hands().choose(actions(), "COPRI");
  });
}

TEST_P(TitleDropping, WhileEnterCompletesADate) {
  for (const std::string name : {"DATA_C", "DATA_DOC"}) {
    container().onNotice = {};
    panel = another("titolo");
    panel->Attiva(true);
    hands().focus(date("Txt" + name));
    container().onNotice = [this](toolkit::Surface&, std::string_view) { panel.reset(); };
    hands().type("{Enter}");
    EXPECT_EQ(panel, nullptr);
    EXPECT_EQ(heard(), Strings{name});
    EXPECT_EQ(platform().focused(), nullptr);
    EXPECT_THAT(container().failures, IsEmpty());
  }
}

TEST_P(TitleDropping, WhileItAsksForTheDatabase) {
  const std::vector<std::function<void()>> acts{[&] { panel->COD_COMP_DEL(text("C1")); },
                                                [&] { panel->PROT(std::int32_t{7}); },
                                                [&] { letByName(*panel, "PROT", std::int32_t{7}); }};
  for (std::size_t i = 0; i < acts.size(); ++i) {
    SCOPED_TRACE(i);
    for (const bool answered : {false, true}) {
      start();
      panel->PROG(std::int16_t{1});
      Globale::unload();
      forget();
      const Subscription subscription = Globale::Eventi()->MancaDB.subscribe([&] {
        panel.reset();
        if (answered) Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
      });
      if (answered) {
        acts[i]();
        EXPECT_EQ(asked().size(), 1U);  // what was asked for comes, and nothing follows from it
      } else {
        EXPECT_FAILURE(acts[i](), FailureKind::Database, "closed");
      }
      EXPECT_EQ(panel, nullptr);
      EXPECT_THAT(heard(), IsEmpty());
    }
  }
}

}  // namespace
}  // namespace qvn::test
