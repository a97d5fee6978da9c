#include "optimization/OptimizationUtils.h"

#include <cmath>
#include <stdexcept>

#include "common/PeriodWalker.h"
#include "core/ReservoirRuleSettings.h"
#include "optimization/kernel/XReal.h"
#include "rules/OptReleaseRule.h"

namespace {

constexpr double kReleaseTolerance = 1e-6;  // m³/s

std::shared_ptr<OptReleaseRule> optRuleOf(const std::shared_ptr<Element>& element,
                                          const SettingsManager& settingsManager) {
  if (!element->isEnabled()) return nullptr;
  const auto settings = std::dynamic_pointer_cast<ReservoirRuleSettings>(
      settingsManager.getSettings(element->getId()));
  return settings ? std::dynamic_pointer_cast<OptReleaseRule>(settings->getRule()) : nullptr;
}

}  // namespace

unsigned int OptimizationUtils::getNumOfDecisionVars(const Elements& elements,
                                                     const SettingsManager& settingsManager) {
  unsigned int count = 0;
  for (const auto& element : elements) {
    if (const auto rule = optRuleOf(element, settingsManager)) count += rule->getNumOfDecisionVars();
  }
  return count;
}

std::vector<double> OptimizationUtils::makeVectorFromSolution(Solution* solution) {
  const XReal values(solution);
  std::vector<double> vector;
  for (int i = 0; i < values.getNumberOfDecisionVariables(); ++i) {
    vector.push_back(values.getValue(i));
  }
  return vector;
}

void OptimizationUtils::setDecisionVars(const std::vector<double>& values,
                                        const Elements& elements,
                                        const SettingsManager& settingsManager) {
  if (values.size() != getNumOfDecisionVars(elements, settingsManager)) {
    throw std::invalid_argument(
        "OptimizationUtils::setDecisionVars(): Invalid num of elements in values");
  }
  auto next = values.begin();
  for (const auto& element : elements) {
    const auto rule = optRuleOf(element, settingsManager);
    if (!rule) continue;
    const auto end = next + rule->getNumOfDecisionVars();
    rule->setDecisionVars(std::vector<double>(next, end));
    next = end;
  }
}

double OptimizationUtils::guaranteeOf(const Element& reservoir, double q,
                                      const Interval& interval) {
  const auto& released = reservoir.getOutputSerie(SerieType::releasedFlow, 0);
  unsigned int periods = 0;
  unsigned int successes = 0;
  PeriodWalker::forEach(interval, [&](const Date& date) {
    ++periods;
    if (std::fabs(q - released->getValue(date)) <= kReleaseTolerance) ++successes;
  });
  return periods == 0 ? 0.0 : successes * 100.0 / periods;
}
