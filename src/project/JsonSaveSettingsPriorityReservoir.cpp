#include "project/JsonSaveSettingsPriorityReservoir.h"

#include <vector>

#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveSettingsPriorityDemand.h"

using B = JsonSaveBuilder;

namespace {

constexpr unsigned int kMonths = 12;

}  // namespace

std::string JsonSaveSettingsPriorityReservoir::toJson() const {
  const auto settings = getSettings<PriorityReservoirSettings>();
  B::Members members = {
      B::makeJsonKeyValue("priority", settings->getPriority()),
      B::makeJsonKeyValue("isHydrologicalStateSystem", settings->getIsHydrologicalStateSystem()),
      JsonSaveSettingsPriorityDemand::toJsonPriorities(*settings),
      B::makeJsonKeyValue("HydrologicalZones",
                          toJsonZones(settings->getVectorOfHydrologicalZones()))};
  if (settings->initedVectorOfHydrologicalZonesMonthly()) {
    members.push_back(
        B::makeJsonKeyValue("HydrologicalZonesMonthly", toJsonMonthlyZones(*settings)));
  }
  return B::makeObject(members);
}

std::string JsonSaveSettingsPriorityReservoir::toJsonZones(
    const PriorityReservoirSettings::Zones& zones) {
  const auto zone = [](const PriorityReservoirSettings::HydrologicalZone& item) {
    return B::makeObject(
        {B::makeJsonKeyValue("value", item.value), B::makeJsonKeyValue("priority", item.priority)});
  };
  return B::makeArray(zones, zone);
}

std::string JsonSaveSettingsPriorityReservoir::toJsonMonthlyZones(
    const PriorityReservoirSettings& settings) {
  std::vector<std::string> months;
  for (unsigned int month = 0; month < kMonths; ++month) {
    months.push_back(toJsonZones(settings.getVectorOfHydrologicalZonesMonthly(month)));
  }
  return B::makeArray(months, [](const std::string& zones) { return zones; });
}
