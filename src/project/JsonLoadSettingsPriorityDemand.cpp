#include "project/JsonLoadSettingsPriorityDemand.h"

#include <vector>

#include "project/JsonLoadHelper.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

void JsonLoadSettingsPriorityDemand::load(const json& object) const {
  const auto settings = getSettings<PrioritySettings>();
  Helper::applyOptional<unsigned int>(object, "priority",
                                      [&](unsigned int value) { settings->setPriority(value); });
  bool found = false;
  const json& priorities = Helper::findOptional(found, object, "priorities");
  if (found) loadPriorities(priorities, *settings, getScenario()->getInterval());
}

void JsonLoadSettingsPriorityDemand::loadPriorities(const json& priorities,
                                                    PrioritySettings& settings,
                                                    const Interval& interval) {
  const auto values = Helper::get<std::vector<unsigned int>>(priorities);
  settings.clearPrioritySeries();
  for (unsigned int state = 0; state < values.size(); ++state) {
    settings.addDefaultPairOfPrioritySerie(interval);
    settings.setPriorityOfPairPrioritySerie(values[state], state);
  }
}
