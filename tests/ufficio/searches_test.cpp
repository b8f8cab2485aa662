// The searches at the window: what they find, and the panels that show it while the operator scrolls.
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>

#include "hosts/ufficio/results_view.h"
#include "platforms/qt/texts.h"
#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

class OfficeSearch : public AtWindow {
 public:
  explicit OfficeSearch(std::string_view name = "ricerca-polizze") { choose(name); }

  ufficio::ResultsView& view() {
    return dynamic_cast<ufficio::ResultsView&>(*window().findChild<QStackedWidget*>()->currentWidget());
  }
  QScrollBar& bar() { return *view().verticalScrollBar(); }
  static std::string caption(const Panel& panel, std::string_view label) {
    return std::string(panel.surface().label(label).Caption());
  }
  /// What a label says in all panels in view, from top to bottom.
  std::vector<std::string> inView(std::string_view label) {
    std::vector<std::string> all;
    for (const Panel* panel : screen().panels()) all.push_back(caption(*panel, label));
    return all;
  }
  void search(const QString& text) {
    press(Qt::Key_F, Qt::ControlModifier);
    write(text);
  }
  /// The first column of all rows.
  std::vector<std::string> column(std::string_view sql) const {
    std::vector<std::string> values;
    for (const auto& row : sample.rows(sql)) values.push_back(row.front().value_or(""));
    return values;
  }
  std::vector<std::string> foundKeys() {
    std::vector<std::string> keys;
    for (const ufficio::Found& found : window().chooser().records()) keys.push_back(ufficio::textOf(found.key.front()));
    return keys;
  }
  /// One row's columns with the captions of the labels that show them.
  void expectShown(const Panel& panel, const std::vector<const char*>& labels, const std::string& sql) {
    std::string shown;
    for (const char* label : labels) shown.append(shown.empty() ? "" : "|").append(caption(panel, label));
    EXPECT_EQ(shown, sample.line(sql));
  }
  /// What a policy's panel is to show, column by column.
  void expectPolicy(const Panel& panel, const std::string& number) {
    expectShown(panel,
                {"LblPROT", "LblCLIENTE", "LblN_POLIZZA", "LblCOD_GR", "LblDESC_SRAMO", "LblGRUPPO", "LblTIPO_RATA",
                 "LblINT_ASS", "LblDATA_RATA", "LblSTATO", "LblCOD_COMP_DEL", "LblCOD_PROD_DEL", "LblQUOTA"},
                "SELECT P.PROT, DESC_CLIENTE, P.N_POLIZZA, P.COD_RAMO, S.DESCRIZIONE, coalesce(DENOMINAZIONE, ''), "
                "TIPO_RATA, INT_ASS, coalesce(substr(DATA_RATA, 9, 2) || '/' || substr(DATA_RATA, 6, 2) || '/' || "
                "substr(DATA_RATA, 1, 4), ''), CASE STATO WHEN 'A' THEN 'ANNULLATA' WHEN 'D' THEN "
                "CASE TIPO_SK WHEN 4 THEN 'SVINCOLATA' ELSE 'DISDETTA' END ELSE '' END, coalesce(L.COD_COMP, ''), "
                "coalesce(L.COD_PROD, ''), coalesce(L.QUOTA, '') FROM POLIZZE P JOIN CLIENTI USING (COD_CLIENTE) "
                "JOIN SOTTORAMI S USING (COD_SRAMO) JOIN RAMI R ON R.COD_RAMO = P.COD_RAMO "
                "LEFT JOIN GRUPPI USING (COD_GRUPPO) LEFT JOIN QUOTE_POLIZZE L ON L.PROT = P.PROT AND L.COD_COMP = "
                "(SELECT min(COD_COMP) FROM QUOTE_POLIZZE WHERE PROT = P.PROT AND DELEGATARIA <> 0) WHERE P.PROT = " +
                    number);
  }
  /// Clicks a button of a panel that opens a viewer.
  Viewed viewed(const Panel& panel, std::string_view button) {
    const toolkit::Widget& its = panel.surface().widget(button);
    return AtWindow::viewed([&] { QTest::mouseClick(office.platform.widgetOf(its), Qt::LeftButton); });
  }
};

TEST_F(OfficeSearch, FindsPoliciesByClientNumberAndState) {
  search("amato f");
  EXPECT_THAT(foundKeys(), ElementsAreArray(column("SELECT PROT FROM POLIZZE JOIN CLIENTI USING (COD_CLIENTE) "
                                                   "WHERE DESC_CLIENTE LIKE '%amato f%' ORDER BY PROT")));
  search("/0000123");
  EXPECT_THAT(foundKeys(),
              ElementsAreArray(column("SELECT PROT FROM POLIZZE WHERE N_POLIZZA LIKE '%/0000123%' ORDER BY PROT")));
  EXPECT_EQ(foundKeys().size(), 10U);
  search("svincolata");
  EXPECT_THAT(foundKeys(), ElementsAreArray(column("SELECT PROT FROM POLIZZE JOIN RAMI USING (COD_RAMO) "
                                                   "WHERE STATO = 'D' AND TIPO_SK = 4 ORDER BY PROT")));
  search("nessuna polizza");
  EXPECT_THAT(foundKeys(), IsEmpty());
  EXPECT_FALSE(screen().panels().front()->surface().Visible());
}

