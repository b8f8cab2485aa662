// A date typed over its mask, key by key.
#include "qvn/fields/date_mask.h"

#include <gtest/gtest.h>
#include <ostream>
#include <vector>

namespace qvn::test {
namespace {

using fields::DateEntry;

/// A text of the mask with its caret "|", or with its selection between "[" and "]".
DateEntry entry(std::string_view drawn) {
  DateEntry made;
  made.text.clear();
  for (const char c : drawn) {
    const auto place = static_cast<std::int32_t>(made.text.size());
    if (c == '|' || c == '[') {
      made.start = place;
    } else if (c == ']') {
      made.length = place - made.start;
    } else {
      made.text.push_back(c);
    }
  }
  return made;
}

std::string drawn(const DateEntry& entry) {
  std::string text;
  for (std::int32_t place = 0; place <= 10; ++place) {
    if (place == entry.start) text.push_back(entry.length == 0 ? '|' : '[');
    if (place == entry.start + entry.length && entry.length > 0) text.push_back(']');
    if (place < 10) text.push_back(entry.text.at(static_cast<std::size_t>(place)));
  }
  return text;
}

struct Editing {
  std::string before;
  std::string keys;  ///< characters, "<" for Backspace, "x" for Delete, "l", "r", "h" and "e" for the ways of the caret
  std::string after;
};

void PrintTo(const Editing& row, std::ostream* out) { *out << row.before << " " << row.keys; }

/// Whether each key was taken.
bool play(DateEntry& entry, std::string_view keys) {
  bool taken = true;
  for (const char key : keys) {
    switch (key) {
      case '<':
        entry.backspace();
        break;
      case 'x':
        entry.erase();
        break;
      case 'l':
        entry.left();
        break;
      case 'r':
        entry.right();
        break;
      case 'h':
        entry.home();
        break;
      case 'e':
        entry.end();
        break;
      default:
        taken = entry.type(static_cast<unsigned char>(key)) && taken;
    }
  }
  return taken;
}

class DateMaskKeys : public testing::TestWithParam<Editing> {};

TEST_P(DateMaskKeys, AreTaken) {
  DateEntry edited = entry(GetParam().before);
  EXPECT_TRUE(play(edited, GetParam().keys));
  EXPECT_EQ(drawn(edited), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(Digits, DateMaskKeys,
                         testing::Values(Editing{"|##/##/####", "1", "1|#/##/####"},         //
                                         Editing{"|##/##/####", "15", "15/|##/####"},        //
                                         Editing{"|##/##/####", "15112026", "15/11/2026|"},  //
                                         Editing{"15|/##/####", "1", "15/1|#/####"},         //
                                         Editing{"15/11|/2026", "7", "15/11/7|026"},         //
                                         Editing{"|15/11/2026", "3", "3|5/11/2026"},         //
                                         Editing{"15/11/20|26", "3", "15/11/203|6"},         //
                                         Editing{"[15/11/2026]", "3", "3|#/##/####"},        //
                                         Editing{"15/[11]/2026", "3", "15/3|#/2026"},        //
                                         Editing{"1[5/1]1/2026", "3", "13/|#1/2026"},        //
                                         Editing{"15[/11/20]26", "3", "15/3|#/##26"},        //
                                         Editing{"##/##|/####", "99", "##/##/99|##"}));
INSTANTIATE_TEST_SUITE_P(Separators, DateMaskKeys,
                         testing::Values(Editing{"|##/##/####", "5/3/2026", "05/03/2026|"},    //
                                         Editing{"|##/##/####", "5.3-26", "05/03/26|##"},      //
                                         Editing{"|##/##/####", "5,3,26", "05/03/26|##"},      //
                                         Editing{"|##/##/####", "15/11/2026", "15/11/2026|"},  //
                                         Editing{"1|5/11/2026", "/", "15/|11/2026"},           //
                                         Editing{"15|/11/2026", "/", "15/|11/2026"},           //
                                         Editing{"15/1|1/2026", "/", "15/11/|2026"},           //
                                         Editing{"#7|/##/####", "7", "#7/7|#/####"}));
INSTANTIATE_TEST_SUITE_P(Deleting, DateMaskKeys,
                         testing::Values(Editing{"15/11/2026|", "<", "15/11/202|#"},   //
                                         Editing{"15/11/|2026", "<", "15/1|#/2026"},   //
                                         Editing{"15/11|/2026", "<", "15/1|#/2026"},   //
                                         Editing{"15/|11/2026", "<<", "|##/11/2026"},  //
                                         Editing{"|15/11/2026", "<", "|15/11/2026"},   //
                                         Editing{"1|#/##/####", "<<", "|##/##/####"},  //
                                         Editing{"[15/11/2026]", "<", "|##/##/####"},  //
                                         Editing{"1[5/1]1/2026", "<", "1|#/#1/2026"},  //
                                         Editing{"|15/11/2026", "x", "|#5/11/2026"},   //
                                         Editing{"15|/11/2026", "x", "15/|#1/2026"},   //
                                         Editing{"15/11/2026|", "x", "15/11/2026|"},   //
                                         Editing{"15/11/202|6", "x", "15/11/202|#"},   //
                                         Editing{"15/1[1/20]26", "x", "15/1|#/##26"},  //
                                         Editing{"15[/]11/2026", "x", "15|/11/2026"}));
INSTANTIATE_TEST_SUITE_P(Moving, DateMaskKeys,
                         testing::Values(Editing{"|15/11/2026", "r", "1|5/11/2026"},   //
                                         Editing{"|15/11/2026", "rr", "15/|11/2026"},  //
                                         Editing{"15|/11/2026", "r", "15/|11/2026"},   //
                                         Editing{"15/|11/2026", "l", "1|5/11/2026"},   //
                                         Editing{"15/11/|2026", "ll", "15/|11/2026"},  //
                                         Editing{"|15/11/2026", "l", "|15/11/2026"},   //
                                         Editing{"15/11/2026|", "r", "15/11/2026|"},   //
                                         Editing{"15/[11]/2026", "l", "15/|11/2026"},  //
                                         Editing{"15/1[1/20]26", "r", "15/11/20|26"},  //
                                         Editing{"15/[11]/2026", "h", "|15/11/2026"},  //
                                         Editing{"|15/11/2026", "e", "15/11/2026|"},   //
                                         Editing{"|15/##/####", "e", "15/|##/####"},   //
                                         Editing{"|15/1#/####", "e", "15/1|#/####"},   //
                                         Editing{"##/##|/####", "e", "|##/##/####"},   //
                                         Editing{"[##/##/####]", "e", "|##/##/####"}));

class RefusedDateKeys : public testing::TestWithParam<Editing> {};

TEST_P(RefusedDateKeys, ChangeNothing) {
  DateEntry edited = entry(GetParam().before);
  EXPECT_FALSE(play(edited, GetParam().keys));
  EXPECT_EQ(drawn(edited), GetParam().before);
}

INSTANTIATE_TEST_SUITE_P(All, RefusedDateKeys,
                         testing::Values(Editing{"15/11/2026|", "7", ""}, Editing{"|##/##/####", "a", ""},
                                         Editing{"|##/##/####", "/", ""}, Editing{"1#/|##/####", "/", ""},
                                         Editing{"15/#|1/2026", "/", ""}, Editing{"15/11/20|26", "/", ""},
                                         Editing{"|15/11/2026", "/", ""}, Editing{"1#/|11/2026", "/", ""},
                                         Editing{"[15/11/2026]", "/", ""}, Editing{"[15/11/2026]", "#", ""},
                                         Editing{"[15/11/2026]", " ", ""}, Editing{"0|#/##/####", "/", ""},
                                         Editing{"12/0|#/####", "-", ""}));

TEST(DateMask, TellsWhetherADigitWent) {
  struct Refusal {
    std::string before;
    bool went;
  };
  for (const Refusal& c :
       {Refusal{"1|5/11/2026", true}, {"#|5/11/2026", false}, {"|15/11/2026", false}, {"[##/]11/2026", false}}) {
    DateEntry edited = entry(c.before);
    EXPECT_EQ(edited.backspace(), c.went) << c.before;
  }
  for (const Refusal& c :
       {Refusal{"1|5/11/2026", true}, {"1|#/11/2026", false}, {"15/11/2026|", false}, {"[##/1]1/2026", true}}) {
    DateEntry edited = entry(c.before);
    EXPECT_EQ(edited.erase(), c.went) << c.before;
  }
}

TEST(DateMask, NoLetterOfAnotherScriptIsADigit) {
  DateEntry edited;
  EXPECT_FALSE(edited.type(U'\u0663'));
  EXPECT_FALSE(edited.type(U'\u0131'));
  EXPECT_EQ(edited.text, fields::kBlankDate);
}

TEST(DateMask, FitsATextOfItsShape) {
  EXPECT_TRUE(fields::fitsDateMask("15/11/2026", false));
  EXPECT_TRUE(fields::fitsDateMask("1#/##/2##6", true));
  EXPECT_FALSE(fields::fitsDateMask("1#/##/2##6", false));
  for (const std::string_view wrong :
       {"", "15/11/202", "15/11/20266", "15-11-2026", "15/1a/2026", "1511202600", "1/11//2026"}) {
    EXPECT_FALSE(fields::fitsDateMask(wrong, true)) << wrong;
  }
}

TEST(WholeDates, AreReadInTheUsualForms) {
  for (const std::string_view form : {"05/03/2026", "5/3/2026", "05-03-2026", "5.3.2026", "5,3,2026", "05032026",
                                      "2026-03-05", "2026/3/5", "  05/03/2026\r\n", "\t5/3/2026 "}) {
    EXPECT_EQ(fields::digitsOfWholeDate(form), "05032026") << form;
  }
}

TEST(WholeDates, AreNotMadeOfAnyOtherText) {
  for (const std::string_view text :
       {"",           " ",          "5/3",       "5/3/26",     "050326",     "5/3/20266", "005/3/2026",
        "5/003/2026", "5/3/",       "//2026",    "/3/2026",    "5//2026",    "2026-3",    "2026-3-123",
        "oggi",       "5/3/2026x",  "x5/3/2026", "5 3 2026",   "5/3/2026/1", "20260/3/5", "0503202",
        "05032026/1", "##/##/####", "5/3/2026/", "2026-03-05-"}) {
    EXPECT_EQ(fields::digitsOfWholeDate(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace qvn::test
