// Making the statement line ready for typing, and freezing it.
#include <gtest/gtest.h>
#include <stdexcept>

#include "qvn/panels/documents/ctlESTRATTI.h"
#include "tests/documents/line_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class StatementAttiva : public LinePanel<ctlESTRATTI> {
 public:
  toolkit::Frame& frame() { return surface().frame("FrmDATI_ESTRATTO"); }
  toolkit::ComboBox& withProducers() { return list("CmbST_PROD"); }
  void producers(std::string_view one, std::string_view alternate) {
    panel->COD_PROD(one);
    panel->COD_PROD_ALT(alternate);
  }
};
QVN_ON_EVERY_PLATFORM(StatementAttiva);

TEST_P(StatementAttiva, EnablesTheFrameAndGoesToTheFirstDate) {
  panel->DATA_EC(day(5, 3, 2026));
  forget();
  panel->Attiva();
  EXPECT_TRUE(frame().Enabled());
  EXPECT_EQ(focused(), "TxtDATA_EC");
  EXPECT_TRUE(wholeSelected(date("TxtDATA_EC")));
  EXPECT_EQ(date("TxtDATA_EC").BackColor(), kCyan);
  EXPECT_THAT(heard(), IsEmpty());
  EXPECT_THAT(asked(), IsEmpty());
}

TEST_P(StatementAttiva, SelectsTheDateThatHasTheFocusAlready) {
  panel->DATA_EC(day(5, 3, 2026));
  panel->Attiva();
  hands().caret(2, 1);
  panel->Attiva();
  EXPECT_TRUE(wholeSelected(date("TxtDATA_EC")));
}

TEST_P(StatementAttiva, TheStateWithTheProducersNeedsOneOfThem) {
  producers("P1", "");
  panel->Attiva();
  EXPECT_TRUE(withProducers().Enabled());
  producers("", "");
  EXPECT_TRUE(withProducers().Enabled());  // nothing reacts to the codes until then
  panel->Attiva();
  EXPECT_FALSE(withProducers().Enabled());
  producers("", "P2");
  panel->Attiva();
  EXPECT_TRUE(withProducers().Enabled());
  producers("P1", "P2");
  panel->Attiva();
  EXPECT_TRUE(withProducers().Enabled());
  producers("", " ");
  panel->Attiva();
  EXPECT_TRUE(withProducers().Enabled());
}

TEST_P(StatementAttiva, WithoutProducersTheOtherFieldsWork) {
  panel->Attiva();
  for (const toolkit::Widget* widget : surface().widgets()) {
    EXPECT_EQ(widget->Enabled(), widget != &withProducers()) << widget->Name();
  }
  EXPECT_FAILURE(hands().focus(withProducers()), FailureKind::InvalidCall, "CmbST_PROD");
  EXPECT_FAILURE(hands().choose(withProducers(), 0), FailureKind::InvalidCall, "CmbST_PROD");
  hands().focus(list("CmbST_COMP"));
  hands().type("{Tab}");
  EXPECT_EQ(focused(), "chkSTAMPA");
}

TEST_P(StatementAttiva, TheListIsDecidedAfterTheFocusHasMoved) {
  producers("P1", "");
  panel->Attiva();
  panel->PREMIO(money("5"));
  hands().focus(box("TxtPREMIO"));
  // Leaving the amount announces it, and the host takes the line's producer away.
  container().onNotice = [&](toolkit::Surface&, std::string_view) { producers("", ""); };
  panel->Attiva();
  container().onNotice = {};
  EXPECT_FALSE(withProducers().Enabled());
}

TEST_P(StatementAttiva, TheFrameIsEnabledBeforeTheFocusMoves) {
  const auto other = another("altra");
  other->Attiva();
  other->PREMIO(money("5"));
  hands().focus(other->surface().textBox("TxtPREMIO"));
  bool enabled = false;
  container().onNotice = [&](toolkit::Surface&, std::string_view) { enabled = frame().Enabled(); };
  panel->Attiva();
  container().onNotice = {};
  EXPECT_TRUE(enabled);
  EXPECT_EQ(focused(), "TxtDATA_EC");
}

