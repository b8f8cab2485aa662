// A form of the library as the container of its own handlers, and what the process keeps of it.
#include "qvn/lookups/shared_form.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <new>

#include "qvn/shared/Globale.h"
#include "qvn/toolkit/surface.h"
#include "tests/failure_matchers.h"
#include "tests/lookups/list_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array<toolkit::WidgetLayout, 2> kWidgets{{
    {.name = "CmdUno", .kind = toolkit::WidgetKind::CommandButton, .tabIndex = 0, .place = {0, 0, 600, 300}},
    {.name = "CmdDue", .kind = toolkit::WidgetKind::CommandButton, .tabIndex = 1, .place = {700, 0, 600, 300}},
}};
constexpr toolkit::FormLayout kLayout{
    .caption = "Prova", .inside = {.name = "FrmPROVA", .width = 1500, .height = 400, .widgets = kWidgets}};

class SharedForms : public ListBench {
 public:
  static void fail(const std::string& message) { throw Failure(FailureKind::Overflow, message); }
};
QVN_ON_EVERY_PLATFORM(SharedForms);

TEST_P(SharedForms, PassOnTheFirstFailureOfTheirHandlersWhenTheShowingEnds) {
  lookups::SharedForm shared(kLayout);
  shared.load();
  shared.form().surface().button("CmdUno").Click = [] { fail("primo"); };
  shared.form().surface().button("CmdDue").Click = [] { fail("secondo"); };
  hands().layDown("FrmPROVA", {Act::click("CmdUno"), Act::click("CmdDue"), Act::look()});
  EXPECT_FAILURE(shared.show(), FailureKind::Overflow, "FrmPROVA.CmdUno Click: primo");
  EXPECT_EQ(hands().shown().size(), 2U);  // the operator went on after it
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(SharedForms, AreUnloadedByAFailureEvenWhereTheyWereHidden) {
  lookups::SharedForm shared(kLayout);
  shared.load();
  shared.form().surface().button("CmdUno").Click = [&] {
    shared.form().hide();
    fail("primo");
  };
  hands().layDown("FrmPROVA", {Act::click("CmdUno")});
  EXPECT_FAILURE(shared.show(), FailureKind::Overflow, "primo");
  EXPECT_THAT(loadedForms(), IsEmpty());

  // And the next showing knows nothing of it.
  shared.load();
  shared.show();
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(SharedForms, LoadOverThemselvesUnlessTheyAreShown) {
  lookups::SharedForm shared(kLayout);
  shared.load();
  shared.load();
  EXPECT_THAT(loadedForms(), ElementsAre("FrmPROVA"));
  log().at("modal FrmPROVA", [&] { EXPECT_FAILURE(shared.load(), FailureKind::InvalidCall, "FrmPROVA"); });
  shared.show();
  shared.load();
  EXPECT_THAT(loadedForms(), ElementsAre("FrmPROVA"));
}

TEST_P(SharedForms, TellTheFirstFailureThoughTheirUnloadFailsAfterIt) {
  lookups::SharedForm shared(kLayout);
  shared.load();
  shared.form().Unload = [] { fail("scarico"); };
  shared.form().surface().button("CmdUno").Click = [&] {
    shared.form().hide();
    fail("primo");
  };
  hands().layDown("FrmPROVA", {Act::click("CmdUno")});
  EXPECT_FAILURE(shared.show(), FailureKind::Overflow, "FrmPROVA.CmdUno Click: primo");
  EXPECT_THAT(loadedForms(), IsEmpty());
}

TEST_P(SharedForms, StayShownAndKeepTheirFailureWhereASecondShowingIsRefused) {
  lookups::SharedForm shared(kLayout);
  shared.load();
  shared.form().surface().button("CmdUno").Click = [] { fail("primo"); };
  shared.form().surface().button("CmdDue").Click = [&] {
    EXPECT_FAILURE(shared.show(), FailureKind::InvalidCall, "FrmPROVA");
    EXPECT_FAILURE(shared.load(), FailureKind::InvalidCall, "FrmPROVA");
    log().add("refused");
  };
  hands().layDown("FrmPROVA", {Act::click("CmdUno"), Act::click("CmdDue")});
  EXPECT_FAILURE(shared.show(), FailureKind::Overflow, "primo");
  EXPECT_THAT(log().entries, testing::Contains("refused"));
}

TEST_P(SharedForms, LoadAgainWhereTheyCouldNotBeShown) {
  lookups::SharedForm shared(kLayout);
  shared.form().Load = [] { fail("carico"); };
  EXPECT_FAILURE(shared.show(), FailureKind::Overflow, "carico");
  EXPECT_NO_THROW(shared.requireNotShown());
  EXPECT_NO_THROW(shared.load());
  EXPECT_NO_THROW(shared.show());
  EXPECT_THAT(loadedForms(), IsEmpty());
}

/// Where no event loop stands between a handler and the caller of the showing.
class SharedFormsInMemory : public SharedForms {};
INSTANTIATE_TEST_SUITE_P(Platforms, SharedFormsInMemory, testing::Values(platformOf<memory::Platform>("memory")),
                         [](const auto& platform) { return std::string(platform.param.name); });

TEST_P(SharedFormsInMemory, TellNoFailureOfAShowingThatEndedOtherwise) {
  lookups::SharedForm shared(kLayout);
  shared.load();
  shared.form().surface().button("CmdUno").Click = [] { fail("primo"); };
  shared.form().surface().button("CmdDue").Click = [] { throw std::bad_alloc(); };
  hands().layDown("FrmPROVA", {Act::click("CmdUno"), Act::click("CmdDue")});
  EXPECT_THROW(shared.show(), std::bad_alloc);
  EXPECT_NO_THROW(shared.load());
  EXPECT_NO_THROW(shared.show());
}

TEST_P(SharedForms, AreUnloadedWhenTheyGo) {
  {
    lookups::SharedForm shared(kLayout);
    shared.form().Unload = [] { fail("nessuno lo sente"); };
    shared.load();
  }
  EXPECT_THAT(loadedForms(), IsEmpty());
}

struct Counted {
  Counted() { ++made; }
  ~Counted() { ++gone; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  int number = 0;
  static inline int made = 0;
  static inline int gone = 0;
};
struct Other {
  int number = 0;
};

TEST_P(SharedForms, ObjectsOfTheProcessAreMadeOnceAndGoWithTheLibrary) {
  Counted::made = Counted::gone = 0;
  Globale::the<Counted>()->number = 7;
  Globale::the<Other>()->number = 8;
  EXPECT_EQ(Globale::the<Counted>()->number, 7);
  EXPECT_EQ(Globale::the<Other>()->number, 8);
  EXPECT_EQ(Counted::made, 1);
  EXPECT_EQ(Counted::gone, 0);
  Globale::unload();
  EXPECT_EQ(Counted::gone, 1);
  const auto held = Globale::the<Counted>();
  EXPECT_EQ(held->number, 0);
  Globale::unload();
  EXPECT_EQ(Counted::gone, 1);  // in use still
  EXPECT_NE(Globale::the<Counted>(), held);
}

struct Refusing {
  Refusing() {
    if (refuses) throw Failure(FailureKind::InvalidCall, "non ancora");
  }
  static inline bool refuses = true;
};

TEST_P(SharedForms, AnObjectThatCannotBeMadeIsTriedAgainAtTheNextUse) {
  Refusing::refuses = true;
  EXPECT_FAILURE(Globale::the<Refusing>(), FailureKind::InvalidCall, "non ancora");
  Refusing::refuses = false;
  EXPECT_NE(Globale::the<Refusing>(), nullptr);
}

}  // namespace
}  // namespace qvn::test
