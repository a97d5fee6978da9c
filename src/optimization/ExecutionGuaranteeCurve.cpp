#include "optimization/ExecutionGuaranteeCurve.h"

#include <chrono>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/KOVACoreProgressBar.h"
#include "core/NetworkUtils.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "operation/OperationSystem.h"
#include "optimization/OptimizationUtils.h"
#include "optimization/SceneryTransformationFactory.h"
#include "rules/ConstReleaseRule.h"
#include "scenario/ScenarioManager.h"

namespace {

constexpr double kTolerance = 1e-6;
constexpr double kQ90 = 90.0;

// The seed of the runs to come: none draws from the clock.
struct SeedState {
  bool seeded = false;
  std::uint64_t next = 0;
};

// Holds a scenario in the manager, current, for as long as it lives; the manager then has back
// the scenarios and the current one it had.
class TemporaryCurrentScenario {
 public:
  explicit TemporaryCurrentScenario(const std::shared_ptr<Scenario>& scenario)
      : manager(ScenarioManager::getInstance()), previous(manager.getCurrentScenario()) {
    const unsigned int index = manager.getNumberOfSceneries();
    manager.addScenery(index, scenario);
    manager.setCurrentScenario(index);
  }
  ~TemporaryCurrentScenario() {
    manager.deleteCurrentScenery(false);
    manager.setCurrentScenario(previous);
  }
  TemporaryCurrentScenario(const TemporaryCurrentScenario&) = delete;
  TemporaryCurrentScenario& operator=(const TemporaryCurrentScenario&) = delete;

 private:
  ScenarioManager& manager;
  std::shared_ptr<Scenario> previous;
};

SeedState& seedState() {
  static SeedState state;
  return state;
}

bool isZero(double value) { return NumericalUtils::subtractDoubles(value, 0.0, kTolerance) == 0.0; }

}  // namespace

ExecutionGuaranteeCurve::ExecutionGuaranteeCurve()
    : ExecutionMethod(ExecutionType::guaranteeCurve), guaranteeValues{1,  5,  10, 15, 20, 25,
                                                                      30, 35, 40, 45, 50, 55,
                                                                      60, 65, 70, 75, 80, 85,
                                                                      90, 95, 98, 99, 100} {}

void ExecutionGuaranteeCurve::createResults(const Elements& runElements,
                                            const Interval& runInterval,
                                            const Enum<ScenarioType>& type) {
  scenarioType = type;
  createContinuousResults(runElements, runInterval, type.getType());
}

void ExecutionGuaranteeCurve::setNumberOfIterations(std::uint32_t value) {
  if (value == 0) {
    throw std::invalid_argument(
        "ExecutionGuaranteeCurve::setNumberOfIterations(): the number of iterations must be "
        "positive");
  }
  numberOfIterations = value;
}

double ExecutionGuaranteeCurve::getQGuarantee(unsigned int reservoirId, double guarantee) const {
  for (std::size_t row = 0; row < guaranteeStr.guarantees.size(); ++row) {
    if (!NumericalUtils::compareDoubles(guaranteeStr.guarantees[row], guarantee, kTolerance)) {
      continue;
    }
    for (std::size_t column = 0; column < guaranteeStr.reservoirIds.size(); ++column) {
      if (guaranteeStr.reservoirIds[column] == reservoirId) return guaranteeStr.values[row][column];
    }
  }
  return 0.0;
}

void ExecutionGuaranteeCurve::setGuaranteeValues(const std::vector<double>& values) {
  for (double level : values) {
    if (!(level > 0.0 && level <= 100.0)) {
      throw std::invalid_argument(
          "ExecutionGuaranteeCurve::setGuaranteeValues(): a guarantee must be above 0 and at most "
          "100");
    }
  }
  guaranteeValues = values;
}

void ExecutionGuaranteeCurve::setSeed(std::uint64_t n) { seedState() = {true, n}; }

std::uint32_t ExecutionGuaranteeCurve::nextSeed() {
  SeedState& state = seedState();
  if (!state.seeded) {
    return static_cast<std::uint32_t>(std::chrono::system_clock::now().time_since_epoch().count());
  }
  return static_cast<std::uint32_t>(state.next++);
}

