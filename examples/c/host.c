// A host in plain C, without a screen: an office worker enters a new participant of a coinsured policy and its
// commission, and the host stores the row.
//
//   host DATABASE                    linked with the component
//   loading_host DATABASE LIBRARY    made of the same source with HOST_LOADS_LIBRARY: loads the component when it runs
//
// DATABASE is the sample office's, as qvn-campione makes it.
#include <inttypes.h>
#include <sqlite3.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "component/qvn.h"

// The functions of the component that this host uses.

#define FUNCTIONS(F)       \
  F(DllGetClassObject)     \
  F(DllCanUnloadNow)       \
  F(qvn_last_message)      \
  F(qvn_release)           \
  F(qvn_value_clear)       \
  F(qvn_value_convert)     \
  F(qvn_screen_create)     \
  F(qvn_screen_today)      \
  F(qvn_create)            \
  F(qvn_get)               \
  F(qvn_let)               \
  F(qvn_call)              \
  F(qvn_on_manca_db)       \
  F(qvn_on_changed)        \
  F(qvn_on_failed)         \
  F(qvn_on_form)           \
  F(qvn_operator_type)     \
  F(qvn_operator_leave)    \
  F(qvn_operator_lay_down) \
  F(qvn_screen_focused)    \
  F(qvn_form_size)         \
  F(qvn_form_text)         \
  F(qvn_widget_get)

#define POINTER(name) __typeof__(name)* name;
static struct { FUNCTIONS(POINTER) } lib;

static void fail(const char* what, const char* why) {
  fprintf(stderr, "%s: %s\n", what, why);
  exit(1);
}

#ifdef HOST_LOADS_LIBRARY
#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
static void* opened(const char* path) { return (void*)LoadLibraryA(path); }
static void* found(void* library, const char* name) { return (void*)GetProcAddress((HMODULE)library, name); }
static void closed(void* library) { FreeLibrary((HMODULE)library); }
#else
#include <dlfcn.h>
static void* opened(const char* path) { return dlopen(path, RTLD_NOW | RTLD_LOCAL); }
static void* found(void* library, const char* name) { return dlsym(library, name); }
static void closed(void* library) { dlclose(library); }
#endif

static void* library;

static void take(const char* name, void* function, size_t size) {
  void* address = found(library, name);
  if (address == NULL) fail(name, "the library has no such function");
  memcpy(function, &address, size);
}

#define TAKE(name) take(#name, &lib.name, sizeof lib.name);
static void open_library(const char* path) {
  library = path != NULL ? opened(path) : NULL;
  if (library == NULL) fail(path != NULL ? path : "LIBRARY", "cannot be loaded");
  FUNCTIONS(TAKE)
}

static void close_library(void) {
  if (lib.DllCanUnloadNow() == QVN_S_OK) closed(library);
}
#else
#define TAKE(name) lib.name = name;
static void open_library(const char* path) {
  (void)path;
  FUNCTIONS(TAKE)
}
static void close_library(void) {}
#endif

// Calls that succeed or end the program.

static void must(int32_t status) {
  if (status != QVN_OK) fail("host", lib.qvn_last_message());
}

static qvn_value text_value(const char* text) {
  qvn_value value = {.kind = QVN_TEXT};
  value.as.text.data = text;
  value.as.text.length = strlen(text);
  return value;
}

static qvn_value number_value(int32_t number) {
  qvn_value value = {.kind = QVN_INT32};
  value.as.int32 = number;
  return value;
}

static qvn_object* create(qvn_object* screen, const char* class_name, const char* name) {
  void* panels = NULL;
  qvn_object* panel = NULL;
  if (lib.DllGetClassObject(class_name, QVN_CLASS_INTERFACE, &panels) != QVN_S_OK) fail(class_name, "is no class");
  must(lib.qvn_create((qvn_object*)panels, screen, name, &panel));
  lib.qvn_release((qvn_object*)panels);
  return panel;
}

static void call(qvn_object* object, const char* method) { must(lib.qvn_call(object, method, NULL, 0, NULL)); }

static void let(qvn_object* panel, const char* name, qvn_value value) { must(lib.qvn_let(panel, name, &value)); }

/// A property as text, which the caller clears.
static qvn_value get_text(qvn_object* panel, const char* name) {
  qvn_value value = {0};
  qvn_value text = {0};
  must(lib.qvn_get(panel, name, &value));
  must(lib.qvn_value_convert(&value, QVN_TEXT, &text));
  lib.qvn_value_clear(&value);
  return text;
}

