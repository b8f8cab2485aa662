#include "tests/office/office.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "platforms/sqlite/driver.h"

namespace office_test {

Folder::Folder() {
  std::string name = (std::filesystem::temp_directory_path() / "qvn-office-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder " + name);
  path_ = name;
}

Folder::~Folder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::vector<std::string> Folder::names() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(path_))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

Answer campione(std::string_view arguments, std::string_view before) {
  const Folder answers;
  std::string command(before);
  command.append(" '" QVN_CAMPIONE "' ").append(arguments);
  command.append(" >'").append(answers.file("output")).append("' 2>'").append(answers.file("errors")).append("'");
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), contentsOf(answers.file("output")),
          contentsOf(answers.file("errors"))};
}

std::string contentsOf(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void writeFile(const std::string& file, std::string_view contents) {
  std::ofstream stream(file, std::ios::binary);
  stream << contents;
  if (!stream.flush()) throw std::runtime_error("cannot write " + file);
}

Database::Database(const std::string& file) {
  sqlite3* handle = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr);
  handle_.reset(handle);
  if (result != SQLITE_OK) throw std::runtime_error(file + ": " + sqlite3_errmsg(handle));
}

Database::Statement Database::prepare(std::string_view sql) const {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(handle_.get(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr) != SQLITE_OK) {
    throw std::runtime_error(std::string(sqlite3_errmsg(handle_.get())).append(", at: ").append(sql));
  }
  return Statement(statement);
}

bool Database::step(const Statement& statement) const {
  const int result = sqlite3_step(statement.get());
  if (result != SQLITE_ROW && result != SQLITE_DONE) {
    throw std::runtime_error(
        std::string(sqlite3_errmsg(handle_.get())).append(", at: ").append(sqlite3_sql(statement.get())));
  }
  return result == SQLITE_ROW;
}

std::vector<Row> Database::rows(std::string_view sql) const {
  const Statement statement = prepare(sql);
  std::vector<Row> rows;
  while (step(statement)) {
    Row& row = rows.emplace_back();
    for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
      const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), column));
      row.push_back(text == nullptr ? std::nullopt : std::optional<std::string>(text));
    }
  }
  return rows;
}

std::string Database::text(std::string_view sql) const { return rows(sql).at(0).at(0).value(); }

long long Database::number(std::string_view sql) const { return std::stoll(text(sql)); }

std::vector<long long> Database::tenThousandths(std::string_view sql) const {
  const Statement statement = prepare(sql);
  std::vector<long long> numbers;
  while (step(statement)) numbers.push_back(std::llround(sqlite3_column_double(statement.get(), 0) * 10000.0));
  return numbers;
}

std::vector<std::string> Database::columns(std::string_view sql) const {
  const Statement statement = prepare(sql);
  const int count = sqlite3_column_count(statement.get());
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(count));
  for (int column = 0; column < count; ++column) names.emplace_back(sqlite3_column_name(statement.get(), column));
  return names;
}

namespace {

struct Sample {
  Database database;
  std::unique_ptr<qvn::toolkit::Session> session;
};

const Sample& sampleIn(const std::string& storage) {
  static const Folder folder;
  static std::map<std::string, Sample> samples;
  if (const auto made = samples.find(storage); made != samples.end()) return made->second;
  const std::string file = folder.file(storage + ".db");
  const Answer run = campione("'" + file + "' --storage " + storage);
  if (run.status != 0) throw std::runtime_error("no sample: " + run.errors);
  auto session = qvn::sqlite::driver().open({.connectionString = "sqlite:" + file, .rest = file});
  return samples.emplace(storage, Sample{Database(file), std::move(session)}).first->second;
}

}  // namespace

const Database& sample(const std::string& storage) { return sampleIn(storage).database; }
qvn::toolkit::Session& session(const std::string& storage) { return *sampleIn(storage).session; }

}  // namespace office_test
