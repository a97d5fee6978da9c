#include "rules/ReleaseRule.h"

void ReleaseRule::loadAfterScenarioInstantiated(const std::shared_ptr<Scenario>&) {}
