// Attiva and Disattiva, the way of the Enter key, and panels that cannot take the focus.
#include <gtest/gtest.h>

#include "tests/noting_platform.h"
#include "tests/quotas/quota_bench.h"
#include "tests/refusing_platform.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

Strings fieldsOf(std::string_view className) {
  if (className == "ctlQ_POLIZZE") {
    return {"TxtQUOTA",     "TxtCOD_COMP",  "TxtCOD_PROD",   "TxtCOD_PROD_ALT",
            "TxtN_POLIZZA", "TxtD_RIMESSA", "ChkDELEGATARIA"};
  }
  return {"TxtQUOTA", "ChkDELEGATARIA", "TxtCOD_COMP", "TxtN_POLIZZA", "TxtN_SINISTRO"};
}

class QuotaState : public QuotaBench {
 public:
  /// The names of what is enabled beside the labels.
  Strings enabled() {
    Strings names;
    for (const toolkit::Widget* widget : surface().widgets()) {
      if (widget->Kind() != toolkit::WidgetKind::Label && widget->Enabled()) names.emplace_back(widget->Name());
    }
    return names;
  }
};
QVN_ON_EVERY_PLATFORM(QuotaState);

TEST_P(QuotaState, AttivaEnablesTheFieldsAndGoesToTheQuota) {
  withBoth([&](std::string_view className) {
    make(className);
    EXPECT_THAT(enabled(), IsEmpty());
    quota(250);
    forget();
    call("Attiva");
    EXPECT_EQ(enabled(), fieldsOf(className));
    EXPECT_EQ(focused(), "TxtQUOTA");
    EXPECT_TRUE(wholeSelected(box("TxtQUOTA")));
    EXPECT_EQ(box("TxtQUOTA").BackColor(), kCyan);
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_EQ(shares().front(), "");  // nothing is worked out
    hands().leave();
    EXPECT_EQ(box("TxtQUOTA").BackColor(), toolkit::kWhite);
  });
}

TEST_P(QuotaState, AttivaTwiceSelectsTheQuotaAgain) {
  withBoth([&](std::string_view className) {
    ready(className);
    hands().type("250");
    EXPECT_FALSE(wholeSelected(box("TxtQUOTA")));
    call("Attiva");
    EXPECT_TRUE(wholeSelected(box("TxtQUOTA")));
    EXPECT_EQ(focused(), "TxtQUOTA");
  });
}

TEST_P(QuotaState, DisattivaFreezesAndClearsNothing) {
  withBoth([&](std::string_view className) {
    ready(className);
    hands().type("250");
    write("N_POLIZZA", "P/1");
    write("COD_COMP", "C1");
    hands().click(lead());
    hands().focus(box("TxtQUOTA"));
    const Strings before = shares();
    forget();
    call("Disattiva");
    EXPECT_THAT(enabled(), IsEmpty());
    EXPECT_EQ(focused(), "");
    EXPECT_EQ(box("TxtQUOTA").BackColor(), toolkit::kWhite);
    EXPECT_EQ(quota(), 250);
    EXPECT_EQ(read("N_POLIZZA"), "P/1");
    EXPECT_EQ(caption("DESC_COMPAGNIA"), "GENERALE");
    EXPECT_EQ(getByName(*panel, "DELEGATARIA"), Variant(true));
    EXPECT_EQ(shares(), before);
    EXPECT_THAT(heard(), IsEmpty());
    call("Disattiva");
    hands().click(lead());  // does nothing
    EXPECT_EQ(getByName(*panel, "DELEGATARIA"), Variant(true));
    EXPECT_FAILURE(hands().focus(box("TxtQUOTA")), FailureKind::InvalidCall, "TxtQUOTA");
    write("COD_COMP", "C2");  // written and looked up all the same
    EXPECT_EQ(caption("DESC_COMPAGNIA"), "RIUNIONE");
    call("Attiva");
    EXPECT_EQ(enabled(), fieldsOf(className));
  });
}

TEST_P(QuotaState, AttivaOnAHiddenPanelEnablesAndSelectsAllTheSame) {
  withBoth([&](std::string_view className) {
    make(className);
    quota(250);
    surface().Visible(false);
    call("Attiva");
    EXPECT_EQ(enabled(), fieldsOf(className));
    EXPECT_TRUE(wholeSelected(box("TxtQUOTA")));
    EXPECT_EQ(focused(), "");
    EXPECT_EQ(box("TxtQUOTA").BackColor(), toolkit::kWhite);
  });
}

TEST_P(QuotaState, AttivaSkipsEachFieldThatCannotBeEnabled) {
  withBoth([&](std::string_view className) {
    for (const std::string& name : fieldsOf(className)) {
      SCOPED_TRACE(name);
      RefusingPlatform refusing(platform());
      refusing.refusingToBeEnabled = {name};
      Globale::install(refusing);
      make(className);
      call("Attiva");
      Strings rest = fieldsOf(className);
      std::erase(rest, name);
      EXPECT_EQ(enabled(), rest);
      EXPECT_EQ(focused(), name == "TxtQUOTA" ? "" : "TxtQUOTA");
      panel.reset();
      Globale::install(platform());
    }
  });
}

