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
  // Without a line that releases something the node passes nothing on: the water that reaches
  // it would leave the network unseen.
  const auto node = std::static_pointer_cast<Node>(this->getElement());
  if (!node->getEnabledDownstreamLinks().empty()) {
    AllocationMatrixCheck::checkTheMatrixReleasesSomething(
        settings->getAllocation(), *this->getElement(), this->mutableErrors());
  }
}

template class RuleSharingCheck<BasinCheck>;
template class RuleSharingCheck<JunctionCheck>;
