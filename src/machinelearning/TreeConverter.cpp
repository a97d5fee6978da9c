#include "machinelearning/TreeConverter.h"

#include <sstream>

namespace {

std::string numberText(double value) {
  std::ostringstream text;
  text << value;
  return text.str();
}

// A label inside double quotes: quotes and backslashes of attribute names are escaped.
std::string quoted(const std::string& text) {
  std::string escaped = "\"";
  for (char c : text) {
    if (c == '"' || c == '\\') escaped += '\\';
    escaped += c;
  }
  return escaped + "\"";
}

std::string nodeName(unsigned int id) { return "\"n" + std::to_string(id) + "\""; }

}  // namespace

BinaryTree<std::string> TreeConverter::regressionTreeToBinaryTree(
    const RegressionTreeAlgorithm& algorithm) {
  return BinaryTree<std::string>(
      copyRegressionNodeToBinaryNode(algorithm, algorithm.getRegressionTree().getRoot()));
}

std::shared_ptr<BinaryTree<std::string>> TreeConverter::regressionTreeToSPtrBinaryTree(
    const RegressionTreeAlgorithm& algorithm) {
  return std::make_shared<BinaryTree<std::string>>(regressionTreeToBinaryTree(algorithm));
}

std::shared_ptr<NodeTree<std::string>> TreeConverter::copyRegressionNodeToBinaryNode(
    const RegressionTreeAlgorithm& algorithm, const std::shared_ptr<RegressionTreeNode>& node) {
  if (!node) return nullptr;
  if (node->isLeaf()) return std::make_shared<NodeTree<std::string>>(numberText(node->getValue()));
  auto copy = std::make_shared<NodeTree<std::string>>(
      algorithm.getAttributeName(node->getAttribute()) + " < " + numberText(node->getValue()));
  copy->setLeft(copyRegressionNodeToBinaryNode(algorithm, node->getLeft()));
  copy->setRight(copyRegressionNodeToBinaryNode(algorithm, node->getRight()));
  return copy;
}

void TreeConverter::writeBinaryTreeInGraphviz(const BinaryTree<std::string>& tree,
                                              std::ostream& out) {
  out << "digraph G {\n";
  unsigned int nextId = 0;
  if (tree.getRoot()) writeBinaryNodeInGraphviz(tree.getRoot(), out, nextId);
  out << "}\n";
}

void TreeConverter::writeBinaryNodeInGraphviz(const std::shared_ptr<NodeTree<std::string>>& node,
                                              std::ostream& out, unsigned int& nextId) {
  const unsigned int id = nextId++;
  const bool leaf = !node->getLeft() && !node->getRight();
  out << nodeName(id) << " [label=" << quoted(node->getValue())
      << ",shape=" << (leaf ? "ellipse" : "box") << "];\n";
  const auto child = [&](const std::shared_ptr<NodeTree<std::string>>& next, const char* answer) {
    if (!next) return;
    out << nodeName(id) << " -> " << nodeName(nextId) << " [label=\"" << answer << "\"];\n";
    writeBinaryNodeInGraphviz(next, out, nextId);
  };
  child(node->getLeft(), "sim");
  child(node->getRight(), "não");
}
