// The rows of a pick list and their order.
#include <algorithm>
#include <random>

#include "tests/contract/contract_form.h"

namespace qvn::test {
namespace {

class Rows : public ContractForm {
 public:
  void prepare() override {
    pick().load();
    rows().addColumn("DENOM.", 2000);
    rows().addColumn("CODICE", 1200);
  }
  std::vector<std::string> shownIn(std::int32_t column) { return ContractForm::shownIn(rows(), column); }
};
QVN_ON_EVERY_PLATFORM_AS(Contract, Rows);

TEST_P(Rows, StandInColumnsWithCaptionAndWidth) {
  EXPECT_EQ(rows().columnCount(), 2);
  EXPECT_EQ(rows().columnCaption(0), "DENOM.");
  EXPECT_EQ(rows().columnWidth(1), 1200);
  EXPECT_FAILURE(rows().columnCaption(2), FailureKind::SubscriptOutOfRange, "Pick.Rows");
  EXPECT_FAILURE(rows().columnWidth(-1), FailureKind::SubscriptOutOfRange, "-1");
  rows().clearColumns();
  EXPECT_EQ(rows().columnCount(), 0);
}

TEST_P(Rows, AreAddedAndRead) {
  EXPECT_EQ(rows().rowCount(), 0);
  add({"Alfa", "1"});
  add({"Beta", "2"});
  EXPECT_EQ(rows().rowCount(), 2);
  EXPECT_EQ(rows().text(0, 0), "Alfa");
  EXPECT_EQ(rows().text(1, 1), "2");
  EXPECT_FAILURE(rows().text(2, 0), FailureKind::SubscriptOutOfRange, "Pick.Rows");
  EXPECT_FAILURE(rows().text(-1, 0), FailureKind::SubscriptOutOfRange, "-1");
  EXPECT_FAILURE(rows().text(0, 2), FailureKind::SubscriptOutOfRange, "2");
  EXPECT_FAILURE(rows().text(0, -1), FailureKind::SubscriptOutOfRange, "-1");
}

TEST_P(Rows, HaveOneTextAColumn) {
  EXPECT_FAILURE(add({"Alfa"}), FailureKind::InvalidCall, "Pick.Rows");
  EXPECT_FAILURE(add({"Alfa", "1", "x"}), FailureKind::InvalidCall, "3");
  EXPECT_EQ(rows().rowCount(), 0);
}

TEST_P(Rows, TakeAnyText) {
  const std::string large(1'000'000, 'x');
  const std::string_view zero("a\0b", 3);
  add({large, ""});
  add({"\xFFz", zero});
  add({"\uFFFD", "è"});
  EXPECT_EQ(rows().text(0, 0), large);
  EXPECT_EQ(rows().text(0, 1), "");
  EXPECT_THAT(shownIn(0), ElementsAre(large, "\uFFFD", "\uFFFDz"));
  EXPECT_EQ(rows().text(2, 1), zero);
}

TEST_P(Rows, StandInOrderOfTheFirstColumnAtFirst) {
  EXPECT_EQ(rows().SortKey(), 0);
  EXPECT_EQ(rows().SortOrder(), 0);
  add({"Milano", "2"});
  add({"Ancona", "3"});
  add({"Torino", "1"});
  EXPECT_THAT(shownIn(0), ElementsAre("Ancona", "Milano", "Torino"));
  add({"Bari", "0"});
  EXPECT_THAT(shownIn(0), ElementsAre("Ancona", "Bari", "Milano", "Torino"));
}

TEST_P(Rows, StandInOrderOfAnyColumnAndDirection) {
  add({"Milano", "2"});
  add({"Ancona", "3"});
  add({"Torino", "10"});
  rows().SortKey(1);
  EXPECT_EQ(rows().SortKey(), 1);
  EXPECT_THAT(shownIn(1), ElementsAre("10", "2", "3"));
  rows().SortOrder(1);
  EXPECT_EQ(rows().SortOrder(), 1);
  EXPECT_THAT(shownIn(1), ElementsAre("3", "2", "10"));
  rows().SortKey(0);
  EXPECT_THAT(shownIn(0), ElementsAre("Torino", "Milano", "Ancona"));
  rows().SortOrder(0);
  EXPECT_THAT(shownIn(0), ElementsAre("Ancona", "Milano", "Torino"));
}

TEST_P(Rows, RefuseAColumnOrADirectionThatThereIsNot) {
  EXPECT_FAILURE(rows().SortKey(2), FailureKind::SubscriptOutOfRange, "2");
  EXPECT_FAILURE(rows().SortKey(-1), FailureKind::SubscriptOutOfRange, "-1");
  EXPECT_FAILURE(rows().SortOrder(2), FailureKind::InvalidCall, "2");
  EXPECT_FAILURE(rows().SortOrder(-1), FailureKind::InvalidCall, "-1");
  EXPECT_EQ(rows().SortKey(), 0);
  EXPECT_EQ(rows().SortOrder(), 0);
}

TEST_P(Rows, CompareWithoutRegardToCase) {
  add({"b", ""});
  add({"C", ""});
  add({"A", ""});
  add({"È vero", ""});
  add({"è falso", ""});
  add({"Z", ""});
  EXPECT_THAT(shownIn(0), ElementsAre("A", "b", "C", "Z", "è falso", "È vero"));
}

TEST_P(Rows, CompareAsSmallLetters) {
  add({"a", ""});
  add({"_", ""});
  add({"A", ""});
  add({"×", ""});  // no letter, and beneath the letters with an accent
  add({"÷", ""});
  add({"ø", ""});
  add({"Ö", ""});
  add({"ý", ""});
  add({"Þ", ""});
  add({"À", ""});
  add({"ß", ""});  // no capital, though it stands behind the last of them
  EXPECT_THAT(shownIn(0), ElementsAre("_", "a", "A", "×", "ß", "À", "Ö", "÷", "ø", "ý", "Þ"));
}

TEST_P(Rows, AShorterTextStandsBeforeOneThatGoesOn) {
  add({"assicurazioni generali", ""});
  add({"ASSICURAZIONI", ""});
  add({"assicura", ""});
  add({"Assicur", ""});
  add({"", ""});
  add({std::string_view("assicur\0", 8), ""});
  EXPECT_THAT(shownIn(0), ElementsAre("", "Assicur", std::string("assicur\0", 8), "assicura", "ASSICURAZIONI",
                                      "assicurazioni generali"));
}

TEST_P(Rows, ThatCompareEqualStayAsTheyCameInEitherDirection) {
  add({"uguale a tutti gli altri", "1"});
  add({"prima", "2"});
  add({"UGUALE A TUTTI GLI ALTRI", "3"});
  add({"Uguale a tutti gli altri", "4"});
  EXPECT_THAT(shownIn(1), ElementsAre("2", "1", "3", "4"));
  rows().SortOrder(1);
  EXPECT_THAT(shownIn(1), ElementsAre("1", "3", "4", "2"));
  add({"uguale A tutti", "5"});
  add({"uguale a tutti gli altrI", "6"});
  EXPECT_THAT(shownIn(1), ElementsAre("1", "3", "4", "6", "5", "2"));
}

/// Beside a plain stable sort, on texts that share beginnings of every length.
TEST_P(Rows, ManyStandAsAPlainSortPutsThem) {
  const auto small = [](std::string text) {
    for (char& c : text) {
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 0x20);
    }
    return text;
  };
  std::mt19937 random(20261115);
  std::vector<std::pair<std::string, std::string>> model;
  for (int i = 0; i < 3000; ++i) {
    std::string text = std::string("ComPaGNia ASSICURATRICE ITALIANA").substr(0, random() % 33);
    for (auto left = random() % 3; left > 0; --left) text.push_back("aAbB zZ{["[random() % 9]);
    model.emplace_back(text, std::to_string(i));
    add({text, model.back().second});
  }
  const auto numbers = [&] {
    std::vector<std::string> result;
    result.reserve(model.size());
    for (const auto& row : model) result.push_back(row.second);
    return result;
  };
  auto came = model;
  std::ranges::stable_sort(model, [&](const auto& a, const auto& b) { return small(a.first) < small(b.first); });
  EXPECT_EQ(shownIn(1), numbers());
  model = came;
  std::ranges::stable_sort(model, [&](const auto& a, const auto& b) { return small(b.first) < small(a.first); });
  rows().SortOrder(1);
  EXPECT_EQ(shownIn(1), numbers());
}

TEST_P(Rows, AreSelectedByTheirPlaceInTheOrderShown) {
  EXPECT_EQ(rows().selected(), -1);
  add({"Milano", "2"});
  add({"Ancona", "3"});
  EXPECT_EQ(rows().selected(), -1);
  rows().select(0);
  EXPECT_EQ(rows().selected(), 0);
  EXPECT_EQ(rows().text(rows().selected(), 0), "Ancona");
  EXPECT_FAILURE(rows().select(2), FailureKind::SubscriptOutOfRange, "2");
  EXPECT_FAILURE(rows().select(-2), FailureKind::SubscriptOutOfRange, "-2");
  EXPECT_EQ(rows().selected(), 0);
  rows().select(-1);
  EXPECT_EQ(rows().selected(), -1);
}

TEST_P(Rows, TheSelectedOneStaysSelectedWhenTheOrderChanges) {
  add({"Milano", "2"});
  add({"Ancona", "3"});
  add({"Torino", "1"});
  rows().select(0);
  rows().SortKey(1);
  EXPECT_EQ(rows().selected(), 2);
  rows().SortOrder(1);
  EXPECT_EQ(rows().selected(), 0);
  add({"Bari", "9"});
  EXPECT_EQ(rows().selected(), 1);
  EXPECT_EQ(rows().text(rows().selected(), 0), "Ancona");
}

TEST_P(Rows, AreClearedWithTheSelection) {
  add({"Milano", "2"});
  rows().select(0);
  rows().clearRows();
  EXPECT_EQ(rows().rowCount(), 0);
  EXPECT_EQ(rows().selected(), -1);
  EXPECT_EQ(rows().columnCount(), 2);
  add({"Ancona", "3"});
  EXPECT_THAT(shownIn(0), ElementsAre("Ancona"));
  EXPECT_EQ(rows().selected(), -1);
}

TEST_P(Rows, StayWhereTheColumnsAreClearedAndAddedAnew) {
  rows().SortKey(1);
  add({"Milano", "2"});
  rows().clearColumns();
  EXPECT_EQ(rows().rowCount(), 1);
  EXPECT_EQ(rows().SortKey(), 1);
  EXPECT_FAILURE(rows().text(0, 0), FailureKind::SubscriptOutOfRange, "0");
  EXPECT_FAILURE(rows().SortKey(0), FailureKind::SubscriptOutOfRange, "0");
  for (const auto* caption : {"DESC.", "MASTRO", "CONTO"}) rows().addColumn(caption, 1000);
  add({"Banca", "1", "0001"});
  EXPECT_THAT(shownIn(0), ElementsAre("Banca", "Milano"));
  EXPECT_THAT(shownIn(2), ElementsAre("0001", ""));
  rows().clearColumns();
  rows().addColumn("DESC.", 1000);
  add({"Solo"});
  EXPECT_THAT(shownIn(0), ElementsAre("Solo", "Banca", "Milano")) << "those without a second text come first";
}

TEST_P(Rows, MayBeManyOfAnyLength) {
  std::string text;
  for (int i = 0; i < 2000; ++i) {
    text = std::to_string(1'000'000 + (i * 7919) % 2000).append(static_cast<std::size_t>(i) % 700, 'y');
    add({text, std::to_string(i)});
  }
  ASSERT_EQ(rows().rowCount(), 2000);
  for (int i = 0; i < 2000; ++i) {
    EXPECT_EQ(rows().text(i, 0).substr(0, 7), std::to_string(1'000'000 + i));
    const int came = std::stoi(rows().text(i, 1));
    EXPECT_EQ((came * 7919) % 2000, i);
    EXPECT_EQ(rows().text(i, 0).size(), 7U + static_cast<std::size_t>(came) % 700);
  }
}

TEST_P(Rows, ARowMayHaveNoText) {
  rows().clearColumns();
  for (int i = 0; i < 5000; ++i) add({});
  EXPECT_EQ(rows().rowCount(), 5000);
  rows().select(4999);
  EXPECT_EQ(rows().selected(), 4999);
}

TEST_P(Rows, KeysMoveTheSelection) {
  wirePick();
  pick().unload();
  const auto look = [&](std::string_view key, std::int32_t from) {
    pick().load();
    for (const auto* text : {"a", "b", "c"}) add({text, ""});
    rows().select(from);
    hands().layDown("Pick", {Act::key(std::string(key)), Act::key("{Enter}")});
    pick().showModal();
    const std::int32_t to = rows().selected();
    pick().unload();
    return to;
  };
  EXPECT_EQ(look("{Down}", 0), 1);
  EXPECT_EQ(look("{Down}", 2), 2);
  EXPECT_EQ(look("{Down}", -1), 0);
  EXPECT_EQ(look("{Up}", 2), 1);
  EXPECT_EQ(look("{Up}", 0), 0);
  EXPECT_EQ(look("{Up}", -1), 2);
  EXPECT_EQ(look("{Home}", 2), 0);
  EXPECT_EQ(look("{Home}", -1), 0);
  EXPECT_EQ(look("{End}", 0), 2);
  EXPECT_EQ(look("{End}", -1), 2);
  EXPECT_EQ(look("{Left}", 1), 1);
  EXPECT_EQ(look("{Delete}", 1), 1);
  EXPECT_EQ(look("x", 1), 1);
}

TEST_P(Rows, KeysOnAnEmptyListDoNothing) {
  hands().layDown("Pick",
                  {Act::key("{Down}"), Act::key("{Up}"), Act::key("{Home}"), Act::key("{End}"), Act::click("Other")});
  pick().surface().button("Other").Click = [this] {
    EXPECT_EQ(rows().selected(), -1);
    heard.emplace_back("seen");
  };
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "seen", "unload Pick"));
}

