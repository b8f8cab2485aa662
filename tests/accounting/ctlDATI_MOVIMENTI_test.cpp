// The line of a movement type's template: its number, its flags, and its two lists.
#include "qvn/panels/accounting/ctlDATI_MOVIMENTI.h"

#include "tests/accounting/movement_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TemplateLine : public MovementBench {
 public:
  TemplateLine() { ready(kTemplate); }

  toolkit::ComboBox& side() { return list("cmbTIPO"); }
  toolkit::ComboBox& kind() { return list("CmbTIPO_IVA"); }
  toolkit::CheckBox& vat() { return surface().checkBox("ChkIVA"); }
  toolkit::CheckBox& repeats() { return surface().checkBox("ChkRIPETI"); }
};
QVN_ON_EVERY_PLATFORM(TemplateLine);

TEST_P(TemplateLine, TheNumberIsTheLabelsAndAnnouncedWhenItChanges) {
  write("PROGRESSIVO", "12");
  EXPECT_EQ(surface().label("lblPROGRESSIVO").Caption(), "12");
  EXPECT_EQ(read("PROGRESSIVO"), "12");
  EXPECT_THAT(heard(), ElementsAre("PROGRESSIVO"));
  write("PROGRESSIVO", "12");
  EXPECT_THAT(heard(), IsEmpty());
  surface().label("lblPROGRESSIVO").Caption("13");
  EXPECT_EQ(read("PROGRESSIVO"), "13");
  EXPECT_THAT(heard(), ElementsAre("PROGRESSIVO"));
  write("PROGRESSIVO", "dodici");  // any text
  EXPECT_EQ(read("PROGRESSIVO"), "dodici");
  write("PROGRESSIVO", "");
  EXPECT_EQ(read("PROGRESSIVO"), "");
  EXPECT_THAT(heard(), ElementsAre("PROGRESSIVO", "PROGRESSIVO"));
  EXPECT_EQ(surface().label("lblPROGRESSIVO").BackColor(), toolkit::kWhite);
  EXPECT_EQ(surface().label("lblDESC_CONTO").BackColor(), toolkit::kWhite);
}

TEST_P(TemplateLine, ALineWithVatLetsItsKindBeChosen) {
  let("IVA", true);
  EXPECT_EQ(vat().Value(), 1);
  EXPECT_TRUE(flag("IVA"));
  EXPECT_TRUE(kind().Enabled());
  EXPECT_THAT(heard(), ElementsAre("IVA"));
  let("IVA", true);
  EXPECT_TRUE(kind().Enabled());
  EXPECT_THAT(heard(), IsEmpty());
  let("IVA", false);
  EXPECT_EQ(vat().Value(), 0);
  EXPECT_FALSE(flag("IVA"));
  EXPECT_FALSE(kind().Enabled());
  EXPECT_THAT(heard(), ElementsAre("IVA"));
}

TEST_P(TemplateLine, TickingEnablesTheKindsAndClearingLeavesTheTextThere) {
  hands().click(vat());
  EXPECT_TRUE(flag("IVA"));
  EXPECT_TRUE(kind().Enabled());
  hands().choose(kind(), "CORRISPETTIVI");
  EXPECT_THAT(heard(), ElementsAre("IVA", "TIPO_IVA"));
  hands().click(vat());
  EXPECT_FALSE(flag("IVA"));
  EXPECT_FALSE(kind().Enabled());
  EXPECT_EQ(read("TIPO_IVA"), "C");
  EXPECT_EQ(kind().Text(), "CORRISPETTIVI");
  EXPECT_THAT(heard(), ElementsAre("IVA"));
  EXPECT_FAILURE(hands().choose(kind(), "ACQUISTI"), FailureKind::InvalidCall, "CmbTIPO_IVA");
}

TEST_P(TemplateLine, VatIsAnnouncedBeforeItsKindsAreEnabled) {
  bool enabled = true;
  container().onNotice = [&](toolkit::Surface&, std::string_view) { enabled = kind().Enabled(); };
  let("IVA", true);
  container().onNotice = {};
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(kind().Enabled());
}

