// What the screens of a coinsured policy and of a coinsured claim have in common: one panel a participant, and the sum
// of their quotas below.
#pragma once

#include <string>

#include "hosts/ufficio/record_screen.h"

namespace qvn::ufficio::screens {

class QuotaScreen : public RecordScreen {
 public:
  using RecordScreen::RecordScreen;

  /// What the quotas add up to as they stand, and how far that is from the whole. The operator may leave it at that.
  std::string remark() const override;

 protected:
  std::vector<Row> read(Store& store, const Key& key) const override;
  void show(Store& store, BoundPanel& bound, const Row& row) override;

 private:
  /// The figures of the whole, for the panel's Imposta_VALORI. StoreFailure where there are none.
  virtual CurrencyArray figures(Store& store, const Row& row) const = 0;
};

}  // namespace qvn::ufficio::screens
