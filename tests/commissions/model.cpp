#include "tests/commissions/model.h"

#include <algorithm>

namespace qvn::test {

namespace {

using Kind = Given::Kind;

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kCyan = 0xFFFF00;

/// The box behind a property, or nothing.
std::optional<std::size_t> boxBehind(std::string_view property) {
  for (std::size_t field = 0; field < kFieldCount; ++field) {
    if (!isList(field) && propertyOf(field) == property) return field;
  }
  return std::nullopt;
}

std::size_t listOf(std::size_t party) { return party == kProducer ? 6 : 13; }

/// The value as a number; Empty is 0.
Exact numberGiven(const Given& given) {
  switch (given.kind) {
    case Kind::Empty:
      return {};
    case Kind::Null:
      throw ModelFailed{ModelFailure::InvalidUseOfNull};
    case Kind::Boolean:
      return {.count = given.text == "true" ? -1 : 0, .scale = 0};
    case Kind::Text: {
      const auto number = numberOf(given.text);
      if (!number) throw ModelFailed{ModelFailure::TypeMismatch};
      return *number;
    }
    case Kind::Array:
      throw ModelFailed{ModelFailure::TypeMismatch};
    default:
      return pointed(given.text);
  }
}

std::int64_t wholeGiven(const Given& given, std::int64_t least, std::int64_t most) {
  const Whole whole = rounded(numberGiven(given), 0, Ties::ToEven);
  if (whole < least || whole > most) throw ModelFailed{ModelFailure::Overflow};
  return static_cast<std::int64_t>(whole);
}

std::string textGiven(const Given& given) {
  if (given.kind == Kind::Text) return given.text;
  if (given.kind == Kind::Empty) return {};
  return generalForm(numberGiven(given));
}

template <std::size_t Size, class Row>
const Row* rowOf(const std::array<Row, Size>& table, std::string_view code) {
  const auto* const found = std::ranges::find(table, code, &Row::code);
  return found == table.end() ? nullptr : found;
}

std::string columnText(std::string_view value) {
  if (value.empty()) throw ModelFailed{ModelFailure::InvalidUseOfNull};
  return std::string(value);
}

/// What is worked out must fit the currency type, though more could be shown.
std::string fittingForm(const Exact& value, Ties ties = Ties::AwayFromZero) {
  currencyOf(value);
  return currencyForm(value, ties);
}

std::string currencyValue(std::int64_t amount) { return "currency " + std::to_string(amount); }

}  // namespace

CommissionsModel::CommissionsModel(const Rules& rules, bool connected, bool visible)
    : rules_(&rules), connection_(connected ? Connection::Open : Connection::NeverOpened) {
  backs_.fill(kWhite);
  for (std::size_t field = 0; field < kFieldCount; ++field) {
    if (!isList(field)) fields_[field].text.assign(1, U'0');
  }
  for (const LabelNumber label : {kLblQUOTA, kLblPN, kLblACC, kLblPL, kPROVV_ATTIVE, kPROVV_PASSIVE, kRIT_ACCONTO}) {
    captions_[label].assign(1, '0');
  }
  for (std::size_t party = 0; party < 3; ++party) {
    for (std::size_t component = 0; component < 3; ++component) {
      write(percentBox(party, component), plainForm(Exact{}));
      write(amountBox(party, component), plainForm(Exact{}));
    }
  }
  show(visible);
}

void CommissionsModel::play(const Step& step) {
  using Do = Step::Do;
  events_.clear();
  failure_.clear();
  value_.clear();
  try {
    switch (step.what) {
      case Do::Connect:
        if (connection_ == Connection::NeverOpened) connection_ = Connection::Open;
        return;
      case Do::Answer:
        answering_ = step.text != "null";
        return;
      case Do::Disconnect:
        if (connection_ == Connection::Open) connection_ = Connection::Closed;
        return;
      case Do::Show:
        return show(step.number != 0);
      case Do::Let:
        return let(step.name, step.given.front());
      case Do::Get:
        value_ = get(step.name);
        return;
      case Do::Call:
        return call(step);
      case Do::Focus:
        return focusByHand(step.name);
      case Do::Leave:
        if (focus_) moveByHand(std::nullopt);
        return;
      case Do::Type:
        return type(step.text);
      case Do::Caret:
        return fields_[focusedBox()].select(step.number, step.length);
      case Do::Paste:
        return paste(step.text);
      case Do::Choose:
        return choose(step.name, step.number);
    }
  } catch (const ModelFailed& failed) {
    failure_ = nameOf(failed.kind);
  }
}

Seen CommissionsModel::seen() const {
  Seen seen;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const int mode = isList(i) ? modes_[partyOf(i)] : -1;
    seen.fields[i] = {.text = mode < 0 ? text(i) : std::string(kModes[static_cast<std::size_t>(mode)]),
                      .selStart = fields_[i].start,
                      .selLength = fields_[i].length,
                      .back = backs_[i]};
  }
  seen.captions = captions_;
  seen.enabled = {enabled_[kOffice], enabled_[kProducer], enabled_[kAlternate], true, true};
  if (focus_) seen.focus = kFields[*focus_];
  seen.failure = failure_;
  seen.value = value_;
  seen.events = events_;
  return seen;
}

