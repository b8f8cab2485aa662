// The percents that a participant's commission was reckoned by. The office keeps them itself, in the table
// PERCENTUALI_POLIZZE, which it makes when the first of them are stored: a row a participant and family of amounts.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "hosts/ufficio/field.h"
#include "hosts/ufficio/store.h"

namespace qvn::ufficio::commissions {

/// How ctlPROV_POLIZZE shows the table's columns: nine percents, and what those of the producers are percents of.
inline constexpr std::array kPercentFields{
    Field{"CALC_PROD", "CALC_PROD", Kind::Number},         Field{"CALC_PROD_ALT", "CALC_PROD_ALT", Kind::Number},
    Field{"P_PN_UFF", "P_PN_UFF", Kind::Amount},           Field{"P_ACC_UFF", "P_ACC_UFF", Kind::Amount},
    Field{"P_AQ_UFF", "P_AQ_UFF", Kind::Amount},           Field{"P_PN_PROD", "P_PN_PROD", Kind::Amount},
    Field{"P_ACC_PROD", "P_ACC_PROD", Kind::Amount},       Field{"P_AQ_PROD", "P_AQ_PROD", Kind::Amount},
    Field{"P_PN_PROD_ALT", "P_PN_PROD_ALT", Kind::Amount}, Field{"P_ACC_PROD_ALT", "P_ACC_PROD_ALT", Kind::Amount},
    Field{"P_AQ_PROD_ALT", "P_AQ_PROD_ALT", Kind::Amount},
};

/// Those of a participant, a row of QUOTE_POLIZZE, in a family, "TRF" or "TAF". Where none are stored they are 0, and
/// the producers' are percents of the office's commission.
Row percentsOf(Store& store, const Row& participant, std::string_view family);

/// Stores `now` in the place of `before`, within a transaction. ChangedByOthers where that is not what is stored.
void storePercents(Store& store, const Row& before, const Row& now);

/// A participant's percents follow its code, or go with it. Both within a transaction.
void movePercents(Store& store, const Row& before, const Row& now);
void erasePercents(Store& store, const Row& participant);

}  // namespace qvn::ufficio::commissions
