// What a host hears, what comes of a handler that fails, and handlers that drop what they stand on.
#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "tests/component/component.h"

namespace qvn::component_test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What handlers noted, and what they answer.
struct Heard {
  std::vector<std::string> all;
  std::int32_t answer = QVN_OK;
  const char* message = nullptr;
  std::vector<qvn_object*> toRelease;
  const qvn_object* watched = nullptr;

  std::int32_t note(std::string what) {
    all.push_back(std::move(what));
    for (qvn_object* object : std::exchange(toRelease, {})) qvn_release(object);
    return message != nullptr ? qvn_fail(answer, message) : answer;
  }
};

Heard& heardBy(void* data) { return *static_cast<Heard*>(data); }

Handle onChanged(const Handle& panel, Heard& heard) {
  Handle subscription;
  const auto handler = [](void* data, qvn_object*, const char* name) { return heardBy(data).note(name); };
  EXPECT_EQ(QVN_OK, qvn_on_changed(panel.get(), handler, &heard, subscription.place()));
  return subscription;
}

Handle onMancaDB(const Handle& events, Heard& heard) {
  Handle subscription;
  const auto handler = [](void* data) { return heardBy(data).note("MancaDB"); };
  EXPECT_EQ(QVN_OK, qvn_on_manca_db(events.get(), handler, &heard, subscription.place()));
  return subscription;
}

Handle onFailed(const Handle& panel, Heard& heard) {
  Handle subscription;
  heard.watched = panel.get();
  const auto handler = [](void* data, qvn_object* lent, const char* widget, const char* event, std::int32_t status,
                          const char* message) {
    EXPECT_EQ(heardBy(data).watched, lent);
    heardBy(data).note(std::string(widget) + " " + event + " " + std::to_string(status) + " " + message);
  };
  EXPECT_EQ(QVN_OK, qvn_on_failed(panel.get(), handler, &heard, subscription.place()));
  return subscription;
}

using Handlers = Component;

TEST_F(Handlers, hearEachChange) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Heard heard;
  const Handle subscription = onChanged(panel, heard);
  let(panel, "DESCRIZIONE", text("esente"));
  let(panel, "DESCRIZIONE", text("esente"));
  call(panel, "Attiva");
  type(onScreen, "22");
  EXPECT_THAT(heard.all, ElementsAre("Descrizione", "Codice", "Codice"));
}

TEST_F(Handlers, hearNothingOnceTheirSubscriptionIsGone) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Heard heard;
  Handle subscription = onChanged(panel, heard);
  EXPECT_EQ(2, qvn_addref(subscription.get()));
  EXPECT_EQ(1, qvn_release(subscription.get()));
  let(panel, "DESCRIZIONE", text("esente"));
  subscription.reset();
  let(panel, "DESCRIZIONE", text("altro"));
  EXPECT_THAT(heard.all, ElementsAre("Descrizione"));
}

TEST_F(Handlers, thatAreSubscribedTwiceHearTwice) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  const Handle events = eventsOf(panel);
  Heard heard;
  const Handle first = onChanged(panel, heard);
  Handle second = onChanged(panel, heard);
  let(panel, "N_POLIZZA", text("83"));
  second.reset();
  let(panel, "N_POLIZZA", text("84"));
  const Handle missing = onMancaDB(events, heard);
  const Handle missingToo = onMancaDB(events, heard);
  call(events, "FireMancaDB");
  EXPECT_THAT(heard.all, ElementsAre("N_POLIZZA", "N_POLIZZA", "N_POLIZZA", "MancaDB", "MancaDB"));
}