TEST_P(TemplateLine, TheKindsFollowWhatTheHostMakesOfTheBoxMeanwhile) {
  bool once = true;
  container().onNotice = [&](toolkit::Surface&, std::string_view) {
    if (std::exchange(once, false)) let("IVA", false);
  };
  let("IVA", true);
  container().onNotice = {};
  EXPECT_FALSE(flag("IVA"));
  EXPECT_FALSE(kind().Enabled());
  EXPECT_THAT(heard(), ElementsAre("IVA", "IVA"));
}

TEST_P(TemplateLine, AHostThatFailsAtTheAnnouncementKeepsTheKindsAsTheyWere) {
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  EXPECT_FAILURE(let("IVA", true), FailureKind::InvalidCall, "refuses");
  container().onNotice = {};
  EXPECT_TRUE(flag("IVA"));
  EXPECT_FALSE(kind().Enabled());
}

TEST_P(TemplateLine, ClearingVatTakesTheFocusFromItsKinds) {
  let("IVA", true);
  hands().focus(kind());
  EXPECT_EQ(kind().BackColor(), kCyan);
  let("IVA", false);
  EXPECT_EQ(focused(), "");
  EXPECT_EQ(kind().BackColor(), toolkit::kWhite);
}

TEST_P(TemplateLine, RepetitionIsItsCheckBoxAndEnablesNothing) {
  let("RIPETI", true);
  EXPECT_EQ(repeats().Value(), 1);
  EXPECT_TRUE(flag("RIPETI"));
  EXPECT_FALSE(flag("IVA"));
  EXPECT_FALSE(kind().Enabled());
  EXPECT_THAT(heard(), ElementsAre("RIPETI"));
  let("RIPETI", true);
  EXPECT_THAT(heard(), IsEmpty());
  hands().click(repeats());
  EXPECT_FALSE(flag("RIPETI"));
  EXPECT_THAT(heard(), ElementsAre("RIPETI"));
  let("RIPETI", std::int16_t{7});  // any number but 0 is true
  EXPECT_EQ(repeats().Value(), 1);
  let("RIPETI", std::int16_t{0});
  EXPECT_EQ(repeats().Value(), 0);
}

TEST_P(TemplateLine, TheCheckBoxesHaveNoColourOfTheFocus) {
  for (toolkit::CheckBox* flag : {&vat(), &repeats()}) {
    const std::uint32_t before = flag->BackColor();
    hands().focus(*flag);
    EXPECT_EQ(flag->BackColor(), before);
    hands().leave();
    EXPECT_EQ(flag->BackColor(), before);
  }
}

TEST_P(TemplateLine, ListsAreWrittenByLetterAndAnnouncedWhenTheyChange) {
  struct Letters {
    std::string property;
    std::string field;
    std::string second;
    std::string item;
  };
  for (const Letters& one :
       {Letters{"TIPO", "cmbTIPO", "D", "DARE"}, Letters{"TIPO_IVA", "CmbTIPO_IVA", "C", "CORRISPETTIVI"}}) {
    SCOPED_TRACE(one.property);
    write(one.property, one.second);
    EXPECT_EQ(list(one.field).Text(), one.item);
    EXPECT_EQ(read(one.property), one.second);
    EXPECT_EQ(list(one.field).BackColor(), toolkit::kWhite);
    EXPECT_THAT(heard(), ElementsAre(one.property));
    write(one.property, one.second);
    EXPECT_THAT(heard(), IsEmpty());
    for (const std::string other : {"X", "", "a", "c", "d", "AVERE", "ACQUISTI", one.item.c_str(), "AD"}) {
      write(one.property, other);
      EXPECT_EQ(read(one.property), one.second) << other;
    }
    EXPECT_THAT(heard(), IsEmpty());
    write(one.property, "A");
    EXPECT_EQ(list(one.field).ListIndex(), 0);
    EXPECT_THAT(heard(), ElementsAre(one.property));
    list(one.field).ListIndex(-1);
    EXPECT_EQ(read(one.property), "");
    EXPECT_THAT(heard(), ElementsAre(one.property));
    list(one.field).AddItem("ALTRO");
    list(one.field).Text("ALTRO");
    EXPECT_EQ(read(one.property), "");
    forget();
  }
}

