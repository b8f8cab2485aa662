// What plain fields have alike.
#include "qvn/fields/text_field.h"

#include <gtest/gtest.h>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/shown_number.h"
#include "tests/failure_matchers.h"
#include "tests/fields/field_bench.h"
#include "tests/fields/stub_field.h"

namespace qvn::test {
namespace {

class TextFields : public FieldBench {};
QVN_ON_EVERY_PLATFORM(TextFields);

TEST_P(TextFields, AreWrittenOnlyWithAnotherText) {
  StubTextBox box(panel(), kBenchWidgets[3]);
  fields::show(box, "A");
  EXPECT_EQ(box.textWrites, 1);
  fields::show(box, "A");
  EXPECT_EQ(box.textWrites, 1);
  fields::show(box, "a");
  EXPECT_EQ(box.textWrites, 2);
  EXPECT_EQ(box.text, "a");
}

TEST_P(TextFields, AreReadInThePlatformsLocale) {
  field("A").Text("7.4");
  EXPECT_FAILURE(fields::byteOf(field("A")), FailureKind::TypeMismatch, "A: ");
  setLocale({.decimalSign = '.', .groupingSign = ','});
  EXPECT_EQ(fields::byteOf(field("A")), 7);
}

TEST_P(TextFields, ChangesAreAnnouncedUnlessThePanelWasDropped) {
  auto surface = platform().makeSurface(kBenchLayout, container(), "altro");
  const toolkit::Surface::Hold hold(*surface);
  toolkit::TextBox& box = surface->textBox("A");
  fields::announce(box, "A");
  EXPECT_EQ(container().notices, std::vector<std::string>{"A"});
  surface.reset();
  fields::announce(box, "A");
  EXPECT_EQ(container().notices, std::vector<std::string>{"A"});
}

TEST_P(TextFields, APercentIsAnnouncedBeforeItIsCorrected) {
  fields::wirePercent(field("A"), "P");
  std::string seen;
  container().onNotice = [&](toolkit::Surface&, std::string_view name) {
    seen.append(name).append("=").append(field("A").Text()).append(" ");
  };
  field("A").Text("250");
  EXPECT_EQ(seen, "P=250 P=100 ");
  seen.clear();
  field("A").Text("");
  EXPECT_EQ(seen, "P= P=0 ");
  seen.clear();
  EXPECT_FAILURE(field("A").Text("dieci"), FailureKind::TypeMismatch, "A: ");
  EXPECT_EQ(seen, "P=dieci ");
}

TEST_P(TextFields, APercentBeyondSixteenBitsFailsAndStays) {
  fields::wirePercent(field("A"), "P");
  EXPECT_FAILURE(field("A").Text("40000"), FailureKind::Overflow, "40000");
  EXPECT_EQ(field("A").Text(), "40000");
  field("A").Text("32767");
  EXPECT_EQ(field("A").Text(), "100");
  field("A").Text("100,5");  // a tie goes to the even 100
  EXPECT_EQ(field("A").Text(), "100,5");
  field("A").Text("100,6");
  EXPECT_EQ(field("A").Text(), "100");
  field("A").Text("-5");  // only what is above 100 is corrected
  EXPECT_EQ(field("A").Text(), "-5");
}

TEST_P(TextFields, AFailingEnterLeavesNoKeyAndIsReported) {
  panel().widget("List").Enabled(false);
  panel().frame("Other").Enabled(false);
  fields::wire(field("B"), "B", Gest_SCHEDE::FiltroTesto, 5);
  field("B").SetFocus();
  std::int16_t key = 13;
  EXPECT_FAILURE(Gest_SCHEDE::FiltroTesto(field("B"), key, 5), FailureKind::InvalidCall, "Check");
  EXPECT_EQ(key, 0);
  hands().type("a{Enter}b");
  EXPECT_EQ(field("B").Text(), "AB");
  ASSERT_EQ(container().failures.size(), 1U);
  EXPECT_EQ(container().failures[0].widget, "B");
  EXPECT_EQ(container().failures[0].event, "KeyPress");
  EXPECT_EQ(container().failures[0].kind, FailureKind::InvalidCall);
}

TEST_P(TextFields, ABlankDateIsCompletedThroughItsValueAndAPartOfOneThroughItsText) {
  today(Date::of(15, 11, 2026).value());
  StubDate blank(panel(), kBenchWidgets[9]);
  blank.text = "##/##/####";
  blank.value = Null{};
  Gest_SCHEDE::CompletaData(blank);
  EXPECT_EQ(blank.value, Variant(std::string("15/11/2026")));
  EXPECT_EQ(blank.valueWrites, 1);
  EXPECT_EQ(blank.textWrites, 0);
  StubDate part(panel(), kBenchWidgets[9]);
  part.text = "3#/##/####";
  part.value = Null{};
  Gest_SCHEDE::CompletaData(part);
  EXPECT_EQ(part.text, "03/11/2026");
  EXPECT_EQ(part.valueWrites, 0);
}

TEST_P(TextFields, ADateThatTheControlGivesAsADateIsWhole) {
  StubDate whole(panel(), kBenchWidgets[9]);
  whole.text = "12/03/####";
  whole.value = Date::of(12, 3, 2024).value();
  Gest_SCHEDE::CompletaData(whole);
  EXPECT_EQ(whole.textWrites + whole.valueWrites, 0);
}

}  // namespace
}  // namespace qvn::test
