#pragma once

#include <memory>
#include <utility>

#include "machinelearning/NodeTree.h"

// A binary tree for display, held by its root (null for an empty tree).
template <typename T>
class BinaryTree {
 public:
  BinaryTree() = default;
  explicit BinaryTree(std::shared_ptr<NodeTree<T>> root) : root(std::move(root)) {}

  const std::shared_ptr<NodeTree<T>>& getRoot() const { return root; }
  void setRoot(std::shared_ptr<NodeTree<T>> node) { root = std::move(node); }

 private:
  std::shared_ptr<NodeTree<T>> root;
};
