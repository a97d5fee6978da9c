#pragma once

#include <memory>

#include "core/PrioritySettings.h"

// A demand in a priority scenario. Its goal is the demand itself, m³/s; a new state asks for
// nothing, at the highest usual priority, until the user sets it.
class PriorityDemandSettings : public CopyableSettings<PriorityDemandSettings, PrioritySettings> {
 public:
  // 1.
  unsigned int getDefaultPriority() const override;
  // A demand series named "Demanda de estados hidrológico", m³/s.
  std::shared_ptr<Serie> getHydrologicalStateSerie(const Interval& interval) const override;
  // 0.0 m³/s.
  double getDefaultSerieValue() const override;
};

// A drain in a priority scenario: it takes whatever is left, so it comes last and its goal is
// unlimited.
class PriorityDrainDemandSettings
    : public CopyableSettings<PriorityDrainDemandSettings, PriorityDemandSettings> {
 public:
  // 99.
  unsigned int getDefaultPriority() const override;
  // 99999.0 m³/s, the unlimited demand of a drain.
  double getDefaultSerieValue() const override;
};
