// What a person types at the office's window, and what the database then holds.
#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;

class OfficeTyping : public AtWindow {};

constexpr const char* kStoredCode22 = "SELECT * FROM TIPI_IVA WHERE COD_IVA = 22";

TEST_F(OfficeTyping, FindsRecordsByWhatTheyHold) {
  const std::size_t all = window().chooser().records().size();
  press(Qt::Key_F, Qt::ControlModifier);
  write("aliquota ORD");
  EXPECT_EQ(window().chooser().records().size(), 2U);
  EXPECT_LT(window().chooser().records().size(), all);
  write("%");
  EXPECT_EQ(window().chooser().records().size(), 0U);
}

TEST_F(OfficeTyping, FindsAccentedLettersInCapitalsAndInSmallOnes) {
  sample.write("UPDATE TIPI_IVA SET DESCRIZIONE = 'Attività 50% PIÙ_ALTA' WHERE COD_IVA = 22");
  for (const char* filter : {"attività", "ATTIVITÀ", "più", "PIÙ", "pIù_a", "0% p"}) {
    press(Qt::Key_F, Qt::ControlModifier);
    write(filter);
    ASSERT_EQ(window().chooser().records().size(), 1U) << filter;
    EXPECT_EQ(window().chooser().records().front().text, "22  Attività 50% PIÙ_ALTA");
  }
  for (const char* filter : {"attivita", "piu", "più alta", "tt%", "\\"}) {
    press(Qt::Key_F, Qt::ControlModifier);
    write(filter);
    EXPECT_EQ(window().chooser().records().size(), 0U) << filter;
  }
}

TEST_F(OfficeTyping, ShowsTheFirstOfWhatIsFoundWhereverTheListStood) {
  choose("quote-polizze");
  press(Qt::Key_F, Qt::ControlModifier);
  press(Qt::Key_Down);
  press(Qt::Key_End);
  press(Qt::Key_F, Qt::ControlModifier);
  write("a");
  see();
  const auto* const records = window().findChild<QListWidget*>("record");
  ASSERT_GT(records->count(), 100);
  EXPECT_TRUE(records->viewport()->rect().contains(records->visualItemRect(records->item(0)).center()));
}

TEST_F(OfficeTyping, EmptiesTheFilterBeforeTheEyesOfAll) {
  press(Qt::Key_F, Qt::ControlModifier);
  write("ordinaria");
  auto* const filter = window().findChild<QLineEdit*>("filtro");
  int heard = 0;
  QObject::connect(filter, &QLineEdit::textChanged, &window(), [&] { ++heard; });
  choose("rami");
  EXPECT_EQ(filter->text(), "");
  EXPECT_EQ(heard, 1) << "by which its button goes";
}

TEST_F(OfficeTyping, GoesDownFromTheFilterToTheRecords) {
  press(Qt::Key_F, Qt::ControlModifier);
  write("ordinaria");
  press(Qt::Key_Down);
  EXPECT_EQ(focused(), "record");
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(field("TxtCodice").text(), "22");
}

TEST_F(OfficeTyping, ShowsTheRecordFrozen) {
  open("fino al 2011");
  EXPECT_EQ(field("TxtCodice").text(), "20");
  EXPECT_EQ(field("txtDescrizione").text(), "Aliquota ordinaria fino al 2011");
  EXPECT_EQ(field("TxtIVA").text(), "20");
  EXPECT_EQ(field("txtDeb_Dec").text(), "100");
  EXPECT_FALSE(field("TxtCodice").isEnabled());
  EXPECT_FALSE(window().editing());
}