double ExecutionGuaranteeCurve::draw() {
  // Two outputs make one draw, as the standard canonical uniform does, written out so that every
  // standard library gives the same number; 1.0 is kept out of [0, 1).
  const double low = generator();
  const double high = generator();
  const double r = (low + high * 4294967296.0) / 18446744073709551616.0;
  return r < 1.0 ? r : std::nextafter(1.0, 0.0);
}

bool ExecutionGuaranteeCurve::run(const Interval& runInterval,
                                  const std::shared_ptr<OperationSystem>& operation,
                                  const Progress& progress) {
  reservoirFailMap.clear();
  simulations = 0;
  const std::vector<double> levels = onlyQ90 ? std::vector<double>{kQ90} : guaranteeValues;
  KOVACoreProgressBar bar(0, static_cast<unsigned int>(levels.size()), progress);
  const Elements reservoirs = curveReservoirs();
  Rules rules;
  giveConstantRules(reservoirs, rules);
  operationSystem = operation;
  interval = runInterval;
  clearGuaranteeStr();
  generator.seed(nextSeed());
  std::map<unsigned int, double> start;
  for (const auto& reservoir : reservoirs) {
    guaranteeStr.reservoirIds.push_back(reservoir->getId());
    start[reservoir->getId()] = levels.empty() ? 0.0 : startValue(*reservoir, levels.front());
  }
  const unsigned int periods = runInterval.period();
  try {
    for (double level : levels) {
      const double target = NumericalUtils::getNearGuarantee(level, periods);
      std::vector<double> row;
      for (const auto& reservoir : reservoirs) {
        ConstReleaseRule& rule = *rules.at(reservoir->getId());
        const double best = search(*reservoir, rule, start[reservoir->getId()], target, bar);
        if (isZero(best)) {
          reservoirFailMap[reservoir->getId()] = reservoir->getName();
          break;
        }
        rule.setRelease(best);
        start[reservoir->getId()] = best;
        row.push_back(best);
      }
      bar.updateWithThrow();
      if (row.size() == reservoirs.size()) {
        guaranteeStr.guarantees.push_back(level);
        guaranteeStr.values.push_back(row);
      }
    }
  } catch (const KOVACoreProgressBar::ProgressCancelException&) {
    clearGuaranteeStr();
    restoreRules();
    return false;
  } catch (...) {
    // The user's rules come back whatever ended the run.
    restoreRules();
    throw;
  }
  restoreRules();
  return true;
}

ExecutionGuaranteeCurve::Elements ExecutionGuaranteeCurve::curveReservoirs() const {
  Elements marked;
  const Elements ordered = ElementsFilter::filterByType(
      NetworkUtils::levelOrderLegacy(ElementsFilter::filterByEnabledElements(elements)),
      ElementSets::reservoir());
  for (const auto& reservoir : ordered) {
    const auto settings = settingsManager
                              ? std::dynamic_pointer_cast<ReservoirGuaranteeCurveSettings>(
                                    settingsManager->getSettings(reservoir->getId()))
                              : nullptr;
    if (settings && settings->getIsGuaranteeCurve()) marked.push_back(reservoir);
  }
  return marked;
}

void ExecutionGuaranteeCurve::giveConstantRules(const Elements& reservoirs, Rules& rules) {
  backup.clear();
  for (const auto& reservoir : reservoirs) {
    auto settings = std::static_pointer_cast<ReservoirRuleSettings>(
        settingsManager->getSettings(reservoir->getId()));
    backup[reservoir->getId()] = settings->getRule();
    auto rule = std::make_shared<ConstReleaseRule>();
    rule->setRelease(0.0);
    settings->setRule(rule);
    rules[reservoir->getId()] = rule;
  }
}

void ExecutionGuaranteeCurve::restoreRules() {
  for (const auto& [id, rule] : backup) {
    std::static_pointer_cast<ReservoirRuleSettings>(settingsManager->getSettings(id))
        ->setRule(rule);
  }
  backup.clear();
}

