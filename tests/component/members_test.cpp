// Members by name: listed, read, written, called, and refused.
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/component/component.h"

namespace qvn::component_test {

namespace {

using testing::ElementsAre;

using Members = Component;

std::vector<std::string> membersOf(const Handle& object) {
  std::vector<std::string> members;
  qvn_member member{};
  for (std::int32_t i = 0; qvn_member_at(object.get(), i, &member) == QVN_OK; ++i) {
    members.push_back(std::to_string(member.kind) + " " + member.name + ": " + member.type);
  }
  return members;
}

TEST_F(Members, areListedInInterfaceOrder) {
  const auto members =
      ElementsAre("2 Codice: 8-bit unsigned integer", "2 Deb_Dec: 8-bit unsigned integer", "2 DESCRIZIONE: text",
                  "3 Attiva: ", "3 Disattiva: ", "2 IVA: 8-bit unsigned integer");
  const Handle made = classObject("ctlIVA");
  EXPECT_THAT(membersOf(made), members);
  EXPECT_THAT(membersOf(create(screen(), "ctlIVA", "iva")), members);
}

TEST_F(Members, ofTheEventObjectAreItsMethodsAndItsEvent) {
  EXPECT_THAT(membersOf(classObject("clsQVN_Eventi")), ElementsAre("3 FireMancaDB: ", "3 ImpostaDB: ", "4 MancaDB: "));
  const Handle events = create(Handle(), "clsQVN_Eventi", nullptr);
  EXPECT_EQ(3U, membersOf(events).size());
}

TEST_F(Members, ofEveryKindAreTold) {
  EXPECT_THAT(membersOf(classObject("ctlQ_POLIZZE")), testing::Contains("0 Events: clsQVN_Eventi"));
  EXPECT_THAT(membersOf(classObject("ctlQ_POLIZZE")), testing::Contains("2 D_RIMESSA: variant"));
  EXPECT_THAT(membersOf(classObject("ctlPROV_POLIZZE")), testing::Contains("2 PN_UFF: currency"));
}

TEST_F(Members, areListedWithinTheirNumber) {
  const Handle made = classObject("ctlIVA");
  qvn_member member{.name = "untouched", .type = "untouched", .kind = 9};
  EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "member 6", qvn_member_at(made.get(), 6, &member)));
  EXPECT_EQ(nullptr, member.name);
  EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "-1", qvn_member_at(made.get(), -1, &member)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "screen has no members", qvn_member_at(screen().get(), 0, &member)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_member_at(nullptr, 0, &member)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_member_at(made.get(), 0, nullptr)));
}

TEST_F(Members, areReadWrittenAndCalledWithoutRegardToCase) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  let(panel, "descrizione", text("esente"));
  EXPECT_EQ("esente", get(panel, "DescriZIONE").text());
  call(panel, "ATTIVA");
  let(panel, "CODICE", number(22));
  EXPECT_EQ(22, get(panel, "codice")->as.byte);
}

TEST_F(Members, areNamedWithTheirPanelWhereAValueIsNone) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  qvn_value far = ofKind(QVN_DATE);
  far.as.date = 2'958'466;
  EXPECT_TRUE(failed(QVN_OVERFLOW, "quota.d_rimessa: 2958466 days", qvn_let(panel.get(), "d_rimessa", &far)));
  EXPECT_TRUE(failed(QVN_OVERFLOW, "quota.Calcola_QUOTA: 2958466 days",
                     qvn_call(panel.get(), "Calcola_QUOTA", &far, 1, nullptr)));
  const Handle events = eventsOf(panel);
  EXPECT_TRUE(failed(QVN_OVERFLOW, "ImpostaDB: 2958466 days", qvn_call(events.get(), "ImpostaDB", &far, 1, nullptr)));
}

TEST_F(Members, giveTheirResults) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  const std::array<std::int64_t, 9> figures{10'000'000, 0, 8'000'000, 0, 0, 0, 0, 0, 0};
  qvn_value value = ofKind(QVN_ARRAY);
  value.as.array = {.values = figures.data(), .rows = 3, .columns = 3};
  ASSERT_EQ(QVN_OK, qvn_call(panel.get(), "Imposta_VALORI", &value, 1, nullptr)) << qvn_last_message();
  EXPECT_EQ(figures.data(), value.as.array.values);
  EXPECT_EQ(0, value.owned);
  qvn_value quota = number(250);
  ASSERT_EQ(QVN_OK, qvn_call(panel.get(), "Calcola_QUOTA", &quota, 1, nullptr)) << qvn_last_message();
  EXPECT_EQ("€ 250,00", show(panel, "TAF(0)", "Caption"));
  EXPECT_EQ("€ 200,00", show(panel, "TRF(0)", "Caption"));
}

TEST_F(Members, thatFailSayWhereAndWhy) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Value value;
  EXPECT_TRUE(failed(QVN_TYPE_MISMATCH, "iva.Codice", qvn_get(panel.get(), "Codice", value.place())));
  EXPECT_EQ(QVN_EMPTY, value->kind);
  const qvn_value large = number(256);
  EXPECT_TRUE(failed(QVN_OVERFLOW, "iva.Codice", qvn_let(panel.get(), "Codice", &large)));
  const qvn_value unknown = ofKind(QVN_NULL);
  EXPECT_TRUE(failed(QVN_INVALID_USE_OF_NULL, "iva.Codice", qvn_let(panel.get(), "Codice", &unknown)));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "iva.Gone", qvn_get(panel.get(), "Gone", value.place())));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "iva.Attiva", qvn_get(panel.get(), "Attiva", value.place())));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "iva.Codice", qvn_call(panel.get(), "Codice", nullptr, 0, nullptr)));
  qvn_value argument = number(1);
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "iva.Attiva", qvn_call(panel.get(), "Attiva", &argument, 1, nullptr)));
  EXPECT_EQ("", show(panel, "TxtCodice", "Text"));
}