TEST_F(OfficeSearch, ShowsWhatItFindsInPanelsWithoutARecordChosen) {
  search("annullata");
  const auto numbers = column("SELECT PROT FROM POLIZZE WHERE STATO = 'A' ORDER BY PROT LIMIT 3");
  const std::vector<std::string> shown = inView("LblPROT");
  ASSERT_GE(shown.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(shown[i], numbers[i]);
    EXPECT_EQ(caption(*screen().panels()[i], "LblSTATO"), "ANNULLATA");
    const QWidget& panel = office.platform.widgetOf(screen().panels()[i]->surface());
    EXPECT_EQ(panel.visibleRegion().boundingRect(), panel.rect());
  }
  EXPECT_THAT(window().findChild<QLabel*>("intestazione")->text().toStdString(), HasSubstr("Record trovati: 325."));
  EXPECT_FALSE(window().edit());
}

TEST_F(OfficeSearch, ShowsPoliciesFieldByField) {
  for (const char* number : {"1", "2", "4", "59", "60"}) {
    ASSERT_TRUE(window().openRecord({.key = {std::int64_t{std::stoi(number)}}, .text = "una"}));
    const auto place = screen().results()->marked();
    ASSERT_TRUE(place.has_value());
    ASSERT_NE(screen().results()->panelAt(*place), nullptr);
    expectPolicy(*screen().results()->panelAt(*place), number);
  }
  EXPECT_EQ(caption(*screen().panels().front(), "LblPL").substr(0, 4), "€ ");
}

TEST_F(OfficeSearch, ShowsAPolicyWithoutALeadProducerWithTheOneBeforeItGone) {
  sample.write("UPDATE QUOTE_POLIZZE SET COD_PROD = NULL WHERE PROT = 700");
  for (const std::int64_t number : {699, 700}) {
    search(QString("/%1").arg(number, 8, 10, QChar('0')));
    expectPolicy(*screen().panels().front(), std::to_string(number));
  }
  EXPECT_EQ(notice(), "");
}

TEST_F(OfficeSearch, ShowsTheLastOfThousandsAtTheEnd) {
  ASSERT_GE(screen().results()->count(), 1000U);
  view().setFocus();
  press(Qt::Key_End);
  const std::string last = foundKeys().back();
  EXPECT_EQ(inView("LblPROT").back(), last);
  expectPolicy(*screen().panels().back(), last);
  const QWidget& panel = office.platform.widgetOf(screen().panels().back()->surface());
  EXPECT_EQ(panel.visibleRegion().boundingRect(), panel.rect()) << "wholly in view";
  press(Qt::Key_Home);
  EXPECT_EQ(inView("LblPROT").front(), foundKeys().front());
}

TEST_F(OfficeSearch, ShowsEachOfAThousandWhereItStandsWhileScrolling) {
  const std::vector<std::string> numbers = foundKeys();
  ASSERT_GE(numbers.size(), 1000U);
  view().setFocus();
  std::vector<std::string> seen;
  int presses = 0;
  for (; seen.size() < 1000 && presses < 1000; ++presses) {
    const std::vector<std::string> now = inView("LblPROT");
    const auto at = std::ranges::find(numbers, now.front());
    ASSERT_NE(at, numbers.end());
    ASSERT_TRUE(std::equal(now.begin(), now.end(), at)) << "each panel its own record, in order";
    ASSERT_LE(static_cast<std::size_t>(at - numbers.begin()), seen.size()) << "none is left out";
    for (const std::string& number : now) {
      if (std::ranges::find(seen, number) == seen.end()) seen.push_back(number);
    }
    press(Qt::Key_PageDown);
  }
  EXPECT_GE(seen.size(), 1000U);
  EXPECT_LT(window().findChildren<QPushButton*>("CmdCOMPAGNIE").size(), 15) << "panels are made for what is in view";
}

TEST_F(OfficeSearch, StandsThePanelsOneBelowTheOtherAtAnyPosition) {
  for (const int position : {0, 1, 50, 86, 87, 1000, 12345}) {
    bar().setValue(position);
    see();
    int below = 0;
    for (const Panel* panel : screen().panels()) {
      const QWidget& widget = office.platform.widgetOf(panel->surface());
      EXPECT_TRUE(widget.isVisible());
      if (below != 0) {
        EXPECT_EQ(widget.y(), below);
      }
      below = widget.y() + widget.height() + 4;
    }
    EXPECT_LE(office.platform.widgetOf(screen().panels().front()->surface()).y(), 0);
    EXPECT_GE(below, view().viewport()->height());
  }
}

