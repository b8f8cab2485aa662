-- The registers that are the same at every scale. Codes are no longer than the entry fields allow.

INSERT INTO RAMI (COD_RAMO, DESCRIZIONE, TIPO_SK, competenze) VALUES
  ('IN', 'Incendio', 1, 1),
  ('FU', 'Furto', 1, 1),
  ('RG', 'Responsabilità Civile Generale', 1, 1),
  ('IF', 'Infortuni', 1, 0),
  ('MA', 'Malattia', 1, 0),
  ('TR', 'Trasporti', 1, 1),
  ('CR', 'Cristalli', 1, 0),
  ('RA', 'RC Auto', 2, 1),
  ('AR', 'Auto Rischi Diversi', 2, 1),
  ('VI', 'Vita', 3, 0),
  ('PI', 'Previdenza Integrativa', 3, 0),
  ('CA', 'Cauzioni', 4, 1),
  ('FD', 'Fideiussioni', 4, 1);

INSERT INTO SOTTORAMI (COD_SRAMO, DESCRIZIONE, sigla, COD_RAMO) VALUES
  (10, 'Incendio Civile', 'INCIV', 'IN'),
  (11, 'Incendio Attività Industriali', 'ININD', 'IN'),
  (20, 'Furto Abitazione', 'FUAB', 'FU'),
  (21, 'Furto e Rapina Aziende', 'FUAZ', 'FU'),
  (30, 'RC della Famiglia', 'RCFAM', 'RG'),
  (31, 'RC Professionale', 'RCPRO', 'RG'),
  (32, 'RC dell''Albergatore', 'RCALB', 'RG'),
  (40, 'Infortuni Individuale', 'INFIN', 'IF'),
  (41, 'Infortuni Cumulativa', 'INFCU', 'IF'),
  (50, 'Rimborso Spese Mediche', 'RSM', 'MA'),
  (60, 'Merci Trasportate', 'MERCI', 'TR'),
  (70, 'Cristalli e Insegne', 'CRIST', 'CR'),
  (80, 'RC Auto Autovetture', 'RCAV', 'RA'),
  (81, 'RC Auto Autocarri', 'RCAC', 'RA'),
  (85, 'Corpi di Veicoli Terrestri', 'CVT', 'AR'),
  (90, 'Vita Caso Morte', 'VCM', 'VI'),
  (91, 'Vita Mista', 'VM', 'VI'),
  (95, 'Fondo Pensione Aperto', 'FPA', 'PI'),
  (100, 'Cauzione Appalti', 'CAPP', 'CA'),
  (101, 'Cauzione Oneri di Urbanizzazione', 'CURB', 'CA'),
  (102, 'Cauzione Rimborsi IVA', 'CIVA', 'CA'),
  (110, 'Fideiussione d''Affitto', 'FIDAFF', 'FD');

INSERT INTO TIPI_IVA (COD_IVA, DESCRIZIONE, IVA, Deb_Dec) VALUES
  (1, 'Fuori campo IVA', 0, 0),
  (4, 'Aliquota minima', 4, 100),
  (5, 'Aliquota ridotta sociale', 5, 100),
  (10, 'Aliquota ridotta', 10, 100),
  (20, 'Aliquota ordinaria fino al 2011', 20, 100),
  (22, 'Aliquota ordinaria', 22, 100),
  (40, 'Ordinaria, autovetture ad uso promiscuo', 22, 40),
  (50, 'Ordinaria, telefonia', 22, 50),
  (80, 'Esente art. 10', 0, 0),
  (81, 'Non imponibile art. 8', 0, 0),
  (99, 'Ordinaria, indetraibile', 22, 0);

INSERT INTO TIPI_MOVIMENTI (COD_MOVIMENTO, DESCRIZIONE) VALUES
  (1, 'Incasso titolo'),
  (2, 'Rimessa alla compagnia'),
  (3, 'Pagamento provvigioni'),
  (4, 'Fattura fornitore'),
  (5, 'Pagamento fornitore'),
  (6, 'Giroconto'),
  (7, 'Versamento ritenute d''acconto'),
  (8, 'Liquidazione IVA'),
  (90, 'Chiusura dell''esercizio'),
  (99, 'Apertura dell''esercizio');

