#pragma once

#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "service/TemporaryWorkspace.h"

class Scenario;

// One request's use of a project. The scenario manager and the open database are one per
// process, so a session holds the service's single project lock from before it opens the project
// until after it has closed it: requests on projects are served one at a time, whatever the
// number of workers. A session that may write keeps a copy of both files and puts it back when it
// ends without commit(), so that a request failing half-way leaves the files as they were.
class ProjectSession {
 public:
  enum class Access { readOnly, readWrite };

  // Opens the project file at path and its database, and installs the scenarios in the
  // ScenarioManager. Throws what LoadProject throws, or std::filesystem::filesystem_error when
  // the copy of a writing session cannot be made; the project is closed again then.
  ProjectSession(const std::string& path, Access access);
  ~ProjectSession();
  ProjectSession(const ProjectSession&) = delete;
  ProjectSession& operator=(const ProjectSession&) = delete;

  const std::vector<std::shared_ptr<Scenario>>& scenarios() const { return all; }
  // The files as they are now are the ones to keep.
  void commit() { backup.reset(); }
  // The scenario named name. Throws std::invalid_argument
  // "ProjectSession: no scenario named \"<name>\"".
  std::shared_ptr<Scenario> scenario(const std::string& name) const;
  // The service's project lock, for a request that reads or writes project files without
  // opening the project.
  static std::unique_lock<std::mutex> exclusive();
  // Gives scenario the results of its latest stored run; false when it has none.
  bool loadLatestResults(const std::shared_ptr<Scenario>& scenario) const;

 private:
  void restore() const;

  std::unique_lock<std::mutex> lock;
  std::vector<std::shared_ptr<Scenario>> all;
  std::filesystem::path file;
  std::optional<TemporaryWorkspace> backup;
};