static void print_widget(qvn_object* panel, const char* widget, const char* property) {
  qvn_value text = {0};
  must(lib.qvn_widget_get(panel, widget, property, &text));
  printf("  %s: %s\n", widget, text.as.text.data);
  lib.qvn_value_clear(&text);
}

static void print_number(qvn_object* panel, const char* widget, const char* property) {
  qvn_value text = {0};
  must(lib.qvn_widget_get(panel, widget, property, &text));
  must(lib.qvn_value_convert(&text, QVN_TEXT, &text));
  printf("  %s, %s: %s\n", widget, property, text.as.text.data);
  lib.qvn_value_clear(&text);
}

static void print_focus(qvn_object* screen) {
  qvn_value place = {0};
  must(lib.qvn_screen_focused(screen, &place));
  printf("focus: %s\n", place.as.text.data);
  lib.qvn_value_clear(&place);
}

// What the host hears.

struct host {
  const char* path;
  qvn_object* screen;
  /// The event object of all panels.
  qvn_value events;
  qvn_object* subscriptions[4];
};

static int32_t QVN_CALL on_manca_db(void* data) {
  const struct host* host = data;
  char connection[1024];
  snprintf(connection, sizeof connection, "sqlite:%s", host->path);
  qvn_value argument = text_value(connection);
  printf("MancaDB: the host gives the database\n");
  return lib.qvn_call(host->events.as.object, "ImpostaDB", &argument, 1, NULL);
}

static int32_t QVN_CALL on_changed(void* data, qvn_object* panel, const char* name) {
  (void)data;
  (void)panel;
  printf("changed: %s\n", name);
  return QVN_OK;
}

static void QVN_CALL on_failed(void* data, qvn_object* panel, const char* widget, const char* event, int32_t status,
                               const char* message) {
  (void)data;
  (void)panel;
  (void)status;
  printf("failed: %s of %s, %s\n", event, widget, message);
}

/// The operator takes the row of a list that says the name.
static void QVN_CALL on_form(void* data, qvn_object* screen, const char* form, int32_t event) {
  static const char* const events[] = {"loaded", "shown", "hidden", "unloaded"};
  const char* wanted = data;
  int32_t rows = 0;
  int32_t columns = 0;
  printf("form %s: %s\n", form, events[event]);
  if (event != QVN_FORM_SHOWN) return;
  must(lib.qvn_form_size(screen, form, &rows, &columns));
  for (int32_t row = 0; row < rows; ++row) {
    qvn_value name = {0};
    must(lib.qvn_form_text(screen, form, row, 0, &name));
    if (strcmp(name.as.text.data, wanted) == 0) {
      const qvn_act acts[] = {{QVN_ACT_ROW, row, NULL}, {QVN_ACT_CLICK, 0, "CmdOK"}};
      printf("  row %" PRId32 " of %" PRId32 ": %s\n", row, rows, name.as.text.data);
      must(lib.qvn_operator_lay_down(screen, form, acts, 2));
    }
    lib.qvn_value_clear(&name);
  }
}

// The host's own database.

static void must_sql(sqlite3* database, int status) {
  if (status != SQLITE_OK && status != SQLITE_ROW && status != SQLITE_DONE) fail("database", sqlite3_errmsg(database));
}

enum { POLICY = 1 };

struct policy {
  /// Net premium, accessories and gross premium, a row each: TAF, what goes to the lead coinsurer alone, of which this
  /// office keeps none, and TRF, in ten-thousandths.
  int64_t figures[3][3];
  /// Which of the two holds now: TRF, or else TAF.
  int is_trf;
};

static void read_policy(sqlite3* database, struct policy* policy) {
  sqlite3_stmt* query = NULL;
  must_sql(database, sqlite3_prepare_v2(database,
                                        "SELECT PN_TAF, 0, PN_TRF, ACC_TAF, 0, ACC_TRF, PL_TAF, 0, PL_TRF, "
                                        "U_CALCOLO IS 'TRF' FROM POLIZZE WHERE PROT = ?1",
                                        -1, &query, NULL));
  sqlite3_bind_int(query, 1, POLICY);
  if (sqlite3_step(query) != SQLITE_ROW) fail("database", "there is no such policy");
  for (int i = 0; i < 9; ++i) {
    qvn_value number = {.kind = QVN_DOUBLE};
    number.as.number = sqlite3_column_double(query, i);
    must(lib.qvn_value_convert(&number, QVN_CURRENCY, &number));
    policy->figures[i / 3][i % 3] = number.as.currency;
  }
  policy->is_trf = sqlite3_column_int(query, 9);
  sqlite3_finalize(query);
}

