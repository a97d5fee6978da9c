#include "project/JsonSaveSettingsPriorityDemand.h"

#include <vector>

#include "project/JsonSaveBuilder.h"

using B = JsonSaveBuilder;

std::string JsonSaveSettingsPriorityDemand::toJson() const {
  const auto settings = getSettings<PrioritySettings>();
  return B::makeObject(
      {B::makeJsonKeyValue("priority", settings->getPriority()), toJsonPriorities(*settings)});
}

std::string JsonSaveSettingsPriorityDemand::toJsonPriorities(const PrioritySettings& settings) {
  std::vector<unsigned int> priorities;
  for (const auto& pair : settings.getPrioritySeries()) priorities.push_back(pair.first);
  return B::makeJsonKeyValue("priorities", B::makeVectorOfIntegerValues(priorities));
}
