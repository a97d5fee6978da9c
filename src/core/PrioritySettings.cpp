#include "core/PrioritySettings.h"

#include <stdexcept>

void PrioritySettings::setAllPriorities(unsigned int value) {
  for (auto& pair : prioritySeries) pair.first = value;
}

void PrioritySettings::setPriorityOfPairPrioritySerie(unsigned int value, unsigned int index) {
  if (index >= prioritySeries.size()) {
    throw std::out_of_range("PrioritySettings::setPriorityOfPairPrioritySerie() invalid index");
  }
  prioritySeries[index].first = value;
}

void PrioritySettings::copyPriority() { setAllPriorities(priority); }

void PrioritySettings::addPairOfPrioritySerie(const PrioritySerie& pair) {
  prioritySeries.push_back(pair);
}

void PrioritySettings::addDefaultPairOfPrioritySerie(const Interval& interval) {
  std::shared_ptr<Serie> serie = getHydrologicalStateSerie(interval);
  serie->fill(getDefaultSerieValue());
  prioritySeries.emplace_back(getDefaultPriority(), serie);
}

bool PrioritySettings::popBackPairOfPrioritySerie() {
  if (prioritySeries.empty()) return false;
  prioritySeries.pop_back();
  return true;
}

void PrioritySettings::setValueHydrologicalStateSerie(const std::shared_ptr<Serie>& serie) {
  if (!serie) {
    throw std::invalid_argument("PrioritySettings::setValueHydrologicalStateSerie(): null serie");
  }
  for (auto& pair : prioritySeries) {
    for (const auto& [julian, value] : serie->getMapOfJulianToValues()) {
      pair.second->setValue(julian, value);
    }
  }
}

void PrioritySettings::setDefaultValueHydrologicalStateSerie() {
  for (auto& pair : prioritySeries) pair.second->fill(getDefaultSerieValue());
}

void PrioritySettings::copyFrom(const std::shared_ptr<Settings>& other) {
  auto source = std::dynamic_pointer_cast<PrioritySettings>(other);
  if (!source) throw std::invalid_argument("PrioritySettings::copyFrom: invalid PrioritySettings");
  priority = source->priority;
  prioritySeries.clear();
  for (const auto& pair : source->prioritySeries) {
    prioritySeries.emplace_back(pair.first, pair.second->copy());
  }
}
