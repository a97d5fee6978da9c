#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

class Scenario;

// Opens a project: the project file gives the scenarios, the database beside it their series.
class LoadProject {
 public:
  // The scenarios of the project at path, with series from "<path>.sqlite", which becomes the
  // open database (SQLStorage). progress is told (elements loaded, elements in all). Throws
  // JsonLoadExceptionPermissionDenied before anything is read when either file may not be
  // written, DatabaseException when the database cannot be used, and what JsonProjectLoader::load
  // throws for the file.
  static std::vector<std::shared_ptr<Scenario>> load(
      const std::string& path, const std::function<bool(long, long)>& progress);
  // As load(), for reading only: neither file needs write permission, no file is created or
  // changed, and the database is open read-only (SQLStorage::getInstanceReadOnly). Throws
  // std::runtime_error "<database>: no such project database" when the database is missing.
  static std::vector<std::shared_ptr<Scenario>> loadReadOnly(
      const std::string& path, const std::function<bool(long, long)>& progress);
  // The database path of the project at path.
  static std::string databasePath(const std::string& path);
};