void CommissionsModel::write(std::size_t box, std::string_view text) {
  std::u32string written = decoded(text);
  if (written == fields_[box].text) return;
  fields_[box].text = std::move(written);
  fields_[box].caret(0);
  changed(box);
}

void CommissionsModel::changed(std::size_t box) {
  const std::size_t party = partyOf(box);
  const std::size_t component = componentOf(box);
  happened("notice ", propertyOf(box));
  if (fields_[box].text.empty()) {
    write(box, isAmount(box) ? plainForm(Exact{}) : rules_->emptyPercent[party][component]);
    fields_[box].selectAll();
  }
  if (!isAmount(box)) return percentRule(party, component);
  if (rules_->amountRunsTotals[party][component]) totals();
}

void CommissionsModel::caption(LabelNumber label, const std::string& text) {
  if (captions_[label] == text) return;
  captions_[label] = text;
  if (label == kLblQUOTA) quotaRule();
  if (label == kPROVV_ATTIVE) happened("notice ", "P_ATTIVE");
  if (label == kPROVV_PASSIVE) happened("notice ", "P_PASSIVE");
}

void CommissionsModel::select(std::size_t list, int item) {
  modes_[partyOf(list)] = item;
  happened("notice ", rules_->listNotice[partyOf(list)]);
}

bool CommissionsModel::usable(std::size_t field) const { return visible_ && enabled_[partyOf(field)]; }

void CommissionsModel::enable(std::size_t party, bool enabled) {
  enabled_[party] = enabled;
  checkFocus();
}

void CommissionsModel::show(bool visible) {
  visible_ = visible;
  checkFocus();
}

void CommissionsModel::checkFocus() {
  if (focus_ && !usable(*focus_)) moveByProgram(std::nullopt);
}

void CommissionsModel::gotFocus(std::size_t field) {
  if (!isList(field)) write(field, plainForm(text(field)));
  backs_[field] = kCyan;
  if (!isList(field)) fields_[field].selectAll();
}

void CommissionsModel::lostFocus(std::size_t field) {
  if (!isList(field)) write(field, isAmount(field) ? currencyForm(text(field)) : plainForm(text(field)));
  backs_[field] = kWhite;
  if (isList(field)) {
    recompute(partyOf(field));
    if (rules_->listRunsTotalsItself[partyOf(field)]) totals();
  }
  totals();
}

void CommissionsModel::keyPress(std::size_t box, char32_t& key) {
  if (key == U'\r') {
    key = 0;
    return setFocus((box + 1) % kFieldCount);
  }
  key = fields_[box].filtered(key);
  if (key == 0) events_.emplace_back("beep");
}

bool CommissionsModel::onPremium(std::size_t party) const { return party == kOffice || modes_[party] == 0; }

std::string CommissionsModel::baseOf(std::size_t party, std::size_t component) const {
  return onPremium(party) ? captions_[rules_->premium[component]] : text(amountBox(kOffice, component));
}

void CommissionsModel::quotaRule() {
  for (std::size_t i = 0; i < 3; ++i) {
    const std::int64_t quota = currencyOf(captions_[kLblQUOTA]);
    const Computed share = Computed::product(amount(shared_[i]), amount(quota), 3);
    const std::int64_t lead = lead_[i];
    caption(static_cast<LabelNumber>(kLblPN + i), share.decided([&](const Exact& value) {
      const std::int64_t fitting = currencyOf(value);
      return currencyForm(isLead_ ? amount(sumOf(fitting, lead)) : value);
    }));
  }
  for (std::size_t party = 0; party < 3; ++party) {
    for (std::size_t component = 0; component < 3; ++component) {
      const std::size_t box = percentBox(party, component);
      if (quotaReruns(box)) changed(box);
    }
  }
}

bool CommissionsModel::quotaReruns(std::size_t box) const {
  if (rules_->quotaReadsLeadingNumber) return leading(text(box)).count != 0;
  const auto number = numberOf(text(box));
  return number && number->count != 0;
}

