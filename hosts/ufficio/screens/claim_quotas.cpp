// The participants of a coinsured claim: ctlQ_SINISTRI on QUOTE_SINISTRI, with the claim's estimated and paid damage.
#include <array>

#include "hosts/ufficio/screens/makers.h"
#include "hosts/ufficio/screens/quota_screen.h"

namespace qvn::ufficio::screens {

namespace {

constexpr std::array<std::string_view, 1> kKey{"N_SINISTRO"};

constexpr std::array kFields{
    Field{"DELEGATARIA", "DELEGATARIA", Kind::Flag}, Field{"COD_COMP", "COD_COMP", Kind::Text},
    Field{"N_POLIZZA", "N_POLIZZA", Kind::Text},     Field{"N_SINISTRO_COMP", "N_SINISTRO_COMP", Kind::Text},
    Field{"QUOTA", "QUOTA", Kind::Number},
};

constexpr RecordDescription kClaimQuotas{
    .panelClass = "ctlQ_SINISTRI",
    .find =
        "SELECT S.N_SINISTRO || '  ' || coalesce(P.N_POLIZZA, S.PROT) || '  ' || "
        "coalesce(C.DESC_CLIENTE, P.COD_CLIENTE, '') AS TESTO, S.N_SINISTRO "
        "FROM SINISTRI S LEFT JOIN POLIZZE P ON P.PROT = S.PROT "
        "LEFT JOIN CLIENTI C ON C.COD_CLIENTE = P.COD_CLIENTE "
        "WHERE holds(TESTO, ?1) ORDER BY S.N_SINISTRO LIMIT ?2",
    .table = "QUOTE_SINISTRI",
    .key = kKey,
    .order = "COD_COMP",
    .fields = kFields,
    .panels = 12,
    .adding = Reach::Row,
    .needed = {"COD_COMP", "il codice della compagnia"},
};

class ClaimQuotas final : public QuotaScreen {
 public:
  explicit ClaimQuotas(const ScreenSite& site) : QuotaScreen(kClaimQuotas, site) {}

 private:
  CurrencyArray figures(Store& store, const Row& row) const override {
    const std::vector<Row> claims = store.rows("SELECT D_STIMATO, D_LIQUIDATO FROM SINISTRI WHERE N_SINISTRO = ?1",
                                               std::array{row.at("N_SINISTRO")});
    if (claims.empty()) throw StoreFailure("il sinistro di questa quota non c'è più");
    const Row& claim = claims.front();
    return {.extents = {3}, .values = {amountOf(claim.at("D_STIMATO")), amountOf(claim.at("D_LIQUIDATO")), {}}};
  }
};

}  // namespace

std::unique_ptr<Screen> claimQuotas(const ScreenSite& site) { return std::make_unique<ClaimQuotas>(site); }

}  // namespace qvn::ufficio::screens
