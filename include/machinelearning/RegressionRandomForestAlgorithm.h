#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "machinelearning/MachineLearningRegressionAlgorithm.h"
#include "machinelearning/RegressionTreeAlgorithm.h"

// A bagged forest of regression trees, answering with the mean of its trees.
//
// Each tree sees a random choice of attributes and of rows (a TreeInfo): the attributes are
// shuffled, cut to numberOfAttributesInTree and sorted; the rows are n draws with replacement (or
// 0 .. n - 1 without), shuffled and cut to trunc(n * datasetPercentInTree / 100). The choices are
// kept, so that a stored forest is grown again on the same rows and attributes by build().
//
// Draws come from a MinimalStandardGenerator made anew for each choice of TreeInfos, seeded from
// std::random_device, or after setSeed(N) with N + k for the k-th choice made since (k from 0).
class RegressionRandomForestAlgorithm : public MachineLearningRegressionAlgorithm {
 public:
  // The rows (indexes into workDataset) and the attributes one tree is grown on.
  struct TreeInfo {
    std::vector<uint32_t> rows;
    std::vector<uint32_t> attributes;

    bool operator==(const TreeInfo& other) const {
      return rows == other.rows && attributes == other.attributes;
    }
  };

  using MachineLearningRegressionAlgorithm::MachineLearningRegressionAlgorithm;
  RegressionRandomForestAlgorithm(const RegressionRandomForestAlgorithm& other);
  RegressionRandomForestAlgorithm& operator=(const RegressionRandomForestAlgorithm& other);

  // With N, the k-th choice of TreeInfos made afterwards in the process is seeded with N + k;
  // without, each is seeded from std::random_device again.
  static void setSeed(std::optional<unsigned long> seed);

  // The mean of the trees' answers for their attributes of x; NaN without trees. Throws
  // std::invalid_argument "RegressionRandomForestAlgorithm::run(): attributes" for a query of the
  // wrong size, std::runtime_error "RegressionRandomForestAlgorithm::run(): trees and
  // vecOfTreeInfo differ" when the trees were not grown on the present TreeInfos.
  double run(const std::vector<double>& x) override;
  // workDataset = dataset, then buildTrees() on the present TreeInfos.
  void build() override;
  // buildTreesInfoOptimize(), then buildTrees().
  void buildOptimize() override;
  void copyFrom(const MachineLearningRegressionAlgorithm& other) override;
  const Enum<MachineLearningRegressionAlgorithmType>& getType() const override;
  std::shared_ptr<MachineLearningRegressionAlgorithm> clone() const override;

  // workDataset = dataset, then buildTreesInfoOptimize().
  void buildTreesInfo();
  // Draws numberOfTrees new TreeInfos over workDataset.
  void buildTreesInfoOptimize();
  // Grows one tree per TreeInfo on workDataset, all with the least split size
  // min(numberOfEntriesForAverage, rows of the first TreeInfo); nothing without TreeInfos. Throws
  // std::out_of_range "RegressionRandomForestAlgorithm::buildTrees(): row outside the dataset".
  void buildTrees();

  uint32_t getNumberOfTrees() const;
  // Throws std::invalid_argument "RegressionRandomForestAlgorithm::setNumberOfTrees():
  // numberOfTrees must be positive".
  void setNumberOfTrees(uint32_t n);
  uint32_t getNumberOfAttributesInTree() const;
  // More than the attributes means all of them.
  void setNumberOfAttributesInTree(uint32_t n);
  double getDatasetPercentInTree() const;
  // Throws std::invalid_argument "RegressionRandomForestAlgorithm::setDatasetPercentInTree():
  // percent outside [0, 100]".
  void setDatasetPercentInTree(double percent);
  bool isReplacement() const;
  void setReplacement(bool value);
  const std::vector<TreeInfo>& getVecOfTreeInfo() const;
  // Drops the trees grown on the former TreeInfos: build() grows them on these. Throws
  // std::out_of_range "RegressionRandomForestAlgorithm::setVecOfTreeInfo(): attribute outside the
  // attributes".
  void setVecOfTreeInfo(const std::vector<TreeInfo>& infos);
  uint32_t getMaxNumberOfLeaves() const;
  void setMaxNumberOfLeaves(uint32_t n);
  uint32_t getMaxDepth() const;
  void setMaxDepth(uint32_t n);
  double getCp() const;
  // A negative value counts as 0.
  void setCp(double value);
  const std::vector<std::shared_ptr<RegressionTreeAlgorithm>>& getVectorOfRegressionTree() const;

 private:
  std::shared_ptr<RegressionTreeAlgorithm> makeTree(const TreeInfo& info,
                                                    uint32_t minSplitValue) const;
  void copyTrees(const RegressionRandomForestAlgorithm& other);

  uint32_t numberOfTrees = 100;
  uint32_t numberOfAttributesInTree = 1;
  double datasetPercentInTree = 100.0;
  bool replacement = true;
  std::vector<TreeInfo> vecOfTreeInfo;
  uint32_t maxNumberOfLeaves = 99999;
  uint32_t maxDepth = 99999;
  double cp = 0.0;
  std::vector<std::shared_ptr<RegressionTreeAlgorithm>> vectorOfRegressionTree;
};
