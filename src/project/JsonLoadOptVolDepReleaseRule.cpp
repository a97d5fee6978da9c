#include "project/JsonLoadOptVolDepReleaseRule.h"

#include <string>
#include <vector>

#include "project/JsonLoadHelper.h"
#include "project/JsonOptFlags.h"
#include "rules/OptVolDepOneReleaseRule.h"
#include "rules/OptVolDepTwoReleaseRule.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

namespace {

// The items of the list at value, refused unless there are count of them.
const json& listOf(const json& value, std::size_t count, const std::string& what) {
  const json& list = Helper::asArray(value);
  if (list.size() != count) Helper::refuse(list, std::to_string(count) + " " + what);
  return list;
}

}  // namespace

void JsonLoadOptVolDepOneReleaseRule::load(const json& object) const {
  JsonLoadVolDepOneReleaseRule::load(object);
  const auto& rows = getRule<VolDepOneReleaseRule>().getVectorOfVolDepOneReleaseStruct();
  const json& flags = listOf(Helper::findRequired(object, "OptVolDepOneVector"), rows.size(),
                             "rows of flags, one per row of VolDepOneVector");
  OptVolDepOneReleaseRule::Table marks;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    marks.push_back(
        {JsonOptFlags::read(Helper::findRequired(flags[i], "OptPercentage"), rows[i].percentage),
         JsonOptFlags::read(Helper::findRequired(flags[i], "OptRelease"), rows[i].releases)});
  }
  auto& rule = getRule<OptVolDepOneReleaseRule>();
  rule.setToOptVectorOfVolDepOneReleaseStruct(marks);
  rule.setMaxRelease(Helper::getRequired<double>(object, "maxRelease"));
}

void JsonLoadOptVolDepTwoReleaseRule::load(const json& object) const {
  JsonLoadVolDepTwoReleaseRule::load(object);
  const VolDepTwoReleaseStruct& table = getRule<VolDepTwoReleaseRule>().getVolDepTwoReleaseStruct();
  VolDepTwoReleaseStruct marks{
      JsonOptFlags::read(Helper::findRequired(object, "OptVolumePercentageD1"),
                         table.volumePercentageD1),
      JsonOptFlags::read(Helper::findRequired(object, "OptVolumePercentageD2"),
                         table.volumePercentageD2),
      {}};
  const json& slots = listOf(Helper::findRequired(object, "OptRelease"), table.releases.size(),
                             "month slots of flags, as in Release");
  for (std::size_t month = 0; month < table.releases.size(); ++month) {
    const auto& rows = table.releases[month];
    const json& flagRows = listOf(slots[month], rows.size(), "rows of flags, as in Release");
    marks.releases.emplace_back();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      marks.releases.back().push_back(JsonOptFlags::read(flagRows[i], rows[i]));
    }
  }
  auto& rule = getRule<OptVolDepTwoReleaseRule>();
  rule.setOptVolDepTwoReleaseStruct(marks);
  rule.setMaxRelease(Helper::getRequired<double>(object, "maxRelease"));
}
