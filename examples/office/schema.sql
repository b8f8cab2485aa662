-- The sample office's database: the tables that the panels' statements read, and below them the office's own.
--
-- Amounts are declared DECIMAL(19,4); the sample maker puts another type there when asked for another storage.
-- Dates are text, "yyyy-mm-dd". A missing code is the empty text unless its column may be Null.
-- Codes of other tables are not declared as references: the books hold codes of producers long struck off.
--
-- Statements name many columns without their table. So within a join such a name stands in one table only: COMPAGNIE
-- and PRODUTTORI hold no PROT, PROG or QUOTA; POLIZZE and SINISTRI hold no QUOTA; each amount has a name of its own.

-- Policies.

CREATE TABLE POLIZZE (
  PROT        INTEGER PRIMARY KEY,
  COD_CLIENTE TEXT NOT NULL,
  STATO       TEXT,                    -- Null or empty: in force; A cancelled, D given notice or released
  U_CALCOLO   TEXT,                    -- TRF: the _TRF figures are the current ones; else the _TAF figures
  PN_TRF      DECIMAL(19,4) NOT NULL,  -- net premium, accessories, gross premium of the whole policy
  ACC_TRF     DECIMAL(19,4) NOT NULL,
  PL_TRF      DECIMAL(19,4) NOT NULL,
  PN_TAF      DECIMAL(19,4) NOT NULL,
  ACC_TAF     DECIMAL(19,4) NOT NULL,
  PL_TAF      DECIMAL(19,4) NOT NULL,
  N_POLIZZA   TEXT NOT NULL,
  COD_RAMO    TEXT NOT NULL,
  COD_SRAMO   INTEGER NOT NULL,
  COD_GRUPPO  INTEGER NOT NULL,        -- 0: in no group
  INT_ASS     TEXT NOT NULL,
  DATA_RATA   TEXT,
  TIPO_RATA   TEXT NOT NULL            -- A, S, Q, T, M: yearly, half-yearly, four-monthly, quarterly, monthly
);

CREATE TABLE QUOTE_POLIZZE (
  PROT             INTEGER NOT NULL,
  COD_COMP         TEXT NOT NULL,
  COD_PROD         TEXT,
  COD_PROD_ALT     TEXT NOT NULL,
  DELEGATARIA      INTEGER NOT NULL,   -- 0, or any other value on the lead coinsurer's row
  QUOTA            INTEGER NOT NULL,   -- thousandths; a policy's rows add up to 1000
  PN_UFF_TRF       DECIMAL(19,4) NOT NULL,
  ACC_UFF_TRF      DECIMAL(19,4) NOT NULL,
  AQ_UFF_TRF       DECIMAL(19,4) NOT NULL,
  pn_prod_TRF      DECIMAL(19,4) NOT NULL,
  acc_prod_TRF     DECIMAL(19,4) NOT NULL,
  aq_prod_TRF      DECIMAL(19,4) NOT NULL,
  pn_prod_ALT_TRF  DECIMAL(19,4) NOT NULL,
  acc_prod_ALT_TRF DECIMAL(19,4) NOT NULL,
  aq_prod_ALT_TRF  DECIMAL(19,4) NOT NULL,
  PN_UFF_TAF       DECIMAL(19,4) NOT NULL,
  ACC_UFF_TAF      DECIMAL(19,4) NOT NULL,
  AQ_UFF_TAF       DECIMAL(19,4) NOT NULL,
  pn_prod_TAF      DECIMAL(19,4) NOT NULL,
  acc_prod_TAF     DECIMAL(19,4) NOT NULL,
  aq_prod_TAF      DECIMAL(19,4) NOT NULL,
  pn_prod_ALT_TAF  DECIMAL(19,4) NOT NULL,
  acc_prod_ALT_TAF DECIMAL(19,4) NOT NULL,
  aq_prod_ALT_TAF  DECIMAL(19,4) NOT NULL,
  N_POLIZZA        TEXT NOT NULL,      -- the policy's number with this company
  D_RIMESSA        TEXT,
  PRIMARY KEY (PROT, COD_COMP)
) WITHOUT ROWID;

CREATE TABLE DATI_POLIZZE_4 (
  PROT     INTEGER PRIMARY KEY,
  CAUZIONE DECIMAL(19,4) NOT NULL
);

