#include "machinelearning/RegressionTreeNode.h"

#include <utility>

uint32_t RegressionTreeNode::getAttribute() const { return attribute; }

void RegressionTreeNode::setAttribute(uint32_t newAttribute) { attribute = newAttribute; }

double RegressionTreeNode::getValue() const { return value; }

void RegressionTreeNode::setValue(double newValue) { value = newValue; }

const std::shared_ptr<RegressionTreeNode>& RegressionTreeNode::getLeft() const { return left; }

void RegressionTreeNode::setLeft(std::shared_ptr<RegressionTreeNode> node) {
  left = std::move(node);
}

const std::shared_ptr<RegressionTreeNode>& RegressionTreeNode::getRight() const { return right; }

void RegressionTreeNode::setRight(std::shared_ptr<RegressionTreeNode> node) {
  right = std::move(node);
}

uint32_t RegressionTreeNode::getNumberOfEntries() const { return numberOfEntries; }

void RegressionTreeNode::setNumberOfEntries(uint32_t n) { numberOfEntries = n; }

bool RegressionTreeNode::isLeaf() const { return !left && !right; }

std::shared_ptr<RegressionTreeNode> RegressionTreeNode::deepCopy() const {
  auto copy = std::make_shared<RegressionTreeNode>(*this);
  if (left) copy->left = left->deepCopy();
  if (right) copy->right = right->deepCopy();
  return copy;
}