TEST_P(TemplateLine, TheLettersOfOneListMeanNothingToTheOther) {
  write("TIPO", "C");
  write("TIPO_IVA", "D");
  EXPECT_EQ(read("TIPO"), "A");
  EXPECT_EQ(read("TIPO_IVA"), "A");
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(TemplateLine, ThePickOfTheOperatorIsAnnouncedOnce) {
  let("IVA", true);
  forget();
  hands().choose(side(), "DARE");
  EXPECT_EQ(read("TIPO"), "D");
  EXPECT_THAT(heard(), ElementsAre("TIPO"));
  hands().choose(kind(), "CORRISPETTIVI");
  EXPECT_EQ(read("TIPO_IVA"), "C");
  EXPECT_THAT(heard(), ElementsAre("TIPO_IVA"));
}

TEST_P(TemplateLine, TheListsAreCyanWithTheFocus) {
  let("IVA", true);
  for (const std::string name : {"cmbTIPO", "CmbTIPO_IVA"}) {
    hands().focus(list(name));
    EXPECT_EQ(list(name).BackColor(), kCyan);
    hands().leave();
    EXPECT_EQ(list(name).BackColor(), toolkit::kWhite);
  }
}

TEST_P(TemplateLine, AKindCanBeWrittenWithoutVat) {
  write("TIPO_IVA", "C");
  EXPECT_FALSE(kind().Enabled());
  EXPECT_EQ(read("TIPO_IVA"), "C");
  let("IVA", true);
  EXPECT_EQ(read("TIPO_IVA"), "C");
}

TEST_P(TemplateLine, EverythingIsWrittenWhateverTheWidgetsShow) {
  const auto load = [this] {
    write("PROGRESSIVO", "3");
    let("IVA", true);
    write("Mastro", "20");
    write("Conto", "002");
    write("DESC_CONTO", "a mano");
    let("RIPETI", true);
    write("TIPO", "D");
    write("TIPO_IVA", "C");
  };
  const Notes all{
      "lblPROGRESSIVO.Caption 3",     "ChkIVA.Value 1",    "txtMASTRO.Text 20", "TxtCONTO.Text 002",
      "lblDESC_CONTO.Caption a mano", "ChkRIPETI.Value 1", "cmbTIPO.Text DARE", "CmbTIPO_IVA.Text CORRISPETTIVI"};
  EXPECT_EQ(writesOf(kTemplate, load), all);
  EXPECT_EQ(writesOf(kTemplate, load, load), all);
}

TEST_P(TemplateLine, AttivaSelectsTheLedgerBeforeItGoesThere) {
  EXPECT_THAT(
      writesOf(
          kTemplate, [this] { call("Attiva"); }, [this] { write("Mastro", "20"); }),
      ElementsAre("Frame1.Enabled true", "txtMASTRO.SelStart 0", "txtMASTRO.SelLength 2", "txtMASTRO.SetFocus "));
}

TEST_P(TemplateLine, APropertyWritesNoOtherField) {
  write("PROGRESSIVO", "1");
  write("Mastro", "M");
  write("Conto", "C");
  write("TIPO", "D");
  EXPECT_EQ(read("PROGRESSIVO"), "1");
  EXPECT_EQ(read("Mastro"), "M");
  EXPECT_EQ(read("Conto"), "C");
  EXPECT_EQ(read("TIPO"), "D");
  EXPECT_EQ(read("TIPO_IVA"), "A");
  EXPECT_FALSE(flag("IVA"));
  EXPECT_FALSE(flag("RIPETI"));
  EXPECT_THAT(heard(), ElementsAre("PROGRESSIVO", "MASTRO", "CONTO", "TIPO"));
}

}  // namespace
}  // namespace qvn::test
