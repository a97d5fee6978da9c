#include "reports/automatic/AutomaticReportTreeUtils.h"

#include <sstream>

#include "reports/automatic/AutomaticReportExpression.h"

std::string AutomaticReportTreeUtils::drawGraphVizStartingOfNode(
    const AutomaticReportExpression& root) {
  std::ostringstream out;
  out << "digraph G { \n";
  unsigned int next = 0;
  root.drawGraphvizOfSubTree(out, next);
  out << "}\n";
  return out.str();
}

std::string AutomaticReportTreeUtils::getNodeDescInGraphViz(unsigned int id,
                                                            const std::string& label) {
  std::string escaped;
  for (char c : label) {
    if (c == '"' || c == '\\') escaped += '\\';
    escaped += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
  }
  return "n" + std::to_string(id) + " [label=\"" + escaped + "\"];\n";
}

std::string AutomaticReportTreeUtils::getEdgeDescInGraphViz(unsigned int from, unsigned int to) {
  return "n" + std::to_string(from) + " -> n" + std::to_string(to) + ";\n";
}
