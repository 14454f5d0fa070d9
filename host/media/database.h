#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace host::media {

enum class DatabaseStatus { ok, row, full, damaged, failed };

// One prepared statement. As in SQLite, parameters count from 1 and columns from 0. Bound texts
// must live until the step.
class Statement {
 public:
  Statement(sqlite3* database, const char* sql);

  Statement& bind(int parameter, std::int64_t value);
  Statement& bind(int parameter, double value);
  Statement& bind(int parameter, std::string_view text);
  Statement& bind_bytes(int parameter, std::string_view bytes);

  // `row` while there are rows, then `ok`.
  DatabaseStatus step();
  // Executes a statement that returns no rows and resets it for the next use.
  DatabaseStatus run();

  std::int64_t integer(int column) const;
  double real(int column) const;
  std::string_view bytes(int column) const;  // Valid until the next step.

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
  DatabaseStatus prepared_;
};

class Database {
 public:
  // Opens or creates the file; an empty path means a database in memory.
  explicit Database(const std::string& path);

  DatabaseStatus status() const { return status_; }
  std::string message() const;

  DatabaseStatus execute(const char* sql);
  Statement prepare(const char* sql) { return {database_.get(), sql}; }

 private:
  struct Close {
    void operator()(sqlite3* database) const;
  };
  std::unique_ptr<sqlite3, Close> database_;
  DatabaseStatus status_;
};

}  // namespace host::media
