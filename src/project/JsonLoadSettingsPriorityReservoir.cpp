#include "project/JsonLoadSettingsPriorityReservoir.h"

#include <stdexcept>

#include "project/JsonLoadHelper.h"
#include "project/JsonLoadSettingsPriorityDemand.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

namespace {

constexpr std::size_t kMonths = 12;

// The share and priority of a zone item, both required.
struct ZoneItem {
  explicit ZoneItem(const json& item)
      : value(Helper::getRequired<double>(item, "value")),
        priority(Helper::getRequired<unsigned int>(item, "priority")) {}
  double value;  // share of the maximum volume
  unsigned int priority;
};

void checkMonthlyShape(const json& months) {
  const std::string method = "JsonLoadSettingsPriorityReservoir::load(): ";
  if (months.size() != kMonths) {
    throw std::invalid_argument(method + "HydrologicalZonesMonthly must hold 12 months");
  }
  for (const json& month : months) {
    if (Helper::asArray(month).size() != months.front().size()) {
      throw std::invalid_argument(method +
                                  "the months of HydrologicalZonesMonthly must hold as many zones");
    }
  }
}

}  // namespace

void JsonLoadSettingsPriorityReservoir::load(const json& object) const {
  const auto settings = getSettings<PriorityReservoirSettings>();
  Helper::applyOptional<unsigned int>(object, "priority",
                                      [&](unsigned int value) { settings->setPriority(value); });
  Helper::applyOptional<bool>(object, "isHydrologicalStateSystem",
                              [&](bool value) { settings->setIsHydrologicalStateSystem(value); });
  JsonLoadSettingsPriorityDemand::loadPriorities(Helper::findRequired(object, "priorities"),
                                                 *settings, getScenario()->getInterval());
  loadZones(object, *settings);
  loadMonthlyZones(object, *settings);
}

// Zones are appended with defaults and then given their values through the setters, which refuse
// a priority above 99 and shares that add up to more than the whole reservoir.
void JsonLoadSettingsPriorityReservoir::loadZones(const json& object,
                                                  PriorityReservoirSettings& settings) const {
  bool found = false;
  const json& zones = Helper::findOptional(found, object, "HydrologicalZones");
  if (!found) return;
  settings.cleanHydrologicalZones();
  unsigned int index = 0;
  for (const json& item : Helper::asArray(zones)) {
    const ZoneItem zone(item);
    settings.addDefaultHydrologicalZone(getScenario()->getInterval());
    settings.setValueOfHydrologicalZone(zone.value, index);
    settings.setPriorityOfHydrologicalZone(zone.priority, index);
    ++index;
  }
}

void JsonLoadSettingsPriorityReservoir::loadMonthlyZones(
    const json& object, PriorityReservoirSettings& settings) const {
  bool found = false;
  const json& months = Helper::findOptional(found, object, "HydrologicalZonesMonthly");
  if (!found) return;
  checkMonthlyShape(Helper::asArray(months));
  const auto count = static_cast<unsigned int>(months.front().size());
  settings.initHydrologicalZoneMonthly(count, getScenario()->getInterval());
  for (unsigned int month = 0; month < kMonths; ++month) {
    for (unsigned int index = 0; index < count; ++index) {
      const ZoneItem zone(months[month][index]);
      settings.setValueOfHydrologicalZoneMonthly(zone.value, index, month);
      settings.setPriorityOfHydrologicalZoneMonthly(zone.priority, index, month);
    }
  }
}
