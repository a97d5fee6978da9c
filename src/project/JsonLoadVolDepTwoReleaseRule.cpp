#include "project/JsonLoadVolDepTwoReleaseRule.h"

#include <vector>

#include "project/JsonLoadHelper.h"
#include "project/JsonLoadVolDepOneReleaseRule.h"
#include "rules/VolDepTwoReleaseRule.h"

using Helper = JsonLoadHelper;

void JsonLoadVolDepTwoReleaseRule::load(const nlohmann::json& object) const {
  auto& rule = getRule<VolDepTwoReleaseRule>();
  rule.setReservoirDependencyId(JsonLoadVolDepOneReleaseRule::dependencyId(object, "Reservoir1"),
                                JsonLoadVolDepOneReleaseRule::dependencyId(object, "Reservoir2"));
  using Nest = std::vector<std::vector<std::vector<double>>>;
  const VolDepTwoReleaseStruct table = {
      Helper::getRequired<std::vector<double>>(object, "VolumePercentageD1"),
      Helper::getRequired<std::vector<double>>(object, "VolumePercentageD2"),
      Helper::getRequired<Nest>(object, "Release")};
  // An empty table is the state of a rule as made, which the periodic rule's setter would refuse
  // for lacking its twelve month slots.
  if (table != VolDepTwoReleaseStruct()) rule.setVolDepTwoReleaseStruct(table);
}
