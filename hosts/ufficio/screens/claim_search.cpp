// Claims by number, policy, client, other party or state: ctlRIC_SINISTRI on SINISTRI, with the lead's share. A claim
// has the state and the lead producer of its policy.
#include <array>

#include "hosts/ufficio/result_screen.h"
#include "hosts/ufficio/screens/makers.h"
#include "qvn/shared/patterns.h"

namespace qvn::ufficio::screens {

namespace {

/// The branch stands before the state, which is told by it. The damage, which the panel shows as it is given, is
/// written apart.
constexpr std::array kFields{
    Field{"CLIENTE", "CLIENTE", Kind::Text},       Field{"PROT", "N_SINISTRO", Kind::Text},
    Field{"QUOTA", "QUOTA", Kind::Text},           Field{"DATA_SINISTRO", "DATA_SINISTRO", Kind::Day},
    Field{"N_POLIZZA", "N_POLIZZA", Kind::Text},   Field{"COD_GR", "COD_RAMO", Kind::Text},
    Field{"DESC_SRAMO", "DESC_SRAMO", Kind::Text}, Field{"CONTROPARTE", "CONTROPARTE", Kind::Text},
    Field{"STATO", "STATO", Kind::Text},           Field{"INT_ASS", "INT_ASS", Kind::Text},
    Field{"COD_PROD", "COD_PROD", Kind::Text},
};

constexpr ResultDescription kClaims{
    .panelClass = "ctlRIC_SINISTRI",
    .find =
        "SELECT S.N_SINISTRO || coalesce('  ' || P.N_POLIZZA, '') || coalesce('  ' || C.DESC_CLIENTE, '') || "
        "coalesce('  ' || nullif(trim(S.CONTROPARTE), ''), '') || '  ' || CASE coalesce(P.STATO, '') WHEN '' THEN 'in "
        "vigore' WHEN 'A' THEN 'annullata' "
        "WHEN 'D' THEN CASE R.TIPO_SK WHEN 4 THEN 'svincolata' ELSE 'disdetta' END ELSE '' END AS TESTO, S.N_SINISTRO "
        "FROM SINISTRI S LEFT JOIN POLIZZE P ON P.PROT = S.PROT "
        "LEFT JOIN CLIENTI C ON C.COD_CLIENTE = P.COD_CLIENTE LEFT JOIN RAMI R ON R.COD_RAMO = P.COD_RAMO "
        "WHERE holds(TESTO, ?1) ORDER BY S.N_SINISTRO LIMIT ?2",
    .read =
        "SELECT coalesce(C.DESC_CLIENTE, P.COD_CLIENTE) AS CLIENTE, S.N_SINISTRO, "
        "(SELECT Q.QUOTA FROM QUOTE_SINISTRI Q WHERE Q.N_SINISTRO = S.N_SINISTRO AND Q.DELEGATARIA <> 0 "
        "ORDER BY Q.COD_COMP LIMIT 1) AS QUOTA, "
        "S.D_STIMATO, S.DATA_SINISTRO, P.N_POLIZZA, P.COD_RAMO, B.DESCRIZIONE AS DESC_SRAMO, S.CONTROPARTE, P.STATO, "
        "P.INT_ASS, (SELECT Q.COD_PROD FROM QUOTE_POLIZZE Q WHERE Q.PROT = S.PROT AND Q.DELEGATARIA <> 0 "
        "ORDER BY Q.COD_COMP LIMIT 1) AS COD_PROD "
        "FROM SINISTRI S LEFT JOIN POLIZZE P ON P.PROT = S.PROT "
        "LEFT JOIN CLIENTI C ON C.COD_CLIENTE = P.COD_CLIENTE "
        "LEFT JOIN SOTTORAMI B ON B.COD_SRAMO = P.COD_SRAMO WHERE S.N_SINISTRO = ?1",
    .fields = kFields,
};

class ClaimSearch final : public ResultScreen {
 public:
  explicit ClaimSearch(const ScreenSite& site) : ResultScreen(kClaims, site) {}

 protected:
  void write(Panel& panel, const Row& row) const override {
    letByName(panel, "PROT", std::string());  // the same claim may have another lead company by now
    const auto damage = std::get<Currency>(shown(row.at("D_STIMATO"), Kind::Amount));
    letByName(panel, "DANNO", format(damage, Pattern::Currency, Locale()).str());
    ResultScreen::write(panel, row);
  }
};

}  // namespace

std::unique_ptr<Screen> claimSearch(const ScreenSite& site) { return std::make_unique<ClaimSearch>(site); }

}  // namespace qvn::ufficio::screens
