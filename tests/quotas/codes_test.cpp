// The fields of codes: their descriptions, their keys, and the lists behind "?".
#include <gtest/gtest.h>

#include "tests/quotas/quota_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A field of a code, with what makes it differ from the others.
struct Code {
  std::string className;
  std::string property;
  std::string description;
  std::size_t limit;
  std::string known;
  std::string shown;
  std::string other;
  std::string otherShown;
  std::string table;
  std::string nameColumn;

  std::string field() const { return "Txt" + property; }
  std::string codeColumn() const { return table == "COMPAGNIE" ? "COD_COMP" : "COD_PROD"; }
  std::string lookup(std::string_view code) const {
    return table == "COMPAGNIE" ? QuotaBench::companySql(code) : QuotaBench::producerSql(code);
  }
  std::string all() const { return "Select " + nameColumn + ", " + codeColumn() + " From " + table; }
  std::string byCode(const std::string& code) const {
    // The companies' statement has two blanks.
    const std::string like = table == "COMPAGNIE" ? "  Like '" : " Like '";
    return all() + " Where " + codeColumn() + like + code + "%'";
  }
  std::string byName(const std::string& name) const { return all() + " Where " + nameColumn + " Like '" + name + "%'"; }
};

const std::vector<Code>& codes() {
  static const std::vector<Code> all{
      {"ctlQ_POLIZZE", "COD_COMP", "DESC_COMPAGNIA", 5, "C1", "GENERALE", "C2", "RIUNIONE", "COMPAGNIE",
       "DESC_COMPAGNIA"},
      {"ctlQ_POLIZZE", "COD_PROD", "DESC_PRODUTTORE", 8, "P1", "ROSSI", "P2", "BIANCHI", "PRODUTTORI", "DENOMINAZIONE"},
      {"ctlQ_POLIZZE", "COD_PROD_ALT", "DESC_PRODUTTORE_ALT", 8, "P1", "ROSSI (12,5%)", "P2", "BIANCHI (30%)",
       "PRODUTTORI", "DENOMINAZIONE"},
      {"ctlQ_SINISTRI", "COD_COMP", "DESC_COMPAGNIA", 5, "C1", "GENERALE", "C2", "RIUNIONE", "COMPAGNIE",
       "DESC_COMPAGNIA"},
  };
  return all;
}

class QuotaCodes : public QuotaBench {
 public:
  /// Does so with each field of a code, on a panel of its own that is ready and has the focus there.
  void withEach(const std::function<void(const Code& code)>& act) {
    for (const Code& code : codes()) {
      SCOPED_TRACE(code.className + "." + code.property);
      ready(code.className);
      hands().focus(box(code.field()));
      forget();
      act(code);
      panel.reset();
      asked();
      container().failures.clear();
      driver().failingStatement = 0;
    }
  }
  /// Lays down the two rows of a list, which shows them by name.
  void rows(const Code& code, const std::string& sql) {
    driver().answers[sql] = {{code.nameColumn, code.codeColumn()},
                             {{std::string("ZETA"), code.known}, {std::string("ALFA"), code.other + "  "}}};
  }
};
QVN_ON_EVERY_PLATFORM(QuotaCodes);

TEST_P(QuotaCodes, AWrittenCodeIsAnnouncedAndShowsItsDescriptionAlone) {
  withEach([&](const Code& code) {
    write(code.property, code.known);
    EXPECT_EQ(read(code.property), code.known);
    EXPECT_THAT(heard(), ElementsAre(code.property));
    EXPECT_THAT(asked(), ElementsAre(code.lookup(code.known)));
    for (const Code& each : codes()) {
      if (each.className != code.className) continue;
      EXPECT_EQ(caption(each.description), each.property == code.property ? code.shown : "") << each.description;
    }
  });
}

TEST_P(QuotaCodes, ACodeThatIsThereIsNotWrittenAgain) {
  withEach([&](const Code& code) {
    write(code.property, code.known);
    forget();
    write(code.property, code.known);
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_THAT(asked(), IsEmpty());
  });
}

TEST_P(QuotaCodes, EachLetterIsLookedUpAndAnnounced) {
  withEach([&](const Code& code) {
    std::string small = code.known;
    std::ranges::transform(small, small.begin(), [](char c) { return static_cast<char>(std::tolower(c)); });
    hands().type(small);
    EXPECT_EQ(read(code.property), code.known);
    EXPECT_THAT(heard(), ElementsAre(code.property, code.property));
    EXPECT_THAT(asked(), ElementsAre(code.lookup(code.known.substr(0, 1)), code.lookup(code.known)));
    EXPECT_EQ(caption(code.description), code.shown);
  });
}

