#include "project/database/DatabaseException.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <utility>

const char* const DatabaseException::kLockedText =
    "Banco de dados do projeto está bloqueado. Verifique se ele está sendo utilizado por outra "
    "aplicação.";
const char* const DatabaseException::kGeneralText =
    "Ocorreu algum erro na operação do banco de dados do projeto.";

DatabaseException::DatabaseException(const std::string& text, int sqliteCode, std::string detail)
    : std::runtime_error(text), sqliteCode(sqliteCode), detail(std::move(detail)) {}

DatabaseException DatabaseException::from(const SQLite::Exception& error) {
  // Extended codes carry the primary code in their low byte.
  const int code = error.getErrorCode() & 0xff;
  const bool locked = code == SQLITE_BUSY || code == SQLITE_LOCKED;
  return DatabaseException(locked ? kLockedText : kGeneralText, code, error.what());
}

bool DatabaseException::isLocked() const {
  return sqliteCode == SQLITE_BUSY || sqliteCode == SQLITE_LOCKED;
}

void DatabaseException::rethrowIfSQLite(const std::exception& error) {
  if (const auto* sqlite = dynamic_cast<const SQLite::Exception*>(&error)) throw from(*sqlite);
}
