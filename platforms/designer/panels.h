// Every panel as a widget for forms, with its public properties as Qt's own.
#pragma once

#include <QString>
#include <span>

#include "platforms/designer/panel_in_form.h"

namespace qvn::designer {

/// Names the panel, and says for a palette what it is, of which room, and by which mark it is known.
#define QVN_PANEL(panel, what, room, mark) \
  Q_CLASSINFO("what", what)                \
  Q_CLASSINFO("room", room)                \
  Q_CLASSINFO("mark", mark)                \
 public:                                   \
  explicit panel(QWidget* parent = nullptr) : PanelInForm(#panel, parent) {}

#define QVN_PROPERTY(type, name, reading)      \
  Q_PROPERTY(type name READ name WRITE name)   \
 public:                                       \
  type name() const { return reading(#name); } \
  void name(const type& given) { let(#name, given); }

/// A text, or what is written as one: an amount, a date, a percent.
#define QVN_TEXT(name) QVN_PROPERTY(QString, name, text)
#define QVN_NUMBER(name) QVN_PROPERTY(int, name, number)
#define QVN_FLAG(name) QVN_PROPERTY(bool, name, flag)
/// What the panel shows and does not give back.
#define QVN_SHOWN(name)       \
  Q_CLASSINFO(#name, "shown") \
  QVN_PROPERTY(QString, name, unread)
/// What the panel works out: writing does nothing.
#define QVN_READ(name)       \
  Q_CLASSINFO(#name, "read") \
  QVN_PROPERTY(QString, name, text)
/// What can be written and not read.
#define QVN_WRITTEN(name)       \
  Q_CLASSINFO(#name, "written") \
  QVN_PROPERTY(QString, name, unread)

class ctlDATI_MOVIMENTI final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlDATI_MOVIMENTI, "A line of the template of a movement type", "accounting", "DAT");
  QVN_TEXT(PROGRESSIVO);
  QVN_FLAG(IVA);
  QVN_TEXT(Mastro);
  QVN_TEXT(Conto);
  QVN_WRITTEN(DESC_CONTO);
  QVN_FLAG(RIPETI);
  QVN_TEXT(TIPO);
  QVN_TEXT(TIPO_IVA);
};

class ctlESTRATTI final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlESTRATTI, "A line of an account statement", "documents", "EST");
  QVN_TEXT(COD_CLIENTE);
  QVN_TEXT(PREMIO);
  QVN_TEXT(PROVVIGIONE);
  QVN_TEXT(DATA_EC);
  QVN_TEXT(N_POLIZZA);
  QVN_SHOWN(COD_GR);
  QVN_TEXT(SIGLA_SRAMO);
  QVN_TEXT(TIPO_DOC);
  QVN_TEXT(RIMBORSO);
  QVN_TEXT(INT_ASS);
  QVN_TEXT(DATA_QUIET);
  QVN_SHOWN(DATA_REG);
  QVN_FLAG(ANNULLATA);
  QVN_FLAG(STAMPA);
  QVN_TEXT(ST_COMP);
  QVN_TEXT(ST_PROD);
  QVN_TEXT(COD_PROD);
  QVN_TEXT(COD_PROD_ALT);
};

class ctlFIDO final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlFIDO, "The credit line of a client with a company", "documents", "FID");
  QVN_TEXT(COD_COMP);
  QVN_TEXT(DATA_FIDO);
  QVN_TEXT(FIDO);
  QVN_SHOWN(COD_CLIENTE);
};

class ctlINS_IVA final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlINS_IVA, "The VAT line of a movement", "accounting", "INI");
  QVN_TEXT(COD_IVA);
  QVN_TEXT(IMPONIBILE);
  QVN_TEXT(IVA);
};

class ctlINS_MOVIMENTI final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlINS_MOVIMENTI, "A line of an accounting movement", "accounting", "INM");
  QVN_TEXT(Mastro);
  QVN_TEXT(Conto);
  QVN_WRITTEN(DESC_CONTO);
  QVN_TEXT(TIPO);
  QVN_TEXT(DESC_1);
  QVN_TEXT(DESC_2);
  QVN_TEXT(IMPORTO);
};

class ctlIVA final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlIVA, "A VAT code", "master", "IVA");
  QVN_NUMBER(Codice);
  QVN_NUMBER(Deb_Dec);
  QVN_TEXT(DESCRIZIONE);
  QVN_NUMBER(IVA);
};

class ctlMOVIMENTI final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlMOVIMENTI, "A movement type", "master", "MOV");
  QVN_NUMBER(COD_MOVIMENTO);
  QVN_TEXT(DESCRIZIONE);
};

class ctlPROV_POLIZZE final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlPROV_POLIZZE, "The commission of a policy, for one participant", "commissions", "PRO");
  QVN_TEXT(AQ_UFF);
  QVN_TEXT(P_AQ_UFF);
  QVN_TEXT(PN_UFF);
  QVN_TEXT(P_PN_UFF);
  QVN_TEXT(ACC_UFF);
  QVN_TEXT(P_ACC_UFF);
  QVN_TEXT(AQ_PROD);
  QVN_TEXT(P_AQ_PROD);
  QVN_TEXT(PN_PROD);
  QVN_TEXT(P_PN_PROD);
  QVN_TEXT(ACC_PROD);
  QVN_TEXT(P_ACC_PROD);
  QVN_TEXT(AQ_PROD_ALT);
  QVN_TEXT(P_AQ_PROD_ALT);
  QVN_TEXT(PN_PROD_ALT);
  QVN_TEXT(P_PN_PROD_ALT);
  QVN_TEXT(ACC_PROD_ALT);
  QVN_TEXT(P_ACC_PROD_ALT);
  QVN_NUMBER(CALC_PROD);
  QVN_NUMBER(CALC_PROD_ALT);
  QVN_NUMBER(QUOTA);
  QVN_TEXT(COD_COMPAGNIA);
  QVN_TEXT(COD_PRODUTTORE);
  QVN_TEXT(COD_PRODUTTORE_ALT);
  QVN_FLAG(DELEGATARIA);
  QVN_READ(P_ATTIVE);
  QVN_READ(P_PASSIVE);
};

