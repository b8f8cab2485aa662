// The steps of a session, at random, and as the session player's requests.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace qvn::test {

/// A value that a host hands over.
struct Given {
  enum class Kind : std::uint8_t { Empty, Null, Boolean, Integer, Double, Currency, Decimal, Text, Array };

  Kind kind = Kind::Empty;
  std::string text = {};                               ///< numbers with a point, booleans "true" and "false"
  std::vector<std::vector<std::string>> figures = {};  ///< of an array; amounts with a point
  bool flat = false;                                   ///< the array has one dimension, the first row
};

struct Step {
  enum class Do : std::uint8_t {
    Connect,
    Answer,  ///< with a text of "null", answers MancaDB no longer
    Disconnect,
    Show,  ///< hides the panel where number is 0
    Let,
    Get,
    Call,
    Focus,
    Leave,
    Type,
    Caret,
    Paste,
    Choose,
  };

  Do what = Do::Leave;
  std::string name = {};  ///< of the member or the widget
  std::string text = {};  ///< keys, or what is pasted
  std::vector<Given> given = {};
  int number = 0;  ///< place in a list, start of a selection
  int length = 0;
};

/// A panel's life: what was said before it was made, and what is done with it then.
struct Session {
  bool connected = true;
  bool visible = true;
  std::vector<Step> steps = {};
};

/// The keys of a text of keys, one by one: "1{Enter}" has two.
std::vector<std::string> keysOf(const std::string& keys);

/// Makes steps at random, the same for the same seed on every machine.
class StepMaker {
 public:
  explicit StepMaker(std::uint64_t seed) : random_(seed) {}

  Session session();
  Step step();

 private:
  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }
  bool chance(std::size_t percent) { return below(100) < percent; }
  template <class Table>
  const auto& anyOf(const Table& table) {
    return table[below(table.size())];
  }

  std::size_t anyBox(bool ofAmount);
  Step letBox();
  Step letOther();
  Step letCode();
  Step getAny();
  Step callAny();
  Step handAct();
  std::string digits(std::size_t most);
  std::string decimal(std::size_t wholeDigits, std::size_t decimals);
  Given amount();
  Given percent();
  Given figures();
  std::string keys();

  std::mt19937_64 random_;
  bool hugeAmounts_ = false;  // in the session at hand
};

/// One request of the session player, as one line of JSON.
std::string requestOf(const Step& step);
/// The whole session as lines that the session player takes, behind comments that tell the database's rows.
std::string requestsOf(const Session& session);

}  // namespace qvn::test
