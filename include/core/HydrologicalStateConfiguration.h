#pragma once

#include <memory>
#include <vector>

#include "vocabulary/Enum.h"
#include "vocabulary/EnumTypes.h"

class Scenario;

// The hydrological states of a priority scenario. With the type "Padrão" the system's capacity
// (the maximum volumes of the reservoirs marked as part of the system) is cut by the shares
// xValues into getNumOfStates() states, and every reservoir and demand has one priority and one
// goal per state. The per-reservoir types keep their zones in each reservoir's settings.
class HydrologicalStateConfiguration {
 public:
  HydrologicalStateConfiguration();

  // The shares of the system's capacity at which one state ends and the next begins.
  const std::vector<double>& getXValues() const { return xValues; }
  // Stores values after testing the shares held so far: new shares are first tested at the next
  // call. Throws std::invalid_argument "HydrologicalStateConfiguration::setXValues(): Sum of
  // xValues greater than 1.0" when the held shares add up to more than 1.0 (by 1e-06).
  void setXValues(const std::vector<double>& values);
  // Sets one share. Throws std::out_of_range "PriorityScenario::setHydrologicalStateXValue:
  // invalid index" past the last share.
  void setXValueByIndex(unsigned int index, double value);
  // True when the shares add up to at most 1.0 (within 1e-06).
  bool isXValuesValid() const;

  // "Sem" by default.
  const Enum<HydrologicalStateType>& getCurrentHydrologicalStateType() const {
    return currentHydrologicalStateType;
  }
  void setCurrentHydrologicalStateType(const Enum<HydrologicalStateType>& type) {
    currentHydrologicalStateType = type;
  }

  // One more than the number of shares: two by default.
  unsigned int getNumOfStates() const { return static_cast<unsigned int>(xValues.size()) + 1; }
  // Sets the number of states: shares of 0.0 are added at the top, or the top ones removed, and
  // every reservoir and demand of scenario gains default states or loses its top ones to match.
  // Throws std::invalid_argument "HydrologicalStateConfiguration::setNumOfStates(): at least one
  // state" for 0.
  void setNumOfStates(unsigned int numOfStates, const std::shared_ptr<Scenario>& scenario);
  // The number of zones a reservoir gets in each month when its monthly zones are made.
  unsigned int getNumOfStatesMonthly() const { return numOfStatesMonthly; }
  void setNumOfStatesMonthly(unsigned int value) { numOfStatesMonthly = value; }

  // A copy with the same shares, type and monthly count.
  std::shared_ptr<HydrologicalStateConfiguration> copy() const;

 private:
  std::vector<double> xValues = {0.0};
  unsigned int numOfStatesMonthly = 3;
  Enum<HydrologicalStateType> currentHydrologicalStateType;
};
