// The component on a database: MancaDB and ImpostaDB, the forms, and who hears of them.
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <string>
#include <vector>

#include "tests/component/component.h"

namespace qvn::component_test {

namespace {

using testing::ElementsAre;

/// One for each test, whose name may hold slashes.
std::string fileName() {
  std::string name = std::string("component_").append(testing::UnitTest::GetInstance()->current_test_info()->name());
  std::ranges::replace(name, '/', '_');
  return name;
}

/// A database of two companies.
class Office : public Component {
 public:
  Office() {
    std::filesystem::remove(path_);
    run("CREATE TABLE COMPAGNIE (COD_COMP TEXT, DESC_COMPAGNIA TEXT, STATO TEXT);"
        "INSERT INTO COMPAGNIE VALUES ('AOLM', 'Olmo', ''), ('ACIT', 'Città', '')");
  }
  ~Office() override { std::filesystem::remove(path_); }

  /// Writes the database, as the host does.
  void run(const char* sql) const {
    sqlite3* database = nullptr;
    EXPECT_EQ(SQLITE_OK, sqlite3_open(path_.c_str(), &database));
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(database, sql, nullptr, nullptr, nullptr)) << sqlite3_errmsg(database);
    sqlite3_close(database);
  }

  std::string connection() const { return "sqlite:" + path_; }

 private:
  std::string path_ = (std::filesystem::path(testing::TempDir()) / fileName()).string();
};

/// And a screen that does not know it yet.
class OnDatabase : public Office {
 public:
  ~OnDatabase() override { screen_.reset(); }

  const Handle& on() const { return screen_; }
  Handle quota() const { return create(screen_, "ctlQ_POLIZZE", "quota"); }

  /// Notes MancaDB, and answers it with the connection as long as there is one to answer with.
  struct Answering {
    std::string connection;
    qvn_object* events = nullptr;
    int heard = 0;

    static std::int32_t handler(void* data) {
      auto& self = *static_cast<Answering*>(data);
      ++self.heard;
      if (self.connection.empty()) return QVN_OK;
      qvn_value argument = text(self.connection);
      return qvn_call(self.events, "ImpostaDB", &argument, 1, nullptr);
    }
  };

  static Handle listen(const Handle& events, Answering& answering) {
    answering.events = events.get();
    Handle subscription;
    EXPECT_EQ(QVN_OK, qvn_on_manca_db(events.get(), Answering::handler, &answering, subscription.place()));
    return subscription;
  }