-- Outstanding titles, one row per title and company; what belongs to the title stands on each of its rows.

CREATE TABLE SOSPESI (
  PROT         INTEGER NOT NULL,
  PROG         INTEGER NOT NULL,
  COD_COMP     TEXT NOT NULL,
  NPROT        INTEGER NOT NULL,       -- PROT again, under its other name
  COD_COMP_DEL TEXT NOT NULL,
  COD_PROD     TEXT,
  COD_PROD_ALT TEXT NOT NULL,
  PL           DECIMAL(19,4) NOT NULL,
  PA           DECIMAL(19,4) NOT NULL,
  PP           DECIMAL(19,4) NOT NULL,
  RA           DECIMAL(19,4) NOT NULL,
  PP_ALT       DECIMAL(19,4) NOT NULL,
  RA_ALT       DECIMAL(19,4) NOT NULL,
  STATO        TEXT NOT NULL,          -- A, I, C, S, N
  N_STATO      TEXT NOT NULL,          -- the action chosen and not yet carried out: A, R, I, C, or empty
  TIPO_DOC     TEXT NOT NULL,          -- P, A, Q, V
  INT_ASS      TEXT NOT NULL,
  DATA_DOC     TEXT,
  DATA_C       TEXT,
  DATA_EC      TEXT,
  PRIMARY KEY (PROT, PROG, COD_COMP)
) WITHOUT ROWID;

-- Claims.

