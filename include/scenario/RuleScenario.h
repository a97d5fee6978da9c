#pragma once

#include <memory>
#include <string>

#include "core/Scenario.h"

// A simulation by operating rules: each reservoir follows its release rule, and each node shares
// its water among its outgoing links by its allocation matrix, which the scenario keeps in step
// with the network as elements come and go.
class RuleScenario : public Scenario {
 public:
  using Scenario::Scenario;

  Enum<ScenarioType> getScenarioType() const override;
  void addElement(const std::shared_ptr<Element>& element, bool rename) override;
  void addElement(const std::shared_ptr<Element>& element, bool rename, unsigned int id) override;
  void removeElement(unsigned int id) override;
  void posAddElement(const std::shared_ptr<Element>& element, bool rename) override;
  bool runIsolated(const Progress& progress) override;
  std::shared_ptr<OperationSystem> getIsolatedOperationSystem(
      unsigned int isolatedScenarioId) override;

  // A node gets one line of zeros in its matrix; a link gets a column of zeros in its upstream
  // node's matrix. Repeated calls for the same element change nothing.
  void ManageAllocationMatrixWithAddElement(const std::shared_ptr<Element>& element);
  // Drops a removed link's column from its upstream node's matrix.
  void ManageAllocationMatrixWithRemoveElement(const std::shared_ptr<Element>& element);

 protected:
  std::shared_ptr<OperationSystem> getOperationSystem() override;
  std::shared_ptr<Scenario> copySpecific() const override;
  std::shared_ptr<SceneryCheck> makeSceneryCheck() override;
  bool passesSceneryCheck(SceneryCheck& check) override;
};
