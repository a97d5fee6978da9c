#pragma once

#include <functional>
#include <string>

// The full save of the open project's scenarios to a database file.
class SQLiteOrmSaver {
 public:
  // Makes the database at path the project's database (SQLStorage) and writes every scenario of
  // the ScenarioManager into it in one transaction, as ProjectSaver::saveAsTransaction; true when
  // written, false when progress (elements done, elements in all) answered false, leaving the
  // file as it was. Throws DatabaseException on an SQLite failure, the file unchanged.
  static bool save(const std::string& path, const std::function<bool(long, long)>& progress);
};
