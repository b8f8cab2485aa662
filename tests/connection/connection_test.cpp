// The shared connection, and how the library asks its host for it.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/failure.h"
#include "tests/failure_matchers.h"
#include "tests/on_platform.h"

namespace qvn::test {
namespace {

class SharedConnection : public OnPlatform {
 public:
  clsQVN_Eventi& eventi() { return *Globale::Eventi(); }
  std::string company(std::string code = "AB") { return QVN_Ricerche::CercaCOMPAGNIA(code); }
};
QVN_ON_EVERY_PLATFORM(SharedConnection);

TEST_P(SharedConnection, IsMadeClosedAndWithoutAStringAtItsFirstUse) {
  EXPECT_EQ(Globale::DB().State(), 0);
  EXPECT_EQ(Globale::DB().ConnectionString(), "");
  EXPECT_EQ(&Globale::DB(), &Globale::DB());
  EXPECT_TRUE(driver().openings.empty());
}

TEST_P(SharedConnection, HasOneEventObject) {
  EXPECT_EQ(Globale::Eventi(), Globale::Eventi());
  EXPECT_NE(Globale::Eventi(), nullptr);
}

TEST_P(SharedConnection, AnEmptyStringOpensNothing) {
  const auto location = Globale::DB().CursorLocation();
  eventi().ImpostaDB("");
  EXPECT_EQ(Globale::DB().CursorLocation(), location);
  EXPECT_NE(location, toolkit::adUseClient);
  EXPECT_EQ(Globale::DB().State(), 0);
  EXPECT_EQ(Globale::DB().ConnectionString(), "");
  EXPECT_TRUE(driver().openings.empty());
}

TEST_P(SharedConnection, OpensWithAClientSideCursor) {
  eventi().ImpostaDB("fake:ufficio");
  EXPECT_EQ(Globale::DB().CursorLocation(), 3);
  EXPECT_EQ(Globale::DB().State(), 1);
  EXPECT_EQ(Globale::DB().ConnectionString(), "fake:ufficio");
  EXPECT_EQ(driver().openings, (std::vector<Opened>{{"fake:ufficio", "ufficio", "", "", -1, 3}}));
}

TEST_P(SharedConnection, TheFirstStringWins) {
  eventi().ImpostaDB("fake:ufficio");
  eventi().ImpostaDB("fake:altro");
  EXPECT_EQ(Globale::DB().ConnectionString(), "fake:ufficio");
  EXPECT_EQ(driver().openings.size(), 1U);
}

TEST_P(SharedConnection, ALaterStringLeavesEvenTheCursorLocationAlone) {
  eventi().ImpostaDB("fake:ufficio");
  Globale::DB().CursorLocation(2);
  eventi().ImpostaDB("fake:altro");
  EXPECT_EQ(Globale::DB().CursorLocation(), 2);
}

TEST_P(SharedConnection, IsOpenedWithWhatTheCallerGives) {
  Globale::DB().CursorLocation(2);
  Globale::DB().Open("fake:x", "utente", "segreto", 7);
  EXPECT_EQ(driver().openings, (std::vector<Opened>{{"fake:x", "x", "utente", "segreto", 7, 2}}));
}

TEST_P(SharedConnection, AnUnusableStringFailsAndStaysSet) {
  EXPECT_FAILURE(eventi().ImpostaDB("fake:refused"), FailureKind::Database, "refused");
  EXPECT_EQ(Globale::DB().State(), 0);
  EXPECT_EQ(Globale::DB().ConnectionString(), "fake:refused");
  eventi().ImpostaDB("fake:ufficio");  // no second chance
  EXPECT_EQ(Globale::DB().State(), 0);
  EXPECT_EQ(driver().openings.size(), 1U);
}

TEST_P(SharedConnection, AnUnknownHeadFailsAndNamesTheKnownOnes) {
  EXPECT_FAILURE(eventi().ImpostaDB("oracolo:x"), FailureKind::Database, "oracolo:x");
  Globale::unload();
  EXPECT_FAILURE(Globale::Eventi()->ImpostaDB("oracolo:x"), FailureKind::Database, "fake:");
  EXPECT_EQ(Globale::DB().ConnectionString(), "oracolo:x");
}

TEST_P(SharedConnection, IsAskedForOnlyWhileItIsClosed) {
  int asked = 0;
  const Subscription host = eventi().MancaDB.subscribe([&] { ++asked; });
  eventi().FireMancaDB();
  eventi().FireMancaDB();
  EXPECT_EQ(asked, 2);
  eventi().ImpostaDB("fake:ufficio");
  eventi().FireMancaDB();
  eventi().FireMancaDB();
  EXPECT_EQ(asked, 2);
}

TEST_P(SharedConnection, IsAskedForAgainByEveryQueryOnceClosedFromOutside) {
  int asked = 0;
  eventi().ImpostaDB("fake:ufficio");
  const Subscription host = eventi().MancaDB.subscribe([&] {
    ++asked;
    eventi().ImpostaDB("fake:ufficio");  // cannot reopen: the string is set
  });
  Globale::DB().Close();
  EXPECT_FAILURE(company(), FailureKind::Database, "closed");
  EXPECT_FAILURE(company(), FailureKind::Database, "closed");
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(driver().openings.size(), 1U);
  EXPECT_TRUE(driver().ran.empty());
}

TEST_P(SharedConnection, AHostThatAnswersSeesTheQueryThatAskedSucceed) {
  driver().answers["Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = 'AB'"] = {{"DESC_COMPAGNIA"},
                                                                                    {{std::string("Alfa Beta")}}};
  int asked = 0;
  const Subscription host = eventi().MancaDB.subscribe([&] {
    ++asked;
    eventi().ImpostaDB("fake:ufficio");
  });
  EXPECT_EQ(company(), "Alfa Beta");
  EXPECT_EQ(company(), "Alfa Beta");
  EXPECT_EQ(asked, 1);
}

TEST_P(SharedConnection, MissingStillAfterTheEventFailsTheQuery) {
  EXPECT_FAILURE(company(), FailureKind::Database, "closed");  // nobody listens
  const Subscription host = eventi().MancaDB.subscribe([] {});
  EXPECT_FAILURE(company(), FailureKind::Database, "closed");
  EXPECT_TRUE(driver().openings.empty());
}

TEST_P(SharedConnection, AnEmptyKeyAsksForItAndRunsNoQuery) {
  int asked = 0;
  const Subscription host = eventi().MancaDB.subscribe([&] { ++asked; });
  EXPECT_EQ(company(""), "");
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(driver().ran.empty());
}

TEST_P(SharedConnection, ARefusalInsideTheEventPassesToWhoAsked) {
  const Subscription host = eventi().MancaDB.subscribe([&] { eventi().ImpostaDB("fake:refused"); });
  EXPECT_FAILURE(company(), FailureKind::Database, "refused");
  EXPECT_TRUE(driver().ran.empty());
}

TEST_P(SharedConnection, AnObjectOfTheHostsOwnHearsNothing) {
  clsQVN_Eventi own;
  int asked = 0;
  const Subscription host = own.MancaDB.subscribe([&] { ++asked; });
  EXPECT_FAILURE(company(), FailureKind::Database, "closed");
  EXPECT_EQ(asked, 0);
  own.ImpostaDB("fake:ufficio");  // opens the shared connection all the same
  EXPECT_EQ(Globale::DB().State(), 1);
}

TEST_P(SharedConnection, AnEventThatIsLetGoIsNotHeard) {
  int asked = 0;
  Subscription host = eventi().MancaDB.subscribe([&] { ++asked; });
  host.reset();
  eventi().FireMancaDB();
  EXPECT_EQ(asked, 0);
}

TEST_P(SharedConnection, HandlersMaySubscribeAndLetGoWhileTheEventIsRaised) {
  std::string heard;
  Subscription late;
  Subscription second;
  const Subscription first = eventi().MancaDB.subscribe([&] {
    heard += "first ";
    second.reset();
    if (!late) late = eventi().MancaDB.subscribe([&] { heard += "late "; });
  });
  second = eventi().MancaDB.subscribe([&] { heard += "second "; });
  eventi().FireMancaDB();
  EXPECT_EQ(heard, "first ");
  heard.clear();
  eventi().FireMancaDB();
  EXPECT_EQ(heard, "first late ");
}

TEST_P(SharedConnection, AFailingHandlerKeepsThoseAfterItFromRunning) {
  std::string heard;
  const Subscription first = eventi().MancaDB.subscribe([&] {
    heard += "first ";
    throw Failure(FailureKind::Database, "first");
  });
  const Subscription second = eventi().MancaDB.subscribe([&] { heard += "second "; });
  EXPECT_FAILURE(eventi().FireMancaDB(), FailureKind::Database, "first");
  EXPECT_EQ(heard, "first ");
}

TEST_P(SharedConnection, AHandlerMayLetItselfGo) {
  int asked = 0;
  Subscription host;
  host = eventi().MancaDB.subscribe([&] {
    ++asked;
    host.reset();
  });
  eventi().FireMancaDB();
  eventi().FireMancaDB();
  EXPECT_EQ(asked, 1);
}

TEST_P(SharedConnection, ASubscriptionMayOutliveTheEventObject) {
  int asked = 0;
  const Subscription host = eventi().MancaDB.subscribe([&] { ++asked; });
  Globale::unload();
  eventi().FireMancaDB();
  EXPECT_EQ(asked, 0);
}

TEST_P(SharedConnection, AHandlerMayDropTheEventObjectItself) {
  auto own = std::make_unique<clsQVN_Eventi>();
  const Subscription host = own->MancaDB.subscribe([&] { own.reset(); });
  own->FireMancaDB();
  EXPECT_EQ(own, nullptr);
}

TEST_P(SharedConnection, AHandlerThatAsksAgainWithoutAnEndFails) {
  const Subscription host = eventi().MancaDB.subscribe([&] { company(); });  // before it gives the database
  EXPECT_FAILURE(company(), FailureKind::InvalidCall, "without end");
  const Subscription empty = eventi().MancaDB.subscribe({});
  EXPECT_FAILURE(eventi().FireMancaDB(), FailureKind::InvalidCall, "without end");
}

TEST_P(SharedConnection, InstallingUnloadsWhatWasShared) {
  eventi().ImpostaDB("fake:ufficio");
  Globale::install(platform());
  EXPECT_EQ(Globale::DB().State(), 0);
}

TEST_P(SharedConnection, IsNotThereWithoutAPlatform) {
  Globale::uninstall();
  EXPECT_FAILURE(Globale::platform(), FailureKind::InvalidCall, "no platform");
  EXPECT_FAILURE(Globale::DB(), FailureKind::InvalidCall, "no platform");
}

TEST_P(SharedConnection, WithoutAnyDriverSaysSo) {
  platform().drivers().clear();
  EXPECT_FAILURE(eventi().ImpostaDB("fake:x"), FailureKind::Database, "known are: none");
}

TEST_P(SharedConnection, UnloadingStartsAnewAndKeepsThePlatform) {
  eventi().ImpostaDB("fake:ufficio");
  const auto before = Globale::Eventi();
  Globale::unload();
  EXPECT_NE(Globale::Eventi(), before);
  EXPECT_EQ(Globale::DB().State(), 0);
  EXPECT_EQ(Globale::DB().ConnectionString(), "");
  Globale::Eventi()->ImpostaDB("fake:altro");
  EXPECT_EQ(Globale::DB().ConnectionString(), "fake:altro");
}

TEST_P(SharedConnection, OpeningAnOpenConnectionFails) {
  eventi().ImpostaDB("fake:ufficio");
  EXPECT_FAILURE(Globale::DB().Open("fake:altro"), FailureKind::InvalidCall, "open");
  EXPECT_EQ(Globale::DB().ConnectionString(), "fake:ufficio");
}

TEST_P(SharedConnection, AClosedOneQuotesTheBeginningOfALongStatement) {
  const std::string key(100'000, 'Y');
  try {
    company(key);
    FAIL() << "a closed connection ran a statement";
  } catch (const Failure& failure) {
    EXPECT_LT(std::string_view(failure.what()).size(), 1100U);
    EXPECT_TRUE(std::string_view(failure.what()).ends_with("YYY…"));
  }
}

TEST_P(SharedConnection, ClosingAClosedOneDoesNothing) {
  Globale::DB().Close();
  EXPECT_EQ(Globale::DB().State(), 0);
}

TEST_P(SharedConnection, AResultSetIsReadByNameInAnyCaseRowByRow) {
  driver().answers["Select 1"] = {{"DENOMINAZIONE", "N"},
                                  {{std::string("Uno"), std::int32_t{1}}, {Null{}, std::int32_t{2}}}};
  eventi().ImpostaDB("fake:ufficio");
  toolkit::Recordset rows;
  EXPECT_FAILURE(rows.Eof(), FailureKind::InvalidCall, "opened");
  rows.Open("Select 1", Globale::DB(), 2, 3, -1);
  EXPECT_FALSE(rows.Eof());
  EXPECT_EQ(rows.Fields("Denominazione"), Variant(std::string("Uno")));
  EXPECT_FAILURE(rows.Fields("Manca"), FailureKind::Database, "Manca");
  rows.MoveNext();
  EXPECT_EQ(rows.Fields("denominazione"), Variant(Null{}));
  EXPECT_EQ(rows.Fields("n"), Variant(std::int32_t{2}));
  rows.MoveNext();
  EXPECT_TRUE(rows.Eof());
  EXPECT_EQ(driver().ran, (std::vector<Ran>{{"Select 1", 2, 3, -1}}));
}

}  // namespace
}  // namespace qvn::test