 private:
  Handle screen_ = screen();
};

using SharedEvents = OnDatabase;

TEST_F(SharedEvents, areOneObjectForAllPanels) {
  const Handle quota = create(on(), "ctlQ_POLIZZE", "quota");
  const Handle credit = create(on(), "ctlFIDO", "credit");
  const Handle events = eventsOf(quota);
  EXPECT_EQ(events.get(), eventsOf(credit).get());
  EXPECT_EQ(events.get(), eventsOf(quota).get());
}

TEST_F(SharedEvents, hearThatTheDatabaseIsMissingAndOpenIt) {
  const Handle panel = quota();
  const Handle events = eventsOf(panel);
  Answering answering{.connection = connection()};
  const Handle subscription = listen(events, answering);
  let(panel, "COD_COMP", text("AOLM"));
  EXPECT_EQ("Olmo", show(panel, "DESC_COMPAGNIA", "Caption"));
  let(panel, "COD_COMP", text("ACIT"));
  EXPECT_EQ("Città", show(panel, "DESC_COMPAGNIA", "Caption"));
  EXPECT_EQ(1, answering.heard);
}

TEST_F(SharedEvents, passOnThatNobodyOpened) {
  const Handle panel = quota();
  Answering answering;
  const Handle events = eventsOf(panel);
  const Handle subscription = listen(events, answering);
  const qvn_value code = text("AOLM");
  EXPECT_TRUE(failed(QVN_DATABASE, "quota.COD_COMP", qvn_let(panel.get(), "COD_COMP", &code)));
  EXPECT_EQ(1, answering.heard);
  EXPECT_EQ("AOLM", get(panel, "COD_COMP").text());
}

TEST_F(SharedEvents, passOnWhatTheHandlersOwnCallFailedWith) {
  const Handle panel = quota();
  Answering answering{.connection = "sqlite:" + std::string(testing::TempDir()) + "no such folder/office.db"};
  const Handle events = eventsOf(panel);
  const Handle subscription = listen(events, answering);
  const qvn_value code = text("AOLM");
  EXPECT_TRUE(failed(QVN_DATABASE, "no such folder", qvn_let(panel.get(), "COD_COMP", &code)));
}

TEST_F(SharedEvents, areNotThoseThatAHostMakes) {
  const Handle panel = quota();
  const Handle own = create(on(), "clsQVN_Eventi", nullptr);
  Answering ofOwn{.connection = connection()};
  Answering ofShared{.connection = connection()};
  const Handle events = eventsOf(panel);
  EXPECT_NE(own.get(), events.get());
  const Handle first = listen(own, ofOwn);
  const Handle second = listen(events, ofShared);
  let(panel, "COD_COMP", text("AOLM"));
  EXPECT_EQ(0, ofOwn.heard);
  EXPECT_EQ(1, ofShared.heard);
}

TEST_F(SharedEvents, openTheSharedConnectionThroughAnyInstance) {
  const Handle own = create(on(), "clsQVN_Eventi", nullptr);
  const std::string path = connection();
  qvn_value argument = text(path);
  ASSERT_EQ(QVN_OK, qvn_call(own.get(), "impostadb", &argument, 1, nullptr)) << qvn_last_message();
  const Handle panel = quota();
  let(panel, "COD_COMP", text("AOLM"));
  EXPECT_EQ("Olmo", show(panel, "DESC_COMPAGNIA", "Caption"));
  qvn_value another = text("sqlite:another");
  EXPECT_EQ(QVN_OK, qvn_call(own.get(), "ImpostaDB", &another, 1, nullptr)) << "the first one stands";
}

/// What a host hears of forms, and what it has the operator do at the list.
struct Clerk {
  std::vector<std::string> heard;
  std::vector<std::string> seen;
  std::vector<qvn_act> acts;

  static void handler(void* data, qvn_object* onScreen, const char* form, std::int32_t event) {
    auto& self = *static_cast<Clerk*>(data);
    self.heard.push_back(std::string(form) + " " + std::to_string(event));
    if (event != QVN_FORM_SHOWN) return;
    std::int32_t rows = -1;
    std::int32_t columns = -1;
    EXPECT_EQ(QVN_OK, qvn_form_size(onScreen, form, &rows, &columns));
    for (std::int32_t row = -1; row < rows; ++row) {
      std::string line;
      for (std::int32_t column = 0; column < columns; ++column) {
        Value cell;
        EXPECT_EQ(QVN_OK, qvn_form_text(onScreen, form, row, column, cell.place()));
        line += cell.text() + "|";
      }
      self.seen.push_back(line);
    }
    Value refused;
    EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "", qvn_form_text(onScreen, form, rows, 0, refused.place())));
    EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "", qvn_form_text(onScreen, form, -1, 9, refused.place())));
    EXPECT_TRUE(failed(QVN_SUBSCRIPT_OUT_OF_RANGE, "", qvn_form_text(onScreen, form, -2, 0, refused.place())));
    EXPECT_EQ(QVN_OK, qvn_form_at(onScreen, 0, refused.place()));
    EXPECT_EQ(form, refused.text());
    EXPECT_EQ(QVN_OK, qvn_operator_lay_down(onScreen, form, self.acts.data(), self.acts.size()));
  }
};