TEST_F(Handlers, areCalledInTheOrderOfTheirSubscription) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  static std::vector<int> order;
  order.clear();
  Handle first;
  Handle second;
  const auto one = [](void*, qvn_object*, const char*) -> std::int32_t { return order.push_back(1), QVN_OK; };
  const auto two = [](void*, qvn_object*, const char*) -> std::int32_t { return order.push_back(2), QVN_OK; };
  ASSERT_EQ(QVN_OK, qvn_on_changed(panel.get(), one, nullptr, first.place()));
  ASSERT_EQ(QVN_OK, qvn_on_changed(panel.get(), two, nullptr, second.place()));
  let(panel, "DESCRIZIONE", text("esente"));
  EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST_F(Handlers, areLentThePanel) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Handle subscription;
  qvn_object* lent = nullptr;
  const auto handler = [](void* data, qvn_object* given, const char*) -> std::int32_t {
    *static_cast<qvn_object**>(data) = given;
    Value value;
    return qvn_get(given, "DESCRIZIONE", value.place());
  };
  ASSERT_EQ(QVN_OK, qvn_on_changed(panel.get(), handler, static_cast<void*>(&lent), subscription.place()));
  let(panel, "DESCRIZIONE", text("esente"));
  EXPECT_EQ(panel.get(), lent);
}

class FailingHandler : public Component, public testing::WithParamInterface<std::int32_t> {};

TEST_P(FailingHandler, failsWhatMadeTheChange) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Heard heard;
  heard.answer = GetParam();
  heard.message = "the host says no";
  const Handle subscription = onChanged(panel, heard);
  const qvn_value value = text("esente");
  EXPECT_TRUE(failed(GetParam(), "the host says no", qvn_let(panel.get(), "DESCRIZIONE", &value)));
  EXPECT_EQ("esente", get(panel, "DESCRIZIONE").text());
}

INSTANTIATE_TEST_SUITE_P(Kinds, FailingHandler, testing::Range<std::int32_t>(QVN_TYPE_MISMATCH, QVN_DATABASE + 1));

TEST_F(Handlers, thatFailWithoutAMessageAreNamed) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Heard heard;
  heard.answer = QVN_DATABASE;
  const Handle subscription = onChanged(panel, heard);
  EXPECT_NE(QVN_OK, qvn_get(panel.get(), "Gone", Value().place()));
  const qvn_value value = text("esente");
  EXPECT_TRUE(failed(QVN_DATABASE, "the host's handler", qvn_let(panel.get(), "DESCRIZIONE", &value)));
}

TEST_F(Handlers, thatFailWithoutAMessageDoNotTakeThatOfAnother) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlFIDO", "fido");
  const Handle events = eventsOf(panel);
  Heard stumbling;
  stumbling.message = "what the first one passed over";
  Heard failing;
  failing.answer = QVN_DATABASE;
  const Handle first = onMancaDB(events, stumbling);
  const Handle second = onMancaDB(events, failing);
  EXPECT_TRUE(failed(QVN_DATABASE, "handler of MancaDB", qvn_call(events.get(), "FireMancaDB", nullptr, 0, nullptr)));

  const Handle another = create(onScreen, "ctlIVA", "iva");
  const Handle third = onChanged(another, stumbling);
  const Handle fourth = onChanged(another, failing);
  const qvn_value value = text("esente");
  EXPECT_TRUE(failed(QVN_DATABASE, "handler of a change", qvn_let(another.get(), "DESCRIZIONE", &value)));
}

TEST_F(Handlers, thatFailOtherwiseMakeAnInvalidCall) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Heard heard;
  const Handle subscription = onChanged(panel, heard);
  for (const std::int32_t answer :
       std::vector<std::int32_t>{QVN_INVALID_ARGUMENT, QVN_OUT_OF_MEMORY, QVN_UNKNOWN, -1, 4711}) {
    heard.answer = answer;
    const std::string written = std::to_string(answer);
    const qvn_value value = text(written);
    EXPECT_EQ(QVN_INVALID_CALL, qvn_let(panel.get(), "DESCRIZIONE", &value));
  }
}

TEST_F(Handlers, ofFailuresHearWhatTheOperatorsHandCaused) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  Heard heard;
  const Handle subscription = onFailed(panel, heard);
  call(panel, "Attiva");
  ASSERT_EQ(QVN_OK, qvn_operator_focus(panel.get(), "TxtCOD_COMP"));
  type(onScreen, "A");
  ASSERT_EQ(1U, heard.all.size());
  EXPECT_THAT(heard.all[0], testing::StartsWith("TxtCOD_COMP Change 8 "));
  EXPECT_EQ("A", show(panel, "TxtCOD_COMP", "Text")) << "the operator goes on";
}

