#include "core/PriorityDemandSettings.h"

#include "common/SerieFactory.h"
#include "vocabulary/Vocabulary.h"

unsigned int PriorityDemandSettings::getDefaultPriority() const { return 1; }

std::shared_ptr<Serie> PriorityDemandSettings::getHydrologicalStateSerie(
    const Interval& interval) const {
  return SerieFactory::make(Enum<SerieType>(SerieType::demand, "Demanda de estados hidrológico"),
                            Vocabulary::of(Vocabulary::unitOf(SerieType::demand)), interval);
}

double PriorityDemandSettings::getDefaultSerieValue() const { return 0.0; }

unsigned int PriorityDrainDemandSettings::getDefaultPriority() const { return 99; }

double PriorityDrainDemandSettings::getDefaultSerieValue() const { return 99999.0; }