INSERT INTO GRUPPI (COD_GRUPPO, DENOMINAZIONE) VALUES
  (1, 'Gruppo Artigiani'),
  (2, 'Gruppo Commercianti'),
  (3, 'Gruppo dell''Università'),
  (4, 'Gruppo Costruttori Edili'),
  (5, 'Gruppo Medici e Odontoiatri'),
  (6, 'Gruppo Autotrasportatori'),
  (7, 'Gruppo Comunità Montane'),
  (120, 'Gruppo Dipendenti');

INSERT INTO CLAUSOLARI (COD_CLAUS, DENOMINAZIONE, DESCRIZIONE, FILE) VALUES
  ('A01', 'Tacito rinnovo', 'Proroga annuale in mancanza di disdetta', 'TACITO.RTF'),
  ('A02', 'Clausola broker', 'Gestione del contratto affidata all''ufficio', 'BROKER.RTF'),
  ('B01', 'Coassicurazione', 'Delega alla compagnia delegataria', 'COASS.RTF'),
  ('B02', 'Franchigia assoluta', 'Parte del danno a carico dell''assicurato', 'FRANCH.RTF'),
  ('C01', 'Rivalsa', 'Rinuncia alla rivalsa verso i familiari', 'RIVALSA.RTF'),
  ('C02', 'Proprietà', 'Estensione alla proprietà dei fabbricati', 'PROPR.RTF'),
  ('D01', 'Svincolo', 'Svincolo a presentazione dell''originale', 'SVINCOLO.RTF');

INSERT INTO STAMPE_BONIFICO (COD_STAMPA, DESCRIZIONE) VALUES
  ('BON1', 'Bonifico ordinario'),
  ('BON2', 'Bonifico urgente'),
  ('BONE', 'Bonifico verso l''estero'),
  ('DIS', 'Distinta di più bonifici');

INSERT INTO FORNITORI (CODICE, DENOMINAZIONE) VALUES
  ('F001', 'Cartoleria D''Amico'),
  ('F002', 'Tipografia Nardò'),
  ('F003', 'Pulizie Città Splendida S.r.l.'),
  ('F004', 'Energia dell''Adriatico S.p.A.'),
  ('F005', 'Telefonia Belforte S.p.A.'),
  ('F006', 'Studio Legale De Santis'),
  ('F007', 'Immobiliare Sant''Onofrio S.n.c.'),
  ('F008', 'Assistenza Macchine Ufficio Perù'),
  ('F009', 'Autonoleggio Valcava'),
  ('F010', 'Periti Associati Forlì');

INSERT INTO CODICI_ATTIVITA (COD, DESCRIZIONE) VALUES
  ('01', 'Agricoltura'),
  ('10', 'Industria alimentare'),
  ('25', 'Lavorazione dei metalli'),
  ('41', 'Costruzione di edifici'),
  ('45', 'Commercio e riparazione d''autoveicoli'),
  ('49', 'Trasporto terrestre'),
  ('55', 'Alloggio'),
  ('69', 'Attività legali e contabili'),
  ('86', 'Assistenza sanitaria'),
  ('P', 'Privati');

INSERT INTO SOTTOCODICI_ATTIVITA (COD, S_COD, DESCRIZIONE) VALUES
  ('01', '10', 'Coltivazione della vite'),
  ('01', '20', 'Coltivazione dell''olivo'),
  ('01', '40', 'Allevamento'),
  ('10', '10', 'Panifici e pasticcerie'),
  ('10', '20', 'Conserve'),
  ('25', '10', 'Carpenteria'),
  ('25', '60', 'Tornitura'),
  ('41', '20', 'Edilizia residenziale'),
  ('45', '10', 'Vendita d''autoveicoli'),
  ('45', '20', 'Officine'),
  ('49', '40', 'Autotrasporto di merci'),
  ('55', '10', 'Alberghi'),
  ('55', '20', 'Affittacamere'),
  ('69', '10', 'Studi legali'),
  ('69', '20', 'Studi commerciali e società di revisione'),
  ('86', '20', 'Medici e odontoiatri'),
  ('P', '10', 'Lavoratori dipendenti'),
  ('P', '20', 'Pensionati');

