#include "machinelearning/RegressionTree.h"

#include <utility>

RegressionTree::RegressionTree(const RegressionTree& other)
    : root(other.root ? other.root->deepCopy() : nullptr) {}

RegressionTree& RegressionTree::operator=(const RegressionTree& other) {
  if (this != &other) root = other.root ? other.root->deepCopy() : nullptr;
  return *this;
}

const std::shared_ptr<RegressionTreeNode>& RegressionTree::getRoot() const { return root; }

void RegressionTree::setRoot(std::shared_ptr<RegressionTreeNode> node) { root = std::move(node); }
