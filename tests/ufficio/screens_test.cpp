// What holds of every screen of the register.
#include <QLabel>
#include <QScrollBar>
#include <filesystem>
#include <ostream>

#include "platforms/qt/texts.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/database_numbers.h"
#include "tests/ufficio/at_window.h"

namespace qvn::ufficio {
inline std::ostream& operator<<(std::ostream& out, const ScreenClass& made) { return out << made.name; }
}  // namespace qvn::ufficio

namespace qvn::test {
namespace {

using testing::IsEmpty;
using ufficio::Found;
using ufficio::ScreenClass;

class OfficeScreens : public testing::TestWithParam<ScreenClass> {
 public:
  OfficeScreens() { EXPECT_TRUE(window().chooseScreen(numberOf(GetParam().name))); }

  ufficio::Window& window() { return *office.window; }
  /// Whether a panel has laid it out, by its own measures.
  bool isInPanel(const QWidget& widget) {
    return std::ranges::any_of(window().screen()->panels(), [&](Panel* panel) {
      return office.platform.widgetOf(panel->surface()).isAncestorOf(&widget);
    });
  }
  /// What the fields, or the labels, of the panels show that are to be seen, from top to bottom.
  template <class Widget>
  std::vector<std::string> shownIn() {
    QApplication::processEvents();
    std::vector<std::string> texts;
    for (const Panel* panel : window().screen()->panels()) {
      for (const toolkit::Widget* widget : panel->surface().widgets()) {
        const auto* const its = qobject_cast<const Widget*>(office.platform.widgetOf(*widget));
        if (its != nullptr && its->isVisible()) texts.push_back(qt::utf8(its->text()));
      }
    }
    return texts;
  }
  /// Types into the field that has the focus.
  static void typeSomething() {
    AtWindow::press(Qt::Key_A, Qt::ControlModifier);
    AtWindow::write("7");
  }
  /// Nothing of the record is to be seen; results stay, with none marked.
  void expectForgotten() {
    EXPECT_TRUE(window().screen()->key().empty());
    EXPECT_FALSE(window().screen()->changed());
    if (window().screen()->results() != nullptr) return;
    EXPECT_THAT(shownIn<QLineEdit>(), IsEmpty());
    EXPECT_THAT(shownIn<QLabel>(), IsEmpty());
    ufficio::ResultScreen* const lines = window().screen()->lines();
    EXPECT_TRUE(lines == nullptr || lines->count() == 0);
  }
  std::vector<Found> records() {
    const auto found = window().chooser().records();
    return {found.begin(), found.end()};
  }

