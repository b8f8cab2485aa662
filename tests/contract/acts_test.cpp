// Acts that cannot be done, and the pictures of forms.
#include "tests/contract/contract_form.h"

namespace qvn::test {
namespace {

class Acts : public ContractForm {
 public:
  /// Lets the act be done at a pick list with two rows and two columns, and returns why it could not be done. What
  /// comes behind it must not happen, and the form be closed.
  FailedAct failure(const Act& act, toolkit::Form& form) {
    hands().layDown(form.Name(), {act, Act::key("z")});
    form.showModal();
    EXPECT_FALSE(form.loaded());
    EXPECT_THAT(heard, testing::Not(testing::Contains("key 122")));
    std::vector<FailedAct> failed = hands().failedActs();
    EXPECT_EQ(failed.size(), 1U);
    EXPECT_THAT(hands().failedActs(), IsEmpty());
    if (failed.empty()) return {.form = "", .act = {}, .failure = Failure(FailureKind::Overflow, "none")};
    return failed.front();
  }
  FailedAct failure(const Act& act) {
    pick().load();
    rows().addColumn("A", 100);
    rows().addColumn("B", 100);
    add({"a", "b"});
    add({"c", "d"});
    rows().KeyPress = [this](std::int16_t& code) { heard.push_back("key " + std::to_string(code)); };
    FailedAct failed = failure(act, pick());
    EXPECT_EQ(failed.form, "Pick");
    EXPECT_EQ(failed.act.kind, act.kind);
    EXPECT_EQ(failed.act.number, act.number);
    EXPECT_EQ(failed.act.text, act.text);
    return failed;
  }
};
QVN_ON_EVERY_PLATFORM_AS(Contract, Acts);

/// A field before a list, and two buttons of one place in tab order.
constexpr std::array<toolkit::WidgetLayout, 4> kGuardWidgets{{
    {.name = "Rows", .kind = toolkit::WidgetKind::ListView, .tabIndex = 2, .place = {100, 500, 2000, 900}},
    {.name = "Guard", .tabIndex = 1, .place = {100, 100, 900, 315}},
    {.name = "Twin", .tabIndex = 1, .place = {1100, 100, 900, 315}},
    {.name = "Third", .tabIndex = 1, .place = {2100, 100, 900, 315}},
}};
constexpr toolkit::FormLayout kGuarded{
    .caption = "Guardia", .inside = {.name = "Guarded", .width = 3100, .height = 1500, .widgets = kGuardWidgets}};

class ActsAtAGuardedList : public ContractForm {
 public:
  void prepare() override {
    form_ = make(kGuarded);
    form_->load();
    list().addColumn("A", 100);
    list().addRow(std::array<std::string_view, 1>{"a"});
    list().DblClick = hears("double");
    list().ColumnClick = [this](std::int16_t) { heard.emplace_back("column"); };
    list().KeyPress = [this](std::int16_t&) { heard.emplace_back("key"); };
    form_->Unload = [this] { heard.push_back("selected " + std::to_string(list().selected())); };
    heard.clear();
  }

  toolkit::Form& form() { return *form_; }
  toolkit::ListView& list() { return form_->surface().listView("Rows"); }
  toolkit::TextBox& guard(std::string_view name = "Guard") { return form_->surface().textBox(name); }

