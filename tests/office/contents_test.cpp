// What the sample holds: as many of each as promised, and every kind of row that a panel treats differently.
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "tests/office/office.h"

namespace office_test {
namespace {

struct Count {
  std::string_view what;  ///< FROM and WHERE of what is counted
  long long least;
  long long most;
};

constexpr long long any = 1'000'000;

constexpr Count counts[] = {
    {"COMPAGNIE", 40, 40},          {"PRODUTTORI", 60, 60},   {"CLIENTI", 2000, 2000}, {"POLIZZE", 5000, 5000},
    {"QUOTE_POLIZZE", 7500, 12500}, {"SOSPESI", 5000, 12500}, {"SINISTRI", 300, 1000},
};

constexpr Count kinds[] = {
    // States of policies: in force in two ways, ended, and a blank, which is no longer in force.
    {"POLIZZE WHERE STATO IS NULL", 1000, any},
    {"POLIZZE WHERE STATO = ''", 100, any},
    {"POLIZZE WHERE STATO = 'A'", 100, any},
    {"POLIZZE WHERE STATO = 'D'", 100, any},
    {"POLIZZE WHERE STATO = ' '", 20, any},
    {"POLIZZE WHERE STATO NOT IN ('', 'A', 'D', ' ')", 0, 0},
    {"POLIZZE JOIN RAMI USING (COD_RAMO) WHERE STATO = 'D' AND TIPO_SK = 4", 10, any},
    {"POLIZZE JOIN RAMI USING (COD_RAMO) WHERE STATO = 'D' AND TIPO_SK <> 4", 10, any},
    // Which family is current, and families that differ.
    {"POLIZZE WHERE U_CALCOLO = 'TRF'", 1000, any},
    {"POLIZZE WHERE U_CALCOLO = 'TAF'", 1000, any},
    {"POLIZZE WHERE U_CALCOLO = ''", 50, any},
    {"POLIZZE WHERE U_CALCOLO IS NULL", 50, any},
    {"POLIZZE WHERE PL_TRF <> PL_TAF", 1000, any},
    {"QUOTE_POLIZZE WHERE PN_UFF_TRF <> PN_UFF_TAF AND pn_prod_TRF <> pn_prod_TAF", 1000, any},
    {"QUOTE_POLIZZE WHERE pn_prod_ALT_TRF <> pn_prod_ALT_TAF", 100, any},
    // Companies sharing, leads and producers.
    {"(SELECT 1 FROM QUOTE_POLIZZE GROUP BY PROT HAVING count(*) = 1)", 1000, any},
    {"(SELECT 1 FROM QUOTE_POLIZZE GROUP BY PROT HAVING count(*) > 3)", 100, any},
    {"(SELECT 1 FROM QUOTE_POLIZZE GROUP BY PROT HAVING sum(QUOTA) <> 1000)", 0, 0},
    {"QUOTE_POLIZZE WHERE QUOTA NOT BETWEEN 1 AND 1000", 0, 0},
    {"QUOTE_POLIZZE WHERE QUOTA % 10 <> 0", 100, any},
    {"POLIZZE WHERE PROT NOT IN (SELECT PROT FROM QUOTE_POLIZZE)", 0, 0},
    {"(SELECT 1 FROM QUOTE_POLIZZE GROUP BY PROT HAVING sum(DELEGATARIA <> 0) = 0)", 50, any},
    {"(SELECT 1 FROM QUOTE_POLIZZE GROUP BY PROT HAVING sum(DELEGATARIA <> 0) = 1)", 1000, any},
    {"(SELECT 1 FROM QUOTE_POLIZZE GROUP BY PROT HAVING sum(DELEGATARIA <> 0) > 1)", 20, any},
    {"QUOTE_POLIZZE WHERE DELEGATARIA = -1", 100, any},
    {"QUOTE_POLIZZE WHERE DELEGATARIA = 1", 100, any},
    {"QUOTE_POLIZZE WHERE COD_PROD IS NULL", 50, any},
    {"QUOTE_POLIZZE WHERE COD_PROD IS NULL AND DELEGATARIA <> 0", 20, any},
    {"QUOTE_POLIZZE WHERE COD_PROD NOT IN (SELECT COD_PROD FROM PRODUTTORI)", 20, any},
    {"QUOTE_POLIZZE WHERE COD_PROD_ALT = ''", 1000, any},
    {"QUOTE_POLIZZE JOIN PRODUTTORI ON COD_PROD_ALT = PRODUTTORI.COD_PROD", 500, any},
    {"QUOTE_POLIZZE WHERE COD_COMP NOT IN (SELECT COD_COMP FROM COMPAGNIE)", 0, 0},
    {"POLIZZE WHERE COD_CLIENTE NOT IN (SELECT COD_CLIENTE FROM CLIENTI)", 0, 0},
    // Guarantees: for the policies of that kind and for no other; in force and not.
    {"POLIZZE JOIN RAMI USING (COD_RAMO) WHERE (TIPO_SK = 4) <> (PROT IN (SELECT PROT FROM DATI_POLIZZE_4))", 0, 0},
    {"DATI_POLIZZE_4 JOIN POLIZZE USING (PROT) WHERE coalesce(STATO, '') = ''", 100, any},
    {"DATI_POLIZZE_4 JOIN POLIZZE USING (PROT) WHERE STATO = ' '", 1, any},
    {"DATI_POLIZZE_4 JOIN POLIZZE USING (PROT) WHERE STATO IN ('A', 'D')", 20, any},
    {"(SELECT 1 FROM DATI_POLIZZE_4 JOIN POLIZZE USING (PROT) JOIN QUOTE_POLIZZE USING (PROT) "
     "GROUP BY COD_CLIENTE, COD_COMP HAVING count(*) > 1)",
     5, any},
    {"CLIENTI WHERE COD_CLIENTE NOT IN (SELECT COD_CLIENTE FROM POLIZZE JOIN DATI_POLIZZE_4 USING (PROT))", 100, any},
    // Titles.
    {"SOSPESI WHERE STATO = 'A'", 100, any},
    {"SOSPESI WHERE STATO = 'I'", 100, any},
    {"SOSPESI WHERE STATO = 'C'", 100, any},
    {"SOSPESI WHERE STATO = 'S'", 100, any},
    {"SOSPESI WHERE STATO = 'N'", 100, any},
    {"SOSPESI WHERE N_STATO = ''", 1000, any},
    {"SOSPESI WHERE STATO = 'S' AND N_STATO = 'A'", 5, any},
    {"SOSPESI WHERE STATO = 'A' AND N_STATO = 'R'", 1, any},
    {"SOSPESI WHERE STATO IN ('I', 'N') AND N_STATO <> ''", 0, 0},
    {"SOSPESI WHERE STATO = 'C' AND N_STATO NOT IN ('', 'I', 'A')", 0, 0},
    {"SOSPESI WHERE NPROT <> PROT", 0, 0},
    {"SOSPESI WHERE COD_PROD IS NULL", 50, any},
    {"SOSPESI WHERE COD_COMP_DEL = ''", 50, any},
    {"SOSPESI WHERE COD_PROD_ALT <> '' AND PP_ALT <> 0", 100, any},
    {"SOSPESI WHERE PL < 0 AND PA < 0", 20, any},
    {"SOSPESI WHERE DATA_C IS NULL", 100, any},
    {"SOSPESI WHERE DATA_C IS NOT NULL", 100, any},
    {"SOSPESI WHERE DATA_DOC <> date(DATA_DOC)", 0, 0},
    {"(SELECT 1 FROM SOSPESI GROUP BY PROT HAVING max(PROG) > 2)", 100, any},
    {"(SELECT 1 FROM SOSPESI WHERE COD_COMP_DEL <> '' GROUP BY PROT, PROG HAVING sum(COD_COMP = COD_COMP_DEL) <> 1)", 0,
     0},
    // Claims.
    {"(SELECT 1 FROM QUOTE_SINISTRI GROUP BY N_SINISTRO HAVING sum(DELEGATARIA <> 0) = 0)", 5, any},
    {"(SELECT 1 FROM QUOTE_SINISTRI GROUP BY N_SINISTRO HAVING sum(QUOTA) <> 1000)", 0, 0},
    {"SINISTRI WHERE length(N_SINISTRO) = 20", 20, any},
    {"SINISTRI WHERE D_LIQUIDATO = 0", 20, any},
    {"SINISTRI WHERE D_LIQUIDATO > D_STIMATO", 5, any},
    // Registers.
    {"RAMI WHERE TIPO_SK = 1", 2, any},
    {"RAMI WHERE TIPO_SK = 2", 2, any},
    {"RAMI WHERE TIPO_SK = 3", 2, any},
    {"RAMI WHERE TIPO_SK = 4", 2, any},
    {"TIPI_IVA WHERE IVA IN (4, 10, 22) AND Deb_Dec = 100", 3, any},
    {"TIPI_IVA WHERE IVA = 0", 1, any},
    {"TIPI_IVA WHERE Deb_Dec BETWEEN 1 AND 99", 1, any},
    {"TIPI_IVA WHERE COD_IVA NOT BETWEEN 0 AND 99 OR IVA NOT BETWEEN 0 AND 100 OR Deb_Dec NOT BETWEEN 0 AND 100", 0, 0},
    {"TIPI_MOVIMENTI WHERE COD_MOVIMENTO NOT BETWEEN 0 AND 99", 0, 0},
    {"PRODUTTORI WHERE PERCALT IS NULL", 5, any},
    {"PRODUTTORI WHERE PERCALT = 12.5", 1, any},
    {"PRODUTTORI WHERE PERCALT = 50 AND typeof(PERCALT) = 'integer'", 1, any},
    {"PRODUTTORI WHERE R_ACC = 0", 1, any},
    {"PRODUTTORI WHERE R_ACC = 11.5", 5, any},
    {"(SELECT 1 FROM CONTI GROUP BY CONTO HAVING count(DISTINCT MASTRO) > 1)", 3, any},
    {"CONTI WHERE MASTRO NOT IN (SELECT MASTRO FROM MASTRI) OR CEE NOT IN (SELECT MASTRO FROM CEE)", 0, 0},
    {"SOTTOCODICI_ATTIVITA WHERE COD NOT IN (SELECT COD FROM CODICI_ATTIVITA)", 0, 0},
    // Names with accents and apostrophes.
    {"CLIENTI WHERE DESC_CLIENTE LIKE 'D''Angelo%'", 5, any},
    {"CLIENTI WHERE DESC_CLIENTE LIKE '% Nicolò'", 5, any},
    {"CLIENTI WHERE DESC_CLIENTE LIKE '%L''Aquila%'", 5, any},
    {"CLIENTI WHERE DESC_CLIENTE LIKE 'Società%'", 5, any},
    {"COMPAGNIE WHERE DESC_COMPAGNIA LIKE 'Società%'", 3, any},
    {"COMPAGNIE WHERE DESC_COMPAGNIA LIKE '%''%'", 3, any},
    {"PRODUTTORI WHERE DENOMINAZIONE LIKE '%''%'", 1, any},
    // The office's own books.
    {"(SELECT 1 FROM MOVIMENTI GROUP BY N_MOVIMENTO "
     "HAVING round(sum(CASE TIPO WHEN 'D' THEN IMPORTO ELSE -IMPORTO END) * 100) <> 0)",
     0, 0},
    {"MOVIMENTI LEFT JOIN CONTI USING (MASTRO, CONTO) WHERE CONTI.DESCRIZIONE IS NULL", 0, 0},
    {"ESTRATTI WHERE RIMBORSO > 0 AND PREMIO = 0", 5, any},
    {"ESTRATTI WHERE ST_PROD IS NULL", 20, any},
};

/// Columns whose texts an entry field holds, and the most characters that it takes.
struct Length {
  std::string_view table, column;
  int most;
};

constexpr Length lengths[] = {
    {"COMPAGNIE", "COD_COMP", 5},
    {"PRODUTTORI", "COD_PROD", 8},
    {"QUOTE_POLIZZE", "COD_PROD", 8},
    {"CLIENTI", "COD_CLIENTE", 6},
    {"RAMI", "COD_RAMO", 2},
    {"MASTRI", "MASTRO", 4},
    {"CONTI", "CONTO", 6},
    {"CEE", "MASTRO", 4},
    {"SOTTORAMI", "sigla", 6},
    {"SINISTRI", "N_SINISTRO", 20},
    {"QUOTE_SINISTRI", "N_SINISTRO_COMP", 20},
    {"POLIZZE", "N_POLIZZA", 15},
    {"QUOTE_POLIZZE", "N_POLIZZA", 15},
    {"POLIZZE", "INT_ASS", 20},
    {"SOSPESI", "INT_ASS", 20},
    {"RAMI", "DESCRIZIONE", 50},
    {"TIPI_IVA", "DESCRIZIONE", 50},
    {"TIPI_MOVIMENTI", "DESCRIZIONE", 50},
    {"MOVIMENTI", "DESC_1", 50},
    {"MOVIMENTI", "DESC_2", 50},
};

template <typename Counts>
void expectCounts(const Counts& list) {
  for (const Count& each : list) {
    const long long found = sample().number("SELECT count(*) FROM " + std::string(each.what));
    EXPECT_GE(found, each.least) << each.what;
    EXPECT_LE(found, each.most) << each.what;
  }
}

TEST(OfficeContents, scaleOneHoldsAsManyAsPromised) { expectCounts(counts); }
TEST(OfficeContents, everyKindOfRowOccurs) { expectCounts(kinds); }

TEST(OfficeContents, textsFitTheirEntryFields) {
  for (const Length& each : lengths) {
    const std::string column(each.column);
    EXPECT_LE(sample().number("SELECT max(length(" + column + ")) FROM " + std::string(each.table)), each.most)
        << each.table << "." << column;
  }
}

TEST(OfficeContents, theDatabaseIsSound) { EXPECT_EQ(sample().text("PRAGMA integrity_check"), "ok"); }

}  // namespace
}  // namespace office_test