TEST_P(Rows, RaiseKeyPressForCharactersOnly) {
  rows().KeyPress = [this](std::int16_t& code) { heard.push_back("key " + std::to_string(code)); };
  hands().layDown("Pick", {Act::key("a"), Act::key("è"), Act::key("{Backspace}"), Act::key("{Down}"),
                           Act::key("{Left}"), Act::key("{Delete}"), Act::key("{Enter}"), Act::key("{Escape}")});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "key 97", "key 232", "key 8", "key 13", "key 27", "unload Pick"));
}

TEST_P(Rows, AreClickedByTheHand) {
  add({"b", "1"});
  add({"a", "2"});
  rows().DblClick = [this] { heard.push_back("double at " + std::to_string(rows().selected())); };
  rows().ColumnClick = [this](std::int16_t column) { heard.push_back("column " + std::to_string(column)); };
  pick().surface().button("Other").Click = [this] {
    heard.push_back("selected " + std::to_string(rows().selected()) + " " + rows().text(rows().selected(), 0));
  };
  hands().layDown("Pick", {Act::row(1), Act::click("Other"), Act::doubleClick(0), Act::column(2), Act::column(1)});
  heard.clear();
  pick().showModal();
  EXPECT_THAT(heard, ElementsAre("modal Pick", "selected 1 b", "double at 0", "column 2", "column 1", "unload Pick"));
}

