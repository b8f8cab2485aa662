#include "tests/quotas/quota_model.h"

#include <limits>

namespace qvn::test {

QuotaModel::QuotaModel(const QuotaRules& rules, bool ofPolicy)
    : rules_(&rules), ofPolicy_(ofPolicy), captions_(ofPolicy ? 2 * kRows : 2) {}

QuotaSeen QuotaModel::seen() const {
  return {.text = text(),
          .selStart = field_.start,
          .selLength = field_.length,
          .focused = focus_ == Focus::Quota,
          .lead = lead_,
          .captions = captions_,
          .failure = failure_,
          .value = value_,
          .events = events_};
}

void QuotaModel::play(const QuotaStep& step) {
  failure_.clear();
  value_.clear();
  events_.clear();
  try {
    carryOut(step);
  } catch (const ModelFailed& failed) {
    failure_ = nameOf(failed.kind);
  }
}

void QuotaModel::carryOut(const QuotaStep& step) {
  using Do = QuotaStep::Do;
  switch (step.what) {
    case Do::Focus:
      return goToQuota();
    case Do::Leave:
      focus_ = Focus::Nowhere;
      return;
    case Do::Caret:
      goToQuota();
      return field_.select(step.number, step.length);
    case Do::Type:
      goToQuota();
      for (const std::string& one : quotaKeys(step.text)) key(one);
      return;
    case Do::Paste:
      goToQuota();
      for (const char character : step.text) {
        if (!insert(static_cast<char32_t>(character))) return;
      }
      return;
    case Do::Tick:
      return tick();
    case Do::Write:
      return write(step.text);
    case Do::LetQuota:
      if (quota() != step.number) write(std::to_string(step.number));
      return;
    case Do::GetQuota:
      value_ = std::to_string(quota());
      return;
    case Do::LetLead:
      if (lead_ == (step.number != 0)) return;
      lead_ = !lead_;
      events_.emplace_back("notice DELEGATARIA");
      return;
    case Do::Figures:
      return takeFigures(step);
    case Do::Apply:
      return apply(rules_->argumentIsApplied ? step.number : quota(), false);
    case Do::ApplyOfLead:
      return apply(rules_->argumentIsApplied ? step.number : quota(), true);
    case Do::Attiva:
      enabled_ = true;
      field_.selectAll();
      if (visible_) focus_ = Focus::Quota;
      return;
    case Do::Disattiva:
      enabled_ = false;
      focus_ = Focus::Nowhere;
      return;
    case Do::Show:
      visible_ = step.number != 0;
      if (!visible_) focus_ = Focus::Nowhere;
      return;
  }
}

void QuotaModel::goToQuota() {
  if (!enabled_ || !visible_) throw ModelFailed{ModelFailure::InvalidCall};
  if (focus_ != Focus::Quota) field_.selectAll();
  focus_ = Focus::Quota;
}

void QuotaModel::tick() {
  if (!enabled_ || !visible_) return;
  focus_ = Focus::CheckBox;
  lead_ = !lead_;
  events_.emplace_back("notice DELEGATARIA");
  if (rules_->tickIsApplied) apply(quota(), lead_);
}

void QuotaModel::byHand() {
  try {
    changed();
  } catch (const ModelFailed& failed) {
    events_.push_back(std::string("failed ").append(nameOf(failed.kind)));
  }
}

/// Four digits, unless something is selected that they replace.
bool QuotaModel::insert(char32_t character) {
  const bool full = field_.length == 0 && field_.text.size() == 4;
  if (full || character < U'0' || character > U'9') {
    events_.emplace_back("beep");
    return false;
  }
  field_.replace(std::u32string(1, character));
  byHand();
  return true;
}

void QuotaModel::key(std::string_view key) {
  if (key == "{Backspace}") {
    if (field_.backspace()) byHand();
  } else if (key == "{Delete}") {
    if (field_.erase()) byHand();
  } else if (key == "{Left}") {
    field_.left();
  } else if (key == "{Home}") {
    field_.caret(0);
  } else if (key == "{End}") {
    field_.caret(field_.text.size());
  } else {
    insert(static_cast<char32_t>(key.front()));
  }
}

void QuotaModel::write(std::string_view text) {
  const std::u32string characters = decoded(text);
  if (field_.text == characters) return;
  field_.text = characters;
  field_.caret(0);
  changed();
}

void QuotaModel::correct(std::string_view text) {
  if (rules_->correctionIsAnnouncedTwice) {
    write(text);
  } else {
    field_.text = decoded(text);
    field_.caret(0);
  }
  if (rules_->correctionIsSelected) field_.selectAll();
}

void QuotaModel::changed() {
  if (field_.text.empty()) {
    correct("0");
  } else {
    const auto number = numberOf(text());
    if (!number) throw ModelFailed{ModelFailure::TypeMismatch};
    if (number->count > rounded({.count = rules_->most}, number->scale, Ties::ToEven)) correct("1000");
  }
  if (enabled_ || rules_->disabledIsApplied) apply(thousandthsOf(text()), lead_);
  events_.emplace_back("notice QUOTA");
}

std::int16_t QuotaModel::thousandthsOf(std::string_view text) const {
  const auto number = numberOf(text);
  if (!number) throw ModelFailed{ModelFailure::TypeMismatch};
  const Whole whole = rounded(*number, 0, Ties::ToEven);
  if (whole < std::numeric_limits<std::int16_t>::min() || whole > std::numeric_limits<std::int16_t>::max()) {
    throw ModelFailed{ModelFailure::Overflow};
  }
  return static_cast<std::int16_t>(whole);
}

std::int16_t QuotaModel::quota() const {
  return thousandthsOf(rules_->emptyReadsZero ? std::string("0").append(text()) : text());
}

std::string QuotaModel::worth(std::int64_t whole, std::int64_t inFull, std::int16_t thousandths, bool ofLead) const {
  const Computed share = Computed::product(amount(whole), {.count = thousandths}, 3);
  return share.decided([&](const Exact& value) {
    if (!ofLead) return currencyForm(value);
    static_cast<void>(currencyOf(value));  // beyond money it stops
    if (!rules_->leadIsRoundedFirst) {
      const Whole rest = rounded(amount(inFull), value.scale, Ties::ToEven);
      return currencyForm({.count = value.count + rest, .scale = value.scale});
    }
    const auto kept = static_cast<std::int64_t>(rounded(value, 4, rules_->leadTies));
    return currencyForm(amount(sumOf(kept, inFull)));
  });
}

void QuotaModel::apply(std::int16_t thousandths, bool ofLead) {
  if (rules_->figuresFillTheField && field_.text.empty()) write("0");
  if (!ofPolicy_) {
    for (std::size_t i = 0; i < 2; ++i) captions_[i] = worth(figures_[i][0], 0, thousandths, false);
    return;
  }
  for (std::size_t i = 0; i < kRows; ++i) captions_[i] = worth(figures_[i][0], figures_[i][1], thousandths, ofLead);
  for (std::size_t i = 0; i < kRows; ++i) {
    captions_[kRows + i] = worth(figures_[i][2], figures_[i][1], thousandths, ofLead && rules_->leadAddsToBothFamilies);
  }
}

void QuotaModel::takeFigures(const QuotaStep& step) {
  const auto before = figures_;
  const std::size_t columns = ofPolicy_ ? 3 : 1;
  for (std::size_t i = 0; i < kRows; ++i) {
    for (std::size_t j = 0; j < columns; ++j) {
      const bool there =
          step.extents.size() == (ofPolicy_ ? 2U : 1U) && i < step.extents[0] && (!ofPolicy_ || j < step.extents[1]);
      if (!there) {
        if (!rules_->shortArrayKeepsItsHead) figures_ = before;
        throw ModelFailed{ModelFailure::SubscriptOutOfRange};
      }
      figures_[i][j] = step.figures[ofPolicy_ ? i * step.extents[1] + j : i];
    }
  }
  apply(quota(), ofPolicy_ && lead_);
}

}  // namespace qvn::test
