#include "scenario/ConfigureRuleElementFromPriorityAddon.h"

ConfigureRuleElementFromPriorityAddon::ConfigureRuleElementFromPriorityAddon(
    ConfigureRuleElementType type)
    : type(MachineLearningVocabulary::of(type)),
      averageCalculatorType(MachineLearningVocabulary::of(
          MachineLearningRegressionAverageCalculatorType::arithmetic)),
      distanceCalculatorType(MachineLearningVocabulary::of(
          MachineLearningRegressionDistanceCalculatorType::euclidean)),
      errorType(
          MachineLearningVocabulary::of(MachineLearningRegressionErrorType::meanSquaredError)) {}

std::shared_ptr<ConfigureRuleElementFromPriorityAddon> ConfigureRuleElementFromPriorityAddon::copy()
    const {
  return std::make_shared<ConfigureRuleElementFromPriorityAddon>(*this);
}

std::vector<unsigned int> ConfigureRuleElementFromPriorityAddon::getReservoirSystem(
    unsigned int reservoirId) const {
  const auto found = reservoirSystems.find(reservoirId);
  return found == reservoirSystems.end() ? std::vector<unsigned int>{} : found->second;
}

void ConfigureRuleElementFromPriorityAddon::setAverageCalculatorType(
    MachineLearningRegressionAverageCalculatorType value) {
  averageCalculatorType = MachineLearningVocabulary::of(value);
}

void ConfigureRuleElementFromPriorityAddon::setDistanceCalculatorType(
    MachineLearningRegressionDistanceCalculatorType value) {
  distanceCalculatorType = MachineLearningVocabulary::of(value);
}

void ConfigureRuleElementFromPriorityAddon::setErrorType(MachineLearningRegressionErrorType value) {
  errorType = MachineLearningVocabulary::of(value);
}
