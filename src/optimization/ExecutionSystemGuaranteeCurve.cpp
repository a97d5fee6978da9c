#include "optimization/ExecutionSystemGuaranteeCurve.h"

#include <algorithm>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "core/ReservoirRuleSettings.h"
#include "optimization/OptimizationUtils.h"
#include "optimization/kernel/Solution.h"
#include "rules/OptConstReleaseRule.h"

namespace {

constexpr double kTolerance = 1e-6;
constexpr double kQ90 = 90.0;

}  // namespace

ExecutionSystemGuaranteeCurve::ExecutionSystemGuaranteeCurve()
    : SwarmExecution(ExecutionType::systemGuaranteeCurve, "ExecutionSystemGuaranteeCurve") {}

const std::vector<double>& ExecutionSystemGuaranteeCurve::getGuaranteeValues() {
  static const std::vector<double> levels{1,  5,  10, 15, 20, 25, 30, 35, 40, 45, 50, 55,
                                          60, 65, 70, 75, 80, 85, 90, 95, 98, 99, 100};
  return levels;
}

void ExecutionSystemGuaranteeCurve::configureAlgorithm(OptimizationAlgorithmType type) {
  configureKeepingNumbers(type);
}

void ExecutionSystemGuaranteeCurve::clearSystemGuaranteeCurveStr() {
  curve.guarantees.clear();
  curve.guaranteeCurveValues.clear();
}

double ExecutionSystemGuaranteeCurve::getQGuarantee(double guarantee) const {
  for (std::size_t row = 0; row < curve.guarantees.size(); ++row) {
    if (NumericalUtils::compareDoubles(curve.guarantees[row], guarantee, kTolerance)) {
      return curve.guaranteeCurveValues[row];
    }
  }
  return 0.0;
}

bool ExecutionSystemGuaranteeCurve::run(const Interval& runInterval,
                                        const std::shared_ptr<OperationSystem>& operation,
                                        const Progress& progress) {
  clearSystemGuaranteeCurveStr();
  requireAlgorithm();
  const auto& values = getGuaranteeValues();
  startProgress(
      static_cast<unsigned int>(values.size()) * getAlgorithmParameters()->getNumberOfRuns(),
      progress);
  prepareSimulation(operation, runInterval, getResultsKind());
  const unsigned int periods = runInterval.period();
  const std::vector<double> levels = onlyQ90 ? std::vector<double>{kQ90} : values;
  try {
    for (double level : levels) {
      const double flow = runLevel(level, periods);
      if (NumericalUtils::compareDoubles(flow, 0.0, kTolerance)) continue;
      curve.guarantees.push_back(level);
      curve.guaranteeCurveValues.push_back(flow);
    }
  } catch (const KOVACoreProgressBar::ProgressCancelException&) {
    clearSystemGuaranteeCurveStr();
    return false;
  }
  return true;
}

double ExecutionSystemGuaranteeCurve::runLevel(double level, unsigned int periods) {
  currentGuarantee = level;
  nearGuarantee = NumericalUtils::getNearGuarantee(level, periods);
  found = false;
  reconfigureAlgorithm();
  auto& algorithm = *getOptimizationAlgorithm();
  algorithm.initialize();
  algorithm.run();
  const auto objectives = algorithm.makeMatrixOfObjetiveFunctions();
  return objectives.empty() || objectives.front().empty() ? 0.0 : -objectives.front().front();
}

std::shared_ptr<Element> ExecutionSystemGuaranteeCurve::outReservoir() const {
  const auto& elements = getElements();
  const auto it = std::find_if(elements.begin(), elements.end(), [this](const auto& element) {
    return element->getId() == curve.outSystemReservoirId;
  });
  return it == elements.end() ? nullptr : *it;
}

std::vector<double> ExecutionSystemGuaranteeCurve::measure() const {
  const auto reservoir = outReservoir();
  const auto rule = reservoir ? std::dynamic_pointer_cast<OptConstReleaseRule>(
                                    std::static_pointer_cast<ReservoirRuleSettings>(
                                        getSettingsManager()->getSettings(reservoir->getId()))
                                        ->getRule())
                              : nullptr;
  if (!rule) {
    throw std::logic_error(
        "ExecutionSystemGuaranteeCurve: the out reservoir has no optimisable constant rule");
  }
  const double q = rule->getRelease();
  return {q, OptimizationUtils::guaranteeOf(*reservoir, q, getRunInterval())};
}

void ExecutionSystemGuaranteeCurve::setObjectiveFunctionValue(Solution* solution,
                                                              const std::vector<double>& measures) {
  if (found) {
    solution->setObjective(0, -foundValue);
    return;
  }
  const double q = measures[0];
  const double g = measures[1];
  if (NumericalUtils::subtractDoubles(g, currentGuarantee, kTolerance) < 0.0) {
    solution->setObjective(0, 0.0);
    return;
  }
  solution->setObjective(0, -q);
  if (NumericalUtils::compareDoubles(g, nearGuarantee, kTolerance)) {
    found = true;
    foundValue = q;
  }
}

std::shared_ptr<ExecutionMethod> ExecutionSystemGuaranteeCurve::copySpecific() const {
  auto copy = std::make_shared<ExecutionSystemGuaranteeCurve>();
  copy->curve = curve;
  copy->onlyQ90 = onlyQ90;
  copySwarmInto(*copy);
  return copy;
}
