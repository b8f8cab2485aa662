// What an assistive program is told of panels and forms.
#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleInterface>
#include <QComboBox>
#include <QRegularExpression>
#include <array>
#include <map>

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

TEST_P(Spoken, AListIsCalledByItsNameAndReadsBackItsItem) {
  for (toolkit::Widget* widget : surface().widgets()) {
    if (widget->Kind() != WidgetKind::ComboBox) continue;
    auto& list = static_cast<toolkit::ComboBox&>(*widget);
    for (std::int32_t item = 0; item < list.ListCount(); ++item) {
      list.ListIndex(item);
      platform.settle();
      EXPECT_EQ(spoken(list).text(QAccessible::Name), shown(list).accessibleName()) << list.Name();
      EXPECT_EQ(spoken(list).text(QAccessible::Value).toStdString(), list.Text()) << list.Name();
    }
  }
}

TEST_P(Spoken, AListOpensForAnAssistiveProgram) {
  whole().show();
  for (toolkit::Widget* widget : visible()) {
    if (widget->Kind() != WidgetKind::ComboBox || !shown(*widget).isEnabled()) continue;
    QAccessibleInterface& list = spoken(*widget);
    ASSERT_EQ(list.childCount(), 1) << widget->Name();
    EXPECT_EQ(list.child(0)->role(), QAccessible::List) << widget->Name();
    EXPECT_EQ(list.indexOfChild(list.child(0)), 0) << widget->Name();
    list.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    auto& box = dynamic_cast<QComboBox&>(shown(*widget));
    EXPECT_TRUE(box.view()->isVisible()) << widget->Name();
    list.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(box.view()->isVisible()) << widget->Name();
  }
}

TEST_P(Spoken, NoTwoFieldsHaveTheSameName) {
  std::map<QString, std::string_view> heard;
  for (toolkit::Widget* widget : surface().widgets()) {
    if (widget->Kind() == WidgetKind::Frame || (widget->Kind() == WidgetKind::Label && !widget->layout().bordered)) {
      continue;
    }
    const QString name = shown(*widget).accessibleName();
    const auto [before, isNew] = heard.emplace(name, widget->Name());
    EXPECT_TRUE(isNew) << widget->Name() << " and " << before->second << ": " << name.toStdString();
  }
}

TEST_P(Spoken, NoNameBeginsWithTheMarkOfAKind) {
  const QRegularExpression mark(QStringLiteral("(^|: )([Tt]xt|[Ll]bl|[Cc]mb|[Cc]hk|[Cc]md|[Ff]rm|Frame1)"));
  for (toolkit::Widget* widget : surface().widgets()) {
    const QString name = shown(*widget).accessibleName();
    EXPECT_FALSE(name.contains(mark)) << widget->Name() << ": " << name.toStdString();
  }
}

struct Called {
  const char* panel;
  const char* widget;
  const char* name;  // what is said before the value, if it shows one
};

constexpr std::array kCalled{
    Called{"ctlIVA", "TxtCodice", "Codice"},
    Called{"ctlIVA", "txtDescrizione", "Descrizione"},
    Called{"ctlIVA", "TxtIVA", "IVA"},
    Called{"ctlIVA", "txtDeb_Dec", "Ded."},
    Called{"ctlINS_IVA", "txtCOD_IVA", "COD IVA"},
    Called{"ctlINS_IVA", "TxtIMPONIBILE", "IMPONIBILE"},
    Called{"ctlMOVIMENTI", "TxtCodice", "Codice"},
    Called{"ctlMOVIMENTI", "txtDescrizione", "Descrizione"},
    Called{"ctlRAMI", "TxtCOD_RAMO", "Cod. Ramo"},
    Called{"ctlRAMI", "txtDescrizione", "Descrizione"},
    Called{"ctlDATI_MOVIMENTI", "cmbTIPO", "TIPO"},
    Called{"ctlDATI_MOVIMENTI", "lblDESC_CONTO", "DESC CONTO: "},
    Called{"ctlSOSPESI", "CmbTIPO_CONT", "Tipo Cont."},
    Called{"ctlSOSPESI", "LblCLIENTE", "Cliente: "},
    Called{"ctlESTRATTI", "TxtDATA_EC", "Dati Estratto: DATA EC"},
    Called{"ctlFIDO", "DESC_COMPAGNIA", "DESC COMPAGNIA: "},
    Called{"ctlPROV_POLIZZE", "TxtP_PN_UFF", "Provvigioni di Ufficio: PN %"},
    Called{"ctlPROV_POLIZZE", "TxtACC_PROD", "Provvigioni Produttore: ACC Importi"},
    Called{"ctlPROV_POLIZZE", "CmbCALCOLO_PROD_ALT", "Provvigioni Produttore Alt.: Calcola su"},
    Called{"ctlPROV_POLIZZE", "LblPN", "PN: € 0,00"},
    Called{"ctlINS_MOVIMENTI", "TxtCONTO", "CONTO"},
    Called{"ctlQ_POLIZZE", "ChkDELEGATARIA", "Delegataria"},
    Called{"ctlQ_SINISTRI", "TxtN_POLIZZA", "N. Pol."},
    Called{"ctlRICERCA", "LblCOD_COMP_DEL", "Dati Polizza: COD COMP DEL: "},
    Called{"ctlRIC_SINISTRI", "LblCOD_GR", "Codice Gruppo Assicurativo: "},
    Called{"ctlSTP_CONTABILE", "TxtCodice", "Codice"},
    Called{"ctlSTP_GIORNALE", "TxtA_DATA", "A Data"},
    Called{"ctlSTP_MOVIMENTI", "LblDATA_RIF", "DATA RIF: "},
    Called{"Lista", "CmdAbort", "Annulla"},
    Called{"Ricerca", "Label1", "Ricerca in Corso ..."},
    Called{"FrmVIS_COMPAGNIE", "CmdCHIUDI", "Chiudi"},
    Called{"FrmVIS_PRODUTTORI", "CmdCHIUDI", "Chiudi"},
};

TEST_P(Spoken, AFieldIsCalledByItsCaptionItsTableItsFrameOrWhatItHolds) {
  int held = 0;
  for (const Called& each : kCalled) {
    if (GetParam() != each.panel) continue;
    EXPECT_EQ(spoken(surface().widget(each.widget)).text(QAccessible::Name).toStdString(), each.name) << each.widget;
    ++held;
  }
  EXPECT_GT(held, 0);
}

}  // namespace
}  // namespace qvn::test
