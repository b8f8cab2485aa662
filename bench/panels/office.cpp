#include "bench/panels/office.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <span>

#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"

namespace qvn::bench {

namespace {

const std::array<std::string, 4> kColumns{"R_ACC", "PERCALT", "DENOMINAZIONE", "DESC_COMPAGNIA"};
const std::array<Variant, 4> kValues{std::int32_t{23}, std::int32_t{50}, "Orsù Rosalìa", "Olmo"};

class OneRow final : public toolkit::Rows {
 public:
  std::span<const std::string> columns() const override { return kColumns; }
  bool atEnd() const override { return read_; }
  void next() override { read_ = true; }
  Variant value(std::string_view column) const override {
    const auto found = std::ranges::find_if(kColumns, [&](const std::string& name) { return sameName(name, column); });
    if (found == kColumns.end()) throw Failure(FailureKind::Database, std::string("no answer for ").append(column));
    return kValues[static_cast<std::size_t>(found - kColumns.begin())];
  }

 private:
  bool read_ = false;
};

class Answering final : public toolkit::Session {
 public:
  explicit Answering(std::int64_t& answered) : answered_(answered) {}
  std::unique_ptr<toolkit::Rows> run(const toolkit::Statement& statement) override {
    benchmark::DoNotOptimize(statement.sql.data());
    ++answered_;
    return std::make_unique<OneRow>();
  }

 private:
  std::int64_t& answered_;
};

}  // namespace

void Host::PropertyChanged(toolkit::Surface& /*panel*/, std::string_view name) { benchmark::DoNotOptimize(name); }

void Host::handlerFailed(toolkit::Surface& /*panel*/, toolkit::Widget& /*widget*/, std::string_view /*event*/,
                         const Failure& /*failure*/) noexcept {
  ++failures;
}

std::unique_ptr<toolkit::Session> AnsweringAtOnce::open(const toolkit::Opening& /*opening*/) {
  return std::make_unique<Answering>(answered);
}

Office::Office() {
  platform.drivers().add(database);
  Globale::install(platform);
  Globale::Eventi()->ImpostaDB(std::string(database.head()));
}

Office::~Office() { Globale::uninstall(); }

}  // namespace qvn::bench
