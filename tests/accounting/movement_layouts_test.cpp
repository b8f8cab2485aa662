// Where the widgets of the two panels lie, what they show before anything is loaded, and which public members there
// are.
#include <optional>

#include "tests/accounting/movement_bench.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Align;
using toolkit::Place;
using toolkit::WidgetKind;

struct LaidOut {
  std::string name;
  WidgetKind kind;
  Place place;
  std::string caption = {};
  Align align = Align::Left;
  bool bordered = false;
  std::optional<std::uint32_t> back = {};
  Strings items = {};
};

class MovementLayouts : public MovementBench {
 public:
  /// Expects all of them inside the first, those of the names disabled.
  void expectLaidOut(const std::vector<LaidOut>& rows, const Strings& disabled) {
    ASSERT_EQ(surface().widgets().size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const LaidOut& row = rows[i];
      toolkit::Widget& widget = *surface().widgets()[i];
      SCOPED_TRACE(row.name);
      EXPECT_EQ(widget.Name(), row.name);
      EXPECT_EQ(widget.Kind(), row.kind);
      EXPECT_EQ(widget.TabIndex(), static_cast<std::int16_t>(i));
      EXPECT_EQ(widget.place(), row.place);
      EXPECT_EQ(widget.layout().caption, row.caption);
      EXPECT_EQ(widget.layout().align, row.align);
      EXPECT_EQ(widget.layout().bordered, row.bordered);
      EXPECT_EQ(widget.layout().back, row.back);
      EXPECT_FALSE(widget.layout().bold);
      EXPECT_EQ(widget.ForeColor(), toolkit::kBlack);
      EXPECT_EQ(widget.ToolTip(), "");
      EXPECT_EQ(widget.frame(), i == 0 ? nullptr : &frame());
      EXPECT_EQ(widget.Enabled(), std::ranges::find(disabled, row.name) == disabled.end());
      EXPECT_TRUE(widget.Visible());
      const auto items = widget.layout().items;
      EXPECT_EQ(Strings(items.begin(), items.end()), row.items);
    }
  }
  std::string members() {
    std::string all;
    for (const Member& member : panel->members()) {
      all.append(member.name).append(" ").append(nameOf(member.kind)).append(" ").append(member.type).append("\n");
    }
    return all;
  }
};
QVN_ON_EVERY_PLATFORM(MovementLayouts);

TEST_P(MovementLayouts, ALineOfAMovementIsLaidOutInTabOrderAndMadeEnabled) {
  make(kEntry);
  expectLaidOut(
      {
          {"Frame1", WidgetKind::Frame, {75, 0, 10440, 1065}},
          {"txtMASTRO", WidgetKind::TextBox, {75, 225, 915, 315}},
          {"TxtCONTO", WidgetKind::TextBox, {1050, 225, 1290, 315}},
          {"LblDESC_CONTO", WidgetKind::Label, {75, 600, 3990, 315}, "", Align::Left, true},
          {"TxtDESC_1", WidgetKind::TextBox, {2400, 225, 5415, 315}},
          {"TxtDESC_2", WidgetKind::TextBox, {4125, 600, 3690, 315}},
          {"cmbTIPO", WidgetKind::ComboBox, {7875, 225, 840, 315}, "", Align::Left, false, {}, {"AVERE", "DARE"}},
          {"TxtIMPORTO", WidgetKind::TextBox, {8775, 225, 1590, 315}, "0,0001", Align::Right},
      },
      {});
  EXPECT_EQ(surface().layout().name, kEntry);
  EXPECT_EQ(surface().layout().width, 10605);
  EXPECT_EQ(surface().layout().height, 1140);
}

TEST_P(MovementLayouts, ALineOfATemplateIsLaidOutInTabOrderAndMadeDisabled) {
  make(kTemplate);
  expectLaidOut(
      {
          {"Frame1", WidgetKind::Frame, {75, 75, 5490, 1065}},
          {"lblPROGRESSIVO", WidgetKind::Label, {150, 225, 465, 315}, "", Align::Right, true, toolkit::kWhite},
          {"txtMASTRO", WidgetKind::TextBox, {675, 225, 1215, 315}},
          {"TxtCONTO", WidgetKind::TextBox, {1950, 225, 1215, 315}},
          {"ChkRIPETI", WidgetKind::CheckBox, {3225, 225, 915, 315}, "Ripeti"},
          {"cmbTIPO", WidgetKind::ComboBox, {3975, 225, 1365, 315}, "", Align::Left, false, {}, {"AVERE", "DARE"}},
          {"lblDESC_CONTO", WidgetKind::Label, {150, 600, 2715, 315}, "", Align::Left, true, toolkit::kWhite},
          {"ChkIVA", WidgetKind::CheckBox, {2925, 600, 615, 315}, "IVA"},
          {"CmbTIPO_IVA",
           WidgetKind::ComboBox,
           {3600, 600, 1740, 315},
           "",
           Align::Left,
           false,
           {},
           {"ACQUISTI", "CORRISPETTIVI"}},
      },
      {"Frame1", "CmbTIPO_IVA"});
  EXPECT_EQ(surface().layout().name, kTemplate);
  EXPECT_EQ(surface().layout().width, 5655);
  EXPECT_EQ(surface().layout().height, 1230);
}

