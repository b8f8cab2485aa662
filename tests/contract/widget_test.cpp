// What every widget has: its row of the layout, its place, its colours; and the surface that lists them.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(Widget);

TEST_P(Widget, StandsInTheOrderOfTheLayout) {
  ASSERT_EQ(panel().widgets().size(), kContractWidgets.size());
  for (std::size_t i = 0; i < kContractWidgets.size(); ++i) {
    const toolkit::Widget& each = *panel().widgets()[i];
    EXPECT_EQ(&each.layout(), &kContractWidgets[i]);
    EXPECT_EQ(each.Name(), kContractWidgets[i].name);
    EXPECT_EQ(each.Kind(), kContractWidgets[i].kind);
    EXPECT_EQ(each.TabIndex(), kContractWidgets[i].tabIndex);
    EXPECT_EQ(each.ToolTip(), kContractWidgets[i].tooltip);
  }
}

TEST_P(Widget, KnowsItsOwnerAndItsFrame) {
  for (const toolkit::Widget* each : panel().widgets()) {
    EXPECT_EQ(&each->owner(), &panel());
    const std::string_view frame = each->frame() == nullptr ? std::string_view() : each->frame()->Name();
    EXPECT_EQ(frame, each->layout().frame) << each->Name();
  }
}

TEST_P(Widget, StandsAtItsPlaceToTheTwip) {
  for (const toolkit::Widget* each : panel().widgets()) EXPECT_EQ(each->place(), each->layout().place) << each->Name();
}

TEST_P(Widget, APlaceReadsBackAsWritten) {
  const toolkit::Place odd{.left = 1, .top = -7, .width = 1234, .height = 317};
  for (toolkit::Widget* each : panel().widgets()) {
    each->place(odd);
    EXPECT_EQ(each->place(), odd) << each->Name();
  }
}

TEST_P(Widget, FieldsAreWhiteAndTheOthersGray) {
  for (const toolkit::Widget* each : panel().widgets()) {
    const bool field = each->Kind() == toolkit::WidgetKind::TextBox || each->Kind() == toolkit::WidgetKind::ComboBox ||
                       each->Kind() == toolkit::WidgetKind::DateControl;
    EXPECT_EQ(each->BackColor(), field ? toolkit::kWhite : toolkit::kFaceGray) << each->Name();
    EXPECT_EQ(each->ForeColor(), each->layout().fore) << each->Name();
  }
}

TEST_P(Widget, HaveTheBackThatTheyAreLaidOutWith) {
  static constexpr std::array<toolkit::WidgetLayout, 3> kRows{
      {{.name = "Plain", .kind = toolkit::WidgetKind::Label},
       {.name = "White", .kind = toolkit::WidgetKind::Label, .back = toolkit::kWhite},
       {.name = "Black", .back = toolkit::kBlack}}};
  static constexpr toolkit::PanelLayout kLayout{.name = "Backs", .widgets = kRows};
  const auto surface = platform().makeSurface(kLayout, container(), "p");
  EXPECT_EQ(surface->label("Plain").BackColor(), toolkit::kFaceGray);
  EXPECT_EQ(surface->label("White").BackColor(), toolkit::kWhite);
  EXPECT_EQ(surface->textBox("Black").BackColor(), toolkit::kBlack);
}

TEST_P(Widget, ColoursReadBackAsWritten) {
  for (toolkit::Widget* each : panel().widgets()) {
    each->BackColor(0x010203);
    each->ForeColor(0xFFFF00);
    EXPECT_EQ(each->BackColor(), 0x010203U) << each->Name();
    EXPECT_EQ(each->ForeColor(), 0xFFFF00U) << each->Name();
    each->Enabled(false);
    EXPECT_EQ(each->BackColor(), 0x010203U) << each->Name();
    EXPECT_EQ(each->ForeColor(), 0xFFFF00U) << each->Name();
  }
}

QVN_CONTRACT(Surface);

TEST_P(Surface, KnowsWhereItStands) {
  EXPECT_EQ(&panel().platform(), &platform());
  EXPECT_EQ(&panel().container(), &container());
  EXPECT_EQ(&panel().layout(), &kContractLayout);
  EXPECT_EQ(panel().name(), "panel");
}