 private:
  std::unique_ptr<toolkit::Form> form_;
};
QVN_ON_EVERY_PLATFORM_AS(Contract, ActsAtAGuardedList);

TEST_P(ActsAtAGuardedList, DoNothingWhereItDoesNotGetTheFocus) {
  int kept = 0;
  guard().LostFocus = [&] {
    ++kept;
    guard().SetFocus();
  };
  hands().layDown("Guarded", {Act::row(0), Act::doubleClick(0), Act::column(1), Act::key("x")});
  form().showModal();
  EXPECT_EQ(kept, 3);
  EXPECT_THAT(heard, ElementsAre("modal Guarded", "selected -1", "unload Guarded"));
  EXPECT_THAT(hands().failedActs(), IsEmpty());
}

TEST_P(ActsAtAGuardedList, DoNothingWhereTheRowVanishesOnTheWay) {
  for (const Act& act : {Act::row(0), Act::doubleClick(0)}) {
    prepare();
    guard().LostFocus = [this] { list().clearRows(); };
    hands().layDown("Guarded", {act, Act::key("x")});
    form().showModal();
    EXPECT_THAT(heard, ElementsAre("modal Guarded", "key", "selected -1", "unload Guarded"));
    EXPECT_THAT(hands().failedActs(), IsEmpty());
  }
}

TEST_P(ActsAtAGuardedList, BeginAtTheFirstOfThoseWithTheSameTabIndex) {
  for (const auto* name : {"Guard", "Twin", "Third"}) guard(name).GotFocus = hears(std::string("got ") + name);
  form().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Guarded", "got Guard", "selected -1", "unload Guarded"));
}

void expectFailure(const FailedAct& failed, FailureKind kind, std::string_view words) {
  EXPECT_EQ(failed.failure.kind(), kind) << failed.failure.what();
  EXPECT_THAT(failed.failure.what(), testing::HasSubstr(std::string(words)));
}

TEST_P(Acts, OnRowsThatAreNotThereFail) {
  expectFailure(failure(Act::row(2)), FailureKind::SubscriptOutOfRange, "Pick.Rows");
  expectFailure(failure(Act::row(-1)), FailureKind::SubscriptOutOfRange, "-1");
  expectFailure(failure(Act::doubleClick(2)), FailureKind::SubscriptOutOfRange, "2");
  expectFailure(failure(Act::doubleClick(-2147483647 - 1)), FailureKind::SubscriptOutOfRange, "Pick.Rows");
}

TEST_P(Acts, OnColumnsThatAreNotThereFail) {
  expectFailure(failure(Act::column(0)), FailureKind::SubscriptOutOfRange, "0");
  expectFailure(failure(Act::column(3)), FailureKind::SubscriptOutOfRange, "3");
  expectFailure(failure(Act::column(-2147483647 - 1)), FailureKind::SubscriptOutOfRange, "Pick.Rows");
}

TEST_P(Acts, OnWidgetsThatAreNotThereFail) {
  expectFailure(failure(Act::click("ok")), FailureKind::NoSuchMember, "\"ok\"");
  expectFailure(failure(Act::click("Rows")), FailureKind::InvalidCall, "Pick.Rows");
}

TEST_P(Acts, WithKeysThatAreNotThereFail) {
  expectFailure(failure(Act::key("{Inter}")), FailureKind::InvalidCall, "{Inter}");
  expectFailure(failure(Act::key("ab")), FailureKind::InvalidCall, "ab");
  expectFailure(failure(Act::key("")), FailureKind::InvalidCall, "one key");
}

TEST_P(Acts, OnRowsOfAFormWithoutAListFail) {
  expectFailure(failure(Act::row(0), ask()), FailureKind::InvalidCall, "Ask");
}

TEST_P(Acts, OnADisabledButtonDoNothing) {
  wirePick();
  pick().load();
  pick().surface().button("Ok").Enabled(false);
  hands().layDown("Pick", {Act::click("Ok"), Act::click("Cancel")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "cancel", "unload Pick"));
}

TEST_P(Acts, GoOnAfterAHandlerThatFails) {
  pick().load();
  pick().surface().button("Ok").Click = fails("ok");
  pick().surface().button("Other").Click = hears("other");
  hands().layDown("Pick", {Act::click("Ok"), Act::click("Other")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "other", "unload Pick"));
  EXPECT_THAT(reported(), ElementsAre("Pick Ok Click: ok"));
}

TEST_P(Acts, PicturesAreTakenOnlyWhereWanted) {
  hands().layDown("Pick", {Act::look()});
  pick().showModal();
  EXPECT_THAT(hands().shown(), IsEmpty());
  hands().takePictures(true);
  hands().layDown("Pick", {Act::look()});
  pick().showModal();
  EXPECT_EQ(hands().shown().size(), 2U);
  EXPECT_THAT(hands().shown(), IsEmpty());
  hands().takePictures(false);
  pick().showModal();
  EXPECT_THAT(hands().shown(), IsEmpty());
}

TEST_P(Acts, PicturesShowAListAsItStands) {
  wirePick();
  pick().load();
  pick().Caption("Elenco");
  add({"Milano", "2"});
  add({"ancona", "3"});
  rows().ColumnClick = [this](std::int16_t column) {
    rows().SortKey(static_cast<std::int16_t>(column - 1));
    pick().Caption("Ordinato");
  };
  hands().takePictures(true);
  hands().layDown("Pick", {Act::row(1), Act::column(2), Act::look(), Act::click("Ok")});
  pick().showModal();
  rows().clearRows();
  const std::vector<FormPicture> shown = hands().shown();
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0].form, "Pick");
  EXPECT_EQ(shown[0].caption, "Elenco");
  EXPECT_EQ(shown[0].shows, FormPicture::Shows::List);
  ASSERT_EQ(shown[0].columns.size(), 2U);
  EXPECT_EQ(shown[0].columns[0].caption, "DENOM.");
  EXPECT_EQ(shown[0].columns[1].width, 1200);
  EXPECT_EQ(shown[0].rowCount(), 2U);
  EXPECT_EQ(shown[0].cell(1, 0), "Milano");
  EXPECT_THAT(shown[0].cells, ElementsAre("ancona", "3", "Milano", "2"));
  EXPECT_EQ(shown[0].selected, -1);
  EXPECT_EQ(shown[1].caption, "Ordinato");
  EXPECT_THAT(shown[1].cells, ElementsAre("Milano", "2", "ancona", "3"));
  EXPECT_EQ(shown[1].selected, 0);
}

TEST_P(Acts, TheFirstPictureIsTakenOnceTheFocusIsThere) {
  ask().load();
  field().GotFocus = [this] { ask().Caption("Pronta"); };
  hands().takePictures(true);
  ask().showModal();
  const std::vector<FormPicture> shown = hands().shown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].caption, "Pronta");
}

TEST_P(Acts, PicturesOfSeveralFormsStandInTurn) {
  ask().load();
  field().KeyPress = [this](std::int16_t&) { pick().showModal(); };
  hands().takePictures(true);
  hands().layDown("Ask", {Act::key("?"), Act::look()});
  ask().showModal();
  const std::vector<FormPicture> shown = hands().shown();
  std::vector<std::string> forms;
  forms.reserve(shown.size());
  for (const FormPicture& picture : shown) forms.push_back(picture.form);
  EXPECT_THAT(forms, ElementsAre("Ask", "Pick", "Ask"));
}

TEST_P(Acts, PicturesOfOtherFormsShowTheirCaption) {
  hands().takePictures(true);
  ask().showModal();
  const std::vector<FormPicture> shown = hands().shown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].caption, "Domanda");
  EXPECT_EQ(shown[0].shows, FormPicture::Shows::Nothing);
  EXPECT_EQ(shown[0].rowCount(), 0U);
}

}  // namespace
}  // namespace qvn::test
