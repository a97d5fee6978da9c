#include "checks/NodeRuleChecks.h"

#include "checks/AllocationMatrixCheck.h"
#include "core/Node.h"
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
  // With two links or more downstream the matrix alone shares the water: one without a line
  // that releases something (the line of zeros a node is made with) would share it by no rule
  // the user gave. A single link takes the whole remainder, whatever the matrix.
  const auto node = std::static_pointer_cast<Node>(this->getElement());
  if (node->getEnabledDownstreamLinks().size() > 1) {
    AllocationMatrixCheck::checkTheMatrixReleasesSomething(
        settings->getAllocation(), *this->getElement(), this->mutableErrors());
  }
}

template class RuleSharingCheck<BasinCheck>;
template class RuleSharingCheck<JunctionCheck>;
