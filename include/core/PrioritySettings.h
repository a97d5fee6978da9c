#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "common/Interval.h"
#include "common/Serie.h"
#include "core/Settings.h"

// The settings of an element that consumes water in a priority scenario. The element has a
// priority of its own (0 the most important), used when the scenario has no hydrological states,
// and one pair per hydrological state: the priority in that state and the series of the goal in
// that state. What the goal is (a target volume, a demand) and its defaults depend on the kind of
// element, which the subclasses give.
class PrioritySettings : public Settings {
 public:
  using PrioritySerie = std::pair<unsigned int, std::shared_ptr<Serie>>;

  unsigned int getPriority() const { return priority; }
  void setPriority(unsigned int value) { priority = value; }

  // One pair per hydrological state, in the order of the states.
  const std::vector<PrioritySerie>& getPrioritySeries() const { return prioritySeries; }
  void clearPrioritySeries() { prioritySeries.clear(); }
  // Gives every state the same priority.
  void setAllPriorities(unsigned int value);
  // Gives the state at index the priority. Throws std::out_of_range
  // "PrioritySettings::setPriorityOfPairPrioritySerie() invalid index" past the last state.
  void setPriorityOfPairPrioritySerie(unsigned int value, unsigned int index);
  // Gives every state the element's own priority.
  void copyPriority();

  // Appends a state: the pair is kept as given, its series shared with the caller.
  void addPairOfPrioritySerie(const PrioritySerie& pair);
  // Appends a state with the default priority and a new goal series over interval, filled with
  // the default goal.
  void addDefaultPairOfPrioritySerie(const Interval& interval);
  // Removes the last state; false when there was none.
  bool popBackPairOfPrioritySerie();

  // Writes the values of serie, date by date, into the goal series of every state. Throws
  // std::invalid_argument "PrioritySettings::setValueHydrologicalStateSerie(): null serie".
  void setValueHydrologicalStateSerie(const std::shared_ptr<Serie>& serie);
  // Fills the goal series of every state with the default goal over its own interval.
  void setDefaultValueHydrologicalStateSerie();

  // Takes the priority and copies of the states of other. Throws std::invalid_argument
  // "PrioritySettings::copyFrom: invalid PrioritySettings" when other is not priority settings.
  void copyFrom(const std::shared_ptr<Settings>& other) override;

  // The priority a new state starts with.
  virtual unsigned int getDefaultPriority() const = 0;
  // A new, empty goal series of this kind of element over interval.
  virtual std::shared_ptr<Serie> getHydrologicalStateSerie(const Interval& interval) const = 0;
  // The goal a new state starts with, in the unit of the goal series.
  virtual double getDefaultSerieValue() const = 0;

 private:
  // A new demand starts valid (1..99); reservoirs and drains are made with 99 by the factory.
  unsigned int priority = 1;
  std::vector<PrioritySerie> prioritySeries;
};
