// The credit lines of a client at the window.
#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

/// A client with four credit lines.
constexpr const char* kClient = "B00039";

class OfficeCreditLines : public AtWindow {
 public:
  OfficeCreditLines() { choose("fidi"); }

  std::string label(std::string_view name, std::size_t panel) {
    return std::string(screen().panels().at(panel)->surface().label(name).Caption());
  }
  /// The clients whose only credit line this company grants, who have an exposure to it or have none.
  std::string client(std::string_view company, bool exposed) const {
    std::string sql = "SELECT F.COD_CLIENTE FROM FIDI F WHERE F.COD_COMP = '" + std::string(company);
    sql.append("' AND (SELECT count(*) FROM FIDI X WHERE X.COD_CLIENTE = F.COD_CLIENTE) = 1 AND ");
    sql.append(exposed ? "" : "NOT ");
    sql.append(
        "EXISTS (SELECT 1 FROM DATI_POLIZZE_4 D JOIN QUOTE_POLIZZE Q USING (PROT) JOIN POLIZZE P USING (PROT) WHERE "
        "P.COD_CLIENTE = F.COD_CLIENTE AND Q.COD_COMP = F.COD_COMP AND coalesce(P.STATO, '') = '') ORDER BY 1");
    return sample.rows(sql).at(0).at(0).value();
  }
};

TEST_F(OfficeCreditLines, ShowEachCompanyAndAnEmptyLineForAnother) {
  open(kClient);
  const auto lines = sample.rows(
      "SELECT COD_COMP, DESC_COMPAGNIA, substr(DATA_FIDO, 9, 2) || '/' || substr(DATA_FIDO, 6, 2) || '/' || "
      "substr(DATA_FIDO, 1, 4) FROM FIDI JOIN COMPAGNIE USING (COD_COMP) WHERE COD_CLIENTE = 'B00039' ORDER BY 1");
  ASSERT_EQ(lines.size(), 4U);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const int panel = static_cast<int>(i);
    EXPECT_EQ(field("TxtCOD_COMP", panel).text().toStdString(), lines[i][0]);
    EXPECT_EQ(label("DESC_COMPAGNIA", i), lines[i][1]);
    EXPECT_EQ(field("TxtDATA_FIDO", panel).text().toStdString(), lines[i][2]);
  }
  EXPECT_EQ(field("TxtIMPORTO", 0).text(), "€ 1.950.000,00");
  EXPECT_TRUE(field("TxtCOD_COMP", 4).isVisible());
  EXPECT_EQ(field("TxtCOD_COMP", 4).text(), "");
  EXPECT_EQ(field("TxtDATA_FIDO", 4).text(), "##/##/####");
  EXPECT_EQ(field("TxtIMPORTO", 4).text(), "€ 0,00");
}

TEST_F(OfficeCreditLines, ShowTheExposureOfTheClientAlsoAfterAnotherOfTheSameCompany) {
  const std::string exposed = client("ABUS", true);
  const std::string free = client("ABUS", false);
  open(QString::fromStdString(exposed));
  EXPECT_EQ(field("TxtCOD_COMP").text(), "ABUS");
  const std::string exposure = label("ESPOSIZIONE", 0);
  EXPECT_THAT(exposure, HasSubstr("€ "));
  open(QString::fromStdString(free));
  EXPECT_EQ(field("TxtCOD_COMP").text(), "ABUS");
  EXPECT_EQ(label("ESPOSIZIONE", 0), "");
  open(QString::fromStdString(exposed));
  EXPECT_EQ(label("ESPOSIZIONE", 0), exposure);
}

TEST_F(OfficeCreditLines, ShowTheExposureAsTheBooksHaveIt) {
  open("A00137");
  ASSERT_EQ(field("TxtCOD_COMP").text(), "ABUS");
  EXPECT_EQ(label("ESPOSIZIONE", 0), "€ 411.695,55");
}

TEST_F(OfficeCreditLines, StoreAnAmountAndADateAndNothingElse) {
  const std::string before = sample.everything();
  open(kClient);
  edit();
  EXPECT_TRUE(field("TxtCOD_COMP", 0).hasFocus());
  field("TxtDATA_FIDO", 1).setFocus();
  see();
  write("05062024");
  press(Qt::Key_Tab);
  EXPECT_EQ(focused(), "TxtIMPORTO");
  write("1200000,5");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(sample.line("SELECT * FROM FIDI WHERE COD_CLIENTE = 'B00039' AND COD_COMP = 'RFAL'"),
            "B00039|RFAL|2024-06-05|1200000.5");
  sample.write(
      "UPDATE FIDI SET DATA_FIDO = '2018-11-20', FIDO = 1150000 WHERE COD_CLIENTE = 'B00039' AND COD_COMP = 'RFAL'");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeCreditLines, AddALineToAClientWhoHadNone) {
  open("A00001");
  ASSERT_THAT(sample.rows("SELECT 1 FROM FIDI WHERE COD_CLIENTE = 'A00001'"), IsEmpty());
  edit();
  write("abus");
  EXPECT_EQ(label("DESC_COMPAGNIA", 0), sample.line("SELECT DESC_COMPAGNIA FROM COMPAGNIE WHERE COD_COMP = 'ABUS'"));
  press(Qt::Key_Tab);
  write("01022025");
  press(Qt::Key_Tab);
  write("5000");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(sample.line("SELECT * FROM FIDI WHERE COD_CLIENTE = 'A00001'"), "A00001|ABUS|2025-02-01|5000");
  EXPECT_EQ(field("TxtCOD_COMP", 0).text(), "ABUS");
  EXPECT_TRUE(field("TxtCOD_COMP", 1).isVisible()) << "a line for the next company";
  EXPECT_EQ(field("TxtCOD_COMP", 1).text(), "");
}

TEST_F(OfficeCreditLines, StoreNoLineWithoutACompany) {
  open("A00001");
  edit();
  field("TxtIMPORTO").setFocus();
  see();
  write("5000");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("Il record non è stato salvato: manca il codice della compagnia"));
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(focused(), "TxtIMPORTO");
  EXPECT_THAT(sample.rows("SELECT 1 FROM FIDI WHERE COD_CLIENTE = 'A00001'"), IsEmpty());
}

TEST_F(OfficeCreditLines, RefuseASecondLineOfACompany) {
  open(kClient);
  edit();
  field("TxtCOD_COMP", 4).setFocus();
  see();
  write("RFAL");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("un codice che esiste già"));
  EXPECT_EQ(sample.rows("SELECT 1 FROM FIDI WHERE COD_CLIENTE = 'B00039'").size(), 4U);
}

}  // namespace
}  // namespace qvn::test
