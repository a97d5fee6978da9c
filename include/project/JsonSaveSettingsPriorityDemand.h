#pragma once

#include <string>

#include "core/PrioritySettings.h"
#include "project/JsonSaveSettings.h"

// Writes a demand's settings in a priority scenario (drains included):
// {"priority":p,"priorities":[...]}, its own priority and its priority in each hydrological
// state. The goal series of the states are kept in the project's database.
class JsonSaveSettingsPriorityDemand : public JsonSaveSettings {
 public:
  using JsonSaveSettings::JsonSaveSettings;
  std::string toJson() const override;

  // "priorities":[...], the priority of each hydrological state of settings, in their order.
  static std::string toJsonPriorities(const PrioritySettings& settings);
};
