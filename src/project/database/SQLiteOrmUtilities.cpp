#include "project/database/SQLiteOrmUtilities.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "project/database/DatabaseException.h"

namespace {

// Long enough to ride over another connection's short write, short enough to report a
// database held by another program before the user thinks the program hangs.
constexpr int kBusyTimeoutMs = 1000;

std::string quoted(const std::string& name) { return "\"" + name + "\""; }

std::string joinQuoted(const std::vector<std::string>& names) {
  std::string text;
  for (const auto& name : names) text += (text.empty() ? "" : ", ") + quoted(name);
  return text;
}

using FK = SQLiteOrmUtilities::ForeignKey;

const FK kElementKey{"elementID", "Element", "databaseId"};
const FK kUserKey{"userID", "Users", "id"};
const FK kTypeKey{"type", "SerieType", "id"};

}  // namespace

const std::vector<SQLiteOrmUtilities::Table>& SQLiteOrmUtilities::tables() {
  const std::string I = "INTEGER", R = "REAL", T = "TEXT";
  static const std::vector<Table> all = {
      {"Scenario", {{"databaseId", I}, {"enabled", I}, {"name", T}}, {}},
      {"ElementType", {{"id", I}, {"name", T}}, {}},
      {"Element",
       {{"databaseId", I}, {"name", T}, {"scenId", I}, {"type", I}, {"enabled", I}},
       {{"scenId", "Scenario", "databaseId"}, {"type", "ElementType", "id"}}},
      {"Unit", {{"id", I}, {"name", T}}, {}},
      {"Users", {{"id", I}, {"name", T}, {"password", T}}, {}},
      {"SerieType",
       {{"id", I}, {"type", T}, {"direction", T}, {"unit", I}},
       {{"unit", "Unit", "id"}}},
      {"SerieInput",
       {{"id", I},
        {"timeStamp", T},
        {"enabled", I},
        {"date", T},
        {"julian", I},
        {"value", R},
        {"type", I},
        {"elementID", I},
        {"userID", I}},
       {kTypeKey, kElementKey, kUserKey}},
      {"SerieOutput",
       {{"id", I},
        {"windowid", I},
        {"timeStamp", T},
        {"timeStampHash", T},
        {"enabled", I},
        {"date", T},
        {"julian", I},
        {"value", R},
        {"type", I},
        {"elementID", I},
        {"userID", I}},
       {kTypeKey, kElementKey, kUserKey}},
      {"Cav",
       {{"id", I},
        {"timeStamp", T},
        {"enabled", I},
        {"line", I},
        {"quota", R},
        {"area", R},
        {"volume", R},
        {"elementID", I},
        {"userID", I}},
       {kElementKey, kUserKey}},
      {"HidrologicalStateSeries",
       {{"id", I},
        {"date", T},
        {"julian", I},
        {"value", R},
        {"index", I},
        {"elementID", I},
        {"userID", I}},
       {kElementKey, kUserKey}},
      {"HidrologicalStatePerReservoirSeries",
       {{"id", I},
        {"date", T},
        {"julian", I},
        {"value", R},
        {"index", I},
        {"elementID", I},
        {"userID", I}},
       {kElementKey, kUserKey}},
      {"HidrologicalStatePerReservoirMonthlySeries",
       {{"id", I},
        {"date", T},
        {"julian", I},
        {"value", R},
        {"index", I},
        {"monthIndex", I},
        {"elementID", I},
        {"userID", I}},
       {kElementKey, kUserKey}},
  };
  return all;
}

const std::vector<SQLiteOrmUtilities::Index>& SQLiteOrmUtilities::indexes() {
  static const std::vector<Index> all = {
      {"scenario_databaseid", "Scenario", {"databaseId"}},
      {"element_scenid_databaseid", "Element", {"scenId", "databaseId"}},
      {"unitlite_name", "Unit", {"name"}},
      {"serietypelite_unit_type", "SerieType", {"unit", "type"}},
      {"serieinputlite_type_elementid_enabled", "SerieInput", {"type", "elementID", "enabled"}},
      {"serieoutputlite_type_elementid_windowid_enabled",
       "SerieOutput",
       {"type", "elementID", "windowid", "enabled"}},
      {"serieoutputlite_type_elementid_windowid_timeStampHash",
       "SerieOutput",
       {"type", "elementID", "windowid", "timeStampHash"}},
      {"cavlite_enabled_elementid", "Cav", {"enabled", "elementID"}},
      // The one integer column that every read of the table filters on.
      {"hydrological_state_lite_type_elementid", "HidrologicalStateSeries", {"elementID"}},
  };
  return all;
}

std::string SQLiteOrmUtilities::columnText(const Column& column, bool primaryKey) {
  return quoted(column.name) + " " + column.type + (primaryKey ? " PRIMARY KEY" : "") + " NOT NULL";
}

std::string SQLiteOrmUtilities::createTableText(const Table& table) {
  std::string text = "CREATE TABLE " + quoted(table.name) + " (";
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    text += (i == 0 ? "" : ", ") + columnText(table.columns[i], i == 0);
  }
  for (const auto& key : table.foreignKeys) {
    text += ", FOREIGN KEY(" + quoted(key.column) + ") REFERENCES " + quoted(key.table) + "(" +
            quoted(key.referenced) + ")";
  }
  return text + ")";
}

std::string SQLiteOrmUtilities::createIndexText(const Index& index) {
  return "CREATE INDEX IF NOT EXISTS " + quoted(index.name) + " ON " + quoted(index.table) + " (" +
         joinQuoted(index.columns) + ")";
}

std::unique_ptr<SQLite::Database> SQLiteOrmUtilities::make(const std::string& path) {
  return DatabaseException::guard([&] {
    auto database = std::make_unique<SQLite::Database>(
        path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, kBusyTimeoutMs);
    database->exec("PRAGMA foreign_keys = ON");
    return database;
  });
}
