#include "core/ReservoirGuaranteeCurveSettings.h"

void ReservoirGuaranteeCurveSettings::copyFrom(const std::shared_ptr<Settings>& other) {
  ReservoirRuleSettings::copyFrom(other);
  isGuaranteeCurve = static_cast<const ReservoirGuaranteeCurveSettings&>(*other).isGuaranteeCurve;
}
