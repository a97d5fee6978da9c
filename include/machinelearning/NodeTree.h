#pragma once

#include <memory>
#include <utility>

// A node of a binary tree for display: its content and two children, either of them null.
template <typename T>
class NodeTree {
 public:
  NodeTree() = default;
  explicit NodeTree(T value) : value(std::move(value)) {}

  const T& getValue() const { return value; }
  void setValue(T newValue) { value = std::move(newValue); }
  const std::shared_ptr<NodeTree<T>>& getLeft() const { return left; }
  void setLeft(std::shared_ptr<NodeTree<T>> node) { left = std::move(node); }
  const std::shared_ptr<NodeTree<T>>& getRight() const { return right; }
  void setRight(std::shared_ptr<NodeTree<T>> node) { right = std::move(node); }

 private:
  T value{};
  std::shared_ptr<NodeTree<T>> left;
  std::shared_ptr<NodeTree<T>> right;
};
