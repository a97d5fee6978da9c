#pragma once

#include "optimization/SceneryTransformation.h"

// A guarantee curve becomes the rule simulation it runs at each trial: a continuous run with the
// rules the reservoirs hold at the moment (the constant release under trial for the curve's
// reservoirs) and the source's zeroContribution.
class GuaranteeCurveToRuleTransformation : public SceneryTransformation {
 public:
  std::shared_ptr<Scenario> transform(const Scenario& source, unsigned int id) const override;
};
