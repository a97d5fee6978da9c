#include "project/JsonLoadSettingsGuaranteeCurveReservoir.h"

#include "core/ReservoirGuaranteeCurveSettings.h"
#include "project/JsonLoadHelper.h"

using Helper = JsonLoadHelper;

void JsonLoadSettingsGuaranteeCurveReservoir::load(const nlohmann::json& object) const {
  const nlohmann::json& rules = Helper::findRequired(object, "ReservoirRuleSettings");
  Helper::at(rules, [&] { JsonLoadSettingsRuleReservoir::load(rules); });
  const auto settings = getSettings<ReservoirGuaranteeCurveSettings>();
  Helper::applyOptional<bool>(object, "isGuaranteeCurve",
                              [&](bool value) { settings->setIsGuaranteeCurve(value); });
}
