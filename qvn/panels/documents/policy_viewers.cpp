#include "qvn/panels/documents/policy_viewers.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "qvn/lookups/query.h"
#include "qvn/lookups/viewer.h"
#include "qvn/shared/statements.h"

namespace qvn::documents {

namespace {

/// What a button opens.
struct View {
  std::string_view button;
  std::shared_ptr<lookups::Viewer> (*viewer)();
  const statements::PolicyRows& rows;
  bool alternate = false;
};

constexpr std::array<View, 3> kViews{{
    {"CmdCOMPAGNIE", lookups::companiesViewer, statements::kPolicyCOMPAGNIE},
    {"CmdPRODUTTORI", lookups::producersViewer, statements::kPolicyPRODUTTORI},
    {"CmdPRODUTTORI_ALT", lookups::producersViewer, statements::kPolicyPRODUTTORI_ALT, true},
}};

/// The figures of the policy's current calculation.
std::string_view currentFigures(const statements::PolicyRows& rows, const toolkit::Label& PROT) {
  const lookups::Query policy({statements::kU_CALCOLO, PROT.Caption()},
                              {.type = toolkit::adOpenStatic, .lock = toolkit::adLockUnspecified});
  const Variant current = policy.value("U_CALCOLO");
  return compare(current, std::string("TRF")) == std::partial_ordering::equivalent ? rows.figuresTRF : rows.figuresTAF;
}

void open(const View& view, const toolkit::Label& PROT) {
  lookups::fireMancaDB();
  const std::string_view figures = currentFigures(view.rows, PROT);
  const std::string sql =
      lookups::joined({figures, view.rows.from, statements::kWherePROT, PROT.Caption(), view.rows.inOrder});
  const auto viewer = view.viewer();
  viewer->load();
  if (view.alternate) {
    viewer->extendCaption(" Alt.");
    viewer->dataField(0, "COD_PROD_ALT");
  }
  viewer->connect();
  viewer->fill(sql);
  viewer->show();
}

}  // namespace

void openViewersOfPolicy(toolkit::Surface& panel) {
  for (const View& view : kViews) {
    panel.button(view.button).Click = [&view, &PROT = panel.label("LblPROT")] { open(view, PROT); };
  }
}

}  // namespace qvn::documents
