#pragma once

#include <nlohmann/json.hpp>

#include "common/Interval.h"
#include "core/PrioritySettings.h"
#include "project/JsonLoadSettings.h"

// Reads a demand's settings in a priority scenario (drains included): the optional "priority"
// and "priorities". The goal series are kept in the project's database, not in the file: the
// settings get one hydrological state per listed priority, each with a new goal series that asks
// for the default goal until the database fills it. Without "priorities" the states made when
// the demand joined the scenario stay.
class JsonLoadSettingsPriorityDemand : public JsonLoadSettings {
 public:
  using JsonLoadSettings::JsonLoadSettings;
  void load(const nlohmann::json& object) const override;

  // Replaces the states of settings by one per priority of the array priorities, each with a new
  // goal series over interval. Throws nlohmann::json::type_error for anything but an array of
  // integers.
  static void loadPriorities(const nlohmann::json& priorities, PrioritySettings& settings,
                             const Interval& interval);
};
