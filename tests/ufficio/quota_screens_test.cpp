// The participants of a policy and of a claim at the window: what is shown, typed and then stored.
#include <QCheckBox>
#include <QLabel>

#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;

class OfficeQuotas : public AtWindow {
 public:
  std::string caption(std::string_view label, std::size_t panel) {
    return std::string(screen().panels().at(panel)->surface().label(label).Caption());
  }
  std::string caption(std::string_view group, int index, std::size_t panel) {
    return std::string(screen().panels().at(panel)->surface().label(group, index).Caption());
  }
  QWidget& widget(std::string_view name, std::size_t panel) {
    const toolkit::Widget& its = screen().panels().at(panel)->surface().widget(name);
    return *office.platform.widgetOf(its);
  }
  void go(std::string_view name, std::size_t panel) {
    widget(name, panel).setFocus();
    see();
  }
  QString remark() {
    const auto* label = window().findChild<QLabel*>("osservazione");
    return label->isVisible() ? label->text() : QString("none");
  }
};

class OfficePolicyQuotas : public OfficeQuotas {
 public:
  OfficePolicyQuotas() { choose("quote-polizze"); }
  std::string row(std::string_view company) const {
    return sample.line(std::string("SELECT COD_COMP, COD_PROD, COD_PROD_ALT, DELEGATARIA, QUOTA, N_POLIZZA, D_RIMESSA "
                                   "FROM QUOTE_POLIZZE WHERE PROT = 1 AND COD_COMP = '")
                           .append(company)
                           .append("'"));
  }
};

TEST_F(OfficePolicyQuotas, ShowsEachParticipantWithItsSharesOfBothFamilies) {
  open("92/00000001");
  EXPECT_EQ(field("TxtQUOTA", 0).text(), "500");
  EXPECT_EQ(field("TxtCOD_COMP", 0).text(), "COSIR");
  EXPECT_EQ(field("TxtCOD_PROD", 0).text(), "DONAT030");
  EXPECT_EQ(field("TxtCOD_COMP", 1).text(), "RCED");
  EXPECT_EQ(field("TxtD_RIMESSA", 0).text(), "##/##/####");
  EXPECT_EQ(field("TxtD_RIMESSA", 1).text(), "15/04/2019");
  EXPECT_TRUE(dynamic_cast<QCheckBox&>(widget("ChkDELEGATARIA", 0)).isChecked());
  EXPECT_FALSE(dynamic_cast<QCheckBox&>(widget("ChkDELEGATARIA", 1)).isChecked());
  // 2418, 145.08 and 3076; 2600, 130 and 3071.25; to the lead alone goes nothing.
  const std::array shares{"€ 1.209,00", "€ 72,54", "€ 1.538,00"};
  const std::array others{"€ 1.300,00", "€ 65,00", "€ 1.535,63"};
  for (const std::size_t panel : {0U, 1U}) {
    for (std::size_t line = 0; line < shares.size(); ++line) {
      EXPECT_EQ(caption("TAF", static_cast<int>(line), panel), shares.at(line));
      EXPECT_EQ(caption("TRF", static_cast<int>(line), panel), others.at(line));
    }
  }
  EXPECT_FALSE(widget("TxtQUOTA", 2).isVisible());
  EXPECT_EQ(remark(), "Somma delle quote: 1000‰.");
}

TEST_F(OfficePolicyQuotas, FollowsAQuotaThatIsTypedAndTellsTheSum) {
  open("92/00000001");
  edit();
  EXPECT_EQ(focused(), "TxtQUOTA");
  enter("400");
  EXPECT_EQ(caption("TAF", 0, 0), "€ 967,20");
  EXPECT_EQ(caption("TRF", 0, 0), "€ 1.040,00");
  EXPECT_EQ(caption("TAF", 0, 1), "€ 1.209,00");
  EXPECT_EQ(remark(), "Somma delle quote: 900‰, ne mancano 100.");
  go("TxtQUOTA", 1);
  enter("625");
  EXPECT_EQ(remark(), "Somma delle quote: 1025‰, ce ne sono 25 di troppo.");
}