TEST_F(OfficeSearch, BringsTheChosenRecordIntoView) {
  auto* list = window().findChild<QListWidget*>("record");
  list->setFocus();
  press(Qt::Key_End);
  press(Qt::Key_Return);
  const std::string last = foundKeys().back();
  EXPECT_EQ(ufficio::textOf(screen().key().front()), last);
  EXPECT_EQ(inView("LblPROT").back(), last);
  EXPECT_EQ(list->currentRow(), list->count() - 1);
}

TEST_F(OfficeSearch, ReadsAPolicyAnewWhenItComesIntoViewAgain) {
  sample.write("UPDATE POLIZZE SET INT_ASS = 'Altro' WHERE PROT = 1");
  view().setFocus();
  press(Qt::Key_End);
  press(Qt::Key_Home);
  EXPECT_EQ(caption(*screen().panels().front(), "LblINT_ASS"), "Altro");
}

TEST_F(OfficeSearch, TellsOfARecordThatIsGoneAndShowsTheOthers) {
  sample.write("DELETE FROM POLIZZE WHERE PROT = " + foundKeys().at(1001));
  bar().setValue(1000 * 87);
  see();
  EXPECT_THAT(notice().toStdString(), HasSubstr("Un record trovato non si può mostrare: il record non c'è più"));
  EXPECT_EQ(inView("LblPROT").at(0), foundKeys().at(1000));
  EXPECT_EQ(inView("LblPROT").at(1), foundKeys().at(1002));
  EXPECT_EQ(screen().results()->panelAt(1001), nullptr);
}

TEST_F(OfficeSearch, OpensTheViewersOfThePolicyThatStandsThereAfterScrolling) {
  bar().setValue(500 * 87);
  see();
  const Panel& panel = *screen().panels().at(1);
  const std::string number = foundKeys().at(501);
  ASSERT_EQ(caption(panel, "LblPROT"), number);
  const Viewed companies = viewed(panel, "CmdCOMPAGNIE");
  EXPECT_THAT(companies.codes,
              ElementsAreArray(column("SELECT COD_COMP FROM QUOTE_POLIZZE WHERE PROT = " + number + " ORDER BY 1")));
  EXPECT_FALSE(companies.codes.empty());
  EXPECT_THAT(viewed(panel, "CmdPRODUTTORI").codes,
              ElementsAreArray(column("SELECT COD_PROD FROM QUOTE_POLIZZE JOIN PRODUTTORI USING (COD_PROD) "
                                      "WHERE PROT = " +
                                      number + " ORDER BY 1")));
  EXPECT_THAT(viewed(panel, "CmdPRODUTTORI_ALT").title.toStdString(), HasSubstr(" Alt."));
}

TEST_F(OfficeSearch, TakesTheFocusFromAButtonThatScrollsOutOfView) {
  const toolkit::Widget& button = screen().panels().front()->surface().widget("CmdCOMPAGNIE");
  office.platform.widgetOf(button)->setFocus();
  press(Qt::Key_PageDown);
  press(Qt::Key_PageDown);
  EXPECT_GT(bar().value(), 500);
  EXPECT_EQ(focused(), "risultati");
}

TEST_F(OfficeSearch, GoesFromPanelToPanelByTheKeyboardAlsoBeyondTheView) {
  view().setFocus();
  for (std::size_t place = 0; place < 20; ++place) {
    press(Qt::Key_PageDown, Qt::ControlModifier);
    const Panel* const panel = screen().results()->panelAt(place);
    ASSERT_NE(panel, nullptr) << place;
    const QWidget& widget = office.platform.widgetOf(panel->surface());
    EXPECT_TRUE(widget.isAncestorOf(QApplication::focusWidget())) << place;
    EXPECT_EQ(widget.visibleRegion().boundingRect().height(), widget.height()) << "wholly in view, " << place;
  }
}

TEST_F(OfficeSearch, ComesBackToTheRecordThatWasChosen) {
  search("svincolata");
  press(Qt::Key_Return);
  const ufficio::Key key = screen().key();
  choose("iva");
  choose("ricerca-polizze");
  EXPECT_EQ(screen().key(), key);
  ASSERT_NE(screen().results()->panelAt(*screen().results()->marked()), nullptr);
}

class OfficeClaimSearch : public OfficeSearch {
 public:
  OfficeClaimSearch() : OfficeSearch("ricerca-sinistri") {}
};