static const char kInsert[] =
    "INSERT INTO QUOTE_POLIZZE (PROT, COD_COMP, COD_PROD, COD_PROD_ALT, N_POLIZZA, QUOTA, DELEGATARIA, D_RIMESSA, "
    "PN_UFF_TAF, ACC_UFF_TAF, AQ_UFF_TAF, pn_prod_TAF, acc_prod_TAF, aq_prod_TAF, pn_prod_ALT_TAF, acc_prod_ALT_TAF, "
    "aq_prod_ALT_TAF, PN_UFF_TRF, ACC_UFF_TRF, AQ_UFF_TRF, pn_prod_TRF, acc_prod_TRF, aq_prod_TRF, pn_prod_ALT_TRF, "
    "acc_prod_ALT_TRF, aq_prod_ALT_TRF) "
    "VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, date('1899-12-30', ?8 || ' days'), 0, 0, 0, 0, 0, 0, 0, 0, 0, "
    "0, 0, 0, 0, 0, 0, 0, 0, 0)";

#define UPDATE(FAMILY)                                                                                                \
  "UPDATE QUOTE_POLIZZE SET PN_UFF_" FAMILY " = ?3, ACC_UFF_" FAMILY " = ?4, AQ_UFF_" FAMILY " = ?5, pn_prod_" FAMILY \
  " = ?6, acc_prod_" FAMILY " = ?7, aq_prod_" FAMILY " = ?8, pn_prod_ALT_" FAMILY " = ?9, acc_prod_ALT_" FAMILY       \
  " = ?10, aq_prod_ALT_" FAMILY " = ?11 WHERE PROT = ?1 AND COD_COMP = ?2"

/// The properties behind the columns of the first statement, from ?2 on.
static const char* const kQuotaTexts[] = {"COD_COMP", "COD_PROD", "COD_PROD_ALT", "N_POLIZZA"};
/// And of the second, from ?3 on.
static const char* const kAmounts[] = {"PN_UFF",  "ACC_UFF",     "AQ_UFF",       "PN_PROD",    "ACC_PROD",
                                       "AQ_PROD", "PN_PROD_ALT", "ACC_PROD_ALT", "AQ_PROD_ALT"};
static const char* const kPercents[] = {"P_PN_UFF",  "P_ACC_UFF",     "P_AQ_UFF",       "P_PN_PROD",    "P_ACC_PROD",
                                        "P_AQ_PROD", "P_PN_PROD_ALT", "P_ACC_PROD_ALT", "P_AQ_PROD_ALT"};
/// The summary; the table has no column for it, nor for the percents.
static const char* const kSummary[] = {"P_ATTIVE", "P_PASSIVE"};
#define COUNT(array) (int)(sizeof(array) / sizeof *(array))

static void print_properties(qvn_object* panel, const char* const* names, int count) {
  for (int i = 0; i < count; ++i) {
    qvn_value text = get_text(panel, names[i]);
    printf("  %s = %s\n", names[i], text.as.text.data);
    lib.qvn_value_clear(&text);
  }
}

static int32_t get_number(qvn_object* panel, const char* name) {
  qvn_value value = {0};
  must(lib.qvn_get(panel, name, &value));
  must(lib.qvn_value_convert(&value, QVN_INT32, &value));
  return value.as.int32;
}

static void bind_text(sqlite3_stmt* statement, int place, qvn_object* panel, const char* name) {
  qvn_value text = get_text(panel, name);
  sqlite3_bind_text(statement, place, text.as.text.data, (int)text.as.text.length, SQLITE_TRANSIENT);
  lib.qvn_value_clear(&text);
}

static void store_quota(sqlite3* database, qvn_object* quota) {
  sqlite3_stmt* insert = NULL;
  must_sql(database, sqlite3_prepare_v2(database, kInsert, -1, &insert, NULL));
  int place = 1;
  sqlite3_bind_int(insert, place++, POLICY);
  for (int i = 0; i < COUNT(kQuotaTexts); ++i) bind_text(insert, place++, quota, kQuotaTexts[i]);
  sqlite3_bind_int(insert, place++, get_number(quota, "QUOTA"));
  sqlite3_bind_int(insert, place++, get_number(quota, "DELEGATARIA"));
  qvn_value date = {0};
  must(lib.qvn_get(quota, "D_RIMESSA", &date));
  must(lib.qvn_value_convert(&date, QVN_DATE, &date));
  sqlite3_bind_int(insert, place++, date.as.date);
  must_sql(database, sqlite3_step(insert));
  sqlite3_finalize(insert);
}

