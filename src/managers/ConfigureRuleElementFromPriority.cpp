#include "managers/ConfigureRuleElementFromPriority.h"

#include <stdexcept>

#include "core/ElementSets.h"
#include "core/Node.h"
#include "core/RuleSettings.h"
#include "scenario/PriorityRunAllocation.h"
#include "scenario/PriorityScenario.h"
#include "scenario/RuleScenario.h"

void ConfigureRuleElementFromPriority::configure(unsigned int elementId,
                                                 const PriorityScenario& priorityScenario,
                                                 RuleScenario& ruleScenario) const {
  const ElementType type = priorityScenario.getElement(elementId)->getType();
  if (type == ElementType::reservoir) {
    configureReservoir(elementId, priorityScenario, ruleScenario);
    configureAllocationMatrixElementFromPriority(elementId, priorityScenario, ruleScenario);
  } else if (ElementSets::nodes().count(type) > 0) {
    configureAllocationMatrixElementFromPriority(elementId, priorityScenario, ruleScenario);
  } else if (ElementSets::links().count(type) == 0) {
    throw std::invalid_argument(className + "::configure(): invalid element type");
  }
}

void ConfigureRuleElementFromPriority::configureAllocationMatrixElementFromPriority(
    unsigned int elementId, const PriorityScenario& priorityScenario, RuleScenario& ruleScenario) {
  const auto node = std::static_pointer_cast<Node>(priorityScenario.getElement(elementId));
  if (node->getDownstreamLinks().empty()) return;
  const auto settings = std::static_pointer_cast<RuleSettings>(
      ruleScenario.getSettingsManager().getSettings(elementId));
  settings->setAllocation(PriorityRunAllocation::matrixOf(*node, priorityScenario));
}
