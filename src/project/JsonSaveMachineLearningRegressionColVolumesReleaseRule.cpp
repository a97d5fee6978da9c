#include "project/JsonSaveMachineLearningRegressionColVolumesReleaseRule.h"

#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"

using B = JsonSaveBuilder;

std::string JsonSaveMachineLearningRegressionColVolumesReleaseRule::toJson() const {
  const auto& rule = getRule<MachineLearningRegressionColVolumesReleaseRule>();
  const auto entry = [](const MachineLearningRegressionDatasetEntry& item) {
    return B::makeObject(
        {B::makeJsonKeyValue("Volumes", B::makeVectorOfExactValues(item.attributes)),
         B::makeJsonKeyValue("Release", B::makeExactValue(item.value))});
  };
  B::Members members{
      B::makeJsonKeyValue("Reservoirs", B::makeVectorOfIntegerValues(rule.getReservoirsIds())),
      B::makeJsonKeyValue("NumberOfEntriesForAverage", rule.getNumberOfEntriesForAverage()),
      B::makeJsonKeyValue("Dataset", B::makeArray(rule.getDataset(), entry)),
      B::makeJsonKeyValueString("AverageCalculatorType", rule.getAverageCalculatorType().getName()),
      B::makeJsonKeyValueString("DistanceCalculatorType",
                                rule.getDistanceCalculatorType().getName()),
      B::makeJsonKeyValueString("ErrorType", rule.getErrorType().getName())};
  const B::Members specific = toJsonSpecific();
  members.insert(members.end(), specific.begin(), specific.end());
  return B::makeObject(members);
}