TEST_F(OfficeTyping, StoresWhatWasTyped) {
  const std::string before = sample.everything();
  open("22  ");
  edit();
  EXPECT_EQ(focused(), "TxtCodice");
  press(Qt::Key_Return);
  enter("nuova dell'anno, più alta");
  enter("23");
  enter("250");
  save();
  EXPECT_EQ(sample.line(kStoredCode22), "22|NUOVA DELL'ANNO, PIù ALTA|23|100");
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_FALSE(window().editing());
  EXPECT_FALSE(field("TxtCodice").isEnabled());
  sample.write("UPDATE TIPI_IVA SET DESCRIZIONE = 'Aliquota ordinaria', IVA = 22 WHERE COD_IVA = 22");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeTyping, FollowsACodeThatWasChanged) {
  open("22  ");
  edit();
  enter("23");
  save();
  EXPECT_EQ(sample.rows(kStoredCode22).size(), 0U);
  EXPECT_EQ(sample.line("SELECT * FROM TIPI_IVA WHERE COD_IVA = 23"), "23|Aliquota ordinaria|22|100");
  edit();
  press(Qt::Key_Return);
  enter("altra");
  save();
  EXPECT_EQ(sample.line("SELECT * FROM TIPI_IVA WHERE COD_IVA = 23"), "23|ALTRA|22|100");
}

TEST_F(OfficeTyping, WritesNothingWhereNothingWasTyped) {
  const std::string before = sample.everything();
  open("22  ");
  edit();
  press(Qt::Key_Return);
  press(Qt::Key_Return);
  save();
  EXPECT_FALSE(window().editing());
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeTyping, ChangesWhatTheDatabaseHoldsByThen) {
  open("22  ");
  sample.write("UPDATE TIPI_IVA SET IVA = 21 WHERE COD_IVA = 22");
  edit();
  EXPECT_EQ(field("TxtIVA").text(), "21");
  press(Qt::Key_Return);
  enter("altra");
  save();
  EXPECT_EQ(sample.line(kStoredCode22), "22|ALTRA|21|100");
}

TEST_F(OfficeTyping, LeavesDecimalsThatNoPanelShowsWhereNothingWasTyped) {
  choose("provvigioni");
  const std::string row = " QUOTE_POLIZZE WHERE PROT = 1 AND COD_COMP = 'COSIR'";
  sample.write(
      "UPDATE QUOTE_POLIZZE SET AQ_UFF_TRF = 10.0051, AQ_UFF_TAF = 10.0051 WHERE PROT = 1 AND COD_COMP = 'COSIR'");
  ASSERT_TRUE(window().openRecord({.key = {std::int64_t{1}, std::string("COSIR")}, .text = "prima"}));
  see();
  EXPECT_EQ(field("TxtAQ_UFF").text(), "€ 10,01");
  edit();
  press(Qt::Key_Return);
  enter("77,30");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(sample.line("SELECT AQ_UFF_TRF, AQ_UFF_TAF FROM" + row), "10.0051|10.0051");
  EXPECT_EQ(sample.line("SELECT 77.3 IN (PN_UFF_TRF, PN_UFF_TAF) FROM" + row), "1");
}

TEST_F(OfficeTyping, MarksChangesInTheTitle) {
  open("22  ");
  edit();
  EXPECT_FALSE(window().isWindowModified());
  EXPECT_THAT(window().windowTitle().toStdString(), HasSubstr("Aliquota ordinaria"));
  press(Qt::Key_Return);
  press(Qt::Key_End);
  write("x");
  EXPECT_TRUE(window().isWindowModified());
  press(Qt::Key_Backspace);
  EXPECT_FALSE(window().isWindowModified());
}

TEST_F(OfficeTyping, TakesBackWhatWasTypedByControlZ) {
  open("22  ");
  edit();
  press(Qt::Key_Return);
  write("altra");
  EXPECT_EQ(field("txtDescrizione").text(), "ALTRA");
  for (int key = 0; key < 5; ++key) press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field("txtDescrizione").text(), "Aliquota ordinaria");
  EXPECT_FALSE(window().isWindowModified());
  for (int key = 0; key < 5; ++key) press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(field("txtDescrizione").text(), "ALTRA");
  EXPECT_TRUE(window().isWindowModified());
}