TEST_P(QuotaCodes, AnUnknownOrEmptiedCodeShowsNoDescription) {
  withEach([&](const Code& code) {
    write(code.property, code.known);
    write(code.property, "ZZ");
    EXPECT_EQ(caption(code.description), "");
    write(code.property, code.known);
    forget();
    write(code.property, "");
    EXPECT_EQ(caption(code.description), "");
    EXPECT_EQ(read(code.property), "");
    EXPECT_THAT(heard(), ElementsAre(code.property));
    EXPECT_THAT(asked(), IsEmpty());  // the empty key is not asked
  });
}

TEST_P(QuotaCodes, AQuoteStaysInTheFieldAndIsNotAsked) {
  withEach([&](const Code& code) {
    write(code.property, std::string("'").append(code.known));
    EXPECT_EQ(read(code.property), std::string("'").append(code.known));
    EXPECT_THAT(asked(), ElementsAre(code.lookup(code.known)));
    EXPECT_EQ(caption(code.description), code.shown);
  });
}

TEST_P(QuotaCodes, TakesSoManyCharactersInCapitals) {
  withEach([&](const Code& code) {
    const std::int64_t before = beeps();
    hands().type("ab!-1xyzuv");
    EXPECT_EQ(read(code.property), std::string("AB!-1XYZUV").substr(0, code.limit));
    EXPECT_EQ(beeps(), before + static_cast<std::int64_t>(10 - code.limit));
  });
}

TEST_P(QuotaCodes, TheDescriptionIsLookedUpAfterTheAnnouncement) {
  withEach([&](const Code& code) {
    std::string description = "not announced";
    std::size_t statementsBefore = 99;
    container().onNotice = [&](toolkit::Surface&, std::string_view) {
      description = caption(code.description);
      statementsBefore = driver().ran.size();
    };
    write(code.property, code.known);
    container().onNotice = {};
    EXPECT_EQ(description, "");
    EXPECT_EQ(statementsBefore, 0U);
    EXPECT_EQ(caption(code.description), code.shown);
  });
}

TEST_P(QuotaCodes, WhatTheHostWritesInTheAnnouncementIsLookedUp) {
  withEach([&](const Code& code) {
    container().onNotice = [&](toolkit::Surface&, std::string_view) { write(code.property, code.other); };
    write(code.property, code.known);
    container().onNotice = {};
    EXPECT_EQ(read(code.property), code.other);
    EXPECT_EQ(caption(code.description), code.otherShown);
    EXPECT_THAT(asked(), ElementsAre(code.lookup(code.other), code.lookup(code.other)));
  });
}

TEST_P(QuotaCodes, AFailingLookUpPassesToTheWriterBehindTheAnnouncement) {
  withEach([&](const Code& code) {
    write(code.property, code.known);
    forget();
    driver().failingStatement = 1;
    EXPECT_FAILURE(write(code.property, code.other), FailureKind::Database, code.lookup(code.other));
    EXPECT_EQ(read(code.property), code.other);
    EXPECT_EQ(caption(code.description), code.shown);
    EXPECT_THAT(heard(), ElementsAre(code.property));
  });
}

TEST_P(QuotaCodes, AFailingLookUpUnderTheHandsReachesTheContainer) {
  withEach([&](const Code& code) {
    statements.failAt(1);
    hands().type("x");
    statements.failAt(0);
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.widget, code.field());
    EXPECT_EQ(failure.event, "Change");
    EXPECT_EQ(failure.kind, FailureKind::Database);
    EXPECT_EQ(read(code.property), "X");
  });
}

TEST_P(QuotaCodes, ANullDescriptionFails) {
  withEach([&](const Code& code) {
    const auto kept = driver().answers;
    driver().answers[code.lookup("N")] = {{code.nameColumn, "PERCALT"}, {{Null{}, std::int32_t{1}}}};
    EXPECT_FAILURE(write(code.property, "N"), FailureKind::InvalidUseOfNull, "quota." + code.property);
    driver().answers = kept;
  });
}

TEST_P(QuotaCodes, AClosedConnectionIsAskedForWhateverTheCode) {
  withEach([&](const Code& code) {
    write(code.property, code.known);
    Globale::unload();
    int asks = 0;
    const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] { ++asks; });
    write(code.property, "");
    EXPECT_EQ(asks, 1);
    EXPECT_FAILURE(write(code.property, code.known), FailureKind::Database, "");
    EXPECT_EQ(asks, 2);
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
  });
}

