#pragma once

#include <cstdint>
#include <utility>
#include <vector>

// One training example of a regression: the attribute vector, its target value, and the distance
// to the query being answered (set by MachineLearningRegressionAlgorithm::calculateDistances()).
struct MachineLearningRegressionDatasetEntry {
  MachineLearningRegressionDatasetEntry() = default;
  MachineLearningRegressionDatasetEntry(uint32_t index, std::vector<double> attributes,
                                        double value)
      : index(index), attributes(std::move(attributes)), value(value) {}

  uint32_t index = 0;              // position in the dataset when the entry was added
  std::vector<double> attributes;  // one value per attribute of the algorithm
  double value = 0.0;              // the target
  double distance = 0.0;           // to the present query; 0 until a query is made
};
