#include "platforms/qt/variants.h"

#include <QDate>
#include <QMetaType>
#include <limits>
#include <string>
#include <type_traits>

#include "platforms/qt/texts.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"

namespace qvn::qt {

namespace {

const QDate kDateOfZero(1899, 12, 30);

/// Lets a QVariant of that type be asked for its text.
template <class Number>
bool registerText() {
  return QMetaType::registerConverter<Number, QString>(
      [](const Number& number) { return shown(as<std::string>(Variant(number), Locale{})); });
}

QVariant listOf(const CurrencyArray& array) {
  const std::size_t rows = array.extents.empty() ? 0 : array.extents.front();
  const bool flat = array.extents.size() < 2;
  QVariantList list;
  for (std::size_t i = 0; i < rows; ++i) {
    if (flat) {
      list.append(toQt(array.at(i)));
      continue;
    }
    QVariantList row;
    for (std::size_t j = 0; j < array.extents[1]; ++j) row.append(toQt(array.at(i, j)));
    list.append(QVariant(row));
  }
  return list;
}

CurrencyArray arrayOf(const QVariantList& list) {
  CurrencyArray array{.extents = {static_cast<std::size_t>(list.size())}, .values = {}};
  const bool flat = list.isEmpty() || list.front().typeId() != QMetaType::QVariantList;
  if (!flat) array.extents.push_back(static_cast<std::size_t>(list.front().toList().size()));
  for (const QVariant& entry : list) {
    const QVariantList row = flat ? QVariantList{entry} : entry.toList();
    if (!flat && static_cast<std::size_t>(row.size()) != array.extents[1]) {
      throw Failure(FailureKind::InvalidCall, "the rows of a list of amounts are not equally long");
    }
    for (const QVariant& amount : row) array.values.push_back(as<Currency>(fromQt(amount), Locale{}));
  }
  return array;
}

Variant wholeNumber(qint64 number) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (number < Limits::min() || number > Limits::max()) return Decimal::of(number);
  return static_cast<std::int32_t>(number);
}

struct Shown {
  QVariant operator()(Empty) const { return {}; }
  QVariant operator()(Null) const { return QVariant::fromValue(nullptr); }
  QVariant operator()(bool value) const { return value; }
  QVariant operator()(std::int32_t value) const { return value; }
  QVariant operator()(double value) const { return value; }
  QVariant operator()(Currency value) const {
    static const bool registered = registerText<Currency>();
    static_cast<void>(registered);
    return QVariant::fromValue(value);
  }
  QVariant operator()(const Decimal& value) const {
    static const bool registered = registerText<Decimal>();
    static_cast<void>(registered);
    return QVariant::fromValue(value);
  }
  QVariant operator()(Date value) const { return kDateOfZero.addDays(value.days()); }
  QVariant operator()(const std::string& value) const { return shown(value); }
  QVariant operator()(const CurrencyArray& value) const { return listOf(value); }
  QVariant operator()(const EventsReference& value) const { return QVariant::fromValue(value); }
};

}  // namespace

QVariant toQt(const Variant& value) { return std::visit(Shown{}, value); }

Variant fromQt(const QVariant& value) {
  if (!value.isValid()) return Empty{};
  switch (value.typeId()) {
    case QMetaType::Nullptr:
      return Null{};
    case QMetaType::Bool:
      return value.toBool();
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
      return wholeNumber(value.toLongLong());
    case QMetaType::Float:
    case QMetaType::Double:
      return value.toDouble();
    case QMetaType::QString:
      return utf8(value.toString());
    case QMetaType::QDate:
      if (!value.toDate().isValid()) return Null{};
      return Date::fromDays(static_cast<std::int32_t>(kDateOfZero.daysTo(value.toDate())));
    case QMetaType::QVariantList:
      return arrayOf(value.toList());
    default:
      break;
  }
  if (value.metaType() == QMetaType::fromType<Currency>()) return value.value<Currency>();
  if (value.metaType() == QMetaType::fromType<Decimal>()) return value.value<Decimal>();
  if (value.metaType() == QMetaType::fromType<EventsReference>()) return value.value<EventsReference>();
  throw Failure(FailureKind::TypeMismatch, std::string("no value of the library is a ").append(value.typeName()));
}

}  // namespace qvn::qt
