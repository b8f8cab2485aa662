// The journal print at the window: its header, its lines however many there are, and the file that it is printed to.
#include <QFileDialog>
#include <QLabel>
#include <QProgressDialog>
#include <QTimer>
#include <filesystem>

#include "hosts/ufficio/journal/journal_file.h"
#include "hosts/ufficio/print_dialog.h"
#include "hosts/ufficio/store_failure.h"
#include "platforms/qt/texts.h"
#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using ufficio::journal::JournalPages;

/// How many pages a file of the kind has.
std::size_t pagesOf(const std::string& file) {
  const std::string contents = office_test::contentsOf(file);
  const std::string_view page = "/Type /Page\n";
  std::size_t count = 0;
  for (std::size_t at = contents.find(page); at != std::string::npos; at = contents.find(page, at + 1)) ++count;
  return count;
}

class OfficeJournalPrint : public AtWindow {
 public:
  OfficeJournalPrint() {
    // 10,000 lines of one year, and a movement of the year before.
    sample.write(
        "DELETE FROM MOVIMENTI;"
        "INSERT INTO MOVIMENTI VALUES (1, 1, 6, '2030-12-31', '0601', '000001', 'D', 'PRIMA', '', 1500.25),"
        "(1, 2, 6, '2030-12-31', '0202', '000001', 'A', 'PRIMA', '', 1500.25);"
        "WITH RECURSIVE N(I) AS (SELECT 0 UNION ALL SELECT I + 1 FROM N WHERE I < 9999) "
        "INSERT INTO MOVIMENTI SELECT 2 + I / 2, 1 + I % 2, 6, date('2031-01-01', (I / 40) || ' days'), "
        "iif(I % 2, '0202', '0601'), '000001', iif(I % 2, 'A', 'D'), 'RIGA ' || (I + 1), 'PROVA', 1 + I / 2 FROM N");
    choose("giornale");
    window().askFileBy([this](const QString& name) {
      proposed = name;
      return QString::fromStdString(pdf());
    });
  }
  std::string pdf() const { return sample.beside("giornale.pdf"); }
  void print() { press(Qt::Key_P, Qt::ControlModifier); }
  std::string header(std::string_view label) {
    return std::string(screen().panels().front()->surface().label(label).Caption());
  }
  ufficio::ResultScreen& lines() { return *screen().lines(); }
  std::string line(std::size_t place, std::string_view label) {
    Panel* const panel = lines().panelAt(place);
    if (panel == nullptr) return "not in view";
    return std::string(panel->surface().label(label).Caption());
  }
  /// The names of the files beside the database.
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(pdf()).parent_path())) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  QString proposed;
};

TEST_F(OfficeJournalPrint, ShowsThePeriodWithWhatIsCarriedToItAndItsLines) {
  open("2031");
  EXPECT_EQ(header("LblDA_DATA"), "01/01/2031");
  EXPECT_EQ(field("TxtA_DATA").text(), "31/12/2031");
  EXPECT_EQ(header("LblNRighe"), "10000");
  EXPECT_EQ(header("LblDARE"), "€ 1.500,25");
  EXPECT_EQ(header("LblAVERE"), "€ 1.500,25");
  EXPECT_EQ(line(0, "LblRIF"), "2");
  EXPECT_EQ(line(0, "LblDATA_RIF"), "01/01/2031");
  EXPECT_EQ(line(0, "LblDOC"), "2/1");
  EXPECT_EQ(line(0, "LblDESC_1"), "0601 000001  Affitti");
  EXPECT_EQ(line(0, "LblDESC_2"), "RIGA 1  PROVA");
  EXPECT_EQ(line(0, "LblDARE"), "€ 1,00");
  EXPECT_EQ(line(0, "LblAVERE"), "€ 0,00");
  EXPECT_EQ(line(1, "LblDARE"), "€ 0,00");
  EXPECT_EQ(line(1, "LblAVERE"), "€ 1,00");
}

TEST_F(OfficeJournalPrint, ScrollsToTheLastLineWithFewPanels) {
  open("2031");
  window().findChild<QWidget*>("risultati")->setFocus();
  press(Qt::Key_End);
  EXPECT_EQ(line(9999, "LblDESC_2"), "RIGA 10000  PROVA");
  EXPECT_EQ(line(9999, "LblAVERE"), "€ 5.000,00");
  EXPECT_EQ(line(0, "LblRIF"), "not in view");
  EXPECT_LT(lines().panels().size(), 20U);
  press(Qt::Key_PageUp);
  press(Qt::Key_Home);
  EXPECT_EQ(line(0, "LblDESC_2"), "RIGA 1  PROVA");
}