double ExecutionGuaranteeCurve::startValue(const Element& reservoir, double firstLevel) const {
  double sum = 0.0;
  std::size_t count = 0;
  for (const auto& [julian, value] :
       reservoir.getInputSerie(SerieType::naturalIncrementalFlow)->getMapOfJulianToValues()) {
    if (NumericalUtils::isEmpty(value)) continue;
    sum += value;
    ++count;
  }
  const double mean = count == 0 ? 0.0 : sum / static_cast<double>(count);
  return mean * 0.9 / (firstLevel / 100.0);
}

double ExecutionGuaranteeCurve::search(const Element& reservoir, ConstReleaseRule& rule, double q,
                                       double target, const KOVACoreProgressBar& bar) {
  double best = 0.0;
  for (std::uint32_t iteration = 0; iteration < numberOfIterations; ++iteration) {
    rule.setRelease(q);
    simulate(reservoir);
    const ReservoirStr entry = trial(reservoir, rule, target);
    if (entry.found && NumericalUtils::subtractDoubles(entry.q, best, kTolerance) > 0.0) {
      best = entry.q;
    }
    const double diff = NumericalUtils::subtractDoubles(entry.guarantee, target, kTolerance);
    const double r = draw();
    if (!bar.poll()) throw KOVACoreProgressBar::ProgressCancelException();
    if (diff == 0.0) break;
    q = q + (r * 0.04 + 0.01) * diff * q * 0.5;
    if (isZero(q) || q < 0.0) break;
  }
  return best;
}

ExecutionGuaranteeCurve::ReservoirStr ExecutionGuaranteeCurve::trial(const Element& reservoir,
                                                                     const ConstReleaseRule& rule,
                                                                     double target) const {
  const double q = rule.getRelease();
  ReservoirStr entry;
  entry.guarantee = OptimizationUtils::guaranteeOf(reservoir, q, interval);
  if (NumericalUtils::subtractDoubles(entry.guarantee, target, kTolerance) >= 0.0) {
    entry.found = true;
    entry.q = q;
  }
  return entry;
}

void ExecutionGuaranteeCurve::simulate(const Element& reservoir) {
  ++simulations;
  restartContinuousResults(elements, interval, scenarioType.getType());
  if (isolated) {
    runIsolated(reservoir);
  } else {
    operationSystem->runInterval(interval);
  }
}

void ExecutionGuaranteeCurve::runIsolated(const Element& reservoir) {
  ScenarioManager& manager = ScenarioManager::getInstance();
  const std::shared_ptr<Scenario> current = manager.getCurrentScenario();
  if (!current) {
    throw std::logic_error("ExecutionGuaranteeCurve::runIsolated(): no current scenario");
  }
  const auto ruleScenario =
      SceneryTransformationFactory::make(static_cast<int>(ScenarioType::guaranteeCurve),
                                         static_cast<int>(ScenarioType::ruleSimulator))
          ->transform(*current, manager.getNextScenarioId());
  {
    TemporaryCurrentScenario held(ruleScenario);
    if (!ruleScenario->runIsolated(nullptr)) {
      throw std::runtime_error("ExecutionGuaranteeCurve::runIsolated(): " +
                               ruleScenario->getSceneryStatus().getName());
    }
  }
  reservoir.getOutputSerie(SerieType::releasedFlow, 0)
      ->copyFrom(
          ruleScenario->getElement(reservoir.getId())->getOutputSerie(SerieType::releasedFlow, 0));
}

std::shared_ptr<ExecutionMethod> ExecutionGuaranteeCurve::copySpecific() const {
  auto copy = std::make_shared<ExecutionGuaranteeCurve>();
  copy->guaranteeValues = guaranteeValues;
  copy->numberOfIterations = numberOfIterations;
  copy->guaranteeStr = guaranteeStr;
  copy->reservoirFailMap = reservoirFailMap;
  copy->onlyQ90 = onlyQ90;
  copy->isolated = isolated;
  return copy;
}
