#include "managers/ConfigureRuleElementFromPriorityDefault.h"

#include "core/ReservoirRuleSettings.h"
#include "rules/SerieReleaseRule.h"
#include "scenario/PriorityScenario.h"
#include "scenario/RuleScenario.h"

void ConfigureRuleElementFromPriorityDefault::configureSerieReleaseRule(
    unsigned int reservoirId, const PriorityScenario& priorityScenario,
    RuleScenario& ruleScenario) {
  auto rule = std::make_shared<SerieReleaseRule>();
  const auto& released =
      priorityScenario.getElement(reservoirId)->getOutputSerie(SerieType::releasedFlow, 0);
  if (released) rule->setReleaseSerie(std::make_shared<Serie>(*released));
  Scenario::getSettings<ReservoirRuleSettings>(ruleScenario.getElement(reservoirId),
                                               ruleScenario.getSettingsManager())
      ->setRule(rule);
}
