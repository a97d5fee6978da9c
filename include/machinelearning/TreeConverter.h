#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "machinelearning/BinaryTree.h"
#include "machinelearning/RegressionTreeAlgorithm.h"

// Turns a grown regression tree into texts for display, and writes them as a Graphviz digraph.
//
// A split reads "<attribute name> < <threshold>", its left edge "sim" and its right edge "não"; a
// leaf reads its value. Numbers are written with up to six significant digits. In the digraph the
// nodes are named "n0", "n1", ... in depth-first order, left before right:
//
//   digraph G {
//   "n0" [label="Volume A < 5",shape=box];
//   "n0" -> "n1" [label="sim"];
//   "n1" [label="1",shape=ellipse];
//   ...
//   }
class TreeConverter {
 public:
  // An empty tree when the algorithm has grown none.
  static BinaryTree<std::string> regressionTreeToBinaryTree(
      const RegressionTreeAlgorithm& algorithm);
  static std::shared_ptr<BinaryTree<std::string>> regressionTreeToSPtrBinaryTree(
      const RegressionTreeAlgorithm& algorithm);
  // The texts of node and of all nodes below it.
  static std::shared_ptr<NodeTree<std::string>> copyRegressionNodeToBinaryNode(
      const RegressionTreeAlgorithm& algorithm, const std::shared_ptr<RegressionTreeNode>& node);
  // The whole digraph; an empty tree gives "digraph G {\n}\n".
  static void writeBinaryTreeInGraphviz(const BinaryTree<std::string>& tree, std::ostream& out);
  // The lines of node and of all nodes below it, node being named "n" + nextId; nextId is
  // advanced past the names used.
  static void writeBinaryNodeInGraphviz(const std::shared_ptr<NodeTree<std::string>>& node,
                                        std::ostream& out, unsigned int& nextId);
};
