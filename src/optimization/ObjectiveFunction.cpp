#include "optimization/ObjectiveFunction.h"

#include <utility>

#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "common/SerieStatistics.h"
#include "core/Link.h"
#include "core/ReservoirRuleSettings.h"
#include "hydrology/HydrologicalBalance.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "scenario/ScenarioManager.h"
#include "vocabulary/Vocabulary.h"

ObjectiveFunction::ObjectiveFunction(bool minimize, Elements elements)
    : minimize(minimize), elements(std::move(elements)) {}

double ObjectiveFunction::getValue(unsigned int index) const {
  const auto& types = getType().getElementTypes();
  double value = 0.0;
  for (const auto& element : elements) {
    if (!element->isEnabled() || types.count(element->getType()) == 0) continue;
    value += valueOf(*element, index);
  }
  return minimize ? value : -value;
}

double ObjectiveFunction::sumOf(const Element& element, SerieType kind, unsigned int index) {
  return SerieStatistics::sum(*element.getOutputSerie(kind, index));
}

const ObjectiveFunctionTypeEnum& EvaporationLossFunction::getType() const {
  return ObjectiveFunctionTypeEnum::of(ObjectiveFunctionType::evaporationLoss);
}

Enum<Unit> EvaporationLossFunction::getUnit() const {
  return Vocabulary::of(Unit::cubicHectometres);
}

double EvaporationLossFunction::valueOf(const Element& element, unsigned int index) const {
  return sumOf(element, SerieType::evaporatedVolume, index);
}

const ObjectiveFunctionTypeEnum& NumberOfFailuresFunction::getType() const {
  return ObjectiveFunctionTypeEnum::of(ObjectiveFunctionType::numberOfFailures);
}

Enum<Unit> NumberOfFailuresFunction::getUnit() const {
  return Vocabulary::of(Unit::dimensionless);
}

double NumberOfFailuresFunction::valueOf(const Element& element, unsigned int index) const {
  return sumOf(element, SerieType::supplyFailure, index);
}

const ObjectiveFunctionTypeEnum& ShortageVolumeFunction::getType() const {
  return ObjectiveFunctionTypeEnum::of(ObjectiveFunctionType::shortageVolume);
}

Enum<Unit> ShortageVolumeFunction::getUnit() const {
  return Vocabulary::of(Unit::cubicHectometres);
}

double ShortageVolumeFunction::valueOf(const Element& element, unsigned int index) const {
  const Serie& shortage = *element.getOutputSerie(SerieType::supplyShortage, index);
  const auto balance =
      HydrologicalBalanceFactory::make(shortage.getInterval().getPeriodicity().getType());
  double volume = 0.0;
  PeriodWalker::forEach(shortage.getInterval(), [&](const Date& date) {
    volume += balance->hm3(date, shortage.getValue(date));
  });
  return volume;
}

const ObjectiveFunctionTypeEnum& SpillVolumeFunction::getType() const {
  return ObjectiveFunctionTypeEnum::of(ObjectiveFunctionType::spillVolume);
}

Enum<Unit> SpillVolumeFunction::getUnit() const { return Vocabulary::of(Unit::cubicHectometres); }

double SpillVolumeFunction::valueOf(const Element& element, unsigned int index) const {
  return sumOf(element, SerieType::spilledVolume, index);
}

const ObjectiveFunctionTypeEnum& PumpingCostFunction::getType() const {
  return ObjectiveFunctionTypeEnum::of(ObjectiveFunctionType::pumpingCost);
}

Enum<Unit> PumpingCostFunction::getUnit() const { return Vocabulary::of(Unit::reais); }

double PumpingCostFunction::valueOf(const Element& element, unsigned int index) const {
  const auto& link = static_cast<const Link&>(element);
  if (!link.getLinkAddon() || link.getLinkAddon()->getType() != LinkAddonType::pumping) return 0.0;
  return sumOf(element, SerieType::pumpingCost, index);
}

const ObjectiveFunctionTypeEnum& HedgingCurveFunction::getType() const {
  return ObjectiveFunctionTypeEnum::of(ObjectiveFunctionType::hedgingCurve);
}

Enum<Unit> HedgingCurveFunction::getUnit() const { return Vocabulary::of(Unit::dimensionless); }

const SettingsManager* HedgingCurveFunction::settingsOfRules() const {
  if (settings) return settings;
  const auto& scenario = ScenarioManager::getInstance().getCurrentScenario();
  return scenario ? &scenario->getSettingsManager() : nullptr;
}

double HedgingCurveFunction::valueOf(const Element& element, unsigned int) const {
  const SettingsManager* manager = settingsOfRules();
  if (!manager || !manager->contains(element.getId())) return 0.0;
  const auto ruleSettings =
      std::dynamic_pointer_cast<ReservoirRuleSettings>(manager->getSettings(element.getId()));
  const auto rule =
      ruleSettings
          ? std::dynamic_pointer_cast<OptHydrologicalStateReleaseRule>(ruleSettings->getRule())
          : nullptr;
  if (!rule) return 0.0;
  const std::vector<double> achieved = rule->getGuaranteeResults();
  const std::vector<double>& required = rule->getRequiredGuarantees();
  double distance = 0.0;
  for (std::size_t i = 0; i < achieved.size() && i < required.size(); ++i) {
    const double gap = NumericalUtils::subtractDoubles(required[i], achieved[i], 1e-6);
    distance += gap * gap / required[i];
  }
  return distance;
}
