// The routines beside the filters: selection, colours, replacement, forms.
#include <deque>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/skip_failing.h"
#include "tests/failure_matchers.h"
#include "tests/fields/field_bench.h"

namespace qvn::test {
namespace {

using namespace Gest_SCHEDE;

class FieldRoutines : public FieldBench {};
QVN_ON_EVERY_PLATFORM(FieldRoutines);

TEST_P(FieldRoutines, SelectTheWholeTextInCharacters) {
  for (const std::string text : {"", "A", "perché", "€ 1.234,56"}) {
    field("A").Text(text);
    field("A").SelStart(1);
    SelezionaTutto(field("A"));
    EXPECT_EQ(field("A").SelStart(), 0);
    const std::size_t characters = text == "perché" ? 6 : text == "€ 1.234,56" ? 10 : text.size();
    EXPECT_EQ(field("A").SelLength(), static_cast<std::int32_t>(characters)) << text;
  }
}

TEST_P(FieldRoutines, SelectTheWholeMaskOfADate) {
  SelezionaTutto(date());
  EXPECT_EQ(date().SelStart(), 0);
  EXPECT_EQ(date().SelLength(), 10);
}

TEST_P(FieldRoutines, PaintTheFocus) {
  struct State {
    std::int16_t state;
    std::uint32_t colour;
  };
  for (const State& s : {State{1, 16776960}, State{0, 16777215}, State{2, 65535}, State{7, 16777215},
                         State{-1, 16777215}, State{3, 16777215}}) {
    ColoreFuoco(field("A"), 1);
    ColoreFuoco(field("A"), s.state);
    EXPECT_EQ(field("A").BackColor(), s.colour) << s.state;
  }
  ColoreFuoco(date(), 1);
  EXPECT_EQ(date().BackColor(), 16776960U);
  ColoreFuoco(panel().widget("List"), 2);
  EXPECT_EQ(panel().widget("List").BackColor(), 65535U);
}

TEST(TestoSostituisci, ReplacesEveryOccurrenceInTheArgumentToo) {
  struct Case {
    std::string text;
    std::string find;
    std::string replacement;
    std::string becomes;
  };
  const std::vector<Case> cases{
      {"ABC", "'", "", "ABC"},  {"'''", "'", "", ""},         {"D'A'B'", "'", "", "DAB"},
      {"", "'", "", ""},        {"a.b.c", ".", ",", "a,b,c"}, {"aabb", "ab", "", ""},  // what closes up is found again
      {"AaA", "a", "x", "AxA"},                                                        // comparing exactly
      {"l'è", "è", "e", "l'e"},
  };
  for (const Case& c : cases) {
    std::string text = c.text;
    EXPECT_EQ(TestoSostituisci(text, c.find, c.replacement), c.becomes) << c.text;
    EXPECT_EQ(text, c.becomes);
  }
}

TEST(TestoSostituisci, RefusesWhatWouldNeverEnd) {
  std::string text = "a'b";
  EXPECT_FAILURE(TestoSostituisci(text, "'", "''"), FailureKind::InvalidCall, "''");
  EXPECT_EQ(text, "a'b");
  EXPECT_FAILURE(TestoSostituisci(text, "", "x"), FailureKind::InvalidCall, "never end");
  EXPECT_EQ(TestoSostituisci(text, "z", "zz"), "a'b");  // nothing to replace
}

TEST(SkipFailing, RunsTheNextWhereOneFails) {
  std::string ran;
  fields::skipFailing([&] { ran += "1"; },
                      [&] {
                        ran += "2";
                        throw Failure(FailureKind::InvalidCall, "no focus");
                      },
                      [&] { ran += "3"; });
  EXPECT_EQ(ran, "123");
}

/// A form that records what is written to it.
class RecordedForm final : public toolkit::Form {
 public:
  explicit RecordedForm(std::string name) : name_(std::move(name)) { placed.push_back({0, 0, 2160, 675}); }
  std::string_view Name() const override { return name_; }
  std::string Caption() const override { return {}; }
  void Caption(std::string_view) override {}
  toolkit::Place place() const override { return placed.back(); }
  void place(toolkit::Place place) override { placed.push_back(place); }
  void load() override {}
  void unload() override {}
  bool loaded() const override { return true; }
  void refresh() override {}
  void showModal() override {}
  void hide() override {}
  toolkit::Surface& surface() const override { throw Failure(FailureKind::InvalidCall, name_ + " has no widgets"); }

  std::vector<toolkit::Place> placed;

 private:
  std::string name_;
};

/// The platform under test with other forms and another screen.
class WithForms final : public toolkit::Platform, private toolkit::Forms {
 public:
  explicit WithForms(toolkit::Platform& base) : base_(base) {}
  std::string_view name() const override { return base_.name(); }
  toolkit::Capabilities capabilities() const override { return base_.capabilities(); }
  std::unique_ptr<toolkit::Surface> makeSurface(const toolkit::PanelLayout& layout, toolkit::Container& container,
                                                std::string panel) override {
    return base_.makeSurface(layout, container, std::move(panel));
  }
  std::unique_ptr<toolkit::Form> makeForm(const toolkit::FormLayout& layout, toolkit::Container& container) override {
    return base_.makeForm(layout, container);
  }
  toolkit::Widget* focused() const override { return base_.focused(); }
  const Locale& locale() const override { return base_.locale(); }
  const toolkit::Clock& clock() const override { return base_.clock(); }
  toolkit::ScreenSize screen() const override { return size; }
  void beep() override { base_.beep(); }
  const toolkit::Forms& forms() const override { return *this; }
  toolkit::Drivers& drivers() override { return base_.drivers(); }

  toolkit::ScreenSize size{15360, 11520};
  std::deque<RecordedForm> loaded;

 private:
  std::int32_t count() const override { return static_cast<std::int32_t>(loaded.size()); }
  toolkit::Form& at(std::int32_t index) const override {
    return const_cast<RecordedForm&>(loaded.at(static_cast<std::size_t>(index)));
  }

  toolkit::Platform& base_;
};

TEST_P(FieldRoutines, FindALoadedFormByItsNameInAnyCase) {
  EXPECT_EQ(FormCaricata("Lista"), 0);
  WithForms withForms(platform());
  Globale::install(withForms);
  EXPECT_EQ(FormCaricata("Lista"), 0);
  withForms.loaded.emplace_back("Ricerca");
  EXPECT_EQ(FormCaricata("Lista"), 0);
  withForms.loaded.emplace_back("Lista");
  EXPECT_EQ(FormCaricata("Lista"), 1);
  EXPECT_EQ(FormCaricata("LISTA"), 1);
  EXPECT_EQ(FormCaricata("ricerca"), 1);
  EXPECT_EQ(FormCaricata("List"), 0);
  EXPECT_EQ(FormCaricata(""), 0);
}

TEST_P(FieldRoutines, CentreAFormLeftEdgeFirst) {
  WithForms withForms(platform());
  Globale::install(withForms);
  RecordedForm form("Ricerca");
  CentraForm(form);
  ASSERT_EQ(form.placed.size(), 3U);
  EXPECT_EQ(form.placed[1], (toolkit::Place{6600, 0, 2160, 675}));
  EXPECT_EQ(form.placed[2], (toolkit::Place{6600, 5422, 2160, 675}));
  RecordedForm large("Larga");
  large.placed.back() = {0, 0, 20000, 12000};
  CentraForm(large);
  EXPECT_EQ(large.place(), (toolkit::Place{-2320, -240, 20000, 12000}));
}

}  // namespace
}  // namespace qvn::test
