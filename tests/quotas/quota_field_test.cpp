// The field of the quota, alike on both panels: what it takes, how it corrects itself, and what follows it.
#include <gtest/gtest.h>

#include "tests/quotas/quota_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QuotaField : public QuotaBench {};
QVN_ON_EVERY_PLATFORM(QuotaField);

TEST_P(QuotaField, EachDigitShowsWhatTheQuotaIsWorthAndIsAnnounced) {
  withBoth([&](std::string_view className) {
    ready(className);
    hands().type("2");
    EXPECT_THAT(shares(), ElementsAre("€ 2,00", "€ 1,00"));
    EXPECT_THAT(heard(), ElementsAre("QUOTA"));
    hands().type("5");
    EXPECT_THAT(shares(), ElementsAre("€ 25,00", "€ 12,50"));
    hands().type("0");
    EXPECT_THAT(shares(), ElementsAre("€ 250,00", "€ 125,00"));
    EXPECT_THAT(heard(), ElementsAre("QUOTA", "QUOTA"));
    EXPECT_EQ(quota(), 250);
    EXPECT_THAT(asked(), IsEmpty());
  });
}

TEST_P(QuotaField, TheAmountsStandBeforeTheQuotaIsAnnounced) {
  withBoth([&](std::string_view className) {
    ready(className);
    std::vector<Strings> seen;
    container().onNotice = [&](toolkit::Surface&, std::string_view) { seen.push_back(shares()); };
    hands().type("7");
    container().onNotice = {};
    EXPECT_THAT(seen, ElementsAre(Strings{"€ 7,00", "€ 3,50"}));
  });
}

TEST_P(QuotaField, TakesFourDigitsAndNothingElse) {
  withBoth([&](std::string_view className) {
    ready(className);
    const std::int64_t before = beeps();
    hands().type("0a-,.1 2");
    EXPECT_EQ(text("TxtQUOTA"), "012");
    EXPECT_EQ(beeps(), before + 5);
    hands().type("34");
    EXPECT_EQ(text("TxtQUOTA"), "0123");
    EXPECT_EQ(beeps(), before + 6);
    hands().type("?");
    EXPECT_EQ(beeps(), before + 7);
  });
}

TEST_P(QuotaField, EmptiedBecomesASelectedZeroWithTheAmountsAtZero) {
  withBoth([&](std::string_view className) {
    ready(className);
    hands().type("9");
    forget();
    hands().type("{Backspace}");
    EXPECT_EQ(text("TxtQUOTA"), "0");
    EXPECT_TRUE(wholeSelected(box("TxtQUOTA")));
    EXPECT_THAT(shares(), ElementsAre("€ 0,00", "€ 0,00"));
    EXPECT_THAT(heard(), ElementsAre("QUOTA", "QUOTA"));
    hands().type("8");  // in the place of the zero
    EXPECT_EQ(text("TxtQUOTA"), "8");
  });
}

TEST_P(QuotaField, AboveTheWholeItBecomesTheWholeSelected) {
  withBoth([&](std::string_view className) {
    ready(className);
    hands().type("100");
    forget();
    hands().type("1");
    EXPECT_EQ(text("TxtQUOTA"), "1000");
    EXPECT_TRUE(wholeSelected(box("TxtQUOTA")));
    EXPECT_THAT(shares(), ElementsAre("€ 1.000,00", "€ 500,00"));
    EXPECT_THAT(heard(), ElementsAre("QUOTA", "QUOTA"));
    hands().type("9");
    EXPECT_EQ(text("TxtQUOTA"), "9");
  });
}

TEST_P(QuotaField, TheWholeItselfStandsAsTyped) {
  withBoth([&](std::string_view className) {
    ready(className);
    hands().type("100");
    forget();
    hands().type("0");
    EXPECT_EQ(text("TxtQUOTA"), "1000");
    EXPECT_EQ(box("TxtQUOTA").SelStart(), 4);
    EXPECT_EQ(box("TxtQUOTA").SelLength(), 0);
    EXPECT_THAT(heard(), ElementsAre("QUOTA"));
  });
}

TEST_P(QuotaField, OneWithDecimalsIsAboveTheWholeAsANumber) {
  withBoth([&](std::string_view className) {
    ready(className);
    box("TxtQUOTA").Text("1000,4");  // which rounds to the whole
    EXPECT_EQ(text("TxtQUOTA"), "1000");
    EXPECT_THAT(heard(), ElementsAre("QUOTA", "QUOTA"));
    box("TxtQUOTA").Text("2,5");  // applied as 2, ties to even
    EXPECT_EQ(text("TxtQUOTA"), "2,5");
    EXPECT_THAT(shares(), ElementsAre("€ 2,00", "€ 1,00"));
    EXPECT_EQ(quota(), 2);
  });
}

