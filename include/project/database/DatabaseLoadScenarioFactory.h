#pragma once

#include <memory>
#include <string>

class DatabaseLoadScenario;
class Scenario;

// The database loader of each kind of scenario, by the kind's display name.
class DatabaseLoadScenarioFactory {
 public:
  // The loader of scenario for the kind named typeString. Throws std::invalid_argument
  // "DatabaseLoadScenarioFactory::make(): invalid scenarioType" for another name.
  static std::unique_ptr<DatabaseLoadScenario> make(const std::string& typeString,
                                                    const std::shared_ptr<Scenario>& scenario);
};
