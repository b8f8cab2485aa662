#include <array>
#include <span>

#include "qvn/lookups/viewer.h"
#include "qvn/shared/Globale.h"

namespace qvn::lookups {

namespace {

using toolkit::GridColumn;
using toolkit::WidgetKind;
using toolkit::WidgetLayout;

constexpr std::array<GridColumn, 4> kCompanyColumns{{
    {.caption = "Codice", .dataField = "COD_COMP"},
    {.caption = "Denominazione", .dataField = "DESC_COMPAGNIA"},
    {.caption = "PL", .dataField = "PL", .numberFormat = "Currency"},
    {.caption = "PA", .dataField = "PA", .numberFormat = "Currency"},
}};
constexpr std::array<GridColumn, 4> kProducerColumns{{
    {.caption = "Codice", .dataField = "COD_PROD"},
    {.caption = "Denominazione", .dataField = "DENOMINAZIONE"},
    {.caption = "PP", .dataField = "PP", .numberFormat = "Currency"},
    {.caption = "RA", .dataField = "RA", .numberFormat = "Currency"},
}};

constexpr std::array<WidgetLayout, 3> widgetsWith(std::span<const GridColumn> columns) {
  return {{
      {.name = "Adodc1", .kind = WidgetKind::DataControl, .tabIndex = 1, .place = {75, 4200, 1815, 390}},
      {.name = "TDBGrid1",
       .kind = WidgetKind::DataGrid,
       .tabIndex = 0,
       .place = {75, 75, 8115, 4065},
       .columns = columns,
       .dataSource = "Adodc1"},
      {.name = "CmdCHIUDI",
       .kind = WidgetKind::CommandButton,
       .tabIndex = 2,
       .place = {6150, 4200, 2040, 615},
       .caption = "Chiudi",
       .cancelButton = true},
  }};
}

constexpr auto kCompanyWidgets = widgetsWith(kCompanyColumns);
constexpr auto kProducerWidgets = widgetsWith(kProducerColumns);

constexpr toolkit::FormLayout kCompanies{
    .caption = "Visualizza Compagnie",
    .inside = {.name = "FrmVIS_COMPAGNIE", .width = 8310, .height = 4905, .widgets = kCompanyWidgets}};
constexpr toolkit::FormLayout kProducers{
    .caption = "Visualizza Produttori",
    .inside = {.name = "FrmVIS_PRODUTTORI", .width = 8310, .height = 4905, .widgets = kProducerWidgets}};

struct FrmVIS_COMPAGNIE {
  Viewer viewer{kCompanies};
};

struct FrmVIS_PRODUTTORI {
  Viewer viewer{kProducers};
};

/// The viewer of the one form of its kind, which it keeps.
template <class Form>
std::shared_ptr<Viewer> viewerOf() {
  const std::shared_ptr<Form> form = Globale::the<Form>();
  return {form, &form->viewer};
}

}  // namespace

std::shared_ptr<Viewer> companiesViewer() { return viewerOf<FrmVIS_COMPAGNIE>(); }
std::shared_ptr<Viewer> producersViewer() { return viewerOf<FrmVIS_PRODUTTORI>(); }

}  // namespace qvn::lookups