TEST_F(Members, thatWantAnArrayOfAnotherShapeFail) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  const std::int64_t amount = 1;
  qvn_value value = ofKind(QVN_ARRAY);
  value.as.array = {.values = &amount, .rows = 1, .columns = 1};
  EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "quota", qvn_call(panel.get(), "Imposta_VALORI", &value, 1, nullptr)));
}

TEST_F(Members, leaveNoMessageWhereAllIsWell) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Value value;
  EXPECT_NE(QVN_OK, qvn_get(panel.get(), "Gone", value.place()));
  EXPECT_STRNE("", qvn_last_message());
  EXPECT_EQ(QVN_OK, qvn_get(panel.get(), "DESCRIZIONE", value.place()));
  EXPECT_STREQ("", qvn_last_message());
}

TEST_F(Members, leaveNoMessageOfAHandlersCallWhereAllIsWell) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Handle subscription;
  const auto handler = [](void*, qvn_object* lent, const char*) -> std::int32_t {
    EXPECT_NE(QVN_OK, qvn_get(lent, "Gone", Value().place()));
    return QVN_OK;
  };
  ASSERT_EQ(QVN_OK, qvn_on_changed(panel.get(), handler, nullptr, subscription.place()));
  let(panel, "DESCRIZIONE", text("esente"));
  EXPECT_STREQ("", qvn_last_message());
}

TEST_F(Members, areNotReachedThroughNulls) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Value value;
  const qvn_value ours = text("x");
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "object is null", qvn_get(nullptr, "IVA", value.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "name is null", qvn_get(panel.get(), nullptr, value.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_get(panel.get(), "IVA", nullptr)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "object is null", qvn_let(nullptr, "IVA", &ours)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "name is null", qvn_let(panel.get(), nullptr, &ours)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "value is null", qvn_let(panel.get(), "IVA", nullptr)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "object is null", qvn_call(nullptr, "Attiva", nullptr, 0, nullptr)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "name is null", qvn_call(panel.get(), nullptr, nullptr, 0, nullptr)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "arguments", qvn_call(panel.get(), "Attiva", nullptr, 1, nullptr)));
}

TEST_F(Members, areThoseOfPanelsAndEventObjectsAlone) {
  const Handle onScreen = screen();
  Value value;
  const qvn_value ours = text("x");
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "screen", qvn_get(onScreen.get(), "IVA", value.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "screen", qvn_let(onScreen.get(), "IVA", &ours)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "screen", qvn_call(onScreen.get(), "IVA", nullptr, 0, nullptr)));
}

TEST_F(Members, thatFailLeaveThePlaceForTheirResultEmpty) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  qvn_value result = number(7);
  EXPECT_EQ(QVN_NO_SUCH_MEMBER, qvn_call(panel.get(), "Salva", nullptr, 0, &result));
  EXPECT_EQ(QVN_EMPTY, result.kind);
  result = number(7);
  EXPECT_EQ(QVN_INVALID_ARGUMENT, qvn_call(nullptr, "Salva", nullptr, 0, &result));
  EXPECT_EQ(QVN_EMPTY, result.kind);
}

TEST_F(Members, ofTheEventObjectAreCalledByName) {
  const Handle onScreen = screen();
  const Handle events = eventsOf(create(onScreen, "ctlFIDO", "fido"));
  call(events, "firemancadb");
  Value value;
  const qvn_value ours = text("x");
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "no property", qvn_get(events.get(), "ImpostaDB", value.place())));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "no property", qvn_let(events.get(), "MancaDB", &ours)));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "no method", qvn_call(events.get(), "MancaDB", nullptr, 0, nullptr)));
  EXPECT_TRUE(failed(QVN_NO_SUCH_MEMBER, "clsQVN_Eventi.Gone", qvn_call(events.get(), "Gone", nullptr, 0, nullptr)));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "takes 1", qvn_call(events.get(), "ImpostaDB", nullptr, 0, nullptr)));
  qvn_value connection = text("gone:office");
  EXPECT_TRUE(failed(QVN_DATABASE, "gone:office", qvn_call(events.get(), "ImpostaDB", &connection, 1, nullptr)));
}

TEST_F(Members, ofTheEventObjectNeedAScreen) {
  const Handle events = create(Handle(), "clsQVN_Eventi", nullptr);
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "platform", qvn_call(events.get(), "FireMancaDB", nullptr, 0, nullptr)));
}

TEST(Statuses, areGivenBackWithAMessageOrWithNone) {
  EXPECT_EQ(QVN_OVERFLOW, qvn_fail(QVN_OVERFLOW, "troppo"));
  EXPECT_STREQ("troppo", qvn_last_message());
  EXPECT_EQ(QVN_DATABASE, qvn_fail(QVN_DATABASE, nullptr));
  EXPECT_STREQ("", qvn_last_message());
}

TEST(Statuses, haveNames) {
  const std::vector<std::string> names{
      "type mismatch",       "overflow",      "division by zero", "subscript out of range",
      "invalid use of null", "invalid call",  "no such member",   "database",
      "invalid argument",    "out of memory", "unknown"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_EQ(names[i], qvn_status_name(static_cast<std::int32_t>(i) + 1));
  }
  EXPECT_STREQ("", qvn_status_name(QVN_OK));
  EXPECT_STREQ("", qvn_status_name(12));
}

TEST(Version, isTheProjects) { EXPECT_STREQ(QVN_PROJECT_VERSION, qvn_version()); }

}  // namespace

}  // namespace qvn::component_test
