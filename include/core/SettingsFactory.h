#pragma once

#include <memory>

#include "core/KeySettings.h"
#include "core/Settings.h"

// Makes the settings of an element for a scenario kind. In a priority scenario reservoirs and
// demands get priorities and goals; in every other kind nodes get allocation matrices and links
// their bidirectional allocation, and only the reservoir's settings differ from kind to kind.
class SettingsFactory {
 public:
  // New settings for the pair. Throws std::invalid_argument
  // "SettingsFactory::make(): invalid parameter key" for a pair without settings.
  static std::shared_ptr<Settings> make(const KeySettings& key);

  // ReservoirRuleSettings without a rule.
  static std::shared_ptr<Settings> makeReservoirRule();
  static std::shared_ptr<Settings> makeDemandRule();
  static std::shared_ptr<Settings> makeJunctionRule();
  static std::shared_ptr<Settings> makeBasinRule();
  static std::shared_ptr<Settings> makeLinkRule();
  // ReservoirRuleSettings for a rule whose parameters an optimiser will search; no rule yet.
  static std::shared_ptr<Settings> makeReservoirOptRule();
  // ReservoirGuaranteeCurveSettings not marked for a curve: the user picks the reservoirs.
  static std::shared_ptr<Settings> makeReservoirGuaranteeCurve();
  // ReservoirGuaranteeCurveSettings marked for the curve: every reservoir belongs to the system.
  static std::shared_ptr<Settings> makeReservoirSystemGuaranteeCurve();
  // PriorityReservoirSettings with priority 99.
  static std::shared_ptr<Settings> makeReservoirPriority();
  // PriorityDemandSettings with the default priority 1.
  static std::shared_ptr<Settings> makeDemandPriority();
  // PriorityDrainDemandSettings with priority 99.
  static std::shared_ptr<Settings> makeDrainDemandPriority();
  static std::shared_ptr<Settings> makeJunctionPriority();
  static std::shared_ptr<Settings> makeBasinPriority();
  static std::shared_ptr<Settings> makeLinkPriority();
};