TEST_F(OfficeClaimSearch, FindsClaimsByNumberAndOtherParty) {
  search("2011/");
  EXPECT_THAT(foundKeys(),
              ElementsAreArray(column("SELECT N_SINISTRO FROM SINISTRI WHERE N_SINISTRO LIKE '2011/%' ORDER BY 1")));
  search("abbate nicc");
  EXPECT_THAT(foundKeys(), ElementsAreArray(column("SELECT N_SINISTRO FROM SINISTRI JOIN POLIZZE USING (PROT) "
                                                   "JOIN CLIENTI USING (COD_CLIENTE) WHERE CONTROPARTE LIKE "
                                                   "'abbate nicc%' OR DESC_CLIENTE LIKE 'abbate nicc%' ORDER BY 1")));
  EXPECT_FALSE(foundKeys().empty());
}

TEST_F(OfficeClaimSearch, ShowsEveryClaimFieldByField) {
  ASSERT_GE(foundKeys().size(), 600U);
  const std::vector<ufficio::Found> found(window().chooser().records().begin(), window().chooser().records().end());
  for (std::size_t i = 0; i < found.size(); i += 10) {
    ASSERT_TRUE(window().openRecord(found[i]));
    const Panel* const panel = screen().results()->panelAt(i);
    ASSERT_NE(panel, nullptr);
    expectShown(*panel,
                {"LblPROT", "LblCLIENTE", "LblN_POLIZZA", "LblCOD_GR", "LblDESC_SRAMO", "LblCONTROPARTE", "LblINT_ASS",
                 "LblDATA_SINISTRO", "LblSTATO", "LblCOD_COMP_DEL", "LblQUOTA", "LblCOD_PROD_DEL"},
                "SELECT C.N_SINISTRO, DESC_CLIENTE, P.N_POLIZZA, P.COD_RAMO, S.DESCRIZIONE, CONTROPARTE, INT_ASS, "
                "coalesce(substr(DATA_SINISTRO, 9, 2) || '/' || substr(DATA_SINISTRO, 6, 2) || '/' || "
                "substr(DATA_SINISTRO, 1, 4), ''), CASE STATO WHEN 'A' THEN 'ANNULLATA' WHEN 'D' THEN "
                "CASE TIPO_SK WHEN 4 THEN 'SVINCOLATA' ELSE 'DISDETTA' END ELSE '' END, coalesce(L.COD_COMP, ''), "
                "coalesce(L.QUOTA, ''), coalesce((SELECT COD_PROD FROM QUOTE_POLIZZE WHERE PROT = P.PROT AND "
                "DELEGATARIA <> 0 ORDER BY COD_COMP LIMIT 1), '') FROM SINISTRI C JOIN POLIZZE P USING (PROT) "
                "JOIN CLIENTI USING (COD_CLIENTE) JOIN SOTTORAMI S USING (COD_SRAMO) JOIN RAMI R ON "
                "R.COD_RAMO = P.COD_RAMO LEFT JOIN QUOTE_SINISTRI L ON L.N_SINISTRO = C.N_SINISTRO AND L.COD_COMP = "
                "(SELECT min(COD_COMP) FROM QUOTE_SINISTRI WHERE N_SINISTRO = C.N_SINISTRO AND DELEGATARIA <> 0) "
                "WHERE C.N_SINISTRO = '" +
                    ufficio::textOf(found[i].key.front()) + "'");
  }
}

TEST_F(OfficeClaimSearch, ShowsTheDamageAsMoney) {
  ASSERT_TRUE(window().openRecord({.key = {std::string("2010/00000020")}, .text = "uno"}));
  EXPECT_EQ(caption(*screen().results()->panelAt(*screen().results()->marked()), "LblDANNO"), "€ 5.575,95");
}

TEST_F(OfficeClaimSearch, ShowsTheLeadCompanyOfNow) {
  const ufficio::Found first = window().chooser().records().front();
  const std::string where = " WHERE N_SINISTRO = '" + ufficio::textOf(first.key.front()) + "'";
  ASSERT_TRUE(window().openRecord(first));
  sample.write("UPDATE QUOTE_SINISTRI SET DELEGATARIA = 0" + where);
  ASSERT_TRUE(window().openRecord(first));
  EXPECT_EQ(caption(*screen().panels().front(), "LblCOD_COMP_DEL"), "");
  EXPECT_EQ(caption(*screen().panels().front(), "LblDESC_COMP_DEL"), "");
}

TEST_F(OfficeClaimSearch, OpensTheViewerOfItsCompanies) {
  const Panel& panel = *screen().panels().at(1);
  EXPECT_THAT(viewed(panel, "CmdCOMPAGNIE").codes,
              ElementsAreArray(column("SELECT COD_COMP FROM QUOTE_SINISTRI WHERE N_SINISTRO = '" +
                                      caption(panel, "LblPROT") + "' ORDER BY 1")));
}

}  // namespace
}  // namespace qvn::test