class Listing : public OnDatabase {
 public:
  Listing() {
    const Handle events = eventsOf(panel_);
    const std::string path = connection();
    qvn_value argument = text(path);
    EXPECT_EQ(QVN_OK, qvn_call(events.get(), "ImpostaDB", &argument, 1, nullptr)) << qvn_last_message();
    EXPECT_EQ(QVN_OK, qvn_on_form(on().get(), Clerk::handler, &clerk_, subscription_.place()));
    call(panel_, "Attiva");
    EXPECT_EQ(QVN_OK, qvn_operator_focus(panel_.get(), "TxtCOD_COMP"));
  }
  ~Listing() override {
    subscription_.reset();
    panel_.reset();
  }

  const Handle& panel() const { return panel_; }
  Clerk& clerk() { return clerk_; }
  std::string failedActs() const {
    Value lines;
    EXPECT_EQ(QVN_OK, qvn_operator_failed_acts(on().get(), lines.place()));
    return lines.text();
  }

 private:
  Handle panel_ = quota();
  Clerk clerk_;
  Handle subscription_;
};

TEST_F(Listing, tellsOfEachFormAndLetsTheHostReadItAndChoose) {
  clerk().acts = {{.kind = QVN_ACT_ROW, .number = 1, .text = nullptr},
                  {.kind = QVN_ACT_CLICK, .number = 0, .text = "CmdOK"}};
  type(on(), "?");
  EXPECT_THAT(clerk().heard, ElementsAre("Ricerca 0", "Lista 0", "Ricerca 3", "Lista 1", "Lista 2", "Lista 3"));
  ASSERT_EQ(3U, clerk().seen.size());
  EXPECT_EQ("Città|ACIT|", clerk().seen[1]);
  EXPECT_EQ("Olmo|AOLM|", clerk().seen[2]);
  EXPECT_EQ("AOLM", get(panel(), "COD_COMP").text());
  EXPECT_EQ("", failedActs());
}

TEST_F(Listing, doesEveryKindOfAct) {
  clerk().acts = {{.kind = QVN_ACT_COLUMN, .number = 1, .text = nullptr},
                  {.kind = QVN_ACT_KEY, .number = 0, .text = "{End}"},
                  {.kind = QVN_ACT_DOUBLE, .number = 0, .text = nullptr}};
  type(on(), "?");
  EXPECT_EQ("AOLM", get(panel(), "COD_COMP").text()) << "the column's head turns the order round";
  clerk().acts = {{.kind = QVN_ACT_CLOSE, .number = 0, .text = nullptr}};
  type(on(), "?");
  EXPECT_EQ("AOLM", get(panel(), "COD_COMP").text());
  EXPECT_EQ("", failedActs());
}

TEST_F(Listing, tellsWhichActsCouldNotBeDone) {
  clerk().acts = {{.kind = QVN_ACT_ROW, .number = 7, .text = nullptr}};
  type(on(), "?");
  EXPECT_THAT(failedActs(), testing::StartsWith("Lista: "));
  EXPECT_EQ("", failedActs());
  type(on(), "??");
  EXPECT_THAT(failedActs(),
              testing::AllOf(testing::StartsWith("Lista: "), testing::HasSubstr("\nLista: "), testing::EndsWith("\n")));
  EXPECT_EQ("", get(panel(), "COD_COMP").text());
}

TEST_F(Listing, tellsTheFormOnceWhoseKeyIsNone) {
  clerk().acts = {{.kind = QVN_ACT_KEY, .number = 0, .text = ""}};
  type(on(), "?");
  EXPECT_THAT(failedActs(), testing::StartsWith("Lista: \"\" is not one key"));
}

/// A host that opens the database and, when it hears of one thing, drops all that it has.
struct Leaving : Belongings {
  std::string connection;
  std::int32_t leavesAt = -1;

  std::int32_t open() const {
    qvn_value argument = text(connection);
    return qvn_call(events.get(), "ImpostaDB", &argument, 1, nullptr);
  }
};

