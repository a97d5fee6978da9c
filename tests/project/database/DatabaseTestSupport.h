#pragma once

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/ConfigurationHeader.h"
#include "core/Reservoir.h"
#include "project/database/SQLStorage.h"
#include "project/database/SQLiteOrmUtilities.h"
#include "scenario/ScenarioManager.h"
#include "support/RealisticNetwork.h"
#include "support/TemporaryFolder.h"

namespace databasetest {

// The test's own temporary folder.
class TemporaryFolder : public ::TemporaryFolder {
 public:
  TemporaryFolder() : ::TemporaryFolder("kova_database_") {}
};

// Everything a project holds in series and curves, by element name: a round trip must give it
// back equal.
using Snapshot = std::map<std::string, std::vector<std::pair<unsigned int, double>>>;

inline void addSerie(Snapshot& snapshot, const std::string& key, const Serie& serie) {
  auto& values = snapshot[key + "|" + serie.getName() + "|" + serie.getUnit().getName()];
  for (const auto& entry : serie.getMapOfJulianToValues()) values.push_back(entry);
}

// The inputs and curves of every element.
inline Snapshot inputsOf(const Scenario& scenario) {
  Snapshot snapshot;
  for (const auto& element : scenario.getElements()) {
    const std::string name = element->getName();
    for (const auto& serie : element->getVectorOfInputSeries()) addSerie(snapshot, name, *serie);
    if (const auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
      const auto& cav = reservoir->getReservoirInfo().cav;
      for (unsigned int line = 0; line < cav.size(); ++line) {
        for (unsigned int column = 0; column < 3; ++column) {
          snapshot[name + "|cav"].push_back({line * 3 + column, cav[line][column]});
        }
      }
    }
  }
  return snapshot;
}

// The results of every element in every window; series without values count as absent.
inline Snapshot resultsOf(const Scenario& scenario) {
  Snapshot snapshot;
  for (const auto& element : scenario.getElements()) {
    for (unsigned int w = 0; w < element->getOutputSeries().size(); ++w) {
      for (const auto& serie : element->getVectorOfSeries(w)) {
        if (serie->size() == 0) continue;
        addSerie(snapshot, element->getName() + "|window" + std::to_string(w), *serie);
      }
    }
  }
  return snapshot;
}

// The first key whose values differ between two snapshots, or "" when they are equal.
inline std::string firstDifference(const Snapshot& a, const Snapshot& b) {
  for (const auto& entry : a) {
    const auto other = b.find(entry.first);
    if (other == b.end()) return "only in the first: " + entry.first;
    if (other->second != entry.second) return "values of " + entry.first;
  }
  for (const auto& entry : b) {
    if (a.count(entry.first) == 0) return "only in the second: " + entry.first;
  }
  return "";
}

// Every row of every table of the database at path, as text, without the columns named leftOut
// (the time of writing, say): two equal texts are two equal databases.
inline std::string contentOf(const std::string& path, const std::string& leftOut = "") {
  SQLite::Database database(path, SQLite::OPEN_READONLY);
  std::string text;
  for (const auto& table : SQLiteOrmUtilities::tables()) {
    std::string columns = leftOut.empty() ? "*" : "";
    for (const auto& column : table.columns) {
      if (leftOut.empty() || column.name == leftOut) continue;
      columns += (columns.empty() ? "\"" : ", \"") + column.name + "\"";
    }
    SQLite::Statement query(database,
                            "SELECT " + columns + " FROM \"" + table.name + "\" ORDER BY 1");
    text += table.name + "\n";
    while (query.executeStep()) {
      for (int column = 0; column < query.getColumnCount(); ++column) {
        text += query.getColumn(column).getString() + ",";
      }
      text += "\n";
    }
  }
  return text;
}

// The rows of the database at path that from names: a table, or a table and a WHERE clause.
inline long long countRows(const std::string& path, const std::string& from) {
  SQLite::Database database(path, SQLite::OPEN_READONLY);
  return database.execAndGet("SELECT COUNT(*) FROM " + from).getInt64();
}

// The rule project of the realistic network over a few monthly years, installed as the open
// project's only scenario.
inline std::unique_ptr<RealisticNetwork> installRealisticProject(unsigned int lastYear = 1935) {
  auto network = std::make_unique<RealisticNetwork>(
      Interval(Date(1931, 1, 1), Date(lastYear, 12, 1), Vocabulary::of(Periodicity::monthly)));
  ScenarioManager::getInstance().addScenery(0, network->net.scenario);
  return network;
}

// The process-wide state of projects, back to its defaults around each test.
class DatabaseTest : public ::testing::Test {
 protected:
  void SetUp() override { resetProcessState(); }
  void TearDown() override { resetProcessState(); }

  static void resetProcessState() {
    ConfigurationHeader::reset();
    ScenarioManager::getInstance().clear();
    SQLStorage::deleteInstance();
  }

  // Closes the open project and installs the scenarios given.
  static void install(const std::vector<std::shared_ptr<Scenario>>& scenarios) {
    ScenarioManager::getInstance().clear();
    for (unsigned int i = 0; i < scenarios.size(); ++i) {
      ScenarioManager::getInstance().addScenery(i, scenarios[i]);
    }
  }

  TemporaryFolder folder;
};

}  // namespace databasetest