TEST_F(OfficePolicyQuotas, StoresWhatWasTypedAndNothingElse) {
  const std::string before = sample.everything();
  const std::string rcedBefore = row("RCED");
  ASSERT_EQ(row("COSIR"), "COSIR|DONAT030||1|500|92/00000001|NULL");
  open("92/00000001");
  edit();
  enter("400");
  enter("acit");
  EXPECT_EQ(focused(), "TxtCOD_PROD");
  EXPECT_EQ(caption("DESC_COMPAGNIA", 0), sample.line("SELECT DESC_COMPAGNIA FROM COMPAGNIE WHERE COD_COMP = 'ACIT'"));
  enter("gallo042");
  enter("pelle005");
  enter("12/345");
  EXPECT_EQ(focused(), "TxtD_RIMESSA");
  write("15032024");
  go("ChkDELEGATARIA", 0);
  press(Qt::Key_Space);
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(row("ACIT"), "ACIT|GALLO042|PELLE005|0|400|12/345|2024-03-15");
  EXPECT_EQ(row("RCED"), rcedBefore);
  EXPECT_EQ(field("TxtCOD_COMP", 0).text(), "ACIT");
  EXPECT_EQ(field("TxtD_RIMESSA", 0).text(), "15/03/2024");
  EXPECT_EQ(remark(), "Somma delle quote: 900‰, ne mancano 100.");
  sample.write(
      "UPDATE QUOTE_POLIZZE SET COD_COMP = 'COSIR', COD_PROD = 'DONAT030', COD_PROD_ALT = '', DELEGATARIA = 1, "
      "QUOTA = 500, N_POLIZZA = '92/00000001', D_RIMESSA = NULL WHERE PROT = 1 AND COD_COMP = 'ACIT'");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficePolicyQuotas, StoresADateThatIsTakenAway) {
  open("92/00000001");
  edit();
  go("TxtD_RIMESSA", 1);
  press(Qt::Key_Delete);
  ASSERT_EQ(field("TxtD_RIMESSA", 1).text(), "##/##/####");
  save();
  EXPECT_EQ(row("RCED"), "RCED|GALLO042||0|500|94/00000001|NULL");
}

TEST_F(OfficePolicyQuotas, StoresNoDateThatIsHalfTyped) {
  open("92/00000001");
  edit();
  go("TxtD_RIMESSA", 0);
  write("1503");
  save();
  EXPECT_THAT(notice().toStdString(),
              HasSubstr("Il record non è stato salvato: campo «D RIMESSA», un valore manca o non è valido."));
  EXPECT_EQ(focused(), "TxtD_RIMESSA");
  EXPECT_EQ(row("COSIR"), "COSIR|DONAT030||1|500|92/00000001|NULL");
}

TEST_F(OfficePolicyQuotas, RefusesTheSameCompanyTwice) {
  open("92/00000001");
  edit();
  press(Qt::Key_Return);
  enter("rced");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("un codice che esiste già"));
  EXPECT_EQ(row("COSIR"), "COSIR|DONAT030||1|500|92/00000001|NULL");
}

TEST_F(OfficePolicyQuotas, ScrollsToTheParticipantThatIsTypedInto) {
  const std::string six = sample
                              .rows(
                                  "SELECT N_POLIZZA FROM POLIZZE WHERE PROT IN (SELECT PROT FROM QUOTE_POLIZZE GROUP "
                                  "BY PROT HAVING count(*) = 6) "
                                  "ORDER BY PROT")
                              .front()
                              .front()
                              .value();
  open(QString::fromStdString(six));
  ASSERT_TRUE(widget("TxtQUOTA", 5).isVisibleTo(&window()));
  EXPECT_TRUE(widget("TxtQUOTA", 5).visibleRegion().isEmpty()) << "below the lower end";
  edit();
  go("ChkDELEGATARIA", 4);
  press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(widget("TxtQUOTA", 5).hasFocus());
  EXPECT_EQ(widget("TxtQUOTA", 5).visibleRegion().boundingRect().size(), widget("TxtQUOTA", 5).size());
  press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(widget("TxtQUOTA", 5).hasFocus()) << "there is no other";
  press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_TRUE(widget("TxtQUOTA", 4).hasFocus());
  press(Qt::Key_Escape);
  edit();
  EXPECT_TRUE(widget("TxtQUOTA", 0).hasFocus());
  EXPECT_EQ(widget("TxtQUOTA", 0).visibleRegion().boundingRect().size(), widget("TxtQUOTA", 0).size());
}

