// From a code to what goes with it, and from a few letters to a code, by one query on the shared connection.
//
// Each function first fires MancaDB if the connection is closed, whatever its key. A text key can come back without its
// quotes. Where no row is found, or the key is empty and nothing is asked, the answer is the empty text or 0. A query
// that cannot be run fails with "database"; a Null in the column read with "invalid use of null", unless told
// otherwise.
#pragma once

#include <cstdint>
#include <string>

#include "qvn/shared/currency.h"

namespace qvn::QVN_Ricerche {

/// The screen type of a branch, RAMI.TIPO_SK: 1 "Elementari", 2 "Auto", 3 "Vita", 4 "Cauzioni". The key goes into the
/// statement as it is, and an empty one is asked too.
std::int16_t CercaTIPO_SK(std::string& COD_RAMO);

/// The withholding percent of a producer, PRODUTTORI.R_ACC.
Currency CercaR_ACC(std::string& COD_PROD);

/// The name of a producer, PRODUTTORI.DENOMINAZIONE; with `percent` followed by " (", PRODUTTORI.PERCALT and "%)". A
/// Null PERCALT shows as nothing.
std::string CercaPRODUTTORE(std::string& COD_PROD, bool percent);

/// The name of a company, COMPAGNIE.DESC_COMPAGNIA.
std::string CercaCOMPAGNIA(std::string& COD_COMP);

/// The lead company of a policy, QUOTE_POLIZZE.COD_COMP of the first row with DELEGATARIA set.
std::string CercaCOMP_DEL(std::int32_t PROT);

/// The lead company of a claim, QUOTE_SINISTRI.COD_COMP of the first row with DELEGATARIA set. Only the claim "0" is
/// not asked for; the key goes into the statement as it is.
std::string CercaCOMP_DEL_SIN(std::string& N_SINISTRO);

/// The lead producer of a policy, QUOTE_POLIZZE.COD_PROD of the first row with DELEGATARIA set.
std::string CercaPROD_DEL(std::int32_t PROT);

/// The producer of an outstanding title, SOSPESI.COD_PROD of its lead company's row. A Null gives the empty text.
std::string CercaPROD_DEL_SOSPESO(std::int32_t PROT, std::int16_t PROG);

/// Description and rate in whole percent of a VAT code, TIPI_IVA.DESCRIZIONE and IVA; both stay as they are where the
/// code is unknown. The code goes into the statement as it is, so that an empty one fails with "database".
void CercaIVA(std::string& COD_IVA, std::string& description, std::int16_t& rate);

/// The exposure of a client towards a company, as the general text of a number: the sums guaranteed by its policies in
/// force, times the company's thousandths over 1000 (DATI_POLIZZE_4.CAUZIONE, QUOTE_POLIZZE.QUOTA, POLIZZE.STATO).
std::string CercaESPOSIZIONE(std::string& COD_CLIENTE, std::string& COD_COMP);

/// The description of a ledger, or of an account where both keys are given, MASTRI.DESCRIZIONE or CONTI.DESCRIZIONE.
std::string CercaDESC_CONTO(std::string& MASTRO, std::string& CONTO);

/// The initials of a sub-branch, SOTTORAMI.sigla; its number is held as text and goes into the statement as it is.
std::string CercaSIGLA(std::string& COD_SRAMO);

// The pick lists. Each shows, modally on the form Lista, the rows that its code or else its description narrows, and
// gives the code of the row that the operator confirms, without blanks around it: the empty text if the list was
// closed, if no row was selected, or if none was found and there was nothing to show. All arguments come back without
// their quotes.
//
// A row is a description and a code. A code narrows to the codes that begin with it, behind "!" to the descriptions
// that do; an empty one leaves the description to narrow, and where both are empty all rows stand in the list. A query
// that fails, or a Null in a column, passes on with the forms left loaded, over which the next list loads. A list that
// is asked for while another is shown fails with "invalid call" before its query runs, and leaves that one as it is.

/// SOTTORAMI.COD_SRAMO. The code is a number, matched whole; one that is no number counts as empty. Of the third
/// argument the quotes go, and nothing else comes of it.
std::string ListaSOTTORAMI(std::string& COD_SRAMO, std::string& description, std::string& unused);

/// COMPAGNIE.COD_COMP.
std::string ListaCOMPAGNIE(std::string& COD_COMP, std::string& description);

/// MASTRI.MASTRO.
std::string ListaMASTRI(std::string& MASTRO, std::string& description);

/// CLIENTI.COD_CLIENTE.
std::string ListaCLIENTI(std::string& COD_CLIENTE, std::string& description);

/// TIPI_IVA.COD_IVA. The code is a number, matched whole; one that is no number counts as empty, and "0" is emptied.
std::string ListaTIPI_IVA(std::string& COD_IVA, std::string& description);

/// PRODUTTORI.COD_PROD.
std::string ListaPRODUTTORI(std::string& COD_PROD, std::string& description);

/// CONTI.MASTRO and CONTO, with "?" between them both in the code and in the answer. The ledger is matched whole, the
/// account by its beginning; "%" in the place of either is any. Nothing is asked where code and description are empty;
/// a code without "?" fails with "invalid call", quoting it.
std::string ListaCONTI(std::string& MASTRO_CONTO, std::string& description);

}  // namespace qvn::QVN_Ricerche
