#pragma once

#include "scenario/ScenarioStore.h"

// The project database as the scenario manager's store: the open SQLStorage, scenario deletion
// through DatabaseDelete and results through one ResultSeriesWriter, one transaction per run.
class DatabaseScenarioStore : public ScenarioStore {
 public:
  SQLite::Database& openDatabase() override;
  void deleteScenario(unsigned int databaseId) override;
  void storeResults(const std::shared_ptr<Scenario>& scenario, SQLite::Database& storage,
                    const Progress& progress) override;
};
