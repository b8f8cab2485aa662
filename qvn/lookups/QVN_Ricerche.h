// From a code to what goes with it, by one query on the shared connection.
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

}  // namespace qvn::QVN_Ricerche
