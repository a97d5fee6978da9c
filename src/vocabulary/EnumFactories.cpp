#include "vocabulary/EnumFactories.h"

#include <stdexcept>

#include "vocabulary/Vocabulary.h"

namespace {

template <typename Row>
const Row& found(const Row* row, const char* message) {
  if (row == nullptr) throw std::invalid_argument(message);
  return *row;
}

constexpr const char* kInvalidPeriodicity = "Error: invalid periodicity name.";
constexpr const char* kInvalidUnit = "Error: invalid unit name.";
constexpr const char* kInvalidScenarioType = "Error: invalid scenarioType object.";

}  // namespace

const EnumPeriodicity& EnumPeriodicityFactory::makePeriodicity(const std::string& name) {
  return found(Vocabulary::periodicities().findByName(name), kInvalidPeriodicity);
}

EnumPeriodicity EnumPeriodicityFactoryByType::make(Periodicity type) {
  return found(Vocabulary::periodicities().findByType(type), kInvalidPeriodicity);
}

const Enum<Unit>& EnumUnitFactory::makeUnit(const std::string& name) {
  return found(Vocabulary::units().findByName(name), kInvalidUnit);
}

Enum<Unit> EnumUnitFactoryByType::makeUnit(const Unit& type) {
  return found(Vocabulary::units().findByType(type), kInvalidUnit);
}

const Enum<SerieType>& EnumSerieTypeFactory::makeSerieType(const SerieType& type) {
  return found(Vocabulary::serieTypes().findByType(type), "Error: invalid serie type.");
}

Enum<ScenarioType> EnumSceneryTypeFactoryByType::make(const ScenarioType& type) {
  return found(Vocabulary::scenarioTypes().findByType(type), kInvalidScenarioType);
}

Enum<SceneryIndicator> EnumSceneryIndiatorFactoryByType::make(const SceneryIndicator& type) {
  return found(Vocabulary::sceneryIndicators().findByType(type), kInvalidScenarioType);
}

const Enum<ScenarioType>& SceneryTypeFactoryByString::make(const std::string& name) {
  return found(Vocabulary::scenarioTypes().findByName(name),
               "SceneryTypeFactoryByString::make(): invalid ScenarioType");
}

const Enum<ExecutionType>& ExecutionTypeFactoryByString::make(const std::string& name) {
  return found(Vocabulary::executionTypes().findByName(name),
               "ExecutionTypeFactoryByString::make(): invalid executionType");
}
