// What a host writes into the statement line, and what it reads back.
#include <gtest/gtest.h>

#include "qvn/panels/documents/ctlESTRATTI.h"
#include "tests/documents/line_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class StatementMembers : public LinePanel<ctlESTRATTI> {
 public:
  struct Text {
    std::string name;
    std::string box;
    std::string (ctlESTRATTI::*get)() const;
    void (ctlESTRATTI::*let)(std::string_view);
  };
  static const std::vector<Text>& texts() {
    using P = ctlESTRATTI;
    static const std::vector<Text> all{
        {"COD_CLIENTE", "TxtCOD_CLI", &P::COD_CLIENTE, &P::COD_CLIENTE},
        {"N_POLIZZA", "TxtN_POLIZZA", &P::N_POLIZZA, &P::N_POLIZZA},
        {"SIGLA_SRAMO", "TxtSIGLA_SRAMO", &P::SIGLA_SRAMO, &P::SIGLA_SRAMO},
        {"INT_ASS", "TxtINT_ASS", &P::INT_ASS, &P::INT_ASS},
    };
    return all;
  }
  /// A check box behind its property, and what it is announced as.
  struct Flag {
    std::string property;
    std::string box;
    std::string notice;
    bool (ctlESTRATTI::*get)() const;
    void (ctlESTRATTI::*let)(bool);
  };
  static const std::vector<Flag>& flags() {
    using P = ctlESTRATTI;
    static const std::vector<Flag> both{{"ANNULLATA", "ChkANNULLATA", "ANN", &P::ANNULLATA, &P::ANNULLATA},
                                        {"STAMPA", "chkSTAMPA", "STAMPA", &P::STAMPA, &P::STAMPA}};
    return both;
  }
};
QVN_ON_EVERY_PLATFORM(StatementMembers);

TEST_P(StatementMembers, StandInOrder) {
  EXPECT_EQ(membersInOrder(),
            "COD_CLIENTE get/let text\n"
            "Events get clsQVN_Eventi\n"
            "PREMIO get/let currency\n"
            "PROVVIGIONE get/let currency\n"
            "DATA_EC get/let variant\n"
            "N_POLIZZA get/let text\n"
            "COD_GR get/let text\n"
            "SIGLA_SRAMO get/let text\n"
            "TIPO_DOC get/let text\n"
            "RIMBORSO get/let currency\n"
            "INT_ASS get/let text\n"
            "DATA_QUIET get/let variant\n"
            "DATA_REG get/let variant\n"
            "Attiva method \n"
            "Disattiva method \n"
            "ANNULLATA get/let boolean\n"
            "STAMPA get/let boolean\n"
            "ST_COMP get/let variant\n"
            "ST_PROD get/let variant\n"
            "COD_PROD get/let text\n"
            "COD_PROD_ALT get/let text\n");
}

TEST_P(StatementMembers, GiveTheOneEventObject) {
  EXPECT_EQ(panel->Events(), Globale::Eventi());
  EXPECT_EQ(another("altra")->Events(), panel->Events());
  EXPECT_FAILURE(letByName(*panel, "Events", Empty{}), FailureKind::NoSuchMember, "riga.Events");
}

