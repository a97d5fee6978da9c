#pragma once

#include <map>
#include <memory>

#include "core/Settings.h"
#include "vocabulary/Enum.h"
#include "vocabulary/EnumElementType.h"

// The settings of every element of one scenario, by element id.
class SettingsManager {
 public:
  SettingsManager() = default;
  // A deep copy: every settings object is copied.
  SettingsManager(const SettingsManager& other);
  SettingsManager& operator=(const SettingsManager& other);
  SettingsManager(SettingsManager&&) = default;
  SettingsManager& operator=(SettingsManager&&) = default;

  // Makes the settings of the element for the scenario kind and stores them under its id.
  void make(unsigned int elementId, const Enum<ScenarioType>& scenarioType,
            const EnumElementType& elementType);
  // Throws std::invalid_argument "SettingsManager::getParameters(): invalid elementId".
  const std::shared_ptr<Settings>& getSettings(unsigned int elementId) const;
  // Throws std::invalid_argument "SettingsManager::destroyParameter(): invalid elementId".
  void destroy(unsigned int elementId);
  bool contains(unsigned int elementId) const { return settings.count(elementId) != 0; }

 private:
  std::map<unsigned int, std::shared_ptr<Settings>> settings;
};
