// The pick lists of a statement line: clients by their codes, and sub-branches by their initials.
#include <gtest/gtest.h>

#include "qvn/panels/documents/ctlESTRATTI.h"
#include "tests/documents/line_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kAllClients = "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI";
const std::string kAllSubBranches = "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI";
const std::string kInitialsOf7 = "Select sigla From SOTTORAMI Where COD_SRAMO = 7";
const std::string kInitialsOf12 = "Select sigla From SOTTORAMI Where COD_SRAMO = 12";

class StatementLists : public LinePanel<ctlESTRATTI> {
 public:
  StatementLists() {
    clients(kAllClients);
    driver().answers[kAllSubBranches] = {
        {"DESCRIZIONE", "COD_SRAMO"},
        {{std::string("INCENDIO"), std::int32_t{12}}, {std::string("AUTO R.C."), std::int32_t{7}}}};
    driver().answers[kInitialsOf7] = {{"sigla"}, {{std::string("RCA")}}};
    driver().answers[kInitialsOf12] = {{"sigla"}, {{std::string("")}}};
    hands().takePictures(true);
  }
  void clients(const std::string& sql) {
    driver().answers[sql] = {
        {"DESC_CLIENTE", "COD_CLIENTE"},
        {{std::string("ZANETTI"), std::string("C2")}, {std::string("ALFIERI"), std::string(" C1 ")}}};
  }
  /// The focus in the field, which holds a text with the caret behind it.
  toolkit::TextBox& into(std::string_view name, std::string_view holds) {
    toolkit::TextBox& field = box(name);
    field.Text(holds);
    panel->Attiva();
    hands().focus(field);
    hands().caret(99, 0);
    forget();
    return field;
  }
  void pick(std::int32_t row) { hands().layDown("Lista", {Act::row(row), Act::click("CmdOK")}); }
  std::string titleShown() {
    const std::vector<FormPicture> pictures = hands().shown();
    return pictures.size() == 1 ? pictures[0].caption : std::to_string(pictures.size()).append(" forms");
  }
};
QVN_ON_EVERY_PLATFORM(StatementLists);

TEST_P(StatementLists, AClientIsPickedFromThoseWhoseCodesBeginAsTheField) {
  toolkit::TextBox& field = into("TxtCOD_CLI", "c");
  clients(kAllClients + " Where COD_CLIENTE Like 'c%'");
  pick(0);
  hands().type("?");
  EXPECT_EQ(titleShown(), "Elenco CLIENTI");
  EXPECT_EQ(panel->COD_CLIENTE(), "C1");
  EXPECT_TRUE(wholeSelected(field));
  EXPECT_THAT(heard(), ElementsAre("COD_CLIENTE"));
  EXPECT_THAT(asked(), ElementsAre(kAllClients + " Where COD_CLIENTE Like 'c%'"));
  EXPECT_EQ(focused(), "TxtCOD_CLI");
}

TEST_P(StatementLists, AnEmptyClientOffersAllAndAMarkSearchesTheNames) {
  into("TxtCOD_CLI", "");
  pick(1);
  hands().type("?");
  EXPECT_EQ(panel->COD_CLIENTE(), "C2");
  EXPECT_THAT(asked(), ElementsAre(kAllClients));
  into("TxtCOD_CLI", "!Z'A");
  hands().type("?");
  EXPECT_THAT(asked(), ElementsAre(kAllClients + " Where DESC_CLIENTE Like 'ZA%'"));
  EXPECT_EQ(panel->COD_CLIENTE(), "!Z'A");  // none was found, and the field keeps its quote
}

TEST_P(StatementLists, ACancelledListLeavesTheFieldAndItsCaret) {
  for (const std::string_view name : {"TxtCOD_CLI", "TxtSIGLA_SRAMO"}) {
    SCOPED_TRACE(name);
    toolkit::TextBox& field = into(name, "C");
    clients(kAllClients + " Where COD_CLIENTE Like 'C%'");
    for (const Act& act : {Act::click("CmdAbort"), Act::key("{Escape}"), Act::close()}) {
      hands().layDown("Lista", {act});
      hands().type("?");
      EXPECT_NE(titleShown(), "0 forms");
    }
    EXPECT_EQ(field.Text(), "C");
    EXPECT_EQ(field.SelStart(), 1);
    EXPECT_EQ(field.SelLength(), 0);
    EXPECT_THAT(heard(), IsEmpty());
    EXPECT_THAT(namesOfLoadedForms(platform()), IsEmpty());
  }
}

TEST_P(StatementLists, TheQuestionMarkIsNeverTyped) {
  for (const std::string_view name : {"TxtCOD_CLI", "TxtSIGLA_SRAMO"}) {
    into(name, "");
    const std::int64_t before = beeps();
    hands().type("?");
    EXPECT_EQ(box(name).Text(), "");
    EXPECT_EQ(beeps(), before);
  }
}

