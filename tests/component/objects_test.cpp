// Class objects, references, screens, and when the library may go.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/component/component.h"

namespace qvn::component_test {

namespace {

using testing::ElementsAre;

std::string classOf(const Handle& object) {
  const char* name = nullptr;
  EXPECT_EQ(QVN_OK, qvn_class_of(object.get(), &name));
  return name;
}

std::vector<std::string> classNames() {
  std::vector<std::string> names;
  const char* name = nullptr;
  for (std::int32_t i = 0; qvn_class_at(i, &name) == QVN_OK; ++i) names.emplace_back(name);
  return names;
}

using ClassObjects = Component;
using References = Component;
using Screens = Component;
using Unloading = Component;

TEST_F(ClassObjects, areThereForTheSeventeenPanelsAndTheEventObject) {
  EXPECT_THAT(classNames(), ElementsAre("ctlDATI_MOVIMENTI", "ctlESTRATTI", "ctlFIDO", "ctlINS_IVA", "ctlINS_MOVIMENTI",
                                        "ctlIVA", "ctlMOVIMENTI", "ctlPROV_POLIZZE", "ctlQ_POLIZZE", "ctlQ_SINISTRI",
                                        "ctlRAMI", "ctlRICERCA", "ctlRIC_SINISTRI", "ctlSOSPESI", "ctlSTP_CONTABILE",
                                        "ctlSTP_GIORNALE", "ctlSTP_MOVIMENTI", "clsQVN_Eventi"));
  const Handle onScreen = screen();
  for (const std::string& name : classNames()) {
    EXPECT_EQ("class", classOf(classObject(name.c_str())));
    EXPECT_EQ(name, classOf(create(onScreen, name.c_str(), "it")));
  }
}

TEST_F(ClassObjects, areListedWithinTheirNumber) {
  const char* name = "untouched";
  EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "18", qvn_class_at(18, &name)));
  EXPECT_EQ(nullptr, name);
  EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "-1", qvn_class_at(-1, &name)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_class_at(0, nullptr)));
}

TEST_F(ClassObjects, areFoundWithoutRegardToCase) {
  const Handle onScreen = screen();
  EXPECT_EQ("ctlIVA", classOf(create(onScreen, "CTLiva", "iva")));
  EXPECT_EQ("clsQVN_Eventi", classOf(create(onScreen, "clsqvn_eventi", "eventi")));
}

TEST_F(ClassObjects, areRefusedByTheCodesOfTheirWorld) {
  int marker = 0;
  void* object = &marker;
  EXPECT_EQ(QVN_CLASS_E_CLASSNOTAVAILABLE, DllGetClassObject("ctlGONE", QVN_CLASS_INTERFACE, &object));
  EXPECT_EQ(nullptr, object);
  EXPECT_EQ(QVN_E_NOINTERFACE, DllGetClassObject("ctlIVA", "another", &object));
  EXPECT_EQ(QVN_E_POINTER, DllGetClassObject(nullptr, QVN_CLASS_INTERFACE, &object));
  EXPECT_EQ(QVN_E_POINTER, DllGetClassObject("ctlIVA", nullptr, &object));
  EXPECT_EQ(QVN_E_POINTER, DllGetClassObject("ctlIVA", QVN_CLASS_INTERFACE, nullptr));
}

TEST_F(ClassObjects, leaveTheMessageOfTheirOwnCall) {
  const auto stale = [] { EXPECT_NE(QVN_OK, qvn_class_of(nullptr, nullptr)); };
  void* object = nullptr;
  DllGetClassObject("ctlGONE", QVN_CLASS_INTERFACE, &object);
  EXPECT_STREQ("there is no class \"ctlGONE\"", qvn_last_message());
  DllGetClassObject("ctlIVA", "another", &object);
  EXPECT_STREQ("a class object has no interface \"another\"", qvn_last_message());
  DllGetClassObject(nullptr, QVN_CLASS_INTERFACE, &object);
  EXPECT_STREQ("the class's name is null", qvn_last_message());
  DllGetClassObject("ctlIVA", nullptr, &object);
  EXPECT_STREQ("the interface's name is null", qvn_last_message());
  DllGetClassObject("ctlIVA", QVN_CLASS_INTERFACE, nullptr);
  EXPECT_STREQ("the place for the object is null", qvn_last_message());
  stale();
  const Handle made = classObject("ctlIVA");
  EXPECT_STREQ("", qvn_last_message());
  for (const auto entry : {DllRegisterServer, DllUnregisterServer, DllCanUnloadNow}) {
    stale();
    EXPECT_EQ(QVN_S_FALSE, entry());
    EXPECT_STREQ("", qvn_last_message());
  }
}

