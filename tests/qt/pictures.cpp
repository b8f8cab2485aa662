// Pictures of each panel and each form on the sample office's database, as PNG files in a folder.
#include <QApplication>
#include <QDir>
#include <algorithm>
#include <array>
#include <iostream>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platforms/qt/platform.h"
#include "platforms/sqlite/driver.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/viewer.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/clsQVN_Eventi.h"
#include "qvn/toolkit/list_view.h"
#include "tests/qt/dark_desktop.h"

namespace {

using namespace qvn;

struct Nobody final : toolkit::Container {
  void PropertyChanged(toolkit::Surface&, std::string_view) override {}
  void handlerFailed(toolkit::Surface& panel, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override {
    std::cerr << panel.name() << '.' << widget.Name() << ' ' << event << ": " << failure.what() << '\n';
  }
};

struct Content {
  std::string_view member;
  Variant value;
};

Variant text(std::string_view value) { return std::string(value); }
Variant day(int day, int month) { return *Date::of(day, month, 2026); }
Variant amount(std::int64_t hundredths) { return Currency::fromTenThousandths(hundredths * 100); }

/// What stands in the panels, by the names of their properties, in the order in which they are written.
std::span<const Content> contents() {
  static const std::array all{Content{"CLIENTE", text("Nardò Francesca")},
                              Content{"COD_COMP_DEL", text("AFAR")},
                              Content{"PROT", std::int32_t{90}},
                              Content{"PROG", std::int32_t{1}},
                              Content{"DELEGATARIA", true},
                              Content{"QUOTA", std::int16_t{250}},
                              Content{"PL", amount(274'448)},
                              Content{"DANNO", text("€ 2.744,48")},
                              Content{"COD_COMP", text("AFAR")},
                              Content{"COD_COMPAGNIA", text("AFAR")},
                              Content{"COD_PROD", text("ALFIE011")},
                              Content{"COD_PRODUTTORE", text("ALFIE011")},
                              Content{"COD_PROD_ALT", text("ABBAT029")},
                              Content{"COD_PRODUTTORE_ALT", text("ABBAT029")},
                              Content{"COD_CLIENTE", text("A00022")},
                              Content{"DATA_EC", day(30, 9)},
                              Content{"DATA_DOC", day(15, 11)},
                              Content{"DATA_C", day(15, 11)},
                              Content{"DATA_RATA", day(27, 1)},
                              Content{"DATA_SINISTRO", day(27, 1)},
                              Content{"DATA_QUIET", day(15, 10)},
                              Content{"DATA_REG", day(16, 10)},
                              Content{"DATA_FIDO", day(1, 7)},
                              Content{"DATA_RIF", day(16, 10)},
                              Content{"D_RIMESSA", day(30, 11)},
                              Content{"DA_DATA", day(1, 11)},
                              Content{"A_DATA", day(30, 11)},
                              Content{"N_POLIZZA", text("46/00000090")},
                              Content{"N_SINISTRO_COMP", text("2026/000417")},
                              Content{"COD_GR", text("FD")},
                              Content{"DESC_SRAMO", text("Fideiussione d'Affitto")},
                              Content{"SIGLA_SRAMO", text("FUAB")},
                              Content{"TIPO_DOC", text("P")},
                              Content{"TIPO_RATA", text("A")},
                              Content{"GRUPPO", text("Nardò")},
                              Content{"CONTROPARTE", text("Abbate Caterina")},
                              Content{"INT_ASS", text("Urbanizzazione")},
                              Content{"STATO", text("S")},
                              Content{"ST_COMP", Null{}},
                              Content{"ST_PROD", day(15, 10)},
                              Content{"PREMIO", amount(274'448)},
                              Content{"PROVVIGIONE", amount(41'167)},
                              Content{"RIMBORSO", amount(0)},
                              Content{"FIDO", amount(500'000)},
                              Content{"Codice", text("22")},
                              Content{"COD_MOVIMENTO", std::uint8_t{7}},
                              Content{"COD_RAMO", text("FD")},
                              Content{"TIPO_SK", std::int16_t{4}},
                              Content{"competenze", text("1")},
                              Content{"DESCRIZIONE", text("ORDINARIA")},
                              Content{"Deb_Dec", std::uint8_t{100}},
                              Content{"COD_IVA", std::uint8_t{22}},
                              Content{"IMPONIBILE", amount(100'000)},
                              Content{"IVA", std::int16_t{22}},
                              Content{"Mastro", text("0101")},
                              Content{"Conto", text("000002")},
                              Content{"PROGRESSIVO", text("1")},
                              Content{"DESC_1", text("INCASSO POLIZZA 46/00000090")},
                              Content{"DESC_2", text("NARDÒ FRANCESCA")},
                              Content{"NRIF", std::int32_t{12}},
                              Content{"NDOC", text("417")},
                              Content{"FLAG", text("X")},
                              Content{"N_RIGHE", std::int32_t{128}},
                              Content{"DARE", amount(12'345'678)},
                              Content{"AVERE", amount(12'345'678)},
                              Content{"IMPORTO", amount(274'448)},
                              Content{"TIPO", text("A")}};
  return all;
}

/// A policy's premiums as the panels of participants take them, whole and by their parts.
CurrencyArray premiums(std::size_t rows, std::size_t columns) {
  CurrencyArray array{.extents = {rows}, .values = {}};
  if (columns > 0) array.extents.push_back(columns);
  for (std::size_t i = 0; i < rows * std::max<std::size_t>(columns, 1); ++i) {
    array.values.push_back(Currency::of(static_cast<std::int64_t>(1265 - 100 * i)));
  }
  return array;
}

bool has(const Panel& panel, std::string_view name) {
  return std::ranges::any_of(panel.members(), [name](const Member& member) { return member.name == name; });
}

void fill(Panel& panel) {
  for (const Content& content : contents()) {
    if (has(panel, content.member)) letByName(panel, content.member, content.value);
  }
  if (has(panel, "IMPONIBILE")) letByName(panel, "IVA", amount(22'000));
  std::array<Variant, 1> figures;
  if (has(panel, "VALORI")) callByName(panel, "VALORI", figures = {premiums(3, 2)});
  if (has(panel, "Imposta_VALORI")) {
    const bool ofClaim = has(panel, "N_SINISTRO_COMP");
    callByName(panel, "Imposta_VALORI", figures = {ofClaim ? premiums(3, 0) : premiums(3, 3)});
  }
}

/// Gives the panel to the operator; one that only shows has nothing to give.
void activate(Panel& panel) {
  if (!has(panel, "Attiva")) return;
  std::array<Variant, 1> authorised{true};
  const bool asks = panel.surface().layout().name == "ctlSOSPESI";
  callByName(panel, "Attiva", std::span(authorised).first(asks ? 1 : 0));
}

class Pictures {
 public:
  Pictures(qt::Platform& platform, const QString& folder) : platform_(platform), folder_(folder) {
    all_ = folder_.mkpath(QStringLiteral("."));
  }

  void takePanel(const PanelClass& type, const std::string& name) {
    const std::unique_ptr<Panel> panel = type.make({.container = nobody_, .name = std::string(type.name)});
    fill(*panel);
    QWidget& widget = platform_.widgetOf(panel->surface());
    widget.show();
    QApplication::setActiveWindow(&widget);
    activate(*panel);
    if (has(*panel, "TOTALI")) platform_.hands().type("12,5{Enter}{Enter}10{Enter}{Enter}2,5{Enter}");
    take(panel->surface(), name);
  }

  /// Shows the form by the call, and takes its picture as it stands.
  template <class Show>
  void takeForm(const std::string& name, Show show) {
    struct AtForm final : Watcher {
      explicit AtForm(Pictures& pictures, std::string file) : pictures_(pictures), file_(std::move(file)) {}
      void lostFocus(const toolkit::Widget&) override {}
      void gotFocus(const toolkit::Widget&) override {}
      void beeped() override {}
      void formShown(std::string_view) override {
        const toolkit::Forms& forms = pictures_.platform_.forms();
        pictures_.take(forms.at(forms.count() - 1).surface(), file_);
      }

     private:
      Pictures& pictures_;
      std::string file_;
    } watcher(*this, name);
    platform_.watch(&watcher);
    show();
    platform_.watch(nullptr);
  }

  bool all() const { return all_; }

 private:
  void take(toolkit::Surface& surface, const std::string& name) {
    QApplication::processEvents();
    const QString file = folder_.filePath(QString::fromStdString(name) + QStringLiteral(".png"));
    const QImage picture = platform_.widgetOf(surface).grab().toImage();
    if (picture.convertToFormat(QImage::Format_RGB888).save(file)) return;
    std::cerr << "cannot write " << file.toStdString() << '\n';
    all_ = false;
  }

  qt::Platform& platform_;
  QDir folder_;
  Nobody nobody_;
  bool all_ = true;
};

void takeForms(Pictures& pictures) {
  pictures.takeForm("Lista", [] {
    std::string code;
    std::string description;
    QVN_Ricerche::ListaCOMPAGNIE(code, description);
  });
  pictures.takeForm("FrmVIS_COMPAGNIE", [] {
    const auto viewer = lookups::companiesViewer();
    viewer->load();
    viewer->connect();
    viewer->fill(
        "Select COD_COMP, DESC_COMPAGNIA, 1234.5 As PL, 61.72 As PA From COMPAGNIE Order By COD_COMP Limit 12");
    viewer->show();
  });
  pictures.takeForm("FrmVIS_PRODUTTORI", [] {
    const auto viewer = lookups::producersViewer();
    viewer->load();
    viewer->connect();
    viewer->fill("Select COD_PROD, DENOMINAZIONE, 123.45 As PP, 28.39 As RA From PRODUTTORI Order By COD_PROD Limit 3");
    viewer->show();
  });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: qvn-pictures DATABASE FOLDER\n";
    return 2;
  }
  qt::OffscreenPlatform platform;
  platform.drivers().add(sqlite::driver());
  Globale::install(platform);
  bool all = false;
  try {
    Globale::Eventi()->ImpostaDB(std::string("sqlite:").append(argv[1]));
    Pictures pictures(platform, QString::fromLocal8Bit(argv[2]));
    for (const PanelClass& type : panelClasses()) pictures.takePanel(type, std::string(type.name));
    takeForms(pictures);
    QApplication::setPalette(test::darkDesktop());
    pictures.takePanel(panelClass("ctlPROV_POLIZZE"), "ctlPROV_POLIZZE_dark");
    all = pictures.all();
  } catch (const Failure& failure) {
    std::cerr << failure.what() << '\n';
  }
  Globale::unload();
  Globale::uninstall();
  return all ? 0 : 1;
}