void CommissionsModel::percentRule(std::size_t party, std::size_t component) {
  const std::string percent = text(percentBox(party, component));
  if (percent.empty() || !enabled_[party]) return;
  const std::int64_t base = currencyOf(baseOf(party, component));
  const Computed product = Computed::product(amount(base), amount(currencyOf(percent)), 2);
  write(amountBox(party, component),
        product.decided([this](const Exact& value) { return fittingForm(value, rules_->amountTies); }));
}

void CommissionsModel::recompute(std::size_t party) {
  for (std::size_t component = 0; component < 3; ++component) percentRule(party, component);
}

void CommissionsModel::totals() {
  quotaRule();
  const auto sumOfParties = [this](std::initializer_list<std::size_t> parties) {
    std::int64_t sum = 0;
    for (const std::size_t party : parties) {
      for (std::size_t component = 0; component < 3; ++component) {
        sum = sumOf(sum, currencyOf(text(amountBox(party, component))));
      }
    }
    return sum;
  };
  caption(kPROVV_ATTIVE, currencyForm(amount(sumOfParties({kOffice}))));
  caption(kPROVV_PASSIVE, currencyForm(amount(sumOfParties({kProducer, kAlternate}))));
  const std::int64_t rate = withholding(codes_[kProducer]);
  const std::int64_t alternateRate = rules_->summaryReadsBothRates ? withholding(codes_[kAlternate]) : rate;
  const Exact alternate = amount(sumOfParties({kAlternate}));
  const Exact own = amount(sumOfParties({kProducer}));
  const Computed both =
      Computed::product(alternate, amount(alternateRate), 2) + Computed::product(own, amount(rate), 2);
  caption(kRIT_ACCONTO, both.decided([](const Exact& value) { return fittingForm(value); }));
}

void CommissionsModel::values(const Given& array) {
  if (array.kind != Kind::Array) throw ModelFailed{ModelFailure::TypeMismatch};
  for (std::size_t column = 0; column < 2; ++column) {
    for (std::size_t row = 0; row < 3; ++row) {
      if (array.flat || row >= array.figures.size() || column >= array.figures[row].size()) {
        throw ModelFailed{ModelFailure::SubscriptOutOfRange};
      }
      const std::int64_t figure = currencyOf(currencyForm(pointed(array.figures[row][column])));
      (column == 0 ? shared_ : lead_)[row] = figure;
    }
  }
  quotaRule();
}

void CommissionsModel::percAlt() {
  const std::string& shown = captions_[kLblPRODUTTORE_ALT];
  const std::size_t bracket = shown.find('(');
  const Exact share = leading(bracket == std::string::npos ? shown : shown.substr(bracket + 1));
  const Whole whole = rounded(share, 0, Ties::ToEven);
  if (whole < -32768 || whole > 32767) throw ModelFailed{ModelFailure::Overflow};
  for (std::size_t component = 0; component < 3; ++component) {
    const auto percent = numberOf(text(percentBox(kProducer, component)));
    if (!percent) throw ModelFailed{ModelFailure::TypeMismatch};
    const Computed product = Computed::product(*percent, {.count = whole, .scale = 0}, 2);
    write(percentBox(kAlternate, component), product.decided([](const Exact& value) { return plainForm(value); }));
  }
}

void CommissionsModel::activate() {
  const auto attempt = [](auto statement) {
    try {
      statement();
    } catch (const ModelFailed&) {  // NOLINT(bugprone-empty-catch): skipped, and the next statement runs
    }
  };
  attempt([&] { enable(kOffice, true); });
  for (const std::size_t party : {kProducer, kAlternate}) {
    attempt([&] {
      if (!codes_[party].empty()) enable(party, true);
    });
  }
  attempt([&] { fields_[0].selectAll(); });
  attempt([&] { setFocus(0); });
}

void CommissionsModel::deactivate() {
  for (std::size_t party = 0; party < 3; ++party) enable(party, false);
}

void CommissionsModel::fireMancaDB() {
  if (connection_ == Connection::Open) return;
  events_.emplace_back("mancadb");
  if (answering_ && connection_ == Connection::NeverOpened) connection_ = Connection::Open;
}

bool CommissionsModel::asks(std::string& code, std::string_view select) {
  fireMancaDB();
  std::erase(code, '\'');
  if (code.empty()) return false;
  if (connection_ != Connection::Open) throw ModelFailed{ModelFailure::Database};
  events_.push_back(std::string("sql ").append(select).append(code).append("'"));
  return true;
}

std::int64_t CommissionsModel::withholding(std::string& code) {
  if (!asks(code, kSelectR_ACC)) return 0;
  const ProducerRow* row = rowOf(kProducers, code);
  return row == nullptr ? 0 : currencyOf(pointed(columnText(row->withholding)));
}