  SampleCopy sample;
  OfficeAt office{sample.file()};
};

TEST_P(OfficeScreens, FindsRecordsAndEachByItsOwnText) {
  ASSERT_FALSE(records().empty());
  for (const Found& record : records()) {
    EXPECT_FALSE(record.text.empty());
    EXPECT_EQ(record.text.find("   "), std::string::npos) << "a part is missing between blanks: " << record.text;
    EXPECT_FALSE(record.key.empty());
  }
  const Found last = records().back();
  const std::vector<Found> again = window().screen()->find(office.store, last.text, 1000);
  EXPECT_TRUE(std::ranges::any_of(again, [&](const Found& found) { return found.key == last.key; }));
}

TEST_P(OfficeScreens, ShowsRecordsAndFindsThemUnchanged) {
  for (const Found& record : records()) {
    ASSERT_TRUE(window().openRecord(record)) << record.text << ": " << window().notice().toStdString();
    EXPECT_FALSE(window().screen()->changed()) << record.text;
    EXPECT_EQ(window().screen()->key(), record.key);
    EXPECT_TRUE(window().notice().isEmpty()) << window().notice().toStdString();
  }
}

TEST_P(OfficeScreens, ChangesNothingByOpeningLeavingAndStoring) {
  const std::string before = sample.everything();
  std::vector<Found> some = records();
  some.resize(std::min<std::size_t>(some.size(), 25));
  for (const Found& record : some) {
    ASSERT_TRUE(window().openRecord(record));
    if (!window().screen()->editable()) continue;
    ASSERT_TRUE(window().edit()) << window().notice().toStdString();
    QApplication::processEvents();
    EXPECT_FALSE(window().screen()->changed()) << record.text;
    EXPECT_TRUE(window().save()) << window().notice().toStdString();
  }
  EXPECT_EQ(sample.everything(), before);
}

TEST_P(OfficeScreens, ShowsNothingOfARecordThatItForgets) {
  ASSERT_TRUE(window().openRecord(records().front()));
  const auto fields = shownIn<QLineEdit>();
  const auto labels = shownIn<QLabel>();
  ASSERT_FALSE(fields.empty() && labels.empty());
  window().screen()->forget();
  expectForgotten();
  ASSERT_TRUE(window().openRecord(records().front()));
  EXPECT_EQ(shownIn<QLineEdit>(), fields);
  EXPECT_EQ(shownIn<QLabel>(), labels);
}

TEST_P(OfficeScreens, ShowsNothingThatWasGivenUpWhereTheDatabaseIsGone) {
  ASSERT_TRUE(window().openRecord(records().front()));
  if (!window().screen()->editable()) return;
  const auto before = shownIn<QLineEdit>();
  ASSERT_TRUE(window().edit());
  typeSomething();
  ASSERT_TRUE(window().screen()->changed());
  window().askBy([](const QString& /*record*/) { return ufficio::Unsaved::Discard; });
  std::filesystem::rename(sample.file(), sample.beside("altrove.db"));
  EXPECT_TRUE(window().cancel());
  EXPECT_FALSE(window().editing());
  expectForgotten();
  if (ufficio::ResultScreen* const lines = window().screen()->lines()) {
    EXPECT_FALSE(lines->anyPanel().surface().Visible());
  }
  EXPECT_EQ(window().windowTitle(), QString("[*]%1 – Ufficio").arg(qt::shown(GetParam().title)));
  std::filesystem::rename(sample.beside("altrove.db"), sample.file());
  ASSERT_TRUE(window().renew());
  ASSERT_TRUE(window().openRecord(records().front()));
  EXPECT_EQ(shownIn<QLineEdit>(), before);
}

TEST_P(OfficeScreens, ClipsNoTextOfTheWindow) {
  ASSERT_TRUE(window().openRecord(records().front()));
  QApplication::processEvents();
  int own = 0;
  for (const QLabel* label : window().findChildren<QLabel*>()) {
    if (!label->isVisible() || isInPanel(*label)) continue;
    ++own;
    if (label->wordWrap()) {
      EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
    } else {
      EXPECT_GE(label->width(), QFontMetrics(label->font()).horizontalAdvance(label->text()))
          << label->text().toStdString();
    }
  }
  EXPECT_GE(own, 2) << "the heading and the notice";
  const auto& screens = *window().findChild<QListWidget*>("schermate");
  EXPECT_GE(screens.viewport()->width(), screens.sizeHintForColumn(0));
  for (Panel* panel : window().screen()->panels()) {
    const QWidget& widget = office.platform.widgetOf(panel->surface());
    if (!widget.isVisible()) continue;
    EXPECT_GE(widget.visibleRegion().boundingRect().width(), widget.width()) << "the panel is wider than its place";
  }
}

TEST_P(OfficeScreens, ShowsTheWholeTextOfEachRecord) {
  QApplication::processEvents();
  const auto& list = *window().findChild<QListWidget*>("record");
  ASSERT_GT(list.count(), 0);
  const QFontMetrics metrics(list.font());
  const int seen = list.viewport()->width() + list.horizontalScrollBar()->maximum();
  for (int row = 0; row < list.count(); ++row) {
    const QListWidgetItem& item = *list.item(row);
    EXPECT_GE(seen, metrics.horizontalAdvance(item.text())) << item.text().toStdString();
    EXPECT_GE(list.visualItemRect(&item).width(), metrics.horizontalAdvance(item.text())) << item.text().toStdString();
    EXPECT_EQ(item.toolTip(), item.text());
  }
}

INSTANTIATE_TEST_SUITE_P(Register, OfficeScreens,
                         testing::ValuesIn(ufficio::screenClasses().begin(), ufficio::screenClasses().end()),
                         [](const auto& made) {
                           std::string name(made.param.name);
                           std::ranges::replace(name, '-', '_');
                           return name;
                         });

/// What a property of a screen's panel is to give: the number or text of a statement on the record's row.
struct Given {
  std::string_view property;
  std::string_view column;
};

struct Loaded {
  std::string_view screen;
  std::string_view table;
  std::vector<Given> given;
};

/// The number of a text as a count of ten-thousandths; the text itself where it is no number.
std::string counted(const Variant& value) {
  try {
    return std::to_string(as<Currency>(value, kDatabaseForm).tenThousandths());
  } catch (const Failure&) {
    return as<std::string>(value, kDatabaseForm);
  }
}

/// Every record that the screen lists gives by its properties what the table holds, `where` telling the row.
void expectGiven(const Loaded& loaded, const std::string& where) {
  const SampleCopy sample;
  const OfficeAt office(sample.file());
  const office_test::Database database(sample.file());
  ASSERT_TRUE(office.window->chooseScreen(numberOf(loaded.screen)));
  const auto records = office.window->chooser().records();
  ASSERT_FALSE(records.empty());
  for (const Found& record : std::vector<Found>(records.begin(), records.end())) {
    ASSERT_TRUE(office.window->openRecord(record));
    Panel& panel = *office.window->screen()->panels().front();
    std::string its = where;
    for (const ufficio::Value& value : record.key) {
      its.replace(its.find('?'), 1, std::string("'").append(ufficio::textOf(value)).append("'"));
    }
    for (const Given& given : loaded.given) {
      std::string sql = "SELECT " + std::string(given.column) + " FROM " + std::string(loaded.table);
      EXPECT_EQ(counted(getByName(panel, given.property)), counted(database.text(sql.append(its))))
          << record.text << ' ' << given.property;
    }
  }
}

TEST(OfficeScreenOfVatCodes, GivesWhatTheTableHolds) {
  expectGiven(
      {.screen = "iva",
       .table = "TIPI_IVA",
       .given = {{"Codice", "COD_IVA"}, {"DESCRIZIONE", "DESCRIZIONE"}, {"IVA", "IVA"}, {"Deb_Dec", "Deb_Dec"}}},
      " WHERE COD_IVA = ?");
}

TEST(OfficeScreenOfCommissions, GivesWhatTheTableHoldsInTheFamilyThatCounts) {
  const std::string both = " JOIN POLIZZE P USING (PROT) WHERE PROT = ? AND COD_COMP = ?";
  const auto current = [](std::string_view column) {
    const std::string name(column);
    return "CASE U_CALCOLO WHEN 'TRF' THEN " + name + "_TRF ELSE " + name + "_TAF END";
  };
  const std::string amounts[] = {current("PN_UFF"),      current("ACC_UFF"),      current("AQ_UFF"),
                                 current("pn_prod"),     current("acc_prod"),     current("aq_prod"),
                                 current("pn_prod_ALT"), current("acc_prod_ALT"), current("aq_prod_ALT")};
  expectGiven({.screen = "provvigioni",
               .table = "QUOTE_POLIZZE",
               .given = {{"PN_UFF", amounts[0]},
                         {"ACC_UFF", amounts[1]},
                         {"AQ_UFF", amounts[2]},
                         {"PN_PROD", amounts[3]},
                         {"ACC_PROD", amounts[4]},
                         {"AQ_PROD", amounts[5]},
                         {"PN_PROD_ALT", amounts[6]},
                         {"ACC_PROD_ALT", amounts[7]},
                         {"AQ_PROD_ALT", amounts[8]},
                         {"QUOTA", "QUOTA"},
                         {"COD_COMPAGNIA", "COD_COMP"},
                         {"COD_PRODUTTORE", "coalesce(COD_PROD, '')"},
                         {"COD_PRODUTTORE_ALT", "COD_PROD_ALT"}}},
              both);
}

TEST(OfficeScreenOfVatLines, GivesNothingForAMovementWithoutALine) {
  expectGiven({.screen = "righe-iva",
               .table = "(SELECT 0 AS ZERO)",
               .given = {{"COD_IVA", "ZERO"}, {"IMPONIBILE", "ZERO"}, {"IVA", "ZERO"}}},
              " WHERE 0 < ?");
}

}  // namespace
}  // namespace qvn::test
