#include "project/JsonLoadVolDepOneReleaseRule.h"

#include <limits>
#include <vector>

#include "project/JsonLoadHelper.h"
#include "rules/VolDepOneReleaseRule.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

void JsonLoadVolDepOneReleaseRule::load(const json& object) const {
  auto& rule = getRule<VolDepOneReleaseRule>();
  rule.setReservoirDependencyId(dependencyId(object, "Reservoir"));
  std::vector<VolDepOneReleaseStruct> rows;
  for (const json& row : Helper::asArray(Helper::findRequired(object, "VolDepOneVector"))) {
    rows.push_back({Helper::getRequired<double>(row, "Percentage"),
                    Helper::getRequired<std::vector<double>>(row, "Release")});
  }
  rule.setVectorOfVolDepOneReleaseStruct(rows);
}

unsigned int JsonLoadVolDepOneReleaseRule::dependencyId(const json& object,
                                                        const std::string& key) {
  bool found = false;
  const auto id = Helper::findOptional<unsigned int>(found, object, key);
  return found ? id : std::numeric_limits<unsigned int>::max();
}