TEST_F(Handlers, ofChangesThatFailUnderTheOperatorsHandAreHeardByThoseOfFailures) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlIVA", "iva");
  Heard changes;
  changes.answer = QVN_INVALID_CALL;
  changes.message = "not now";
  Heard failures;
  const Handle change = onChanged(panel, changes);
  const Handle failure = onFailed(panel, failures);
  call(panel, "Attiva");
  type(onScreen, "2");
  EXPECT_THAT(failures.all, ElementsAre("TxtCodice Change 6 not now"));
}

TEST_F(Handlers, mayDropThePanelAndTheirOwnSubscription) {
  const Handle onScreen = screen();
  qvn_object* panel = nullptr;
  ASSERT_EQ(QVN_OK, qvn_create(classObject("ctlIVA").get(), onScreen.get(), "iva", &panel));
  Heard first;
  Heard second;
  qvn_object* subscriptions[2] = {nullptr, nullptr};
  const auto handler = [](void* data, qvn_object*, const char* name) { return heardBy(data).note(name); };
  ASSERT_EQ(QVN_OK, qvn_on_changed(panel, handler, &first, &subscriptions[0]));
  ASSERT_EQ(QVN_OK, qvn_on_changed(panel, handler, &second, &subscriptions[1]));
  ASSERT_EQ(QVN_OK, qvn_call(panel, "Attiva", nullptr, 0, nullptr));
  first.toRelease = {panel, subscriptions[0]};
  type(onScreen, "2");
  EXPECT_THAT(first.all, ElementsAre("Codice"));
  EXPECT_THAT(second.all, IsEmpty()) << "nothing is told of a panel that is gone";
  qvn_release(subscriptions[1]);
}

TEST_F(Handlers, mayDropAPanelInTheMiddleOfItsChainOfRules) {
  const Handle onScreen = screen();
  qvn_object* panel = nullptr;
  ASSERT_EQ(QVN_OK, qvn_create(classObject("ctlIVA").get(), onScreen.get(), "iva", &panel));
  Heard heard;
  heard.toRelease = {panel};
  Handle subscription;
  const auto handler = [](void* data, qvn_object*, const char* name) { return heardBy(data).note(name); };
  ASSERT_EQ(QVN_OK, qvn_on_changed(panel, handler, &heard, subscription.place()));
  const qvn_value value = number(200);
  EXPECT_EQ(QVN_OK, qvn_let(panel, "IVA", &value)) << qvn_last_message();
  EXPECT_THAT(heard.all, ElementsAre("IVA"));
}

TEST_F(Handlers, mayDropThePanelAsItFails) {
  const Handle onScreen = screen();
  qvn_object* panel = nullptr;
  ASSERT_EQ(QVN_OK, qvn_create(classObject("ctlQ_POLIZZE").get(), onScreen.get(), "quota", &panel));
  Heard heard;
  heard.toRelease = {panel};
  Handle subscription;
  const auto handler = [](void* data, qvn_object*, const char* widget, const char*, std::int32_t, const char*) {
    heardBy(data).note(widget);
  };
  Handle second;
  for (Handle* one : {&subscription, &second}) {
    ASSERT_EQ(QVN_OK, qvn_on_failed(panel, handler, &heard, one->place()));
  }
  ASSERT_EQ(QVN_OK, qvn_call(panel, "Attiva", nullptr, 0, nullptr));
  ASSERT_EQ(QVN_OK, qvn_operator_focus(panel, "TxtCOD_COMP"));
  EXPECT_NE(QVN_UNKNOWN, qvn_operator_type(onScreen.get(), "AB"));
  EXPECT_THAT(heard.all, ElementsAre("TxtCOD_COMP"));
}