TEST_P(Rows, TakeTheFocusWhenClicked) {
  add({"b", "1"});
  rows().DblClick = [this] { EXPECT_TRUE(rows().hasFocus()); };
  toolkit::CommandButton& other = pick().surface().button("Other");
  other.Click = [&] { EXPECT_TRUE(other.hasFocus()); };
  int keys = 0;
  rows().KeyPress = [&](std::int16_t&) { ++keys; };
  hands().layDown("Pick", {Act::click("Other"), Act::key("x"), Act::doubleClick(0), Act::key("x")});
  pick().showModal();
  EXPECT_EQ(keys, 1);
}

TEST_P(Rows, AreWhiteAndStandOnPanelsToo) {
  EXPECT_EQ(rows().BackColor(), toolkit::kWhite);
  const auto alone = platform().makeSurface(kPickForm.inside, container(), "p");
  toolkit::ListView& list = alone->listView("Rows");
  list.SetFocus();
  EXPECT_TRUE(list.hasFocus());
  EXPECT_THAT(heard, testing::Contains("got Rows"));
  list.addColumn("a", 1);
  list.KeyPress = [this](std::int16_t& code) { heard.push_back("key " + std::to_string(code)); };
  hands().type("a{Enter}");
  EXPECT_THAT(heard, testing::IsSupersetOf({"key 97", "key 13"}));
}

}  // namespace
}  // namespace qvn::test
