#pragma once

#include <map>
#include <memory>

#include "operation/OperationSystem.h"

class RuleReleaseDefaultAllocation;
class SceneryIsolatedData;

// One period of a rule simulation: each reservoir releases what its rule asks, within what it
// holds, and every node shares its water among its outgoing links by its allocation matrix.
class RuleOperation : public OperationSystem {
 public:
  using OperationSystem::OperationSystem;

  double release(const std::shared_ptr<Link>& link) override;
  // The upstream reservoir's "Vazão vertida" at the current date, m³/s.
  double spill(const std::shared_ptr<Link>& link) override;
  void postProcessing(const Callback& callback) override;
  // Turns the bidirectional links the way the storage of the date calls for, runs the period and
  // turns them back. Throws NetworkUtils::LoopException, with the network restored, when the
  // turned network has a loop. A network without bidirectional links never changes shape, so it
  // skips the turning and the loop search (validation tests its loops before the run).
  void runModel() override;

  // Tells each reservoir's rule the interval and window of the run.
  void configureRuleReservoirs();
  // Each enabled demand's target for the date ("Demanda meta") is its input demand.
  void writeRuleSeries();

 protected:
  // The flow the node upstream of link sends into it, with the union flows of isolatedData (null
  // outside a run by isolated networks), m³/s.
  double releaseWith(const std::shared_ptr<Link>& link, const SceneryIsolatedData* isolatedData);

 private:
  RuleReleaseDefaultAllocation& allocatorOf(ElementType type);

  std::map<ElementType, std::shared_ptr<RuleReleaseDefaultAllocation>> allocators;
};