static void store_commission(sqlite3* database, const struct policy* policy, qvn_object* quota,
                             qvn_object* commission) {
  sqlite3_stmt* update = NULL;
  must_sql(database, sqlite3_prepare_v2(database, policy->is_trf ? UPDATE("TRF") : UPDATE("TAF"), -1, &update, NULL));
  int place = 1;
  sqlite3_bind_int(update, place++, POLICY);
  bind_text(update, place++, quota, "COD_COMP");
  for (int i = 0; i < COUNT(kAmounts); ++i) {
    qvn_value amount = {0};
    must(lib.qvn_get(commission, kAmounts[i], &amount));
    must(lib.qvn_value_convert(&amount, QVN_DOUBLE, &amount));
    sqlite3_bind_double(update, place++, amount.as.number);
  }
  must_sql(database, sqlite3_step(update));
  sqlite3_finalize(update);
}

static void print_row(sqlite3* database, qvn_object* quota) {
  sqlite3_stmt* query = NULL;
  must_sql(database, sqlite3_prepare_v2(database, "SELECT * FROM QUOTE_POLIZZE WHERE PROT = ?1 AND COD_COMP = ?2", -1,
                                        &query, NULL));
  sqlite3_bind_int(query, 1, POLICY);
  bind_text(query, 2, quota, "COD_COMP");
  if (sqlite3_step(query) != SQLITE_ROW) fail("database", "the row is not there");
  for (int i = 0; i < sqlite3_column_count(query); ++i) {
    printf("  %s = %s\n", sqlite3_column_name(query, i), (const char*)sqlite3_column_text(query, i));
  }
  sqlite3_finalize(query);
}

static int count_rows(sqlite3* database) {
  sqlite3_stmt* query = NULL;
  must_sql(database,
           sqlite3_prepare_v2(database, "SELECT count(*) FROM QUOTE_POLIZZE WHERE PROT = ?1", -1, &query, NULL));
  sqlite3_bind_int(query, 1, POLICY);
  must_sql(database, sqlite3_step(query));
  const int count = sqlite3_column_int(query, 0);
  sqlite3_finalize(query);
  return count;
}

// The road of the request.

static qvn_object* enter_quota(struct host* host, const struct policy* policy) {
  qvn_object* quota = create(host->screen, "ctlQ_POLIZZE", "quota");
  must(lib.qvn_get(quota, "Events", &host->events));
  must(lib.qvn_on_manca_db(host->events.as.object, on_manca_db, host, &host->subscriptions[0]));
  must(lib.qvn_on_changed(quota, on_changed, NULL, &host->subscriptions[1]));
  must(lib.qvn_on_failed(quota, on_failed, NULL, &host->subscriptions[2]));
  must(lib.qvn_on_form(host->screen, on_form, "Assicurazioni del Grifone", &host->subscriptions[3]));

  qvn_value all = {.kind = QVN_ARRAY};
  all.as.array.values = &policy->figures[0][0];
  all.as.array.rows = 3;
  all.as.array.columns = 3;
  must(lib.qvn_call(quota, "Imposta_VALORI", &all, 1, NULL));
  call(quota, "Attiva");
  print_focus(host->screen);
  print_number(quota, "TxtQUOTA", "BackColor");
  print_widget(quota, "TxtQUOTA", "Text");
  print_number(quota, "TxtQUOTA", "SelLength");

  static const char* const keys[] = {"2", "5", "0", "{Enter}", "?"};
  for (int i = 0; i < COUNT(keys); ++i) {
    printf("typed: %s\n", keys[i]);
    must(lib.qvn_operator_type(host->screen, keys[i]));
    if (i < 3) {
      print_widget(quota, "TAF(0)", "Caption");
      print_widget(quota, "TRF(0)", "Caption");
    }
  }
  print_widget(quota, "TxtCOD_COMP", "Text");
  print_widget(quota, "DESC_COMPAGNIA", "Caption");
  must(lib.qvn_operator_type(host->screen, "{Enter}NARDE009{Enter}ORSRO047{Enter}83/00000157{Enter}{Enter}"));
  call(quota, "Disattiva");
  return quota;
}