TEST_F(OfficeTyping, TakesACodeBackWithWhatItStandsFor) {
  choose("quote-polizze");
  open("92/00000001");
  edit();
  field("TxtCOD_COMP").setFocus();
  see();
  const auto stands = [this] { return screen().panels().front()->surface().label("DESC_COMPAGNIA").Caption(); };
  const QString code = field("TxtCOD_COMP").text();
  const std::string company = stands();
  ASSERT_NE(company, "");
  write("zz");
  EXPECT_EQ(stands(), "");
  for (int key = 0; key < 2; ++key) press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field("TxtCOD_COMP").text(), code);
  EXPECT_EQ(stands(), company);
  EXPECT_FALSE(window().isWindowModified());
}

TEST_F(OfficeTyping, StoresAVatLineOfAMovementThatHadNone) {
  choose("righe-iva");
  open("12  ");
  edit();
  enter("22");
  enter("1234,56");
  save();
  EXPECT_EQ(sample.line("SELECT * FROM MOVIMENTI_IVA"), "12|22|1234.56|271.6");
  edit();
  enter("10");
  save();
  EXPECT_EQ(sample.line("SELECT * FROM MOVIMENTI_IVA"), "12|10|1234.56|0") << "leaving the taxable amount clears a VAT";
  EXPECT_EQ(field("TxtIMPONIBILE").text(), "€ 1.234,56");
}

class OfficeStorage : public testing::TestWithParam<const char*> {};

TEST_P(OfficeStorage, TakesAmountsOfACommissionInTheFamilyThatCounts) {
  const SampleCopy sample(GetParam());
  const OfficeAt office(sample.file());
  QApplication::processEvents();
  ufficio::Window& window = *office.window;
  window.chooseScreen(numberOf("provvigioni"));
  const std::string where = " FROM QUOTE_POLIZZE WHERE PROT = 1 AND COD_COMP = 'COSIR'";
  const std::string family =
      sample.line("SELECT CASE U_CALCOLO WHEN 'TRF' THEN 'TRF' ELSE 'TAF' END FROM POLIZZE WHERE PROT = 1");
  const std::string others = family == "TRF" ? "TAF" : "TRF";
  const auto amounts = [&](const std::string& of) {
    std::string sql = "SELECT";
    for (const char* column : {" ACC_UFF_", ", AQ_UFF_", ", pn_prod_", ", acc_prod_", ", aq_prod_", ", pn_prod_ALT_",
                               ", acc_prod_ALT_", ", aq_prod_ALT_"}) {
      sql.append(column).append(of);
    }
    return sample.line(sql + where);
  };
  const std::string before = amounts(family);
  const std::string otherBefore = amounts(others);
  ASSERT_TRUE(window.openRecord({.key = {std::int64_t{1}, std::string("COSIR")}, .text = "prima"}));
  AtWindow::press(Qt::Key_F2);
  AtWindow::enter("12,5");
  AtWindow::press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(window.notice(), "Il record è stato salvato.");
  const office_test::Database database(sample.file());
  const auto premium = database.tenThousandths("SELECT PN_" + family + " FROM POLIZZE WHERE PROT = 1").front();
  const auto quota = database.number("SELECT QUOTA" + where);
  const auto share = (premium * quota / 1000 + 50) / 100 * 100;
  const auto written = database.tenThousandths("SELECT PN_UFF_" + family + where).front();
  EXPECT_NEAR(static_cast<double>(written), static_cast<double>(share) * 0.125, 50.0);
  EXPECT_EQ(written % 100, 0);
  EXPECT_EQ(amounts(family), before);
  EXPECT_EQ(amounts(others), otherBefore);
}

INSTANTIATE_TEST_SUITE_P(Storages, OfficeStorage, testing::ValuesIn(office_test::storages),
                         [](const auto& storage) { return std::string(storage.param); });

}  // namespace
}  // namespace qvn::test
