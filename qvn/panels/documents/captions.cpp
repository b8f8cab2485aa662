#include "qvn/panels/documents/captions.h"

#include <string>

#include "qvn/fields/date_field.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"
#include "qvn/toolkit/platform.h"

namespace qvn::documents {

namespace {

const Locale& localeOf(const toolkit::Label& label) { return label.owner().platform().locale(); }

}  // namespace

void show(toolkit::Label& label, const Variant& value) {
  label.Caption(placed(label.Name(), [&] { return as<std::string>(value, localeOf(label)); }));
}

void show(toolkit::Label& label, Currency amount) { label.Caption(format(amount, Pattern::Currency, localeOf(label))); }

void showDate(toolkit::Label& label, const Variant& date) {
  label.Caption(placed(label.Name(), [&] {
    return fields::isNoDate(date) ? std::string() : formatValue(date, Pattern::DayMonthYear, localeOf(label));
  }));
}

}  // namespace qvn::documents
