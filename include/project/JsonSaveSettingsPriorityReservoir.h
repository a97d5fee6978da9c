#pragma once

#include <string>

#include "core/PriorityReservoirSettings.h"
#include "project/JsonSaveSettings.h"

// Writes a reservoir's settings in a priority scenario: "priority", "isHydrologicalStateSystem",
// "priorities" (one per hydrological state), "HydrologicalZones" ([{"value":share,"priority":p},
// ...], lowest zone first) and, once the reservoir has monthly zones, "HydrologicalZonesMonthly",
// twelve such lists from January. The target series of states and zones are kept in the
// project's database.
class JsonSaveSettingsPriorityReservoir : public JsonSaveSettings {
 public:
  using JsonSaveSettings::JsonSaveSettings;
  std::string toJson() const override;

 private:
  static std::string toJsonZones(const PriorityReservoirSettings::Zones& zones);
  static std::string toJsonMonthlyZones(const PriorityReservoirSettings& settings);
};
