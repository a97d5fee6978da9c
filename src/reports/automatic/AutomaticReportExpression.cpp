#include "reports/automatic/AutomaticReportExpression.h"

#include <stdexcept>

#include "reports/automatic/AutomaticReportTreeUtils.h"

void AutomaticReportExpression::drawGraphvizOfSubTree(std::ostream& out, unsigned int& next) const {
  const unsigned int self = next++;
  out << AutomaticReportTreeUtils::getNodeDescInGraphViz(self, getLabel());
  for (const AutomaticReportExpression* child : children()) {
    const unsigned int first = next;
    out << AutomaticReportTreeUtils::getEdgeDescInGraphViz(self, first);
    child->drawGraphvizOfSubTree(out, next);
  }
}

void AutomaticReportExpression::failAt(std::size_t position, const std::string& what) {
  std::string line = what;
  // A name read from the text may hold line breaks and tabs; the failure stays one line.
  for (char& c : line) {
    if (static_cast<unsigned char>(c) < 0x20) c = ' ';
  }
  throw std::invalid_argument("position " + std::to_string(position) + ": " + line);
}

void AutomaticReportExpression::fail(const std::string& what) const { failAt(position, what); }
