// What closed lists have alike.
#include "qvn/fields/list_field.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/fields/field_bench.h"

namespace qvn::test {
namespace {

class ListFields : public FieldBench {
 public:
  ListFields() { fields::wire(list(), "SCELTA"); }

  toolkit::ComboBox& list() { return panel().comboBox("List"); }
};
QVN_ON_EVERY_PLATFORM(ListFields);

TEST_P(ListFields, AChoiceIsAnnouncedHoweverItIsMade) {
  list().Text("2 - Due");
  EXPECT_EQ(container().notices, std::vector<std::string>{"SCELTA"});
  list().Text("2 - Due");
  EXPECT_EQ(container().notices.size(), 1U);
  hands().choose(list(), "1 - Uno");
  EXPECT_EQ(container().notices, (std::vector<std::string>{"SCELTA", "SCELTA"}));
}

TEST_P(ListFields, TheFocusColoursTheListAsAFieldWithoutAPickList) {
  hands().focus(list());
  EXPECT_EQ(list().BackColor(), 0xFFFF00U);
  hands().leave();
  EXPECT_EQ(list().BackColor(), toolkit::kWhite);
  EXPECT_TRUE(container().notices.empty());
}

TEST_P(ListFields, EnterStaysInTheList) {
  hands().focus(list());
  hands().type("{Enter}");
  EXPECT_TRUE(list().hasFocus());
}

}  // namespace
}  // namespace qvn::test