class ctlQ_POLIZZE final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlQ_POLIZZE, "The quota of one participant of a coinsured policy", "quotas", "QPO");
  QVN_TEXT(COD_PROD);
  QVN_TEXT(COD_COMP);
  QVN_TEXT(N_POLIZZA);
  QVN_TEXT(COD_PROD_ALT);
  QVN_TEXT(D_RIMESSA);
  QVN_NUMBER(QUOTA);
  QVN_FLAG(DELEGATARIA);
};

class ctlQ_SINISTRI final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlQ_SINISTRI, "The quota of one participant of a coinsured claim", "quotas", "QSI");
  QVN_TEXT(N_SINISTRO_COMP);
  QVN_TEXT(COD_COMP);
  QVN_TEXT(N_POLIZZA);
  QVN_NUMBER(QUOTA);
  QVN_FLAG(DELEGATARIA);
};

class ctlRAMI final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlRAMI, "An insurance branch", "master", "RAM");
  QVN_TEXT(COD_RAMO);
  QVN_TEXT(competenze);
  QVN_TEXT(DESCRIZIONE);
  QVN_NUMBER(TIPO_SK);
};

class ctlRICERCA final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlRICERCA, "A policy that a search has found", "documents", "RIC");
  QVN_SHOWN(CLIENTE);
  QVN_SHOWN(PROT);
  QVN_SHOWN(QUOTA);
  QVN_SHOWN(PL);
  QVN_SHOWN(DATA_RATA);
  QVN_SHOWN(N_POLIZZA);
  QVN_SHOWN(COD_GR);
  QVN_SHOWN(DESC_SRAMO);
  QVN_SHOWN(TIPO_RATA);
  QVN_SHOWN(GRUPPO);
  QVN_SHOWN(STATO);
  QVN_SHOWN(INT_ASS);
};

class ctlRIC_SINISTRI final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlRIC_SINISTRI, "A claim that a search has found", "documents", "RIS");
  QVN_SHOWN(CLIENTE);
  QVN_SHOWN(PROT);
  QVN_SHOWN(QUOTA);
  QVN_SHOWN(DANNO);
  QVN_SHOWN(DATA_SINISTRO);
  QVN_SHOWN(N_POLIZZA);
  QVN_SHOWN(COD_GR);
  QVN_SHOWN(DESC_SRAMO);
  QVN_SHOWN(CONTROPARTE);
  QVN_SHOWN(STATO);
  QVN_SHOWN(INT_ASS);
  QVN_SHOWN(COD_PROD);
};

class ctlSOSPESI final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlSOSPESI, "An outstanding title", "documents", "SOS");
  QVN_SHOWN(CLIENTE);
  QVN_SHOWN(PROT);
  QVN_SHOWN(QUOTA);
  QVN_SHOWN(PL);
  QVN_SHOWN(DATA_EC);
  QVN_SHOWN(N_POLIZZA);
  QVN_SHOWN(COD_GR);
  QVN_SHOWN(DESC_SRAMO);
  QVN_TEXT(DATA_DOC);
  QVN_TEXT(DATA_C);
  QVN_SHOWN(TIPO_DOC);
  QVN_SHOWN(STATO);
  QVN_SHOWN(N_STATO);
  QVN_SHOWN(PROG);
  QVN_SHOWN(INT_ASS);
  QVN_SHOWN(COD_COMP_DEL);
};

class ctlSTP_CONTABILE final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlSTP_CONTABILE, "An accounting print code", "master", "STC");
  QVN_TEXT(Codice);
  QVN_TEXT(DESCRIZIONE);
};

class ctlSTP_GIORNALE final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlSTP_GIORNALE, "The header of a journal print", "accounting", "STG");
  QVN_TEXT(DA_DATA);
  QVN_TEXT(A_DATA);
  QVN_SHOWN(N_RIGHE);
  QVN_SHOWN(DARE);
  QVN_SHOWN(AVERE);
  QVN_FLAG(DEFINITIVO);
};

class ctlSTP_MOVIMENTI final : public PanelInForm {
  Q_OBJECT
  QVN_PANEL(ctlSTP_MOVIMENTI, "A line of the printed journal", "accounting", "STM");
  QVN_TEXT(FLAG);
  QVN_SHOWN(NRIF);
  QVN_SHOWN(DATA_RIF);
  QVN_SHOWN(NDOC);
  QVN_SHOWN(DESC_1);
  QVN_SHOWN(DESC_2);
  QVN_SHOWN(IMPORTO);
  QVN_SHOWN(TIPO);
};

#undef QVN_WRITTEN
#undef QVN_READ
#undef QVN_SHOWN
#undef QVN_FLAG
#undef QVN_NUMBER
#undef QVN_TEXT
#undef QVN_PROPERTY
#undef QVN_PANEL

/// One of the classes above.
struct FormPanel {
  const QMetaObject& description;
  PanelInForm* (*make)(QWidget* parent);
};

/// All of them, sorted by name.
std::span<const FormPanel> formPanels();

/// A new panel of the class of that name, as form files write it ("qvn::designer::ctlIVA"); null if there is none.
PanelInForm* makeFormPanel(const QString& className, QWidget* parent);

}  // namespace qvn::designer
