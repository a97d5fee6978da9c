#include "project/JsonLoadMachineLearningRegressionColVolumesReleaseRule.h"

#include <stdexcept>
#include <vector>

#include "project/JsonLoadHelper.h"
#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"

using Helper = JsonLoadHelper;

namespace {

// The kind of table named by member key of object; text names an unknown one.
template <typename Table>
auto typeNamed(const nlohmann::json& object, const std::string& key, const Table& table,
               const std::string& text) {
  const nlohmann::json& value = Helper::findRequired(object, key);
  const auto* row = table.findByName(Helper::get<std::string>(value));
  if (row == nullptr) {
    Helper::at(value, [&] { throw std::invalid_argument(text); });
  }
  return row->getType();
}

}  // namespace

void JsonLoadMachineLearningRegressionColVolumesReleaseRule::load(
    const nlohmann::json& object) const {
  auto& rule = getRule<MachineLearningRegressionColVolumesReleaseRule>();
  rule.setReservoirsIdsOfSystem(
      Helper::getRequired<std::vector<unsigned int>>(object, "Reservoirs"));
  rule.setNumberOfEntriesForAverage(
      Helper::getRequired<unsigned int>(object, "NumberOfEntriesForAverage"));
  rule.setAverageCalculatorType(
      typeNamed(object, "AverageCalculatorType", MachineLearningVocabulary::averageTypes(),
                "invalid MachineLearningRegressionAverageCalculatorType value"));
  rule.setDistanceCalculatorType(
      typeNamed(object, "DistanceCalculatorType", MachineLearningVocabulary::distanceTypes(),
                "invalid MachineLearningRegressionDistanceCalculatorType value"));
  rule.setErrorType(typeNamed(object, "ErrorType", MachineLearningVocabulary::errorTypes(),
                              "invalid MachineLearningRegressionErrorType value"));
  loadSpecific(object);
  for (const auto& item : Helper::asArray(Helper::findRequired(object, "Dataset"))) {
    MachineLearningRegressionColVolumesReleaseRule::Entry entry{
        Helper::getRequired<std::vector<double>>(item, "Volumes"),
        Helper::getRequired<double>(item, "Release")};
    Helper::at(item, [&] { rule.addEntryOfDataSet(entry); });
  }
}