TEST_P(Surface, FindsItsWidgetsByNameExactInCase) {
  EXPECT_EQ(&panel().textBox("A"), panel().widgets()[2]);
  EXPECT_FAILURE(panel().textBox("a"), FailureKind::NoSuchMember, "\"a\"");
  EXPECT_FAILURE(panel().widget("Nothing"), FailureKind::NoSuchMember, "panel");
}

TEST_P(Surface, AWidgetOfAnotherKindIsNotFound) {
  EXPECT_FAILURE(panel().label("A"), FailureKind::NoSuchMember, "A");
  EXPECT_FAILURE(panel().textBox("Label"), FailureKind::NoSuchMember, "Label");
  EXPECT_FAILURE(panel().comboBox("A"), FailureKind::NoSuchMember, "A");
  EXPECT_FAILURE(panel().checkBox("A"), FailureKind::NoSuchMember, "A");
  EXPECT_FAILURE(panel().frame("A"), FailureKind::NoSuchMember, "A");
  EXPECT_FAILURE(panel().button("A"), FailureKind::NoSuchMember, "A");
  EXPECT_FAILURE(panel().date("A"), FailureKind::NoSuchMember, "A");
}

TEST_P(Surface, TwoOfOneLayoutShareNothing) {
  const auto other = another("other");
  box().Text("uno");
  other->textBox("A").Change = hears("change");
  EXPECT_EQ(other->textBox("A").Text(), "");
  other->comboBox("List").Clear();
  EXPECT_EQ(list().ListCount(), 4);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Surface, AFrameMustStandAboveWhatLiesInIt) {
  static constexpr std::array<toolkit::WidgetLayout, 2> kBelow{
      {{.name = "Child", .frame = "Late"}, {.name = "Late", .kind = toolkit::WidgetKind::Frame}}};
  static constexpr std::array<toolkit::WidgetLayout, 2> kNoFrame{
      {{.name = "Field"}, {.name = "Child", .frame = "Field"}}};
  static constexpr toolkit::PanelLayout kBelowLayout{.name = "Below", .widgets = kBelow};
  static constexpr toolkit::PanelLayout kNoFrameLayout{.name = "NoFrame", .widgets = kNoFrame};
  EXPECT_FAILURE(platform().makeSurface(kBelowLayout, container(), "broken"), FailureKind::InvalidCall, "broken.Child");
  EXPECT_FAILURE(platform().makeSurface(kNoFrameLayout, container(), "broken"), FailureKind::InvalidCall,
                 "broken.Child");
}

TEST_P(Surface, StartingTextsAreShown) {
  static constexpr std::array<toolkit::WidgetLayout, 2> kRows{
      {{.name = "Date", .kind = toolkit::WidgetKind::DateControl, .caption = "15/11/2026"},
       {.name = "List", .kind = toolkit::WidgetKind::ComboBox, .caption = "Due", .items = kItems}}};
  static constexpr toolkit::PanelLayout kLayout{.name = "Started", .widgets = kRows};
  const auto started = platform().makeSurface(kLayout, container(), "started");
  EXPECT_EQ(started->date("Date").Text(), "15/11/2026");
  EXPECT_EQ(started->comboBox("List").ListIndex(), 1);
}

TEST_P(Surface, AStartingTextThatCannotBeShownFails) {
  static constexpr std::array<toolkit::WidgetLayout, 1> kDate{
      {{.name = "Date", .kind = toolkit::WidgetKind::DateControl, .caption = "domani"}}};
  static constexpr std::array<toolkit::WidgetLayout, 1> kList{
      {{.name = "List", .kind = toolkit::WidgetKind::ComboBox, .caption = "Tre", .items = kItems}}};
  static constexpr toolkit::PanelLayout kDateLayout{.name = "Started", .widgets = kDate};
  static constexpr toolkit::PanelLayout kListLayout{.name = "Started", .widgets = kList};
  EXPECT_FAILURE(platform().makeSurface(kDateLayout, container(), "p"), FailureKind::TypeMismatch, "domani");
  EXPECT_FAILURE(platform().makeSurface(kListLayout, container(), "p"), FailureKind::InvalidCall, "Tre");
}

TEST_P(Surface, ALayoutWithoutWidgetsIsASurfaceToo) {
  static constexpr toolkit::PanelLayout kNothing{.name = "Nothing"};
  EXPECT_TRUE(platform().makeSurface(kNothing, container(), "nothing")->widgets().empty());
}

}  // namespace
}  // namespace qvn::test