TEST_P(StatementLists, ASubBranchGivesItsInitials) {
  toolkit::TextBox& field = into("TxtSIGLA_SRAMO", "12");
  pick(0);
  hands().type("?");
  EXPECT_EQ(titleShown(), "Elenco TIPI SOTTORAMI ASS.");
  EXPECT_EQ(panel->SIGLA_SRAMO(), "RCA");
  EXPECT_TRUE(wholeSelected(field));
  EXPECT_THAT(heard(), ElementsAre("SIGLA_SRAMO"));
  // Every sub-branch is offered, even where the field holds a number that is the code of one.
  EXPECT_THAT(asked(), ElementsAre(kAllSubBranches, kInitialsOf7));
  EXPECT_EQ(focused(), "TxtSIGLA_SRAMO");
}

TEST_P(StatementLists, ASubBranchWithoutInitialsEmptiesTheField) {
  into("TxtSIGLA_SRAMO", "XYZ");
  pick(1);
  hands().type("?");
  EXPECT_EQ(panel->SIGLA_SRAMO(), "");
  EXPECT_THAT(heard(), ElementsAre("SIGLA_SRAMO"));
  EXPECT_THAT(asked(), ElementsAre(kAllSubBranches, kInitialsOf12));
  EXPECT_THAT(container().failures, IsEmpty());
}

TEST_P(StatementLists, InitialsThatAreThereAreSelectedWithoutANotice) {
  toolkit::TextBox& field = into("TxtSIGLA_SRAMO", "RCA");
  pick(0);
  hands().type("?");
  EXPECT_TRUE(wholeSelected(field));
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(StatementLists, ALongerTextThanTheFieldTakesIsWrittenWhole) {
  driver().answers[kInitialsOf7] = {{"sigla"}, {{std::string("INCENDIO RISCHI")}}};
  into("TxtSIGLA_SRAMO", "");
  pick(0);
  hands().type("?");
  EXPECT_EQ(panel->SIGLA_SRAMO(), "INCENDIO RISCHI");
}

TEST_P(StatementLists, AFailureOfTheListReachesTheContainerAndLeavesTheField) {
  for (const std::string_view name : {"TxtCOD_CLI", "TxtSIGLA_SRAMO"}) {
    SCOPED_TRACE(name);
    into(name, "AB");
    statements.failAt(1);
    hands().type("?");
    statements.failAt(0);
    const ReportedFailure failure = onlyReported();
    EXPECT_EQ(failure.widget, name);
    EXPECT_EQ(failure.event, "KeyPress");
    EXPECT_EQ(failure.kind, FailureKind::Database);
    EXPECT_EQ(box(name).Text(), "AB");
    EXPECT_THAT(heard(), IsEmpty());
  }
}

TEST_P(StatementLists, AFailureOfTheInitialsLeavesTheField) {
  toolkit::TextBox& field = into("TxtSIGLA_SRAMO", "AB");
  statements.failAt(2);
  pick(0);
  hands().type("?");
  statements.failAt(0);
  EXPECT_EQ(onlyReported().kind, FailureKind::Database);
  EXPECT_EQ(field.Text(), "AB");
  driver().answers[kInitialsOf7] = {{"sigla"}, {{Null{}}}};
  pick(0);
  hands().type("?");
  EXPECT_EQ(onlyReported().kind, FailureKind::InvalidUseOfNull);
  EXPECT_EQ(field.Text(), "AB");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(StatementLists, AClosedConnectionIsAskedForBeforeTheList) {
  Globale::unload();
  int asks = 0;
  const Subscription host = Globale::Eventi()->MancaDB.subscribe([&] {
    ++asks;
    Globale::Eventi()->ImpostaDB("failing:fake:ufficio");
  });
  into("TxtSIGLA_SRAMO", "");
  EXPECT_EQ(asks, 0);
  pick(0);
  hands().type("?");
  EXPECT_EQ(asks, 1);
  EXPECT_EQ(panel->SIGLA_SRAMO(), "RCA");
}

TEST_P(StatementLists, TheListsOpenOnAFullFieldToo) {
  for (const std::string_view name : {"TxtCOD_CLI", "TxtSIGLA_SRAMO"}) {
    SCOPED_TRACE(name);
    into(name, "ABCDEF");
    const std::int64_t before = beeps();
    hands().type("?");
    EXPECT_EQ(beeps(), before);
    EXPECT_EQ(asked().size(), 1U);
    EXPECT_EQ(box(name).Text(), "ABCDEF");
  }
}

}  // namespace
}  // namespace qvn::test