TEST_P(QuotaCodes, TheFocusIsCyanThoughThereIsAList) {
  withEach([&](const Code& code) {
    write(code.property, code.known);
    hands().leave();
    EXPECT_EQ(box(code.field()).BackColor(), toolkit::kWhite);
    hands().focus(box(code.field()));
    EXPECT_EQ(box(code.field()).BackColor(), kCyan);
    EXPECT_TRUE(wholeSelected(box(code.field())));
  });
}

TEST_P(QuotaCodes, TheListOpensForWhatIsInTheFieldAndTheChoiceIsSelected) {
  withEach([&](const Code& code) {
    write(code.property, code.known);
    hands().caret(2, 0);
    forget();
    rows(code, code.byCode(code.known));
    hands().layDown("Lista", {Act::row(0), Act::click("CmdOK")});
    hands().takePictures(true);
    hands().type("?");
    const auto pictures = hands().shown();
    hands().takePictures(false);
    ASSERT_EQ(pictures.size(), 1U);
    EXPECT_EQ(pictures[0].caption, "Elenco " + code.table);
    EXPECT_EQ(read(code.property), code.other);  // ALFA stands first
    EXPECT_TRUE(wholeSelected(box(code.field())));
    EXPECT_EQ(caption(code.description), code.otherShown);
    EXPECT_THAT(heard(), ElementsAre(code.property));
    EXPECT_THAT(asked(), ElementsAre(code.byCode(code.known), code.lookup(code.other)));
    EXPECT_EQ(focused(), code.field());
    driver().answers.erase(code.byCode(code.known));
  });
}

TEST_P(QuotaCodes, TheListOfAnEmptyFieldHasAllAndBehindAnExclamationMarkThoseOfAName) {
  withEach([&](const Code& code) {
    hands().type("?");
    EXPECT_THAT(asked(), ElementsAre(code.all()));
    hands().type("!al");
    asked();
    hands().type("?");
    EXPECT_THAT(asked(), ElementsAre(code.byName("AL")));
    EXPECT_EQ(read(code.property), "!AL");
    EXPECT_THAT(container().failures, IsEmpty());
  });
}

TEST_P(QuotaCodes, TheListOpensOnAFullFieldToo) {
  withEach([&](const Code& code) {
    const std::string full(code.limit, '1');
    hands().type(full);
    asked();
    const std::int64_t before = beeps();
    hands().type("?");
    EXPECT_THAT(asked(), ElementsAre(code.byCode(full)));
    EXPECT_EQ(beeps(), before);
    EXPECT_EQ(read(code.property), full);
  });
}

TEST_P(QuotaCodes, AListThatIsClosedLeavesTheFieldAsItWas) {
  withEach([&](const Code& code) {
    write(code.property, std::string("'").append(code.known));
    hands().caret(1, 1);
    forget();
    rows(code, code.byCode(code.known));
    for (const Act& act : {Act::click("CmdAbort"), Act::key("{Escape}"), Act::close()}) {
      hands().layDown("Lista", {act});
      hands().type("?");
      EXPECT_EQ(read(code.property), std::string("'").append(code.known));
      EXPECT_EQ(box(code.field()).SelStart(), 1);
      EXPECT_EQ(box(code.field()).SelLength(), 1);
    }
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_EQ(platform().forms().count(), 0);
    driver().answers.erase(code.byCode(code.known));
  });
}

TEST_P(QuotaCodes, ChoosingTheCodeThatIsThereSelectsIt) {
  withEach([&](const Code& code) {
    write(code.property, code.known);
    hands().caret(2, 0);
    forget();
    rows(code, code.byCode(code.known));
    hands().layDown("Lista", {Act::doubleClick(1)});
    hands().type("?");
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_TRUE(wholeSelected(box(code.field())));
    driver().answers.erase(code.byCode(code.known));
  });
}

TEST_P(QuotaCodes, AListThatCannotBeAskedForReachesTheContainer) {
  withEach([&](const Code& code) {
    statements.failAt(1);
    hands().type("?");
    statements.failAt(0);
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.widget, code.field());
    EXPECT_EQ(failure.event, "KeyPress");
    EXPECT_EQ(failure.kind, FailureKind::Database);
    EXPECT_EQ(read(code.property), "");
    rows(code, code.all());
    hands().layDown("Lista", {Act::key("{Enter}")});
    hands().type("?");  // comes over the wait form that stands
    EXPECT_EQ(read(code.property), code.other);
    EXPECT_EQ(platform().forms().count(), 0);
    driver().answers.erase(code.all());
  });
}

}  // namespace
}  // namespace qvn::test
