#include "checks/PriorityReservoirCheck.h"

#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "core/HydrologicalStateConfiguration.h"
#include "core/Scenario.h"

namespace {

constexpr double kEps = 1e-6;
constexpr unsigned int kMinPriority = 1;
constexpr unsigned int kMaxPriority = 99;
constexpr unsigned int kMonths = 12;

bool validPriority(unsigned int priority) {
  return priority >= kMinPriority && priority <= kMaxPriority;
}

const std::string kInvalidPriority = "Valor de prioridade inválido em:";

}  // namespace

PriorityReservoirCheck::PriorityReservoirCheck(std::shared_ptr<Element> element,
                                               std::weak_ptr<Scenario> scenario)
    : ReservoirCheck(std::move(element),
                     {SerieType::precipitation, SerieType::evaporation,
                      SerieType::naturalIncrementalFlow, SerieType::targetVolume},
                     std::move(scenario)) {}

void PriorityReservoirCheck::runChecks() {
  ReservoirCheck::runChecks();
  static const std::vector<void (PriorityReservoirCheck::*)()> table = {
      &PriorityReservoirCheck::checkPriority,
      &PriorityReservoirCheck::checkTargetVolumeValue,
      &PriorityReservoirCheck::checkHydrologicalState,
      &PriorityReservoirCheck::checkHydrologicalStatePerReservoir,
      &PriorityReservoirCheck::checkHydrologicalStatePerReservoirMonthly,
  };
  runTable(this, table);
}

void PriorityReservoirCheck::checkPriority() {
  if (!validPriority(settings()->getPriority())) report(kInvalidPriority);
}

// An empty value is told by the series check already.
void PriorityReservoirCheck::checkTargetVolumeValue() {
  const auto target = reservoir().getInputSerie(SerieType::targetVolume);
  bool aboveOne = false;
  bool belowMinimum = false;
  PeriodWalker::forEach(getScenario()->getInterval(), [&](const Date& date) {
    const double share = target->getValue(date);
    if (NumericalUtils::isEmpty(share)) return;
    aboveOne = aboveOne || NumericalUtils::subtractDoubles(share, 1.0, kEps) > 0.0;
    belowMinimum = belowMinimum || NumericalUtils::subtractDoubles(share * info().maxVol,
                                                                   info().minVol, kEps) < 0.0;
  });
  if (aboveOne) report("Valor maior que 1:");
  if (belowMinimum) report("(Valor * volume máximo) menor que o volume mínimo:");
}

void PriorityReservoirCheck::checkHydrologicalState() {
  if (stateType() != HydrologicalStateType::standard) return;
  const auto& states = settings()->getPrioritySeries();
  const auto count = static_cast<unsigned int>(states.size());
  for (unsigned int state = 0; state < count; ++state) {
    if (!validPriority(states[state].first)) report(kInvalidPriority);
    checkStateSerie(states[state].second, state, count);
  }
}

void PriorityReservoirCheck::checkHydrologicalStatePerReservoir() {
  if (stateType() != HydrologicalStateType::perReservoir) return;
  checkZones(settings()->getVectorOfHydrologicalZones());
}

void PriorityReservoirCheck::checkHydrologicalStatePerReservoirMonthly() {
  if (stateType() != HydrologicalStateType::perReservoirMonthly) return;
  const auto reservoirSettings = settings();
  if (!reservoirSettings->initedVectorOfHydrologicalZonesMonthly()) {
    report("Estado hidrológico por reservatório mensal não configurado em:");
    return;
  }
  for (unsigned int month = 0; month < kMonths; ++month) {
    checkZones(reservoirSettings->getVectorOfHydrologicalZonesMonthly(month));
  }
}

void PriorityReservoirCheck::checkZones(const PriorityReservoirSettings::Zones& zones) {
  const auto count = static_cast<unsigned int>(zones.size());
  for (unsigned int zone = 0; zone < count; ++zone) {
    if (!validPriority(zones[zone].priority)) report(kInvalidPriority);
    checkStateSerie(zones[zone].serie, zone, count);
  }
}

std::shared_ptr<PriorityReservoirSettings> PriorityReservoirCheck::settings() const {
  return Scenario::getSettings<PriorityReservoirSettings>(getElement(),
                                                          getScenario()->getSettingsManager());
}

HydrologicalStateType PriorityReservoirCheck::stateType() const {
  return getScenario()
      ->getHydrologicalStateConfiguration()
      ->getCurrentHydrologicalStateType()
      .getType();
}
