#include "qvn/panels/documents/claim_viewer.h"

#include <string>

#include "qvn/lookups/query.h"
#include "qvn/lookups/viewer.h"
#include "qvn/shared/statements.h"

namespace qvn::documents {

namespace {

void open(const toolkit::Label& N_SINISTRO) {
  lookups::fireMancaDB();
  const std::string sql =
      lookups::joined({statements::kClaimCOMPAGNIE, N_SINISTRO.Caption(), statements::kClaimCOMPAGNIE_END});
  const auto viewer = lookups::companiesViewer();
  viewer->load();
  viewer->heading(2, "Stimato");
  viewer->heading(3, "Liquidato");
  viewer->connect();
  viewer->fill(sql);
  viewer->show();
}

}  // namespace

void openViewerOfClaim(toolkit::Surface& panel) {
  panel.button("CmdCOMPAGNIE").Click = [&N_SINISTRO = panel.label("LblPROT")] { open(N_SINISTRO); };
}

}  // namespace qvn::documents
