#include "machinelearning/MachineLearningDatasetIndexesToTest.h"

#include <cmath>
#include <map>
#include <stdexcept>

#include "common/NumericalUtils.h"

namespace {

using ValidationStr = MachineLearningDatasetIndexesToTest::ValidationStr;

uint32_t trainShare(uint32_t size, double percent) {
  return static_cast<uint32_t>(std::trunc(size * percent / 100.0));
}

}  // namespace

std::vector<ValidationStr> MachineLearningDatasetIndexesToTest::makeValidationStr(
    uint32_t size, double percent, MachineLearningAlgorithmValidatorType type, bool shuffle) {
  using Maker = std::vector<ValidationStr> (*)(uint32_t, double, bool);
  static const std::map<MachineLearningAlgorithmValidatorType, Maker> makers = {
      {MachineLearningAlgorithmValidatorType::kFoldCrossValidation, &makeKFoldCrossValidationStr},
      {MachineLearningAlgorithmValidatorType::holdout, &makeHoldoutValidationStr},
  };
  const auto found = makers.find(type);
  if (found == makers.end()) {
    throw std::invalid_argument(
        "MachineLearningDatasetIndexesToTest::makeValidationStr(): invalid validatorType");
  }
  return found->second(size, percent, shuffle);
}

std::vector<ValidationStr> MachineLearningDatasetIndexesToTest::makeHoldoutValidationStr(
    uint32_t size, double percent, bool shuffle) {
  if (!(percent >= 0.0 && percent <= 100.0)) {
    throw std::invalid_argument(
        "MachineLearningDatasetIndexesToTest::makeHoldoutValidationStr(): percent outside [0, "
        "100]");
  }
  const std::vector<unsigned int> indexes = NumericalUtils::makeVectorOfIndexes(size, shuffle);
  const auto cut = indexes.begin() + trainShare(size, percent);
  return {ValidationStr{{indexes.begin(), cut}, {cut, indexes.end()}}};
}

std::vector<ValidationStr> MachineLearningDatasetIndexesToTest::makeKFoldCrossValidationStr(
    uint32_t size, double percent, bool shuffle) {
  // At 100 % the test folds would be empty and their count a division by zero.
  if (!(percent >= 0.0 && percent < 100.0)) {
    throw std::invalid_argument(
        "MachineLearningDatasetIndexesToTest::makeKFoldCrossValidationStr(): percent outside [0, "
        "100)");
  }
  if (size == 0) return {};
  const std::vector<unsigned int> indexes = NumericalUtils::makeVectorOfIndexes(size, shuffle);
  const uint32_t foldSize = size - trainShare(size, percent);
  std::vector<ValidationStr> folds(size / foldSize);
  for (uint32_t f = 0; f < folds.size(); ++f) {
    for (uint32_t position = 0; position < size; ++position) {
      const bool tested = position / foldSize == f;
      (tested ? folds[f].testIndexes : folds[f].trainIndexes).push_back(indexes[position]);
    }
  }
  return folds;
}