TEST_F(ClassObjects, bearTheCodesOfTheirWorld) {
  EXPECT_EQ(0x80004002U, static_cast<std::uint32_t>(QVN_E_NOINTERFACE));
  EXPECT_EQ(0x80004003U, static_cast<std::uint32_t>(QVN_E_POINTER));
  EXPECT_EQ(0x8000FFFFU, static_cast<std::uint32_t>(QVN_E_UNEXPECTED));
  EXPECT_EQ(0x8007000EU, static_cast<std::uint32_t>(QVN_E_OUTOFMEMORY));
  EXPECT_EQ(0x80040111U, static_cast<std::uint32_t>(QVN_CLASS_E_CLASSNOTAVAILABLE));
  EXPECT_EQ(0x80040201U, static_cast<std::uint32_t>(QVN_SELFREG_E_CLASS));
}

TEST_F(ClassObjects, createPanelsOnAScreenUnderAName) {
  const Handle onScreen = screen();
  const Handle made = classObject("ctlIVA");
  Handle panel;
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "screen", qvn_create(made.get(), nullptr, "iva", panel.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "no screen", qvn_create(made.get(), made.get(), "iva", panel.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "name", qvn_create(made.get(), onScreen.get(), nullptr, panel.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_create(made.get(), onScreen.get(), "iva", nullptr)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "no class", qvn_create(onScreen.get(), onScreen.get(), "", panel.place())));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "class", qvn_create(nullptr, onScreen.get(), "iva", panel.place())));
  EXPECT_EQ(nullptr, panel.get());
}

TEST_F(References, areCounted) {
  const Handle onScreen = screen();
  qvn_object* panel = nullptr;
  ASSERT_EQ(QVN_OK, qvn_create(classObject("ctlIVA").get(), onScreen.get(), "iva", &panel));
  EXPECT_EQ(2, qvn_addref(panel));
  EXPECT_EQ(3, qvn_addref(panel));
  EXPECT_EQ(2, qvn_release(panel));
  EXPECT_EQ(1, qvn_release(panel));
  EXPECT_EQ(0, qvn_release(panel));
}

TEST_F(References, toNothingAreNone) {
  EXPECT_EQ(0, qvn_addref(nullptr));
  EXPECT_EQ(0, qvn_release(nullptr));
  const char* name = nullptr;
  name = "former";
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_class_of(nullptr, &name)));
  EXPECT_EQ(nullptr, name);
}

TEST_F(Screens, areOneAtATime) {
  Handle first = screen();
  Handle second;
  EXPECT_TRUE(failed(QVN_INVALID_CALL, "another screen", qvn_screen_create(second.place())));
  EXPECT_EQ(nullptr, second.get());
  first.reset();
  EXPECT_EQ(QVN_OK, qvn_screen_create(second.place()));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "null", qvn_screen_create(nullptr)));
}

TEST_F(Screens, areKeptByTheirPanels) {
  Handle onScreen = screen();
  Handle panel = create(onScreen, "ctlIVA", "iva");
  onScreen.reset();
  let(panel, "DESCRIZIONE", text("esente"));
  EXPECT_EQ("esente", get(panel, "DESCRIZIONE").text());
  EXPECT_EQ(QVN_INVALID_CALL, qvn_screen_create(onScreen.place()));
  panel.reset();
  EXPECT_EQ(QVN_OK, qvn_screen_create(onScreen.place()));
}

