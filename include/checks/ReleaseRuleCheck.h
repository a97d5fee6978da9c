#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "checks/CheckCompleteness.h"
#include "core/Element.h"

class Scenario;
class ReleaseRule;

// The checks of a reservoir's release rule: one class per rule kind, each with a table of checks
// run in order. Findings go to the caller's list under the reservoir's name.
class ReleaseRuleCheck {
 public:
  using Errors = std::vector<CheckCompleteness::ErrorStruct>;
  using Lambda = std::function<void(ReleaseRuleCheck*)>;

  ReleaseRuleCheck(std::weak_ptr<Scenario> scenario, std::shared_ptr<Element> element,
                   Errors& errors);
  virtual ~ReleaseRuleCheck() = default;

  virtual std::vector<Lambda> getLambdas() const = 0;
  // Runs every check of the rule's table.
  void check();

  void report(const std::string& message);
  // The reservoir's rule, as the rule class of the check.
  template <typename Rule>
  const Rule& rule() const {
    return static_cast<const Rule&>(*ruleOfElement());
  }
  std::shared_ptr<Scenario> getScenario() const { return scenario.lock(); }
  const std::shared_ptr<Element>& getElement() const { return element; }
  Errors& getErrors() { return errors; }

 private:
  std::shared_ptr<ReleaseRule> ruleOfElement() const;

  std::weak_ptr<Scenario> scenario;
  std::shared_ptr<Element> element;
  Errors& errors;
};

#define KOVA_RELEASE_RULE_CHECK(Name)                        \
  class Name : public ReleaseRuleCheck {                      \
   public:                                                    \
    using ReleaseRuleCheck::ReleaseRuleCheck;                 \
    std::vector<Lambda> getLambdas() const override;          \
  }

KOVA_RELEASE_RULE_CHECK(NoneReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(ConstReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(PeriodicReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(SerieReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(HydrologicalStateReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(VolDepOneStaticReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(VolDepOnePeriodicReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(VolDepTwoStaticReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(VolDepTwoPeriodicReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(OptNoneReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(OptConstReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(OptPeriodicReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(OptSerieReleaseRuleCheck);
// The learned rules: enough entries for the model's number of entries, and every reservoir whose
// volume feeds the model enabled.
KOVA_RELEASE_RULE_CHECK(KNNRegressionColVolumesReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(RegressionTreeColVolumesReleaseRuleCheck);
KOVA_RELEASE_RULE_CHECK(RegressionRandomForestColVolumesReleaseRuleCheck);

#undef KOVA_RELEASE_RULE_CHECK

// The optimisable twins of the rules by storage and by hydrological state are their simulation
// rules with marked tables: their working tables are checked as the simulation rules' are.
#define KOVA_OPT_RELEASE_RULE_CHECK(Name, Simulation) \
  class Name : public Simulation {                    \
   public:                                            \
    using Simulation::Simulation;                     \
  }

KOVA_OPT_RELEASE_RULE_CHECK(OptVolDepOneStaticReleaseRuleCheck, VolDepOneStaticReleaseRuleCheck);
KOVA_OPT_RELEASE_RULE_CHECK(OptVolDepOnePeriodicReleaseRuleCheck,
                            VolDepOnePeriodicReleaseRuleCheck);
KOVA_OPT_RELEASE_RULE_CHECK(OptVolDepTwoStaticReleaseRuleCheck, VolDepTwoStaticReleaseRuleCheck);
KOVA_OPT_RELEASE_RULE_CHECK(OptVolDepTwoPeriodicReleaseRuleCheck,
                            VolDepTwoPeriodicReleaseRuleCheck);

#undef KOVA_OPT_RELEASE_RULE_CHECK

// And the maximum release the optimiser may choose must not be negative.
class OptHydrologicalStateReleaseRuleCheck : public HydrologicalStateReleaseRuleCheck {
 public:
  using HydrologicalStateReleaseRuleCheck::HydrologicalStateReleaseRuleCheck;
  std::vector<Lambda> getLambdas() const override;
};
