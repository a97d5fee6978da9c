#include "core/SettingsManager.h"

#include <stdexcept>

#include "core/SettingsFactory.h"

SettingsManager::SettingsManager(const SettingsManager& other) { *this = other; }

SettingsManager& SettingsManager::operator=(const SettingsManager& other) {
  if (this == &other) return *this;
  settings.clear();
  for (const auto& entry : other.settings) settings.emplace(entry.first, entry.second->copy());
  return *this;
}

void SettingsManager::make(unsigned int elementId, const Enum<ScenarioType>& scenarioType,
                           const EnumElementType& elementType) {
  settings[elementId] = SettingsFactory::make({scenarioType.getType(), elementType.getType()});
}

const std::shared_ptr<Settings>& SettingsManager::getSettings(unsigned int elementId) const {
  auto it = settings.find(elementId);
  if (it == settings.end()) {
    throw std::invalid_argument("SettingsManager::getParameters(): invalid elementId");
  }
  return it->second;
}

void SettingsManager::destroy(unsigned int elementId) {
  if (settings.erase(elementId) == 0) {
    throw std::invalid_argument("SettingsManager::destroyParameter(): invalid elementId");
  }
}