TEST_F(Office, isLeftByAHostThatOpensItAndDropsAllInOneHandler) {
  Leaving host{{}, connection()};
  const auto handler = [](void* data) -> std::int32_t {
    auto& self = *static_cast<Leaving*>(data);
    const std::int32_t status = self.open();
    self.drop();
    return status;
  };
  ASSERT_EQ(QVN_OK, qvn_on_manca_db(host.events.get(), handler, &host, host.subscription.place()));
  const qvn_value code = text("AOLM");
  EXPECT_EQ(QVN_OK, qvn_let(host.panel.get(), "COD_COMP", &code)) << qvn_last_message();
  EXPECT_EQ(nullptr, host.panel.get());
  EXPECT_EQ(QVN_S_OK, DllCanUnloadNow());
}

class LeavingAForm : public Office, public testing::WithParamInterface<std::int32_t> {};

TEST_P(LeavingAForm, mayDropAllThatThereIs) {
  Leaving host{{}, connection(), GetParam()};
  ASSERT_EQ(QVN_OK, host.open()) << qvn_last_message();
  const auto handler = [](void* data, qvn_object*, const char*, std::int32_t event) {
    auto& self = *static_cast<Leaving*>(data);
    if (event == self.leavesAt) self.drop();
  };
  ASSERT_EQ(QVN_OK, qvn_on_form(host.onScreen.get(), handler, &host, host.subscription.place()));
  call(host.panel, "Attiva");
  ASSERT_EQ(QVN_OK, qvn_operator_focus(host.panel.get(), "TxtCOD_COMP"));
  const qvn_act ok{.kind = QVN_ACT_CLICK, .number = 0, .text = "CmdOK"};
  ASSERT_EQ(QVN_OK, qvn_operator_lay_down(host.onScreen.get(), "Lista", &ok, 1));
  EXPECT_NE(QVN_UNKNOWN, qvn_operator_type(host.onScreen.get(), "?"));
  EXPECT_EQ(nullptr, host.panel.get());
  EXPECT_EQ(QVN_S_OK, DllCanUnloadNow());
}

INSTANTIATE_TEST_SUITE_P(Events, LeavingAForm,
                         testing::Values(QVN_FORM_LOADED, QVN_FORM_SHOWN, QVN_FORM_HIDDEN, QVN_FORM_UNLOADED));

TEST_F(OnDatabase, readsATableAsItReadsAList) {
  run("CREATE TABLE POLIZZE (PROT INTEGER, U_CALCOLO TEXT, PL_TAF DECIMAL);INSERT INTO POLIZZE VALUES (7, '', 100);"
      "CREATE TABLE PRODUTTORI (COD_PROD TEXT, DENOMINAZIONE TEXT, PERCALT INTEGER);"
      "CREATE TABLE QUOTE_POLIZZE (PROT INTEGER, COD_COMP TEXT, COD_PROD TEXT, DELEGATARIA INTEGER, QUOTA INTEGER,"
      " PN_UFF_TAF DECIMAL, ACC_UFF_TAF DECIMAL, AQ_UFF_TAF DECIMAL);"
      "INSERT INTO QUOTE_POLIZZE VALUES (7, 'AOLM', 'NARDE009', 1, 1000, 12.5, 1, 0.5)");
  const Handle panel = create(on(), "ctlRICERCA", "found");
  const Handle events = eventsOf(panel);
  Answering answering{.connection = connection()};
  const Handle missing = listen(events, answering);
  Clerk clerk;
  Handle subscription;
  ASSERT_EQ(QVN_OK, qvn_on_form(on().get(), Clerk::handler, &clerk, subscription.place()));
  let(panel, "PROT", number(7));
  ASSERT_EQ(QVN_OK, qvn_operator_click(panel.get(), "CmdCOMPAGNIE")) << qvn_last_message();
  EXPECT_THAT(clerk.seen, ElementsAre("Codice|Denominazione|PL|PA|", "AOLM|Olmo|€ 100,00|€ 14,00|"));
}

}  // namespace

}  // namespace qvn::component_test