TEST_F(Screens, fixTheDayThatDateFieldsComplete) {
  const Handle onScreen = screen();
  ASSERT_EQ(QVN_OK, qvn_screen_today(onScreen.get(), 46347));
  const Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  call(panel, "Attiva");
  ASSERT_EQ(QVN_OK, qvn_operator_focus(panel.get(), "TxtD_RIMESSA"));
  type(onScreen, "{Enter}");
  EXPECT_EQ("21/11/2026", show(panel, "TxtD_RIMESSA", "Text"));
  EXPECT_TRUE(failed(QVN_OVERFLOW, "", qvn_screen_today(onScreen.get(), 4'000'000)));
  EXPECT_TRUE(failed(QVN_INVALID_ARGUMENT, "no screen", qvn_screen_today(panel.get(), 0)));
}

TEST_F(Unloading, waitsForEveryKindOfObject) {
  EXPECT_EQ(QVN_S_OK, DllCanUnloadNow());
  Handle object = classObject("ctlQ_POLIZZE");
  EXPECT_EQ(QVN_S_FALSE, DllCanUnloadNow());
  object.reset();
  EXPECT_EQ(QVN_S_OK, DllCanUnloadNow());

  Handle onScreen = screen();
  EXPECT_EQ(QVN_S_FALSE, DllCanUnloadNow());
  Handle panel = create(onScreen, "ctlQ_POLIZZE", "quota");
  onScreen.reset();
  EXPECT_EQ(QVN_S_FALSE, DllCanUnloadNow());
  Handle events = eventsOf(panel);
  panel.reset();
  EXPECT_EQ(QVN_S_FALSE, DllCanUnloadNow());
  Handle subscription;
  ASSERT_EQ(QVN_OK, qvn_on_manca_db(
                        events.get(), [](void*) -> std::int32_t { return QVN_OK; }, nullptr, subscription.place()));
  events.reset();
  EXPECT_EQ(QVN_S_FALSE, DllCanUnloadNow());
  subscription.reset();
  EXPECT_EQ(QVN_S_OK, DllCanUnloadNow());
}

TEST_F(Unloading, waitsForAReferenceInAValue) {
  Value value;
  {
    const Handle onScreen = screen();
    const Handle panel = create(onScreen, "ctlFIDO", "fido");
    ASSERT_EQ(QVN_OK, qvn_get(panel.get(), "Events", value.place()));
  }
  EXPECT_EQ(QVN_S_FALSE, DllCanUnloadNow());
  qvn_value_clear(value.place());
  EXPECT_EQ(QVN_S_OK, DllCanUnloadNow());
}

TEST_F(Unloading, waitsForACallUnderWay) {
  Handle onScreen = screen();
  struct Dropping {
    qvn_object* panel = nullptr;
    std::int32_t left = -1;
    std::int32_t mayGo = -1;
  } dropping;
  ASSERT_EQ(QVN_OK, qvn_create(classObject("ctlIVA").get(), onScreen.get(), "iva", &dropping.panel));
  onScreen.reset();
  Handle subscription;
  const auto drop = [](void* data, qvn_object* panel, const char*) -> std::int32_t {
    auto& noted = *static_cast<Dropping*>(data);
    noted.left = qvn_release(panel);
    noted.mayGo = DllCanUnloadNow();
    return QVN_OK;
  };
  ASSERT_EQ(QVN_OK, qvn_on_changed(dropping.panel, drop, &dropping, subscription.place()));
  const qvn_value value = text("esente");
  EXPECT_EQ(QVN_OK, qvn_let(dropping.panel, "DESCRIZIONE", &value));
  EXPECT_EQ(0, dropping.left);
  EXPECT_EQ(QVN_S_FALSE, dropping.mayGo);
  subscription.reset();
  EXPECT_EQ(QVN_S_OK, DllCanUnloadNow()) << "the panel took its screen with it";
}

}  // namespace

}  // namespace qvn::component_test
