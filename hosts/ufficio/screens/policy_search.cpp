// Policies by number, client or state: ctlRICERCA on POLIZZE, with its current gross premium and the lead's share.
#include <array>

#include "hosts/ufficio/result_screen.h"
#include "hosts/ufficio/screens/makers.h"
#include "qvn/shared/failure.h"

namespace qvn::ufficio::screens {

namespace {

/// The branch stands before the state, which is told by it. The protocol number is written apart.
constexpr std::array kFields{
    Field{"CLIENTE", "CLIENTE", Kind::Text},
    Field{"QUOTA", "QUOTA", Kind::Text},
    Field{"PL", "PL", Kind::Amount},
    Field{"DATA_RATA", "DATA_RATA", Kind::Day},
    Field{"N_POLIZZA", "N_POLIZZA", Kind::Text},
    Field{"COD_GR", "COD_RAMO", Kind::Text},
    Field{"DESC_SRAMO", "DESC_SRAMO", Kind::Text},
    Field{"TIPO_RATA", "TIPO_RATA", Kind::Text},
    Field{"GRUPPO", "GRUPPO", Kind::Text},
    Field{"STATO", "STATO", Kind::Text},
    Field{"INT_ASS", "INT_ASS", Kind::Text},
};

constexpr ResultDescription kPolicies{
    .panelClass = "ctlRICERCA",
    .find =
        "SELECT P.N_POLIZZA || '  ' || coalesce(C.DESC_CLIENTE, '') || '  ' || P.COD_CLIENTE || '  ' || "
        "CASE coalesce(P.STATO, '') WHEN '' THEN 'in vigore' WHEN 'A' THEN 'annullata' "
        "WHEN 'D' THEN CASE R.TIPO_SK WHEN 4 THEN 'svincolata' ELSE 'disdetta' END ELSE '' END AS TESTO, P.PROT "
        "FROM POLIZZE P LEFT JOIN CLIENTI C ON C.COD_CLIENTE = P.COD_CLIENTE "
        "LEFT JOIN RAMI R ON R.COD_RAMO = P.COD_RAMO "
        "WHERE holds(TESTO, ?1) ORDER BY P.PROT LIMIT ?2",
    .read =
        "SELECT coalesce(C.DESC_CLIENTE, P.COD_CLIENTE) AS CLIENTE, P.PROT, "
        "(SELECT Q.QUOTA FROM QUOTE_POLIZZE Q WHERE Q.PROT = P.PROT AND Q.DELEGATARIA <> 0 "
        "ORDER BY Q.COD_COMP LIMIT 1) AS QUOTA, "
        "(SELECT Q.COD_PROD IS NULL FROM QUOTE_POLIZZE Q WHERE Q.PROT = P.PROT AND Q.DELEGATARIA <> 0 "
        "ORDER BY Q.COD_COMP LIMIT 1) AS SENZA_PRODUTTORE, "
        "CASE P.U_CALCOLO WHEN 'TRF' THEN P.PL_TRF ELSE P.PL_TAF END AS PL, "
        "P.DATA_RATA, P.N_POLIZZA, P.COD_RAMO, S.DESCRIZIONE AS DESC_SRAMO, P.TIPO_RATA, "
        "G.DENOMINAZIONE AS GRUPPO, P.STATO, P.INT_ASS "
        "FROM POLIZZE P LEFT JOIN CLIENTI C ON C.COD_CLIENTE = P.COD_CLIENTE "
        "LEFT JOIN SOTTORAMI S ON S.COD_SRAMO = P.COD_SRAMO "
        "LEFT JOIN GRUPPI G ON G.COD_GRUPPO = P.COD_GRUPPO WHERE P.PROT = ?1",
    .fields = kFields,
};

constexpr std::int32_t kNoPolicy = 0;

class PolicySearch final : public ResultScreen {
 public:
  explicit PolicySearch(const ScreenSite& site) : ResultScreen(kPolicies, site) {}

 protected:
  void write(Panel& panel, const Row& row) const override {
    letByName(panel, "PROT", kNoPolicy);  // takes the lead company and producer of the policy before away
    ResultScreen::write(panel, row);
    try {
      letByName(panel, "PROT", shown(row.at("PROT"), Kind::Number));
    } catch (const Failure&) {
      // The look-up of the lead producer comes last. It fails where there is none, and leaves him empty.
      if (row.at("SENZA_PRODUTTORE") != Value(std::int64_t{1})) throw;
    }
  }
};

}  // namespace

std::unique_ptr<Screen> policySearch(const ScreenSite& site) { return std::make_unique<PolicySearch>(site); }

}  // namespace qvn::ufficio::screens
