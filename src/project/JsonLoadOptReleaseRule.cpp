#include "project/JsonLoadOptReleaseRule.h"

#include <vector>

#include "project/JsonLoadHelper.h"
#include "project/JsonOptFlags.h"
#include "project/JsonSaveOptReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"
#include "vocabulary/Vocabulary.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

void JsonLoadOptConstReleaseRule::load(const json& object) const {
  auto& rule = getRule<OptConstReleaseRule>();
  rule.setRelease(Helper::getRequired<double>(object, "release"));
  rule.setToOpt(Helper::getRequired<bool>(object, "toOpt"));
  rule.setLowerAndUpperRelease(Helper::getRequired<double>(object, "lowerRelease"),
                               Helper::getRequired<double>(object, "upperRelease"));
}

void JsonLoadOptPeriodicReleaseRule::load(const json& object) const {
  auto& rule = getRule<OptPeriodicReleaseRule>();
  rule.setRelease(Helper::getRequired<std::vector<double>>(object, "release"));
  rule.setToOpt(Helper::getRequired<std::vector<bool>>(object, "toOpt"));
  rule.setLowerAndUpperRelease(Helper::getRequired<double>(object, "lowerRelease"),
                               Helper::getRequired<double>(object, "upperRelease"));
}

void JsonLoadOptSerieReleaseRule::load(const json& object) const {
  auto& rule = getRule<OptSerieReleaseRule>();
  rule.setReleaseSerie(loadReleaseSerie(object, Vocabulary::of(SerieType::releasedFlow).getName()));
  rule.setToOptSerie(loadReleaseSerie(object, JsonSaveOptSerieReleaseRule::kToOptKey));
  rule.setMaxRelease(Helper::getRequired<double>(object, "maxRelease"));
}

void JsonLoadOptHydrologicalStateReleaseRule::load(const json& object) const {
  JsonLoadHydrologicalStateReleaseRule::load(object);
  auto& rule = getRule<OptHydrologicalStateReleaseRule>();
  const auto zones = JsonOptFlags::read(Helper::findRequired(object, "OptProportionalZones"),
                                        rule.getVectorOfProportionalZones());
  const auto releases =
      JsonOptFlags::read(Helper::findRequired(object, "OptRelease"), rule.getRelease());
  const auto guarantees = Helper::getRequired<std::vector<double>>(object, "RequiredGuarantees");
  // A rule whose states never had their guarantees has no marks either: it stays as made.
  const bool statesSet = !guarantees.empty() || zones != rule.getVectorOfProportionalZones() ||
                         releases != rule.getRelease();
  if (statesSet) rule.setOptStates(zones, releases, guarantees);
  rule.setMaxRelease(Helper::getRequired<double>(object, "maxRelease"));
}