CREATE TABLE SINISTRI (
  N_SINISTRO    TEXT NOT NULL PRIMARY KEY,
  D_STIMATO     DECIMAL(19,4) NOT NULL,
  D_LIQUIDATO   DECIMAL(19,4) NOT NULL,
  PROT          INTEGER NOT NULL,
  DATA_SINISTRO TEXT,
  CONTROPARTE   TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE QUOTE_SINISTRI (
  N_SINISTRO      TEXT NOT NULL,
  COD_COMP        TEXT NOT NULL,
  DELEGATARIA     INTEGER NOT NULL,
  QUOTA           INTEGER NOT NULL,
  N_POLIZZA       TEXT NOT NULL,
  N_SINISTRO_COMP TEXT NOT NULL,       -- the claim's number with this company
  PRIMARY KEY (N_SINISTRO, COD_COMP)
) WITHOUT ROWID;

-- Registers with a text code.

CREATE TABLE COMPAGNIE (
  COD_COMP       TEXT NOT NULL PRIMARY KEY,
  DESC_COMPAGNIA TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE PRODUTTORI (
  COD_PROD      TEXT NOT NULL PRIMARY KEY,
  DENOMINAZIONE TEXT NOT NULL,
  PERCALT       NUMERIC,               -- percent as alternate producer
  R_ACC         NUMERIC NOT NULL       -- withholding tax, percent
) WITHOUT ROWID;

CREATE TABLE CLIENTI (
  COD_CLIENTE  TEXT NOT NULL PRIMARY KEY,
  DESC_CLIENTE TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE RAMI (
  COD_RAMO    TEXT NOT NULL PRIMARY KEY,
  DESCRIZIONE TEXT NOT NULL,
  TIPO_SK     INTEGER NOT NULL,        -- 1 Elementari, 2 Auto, 3 Vita, 4 Cauzioni
  competenze  INTEGER NOT NULL
) WITHOUT ROWID;

CREATE TABLE CLAUSOLARI (
  COD_CLAUS     TEXT NOT NULL PRIMARY KEY,
  DENOMINAZIONE TEXT NOT NULL,
  DESCRIZIONE   TEXT NOT NULL,
  FILE          TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE STAMPE_BONIFICO (
  COD_STAMPA  TEXT NOT NULL PRIMARY KEY,
  DESCRIZIONE TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE FORNITORI (
  CODICE        TEXT NOT NULL PRIMARY KEY,
  DENOMINAZIONE TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE CODICI_ATTIVITA (
  COD         TEXT NOT NULL PRIMARY KEY,
  DESCRIZIONE TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE SOTTOCODICI_ATTIVITA (
  COD         TEXT NOT NULL,
  S_COD       TEXT NOT NULL,
  DESCRIZIONE TEXT NOT NULL,
  PRIMARY KEY (COD, S_COD)
) WITHOUT ROWID;

CREATE TABLE MASTRI (
  MASTRO      TEXT NOT NULL PRIMARY KEY,
  DESCRIZIONE TEXT NOT NULL
) WITHOUT ROWID;

CREATE TABLE CONTI (
  MASTRO      TEXT NOT NULL,
  CONTO       TEXT NOT NULL,
  DESCRIZIONE TEXT NOT NULL,
  CEE         TEXT NOT NULL,
  PRIMARY KEY (MASTRO, CONTO)
) WITHOUT ROWID;

CREATE TABLE CEE (
  MASTRO      TEXT NOT NULL PRIMARY KEY,
  DESCRIZIONE TEXT NOT NULL
) WITHOUT ROWID;

-- Registers with a number code.

CREATE TABLE SOTTORAMI (
  COD_SRAMO   INTEGER PRIMARY KEY,
  DESCRIZIONE TEXT NOT NULL,
  sigla       TEXT NOT NULL,
  COD_RAMO    TEXT NOT NULL
);

CREATE TABLE TIPI_IVA (
  COD_IVA     INTEGER PRIMARY KEY,
  DESCRIZIONE TEXT NOT NULL,
  IVA         INTEGER NOT NULL,        -- rate, whole percent
  Deb_Dec     INTEGER NOT NULL         -- deductible share, percent
);

CREATE TABLE TIPI_MOVIMENTI (
  COD_MOVIMENTO INTEGER PRIMARY KEY,
  DESCRIZIONE   TEXT NOT NULL
);

CREATE TABLE GRUPPI (
  COD_GRUPPO    INTEGER PRIMARY KEY,
  DENOMINAZIONE TEXT NOT NULL
);

-- The office's own books, which the panels' statements never name: what an operator edits and the office stores.

-- Lines of the account statements.
CREATE TABLE ESTRATTI (
  N_RIGA       INTEGER PRIMARY KEY,
  COD_COMP     TEXT NOT NULL,
  COD_PROD     TEXT,
  COD_PROD_ALT TEXT NOT NULL,
  COD_CLIENTE  TEXT NOT NULL,
  COD_RAMO     TEXT NOT NULL,
  SIGLA_SRAMO  TEXT NOT NULL,
  TIPO_DOC     TEXT NOT NULL,          -- P, A, Q, V
  N_POLIZZA    TEXT NOT NULL,
  INT_ASS      TEXT NOT NULL,
  PREMIO       DECIMAL(19,4) NOT NULL,
  RIMBORSO     DECIMAL(19,4) NOT NULL,
  PROVVIGIONE  DECIMAL(19,4) NOT NULL,
  DATA_EC      TEXT,
  DATA_QUIET   TEXT,
  DATA_REG     TEXT,
  ST_COMP      TEXT,                   -- S: settled; Null or empty: open
  ST_PROD      TEXT,
  ANNULLATA    INTEGER NOT NULL,
  STAMPA       INTEGER NOT NULL
);

-- Credit lines, one per client and company.
CREATE TABLE FIDI (
  COD_CLIENTE TEXT NOT NULL,
  COD_COMP    TEXT NOT NULL,
  DATA_FIDO   TEXT,
  FIDO        DECIMAL(19,4) NOT NULL,
  PRIMARY KEY (COD_CLIENTE, COD_COMP)
) WITHOUT ROWID;

-- Lines of the accounting movements; the lines of a movement balance.
CREATE TABLE MOVIMENTI (
  N_MOVIMENTO    INTEGER NOT NULL,
  RIGA           INTEGER NOT NULL,
  COD_MOVIMENTO  INTEGER NOT NULL,
  DATA_MOVIMENTO TEXT NOT NULL,
  MASTRO         TEXT NOT NULL,
  CONTO          TEXT NOT NULL,
  TIPO           TEXT NOT NULL,        -- D debit, A credit
  DESC_1         TEXT NOT NULL,
  DESC_2         TEXT NOT NULL,
  IMPORTO        DECIMAL(19,4) NOT NULL,
  PRIMARY KEY (N_MOVIMENTO, RIGA)
) WITHOUT ROWID;
