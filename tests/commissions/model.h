// The panel of a policy's commissions, written a second time from its rules alone: texts, chains of changes, focus,
// keys and lookups, in exact integer arithmetic. Shares no code with the library.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/commissions/exact_number.h"
#include "tests/commissions/office_rows.h"
#include "tests/commissions/seen.h"
#include "tests/commissions/steps.h"
#include "tests/commissions/text_field_model.h"

namespace qvn::test {

/// What sets like boxes and parties apart, so that a test can get one of them wrong. Tables are by party, then
/// component.
struct Rules {
  template <class Value>
  using ByCell = std::array<std::array<Value, 3>, 3>;

  ByCell<std::string_view> emptyPercent{{{"0,00", "0,00", "0"}, {"0,00", "0,00", "0"}, {"0,00", "0,00", "0,00"}}};
  ByCell<bool> amountRunsTotals{{{false, false, true}, {false, false, false}, {false, false, false}}};
  std::array<LabelNumber, 3> premium{kLblPN, kLblACC, kLblPN};
  std::array<bool, 3> listRunsTotalsItself{false, false, true};
  std::array<bool, 3> captionHasPercent{false, false, true};
  std::array<std::string_view, 3> listNotice{"", "CALCOLO_PROD", "CALCOLO_PROD_ALT"};
  Ties amountTies = Ties::AwayFromZero;
  bool quotaReadsLeadingNumber = true;  ///< or the number itself
  bool summaryReadsBothRates = true;    ///< or the producer's alone
};

class CommissionsModel {
 public:
  /// A new panel. What happened in its making is in seen().
  CommissionsModel(const Rules& rules, bool connected, bool visible);

  /// Does the step, and forgets what happened before. Throws Undecided where the rules do not tell what comes of it;
  /// the model is of no use then.
  void play(const Step& step);
  Seen seen() const;

 private:
  enum class Connection : std::uint8_t { NeverOpened, Open, Closed };

  // Widgets.
  void happened(std::string_view what, std::string_view name) { events_.push_back(std::string(what).append(name)); }
  void write(std::size_t box, std::string_view text);
  void changed(std::size_t box);
  void caption(LabelNumber label, const std::string& text);
  void select(std::size_t list, int item);
  bool usable(std::size_t field) const;
  void enable(std::size_t party, bool enabled);
  void show(bool visible);
  void checkFocus();
  std::string text(std::size_t box) const { return encoded(fields_[box].text); }

  // Handlers.
  void gotFocus(std::size_t field);
  void lostFocus(std::size_t field);
  void keyPress(std::size_t box, char32_t& key);

  // Rules.
  bool onPremium(std::size_t party) const;
  std::string baseOf(std::size_t party, std::size_t component) const;
  void quotaRule();
  bool quotaReruns(std::size_t box) const;
  void percentRule(std::size_t party, std::size_t component);
  void recompute(std::size_t party);
  void totals();
  void values(const Given& array);
  void percAlt();
  void activate();
  void deactivate();

  // Lookups. The code loses its quotes.
  void fireMancaDB();
  bool asks(std::string& code, std::string_view select);
  std::int64_t withholding(std::string& code);
  std::string producer(std::string& code, bool percent);
  std::string company(std::string& code);

  // Members by name.
  void let(const std::string& name, const Given& value);
  void letCode(std::size_t party, std::string code);
  void letCompany(std::string code);
  void letAmount(std::size_t box, const Given& value);
  void letPercent(std::size_t box, const Given& value);
  std::string get(const std::string& name) const;
  void call(const Step& step);

  // The operator.
  template <class Act>
  void byHand(std::size_t field, std::string_view event, Act act);
  template <class OnFailure>
  void move(std::optional<std::size_t> to, OnFailure onFailure);
  void moveByProgram(std::optional<std::size_t> to);
  void moveByHand(std::optional<std::size_t> to);
  void setFocus(std::size_t field);
  void focusByHand(const std::string& widget);
  void type(const std::string& keys);
  void press(std::size_t field, const std::string& key);
  void pressInList(std::size_t list, const std::string& key);
  void tab(std::size_t from, bool backwards);
  bool typeInto(std::size_t box, char32_t key);
  void paste(const std::string& text);
  void choose(const std::string& list, int item);
  std::size_t focusedBox() const;

  const Rules* rules_;
  Connection connection_;
  bool answering_ = false;
  bool visible_ = true;
  std::array<TextFieldModel, kFieldCount> fields_;
  std::array<std::uint32_t, kFieldCount> backs_{};
  std::array<int, 3> modes_{-1, -1, -1};  // of the lists, by party
  std::array<std::string, kLabels.size()> captions_;
  std::array<bool, 3> enabled_{};
  std::array<std::string, 3> codes_;
  std::string companyCode_;
  std::int16_t quota_ = 0;
  std::array<std::int64_t, 3> shared_{};
  std::array<std::int64_t, 3> lead_{};
  bool isLead_ = false;
  std::optional<std::size_t> focus_;
  std::string failure_;
  std::string value_;
  std::vector<std::string> events_;
};

}  // namespace qvn::test
