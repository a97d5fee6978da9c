#include "project/database/TableCopy.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <stdexcept>

#include "core/KOVACoreProgressBar.h"
#include "project/database/DatabaseException.h"
#include "project/database/SQLiteOrmUtilities.h"

const char* const TableCopy::kSourceSchema = "kova_source";

namespace {

std::string quoted(const std::string& name) { return "\"" + name + "\""; }

const SQLiteOrmUtilities::Table& tableNamed(const std::string& name) {
  for (const auto& table : SQLiteOrmUtilities::tables()) {
    if (table.name == name) return table;
  }
  throw std::invalid_argument("TableCopy::copy(): unknown table " + name);
}

std::string columnList(const SQLiteOrmUtilities::Table& table) {
  std::string text;
  for (const auto& column : table.columns) text += (text.empty() ? "" : ", ") + quoted(column.name);
  return text;
}

// The condition that keeps the rows whose every foreign key finds its row in the target.
std::string parentsPresent(const SQLiteOrmUtilities::Table& table) {
  std::string text;
  for (const auto& key : table.foreignKeys) {
    text += std::string(text.empty() ? " WHERE " : " AND ") + quoted(key.column) + " IN (SELECT " +
            quoted(key.referenced) + " FROM main." + quoted(key.table) + ")";
  }
  return text;
}

}  // namespace

TableCopy::TableCopy(SQLite::Database& target, const std::string& sourcePath, Progress progress,
                     long totalTables)
    : target(target), progress(std::move(progress)), totalTables(totalTables) {
  DatabaseException::guard([&] {
    SQLite::Statement attach(target, std::string("ATTACH DATABASE ? AS ") + kSourceSchema);
    attach.bind(1, sourcePath);
    attach.exec();
  });
}

TableCopy::~TableCopy() {
  // A failed detach leaves the attachment until the connection closes, which does no harm.
  try {
    target.exec(std::string("DETACH DATABASE ") + kSourceSchema);
  } catch (const SQLite::Exception&) {
  }
}

int64_t TableCopy::copy(const std::string& name) {
  const auto& table = tableNamed(name);
  const std::string columns = columnList(table);
  const int64_t rows = target.exec("INSERT INTO main." + quoted(table.name) + " (" + columns +
                                   ") SELECT " + columns + " FROM " + kSourceSchema + "." +
                                   quoted(table.name) + parentsPresent(table));
  if (progress && !progress(++copiedTables, totalTables)) {
    throw KOVACoreProgressBar::ProgressCancelException();
  }
  return rows;
}

void TableCopy::clearTarget() {
  const auto& tables = SQLiteOrmUtilities::tables();
  // The storage order puts every parent before its children.
  for (auto table = tables.rbegin(); table != tables.rend(); ++table) {
    target.exec("DELETE FROM main." + quoted(table->name));
  }
}
