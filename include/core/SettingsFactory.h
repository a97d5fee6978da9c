#pragma once

#include <memory>

#include "core/KeySettings.h"
#include "core/Settings.h"

// Makes the settings of an element for a scenario kind. Throws std::invalid_argument
// "SettingsFactory::make(): invalid parameter key" for a pair without settings.
class SettingsFactory {
 public:
  static std::shared_ptr<Settings> make(const KeySettings& key);

  static std::shared_ptr<Settings> makeReservoirRule();
  static std::shared_ptr<Settings> makeDemandRule();
  static std::shared_ptr<Settings> makeJunctionRule();
  static std::shared_ptr<Settings> makeBasinRule();
  static std::shared_ptr<Settings> makeLinkRule();
};