static qvn_object* enter_commission(const struct host* host, const struct policy* policy, qvn_object* quota) {
  static const char* const codes[][2] = {
      {"COD_COMPAGNIA", "COD_COMP"}, {"COD_PRODUTTORE", "COD_PROD"}, {"COD_PRODUTTORE_ALT", "COD_PROD_ALT"}};
  static const char* const usual[] = {"10", "10", "5", "6", "5", "2", "3", "2", "1"};
  qvn_object* commission = create(host->screen, "ctlPROV_POLIZZE", "commission");
  for (int i = 0; i < COUNT(codes); ++i) {
    qvn_value code = {0};
    must(lib.qvn_get(quota, codes[i][1], &code));
    let(commission, codes[i][0], code);
    lib.qvn_value_clear(&code);
  }
  let(commission, "DELEGATARIA", number_value(get_number(quota, "DELEGATARIA")));

  // The figures that hold now, and the part of the lead coinsurer.
  int64_t premiums[3][2];
  for (int i = 0; i < 3; ++i) {
    premiums[i][0] = policy->figures[i][policy->is_trf ? 2 : 0];
    premiums[i][1] = policy->figures[i][1];
  }
  qvn_value all = {.kind = QVN_ARRAY};
  all.as.array.values = &premiums[0][0];
  all.as.array.rows = 3;
  all.as.array.columns = 2;
  must(lib.qvn_call(commission, "VALORI", &all, 1, NULL));
  let(commission, "QUOTA", number_value(get_number(quota, "QUOTA")));
  print_widget(commission, "LblPN", "Caption");
  print_widget(commission, "LblACC", "Caption");
  print_widget(commission, "LblPL", "Caption");

  let(commission, "CALC_PROD", number_value(1));
  let(commission, "CALC_PROD_ALT", number_value(1));
  // A new participant has no amounts yet: they follow from the percents.
  for (int i = 0; i < COUNT(kPercents); ++i) let(commission, kPercents[i], text_value(usual[i]));
  call(commission, "Attiva");
  print_focus(host->screen);
  must(lib.qvn_operator_type(host->screen, "12,5"));
  print_widget(commission, "TxtPN_UFF", "Text");
  must(lib.qvn_operator_leave(host->screen));
  print_widget(commission, "PROVV_ATTIVE", "Caption");
  print_widget(commission, "PROVV_PASSIVE", "Caption");
  print_widget(commission, "RIT_ACCONTO", "Caption");
  return commission;
}

int main(int argc, char** argv) {
  struct host host = {.path = argc > 1 ? argv[1] : ""};
  sqlite3* database = NULL;
  struct policy policy;
  open_library(argc > 2 ? argv[2] : NULL);
  must_sql(database, sqlite3_open_v2(host.path, &database, SQLITE_OPEN_READWRITE, NULL));
  read_policy(database, &policy);

  must(lib.qvn_screen_create(&host.screen));
  must(lib.qvn_screen_today(host.screen, 46347));  // 21/11/2026
  qvn_object* quota = enter_quota(&host, &policy);
  printf("to be stored:\n");
  print_properties(quota, kQuotaTexts, COUNT(kQuotaTexts));
  static const char* const others[] = {"QUOTA", "DELEGATARIA", "D_RIMESSA"};
  print_properties(quota, others, COUNT(others));
  store_quota(database, quota);
  printf("the row is stored, the %d. of the policy\n", count_rows(database));

  qvn_object* commission = enter_commission(&host, &policy, quota);
  printf("to be stored:\n");
  print_properties(commission, kAmounts, COUNT(kAmounts));
  print_properties(commission, kPercents, COUNT(kPercents));
  print_properties(commission, kSummary, COUNT(kSummary));
  store_commission(database, &policy, quota, commission);
  call(commission, "Disattiva");
  printf("stored:\n");
  print_row(database, quota);

  for (int i = 0; i < COUNT(host.subscriptions); ++i) lib.qvn_release(host.subscriptions[i]);
  lib.qvn_value_clear(&host.events);
  lib.qvn_release(commission);
  lib.qvn_release(quota);
  printf("may be unloaded: %s\n", lib.DllCanUnloadNow() == QVN_S_OK ? "yes" : "not yet");
  lib.qvn_release(host.screen);
  printf("may be unloaded: %s\n", lib.DllCanUnloadNow() == QVN_S_OK ? "yes" : "not yet");
  close_library();
  sqlite3_close(database);
  return 0;
}
