#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "machinelearning/StepFunction.h"
#include "machinelearning/TreeConverter.h"

namespace {

TEST(TreeConverterTest, TextsOfSplitsAndLeaves) {
  const RegressionTreeAlgorithm tree = stepTree();
  const BinaryTree<std::string> converted = TreeConverter::regressionTreeToBinaryTree(tree);
  const auto& root = converted.getRoot();
  ASSERT_TRUE(root);
  EXPECT_EQ("Volume A < 55", root->getValue());
  EXPECT_EQ("Volume B < 35", root->getLeft()->getValue());
  EXPECT_EQ("10", root->getLeft()->getLeft()->getValue());
  EXPECT_EQ("20", root->getLeft()->getRight()->getValue());
  EXPECT_EQ("40", root->getRight()->getValue());
  EXPECT_FALSE(root->getRight()->getLeft());
  // The shared form holds the same texts.
  EXPECT_EQ("Volume A < 55",
            TreeConverter::regressionTreeToSPtrBinaryTree(tree)->getRoot()->getValue());
}

TEST(TreeConverterTest, GraphvizOfAStepTree) {
  std::ostringstream out;
  TreeConverter::writeBinaryTreeInGraphviz(TreeConverter::regressionTreeToBinaryTree(stepTree()),
                                           out);
  EXPECT_EQ(
      "digraph G {\n"
      "\"n0\" [label=\"Volume A < 55\",shape=box];\n"
      "\"n0\" -> \"n1\" [label=\"sim\"];\n"
      "\"n1\" [label=\"Volume B < 35\",shape=box];\n"
      "\"n1\" -> \"n2\" [label=\"sim\"];\n"
      "\"n2\" [label=\"10\",shape=ellipse];\n"
      "\"n1\" -> \"n3\" [label=\"não\"];\n"
      "\"n3\" [label=\"20\",shape=ellipse];\n"
      "\"n0\" -> \"n4\" [label=\"não\"];\n"
      "\"n4\" [label=\"40\",shape=ellipse];\n"
      "}\n",
      out.str());
}

TEST(TreeConverterTest, GraphvizOfALeafAndOfNothing) {
  // Names with quotes are escaped; a tree of one leaf is one node; no tree, an empty graph.
  RegressionTreeAlgorithm tree(1, {"Volume \"A\""}, "y", 1,
                               MachineLearningRegressionAverageCalculatorType::arithmetic,
                               MachineLearningRegressionDistanceCalculatorType::euclidean);
  tree.addEntry({1}, 2.5);
  tree.addEntry({2}, 12345678);
  tree.build();
  std::ostringstream split;
  TreeConverter::writeBinaryTreeInGraphviz(TreeConverter::regressionTreeToBinaryTree(tree), split);
  EXPECT_EQ(
      "digraph G {\n"
      "\"n0\" [label=\"Volume \\\"A\\\" < 2\",shape=box];\n"
      "\"n0\" -> \"n1\" [label=\"sim\"];\n"
      "\"n1\" [label=\"2.5\",shape=ellipse];\n"
      "\"n0\" -> \"n2\" [label=\"não\"];\n"
      "\"n2\" [label=\"1.23457e+07\",shape=ellipse];\n"
      "}\n",
      split.str());
  tree.setNumberOfEntriesForAverage(0);
  tree.build();
  std::ostringstream empty;
  TreeConverter::writeBinaryTreeInGraphviz(TreeConverter::regressionTreeToBinaryTree(tree), empty);
  EXPECT_EQ("digraph G {\n}\n", empty.str());
}

}  // namespace
