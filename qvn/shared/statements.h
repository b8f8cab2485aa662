// The statements of the library, as constants that keys are set between: a text key stands between the quotes that its
// constants end and begin with, a number key stands bare. Every statement reads.
#pragma once

#include <span>
#include <string_view>

namespace qvn::statements {

inline constexpr std::string_view kQuote = "'";

// Single lookups. The two on a lead company or producer end with the test of the flag, behind a number or a text key.
inline constexpr std::string_view kTIPO_SK = "Select TIPO_SK FROM RAMI Where COD_RAMO = '";
inline constexpr std::string_view kR_ACC = "Select R_ACC From PRODUTTORI Where COD_PROD = '";
inline constexpr std::string_view kPRODUTTORE = "Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = '";
inline constexpr std::string_view kCOMPAGNIA = "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = '";
inline constexpr std::string_view kCOMP_DEL = "Select COD_COMP From QUOTE_POLIZZE Where PROT = ";
inline constexpr std::string_view kCOMP_DEL_SIN = "Select COD_COMP From QUOTE_SINISTRI Where N_SINISTRO = '";
inline constexpr std::string_view kPROD_DEL = "Select COD_PROD From QUOTE_POLIZZE Where PROT = ";
inline constexpr std::string_view kLead = " AND DELEGATARIA <> 0";
inline constexpr std::string_view kQuoteLead = "' AND DELEGATARIA <> 0";
inline constexpr std::string_view kPROD_DEL_SOSPESO =
    "Select COD_PROD FROM SOSPESI Where COD_COMP = COD_COMP_DEL AND PROT = ";
inline constexpr std::string_view kAndPROG = " AND PROG = ";
inline constexpr std::string_view kIVA = "Select * From TIPI_IVA Where COD_IVA = ";
inline constexpr std::string_view kDESC_MASTRO = "Select DESCRIZIONE From MASTRI Where MASTRO = '";
inline constexpr std::string_view kDESC_CONTO = "Select DESCRIZIONE From CONTI Where MASTRO = '";
inline constexpr std::string_view kQuoteAndCONTO = "' AND CONTO = '";
inline constexpr std::string_view kSIGLA = "Select sigla From SOTTORAMI Where COD_SRAMO = ";

// The exposure of a client towards a company, in the order of its pieces.
inline constexpr std::string_view kESPOSIZIONE =
    "SELECT POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP, Sum([CAUZIONE]*[QUOTA]/1000) AS ESP "
    "FROM (DATI_POLIZZE_4 INNER JOIN QUOTE_POLIZZE ON DATI_POLIZZE_4.PROT = QUOTE_POLIZZE.PROT) "
    "INNER JOIN POLIZZE ON QUOTE_POLIZZE.PROT = POLIZZE.PROT "
    "WHERE (((POLIZZE.STATO) Is Null Or (POLIZZE.STATO)='')) "
    "GROUP BY POLIZZE.COD_CLIENTE, QUOTE_POLIZZE.COD_COMP "
    "HAVING (((POLIZZE.COD_CLIENTE)='";
inline constexpr std::string_view kESPOSIZIONE_COMP = "') AND ((QUOTE_POLIZZE.COD_COMP)='";
inline constexpr std::string_view kESPOSIZIONE_END = "'))";

/// What a viewer shows of an outstanding title: PROT stands bare behind the first text, PROG behind kAndPROG, and the
/// order at the end.
struct TitleRows {
  std::string_view ofPROT;
  std::string_view inOrder;
};

inline constexpr TitleRows kTitleCOMPAGNIE{
    .ofPROT =
        "SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, SOSPESI.PL, SOSPESI.PA "
        "FROM SOSPESI INNER JOIN COMPAGNIE ON SOSPESI.COD_COMP = COMPAGNIE.COD_COMP WHERE PROT = ",
    .inOrder = " ORDER BY COMPAGNIE.COD_COMP"};
inline constexpr TitleRows kTitlePRODUTTORI{
    .ofPROT =
        "SELECT SOSPESI.COD_PROD, PRODUTTORI.DENOMINAZIONE, SOSPESI.PP, SOSPESI.RA "
        "FROM SOSPESI INNER JOIN PRODUTTORI ON SOSPESI.COD_PROD = PRODUTTORI.COD_PROD WHERE PROT = ",
    .inOrder = " ORDER BY SOSPESI.COD_PROD"};
inline constexpr TitleRows kTitlePRODUTTORI_ALT{
    .ofPROT =
        "SELECT SOSPESI.COD_PROD_ALT, PRODUTTORI.DENOMINAZIONE, SOSPESI.PP_ALT, SOSPESI.RA_ALT "
        "FROM SOSPESI INNER JOIN PRODUTTORI ON SOSPESI.COD_PROD_ALT = PRODUTTORI.COD_PROD WHERE PROT = ",
    .inOrder = " ORDER BY SOSPESI.COD_PROD_ALT"};

/// What a viewer shows of a policy: the figures of one of the two calculations, then the rest, with PROT bare between
/// kWherePROT and the order.
struct PolicyRows {
  std::string_view figuresTRF;
  std::string_view figuresTAF;
  std::string_view from;
  std::string_view inOrder;
};

inline constexpr std::string_view kU_CALCOLO = "Select U_CALCOLO FROM POLIZZE WHERE PROT = ";
inline constexpr std::string_view kWherePROT = "WHERE (((QUOTE_POLIZZE.PROT) = ";
inline constexpr PolicyRows kPolicyCOMPAGNIE{
    .figuresTRF =
        "SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, [PL_TRF]*[QUOTA]/1000 AS PL, "
        "[PN_UFF_TRF]+[ACC_UFF_TRF]+[AQ_UFF_TRF] AS PA ",
    .figuresTAF =
        "SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, [PL_TAF]*[QUOTA]/1000 AS PL, "
        "[PN_UFF_TAF]+[ACC_UFF_TAF]+[AQ_UFF_TAF] AS PA ",
    .from =
        "FROM (COMPAGNIE INNER JOIN QUOTE_POLIZZE ON COMPAGNIE.COD_COMP = QUOTE_POLIZZE.COD_COMP) "
        "INNER JOIN POLIZZE ON QUOTE_POLIZZE.PROT = POLIZZE.PROT ",
    .inOrder = ")) ORDER BY COMPAGNIE.COD_COMP"};
inline constexpr PolicyRows kPolicyPRODUTTORI{
    .figuresTRF =
        "SELECT QUOTE_POLIZZE.COD_PROD, PRODUTTORI.DENOMINAZIONE, [pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF] AS PP, "
        "([pn_prod_TRF]+[acc_prod_TRF]+[aq_prod_TRF])/100*[R_ACC] AS RA ",
    .figuresTAF =
        "SELECT QUOTE_POLIZZE.COD_PROD, PRODUTTORI.DENOMINAZIONE, [pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf] AS PP, "
        "([pn_prod_Taf]+[acc_prod_Taf]+[aq_prod_Taf])/100*[R_ACC] AS RA ",
    .from = "FROM PRODUTTORI INNER JOIN QUOTE_POLIZZE ON PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD ",
    .inOrder = ")) ORDER BY QUOTE_POLIZZE.COD_PROD"};
inline constexpr PolicyRows kPolicyPRODUTTORI_ALT{
    .figuresTRF =
        "SELECT QUOTE_POLIZZE.COD_PROD_ALT, PRODUTTORI.DENOMINAZIONE, "
        "[pn_prod_ALT_TRF]+[acc_prod_ALT_TRF]+[aq_prod_ALT_TRF] AS PP, "
        "([pn_prod_ALT_TRF]+[acc_prod_ALT_TRF]+[aq_prod_ALT_TRF])/100*[R_ACC] AS RA ",
    .figuresTAF =
        "SELECT QUOTE_POLIZZE.COD_PROD_ALT, PRODUTTORI.DENOMINAZIONE, "
        "[pn_prod_ALT_TAF]+[acc_prod_ALT_TAF]+[aq_prod_ALT_TAF] AS PP, "
        "([pn_prod_ALT_TAF]+[acc_prod_ALT_TAF]+[aq_prod_ALT_TAF])/100*[R_ACC] AS RA ",
    .from = "FROM PRODUTTORI INNER JOIN QUOTE_POLIZZE ON PRODUTTORI.COD_PROD = QUOTE_POLIZZE.COD_PROD_ALT ",
    .inOrder = ")) ORDER BY QUOTE_POLIZZE.COD_PROD_ALT"};

// What a viewer shows of a claim, whose number stands between the two.
inline constexpr std::string_view kClaimCOMPAGNIE =
    "SELECT COMPAGNIE.COD_COMP, COMPAGNIE.DESC_COMPAGNIA, [D_STIMATO]*[QUOTA]/1000 AS PL, "
    "[D_LIQUIDATO]*[QUOTA]/1000 AS PA "
    "FROM (COMPAGNIE INNER JOIN QUOTE_SINISTRI ON COMPAGNIE.COD_COMP = QUOTE_SINISTRI.COD_COMP) "
    "INNER JOIN SINISTRI ON QUOTE_SINISTRI.N_SINISTRO = SINISTRI.N_SINISTRO "
    "WHERE (((QUOTE_SINISTRI.N_SINISTRO) = '";
inline constexpr std::string_view kClaimCOMPAGNIE_END = "')) ORDER BY COMPAGNIE.COD_COMP";

/// The texts of one pick list. A code or a description that is compared by Like is followed by kLikeEnd; a number
/// stands bare at the end.
struct PickListTexts {
  std::string_view byDescription;
  std::string_view byCode;
  std::string_view all;          ///< empty where a list of all rows is not to be had
  std::string_view marked = {};  ///< asked with no key: for a number that begins with "!", which none does
};

inline constexpr std::string_view kLikeEnd = "%'";

inline constexpr PickListTexts kListaCOMPAGNIE{
    .byDescription = "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where DESC_COMPAGNIA Like '",
    .byCode = "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE Where COD_COMP  Like '",
    .all = "Select DESC_COMPAGNIA, COD_COMP From COMPAGNIE"};
inline constexpr PickListTexts kListaMASTRI{
    .byDescription = "Select DESCRIZIONE, MASTRO From Mastri Where DESCRIZIONE Like '",
    .byCode = "Select DESCRIZIONE, MASTRO From Mastri Where MASTRO Like '",
    .all = "Select DESCRIZIONE, MASTRO From Mastri"};
inline constexpr PickListTexts kListaCLIENTI{
    .byDescription = "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where DESC_CLIENTE Like '",
    .byCode = "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI Where COD_CLIENTE Like '",
    .all = "Select DESC_CLIENTE, COD_CLIENTE From CLIENTI"};
inline constexpr PickListTexts kListaPRODUTTORI{
    .byDescription = "Select DENOMINAZIONE, COD_PROD From PRODUTTORI Where DENOMINAZIONE Like '",
    .byCode = "Select DENOMINAZIONE, COD_PROD From PRODUTTORI Where COD_PROD Like '",
    .all = "Select DENOMINAZIONE, COD_PROD From PRODUTTORI"};
inline constexpr PickListTexts kListaSOTTORAMI{
    .byDescription = "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where DESCRIZIONE Like '",
    .byCode = "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI Where COD_SRAMO = ",
    .all = "Select DESCRIZIONE, COD_SRAMO From SOTTORAMI"};
inline constexpr PickListTexts kListaTIPI_IVA{
    .byDescription = "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where DESCRIZIONE Like '",
    .byCode = "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = ",
    .all = "Select DESCRIZIONE, COD_IVA From TIPI_IVA",
    .marked = "Select DESCRIZIONE, COD_IVA From TIPI_IVA Where DESCRIZIONE like '"};
// The ledger stands behind byCode, whole; the account, if one is asked for, behind kQuoteAndLikeCONTO.
inline constexpr PickListTexts kListaCONTI{
    .byDescription = "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where DESCRIZIONE Like '",
    .byCode = "Select DESCRIZIONE, MASTRO, CONTO From CONTI Where MASTRO Like '",
    .all = {}};
inline constexpr std::string_view kQuoteAndLikeCONTO = "' AND CONTO LIKE '";

/// A group of statements that no panel issues yet. Those that end in a quote or a blank take a key behind them.
struct Reserve {
  std::string_view title;  ///< of the pick list, empty where there is none
  std::span<const std::string_view> texts;
  std::string_view fieldName = {};  ///< under which the code is read, where it is not spelled as in the statement
  std::string_view heading = {};    ///< of the code's column, where the group names one
};

/// The reserve statements, one group after the other.
std::span<const Reserve> reserve();

}  // namespace qvn::statements
