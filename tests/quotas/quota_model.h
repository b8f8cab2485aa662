// What a quota is worth, written a second time from its rules alone: the field with its keys, its corrections, the
// amounts that follow it and what is announced, in exact integer arithmetic. Shares no code with the library.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/commissions/exact_number.h"
#include "tests/commissions/text_field_model.h"

namespace qvn::test {

/// One thing that the operator or the host does.
struct QuotaStep {
  enum class Do : std::uint8_t {
    Focus,  ///< on the quota
    Leave,
    Caret,
    Type,  ///< goes to the quota first
    Paste,
    Tick,   ///< clicks the check box
    Write,  ///< a text into the quota's field, by program
    LetQuota,
    GetQuota,
    LetLead,
    Figures,
    Apply,
    ApplyOfLead,
    Attiva,
    Disattiva,
    Show,
  };

  Do what = Do::Leave;
  std::string text = {};
  std::int16_t number = 0;  ///< of thousandths; 0 for false; start of a selection
  int length = 0;
  std::vector<std::size_t> extents = {};   ///< of the array of figures
  std::vector<std::int64_t> figures = {};  ///< in ten-thousandths, row after row
};

std::string toldInWords(const QuotaStep& step);

/// Makes steps at random, the same for the same seed on every machine.
class QuotaSteps {
 public:
  QuotaSteps(std::uint64_t seed, bool ofPolicy) : random_(seed), ofPolicy_(ofPolicy) {}
  QuotaStep next();

 private:
  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }
  std::string keys();
  std::string fieldText();
  std::int64_t figure();
  std::int16_t thousandths();
  QuotaStep figuresOfSomeShape();

  std::mt19937_64 random_;
  bool ofPolicy_;
};

/// What a step leaves behind and what happened in it, of the panel or of its model.
struct QuotaSeen {
  std::string text = {};
  std::size_t selStart = 0;
  std::size_t selLength = 0;
  bool focused = false;
  bool lead = false;
  std::vector<std::string> captions = {};
  std::string failure = {};  ///< of the step itself, by its kind
  std::string value = {};    ///< that a get gave
  std::vector<std::string> events = {};

  friend bool operator==(const QuotaSeen&, const QuotaSeen&) = default;
};

std::string toldInWords(const QuotaSeen& seen);

/// What could be taken otherwise, so that a test can get one rule wrong.
struct QuotaRules {
  int most = 1000;
  bool disabledIsApplied = false;
  bool tickIsApplied = false;
  bool leadAddsToBothFamilies = true;
  bool leadIsRoundedFirst = true;
  bool correctionIsAnnouncedTwice = true;
  bool correctionIsSelected = true;
  bool figuresFillTheField = true;
  bool argumentIsApplied = true;  ///< or the field's quota
  bool shortArrayKeepsItsHead = true;
  bool emptyReadsZero = true;
  Ties leadTies = Ties::ToEven;
};

class QuotaModel {
 public:
  /// A new panel, of a policy or of a claim.
  QuotaModel(const QuotaRules& rules, bool ofPolicy);

  /// Does the step, and forgets what happened before. Throws Undecided where the rules do not tell what comes of it;
  /// the model is of no use then.
  void play(const QuotaStep& step);
  QuotaSeen seen() const;

 private:
  static constexpr std::size_t kRows = 3;
  enum class Focus : std::uint8_t { Nowhere, Quota, CheckBox };

  std::string text() const { return encoded(field_.text); }
  void write(std::string_view text);
  void changed();
  void correct(std::string_view text);
  void apply(std::int16_t thousandths, bool ofLead);
  std::string worth(std::int64_t whole, std::int64_t inFull, std::int16_t thousandths, bool ofLead) const;
  std::int16_t thousandthsOf(std::string_view text) const;
  std::int16_t quota() const;
  void takeFigures(const QuotaStep& step);
  void carryOut(const QuotaStep& step);
  void goToQuota();
  void key(std::string_view key);
  bool insert(char32_t character);
  void byHand();
  void tick();

  const QuotaRules* rules_;
  bool ofPolicy_;
  bool enabled_ = false;
  bool visible_ = true;
  bool lead_ = false;
  Focus focus_ = Focus::Nowhere;
  TextFieldModel field_;
  std::array<std::array<std::int64_t, 3>, kRows> figures_{};
  std::vector<std::string> captions_;
  std::string failure_;
  std::string value_;
  std::vector<std::string> events_;
};

/// The keys of a text of keys, one by one: "1{Delete}" has two.
std::vector<std::string> quotaKeys(const std::string& keys);

}  // namespace qvn::test
