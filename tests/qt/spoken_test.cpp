// What an assistive program is told of panels and forms.
#include <QAccessible>
#include <QAccessibleInterface>

#include "tests/qt/each_surface.h"

namespace qvn::test {
namespace {

using toolkit::WidgetKind;

QAccessible::Role roleOf(WidgetKind kind) {
  switch (kind) {
    case WidgetKind::TextBox:
    case WidgetKind::DateControl:
      return QAccessible::EditableText;
    case WidgetKind::ComboBox:
      return QAccessible::ComboBox;
    case WidgetKind::CheckBox:
      return QAccessible::CheckBox;
    case WidgetKind::Frame:
      return QAccessible::Grouping;
    case WidgetKind::CommandButton:
      return QAccessible::Button;
    case WidgetKind::ListView:
    case WidgetKind::DataGrid:
      return QAccessible::Table;
    default:
      return QAccessible::StaticText;
  }
}

class Spoken : public EachSurface {
 public:
  QAccessibleInterface& spoken(const toolkit::Widget& widget) {
    return *QAccessible::queryAccessibleInterface(&shown(widget));
  }
  QString name(std::string_view widget) { return spoken(surface().widget(widget)).text(QAccessible::Name); }
};
QVN_ON_EACH_SURFACE(Spoken);

TEST_P(Spoken, EveryWidgetHasItsRole) {
  for (toolkit::Widget* widget : surface().widgets()) {
    EXPECT_EQ(spoken(*widget).role(), roleOf(widget->Kind())) << widget->Name();
  }
}

TEST_P(Spoken, EveryFieldHasAName) {
  for (toolkit::Widget* widget : surface().widgets()) {
    if (shown(*widget).focusPolicy() == Qt::NoFocus) continue;
    const QString name = spoken(*widget).text(QAccessible::Name);
    EXPECT_FALSE(name.isEmpty()) << widget->Name();
    EXPECT_FALSE(name.contains(QLatin1Char('&')) || name.endsWith(QLatin1Char(':'))) << name.toStdString();
  }
}

TEST_P(Spoken, ALabelIsCalledByWhatItShows) {
  for (toolkit::Widget* widget : surface().widgets()) {
    if (widget->Kind() != WidgetKind::Label) continue;
    auto& label = static_cast<toolkit::Label&>(*widget);
    label.Caption("12");
    platform.settle();
    EXPECT_THAT(spoken(label).text(QAccessible::Name).toStdString(), testing::EndsWith("12")) << label.Name();
  }
}

TEST_P(Spoken, ATextReadsBackWhatTheFieldHolds) {
  for (toolkit::Widget* widget : surface().widgets()) {
    if (widget->Kind() != WidgetKind::TextBox) continue;
    static_cast<toolkit::TextBox&>(*widget).Text("7");
    platform.settle();
    EXPECT_EQ(spoken(*widget).text(QAccessible::Value).toStdString(), static_cast<toolkit::TextBox&>(*widget).Text())
        << widget->Name();
  }
}

class SpokenCommission : public Spoken {};
INSTANTIATE_TEST_SUITE_P(Commission, SpokenCommission, testing::Values("ctlPROV_POLIZZE"));

TEST_P(SpokenCommission, AFieldOfATableHasTheNamesOfItsRowAndItsColumn) {
  EXPECT_EQ(name("TxtP_PN_UFF"), "PN %");
  EXPECT_EQ(name("TxtACC_PROD"), "ACC Importi");
  EXPECT_EQ(name("CmbCALCOLO_PROD"), "Calcola su");
  EXPECT_EQ(name("LblPN"), "PN: € 0,00");
}

class SpokenVat : public Spoken {};
INSTANTIATE_TEST_SUITE_P(Vat, SpokenVat, testing::Values("ctlIVA"));

TEST_P(SpokenVat, AFieldHasTheNameOfTheCaptionBeforeIt) {
  EXPECT_EQ(name("TxtCodice"), "Codice");
  EXPECT_EQ(name("txtDescrizione"), "Descrizione");
  EXPECT_EQ(name("TxtIVA"), "IVA");
  EXPECT_EQ(name("txtDeb_Dec"), "Ded.");
  EXPECT_EQ(name("lblIVA"), "IVA:");
}

class SpokenVatLine : public Spoken {};
INSTANTIATE_TEST_SUITE_P(VatLine, SpokenVatLine, testing::Values("ctlINS_IVA"));

TEST_P(SpokenVatLine, AFieldWithoutCaptionHasTheNameOfWhatItHolds) {
  EXPECT_EQ(name("txtCOD_IVA"), "COD IVA");
  EXPECT_EQ(name("TxtIMPONIBILE"), "IMPONIBILE");
}

}  // namespace
}  // namespace qvn::test
