// The field of a quota in thousandths, and what a quota is worth, as both panels of a quota have them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "qvn/lookups/field_with_list.h"
#include "qvn/shared/currency.h"
#include "qvn/toolkit/widget.h"

namespace qvn::quotas {

/// Shows what so many thousandths are worth.
using Apply = std::function<void(std::int16_t thousandths)>;

/// Wires the field of the quota, of at most four digits. At a change an empty field becomes "0" and a number above 1000
/// becomes "1000", either selected; then the quota is applied, but only while the field is enabled, and "QUOTA" is
/// announced. A correction is a change of its own, so that both happen twice. A text that is no number fails with "type
/// mismatch", one beyond 16 bits with "overflow", both naming the box.
void wireQuota(toolkit::TextBox& box, Apply apply);

/// What the field says behind a "0", so that an empty one reads 0, and one with a sign fails with "type mismatch".
std::int16_t quotaOf(const toolkit::TextBox& box);
/// Writes the quota if the field says another.
void showQuota(toolkit::TextBox& box, std::int16_t thousandths);
/// Writes "0" into an empty field.
void fillQuota(toolkit::TextBox& box);

/// So many thousandths of a figure, divided first.
double shareOf(Currency whole, std::int16_t thousandths);
/// Shows the share under "Currency".
void showShare(toolkit::Label& label, Currency whole, std::int16_t thousandths);

/// The description that goes with a code.
using Lookup = std::string (*)(std::string& code);

/// Wires the field of a code with a list behind "?": a change is announced, and then the description looked up.
void wireCode(toolkit::TextBox& box, std::string_view property, lookups::ListFunction list, std::int16_t limit,
              toolkit::Label& description, Lookup lookup);

}  // namespace qvn::quotas
