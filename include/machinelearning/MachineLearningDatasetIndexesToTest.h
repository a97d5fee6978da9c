#pragma once

#include <cstdint>
#include <vector>

#include "vocabulary/MachineLearningVocabulary.h"

// The splits of a dataset into training and test entries by which a model's error is measured.
// Indexes are positions in the dataset; with shuffle, they are first put in random order by
// NumericalUtils::makeVectorOfIndexes() (reproducible through NumericalUtils::setRandomSeed()).
class MachineLearningDatasetIndexesToTest {
 public:
  // One split: the entries to train on and the entries to measure the error on.
  struct ValidationStr {
    std::vector<uint32_t> trainIndexes;
    std::vector<uint32_t> testIndexes;

    bool operator==(const ValidationStr& other) const {
      return trainIndexes == other.trainIndexes && testIndexes == other.testIndexes;
    }
  };

  // The splits of the validator type over a dataset of size entries, percent being the training
  // share. Throws std::invalid_argument "MachineLearningDatasetIndexesToTest::makeValidationStr():
  // invalid validatorType" for a type outside the vocabulary, and what the scheme throws.
  static std::vector<ValidationStr> makeValidationStr(uint32_t size, double percent,
                                                      MachineLearningAlgorithmValidatorType type,
                                                      bool shuffle);
  // One split: the first trunc(size * percent / 100) indexes train, the others test. Throws
  // std::invalid_argument "MachineLearningDatasetIndexesToTest::makeHoldoutValidationStr():
  // percent outside [0, 100]".
  static std::vector<ValidationStr> makeHoldoutValidationStr(uint32_t size, double percent,
                                                             bool shuffle);
  // Folds of foldSize = size - trunc(size * percent / 100) test indexes, size / foldSize of them:
  // fold f tests positions f * foldSize .. (f + 1) * foldSize - 1 and trains on all others, in
  // order, so a remainder always trains. No fold for an empty dataset. Throws
  // std::invalid_argument "MachineLearningDatasetIndexesToTest::makeKFoldCrossValidationStr():
  // percent outside [0, 100)".
  static std::vector<ValidationStr> makeKFoldCrossValidationStr(uint32_t size, double percent,
                                                                bool shuffle);
};
