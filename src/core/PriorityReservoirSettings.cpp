#include "core/PriorityReservoirSettings.h"

#include <stdexcept>

#include "common/SerieFactory.h"
#include "core/Vocabulary.h"

unsigned int PriorityReservoirSettings::getDefaultPriority() const { return 99; }

std::shared_ptr<Serie> PriorityReservoirSettings::getHydrologicalStateSerie(
    const Interval& interval) const {
  return SerieFactory::make(Vocabulary::of(SerieType::targetVolume),
                            Vocabulary::of(Vocabulary::unitOf(SerieType::targetVolume)), interval);
}

double PriorityReservoirSettings::getDefaultSerieValue() const { return 1.0; }

void PriorityReservoirSettings::copyFrom(const std::shared_ptr<Settings>& other) {
  auto source = std::dynamic_pointer_cast<PriorityReservoirSettings>(other);
  if (!source) throw std::invalid_argument("PrioritySettings::copyFrom: invalid PrioritySettings");
  PrioritySettings::copyFrom(other);
  isHydrologicalStateSystem = source->isHydrologicalStateSystem;
}