TEST_P(StatementAttiva, OnAHiddenPanelDoesAllButMoveTheFocus) {
  panel->DATA_EC(day(5, 3, 2026));
  surface().Visible(false);
  panel->Attiva();
  EXPECT_TRUE(frame().Enabled());
  EXPECT_TRUE(wholeSelected(date("TxtDATA_EC")));
  EXPECT_FALSE(withProducers().Enabled());
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(StatementAttiva, PassesOverAFieldThatCannotTakeTheFocus) {
  date("TxtDATA_EC").Enabled(false);
  panel->Attiva();
  EXPECT_TRUE(frame().Enabled());
  EXPECT_FALSE(withProducers().Enabled());
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(StatementAttiva, PassesOverAnAnnouncementThatFails) {
  producers("P1", "");
  panel->Attiva();
  hands().focus(box("TxtPREMIO"));
  producers("", "");
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  panel->Attiva();
  container().onNotice = {};
  EXPECT_EQ(focused(), "TxtDATA_EC");
  EXPECT_FALSE(withProducers().Enabled());
}

TEST_P(StatementAttiva, LetsTheHostsOwnExceptionPass) {
  panel->Attiva();
  hands().focus(box("TxtPREMIO"));
  container().onNotice = [](toolkit::Surface&, std::string_view) { throw std::runtime_error("the host's own"); };
  EXPECT_THROW(panel->Attiva(), std::runtime_error);
}

TEST_P(StatementAttiva, DisattivaFreezesTheFrameAndGivesTheListBack) {
  panel->DATA_EC(day(5, 3, 2026));
  panel->PREMIO(money("12"));
  panel->ST_PROD(text("S"));
  panel->Attiva();
  EXPECT_FALSE(withProducers().Enabled());
  hands().focus(box("TxtPREMIO"));
  panel->Disattiva();
  EXPECT_FALSE(frame().Enabled());
  EXPECT_TRUE(withProducers().Enabled());
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_EQ(box("TxtPREMIO").Text(), "€ 12,00");
  EXPECT_EQ(box("TxtPREMIO").BackColor(), toolkit::kWhite);
  EXPECT_EQ(panel->DATA_EC(), text("05/03/2026"));
  EXPECT_EQ(panel->PREMIO(), money("12"));
  EXPECT_EQ(panel->ST_PROD(), text("S"));
  // Enabled by itself, the list is out of reach in its frame.
  EXPECT_FAILURE(hands().focus(withProducers()), FailureKind::InvalidCall, "CmbST_PROD");
  panel->N_POLIZZA("9");
  EXPECT_EQ(panel->N_POLIZZA(), "9");
}

TEST_P(StatementAttiva, DisattivaPassesTheFailureOfAnAnnouncementOn) {
  panel->Attiva();
  hands().focus(box("TxtPREMIO"));
  container().onNotice = [](toolkit::Surface&, std::string_view) {
    throw Failure(FailureKind::InvalidCall, "the host refuses");
  };
  EXPECT_FAILURE(panel->Disattiva(), FailureKind::InvalidCall, "the host refuses");
  container().onNotice = {};
  EXPECT_FALSE(frame().Enabled());
  EXPECT_FALSE(withProducers().Enabled());  // the call stopped there
}

TEST_P(StatementAttiva, BothGoInAnyOrderAnyNumberOfTimes) {
  producers("", "P2");
  panel->Disattiva();
  EXPECT_FALSE(frame().Enabled());
  panel->Attiva();
  panel->Attiva();
  EXPECT_TRUE(frame().Enabled());
  panel->Disattiva();
  panel->Disattiva();
  EXPECT_FALSE(frame().Enabled());
  EXPECT_TRUE(withProducers().Enabled());
}

}  // namespace
}  // namespace qvn::test
