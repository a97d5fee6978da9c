#pragma once

#include <string>

#include "vocabulary/Enum.h"
#include "vocabulary/EnumPeriodicity.h"
#include "vocabulary/EnumTypes.h"

// Factories that turn stored names and plain values into vocabulary objects. All throw
// std::invalid_argument with their own text when the key is not in the vocabulary. The by-name
// forms are those a project file goes through.

class EnumPeriodicityFactory {
 public:
  // Throws "Error: invalid periodicity name.".
  static const EnumPeriodicity& makePeriodicity(const std::string& name);
};

class EnumPeriodicityFactoryByType {
 public:
  // Throws "Error: invalid periodicity name.".
  static EnumPeriodicity make(Periodicity type);
};

class EnumUnitFactory {
 public:
  // Throws "Error: invalid unit name.".
  static const Enum<Unit>& makeUnit(const std::string& name);
};

class EnumUnitFactoryByType {
 public:
  // Throws "Error: invalid unit name."; id 13 gives "Mg", the first of the two units on it.
  static Enum<Unit> makeUnit(const Unit& type);
};

class EnumSerieTypeFactory {
 public:
  // Throws "Error: invalid serie type.".
  static const Enum<SerieType>& makeSerieType(const SerieType& type);
};

class EnumSceneryTypeFactoryByType {
 public:
  // Throws "Error: invalid scenarioType object.".
  static Enum<ScenarioType> make(const ScenarioType& type);
};

class EnumSceneryIndiatorFactoryByType {
 public:
  // Throws "Error: invalid scenarioType object.".
  static Enum<SceneryIndicator> make(const SceneryIndicator& type);
};

class SceneryTypeFactoryByString {
 public:
  // The scenario type of a stored name. Throws "SceneryTypeFactoryByString::make(): invalid
  // ScenarioType".
  static const Enum<ScenarioType>& make(const std::string& name);
};

class ExecutionTypeFactoryByString {
 public:
  // The execution type of a stored name. Throws "ExecutionTypeFactoryByString::make(): invalid
  // executionType".
  static const Enum<ExecutionType>& make(const std::string& name);
};