class OfficeClaimQuotas : public OfficeQuotas {
 public:
  OfficeClaimQuotas() {
    choose("quote-sinistri");
    open("2010/00000020");
  }
  std::string row(std::string_view company) const {
    return sample.line(std::string("SELECT * FROM QUOTE_SINISTRI WHERE N_SINISTRO = '2010/00000020' AND COD_COMP = '")
                           .append(company)
                           .append("'"));
  }
};

TEST_F(OfficeClaimQuotas, ShowsEachParticipantWithItsShareOfTheDamage) {
  EXPECT_EQ(field("TxtQUOTA", 0).text(), "333");
  EXPECT_EQ(field("TxtCOD_COMP", 1).text(), "MUIPP");
  EXPECT_EQ(field("TxtN_POLIZZA", 1).text(), "52/00000157");
  EXPECT_EQ(field("TxtN_SINISTRO", 2).text(), "SOAQU-00000020");
  EXPECT_TRUE(dynamic_cast<QCheckBox&>(widget("ChkDELEGATARIA", 1)).isChecked());
  EXPECT_FALSE(dynamic_cast<QCheckBox&>(widget("ChkDELEGATARIA", 2)).isChecked());
  // 5575.95 and 4572.28.
  EXPECT_EQ(caption("STIMATO", 0), "€ 1.856,79");
  EXPECT_EQ(caption("LIQUIDATO", 0), "€ 1.522,57");
  EXPECT_EQ(caption("STIMATO", 1), "€ 1.862,37");
  EXPECT_EQ(caption("LIQUIDATO", 1), "€ 1.527,14");
  EXPECT_FALSE(widget("TxtQUOTA", 3).isVisible());
  EXPECT_EQ(remark(), "Somma delle quote: 1000‰.");
}

TEST_F(OfficeClaimQuotas, StoresWhatWasTypedAndNothingElse) {
  const std::string before = sample.everything();
  ASSERT_EQ(row("SOAQU"), "2010/00000020|SOAQU|0|333|40/00000157|SOAQU-00000020");
  edit();
  go("TxtQUOTA", 2);
  enter("100");
  EXPECT_EQ(caption("STIMATO", 2), "€ 557,60");
  EXPECT_EQ(caption("LIQUIDATO", 2), "€ 457,23");
  go("ChkDELEGATARIA", 2);
  press(Qt::Key_Space);
  go("TxtCOD_COMP", 2);
  enter("acit");
  enter("77/1");
  EXPECT_EQ(focused(), "TxtN_SINISTRO");
  enter("s-9");
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(row("ACIT"), "2010/00000020|ACIT|1|100|77/1|S-9");
  EXPECT_EQ(remark(), "Somma delle quote: 767‰, ne mancano 233.");
  sample.write(
      "UPDATE QUOTE_SINISTRI SET COD_COMP = 'SOAQU', DELEGATARIA = 0, QUOTA = 333, N_POLIZZA = '40/00000157', "
      "N_SINISTRO_COMP = 'SOAQU-00000020' WHERE N_SINISTRO = '2010/00000020' AND COD_COMP = 'ACIT'");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeClaimQuotas, TellsThatTheClaimIsGone) {
  sample.write("DELETE FROM SINISTRI WHERE N_SINISTRO = '2010/00000020'");
  edit();
  EXPECT_FALSE(window().editing());
  EXPECT_THAT(notice().toStdString(), HasSubstr("il sinistro di questa quota non c'è più"));
  EXPECT_EQ(remark(), "none");
}

}  // namespace
}  // namespace qvn::test
