// The office's own connection to its database, by which it reads records and writes them.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <sqlite3.h>
#include <string>
#include <vector>

#include "hosts/ufficio/row.h"
#include "hosts/ufficio/store_failure.h"

namespace qvn::ufficio {

/// An SQLite file. It is opened when it is first used and never made; where it cannot be opened every use tries again.
/// Everything fails with StoreFailure. A use waits for another program's writing for kBusyMilliseconds and works for
/// kWorkMilliseconds at most: the window waits with it.
class Store {
 public:
  static constexpr int kBusyMilliseconds = 1000;
  static constexpr int kWorkMilliseconds = 3000;

  explicit Store(std::string path) : path_(std::move(path)) {}

  const std::string& path() const { return path_; }
  /// Opens the file, if it is not open, and looks at it.
  void open();
  bool canOpen() noexcept;
  /// How often the file was opened: more than once where it had gone, or another came into its place.
  int openings() const { return openings_; }
  /// Whether another connection has written since this was asked last. False where the file cannot be read.
  bool othersWrote() noexcept;

  /// The rows that a statement gives, its parameters ?1, ?2, … bound in their order. holds() of text_search.h is known.
  std::vector<Row> rows(const std::string& sql, std::span<const Value> parameters = {});
  bool hasTable(std::string_view name);
  /// Runs a statement that gives no rows; how many rows it has changed.
  std::int64_t run(const std::string& sql, std::span<const Value> parameters = {});

  /// All that is run while one lives is written together by commit(), or not at all.
  class Transaction {
   public:
    explicit Transaction(Store& store);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

   private:
    Store& store_;
    bool open_ = true;
  };

 private:
  struct Closing {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  using Statement = std::unique_ptr<sqlite3_stmt, Closing>;

  Statement prepared(const std::string& sql, std::span<const Value> parameters);
  bool step(sqlite3_stmt& statement);

  /// Closes a file that is no longer in its place, between two transactions.
  void leaveWhatHasMoved();

  std::string path_;
  std::unique_ptr<sqlite3, Closing> database_;
  int openings_ = 0;
  std::int64_t version_ = 0;  // of what the file held when othersWrote() was asked last
};

}  // namespace qvn::ufficio
