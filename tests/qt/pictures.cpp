// Pictures of each panel and of the pick list, as PNG files in a folder.
#include <QApplication>
#include <QDir>
#include <array>
#include <iostream>
#include <memory>
#include <string>

#include "platforms/qt/platform.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"
#include "qvn/toolkit/list_view.h"

namespace {

using namespace qvn;

struct Nobody final : toolkit::Container {
  void PropertyChanged(toolkit::Surface&, std::string_view) override {}
  void handlerFailed(toolkit::Surface&, toolkit::Widget& widget, std::string_view event,
                     const Failure& failure) noexcept override {
    std::cerr << widget.Name() << ' ' << event << ": " << failure.what() << '\n';
  }
};

constexpr std::array<toolkit::WidgetLayout, 3> kListWidgets{{
    {.name = "ListView1", .kind = toolkit::WidgetKind::ListView, .tabIndex = 0, .place = {72, 72, 4548, 3036}},
    {.name = "CmdOK",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 1,
     .place = {4680, 48, 1188, 600},
     .caption = "&OK",
     .defaultButton = true},
    {.name = "CmdAbort",
     .kind = toolkit::WidgetKind::CommandButton,
     .tabIndex = 2,
     .place = {4680, 720, 1188, 600},
     .caption = "Annulla",
     .cancelButton = true},
}};
constexpr toolkit::FormLayout kList{
    .caption = "Listato", .inside = {.name = "Lista", .width = 5940, .height = 3180, .widgets = kListWidgets}};

bool save(QWidget& widget, const QDir& folder, const std::string& name) {
  const QString file = folder.filePath(QString::fromStdString(name) + ".png");
  if (widget.grab().save(file)) return true;
  std::cerr << "cannot write " << file.toStdString() << '\n';
  return false;
}

bool savePanel(qt::Platform& platform, const PanelClass& made, const QDir& folder) {
  Nobody nobody;
  const std::unique_ptr<Panel> panel = made.make({.container = nobody, .name = std::string(made.name)});
  QWidget& widget = platform.widgetOf(panel->surface());
  widget.show();
  QApplication::setActiveWindow(&widget);
  QApplication::processEvents();
  bool saved = save(widget, folder, std::string(made.name) + "_off");
  callByName(*panel, "Attiva", {});
  platform.hands().type("12");
  QApplication::processEvents();
  saved = save(widget, folder, std::string(made.name)) && saved;
  return saved;
}

bool saveList(qt::Platform& platform, const QDir& folder) {
  Nobody nobody;
  const std::unique_ptr<toolkit::Form> form = platform.makeForm(kList, nobody);
  bool saved = false;
  form->Load = [&] {
    toolkit::ListView& rows = form->surface().listView("ListView1");
    rows.addColumn("Codice", 900);
    rows.addColumn("Descrizione", 3000);
    for (const auto& row :
         {std::array<std::string_view, 2>{"10", "Esente art. 10"}, {"22", "Ordinaria"}, {"4", "Minima"}})
      rows.addRow(row);
    form->surface().button("CmdOK").Click = [&] {
      QApplication::processEvents();
      saved = save(platform.widgetOf(form->surface()), folder, "Lista");
    };
  };
  platform.hands().layDown("Lista", {Act::row(1), Act::key("{Enter}")});
  form->showModal();
  return saved;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: qvn-pictures FOLDER\n";
    return 2;
  }
  qt::OffscreenPlatform platform;
  Globale::install(platform);
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  bool saved = folder.mkpath(".");
  for (const PanelClass& made : panelClasses()) saved = savePanel(platform, made, folder) && saved;
  saved = saveList(platform, folder) && saved;
  Globale::uninstall();
  return saved ? 0 : 1;
}
