#pragma once

#include <memory>
#include <string>

#include "core/ReleaseRule.h"
#include "vocabulary/EnumTypes.h"

// Makes release rules in their default state, by type or by display name (the names of
// Vocabulary::releaseRuleTypes()). Both throw std::invalid_argument
// "ReleaseRuleFactory::make(): invalid ReleaseRuleType" for a type or name without a rule here.
class ReleaseRuleFactory {
 public:
  static std::shared_ptr<ReleaseRule> make(ReleaseRuleType type);
  static std::shared_ptr<ReleaseRule> make(const std::string& name);

  static std::shared_ptr<ReleaseRule> makeNoneReleaseRule();
  static std::shared_ptr<ReleaseRule> makeConstReleaseRule();
  static std::shared_ptr<ReleaseRule> makePeriodicReleaseRule();
  static std::shared_ptr<ReleaseRule> makeSerieReleaseRule();
  static std::shared_ptr<ReleaseRule> makeHydrologicalStateReleaseRule();
  static std::shared_ptr<ReleaseRule> makeVolDepOneStaticRelease();
  static std::shared_ptr<ReleaseRule> makeVolDepOnePeriodicRelease();
  static std::shared_ptr<ReleaseRule> makeVolDepTwoStaticRelease();
  static std::shared_ptr<ReleaseRule> makeVolDepTwoPeriodicRelease();
  static std::shared_ptr<ReleaseRule> makeKNNRegressionColVolumesRelease();
  static std::shared_ptr<ReleaseRule> makeRegressionTreeColVolumesRelease();
  static std::shared_ptr<ReleaseRule> makeRegressionRandomForestColVolumesRelease();
  static std::shared_ptr<ReleaseRule> makeOptNoneReleaseRule();
  static std::shared_ptr<ReleaseRule> makeOptConstReleaseRule();
  static std::shared_ptr<ReleaseRule> makeOptPeriodicReleaseRule();
  static std::shared_ptr<ReleaseRule> makeOptSerieReleaseRule();
  static std::shared_ptr<ReleaseRule> makeOptHydrologicalStateReleaseRule();
  static std::shared_ptr<ReleaseRule> makeOptVolDepOneStaticRelease();
  static std::shared_ptr<ReleaseRule> makeOptVolDepOnePeriodicRelease();
  static std::shared_ptr<ReleaseRule> makeOptVolDepTwoStaticRelease();
  static std::shared_ptr<ReleaseRule> makeOptVolDepTwoPeriodicRelease();
};