TEST_P(StatementMembers, ATextShowsInItsOwnFieldIsAnnouncedAndReadBack) {
  for (const Text& property : texts()) {
    SCOPED_TRACE(property.name);
    renew();
    EXPECT_EQ((*panel.*property.get)(), "");
    (*panel.*property.let)("aB 1é");
    for (const Text& each : texts()) {
      EXPECT_EQ(box(each.box).Text(), each.name == property.name ? "aB 1é" : "") << each.name;
    }
    EXPECT_EQ((*panel.*property.get)(), "aB 1é");
    EXPECT_EQ(heard(), Strings{property.name});
    EXPECT_EQ(getByName(*panel, property.name), text("aB 1é"));
  }
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(StatementMembers, ATextThatIsThereIsNotWrittenAgain) {
  panel->Attiva();
  for (const Text& property : texts()) {
    SCOPED_TRACE(property.name);
    (*panel.*property.let)("ABC");
    hands().focus(box(property.box));
    hands().caret(1, 1);
    forget();
    (*panel.*property.let)("ABC");
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_EQ(box(property.box).SelStart(), 1);
    EXPECT_EQ(box(property.box).SelLength(), 1);
    (*panel.*property.let)("abc");
    EXPECT_EQ(heard(), Strings{property.name});
  }
}

TEST_P(StatementMembers, ATypedTextIsAnnouncedKeyByKey) {
  panel->Attiva();
  for (const Text& property : texts()) {
    hands().focus(box(property.box));
    forget();
    hands().type("ab");
    EXPECT_EQ(heard(), (Strings{property.name, property.name}));
    EXPECT_EQ((*panel.*property.get)(), "AB");
  }
}

TEST_P(StatementMembers, TIPO_DOCIsReadAndWrittenByItsLetter) {
  struct Kind {
    std::string letter;
    std::string item;
  };
  for (const Kind& kind :
       {Kind{"A", "A - Appendice"}, Kind{"Q", "Q - Quietanza"}, Kind{"V", "V - Varie"}, Kind{"P", "P - Polizza"}}) {
    panel->TIPO_DOC(kind.letter);
    EXPECT_EQ(list("CmbTIPO_DOC").Text(), kind.item);
    EXPECT_EQ(panel->TIPO_DOC(), kind.letter);
    EXPECT_EQ(heard(), Strings{"TIPO_DOC"});
    panel->TIPO_DOC(kind.letter);
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(StatementMembers, AnotherLetterLeavesTheKind) {
  panel->TIPO_DOC("Q");
  forget();
  for (const std::string_view other : {"X", "p", "q", "", " ", "P ", "PA", "Q - Quietanza", "A - Appendice"}) {
    panel->TIPO_DOC(other);
    EXPECT_EQ(panel->TIPO_DOC(), "Q") << other;
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(StatementMembers, AKindIsEmptyWhereNoneIsShown) {
  list("CmbTIPO_DOC").ListIndex(-1);
  EXPECT_EQ(panel->TIPO_DOC(), "");
  forget();
  panel->TIPO_DOC("P");
  EXPECT_EQ(panel->TIPO_DOC(), "P");
  EXPECT_EQ(heard(), Strings{"TIPO_DOC"});
}

TEST_P(StatementMembers, TheOperatorsPickOfAKindIsAnnouncedOnce) {
  panel->Attiva();
  const Strings letters{"P", "A", "Q", "V"};
  forget();
  for (std::int32_t i = 0; i < 4; ++i) {
    hands().choose(list("CmbTIPO_DOC"), i);
    EXPECT_EQ(panel->TIPO_DOC(), letters[static_cast<std::size_t>(i)]);
    EXPECT_EQ(heard(), Strings{"TIPO_DOC"});
  }
}

TEST_P(StatementMembers, AFlagFollowsItsPropertyAndIsAnnouncedUnderItsOwnName) {
  for (const Flag& each : flags()) {
    SCOPED_TRACE(each.property);
    (*panel.*each.let)(false);
    EXPECT_THAT(heard(), IsEmpty());
    (*panel.*each.let)(true);
    EXPECT_EQ(flag(each.box).Value(), 1);
    EXPECT_TRUE((*panel.*each.get)());
    EXPECT_EQ(heard(), Strings{each.notice});
    (*panel.*each.let)(true);
    EXPECT_THAT(heard(), IsEmpty());
    (*panel.*each.let)(false);
    EXPECT_EQ(flag(each.box).Value(), 0);
    EXPECT_FALSE((*panel.*each.get)());
    EXPECT_EQ(heard(), Strings{each.notice});
    letByName(*panel, each.property, std::int32_t{-1});
    EXPECT_EQ(getByName(*panel, each.property), Variant(true));
    EXPECT_EQ(heard(), Strings{each.notice});
  }
  EXPECT_TRUE(panel->ANNULLATA());
  panel->STAMPA(false);
  EXPECT_TRUE(panel->ANNULLATA());
}

TEST_P(StatementMembers, AClickOnAFlagTurnsItAndIsAnnounced) {
  panel->Attiva();
  forget();
  for (const Flag& each : flags()) {
    hands().click(flag(each.box));
    EXPECT_TRUE((*panel.*each.get)());
    EXPECT_EQ(heard(), Strings{each.notice});
    hands().click(flag(each.box));
    EXPECT_FALSE((*panel.*each.get)());
    EXPECT_EQ(heard(), Strings{each.notice});
  }
}

TEST_P(StatementMembers, COD_GRIsShownAndNotHandedBack) {
  panel->COD_GR("12");
  EXPECT_EQ(caption("LblCOD_GR"), "12");
  EXPECT_EQ(panel->COD_GR(), "");
  panel->COD_GR("");
  EXPECT_EQ(caption("LblCOD_GR"), "");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(StatementMembers, TheCodesOfTheProducersAreKeptAsTheyAreAndTouchNothing) {
  panel->ST_PROD(text(""));
  forget();
  panel->COD_PROD("p 1'");
  panel->COD_PROD_ALT("P2");
  EXPECT_EQ(panel->COD_PROD(), "p 1'");
  EXPECT_EQ(panel->COD_PROD_ALT(), "P2");
  EXPECT_TRUE(list("CmbST_PROD").Enabled());
  panel->COD_PROD("");
  EXPECT_EQ(panel->COD_PROD(), "");
  EXPECT_EQ(panel->COD_PROD_ALT(), "P2");
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(StatementMembers, ANullIsNoTextAndNoFlag) {
  for (const std::string_view name : {"COD_CLIENTE", "N_POLIZZA", "COD_GR", "SIGLA_SRAMO", "TIPO_DOC", "INT_ASS",
                                      "ANNULLATA", "STAMPA", "COD_PROD", "COD_PROD_ALT", "PREMIO"}) {
    EXPECT_FAILURE(letByName(*panel, name, Null{}), FailureKind::InvalidUseOfNull, std::string("riga.").append(name));
  }
  EXPECT_THAT(heard(), IsEmpty());
}

}  // namespace
}  // namespace qvn::test
