#include "qvn/panels/quotas/quota_field.h"

#include <utility>

#include "qvn/fields/Gest_SCHEDE.h"
#include "qvn/fields/shown_number.h"
#include "qvn/fields/text_field.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/patterns.h"
#include "qvn/toolkit/platform.h"

namespace qvn::quotas {

namespace {

constexpr double kWhole = 1000;

void correct(toolkit::TextBox& box, std::string_view text) {
  box.Text(text);
  Gest_SCHEDE::SelezionaTutto(box);
}

void quotaChanged(toolkit::TextBox& box, const Apply& apply) {
  if (box.Text().empty()) {
    correct(box, "0");
  } else if (fields::doubleOf(box) > kWhole) {
    correct(box, "1000");
  }
  if (box.Enabled()) apply(fields::int16Of(box));
  fields::announce(box, "QUOTA");
}

}  // namespace

void wireQuota(toolkit::TextBox& box, Apply apply) {
  fields::wireColouredFirst(box, "QUOTA", Gest_SCHEDE::FiltroCifre, 4);
  box.Change = [&box, apply = std::move(apply)] { quotaChanged(box, apply); };
}

std::int16_t quotaOf(const toolkit::TextBox& box) {
  const std::string text = std::string("0").append(box.Text());
  return placed(box.Name(), [&] { return toInt16(text, box.owner().platform().locale()); });
}

void showQuota(toolkit::TextBox& box, std::int16_t thousandths) {
  if (quotaOf(box) != thousandths) box.Text(std::to_string(thousandths));
}

void fillQuota(toolkit::TextBox& box) {
  if (box.Text().empty()) box.Text("0");
}

double shareOf(Currency whole, std::int16_t thousandths) { return toDouble(whole) / kWhole * thousandths; }

void showShare(toolkit::Label& label, Currency whole, std::int16_t thousandths) {
  label.Caption(format(shareOf(whole, thousandths), Pattern::Currency, label.owner().platform().locale()));
}

void wireCode(toolkit::TextBox& box, std::string_view property, lookups::ListFunction list, std::int16_t limit,
              toolkit::Label& description, Lookup lookup) {
  fields::wireColouredFirst(box, property, Gest_SCHEDE::FiltroTesto, limit);
  box.KeyPress = [&box, list, limit](std::int16_t& KeyAscii) {
    lookups::keyOrList(box, KeyAscii, list, Gest_SCHEDE::FiltroTesto, limit);
  };
  box.Change = [&box, property, &description, lookup] {
    fields::announce(box, property);
    std::string code = box.Text();
    description.Caption(lookup(code));
  };
}

}  // namespace qvn::quotas
