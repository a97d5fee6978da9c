#include "project/JsonSaveOptVolDepReleaseRule.h"

#include <vector>

#include "project/JsonOptFlags.h"
#include "rules/OptVolDepOneReleaseRule.h"
#include "rules/OptVolDepTwoReleaseRule.h"

using B = JsonSaveBuilder;

namespace {

// The part of marks at index, or an empty one where marks has none.
template <typename T>
T at(const std::vector<T>& marks, std::size_t index) {
  return index < marks.size() ? marks[index] : T();
}

// The flags of a month slot of the two-reservoir nest, in the shape of its values.
std::string slotFlags(const std::vector<std::vector<double>>& marks,
                      const std::vector<std::vector<double>>& values) {
  std::string text = "[";
  for (std::size_t i = 0; i < values.size(); ++i) {
    text += (i ? "," : "") + JsonOptFlags::write(at(marks, i), values[i].size());
  }
  return text + "]";
}

}  // namespace

std::string JsonSaveOptVolDepOneReleaseRule::toJson() const {
  const auto& marks = getRule<OptVolDepOneReleaseRule>().getToOptVectorOfVolDepOneReleaseStruct();
  const auto& rows = getRule<VolDepOneReleaseRule>().getVectorOfVolDepOneReleaseStruct();
  std::string flags = "[";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const VolDepOneReleaseStruct mark =
        i < marks.size() ? marks[i] : VolDepOneReleaseStruct{rows[i].percentage, {}};
    flags += (i ? "," : "") +
             B::makeObject(
                 {B::makeJsonKeyValue("OptPercentage", JsonOptFlags::write(mark.percentage)),
                  B::makeJsonKeyValue(
                      "OptRelease", JsonOptFlags::write(mark.releases, rows[i].releases.size()))});
  }
  B::Members all = members();
  all.push_back(B::makeJsonKeyValue("OptVolDepOneVector", flags + "]"));
  all.push_back(
      B::makeJsonKeyValue("maxRelease", getRule<OptVolDepOneReleaseRule>().getMaxRelease()));
  return B::makeObject(all);
}

std::string JsonSaveOptVolDepTwoReleaseRule::toJson() const {
  const VolDepTwoReleaseStruct& marks =
      getRule<OptVolDepTwoReleaseRule>().getOptVolDepTwoReleaseStruct();
  const VolDepTwoReleaseStruct& values =
      getRule<VolDepTwoReleaseRule>().getVolDepTwoReleaseStruct();
  std::string nest = "[";
  for (std::size_t month = 0; month < values.releases.size(); ++month) {
    nest += (month ? "," : "") + slotFlags(at(marks.releases, month), values.releases[month]);
  }
  B::Members all = members();
  all.push_back(B::makeJsonKeyValue(
      "OptVolumePercentageD1",
      JsonOptFlags::write(marks.volumePercentageD1, values.volumePercentageD1.size())));
  all.push_back(B::makeJsonKeyValue(
      "OptVolumePercentageD2",
      JsonOptFlags::write(marks.volumePercentageD2, values.volumePercentageD2.size())));
  all.push_back(B::makeJsonKeyValue("OptRelease", nest + "]"));
  all.push_back(
      B::makeJsonKeyValue("maxRelease", getRule<OptVolDepTwoReleaseRule>().getMaxRelease()));
  return B::makeObject(all);
}