TEST_P(QuotaField, ACorrectionIsWorkedOutAndAnnouncedInsideItself) {
  withBoth([&](std::string_view className) {
    ready(className);
    std::vector<Strings> seen;
    container().onNotice = [&](toolkit::Surface&, std::string_view) {
      seen.push_back({text("TxtQUOTA"), wholeSelected(box("TxtQUOTA")) ? "selected" : "", shares().front()});
    };
    quota(2000);
    container().onNotice = {};
    EXPECT_THAT(seen, ElementsAre(Strings{"1000", "", "€ 1.000,00"}, Strings{"1000", "selected", "€ 1.000,00"}));
  });
}

TEST_P(QuotaField, OfADisabledPanelIsCorrectedAndAnnouncedButNotApplied) {
  withBoth([&](std::string_view className) {
    ready(className);
    quota(500);
    call("Disattiva");
    forget();
    quota(250);
    EXPECT_EQ(quota(), 250);
    EXPECT_THAT(heard(), ElementsAre("QUOTA"));
    quota(1001);
    EXPECT_EQ(quota(), 1000);
    EXPECT_THAT(heard(), ElementsAre("QUOTA", "QUOTA"));
    box("TxtQUOTA").Text("");
    EXPECT_EQ(text("TxtQUOTA"), "0");
    EXPECT_THAT(heard(), ElementsAre("QUOTA", "QUOTA"));
    EXPECT_THAT(shares(), ElementsAre("€ 500,00", "€ 250,00"));
    figures();
    EXPECT_THAT(shares(), ElementsAre("€ 0,00", "€ 0,00"));
  });
}

TEST_P(QuotaField, FollowsItsOwnFlagThoughThePanelIsHiddenOrOff) {
  withBoth([&](std::string_view className) {
    ready(className);
    surface().Visible(false);
    quota(100);
    EXPECT_THAT(shares(), ElementsAre("€ 100,00", "€ 50,00"));
    surface().Visible(true);
    surface().Enabled(false);
    quota(200);
    EXPECT_THAT(shares(), ElementsAre("€ 200,00", "€ 100,00"));
  });
}

TEST_P(QuotaField, StartsEmptyAndReadsZero) {
  withBoth([&](std::string_view className) {
    make(className);
    EXPECT_EQ(text("TxtQUOTA"), "");
    EXPECT_EQ(quota(), 0);
    EXPECT_EQ(text("TxtQUOTA"), "");
    quota(0);  // what it reads already
    EXPECT_EQ(text("TxtQUOTA"), "");
    EXPECT_THAT(heard(), IsEmpty());
  });
}

TEST_P(QuotaField, ALetOfTheQuotaThatItReadsLeavesItsForm) {
  withBoth([&](std::string_view className) {
    ready(className);
    box("TxtQUOTA").Text("0250");
    forget();
    quota(250);
    EXPECT_EQ(text("TxtQUOTA"), "0250");
    EXPECT_THAT(heard(), IsEmpty());
    quota(25);
    EXPECT_EQ(text("TxtQUOTA"), "25");
    EXPECT_THAT(heard(), ElementsAre("QUOTA"));
    EXPECT_EQ(box("TxtQUOTA").SelLength(), 0);
  });
}

TEST_P(QuotaField, TakesEveryQuotaOf16BitsFromZeroUp) {
  withBoth([&](std::string_view className) {
    ready(className);
    for (const int thousandths : {1, 999, 1000, 1001, 9999, 32767}) {
      SCOPED_TRACE(thousandths);
      quota(0);
      quota(thousandths);
      EXPECT_EQ(quota(), std::min(thousandths, 1000));
    }
    EXPECT_FAILURE(quota(32768), FailureKind::Overflow, "quota.QUOTA");
  });
}

TEST_P(QuotaField, OneBelowZeroIsShownAndAppliedButCannotBeRead) {
  withBoth([&](std::string_view className) {
    ready(className);
    quota(-5);
    EXPECT_EQ(text("TxtQUOTA"), "-5");
    EXPECT_THAT(shares(), ElementsAre("-€ 5,00", "-€ 2,50"));
    EXPECT_FAILURE(quota(), FailureKind::TypeMismatch, "TxtQUOTA: ");
    EXPECT_FAILURE(quota(250), FailureKind::TypeMismatch, "\"0-5\"");
    EXPECT_EQ(text("TxtQUOTA"), "-5");
    EXPECT_FAILURE(figures(), FailureKind::TypeMismatch, "TxtQUOTA: ");
  });
}

