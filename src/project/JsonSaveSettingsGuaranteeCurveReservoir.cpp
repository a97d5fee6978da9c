#include "project/JsonSaveSettingsGuaranteeCurveReservoir.h"

#include "core/ReservoirGuaranteeCurveSettings.h"
#include "project/JsonSaveBuilder.h"

using B = JsonSaveBuilder;

std::string JsonSaveSettingsGuaranteeCurveReservoir::toJson() const {
  return B::makeObject(
      {B::makeJsonKeyValue("ReservoirRuleSettings", JsonSaveSettingsRuleReservoir::toJson()),
       B::makeJsonKeyValue("isGuaranteeCurve",
                           getSettings<ReservoirGuaranteeCurveSettings>()->getIsGuaranteeCurve())});
}
