#include "tests/commissions/panel_on_bench.h"

#include <algorithm>
#include <array>
#include <utility>

#include "qvn/shared/Globale.h"
#include "qvn/shared/failure.h"
#include "tests/commissions/driver_rows.h"
#include "tests/commissions/exact_number.h"

namespace qvn::test {

namespace {

constexpr std::string_view kConnection = "fake:provvigioni";

Currency currencyOfText(std::string_view text) { return Currency::fromTenThousandths(currencyOf(pointed(text))); }

Decimal decimalOfText(std::string_view text) {
  const Exact value = pointed(text);
  const bool negative = value.count < 0;
  Whole left = negative ? -value.count : value.count;
  Decimal::Magnitude words{};
  for (std::uint32_t& word : words) {
    word = static_cast<std::uint32_t>(left & 0xFFFFFFFF);
    left >>= 32;
  }
  return Decimal::of(words, value.scale, negative);
}

CurrencyArray arrayOf(const Given& given) {
  CurrencyArray array;
  const std::size_t rows = given.flat ? 1 : given.figures.size();
  if (!given.flat) array.extents.push_back(rows);
  array.extents.push_back(given.figures.front().size());
  for (std::size_t i = 0; i < rows; ++i) {
    for (const std::string& figure : given.figures[i]) array.values.push_back(currencyOfText(figure));
  }
  return array;
}

Variant variantOf(const Given& given) {
  using Kind = Given::Kind;
  switch (given.kind) {
    case Kind::Empty:
      return Empty{};
    case Kind::Null:
      return Null{};
    case Kind::Boolean:
      return given.text == "true";
    case Kind::Integer:
      return std::stoi(given.text);
    case Kind::Double:
      return doubleOf(given.text);
    case Kind::Currency:
      return currencyOfText(given.text);
    case Kind::Decimal:
      return decimalOfText(given.text);
    case Kind::Text:
      return given.text;
    case Kind::Array:
      return arrayOf(given);
  }
  return Empty{};
}

std::string decimalText(const Decimal& value) {
  Whole count = 0;
  for (std::size_t i = value.magnitude().size(); i-- > 0;) count = (count << 32) | value.magnitude().at(i);
  return generalForm({.count = value.negative() ? -count : count, .scale = value.scale()});
}

std::string shown(const Variant& value) {
  if (const auto* amount = std::get_if<Currency>(&value)) return "currency " + std::to_string(amount->tenThousandths());
  if (const auto* number = std::get_if<Decimal>(&value)) return "decimal " + decimalText(*number);
  if (const auto* whole = std::get_if<std::int16_t>(&value)) return "16-bit integer " + std::to_string(*whole);
  if (const auto* byte = std::get_if<std::uint8_t>(&value)) return "8-bit unsigned integer " + std::to_string(*byte);
  if (const auto* text = std::get_if<std::string>(&value)) return "text " + *text;
  if (const auto* flag = std::get_if<bool>(&value)) return std::string("boolean ").append(*flag ? "true" : "false");
  return std::string(kindName(value));
}

}  // namespace

void BenchJournal::clear() {
  statements_ = driver_.ran.size();
  events_.clear();
}

std::vector<std::string> BenchJournal::events() {
  addStatements();
  return events_;
}

void BenchJournal::PropertyChanged(toolkit::Surface&, std::string_view name) { add("notice ", name); }

void BenchJournal::handlerFailed(toolkit::Surface&, toolkit::Widget& widget, std::string_view event,
                                 const Failure& failure) noexcept {
  add("failed ", std::string(widget.Name()).append(" ").append(event).append(" ").append(qvn::nameOf(failure.kind())));
}

void BenchJournal::add(std::string_view what, std::string_view name) {
  addStatements();
  events_.push_back(std::string(what).append(name));
}

void BenchJournal::addStatements() {
  for (; statements_ < driver_.ran.size(); ++statements_) events_.push_back("sql " + driver_.ran[statements_].sql);
}

PanelOnBench::PanelOnBench(const PlatformMaker& maker) : under_(maker.make()) {
  layDownRows(driver_);
  under_->platform().drivers().add(driver_);
  under_->watch(&journal_);
  Globale::install(under_->platform());
}

PanelOnBench::~PanelOnBench() {
  panel_.reset();
  Globale::uninstall();
  under_->watch(nullptr);
}

void PanelOnBench::begin(const Session& session) {
  panel_.reset();
  Globale::unload();
  driver_.ran.clear();
  journal_.clear();
  failure_.clear();
  value_.clear();
  answered_ = false;
  host_ = Globale::Eventi()->MancaDB.subscribe([this] {
    journal_.mancaDB();
    if (answered_) Globale::Eventi()->ImpostaDB(kConnection);
  });
  if (session.connected) Globale::Eventi()->ImpostaDB(kConnection);
  panel_.emplace(PanelSite{journal_, "p"});
  panel_->surface().Visible(session.visible);
}

void PanelOnBench::play(const Step& step) {
  journal_.clear();
  failure_.clear();
  value_.clear();
  try {
    carryOut(step);
  } catch (const Failure& failure) {
    failure_ = qvn::nameOf(failure.kind());
  }
}

void PanelOnBench::carryOut(const Step& step) {
  using Do = Step::Do;
  toolkit::Surface& surface = panel_->surface();
  Operator& hands = under_->hands();
  switch (step.what) {
    case Do::Connect:
      return Globale::Eventi()->ImpostaDB(kConnection);
    case Do::Answer:
      answered_ = step.text != "null";
      return;
    case Do::Disconnect:
      return Globale::DB().Close();
    case Do::Show:
      return surface.Visible(step.number != 0);
    case Do::Let:
      return letByName(*panel_, step.name, variantOf(step.given.front()));
    case Do::Get:
      value_ = shown(getByName(*panel_, step.name));
      return;
    case Do::Call: {
      std::vector<Variant> args;
      args.reserve(step.given.size());
      for (const Given& given : step.given) args.push_back(variantOf(given));
      callByName(*panel_, step.name, args);
      return;
    }
    case Do::Focus:
      return hands.focus(surface.widget(step.name));
    case Do::Leave:
      return hands.leave();
    case Do::Type:
      return hands.type(step.text);
    case Do::Caret:
      return hands.caret(step.number, step.length);
    case Do::Paste:
      return hands.paste(step.text);
    case Do::Choose:
      return hands.choose(surface.comboBox(step.name), step.number);
  }
}

Seen PanelOnBench::seen() {
  Seen seen;
  const toolkit::Surface& surface = panel_->surface();
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    SeenField& field = seen.fields[i];
    if (isList(i)) {
      const toolkit::ComboBox& list = surface.comboBox(kFields[i]);
      field = {.text = list.Text(), .back = list.BackColor()};
    } else {
      const toolkit::TextBox& box = surface.textBox(kFields[i]);
      field = {.text = box.Text(),
               .selStart = static_cast<std::size_t>(box.SelStart()),
               .selLength = static_cast<std::size_t>(box.SelLength()),
               .back = box.BackColor()};
    }
  }
  for (std::size_t i = 0; i < kLabels.size(); ++i) seen.captions[i] = surface.label(kLabels[i]).Caption();
  for (std::size_t i = 0; i < kFrames.size(); ++i) seen.enabled[i] = surface.frame(kFrames[i]).Enabled();
  if (const toolkit::Widget* holder = under_->platform().focused()) seen.focus = holder->Name();
  seen.failure = failure_;
  seen.value = value_;
  seen.events = journal_.events();
  return seen;
}

}  // namespace qvn::test