TEST_P(MovementLayouts, TheMembersOfAMovementsLineStandInInterfaceOrder) {
  make(kEntry);
  EXPECT_EQ(members(),
            "Disattiva method \n"
            "Attiva method \n"
            "Events get clsQVN_Eventi\n"
            "Mastro get/let text\n"
            "Conto get/let text\n"
            "DESC_CONTO let text\n"
            "TIPO get/let text\n"
            "DESC_1 get/let text\n"
            "DESC_2 get/let text\n"
            "IMPORTO get/let currency\n");
}

TEST_P(MovementLayouts, TheMembersOfATemplatesLineStandInInterfaceOrder) {
  make(kTemplate);
  EXPECT_EQ(members(),
            "Attiva method \n"
            "Disattiva method \n"
            "PROGRESSIVO get/let text\n"
            "IVA get/let boolean\n"
            "Events get clsQVN_Eventi\n"
            "Mastro get/let text\n"
            "Conto get/let text\n"
            "DESC_CONTO let text\n"
            "RIPETI get/let boolean\n"
            "TIPO get/let text\n"
            "TIPO_IVA get/let text\n");
}

TEST_P(MovementLayouts, ANewLineOfAMovementShowsACreditOnGreenAndHasAnnouncedIt) {
  panel = panelClass(kEntry).make(PanelSite{container(), "riga"});
  EXPECT_THAT(heard(), ElementsAre("TIPO"));
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_EQ(list("cmbTIPO").Text(), "AVERE");
  EXPECT_EQ(list("cmbTIPO").BackColor(), kGreen);
  EXPECT_EQ(read("TIPO"), "A");
  for (const auto name : {"Mastro", "Conto", "DESC_1", "DESC_2"}) EXPECT_EQ(read(name), "") << name;
  EXPECT_EQ(description(), "");
  EXPECT_EQ(box("TxtIMPORTO").Text(), "0,0001");
  EXPECT_EQ(getByName(*panel, "IMPORTO"), Variant(Currency::fromTenThousandths(1)));
  EXPECT_TRUE(frame().Enabled());
  EXPECT_EQ(focused(), "");
}

TEST_P(MovementLayouts, ANewLineOfATemplateShowsTheFirstItemsAndHasAnnouncedThem) {
  panel = panelClass(kTemplate).make(PanelSite{container(), "riga"});
  EXPECT_THAT(heard(), ElementsAre("TIPO", "TIPO_IVA"));
  EXPECT_THAT(asked(), IsEmpty());
  EXPECT_EQ(list("cmbTIPO").Text(), "AVERE");
  EXPECT_EQ(list("CmbTIPO_IVA").Text(), "ACQUISTI");
  EXPECT_EQ(list("cmbTIPO").BackColor(), toolkit::kWhite);
  EXPECT_EQ(list("CmbTIPO_IVA").BackColor(), toolkit::kWhite);
  EXPECT_EQ(read("TIPO"), "A");
  EXPECT_EQ(read("TIPO_IVA"), "A");
  EXPECT_FALSE(flag("IVA"));
  EXPECT_FALSE(flag("RIPETI"));
  for (const auto name : {"PROGRESSIVO", "Mastro", "Conto"}) EXPECT_EQ(read(name), "") << name;
  EXPECT_EQ(description(), "");
  EXPECT_FALSE(list("CmbTIPO_IVA").Enabled());
  EXPECT_FALSE(frame().Enabled());
}

TEST_P(MovementLayouts, AFailureOfTheHostAtTheFirstAnnouncementKeepsThePanelFromBeingMade) {
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  for (const std::string_view className : {kEntry, kTemplate}) {
    EXPECT_FAILURE(panelClass(className).make(PanelSite{container(), "riga"}), FailureKind::InvalidCall, "refuses");
    EXPECT_THAT(heard(), ElementsAre("TIPO"));
  }
  container().onNotice = {};
}

TEST_P(MovementLayouts, TheLettersSayWhichItemsTheListsShow) {
  make(kTemplate);
  for (const auto& [letter, item] : {std::pair{"D", "DARE"}, {"A", "AVERE"}}) {
    write("TIPO", letter);
    EXPECT_EQ(list("cmbTIPO").Text(), item);
    EXPECT_EQ(read("TIPO"), letter);
  }
  for (const auto& [letter, item] : {std::pair{"C", "CORRISPETTIVI"}, {"A", "ACQUISTI"}}) {
    write("TIPO_IVA", letter);
    EXPECT_EQ(list("CmbTIPO_IVA").Text(), item);
    EXPECT_EQ(read("TIPO_IVA"), letter);
  }
}

TEST_P(MovementLayouts, ThePanelsGiveTheOneEventObject) {
  withBoth([&](std::string_view className) {
    make(className);
    EXPECT_EQ(std::get<EventsReference>(getByName(*panel, "events")), Globale::Eventi());
    EXPECT_FAILURE(let("Events", Empty{}), FailureKind::NoSuchMember, "riga.Events");
  });
}

}  // namespace
}  // namespace qvn::test
