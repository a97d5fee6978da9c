#include "optimization/GuaranteeCurveToRuleTransformation.h"

#include "operation/ExecutionContinuous.h"
#include "scenario/RuleScenario.h"

std::shared_ptr<Scenario> GuaranteeCurveToRuleTransformation::transform(const Scenario& source,
                                                                        unsigned int id) const {
  auto method = std::make_shared<ExecutionContinuous>();
  method->setZeroContribution(source.getExecutionMethod()->getZeroContribution());
  auto target = std::make_shared<RuleScenario>(method, id, source.getInterval(), source.getName());
  source.copyNetworkInto(*target);
  target->resolveRuleReferences();
  return target;
}
