#pragma once

#include <nlohmann/json.hpp>

#include "core/PriorityReservoirSettings.h"
#include "project/JsonLoadSettings.h"

// Reads a reservoir's settings in a priority scenario: the optional "priority" and
// "isHydrologicalStateSystem", the required "priorities", the optional "HydrologicalZones" and
// "HydrologicalZonesMonthly" (twelve lists, January first, each with the same number of zones),
// every zone with its "value" and "priority" required. As for demands, states and zones come with
// new target series that ask for the default goal until the project's database fills them.
class JsonLoadSettingsPriorityReservoir : public JsonLoadSettings {
 public:
  using JsonLoadSettings::JsonLoadSettings;
  // As JsonLoadSettings::load(); also throws std::invalid_argument
  // "JsonLoadSettingsPriorityReservoir::load(): HydrologicalZonesMonthly must hold 12 months" and
  // "JsonLoadSettingsPriorityReservoir::load(): the months of HydrologicalZonesMonthly must hold
  // as many zones", and the zone setters' exceptions for a share or priority they refuse.
  void load(const nlohmann::json& object) const override;

 private:
  void loadZones(const nlohmann::json& object, PriorityReservoirSettings& settings) const;
  void loadMonthlyZones(const nlohmann::json& object, PriorityReservoirSettings& settings) const;
};