TEST_F(Handlers, mayDropAllThatThereIs) {
  qvn_object* onScreen = nullptr;
  qvn_object* panel = nullptr;
  ASSERT_EQ(QVN_OK, qvn_screen_create(&onScreen));
  ASSERT_EQ(QVN_OK, qvn_create(classObject("ctlIVA").get(), onScreen, "iva", &panel));
  ASSERT_EQ(QVN_OK, qvn_call(panel, "Attiva", nullptr, 0, nullptr));
  Heard heard;
  heard.toRelease = {panel, onScreen};
  Handle subscription;
  const auto handler = [](void* data, qvn_object*, const char* name) { return heardBy(data).note(name); };
  ASSERT_EQ(QVN_OK, qvn_on_changed(panel, handler, &heard, subscription.place()));
  EXPECT_EQ(QVN_OK, qvn_operator_type(onScreen, "2"));
  EXPECT_THAT(heard.all, ElementsAre("Codice"));
  subscription.reset();
  EXPECT_EQ(QVN_S_OK, DllCanUnloadNow());
  const Handle another = screen();
}

/// Two handlers in each other: the inner one drops the panel, and the outer one goes on with what it is lent.
struct Nested {
  qvn_object* panel = nullptr;
  int depth = 0;
  bool went = false;

  static std::int32_t heard(void* data, qvn_object* lent, const char*) {
    auto& nested = *static_cast<Nested*>(data);
    if (nested.depth++ > 0) {
      EXPECT_EQ(0, qvn_release(std::exchange(nested.panel, nullptr)));
      return QVN_OK;
    }
    const qvn_value inner = text("inner");
    EXPECT_EQ(QVN_OK, qvn_let(lent, "DESCRIZIONE", &inner)) << qvn_last_message();
    goOn(lent);
    nested.went = true;
    return QVN_OK;
  }

  static void goOn(qvn_object* lent) {
    Value value;
    const qvn_value ours = text("x");
    EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "the object is gone", qvn_get(lent, "DESCRIZIONE", value.place())));
    EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "the object is gone", qvn_let(lent, "DESCRIZIONE", &ours)));
    EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "the object is gone", qvn_call(lent, "Attiva", nullptr, 0, nullptr)));
    EXPECT_TRUE(
        failed(QVN_INVALID_ARGUMENT, "the object is gone", qvn_widget_get(lent, "TxtIVA", "Text", value.place())));
    EXPECT_EQ(0, qvn_addref(lent));
    EXPECT_EQ(0, qvn_release(lent));
    EXPECT_EQ(0, qvn_release(lent));
    qvn_member member{};
    EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "the object is gone", qvn_member_at(lent, 0, &member)));
    const char* name = nullptr;
    EXPECT_EQ(QVN_OK, qvn_class_of(lent, &name));
    EXPECT_STREQ("ctlIVA", name);
  }
};

TEST_F(Handlers, inWhichAnotherDropsThePanelAreToldThatItIsGone) {
  const Handle onScreen = screen();
  Nested nested;
  ASSERT_EQ(QVN_OK, qvn_create(classObject("ctlIVA").get(), onScreen.get(), "iva", &nested.panel));
  Handle subscription;
  ASSERT_EQ(QVN_OK, qvn_on_changed(nested.panel, Nested::heard, &nested, subscription.place()));
  const qvn_value outer = text("outer");
  EXPECT_EQ(QVN_OK, qvn_let(nested.panel, "DESCRIZIONE", &outer)) << qvn_last_message();
  EXPECT_TRUE(nested.went);
}

TEST_F(Handlers, ofMancaDBMayDropAllThatThereIs) {
  Belongings all;
  const auto handler = [](void* data) -> std::int32_t {
    static_cast<Belongings*>(data)->drop();
    return QVN_OK;
  };
  ASSERT_EQ(QVN_OK, qvn_on_manca_db(all.events.get(), handler, &all, all.subscription.place()));
  const qvn_value code = text("AGRI");
  EXPECT_EQ(QVN_DATABASE, qvn_let(all.panel.get(), "COD_COMP", &code));
  EXPECT_EQ(nullptr, all.panel.get());
  EXPECT_EQ(QVN_S_OK, DllCanUnloadNow());
}

