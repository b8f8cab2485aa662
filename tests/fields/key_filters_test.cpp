// The key filters, one key at a time: what the field holds, the key, and what becomes of it.
#include <cstdint>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/text_field.h"
#include "tests/fields/field_bench.h"

namespace qvn::test {
namespace {

using Gest_SCHEDE::FiltroCifre;
using Gest_SCHEDE::FiltroImporto;
using Gest_SCHEDE::FiltroNumero;
using Gest_SCHEDE::FiltroTesto;

constexpr std::int16_t kRefused = 0;

struct FilteredKey {
  fields::Filter filter;
  std::int16_t limit;
  std::string text;
  std::int32_t start;
  std::int32_t length;
  std::int16_t key;
  std::int16_t becomes;
};

// A refused key beeps and becomes 0; nothing else beeps.
const std::vector<FilteredKey> kCases{
    // Numbers with a sign.
    {FiltroImporto, 2, "", 0, 0, '7', '7'},
    {FiltroImporto, 2, "", 0, 0, '-', '-'},
    {FiltroImporto, 2, "", 0, 0, ',', kRefused},  // a number cannot begin with the separator
    {FiltroImporto, 2, "", 0, 0, '.', kRefused},
    {FiltroImporto, 2, "", 0, 0, 'a', kRefused},
    {FiltroImporto, 2, "", 0, 0, ' ', kRefused},
    {FiltroImporto, 2, "", 0, 0, '+', kRefused},
    {FiltroImporto, 2, "", 0, 0, '/', kRefused},  // the neighbours of the digits
    {FiltroImporto, 2, "", 0, 0, ':', kRefused},
    {FiltroImporto, 2, "", 0, 0, 0xB2, kRefused},  // a superscript two is no digit
    {FiltroImporto, 2, "", 0, 0, 8, 8},
    {FiltroImporto, 2, "", 0, 0, 27, 27},
    {FiltroImporto, 2, "1", 1, 0, '.', ','},
    {FiltroImporto, 2, "1", 1, 0, ',', ','},
    {FiltroImporto, 2, "1", 0, 0, ',', kRefused},
    {FiltroImporto, 2, "1", 1, 0, '-', kRefused},  // the sign goes first
    {FiltroImporto, 2, "1", 0, 0, '-', '-'},
    {FiltroImporto, 2, "12", 0, 2, '-', '-'},
    {FiltroImporto, 2, "12", 1, 1, '-', kRefused},
    {FiltroImporto, 2, "-", 1, 0, ',', kRefused},  // no separator straight behind the sign
    {FiltroImporto, 2, "-", 1, 0, '.', kRefused},
    {FiltroImporto, 2, "-", 0, 0, '-', '-'},  // a second sign at the head of a signed text
    {FiltroImporto, 2, "-", 1, 0, '-', kRefused},
    {FiltroImporto, 2, "-5", 1, 0, ',', kRefused},
    {FiltroImporto, 2, "-5", 2, 0, ',', ','},
    {FiltroImporto, 2, "5", 1, 0, ',', ','},
    {FiltroImporto, 2, "1,2", 3, 0, ',', kRefused},
    {FiltroImporto, 2, "1,2", 1, 1, ',', kRefused},  // the old comma counts even where it is selected
    {FiltroImporto, 2, "1,2", 0, 3, ',', kRefused},
    {FiltroImporto, 2, "1,2", 3, 0, '5', '5'},
    {FiltroImporto, 2, "1,25", 4, 0, '5', kRefused},
    {FiltroImporto, 2, "1,25", 0, 0, '5', kRefused},  // wherever the caret stands
    {FiltroImporto, 2, "1,25", 1, 0, '5', kRefused},
    {FiltroImporto, 2, "1,25", 0, 0, '-', kRefused},  // the sign too
    {FiltroImporto, 2, "1,25", 0, 1, '5', '5'},
    {FiltroImporto, 2, "1,25", 0, 1, '-', '-'},
    {FiltroImporto, 2, "1,25", 4, 0, 8, 8},
    {FiltroImporto, 2, "1,25", 4, 0, 27, 27},
    {FiltroImporto, 2, "1,255", 0, 0, '5', kRefused},  // longer decimals that the host put in
    {FiltroImporto, 0, "1,", 2, 0, '5', kRefused},
    {FiltroImporto, 0, "1", 1, 0, ',', ','},
    {FiltroImporto, 2, "1234567890123456789", 19, 0, '0', '0'},  // no limit before the comma
    {FiltroImporto, 2, "1,2,3", 0, 0, '5', kRefused},            // the decimals stand behind the first comma
    {FiltroImporto, 2, "1,è", 0, 0, '5', '5'},                   // characters are counted, not bytes
    // Numbers without one differ in nothing but the sign.
    {FiltroNumero, 2, "", 0, 0, '7', '7'},
    {FiltroNumero, 2, "", 0, 0, '-', kRefused},
    {FiltroNumero, 2, "12", 0, 2, '-', kRefused},
    {FiltroNumero, 2, "", 0, 0, '.', kRefused},
    {FiltroNumero, 2, "1", 1, 0, '.', ','},
    {FiltroNumero, 2, "-", 1, 0, ',', ','},
    {FiltroNumero, 2, "-5", 1, 0, '.', ','},
    {FiltroNumero, 2, "1,2", 0, 3, ',', kRefused},
    {FiltroNumero, 2, "1,25", 0, 0, '5', kRefused},
    {FiltroNumero, 2, "1,25", 4, 0, '5', kRefused},
    {FiltroNumero, 2, "1,25", 2, 1, '5', '5'},
    {FiltroNumero, 2, "1,25", 4, 0, 8, 8},
    {FiltroNumero, 2, "1,25", 4, 0, 27, 27},
    {FiltroNumero, 3, "1,25", 4, 0, '5', '5'},
    {FiltroNumero, 2, "", 0, 0, 'x', kRefused},
    // Digits.
    {FiltroCifre, 2, "", 0, 0, '0', '0'},
    {FiltroCifre, 2, "", 0, 0, '9', '9'},
    {FiltroCifre, 2, "", 0, 0, '/', kRefused},
    {FiltroCifre, 2, "", 0, 0, ':', kRefused},
    {FiltroCifre, 2, "", 0, 0, ',', kRefused},
    {FiltroCifre, 2, "", 0, 0, '-', kRefused},
    {FiltroCifre, 2, "", 0, 0, 'a', kRefused},
    {FiltroCifre, 2, "1", 1, 0, '2', '2'},
    {FiltroCifre, 2, "12", 2, 0, '3', kRefused},
    {FiltroCifre, 2, "12", 0, 0, '3', kRefused},
    {FiltroCifre, 2, "12", 0, 2, '3', '3'},
    {FiltroCifre, 2, "12", 0, 1, '3', '3'},
    {FiltroCifre, 2, "12", 0, 2, 'a', kRefused},
    {FiltroCifre, 2, "12", 2, 0, 8, 8},
    {FiltroCifre, 2, "12", 2, 0, 27, 27},
    {FiltroCifre, 2, "12", 0, 2, 27, 27},
    {FiltroCifre, 2, "123", 3, 0, '4', '4'},  // equality only: a longer text goes on
    {FiltroCifre, 0, "123456", 6, 0, '7', '7'},
    {FiltroCifre, -1, "123456", 6, 0, '7', '7'},
    {FiltroCifre, 0, "", 0, 0, '7', '7'},
    {FiltroCifre, 1, "1", 1, 0, '2', kRefused},
    {FiltroCifre, 0, "1", 1, 0, 'b', kRefused},
    {FiltroCifre, 2, "èé", 2, 0, '3', kRefused},  // two characters in four bytes
    // Text.
    {FiltroTesto, 5, "", 0, 0, 'a', 'A'},
    {FiltroTesto, 5, "", 0, 0, 'z', 'Z'},
    {FiltroTesto, 5, "", 0, 0, '`', '`'},  // the neighbours of the letters
    {FiltroTesto, 5, "", 0, 0, '{', '{'},
    {FiltroTesto, 5, "", 0, 0, 'A', 'A'},
    {FiltroTesto, 5, "", 0, 0, '7', '7'},
    {FiltroTesto, 5, "", 0, 0, '\'', '\''},
    {FiltroTesto, 5, "", 0, 0, '!', '!'},
    {FiltroTesto, 5, "", 0, 0, 0xE8, 0xE8},  // an accented letter stays as typed
    {FiltroTesto, 5, "ABCDE", 5, 0, 'f', kRefused},
    {FiltroTesto, 5, "ABCDE", 0, 0, 'f', kRefused},
    {FiltroTesto, 5, "ABCDE", 0, 1, 'f', 'F'},
    {FiltroTesto, 5, "ABCDE", 5, 0, 8, 8},
    {FiltroTesto, 5, "ABCDE", 5, 0, 27, 27},
    {FiltroTesto, 5, "ABCDEF", 6, 0, 'g', 'G'},  // a longer text that the host put in
    {FiltroTesto, 5, "ABCDÈ", 5, 0, 'f', kRefused},
    {FiltroTesto, 0, "", 0, 0, 'a', kRefused},  // a limit of 0 refuses every key on an empty field
    {FiltroTesto, 0, "", 0, 0, 8, 8},
    {FiltroTesto, 0, "A", 1, 0, 'b', 'B'},
};

std::string nameOf(fields::Filter filter) {
  if (filter == FiltroImporto) return "FiltroImporto";
  if (filter == FiltroNumero) return "FiltroNumero";
  return filter == FiltroCifre ? "FiltroCifre" : "FiltroTesto";
}

class KeyFilters : public FieldBench {};
QVN_ON_EVERY_PLATFORM(KeyFilters);

TEST_P(KeyFilters, TakeRefuseAndChangeKeys) {
  for (const FilteredKey& c : kCases) {
    SCOPED_TRACE(nameOf(c.filter) + " " + std::to_string(c.limit) + " on \"" + c.text + "\" [" +
                 std::to_string(c.start) + "," + std::to_string(c.length) + "] key " + std::to_string(c.key));
    toolkit::TextBox& box = field("A");
    box.Text(c.text);
    box.SelStart(c.start);
    box.SelLength(c.length);
    const auto beepsBefore = beeps();
    std::int16_t key = c.key;
    c.filter(box, key, c.limit);
    EXPECT_EQ(key, c.becomes);
    EXPECT_EQ(beeps() - beepsBefore, c.becomes == kRefused ? 1 : 0);
    EXPECT_EQ(box.Text(), c.text);
  }
}

TEST_P(KeyFilters, EnterIsNeverPutIntoTheFieldAndGoesToTheNextOne) {
  for (const fields::Filter filter : {FiltroImporto, FiltroNumero, FiltroCifre, FiltroTesto}) {
    SCOPED_TRACE(nameOf(filter));
    field("A").SetFocus();
    std::int16_t key = 13;
    filter(field("A"), key, 0);  // on an empty field that takes no further key
    EXPECT_EQ(key, 0);
    EXPECT_TRUE(field("B").hasFocus());
    EXPECT_EQ(beeps(), 0);
  }
}

struct Typing {
  fields::Filter filter;
  std::int16_t limit;
  std::string keys;
  std::string text;
  int beeps;
};

TEST_P(KeyFilters, HoldWhileTheOperatorTypes) {
  const std::vector<Typing> typings{
      {FiltroNumero, 2, ".", "", 1},           {FiltroNumero, 2, "1.", "1,", 0},
      {FiltroNumero, 2, "1.255", "1,25", 1},   {FiltroNumero, 2, "1.25{Backspace}7", "1,27", 0},
      {FiltroNumero, 2, "-5", "5", 1},         {FiltroNumero, 2, "1,25{Home}9", "1,25", 1},
      {FiltroImporto, 2, "-,5", "-5", 1},      {FiltroImporto, 2, "-12.5", "-12,5", 0},
      {FiltroImporto, 2, "--", "-", 1},        {FiltroImporto, 2, "-{Home}-", "--", 0},
      {FiltroImporto, 2, "1{Home}-", "-1", 0}, {FiltroCifre, 2, "123", "12", 1},
      {FiltroCifre, 2, "1a2", "12", 1},        {FiltroCifre, 2, "12{Backspace}3", "13", 0},
      {FiltroCifre, 2, "12{Escape}", "12", 0}, {FiltroTesto, 5, "abcdef", "ABCDE", 1},
      {FiltroTesto, 5, "àb'1!", "àB'1!", 0},   {FiltroTesto, 5, "a{Escape}", "A", 0},
  };
  for (const Typing& typing : typings) {
    SCOPED_TRACE(nameOf(typing.filter) + " " + typing.keys);
    toolkit::TextBox& box = field("A");
    box.Text("");
    box.KeyPress = [&](std::int16_t& key) { typing.filter(box, key, typing.limit); };
    box.SetFocus();
    const auto beepsBefore = beeps();
    hands().type(typing.keys);
    EXPECT_EQ(box.Text(), typing.text);
    EXPECT_EQ(beeps() - beepsBefore, typing.beeps);
  }
}

TEST_P(KeyFilters, SelectingOneDigitAndTypingReplacesIt) {
  toolkit::TextBox& box = field("A");
  box.KeyPress = [&](std::int16_t& key) { FiltroNumero(box, key, 2); };
  box.Text("1,25");
  box.SetFocus();
  hands().caret(3, 1);
  hands().type("9");
  EXPECT_EQ(box.Text(), "1,29");
  EXPECT_EQ(beeps(), 0);
}

}  // namespace
}  // namespace qvn::test
