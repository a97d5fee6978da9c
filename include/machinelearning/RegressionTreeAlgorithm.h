#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "machinelearning/MachineLearningRegressionAlgorithm.h"
#include "machinelearning/RegressionTree.h"
#include "machinelearning/RegressionTreeNodeInfo.h"

// A binary regression tree grown by least squares.
//
// Growing a node: on each attribute, the node's entries are sorted by that attribute and every cut
// into a lower part and an upper part is tried; a cut's cost is the sum of squared residuals of
// each part around its own average (by the average type, so not always the mean). The cheapest
// cut of the cheapest attribute wins, earlier cuts and lower attributes on ties within 1e-6. The
// node is split when it has at least numberOfEntriesForAverage (here "minSplitValue") and at
// least 2 entries, its residuals are not all 0, the cut leaves entries on both sides, and the
// budgets of leaves, depth and splits allow it. The child whose own best cut improves less on the
// node is grown first: the two compete for the budgets.
//
// Complexity search (cp > 0): the tree is grown with 0, 1, 2, ... splits allowed until one more
// split lowers the relative error sum((y - tree)^2) / sum((y - average)^2) by no more than cp; the
// tree then keeps one split fewer.
//
// With a weighted average the node averages depend on the query, so the tree is grown anew at
// every run().
class RegressionTreeAlgorithm : public MachineLearningRegressionAlgorithm {
 public:
  using MachineLearningRegressionAlgorithm::MachineLearningRegressionAlgorithm;

  // Throws std::invalid_argument "RegressionTreeAlgorithm::run(): attributes" for a query of the
  // wrong size, std::runtime_error "RegressionTreeAlgorithm::run(): minSplitValue > DataSet size"
  // and "RegressionTreeAlgorithm::run(): tree not built". 0.0 when numberOfEntriesForAverage is 0.
  double run(const std::vector<double>& x) override;
  // workDataset = dataset, then buildOptimize().
  void build() override;
  // Grows the tree on workDataset; no tree when numberOfEntriesForAverage is 0. Throws
  // std::runtime_error "RegressionTreeAlgorithm::buildOptimize(): minSplitValue > DataSet size".
  void buildOptimize() override;
  void copyFrom(const MachineLearningRegressionAlgorithm& other) override;
  const Enum<MachineLearningRegressionAlgorithmType>& getType() const override;
  std::shared_ptr<MachineLearningRegressionAlgorithm> clone() const override;

  // The best cut of the entries at indexes (into workDataset) on one attribute; an empty result
  // for no indexes. The last cut tried leaves no entry on the upper side.
  RegressionTreeNodeInfo getRegressionTreeNodeInfo(uint32_t attribute,
                                                   const std::vector<uint32_t>& indexes) const;
  // The best cut over all attributes; with no attribute, the average alone.
  RegressionTreeNodeInfo getBestRegressionTreeNodeInfo(const std::vector<uint32_t>& indexes) const;
  // Sum of squares of both sides around info.average.
  double getTotalSSR(const RegressionTreeNodeInfo& info) const;
  // Sum of squares of one side around that side's own average.
  double getLeftSSR(const RegressionTreeNodeInfo& info) const;
  double getRightSSR(const RegressionTreeNodeInfo& info) const;
  // 1 - (leftSSR + rightSSR) / totalSSR of the best cut of indexes.
  double getImprovement(double totalSSR, const std::vector<uint32_t>& indexes) const;
  // sum((y - tree(x))^2) / sum((y - average)^2) over workDataset; getValue()'s failure without a
  // tree.
  double getRelativeError() const;
  // The prediction of the tree below node for x. Throws std::runtime_error
  // "RegressionTreeAlgorithm::getValue(): tree not built" for a null node.
  double getValue(const std::shared_ptr<RegressionTreeNode>& node,
                  const std::vector<double>& x) const;

  const RegressionTree& getRegressionTree() const;
  void setRegressionTree(const RegressionTree& tree);
  uint32_t getNumberOfLeaves() const;
  uint32_t getMaxNumberOfLeaves() const;
  void setMaxNumberOfLeaves(uint32_t n);
  uint32_t getMaxDepth() const;
  void setMaxDepth(uint32_t n);
  double getCp() const;
  // A negative value counts as 0.
  void setCp(double value);
  int getMaxNumberOfSplits() const;
  int getNumberOfSplits() const;

 private:
  // The node of the entries of info, the best cut of those entries.
  std::shared_ptr<RegressionTreeNode> makeNode(const RegressionTreeNodeInfo& info, uint32_t depth);
  double improvement(double totalSSR, const RegressionTreeNodeInfo& info) const;
  bool isSplit(const RegressionTreeNodeInfo& info, std::size_t size, double totalSSR,
               uint32_t depth) const;
  void split(RegressionTreeNode& node, const RegressionTreeNodeInfo& info, double totalSSR,
             uint32_t depth);
  // Grows a tree from the root with the present budget of splits.
  void growTree();
  void searchComplexity();
  double sideSSR(const std::vector<uint32_t>& indexes, double around) const;
  double sideAverage(const std::vector<uint32_t>& indexes) const;

  RegressionTree regressionTree;
  uint32_t numberOfLeaves = 0;
  uint32_t maxNumberOfLeaves = 99999;
  uint32_t maxDepth = 99999;
  double cp = 0.0;
  int maxNumberOfSplits = 99999;
  int numberOfSplits = 0;
};