TEST_P(QuotaField, ATextThatIsNoNumberFailsInTheWriteBeforeItIsAnnounced) {
  withBoth([&](std::string_view className) {
    ready(className);
    quota(100);
    forget();
    EXPECT_FAILURE(box("TxtQUOTA").Text("12x"), FailureKind::TypeMismatch, "TxtQUOTA: ");
    EXPECT_EQ(text("TxtQUOTA"), "12x");
    EXPECT_THAT(shares(), ElementsAre("€ 100,00", "€ 50,00"));
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_FAILURE(quota(), FailureKind::TypeMismatch, "\"012x\"");
    EXPECT_FAILURE(box("TxtQUOTA").Text("-32769"), FailureKind::Overflow, "TxtQUOTA: ");
    call("Disattiva");
    forget();
    box("TxtQUOTA").Text("-32769");  // read as a number, but not applied
    EXPECT_FAILURE(box("TxtQUOTA").Text("x"), FailureKind::TypeMismatch, "TxtQUOTA: ");
  });
}

TEST_P(QuotaField, WhatTheHostWritesInTheAnnouncementStands) {
  withBoth([&](std::string_view className) {
    ready(className);
    container().onNotice = [&](toolkit::Surface&, std::string_view) {
      if (quota() == 7) quota(70);
    };
    hands().type("7");
    container().onNotice = {};
    EXPECT_EQ(quota(), 70);
    EXPECT_THAT(shares(), ElementsAre("€ 70,00", "€ 35,00"));
    EXPECT_THAT(heard(), ElementsAre("QUOTA", "QUOTA"));
  });
}

TEST_P(QuotaField, WhatTheHostWritesInsideACorrectionIsAppliedByTheChangeAround) {
  withBoth([&](std::string_view className) {
    ready(className);
    bool first = true;
    container().onNotice = [&](toolkit::Surface&, std::string_view) {
      if (std::exchange(first, false)) quota(30);
    };
    quota(5000);
    container().onNotice = {};
    EXPECT_EQ(text("TxtQUOTA"), "30");
    EXPECT_TRUE(wholeSelected(box("TxtQUOTA")));
    EXPECT_THAT(shares(), ElementsAre("€ 30,00", "€ 15,00"));
    EXPECT_THAT(heard(), ElementsAre("QUOTA", "QUOTA", "QUOTA"));
  });
}

TEST_P(QuotaField, IsNotAppliedWhereTheHostDisablesItInsideACorrection) {
  withBoth([&](std::string_view className) {
    ready(className);
    container().onNotice = [&](toolkit::Surface&, std::string_view) {
      if (!box("TxtQUOTA").Enabled()) return;
      call("Disattiva");
      quota(30);
    };
    quota(5000);
    container().onNotice = {};
    EXPECT_EQ(text("TxtQUOTA"), "30");
    EXPECT_THAT(shares(), ElementsAre("€ 1.000,00", "€ 500,00"));
  });
}

TEST_P(QuotaField, WhatTheContainerThrowsPassesToTheWriter) {
  withBoth([&](std::string_view className) {
    ready(className);
    container().onNotice = [](toolkit::Surface&, std::string_view) {
      throw Failure(FailureKind::InvalidCall, "the host refuses");
    };
    EXPECT_FAILURE(quota(40), FailureKind::InvalidCall, "the host refuses");
    container().onNotice = {};
    EXPECT_EQ(quota(), 40);
    EXPECT_THAT(shares(), ElementsAre("€ 40,00", "€ 20,00"));
  });
}

TEST_P(QuotaField, DividesByAThousandBeforeItMultiplies) {
  auto& policy = make<ctlQ_POLIZZE>();
  policy.Imposta_VALORI(ofPolicy({"35738788469,35", "0", "56391080003,95", "0", "0", "0", "0", "0", "0"}));
  policy.Calcola_QUOTA(377);
  EXPECT_EQ(caption("TAF(0)"), "€ 13.473.523.252,94");  // ,95 the other way round
  policy.Calcola_QUOTA(781);
  EXPECT_EQ(caption("TRF(0)"), "€ 44.041.433.483,09");  // ,08 the other way round
  policy.Calcola_QUOTA_DELEGATARIA(377);
  EXPECT_EQ(caption("TAF(0)"), "€ 13.473.523.252,94");
  auto& claim = make<ctlQ_SINISTRI>();
  claim.Imposta_VALORI(ofClaim({"445325450421,21", "77419501583,71", "0"}));
  claim.Calcola_QUOTA(450);
  EXPECT_EQ(caption("STIMATO"), "€ 200.396.452.689,55");  // ,54 the other way round
  claim.Calcola_QUOTA(845);
  EXPECT_EQ(caption("LIQUIDATO"), "€ 65.419.478.838,23");  // ,24 the other way round
}

}  // namespace
}  // namespace qvn::test
