#pragma once

#include <string>

class AutomaticReportExpression;

// The Graphviz drawing of a report expression: one labelled node per node of the tree, and an
// edge from each node to each of its children, left to right.
class AutomaticReportTreeUtils {
 public:
  // "digraph G { \n", the lines of every node and edge, then "}\n". The nodes are named n0, n1,
  // ... in the order of a walk that visits a node before its children.
  static std::string drawGraphVizStartingOfNode(const AutomaticReportExpression& root);
  // The line of node number id: "n<id> [label=\"<label>\"];\n", with the quotes and backslashes
  // of the label escaped and its control characters as blanks.
  static std::string getNodeDescInGraphViz(unsigned int id, const std::string& label);
  // The line of the edge between two numbered nodes: "n<from> -> n<to>;\n".
  static std::string getEdgeDescInGraphViz(unsigned int from, unsigned int to);
};
