#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

class Scenario;

// The demo project: the São Francisco cascade from Retiro Baixo to Moxotó on the real monthly
// inflows of 1931-2019 (or a shorter record), built from the data files of a folder through the
// library's own interface. Three scenarios: operating rules over the record, priorities over the
// record, and one-year windows from every November of the record, all starting from the storage the
// rule simulation reaches at the end of the record.
class DemoProject {
 public:
  using Progress = std::function<bool(long, long)>;

  // The scenarios over the record up to December of lastYear, built from the files of
  // dataFolder. Throws std::runtime_error naming a file that is missing or malformed.
  static std::vector<std::shared_ptr<Scenario>> makeScenarios(
      const std::filesystem::path& dataFolder, unsigned int lastYear);
  // Builds the scenarios and saves them as the project at path (file and database); false, with
  // nothing written, when progress cancelled. Throws as makeScenarios, and std::runtime_error
  // when the project cannot be written.
  [[nodiscard]] static bool build(const std::filesystem::path& dataFolder, unsigned int lastYear,
                                  const std::filesystem::path& path, const Progress& progress);
};
