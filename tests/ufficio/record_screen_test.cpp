// A record of several rows, each in a panel of its own: the VAT codes of one rate.
#include "hosts/ufficio/record_screen.h"

#include <array>

#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;
using ufficio::Field;
using ufficio::Kind;

constexpr std::array<std::string_view, 1> kKey{"IVA"};
constexpr std::array kFields{Field{"Codice", "COD_IVA", Kind::Number}, Field{"DESCRIZIONE", "DESCRIZIONE", Kind::Text},
                             Field{"IVA", "IVA", Kind::Number}, Field{"Deb_Dec", "Deb_Dec", Kind::Number}};
constexpr ufficio::RecordDescription kRates{
    .panelClass = "ctlIVA",
    .find =
        "SELECT DISTINCT IVA || '%' AS TESTO, IVA FROM TIPI_IVA WHERE TESTO LIKE ?1 ESCAPE '\\' ORDER BY IVA LIMIT ?2",
    .table = "TIPI_IVA",
    .key = kKey,
    .order = "COD_IVA",
    .fields = kFields,
    .panels = 3,
};

constexpr std::array kScreens{
    ufficio::ScreenClass{.name = "aliquote",
                         .title = "Aliquote",
                         .make = [](const ufficio::ScreenSite& site) -> std::unique_ptr<ufficio::Screen> {
                           return std::make_unique<ufficio::RecordScreen>(kRates, site);
                         }}};

class OfficeRecordOfRows : public AtWindow {
 public:
  OfficeRecordOfRows() {
    office.show(kScreens);
    see();
  }

  bool openRate(std::int64_t rate) { return window().openRecord({.key = {rate}, .text = "aliquota"}); }
  std::string descriptions() const {
    std::string all;
    for (const auto& row : sample.rows("SELECT DESCRIZIONE FROM TIPI_IVA WHERE IVA = 0 ORDER BY COD_IVA")) {
      all.append(all.empty() ? "" : "|").append(row.front().value());
    }
    return all;
  }
  void describe(int panel, const QString& text) {
    field("txtDescrizione", panel).setFocus();
    see();
    enter(text);
  }
};

TEST_F(OfficeRecordOfRows, ShowsEachRowInAPanelAndHidesTheOthers) {
  ASSERT_TRUE(openRate(0)) << notice().toStdString();
  see();
  EXPECT_EQ(field("TxtCodice", 0).text(), "1");
  EXPECT_EQ(field("TxtCodice", 1).text(), "80");
  EXPECT_EQ(field("TxtCodice", 2).text(), "81");
  EXPECT_TRUE(field("TxtCodice", 2).isVisible());
  ASSERT_TRUE(openRate(20));
  see();
  EXPECT_EQ(field("TxtCodice", 0).text(), "20");
  EXPECT_FALSE(field("TxtCodice", 1).isVisible());
  EXPECT_FALSE(field("TxtCodice", 2).isVisible());
}

TEST_F(OfficeRecordOfRows, RefusesMoreRowsThanItShows) {
  ASSERT_TRUE(openRate(0));
  EXPECT_FALSE(openRate(22));
  EXPECT_THAT(notice().toStdString(), HasSubstr("più righe di quante la schermata ne mostra"));
  EXPECT_EQ(field("TxtCodice", 0).text(), "1") << "what was shown stays";
}

TEST_F(OfficeRecordOfRows, BeginsAtTheFirstPanelAndStoresAllOfThem) {
  ASSERT_TRUE(openRate(0));
  edit();
  EXPECT_TRUE(field("TxtCodice", 0).hasFocus());
  describe(0, "prima");
  describe(2, "terza");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(descriptions(), "PRIMA|Esente art. 10|TERZA");
}

TEST_F(OfficeRecordOfRows, StoresNoRowWhereOneCannotBe) {
  ASSERT_TRUE(openRate(0));
  edit();
  describe(0, "prima");
  describe(2, "terza");
  sample.write("UPDATE TIPI_IVA SET Deb_Dec = 7 WHERE COD_IVA = 81");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("modificato o eliminato da altri"));
  EXPECT_EQ(descriptions(), "Fuori campo IVA|Esente art. 10|Non imponibile art. 8");
  EXPECT_EQ(field("txtDescrizione", 0).text(), "PRIMA");
  EXPECT_EQ(field("txtDescrizione", 2).text(), "TERZA");
}

}  // namespace
}  // namespace qvn::test
