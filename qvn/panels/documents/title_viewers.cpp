#include "qvn/panels/documents/title_viewers.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "qvn/lookups/query.h"
#include "qvn/lookups/viewer.h"
#include "qvn/shared/statements.h"

namespace qvn::documents {

namespace {

/// A column of the viewer that shows another field than the one laid out.
struct OtherField {
  std::int32_t column;
  std::string_view field;
};

/// What a button opens.
struct View {
  std::string_view button;
  std::shared_ptr<lookups::Viewer> (*viewer)();
  const statements::TitleRows& rows;
  std::string_view captionEnding = {};
  std::span<const OtherField> fields = {};
};

constexpr std::array<OtherField, 3> kAlternateFields{{{0, "COD_PROD_ALT"}, {2, "PP_ALT"}, {3, "RA_ALT"}}};

constexpr std::array<View, 3> kViews{{
    {"CmdCOMPAGNIE", lookups::companiesViewer, statements::kTitleCOMPAGNIE},
    {"CmdPRODUTTORI", lookups::producersViewer, statements::kTitlePRODUTTORI},
    {"CmdPRODUTTORI_ALT", lookups::producersViewer, statements::kTitlePRODUTTORI_ALT, " Alt.", kAlternateFields},
}};

void open(const View& view, const toolkit::Label& PROT, const toolkit::Label& PROG) {
  lookups::fireMancaDB();
  const auto viewer = view.viewer();
  viewer->load();
  viewer->extendCaption(view.captionEnding);
  viewer->connect();
  viewer->fill(
      lookups::joined({view.rows.ofPROT, PROT.Caption(), statements::kAndPROG, PROG.Caption(), view.rows.inOrder}));
  for (const OtherField& other : view.fields) viewer->dataField(other.column, other.field);
  viewer->show();
}

}  // namespace

void openViewersOfTitle(toolkit::Surface& panel) {
  for (const View& view : kViews) {
    panel.button(view.button).Click = [&view, &PROT = panel.label("LblPROT"), &PROG = panel.label("LblPROG")] {
      open(view, PROT, PROG);
    };
  }
}

}  // namespace qvn::documents
