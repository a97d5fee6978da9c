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
  throw std::invalid_argument("position " + std::to_string(position) + ": " + what);
}

void AutomaticReportExpression::fail(const std::string& what) const { failAt(position, what); }
