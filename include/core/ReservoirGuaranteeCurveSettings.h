#pragma once

#include <memory>

#include "core/ReservoirRuleSettings.h"

// A reservoir in a guarantee-curve scenario: its rule settings and whether a curve is sought for
// it. The search replaces the rule of each marked reservoir for the time of the run.
class ReservoirGuaranteeCurveSettings
    : public CopyableSettings<ReservoirGuaranteeCurveSettings, ReservoirRuleSettings> {
 public:
  bool getIsGuaranteeCurve() const { return isGuaranteeCurve; }
  void setIsGuaranteeCurve(bool value) { isGuaranteeCurve = value; }

  // As ReservoirRuleSettings::copyFrom, with the mark; other must be of this class.
  void copyFrom(const std::shared_ptr<Settings>& other) override;

 private:
  bool isGuaranteeCurve = false;
};
