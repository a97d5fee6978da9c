#include <unistd.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/ConfigurationHeader.h"
#include "core/Scenario.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "scenario/ScenarioManager.h"

// Feeds arbitrary bytes to the database reader as the database of a project. The project file is
// the one KOVA_FUZZ_PROJECT names (run the fuzzer on a corpus holding that project's database);
// each input is written as the database beside a copy of it and the project is opened for
// reading. Any bytes must end in scenarios or in an exception, never in a crash, a hang or a
// leak, and every value read is a finite number.
namespace {

namespace fs = std::filesystem;

// The copy of the project file that each input's database sits beside.
const std::string& projectCopy() {
  static const std::string path = [] {
    const char* given = std::getenv("KOVA_FUZZ_PROJECT");
    if (!given) {
      std::fprintf(stderr, "KOVA_FUZZ_PROJECT must name a project file (.sjson)\n");
      std::abort();
    }
    const fs::path folder =
        fs::temp_directory_path() / ("kova_database_fuzz_" + std::to_string(getpid()));
    fs::create_directories(folder);
    const fs::path copy = folder / "fuzz.sjson";
    fs::copy_file(given, copy, fs::copy_options::overwrite_existing);
    return copy.string();
  }();
  return path;
}

bool everyValueFinite(const Scenario& scenario) {
  for (const auto& element : scenario.getElements()) {
    auto containers = element->getOutputSeries();
    containers.push_back(element->getInputSeries());
    for (const auto& container : containers) {
      for (const auto& serie : container->makeVectorOfSeries()) {
        for (const auto& [julian, value] : serie->getMapOfJulianToValues()) {
          if (!std::isfinite(value)) return false;
        }
      }
    }
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string& project = projectCopy();
  {
    std::ofstream database(LoadProject::databasePath(project), std::ios::binary | std::ios::trunc);
    database.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  ConfigurationHeader::reset();
  bool finite = true;
  try {
    for (const auto& scenario : LoadProject::loadReadOnly(project, nullptr)) {
      finite = finite && everyValueFinite(*scenario);
    }
  } catch (const std::exception&) {
  }
  SQLStorage::deleteInstance();
  ScenarioManager::getInstance().clear();
  if (!finite) __builtin_trap();
  return 0;
}