TEST_P(QuotaState, AttivaSkipsASelectionThatIsRefused) {
  withBoth([&](std::string_view className) {
    RefusingPlatform refusing(platform());
    refusing.refusing = {"TxtQUOTA"};
    Globale::install(refusing);
    make(className);
    call("Attiva");
    EXPECT_EQ(enabled(), fieldsOf(className));
    EXPECT_EQ(focused(), "TxtQUOTA");
    panel.reset();
    Globale::install(platform());
  });
}

TEST_P(QuotaState, DisattivaStopsAtAFieldThatCannotBeDisabled) {
  withBoth([&](std::string_view className) {
    const Strings fields = fieldsOf(className);
    for (std::size_t i = 0; i < fields.size(); ++i) {
      SCOPED_TRACE(fields[i]);
      RefusingPlatform refusing(platform());
      refusing.refusingToBeEnabled = {fields[i]};
      Globale::install(refusing);
      make(className);
      call("Attiva");
      EXPECT_FAILURE(call("Disattiva"), FailureKind::InvalidCall, fields[i]);
      EXPECT_EQ(enabled(), Strings(fields.begin() + static_cast<std::ptrdiff_t>(i) + 1, fields.end()));
      panel.reset();
      Globale::install(platform());
    }
  });
}

TEST_P(QuotaState, EnterLeadsOnInTabOrderToWhereItStops) {
  ready("ctlQ_POLIZZE");
  for (const auto next :
       {"TxtCOD_COMP", "TxtCOD_PROD", "TxtCOD_PROD_ALT", "TxtN_POLIZZA", "TxtD_RIMESSA", "TxtD_RIMESSA"}) {
    hands().type("{Enter}");
    EXPECT_EQ(focused(), next);
  }
  ready("ctlQ_SINISTRI");
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "ChkDELEGATARIA");
  hands().focus(box("TxtCOD_COMP"));
  for (const auto next : {"TxtN_POLIZZA", "TxtN_SINISTRO", "TxtQUOTA"}) {
    hands().type("{Enter}");
    EXPECT_EQ(focused(), next);
  }
}

TEST_P(QuotaState, EnterPassesOverWhatIsDisabledOrHidden) {
  ready("ctlQ_POLIZZE");
  box("TxtCOD_COMP").Enabled(false);
  box("TxtCOD_PROD").Visible(false);
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "TxtCOD_PROD_ALT");
  surface().date("TxtD_RIMESSA").Enabled(false);
  hands().focus(box("TxtN_POLIZZA"));
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "ChkDELEGATARIA");
  lead().Enabled(false);
  hands().focus(box("TxtN_POLIZZA"));
  hands().type("{Enter}");
  EXPECT_EQ(focused(), "TxtQUOTA");
}

TEST_P(QuotaState, TabGoesThroughAllFields) {
  withBoth([&](std::string_view className) {
    ready(className);
    Strings seen{focused()};
    for (std::size_t i = 1; i < fieldsOf(className).size(); ++i) {
      hands().type("{Tab}");
      seen.push_back(focused());
    }
    EXPECT_EQ(seen, fieldsOf(className));
  });
}

TEST_P(QuotaState, EnterAsksNothingAndTellsNothing) {
  withBoth([&](std::string_view className) {
    ready(className);
    const std::int64_t before = beeps();
    hands().type("{Enter}");
    EXPECT_EQ(beeps(), before);
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_THAT(asked(), IsEmpty());
    EXPECT_EQ(text("TxtQUOTA"), "0");
  });
}

TEST_P(QuotaState, EachStepOfAttivaInOrder) {
  withBoth([&](std::string_view className) {
    NotingPlatform noting(platform());
    Globale::install(noting);
    make(className);
    quota(5);
    noting.notes.clear();
    call("Attiva");
    Notes wanted;
    for (const std::string& name : fieldsOf(className)) wanted.push_back(name + ".Enabled true");
    for (const auto* last : {"TxtQUOTA.SelStart 0", "TxtQUOTA.SelLength 1", "TxtQUOTA.SetFocus "})
      wanted.push_back(last);
    EXPECT_EQ(noting.notes, wanted);
    noting.notes.clear();
    let("DELEGATARIA", false);
    EXPECT_EQ(noting.notes, className == "ctlQ_POLIZZE" ? Notes{} : Notes{"ChkDELEGATARIA.Value 0"});
    panel.reset();
    Globale::install(platform());
  });
}

TEST_P(QuotaState, TheFieldsAreColouredBeforeTheyAreSelected) {
  withBoth([&](std::string_view className) {
    NotingPlatform noting(platform());
    Globale::install(noting);
    make(className);
    for (const std::string& name : fieldsOf(className)) {
      if (surface().widget(name).Kind() != toolkit::WidgetKind::TextBox) continue;
      noting.notes.clear();
      box(name).GotFocus();
      EXPECT_EQ(noting.notes, (Notes{name + ".BackColor 16776960", name + ".SelStart 0", name + ".SelLength 0"}));
    }
    panel.reset();
    Globale::install(platform());
  });
}

}  // namespace
}  // namespace qvn::test
