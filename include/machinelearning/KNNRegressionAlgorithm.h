#pragma once

#include <memory>
#include <vector>

#include "machinelearning/MachineLearningRegressionAlgorithm.h"

// k nearest neighbours: the answer for a query is the average of the values of the
// numberOfEntriesForAverage entries of workDataset nearest to it. Entries at equal distances keep
// their dataset order. With normalize, each attribute of the entries and of the query is divided
// by its largest value over both before distances are taken, so that attributes of different
// scales weigh alike; the stored entries are left as they were.
class KNNRegressionAlgorithm : public MachineLearningRegressionAlgorithm {
 public:
  using MachineLearningRegressionAlgorithm::MachineLearningRegressionAlgorithm;

  // Throws std::invalid_argument "KNNAlgorithm::run(): attributes" for a query of the wrong size,
  // std::runtime_error "KNNAlgorithm::run(): numberOfEntriesForAverage > DataSet size".
  double run(const std::vector<double>& x) override;
  // Nothing to train: the answer is searched at each query.
  void build() override;
  void buildOptimize() override;
  void copyFrom(const MachineLearningRegressionAlgorithm& other) override;
  const Enum<MachineLearningRegressionAlgorithmType>& getType() const override;
  std::shared_ptr<MachineLearningRegressionAlgorithm> clone() const override;

  bool isNormalize() const;
  void setNormalize(bool value);
  // The neighbours of the last query (with normalised attributes when normalize is on).
  const std::vector<Entry>& getKDataset() const;

 private:
  // Divides each attribute of workDataset and of x by its largest value over both, or sets it to
  // 0 when that largest value is not above 0.
  void normalizeRunDataset(std::vector<double>& x);
  void sortDatasetByDistance();
  void createKDataset();

  std::vector<Entry> kDataset;
  bool normalize = false;
};
