#pragma once

#include <stdexcept>
#include <string>

namespace SQLite {
class Exception;
}

// A failure of the project database as the user sees it: one text when another program holds
// the database, one for every other failure. The SQLite code stays available for callers that
// must tell them apart.
class DatabaseException : public std::runtime_error {
 public:
  static const char* const kLockedText;
  static const char* const kGeneralText;

  // The exception that stands for error: the locked text for SQLITE_BUSY and SQLITE_LOCKED, the
  // general text otherwise.
  static DatabaseException from(const SQLite::Exception& error);

  // Runs action and gives its result; an SQLite failure inside it leaves as DatabaseException.
  template <typename Action>
  static auto guard(Action action) -> decltype(action()) {
    try {
      return action();
    } catch (const DatabaseException&) {
      throw;
    } catch (const std::exception& error) {
      rethrowIfSQLite(error);
      throw;
    }
  }

  // The primary SQLite result code behind the failure, 0 when unknown.
  int getSQLiteCode() const { return sqliteCode; }
  // SQLite's own description of the failure, for a report; empty when there was none.
  const std::string& getDetail() const { return detail; }
  bool isLocked() const;

 private:
  DatabaseException(const std::string& text, int sqliteCode, std::string detail);
  // Throws the DatabaseException of error when it is an SQLite failure; returns otherwise.
  static void rethrowIfSQLite(const std::exception& error);

  int sqliteCode;
  std::string detail;
};
