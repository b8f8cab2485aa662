#include "hosts/ufficio/screens/quota_screen.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>

#include "qvn/shared/failure.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::int32_t kWhole = 1000;

/// The sum of what the panels that are shown give; none where one of them cannot tell.
std::optional<std::int32_t> sumOfQuotas(const std::vector<Panel*>& panels) {
  std::int32_t sum = 0;
  try {
    for (Panel* panel : panels) {
      if (panel->surface().Visible()) sum += std::get<std::int16_t>(getByName(*panel, "QUOTA"));
    }
  } catch (const Failure&) {
    return {};
  }
  return sum;
}

}  // namespace

std::string QuotaScreen::remark() const {
  const std::optional<std::int32_t> sum = sumOfQuotas(panels());
  if (!sum) return "Somma delle quote: una quota non è valida.";
  std::string text = std::string("Somma delle quote: ").append(std::to_string(*sum)).append("‰");
  if (*sum < kWhole) text.append(*sum == kWhole - 1 ? ", ne manca " : ", ne mancano ");
  if (*sum > kWhole) text.append(*sum == kWhole + 1 ? ", ce n'è " : ", ce ne sono ");
  if (*sum != kWhole) text.append(std::to_string(std::abs(kWhole - *sum)));
  if (*sum > kWhole) text.append(" di troppo");
  return text.append(".");
}

std::vector<Row> QuotaScreen::read(Store& store, const Key& key) const {
  std::vector<Row> rows = RecordScreen::read(store, key);
  if (rows.empty()) figures(store, newRow(key));  // fails where the whole is gone, too
  return rows;
}

void QuotaScreen::show(Store& store, BoundPanel& bound, const Row& row) {
  std::array<Variant, 1> whole{figures(store, row)};
  bound.show(row, description().fields);
  callByName(bound.panel(), "Imposta_VALORI", whole);  // last: in a frozen panel no amount follows the quota
}

}  // namespace qvn::ufficio::screens