INSERT INTO MASTRI (MASTRO, DESCRIZIONE) VALUES
  ('0101', 'Immobilizzazioni'),
  ('0201', 'Cassa'),
  ('0202', 'Banche'),
  ('0301', 'Clienti'),
  ('0302', 'Compagnie'),
  ('0303', 'Produttori'),
  ('0401', 'Fornitori'),
  ('0402', 'Erario'),
  ('0501', 'Capitale e riserve'),
  ('0601', 'Costi dell''ufficio'),
  ('0602', 'Provvigioni passive'),
  ('0701', 'Provvigioni attive'),
  ('07', 'Ricavi diversi');

INSERT INTO CEE (MASTRO, DESCRIZIONE) VALUES
  ('AB2', 'Immobilizzazioni materiali'),
  ('AC2', 'Crediti'),
  ('AC4', 'Disponibilità liquide'),
  ('PA1', 'Capitale'),
  ('PA4', 'Riserve'),
  ('PD7', 'Debiti verso fornitori'),
  ('PD12', 'Debiti tributari'),
  ('PD14', 'Altri debiti'),
  ('EA1', 'Ricavi delle prestazioni'),
  ('EA5', 'Altri ricavi e proventi'),
  ('EB7', 'Costi per servizi'),
  ('EB14', 'Oneri diversi di gestione');

INSERT INTO CONTI (MASTRO, CONTO, DESCRIZIONE, CEE) VALUES
  ('0101', '000001', 'Mobili d''ufficio', 'AB2'),
  ('0101', '000002', 'Macchine elettroniche', 'AB2'),
  ('0101', '000003', 'Autovetture', 'AB2'),
  ('0201', '000001', 'Cassa contanti', 'AC4'),
  ('0201', '000002', 'Cassa assegni', 'AC4'),
  ('0202', '000001', 'Banca del Colle c/c', 'AC4'),
  ('0202', '000002', 'Banca della Città c/premi', 'AC4'),
  ('0202', 'SEP001', 'Conto separato art. 117', 'AC4'),
  ('0301', '000001', 'Clienti per premi', 'AC2'),
  ('0301', '000002', 'Clienti morosi', 'AC2'),
  ('0302', '000001', 'Compagnie per premi', 'PD14'),
  ('0302', '000002', 'Compagnie per provvigioni', 'AC2'),
  ('0303', '000001', 'Produttori per provvigioni', 'PD14'),
  ('0303', '000002', 'Anticipi a produttori', 'AC2'),
  ('0401', '000001', 'Fornitori diversi', 'PD7'),
  ('0401', '000002', 'Fatture da ricevere', 'PD7'),
  ('0402', '000001', 'IVA', 'PD12'),
  ('0402', '000002', 'Ritenute d''acconto', 'PD12'),
  ('0402', '000003', 'Imposte dell''esercizio', 'PD12'),
  ('0501', '000001', 'Capitale sociale', 'PA1'),
  ('0501', '000002', 'Riserva legale', 'PA4'),
  ('0601', '000001', 'Affitti', 'EB7'),
  ('0601', '000002', 'Energia elettrica', 'EB7'),
  ('0601', '000003', 'Spese telefoniche', 'EB7'),
  ('0601', '000004', 'Cancelleria', 'EB7'),
  ('0601', '000005', 'Pubblicità', 'EB7'),
  ('0601', 'V', 'Spese varie', 'EB14'),
  ('0602', '000001', 'Provvigioni a produttori', 'EB7'),
  ('0701', '000001', 'Provvigioni da compagnie', 'EA1'),
  ('0701', '000002', 'Sovrapprovvigioni', 'EA1'),
  ('07', '1', 'Interessi attivi', 'EA5'),
  ('07', '2', 'Abbuoni', 'EA5');