TEST_F(Handlers, ofFailuresThatThrowAreLeftAlone) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  Handle subscription;
  int heard = 0;
  const auto handler = [](void* data, qvn_object*, const char*, const char*, std::int32_t, const char*) {
    ++*static_cast<int*>(data);
    throw std::string("the host's own");
  };
  ASSERT_EQ(QVN_OK, qvn_on_failed(panel.get(), handler, &heard, subscription.place()));
  call(panel, "Attiva");
  ASSERT_EQ(QVN_OK, qvn_operator_focus(panel.get(), "TxtCOD_COMP"));
  type(onScreen, "A");
  EXPECT_EQ(1, heard);
  EXPECT_EQ("A", show(panel, "TxtCOD_COMP", "Text"));
}

TEST_F(Handlers, mayOutliveWhatTheyHearOf) {
  Heard heard;
  Handle changes;
  Handle missing;
  {
    const Handle onScreen = screen();
    const Handle panel = create(onScreen, "ctlFIDO", "fido");
    changes = onChanged(panel, heard);
    missing = onMancaDB(eventsOf(panel), heard);
  }
  EXPECT_THAT(heard.all, IsEmpty());
}

TEST_F(Handlers, areRefusedWhereTheyCannotBe) {
  const Handle onScreen = screen();
  const Handle panel = create(onScreen, "ctlFIDO", "fido");
  Handle subscription;
  EXPECT_TRUE(
      failed(QVN_INVALID_ARGUMENT, "handler", qvn_on_changed(panel.get(), nullptr, nullptr, subscription.place())));
  EXPECT_TRUE(
      failed(QVN_INVALID_ARGUMENT, "handler", qvn_on_failed(panel.get(), nullptr, nullptr, subscription.place())));
  EXPECT_TRUE(
      failed(QVN_INVALID_ARGUMENT, "handler", qvn_on_form(onScreen.get(), nullptr, nullptr, subscription.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "handler",
                     qvn_on_manca_db(eventsOf(panel).get(), nullptr, nullptr, subscription.place())));
  const auto handler = [](void*, qvn_object*, const char*) -> std::int32_t { return QVN_OK; };
  EXPECT_TRUE(
      failed(QVN_INVALID_ARGUMENT, "no panel", qvn_on_changed(onScreen.get(), handler, nullptr, subscription.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_on_changed(panel.get(), handler, nullptr, nullptr)));
  const auto missing = [](void*) -> std::int32_t { return QVN_OK; };
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "no event object",
                     qvn_on_manca_db(panel.get(), missing, nullptr, subscription.place())));
  EXPECT_EQ(nullptr, subscription.get());
}

TEST_F(Handlers, ofMancaDBThatFailFailTheCall) {
  const Handle onScreen = screen();
  const Handle events = eventsOf(create(onScreen, "ctlFIDO", "fido"));
  Heard heard;
  heard.answer = QVN_DATABASE;
  heard.message = "the office is closed";
  const Handle subscription = onMancaDB(events, heard);
  EXPECT_TRUE(failed(QVN_DATABASE, "the office is closed", qvn_call(events.get(), "FireMancaDB", nullptr, 0, nullptr)));
}

TEST_F(Handlers, ofMancaDBThatRaiseItWithoutEndFail) {
  const Handle onScreen = screen();
  const Handle events = eventsOf(create(onScreen, "ctlFIDO", "fido"));
  Handle subscription;
  const auto handler = [](void* data) {
    return qvn_call(static_cast<qvn_object*>(data), "FireMancaDB", nullptr, 0, nullptr);
  };
  ASSERT_EQ(QVN_OK, qvn_on_manca_db(events.get(), handler, events.get(), subscription.place()));
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "without end", qvn_call(events.get(), "FireMancaDB", nullptr, 0, nullptr)));
}

}  // namespace

}  // namespace qvn::component_test
