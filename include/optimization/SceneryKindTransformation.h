#pragma once

#include <memory>

#include "optimization/SceneryTransformation.h"
#include "vocabulary/EnumTypes.h"

class Node;

// The transformation of a scenario of one kind into one of another, for any two of the five
// kinds. The target is a new scenario of the target kind, with its defaults, over a deep copy of
// the network (elements, links, input series, layers, labels, pumping costs) and the interval;
// then what has a meaning on both sides is carried over:
// - into a priority scenario: the execution method of a rule or priority run (the continuous
//   method otherwise) and zeroContribution; every element gets the priority settings a new
//   element gets (the goals are the demands' and reservoirs' own series; an empty target volume
//   asks for a full reservoir);
// - out of a priority scenario: each reservoir releases, constantly, the mean of its releases in
//   the priority run, and each node shares its outflow as its links carried it in that run
//   (window 0). A source without results is run first, as a copy;
// - between the rule kinds (rules, rule optimisation, guarantee curve, system guarantee curve):
//   the allocation matrices and the reservoirs' rules, the optimisable twin of each rule into an
//   optimisation or a system curve (releases left to the swarm, up to twice the mean natural flow
//   that reaches the reservoir, at least 1 m³/s), the simulation rule of each optimisable one
//   into rules or a guarantee curve; a rule without a twin stays as it is;
// - a guarantee curve asks for the curve of every enabled reservoir (of a system curve's out
//   reservoir when it comes from one), a system curve takes as out reservoir the one reservoir
//   of a guarantee curve, or else the last reservoir downstream, on an optimisable constant
//   release; "only Q90" passes between the two curves.
// The target has no results.
class SceneryKindTransformation : public SceneryTransformation {
 public:
  // Throws std::invalid_argument "SceneryKindTransformation: a scenario does not become a
  // scenario of its own kind" when from equals to.
  SceneryKindTransformation(ScenarioType from, ScenarioType to);
  // Throws std::invalid_argument "SceneryKindTransformation::transform(): the scenario is not of
  // kind <from>" for a source of another kind, and std::runtime_error when a priority source
  // without results does not run.
  std::shared_ptr<Scenario> transform(const Scenario& source, unsigned int id) const override;

  // The largest release an optimiser is given for reservoir: twice the mean natural incremental
  // flow of the reservoir and of every enabled node upstream of it over interval, and at least
  // 1 m³/s.
  static double maxReleaseOf(const Node& reservoir, const Interval& interval);

 private:
  ScenarioType from;
  ScenarioType to;
};
