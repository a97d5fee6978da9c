#include "checks/NodeRuleChecks.h"

#include "checks/AllocationMatrixCheck.h"
#include "core/RuleSettings.h"
#include "core/Scenario.h"

template <typename Base>
void RuleSharingCheck<Base>::runChecks() {
  Base::runChecks();
  const auto settings = Scenario::getSettings<RuleSettings>(
      this->getElement(), this->getScenario()->getSettingsManager());
  AllocationMatrixCheck::checkReleasesInLinesOfMatrix(settings->getAllocation(),
                                                      *this->getElement(), this->mutableErrors());
  AllocationMatrixCheck::checkTheSumOfMatrixEqual(settings->getAllocation(), *this->getElement(),
                                                  this->mutableErrors());
}

template class RuleSharingCheck<BasinCheck>;
template class RuleSharingCheck<JunctionCheck>;
