#include "host/media/database.h"

#include <sqlite3.h>

namespace host::media {
namespace {

constexpr int busy_milliseconds = 2000;

DatabaseStatus status_from(int code) {
  switch (code & 0xff) {
    case SQLITE_OK:
    case SQLITE_DONE:
      return DatabaseStatus::ok;
    case SQLITE_ROW:
      return DatabaseStatus::row;
    case SQLITE_FULL:
      return DatabaseStatus::full;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return DatabaseStatus::damaged;
    default:
      return DatabaseStatus::failed;
  }
}

}  // namespace

void Statement::Finalize::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

Statement::Statement(sqlite3* database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  const int code =
      sqlite3_prepare_v3(database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  statement_.reset(statement);
  // Our statements are valid, so a general error means that the tables are not those of this
  // version.
  prepared_ = code == SQLITE_ERROR ? DatabaseStatus::damaged : status_from(code);
}

Statement& Statement::bind(int parameter, std::int64_t value) {
  sqlite3_bind_int64(statement_.get(), parameter, value);
  return *this;
}

Statement& Statement::bind(int parameter, double value) {
  sqlite3_bind_double(statement_.get(), parameter, value);
  return *this;
}

Statement& Statement::bind(int parameter, std::string_view text) {
  sqlite3_bind_text(statement_.get(), parameter, text.data(), static_cast<int>(text.size()),
                    SQLITE_STATIC);
  return *this;
}

Statement& Statement::bind_bytes(int parameter, std::string_view bytes) {
  sqlite3_bind_blob(statement_.get(), parameter, bytes.data(), static_cast<int>(bytes.size()),
                    SQLITE_STATIC);
  return *this;
}

DatabaseStatus Statement::step() {
  // A statement that could not be prepared reports it on its first use.
  if (!statement_) return prepared_;
  return status_from(sqlite3_step(statement_.get()));
}

DatabaseStatus Statement::run() {
  const DatabaseStatus status = step();
  sqlite3_reset(statement_.get());
  return status;
}

std::int64_t Statement::integer(int column) const {
  return sqlite3_column_int64(statement_.get(), column);
}

double Statement::real(int column) const {
  return sqlite3_column_double(statement_.get(), column);
}

std::string_view Statement::bytes(int column) const {
  const void* data = sqlite3_column_blob(statement_.get(), column);
  if (data == nullptr) return {};
  return {static_cast<const char*>(data),
          static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

void Database::Close::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

Database::Database(const std::string& path) {
  sqlite3* database = nullptr;
  // One thread at a time uses a database; locking it for each value of each row would take a fifth
  // of the time in which an index is read.
  constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  const int code =
      sqlite3_open_v2(path.empty() ? ":memory:" : path.c_str(), &database, flags, nullptr);
  database_.reset(database);
  status_ = status_from(code);
  sqlite3_busy_timeout(database, busy_milliseconds);
}

std::string Database::message() const {
  return sqlite3_errmsg(database_.get());
}

DatabaseStatus Database::execute(const char* sql) {
  return status_from(sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr));
}

}  // namespace host::media
