#pragma once

#include <map>
#include <memory>
#include <vector>

#include "vocabulary/MachineLearningVocabulary.h"

// The settings with which a scenario by priorities is turned into a scenario by rules: the kind of
// rule each reservoir gets, which reservoirs' volumes feed a reservoir's model, and the model's
// settings. This base serves the default kind, a series of the run's releases; the kinds of model
// derive from it.
class ConfigureRuleElementFromPriorityAddon {
 public:
  using ReservoirSystems = std::map<unsigned int, std::vector<unsigned int>>;

  explicit ConfigureRuleElementFromPriorityAddon(
      ConfigureRuleElementType type = ConfigureRuleElementType::defaultSerie);
  virtual ~ConfigureRuleElementFromPriorityAddon() = default;

  [[nodiscard]] virtual std::shared_ptr<ConfigureRuleElementFromPriorityAddon> copy() const;

  const Enum<ConfigureRuleElementType>& getType() const { return type; }

  const ReservoirSystems& getReservoirSystems() const { return reservoirSystems; }
  void setReservoirSystems(ReservoirSystems value) { reservoirSystems = std::move(value); }
  // The reservoirs whose volumes feed the model of reservoirId; none when it has no entry.
  std::vector<unsigned int> getReservoirSystem(unsigned int reservoirId) const;

  unsigned int getNumberOfEntriesForAverage() const { return numberOfEntriesForAverage; }
  void setNumberOfEntriesForAverage(unsigned int value) { numberOfEntriesForAverage = value; }
  const Enum<MachineLearningRegressionAverageCalculatorType>& getAverageCalculatorType() const {
    return averageCalculatorType;
  }
  void setAverageCalculatorType(MachineLearningRegressionAverageCalculatorType value);
  const Enum<MachineLearningRegressionDistanceCalculatorType>& getDistanceCalculatorType() const {
    return distanceCalculatorType;
  }
  void setDistanceCalculatorType(MachineLearningRegressionDistanceCalculatorType value);
  const Enum<MachineLearningRegressionErrorType>& getErrorType() const { return errorType; }
  void setErrorType(MachineLearningRegressionErrorType value);

 private:
  Enum<ConfigureRuleElementType> type;
  ReservoirSystems reservoirSystems;
  unsigned int numberOfEntriesForAverage = 5;
  Enum<MachineLearningRegressionAverageCalculatorType> averageCalculatorType;
  Enum<MachineLearningRegressionDistanceCalculatorType> distanceCalculatorType;
  Enum<MachineLearningRegressionErrorType> errorType;
};