TEST_F(OfficeJournalPrint, StoresTheLastDayAndTheKindOfPrintAndShowsTheLinesOfThatPeriod) {
  open("2031");
  edit();
  EXPECT_EQ(focused(), "TxtA_DATA");
  write("02012031");
  press(Qt::Key_Tab);
  EXPECT_EQ(focused(), "ChkDEFINITIVO");
  press(Qt::Key_Space);
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(sample.line("SELECT * FROM STAMPE_GIORNALE"), "2031-01-01|2031-01-02|1");
  EXPECT_EQ(header("LblNRighe"), "80");
  EXPECT_EQ(lines().count(), 80U);
  print();
  EXPECT_EQ(pagesOf(pdf()), 3U);
}

TEST_F(OfficeJournalPrint, RefusesAPeriodThatEndsBeforeItBegins) {
  open("2031");
  edit();
  write("31122030");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("l'ultimo giorno manca o viene prima del primo"));
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(field("TxtA_DATA").text(), "31/12/2030");
}

TEST_F(OfficeJournalPrint, PrintsEveryLineOnAPage) {
  open("2031");
  print();
  EXPECT_EQ(proposed, "giornale-2031.pdf");
  EXPECT_EQ(notice(), QString("Stampato in %1.").arg(QString::fromStdString(pdf())));
  EXPECT_THAT(office_test::contentsOf(pdf()), StartsWith("%PDF-"));
  EXPECT_EQ(pagesOf(pdf()), (10'000 + JournalPages::kLinesAPage - 1) / JournalPages::kLinesAPage);
  EXPECT_EQ(files().size(), 2U) << "the database and the print";
}

TEST_F(OfficeJournalPrint, LeavesNoFileWhereTheOperatorStopsIt) {
  open("2031");
  QTimer whenHalf;
  int seen = 0;
  QObject::connect(&whenHalf, &QTimer::timeout, [&] {
    auto* bar = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    if (bar == nullptr || bar->value() < bar->maximum() / 3) return;
    whenHalf.stop();
    seen = bar->value();
    QTest::keyClick(bar, Qt::Key_Escape);
  });
  whenHalf.start(0);
  print();
  EXPECT_GT(seen, 0);
  EXPECT_LT(seen, 10'000);
  EXPECT_EQ(notice(), "La stampa è stata annullata.");
  EXPECT_THAT(files(), ElementsAre("ufficio.db"));
}

TEST_F(OfficeJournalPrint, KeepsTheFileThatWasThereWhereTheOperatorStopsIt) {
  office_test::writeFile(pdf(), "prima");
  open("2031");
  ufficio::Store& store = office.store;
  EXPECT_FALSE(ufficio::journal::writeJournal(
      pdf(), {.from = "01/01/2031", .to = "31/12/2031", .lines = 100}, {},
      [](std::size_t place) {
        return ufficio::journal::PrintedLine{place + 1, "1", "01/01/2031", "0601", "", "D", {}};
      },
      [](std::size_t done, std::size_t /*all*/) { return done < 60; }));
  EXPECT_EQ(office_test::contentsOf(pdf()), "prima");
  EXPECT_TRUE(store.canOpen());
}

TEST_F(OfficeJournalPrint, TellsOfALineThatIsGoneAndLeavesNoFile) {
  open("2031");
  sample.write("DELETE FROM MOVIMENTI WHERE N_MOVIMENTO = 4000");
  print();
  EXPECT_THAT(notice().toStdString(), HasSubstr("La stampa non è riuscita: il record non c'è più"));
  EXPECT_FALSE(std::filesystem::exists(pdf()));
}

TEST_F(OfficeJournalPrint, TellsOfAFileThatCannotBeWritten) {
  open("2031");
  window().askFileBy(
      [this](const QString& /*name*/) { return QString::fromStdString(sample.beside("manca/giornale.pdf")); });
  print();
  EXPECT_EQ(notice(), QString("La stampa non è riuscita: il file %1 non si può scrivere.")
                          .arg(QString::fromStdString(sample.beside("manca/giornale.pdf"))));
  EXPECT_NE(window().findChild<QLabel*>("testo")->toolTip(), "") << "what the system said";
}

TEST_F(OfficeJournalPrint, NamesAFileWithoutAnEndingAsAPdf) {
  QTimer::singleShot(0, [this] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->selectedFiles().constFirst().section('/', -1), "Giornale 2031.pdf");
    dialog->selectFile(QString::fromStdString(sample.beside("prova")));
    static_cast<QDialog*>(dialog)->accept();
  });
  const QString file = ufficio::askFileInWindow(window(), QString::fromStdString(sample.beside("Giornale 2031.pdf")));
  EXPECT_EQ(file.toStdString(), sample.beside("prova.pdf"));
}

TEST_F(OfficeJournalPrint, PrintsNothingWhereNoFileIsNamed) {
  open("2031");
  window().askFileBy([](const QString& /*name*/) { return QString(); });
  print();
  EXPECT_EQ(notice(), "");
  EXPECT_THAT(files(), ElementsAre("ufficio.db"));
}

}  // namespace
}  // namespace qvn::test
