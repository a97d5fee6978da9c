#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class Scenario;

// A project opened for one command: its scenarios are the ScenarioManager's and its database is
// the open SQLStorage for as long as this object lives; both are closed when it goes.
class OpenProject {
 public:
  using Progress = std::function<bool(long, long)>;
  // A command that only reads opens the files read-only: it needs no write permission, takes no
  // writer's lock and never creates a database. One that writes learns before it works that it
  // cannot write, and which file.
  enum class Access { readOnly, readWrite };

  // Opens the project file at path and the database beside it. Failures are std::runtime_error
  // texts that start with the file's name; a project without a scenario is one.
  explicit OpenProject(const std::filesystem::path& path, const Progress& progress = nullptr,
                       Access access = Access::readOnly);
  ~OpenProject();
  OpenProject(const OpenProject&) = delete;
  OpenProject& operator=(const OpenProject&) = delete;

  const std::filesystem::path& path() const { return file; }
  const std::vector<std::shared_ptr<Scenario>>& scenarios() const { return all; }
  // The scenario of that name. Throws std::runtime_error naming the project and its scenarios.
  std::shared_ptr<Scenario> scenario(const std::string& name) const;
  // The scenarios of those names, in the order given; every scenario when names is empty.
  std::vector<std::shared_ptr<Scenario>> select(const std::vector<std::string>& names) const;
  // The index of scenario in the ScenarioManager.
  unsigned int indexOf(const std::shared_ptr<Scenario>& scenario) const;
  // Throws UsageError "the project already has a scenario named <name>" when name is taken.
  void requireFreeName(const std::string& name) const;
  // Makes a new scenario one of the project's, after every present one.
  void adopt(const std::shared_ptr<Scenario>& scenario);
  // Gives scenario the results of its latest stored run. Throws std::runtime_error when it has
  // none.
  void loadLatestResults(const std::shared_ptr<Scenario>& scenario) const;

 private:
  std::filesystem::path file;
  std::vector<std::shared_ptr<Scenario>> all;
};