std::string CommissionsModel::producer(std::string& code, bool percent) {
  if (!asks(code, kSelectPRODUTTORE)) return {};
  const ProducerRow* row = rowOf(kProducers, code);
  if (row == nullptr) return {};
  std::string name = columnText(row->name);
  if (!percent) return name;
  return name.append(" (").append(row->percent.empty() ? "" : generalForm(pointed(row->percent))).append("%)");
}

std::string CommissionsModel::company(std::string& code) {
  if (!asks(code, kSelectCOMPAGNIA)) return {};
  const CompanyRow* row = rowOf(kCompanies, code);
  return row == nullptr ? std::string() : columnText(row->name);
}

void CommissionsModel::let(const std::string& name, const Given& value) {
  if (const auto box = boxBehind(name)) return isAmount(*box) ? letAmount(*box, value) : letPercent(*box, value);
  if (name == "COD_COMPAGNIA") return letCompany(textGiven(value));
  if (name == "COD_PRODUTTORE") return letCode(kProducer, textGiven(value));
  if (name == "COD_PRODUTTORE_ALT") return letCode(kAlternate, textGiven(value));
  if (name == "DELEGATARIA") {
    isLead_ = numberGiven(value).count != 0;
  } else if (name == "QUOTA") {
    const auto quota = static_cast<std::int16_t>(wholeGiven(value, -32768, 32767));
    if (quota == quota_) return;
    quota_ = quota;
    caption(kLblQUOTA, std::to_string(quota));
  } else if (name.starts_with("CALC_")) {
    const std::size_t party = name == "CALC_PROD" ? kProducer : kAlternate;
    const std::int64_t mode = wholeGiven(value, 0, 255);
    if (mode < 1 || mode > 2 || modes_[party] == mode - 1) return;
    select(listOf(party), static_cast<int>(mode - 1));
  }
}

void CommissionsModel::letCode(std::size_t party, std::string code) {
  if (code == codes_[party]) return;
  codes_[party] = std::move(code);
  const LabelNumber label = party == kProducer ? kLblPRODUTTORE : kLblPRODUTTORE_ALT;
  if (codes_[party].empty()) {
    caption(label, "");
    return enable(party, false);
  }
  const std::string head = codes_[party] + " - ";
  caption(label, head + producer(codes_[party], rules_->captionHasPercent[party]));
  enable(party, true);
}

void CommissionsModel::letCompany(std::string code) {
  if (code == companyCode_) return;
  companyCode_ = std::move(code);
  const std::string head = companyCode_ + " - ";
  caption(kLblCOMPAGNIA, head + company(companyCode_));
}

void CommissionsModel::letAmount(std::size_t box, const Given& value) {
  const std::int64_t wanted = currencyOf(numberGiven(value));
  if (currencyOf(text(box)) != wanted) write(box, currencyForm(amount(wanted)));
}

void CommissionsModel::letPercent(std::size_t box, const Given& value) {
  const Exact shown = decimalOf(text(box));
  if (value.kind == Kind::Null) return;
  if (value.kind == Kind::Text) return write(box, plainForm(value.text));
  const Exact wanted = numberGiven(value);
  if (equal(shown, wanted)) return;
  write(box, value.kind == Kind::Empty ? std::string() : plainForm(wanted));
}

std::string CommissionsModel::get(const std::string& name) const {
  if (const auto box = boxBehind(name)) {
    if (isAmount(*box)) return currencyValue(currencyOf(text(*box)));
    return "decimal " + generalForm(decimalOf(text(*box)));
  }
  if (name == "P_ATTIVE") return currencyValue(currencyOf(captions_[kPROVV_ATTIVE]));
  if (name == "P_PASSIVE") return currencyValue(currencyOf(captions_[kPROVV_PASSIVE]));
  if (name == "QUOTA") return "16-bit integer " + std::to_string(quota_);
  if (name == "CALC_PROD") return "8-bit unsigned integer " + std::to_string(modes_[kProducer] + 1);
  if (name == "CALC_PROD_ALT") return "8-bit unsigned integer " + std::to_string(modes_[kAlternate] + 1);
  if (name == "COD_COMPAGNIA") return "text " + companyCode_;
  if (name == "COD_PRODUTTORE") return "text " + codes_[kProducer];
  if (name == "COD_PRODUTTORE_ALT") return "text " + codes_[kAlternate];
  return std::string("boolean ").append(isLead_ ? "true" : "false");
}

void CommissionsModel::call(const Step& step) {
  if (step.name == "TOTALI") return totals();
  if (step.name == "percAlt") return percAlt();
  if (step.name == "setCombo") return select(listOf(kAlternate), 0);
  if (step.name == "Attiva") return activate();
  if (step.name == "Disattiva") return deactivate();
  values(step.given.front());
}

}  // namespace qvn::test
