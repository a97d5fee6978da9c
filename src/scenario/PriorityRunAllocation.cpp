#include "scenario/PriorityRunAllocation.h"

#include <cmath>
#include <map>

#include "common/PeriodWalker.h"
#include "core/ElementSets.h"
#include "core/Link.h"
#include "core/Node.h"
#include "core/Scenario.h"

namespace {

// The sums of the link flows of the dates that share a total, and how many dates they are.
struct Line {
  std::vector<double> flows;
  unsigned int dates = 0;
};

double valueAt(const Element& element, SerieType type, const Date& date) {
  const auto& serie = element.getOutputSerie(type, 0);
  return serie ? serie->getValue(date) : 0.0;
}

// The lines of the run keyed by their total in millionths, so that they come out ascending.
std::map<long long, Line> linesOfTheRun(const Node& node, const Scenario& priorityScenario) {
  const auto& links = node.getDownstreamLinks();
  const bool reservoir = node.getType() == ElementType::reservoir;
  std::map<long long, Line> lines;
  PeriodWalker::forEach(priorityScenario.getInterval(), [&](const Date& date) {
    std::vector<double> flows;
    double carried = 0.0;
    for (const auto& link : links) {
      flows.push_back(valueAt(*link, SerieType::inflow, date));
      carried += flows.back();
    }
    const double total = reservoir ? valueAt(node, SerieType::releasedFlow, date) : carried;
    if (!(total > 0.0) || !(carried > 0.0)) return;
    Line& line = lines[std::llround(total * 1e6)];
    line.flows.resize(flows.size(), 0.0);
    for (std::size_t i = 0; i < flows.size(); ++i) line.flows[i] += flows[i] * total / carried;
    ++line.dates;
  });
  return lines;
}

RuleSettings::AllocationMatrix matrixOfLines(const Node& node,
                                             const std::map<long long, Line>& lines) {
  const auto& links = node.getDownstreamLinks();
  RuleSettings::AllocationMatrix matrix;
  auto& totals = matrix[node.getId()];
  for (const auto& link : links) matrix[link->getId()];
  if (lines.empty()) {
    totals.push_back(1.0);
    for (const auto& link : links) matrix[link->getId()].push_back(1.0 / links.size());
    return matrix;
  }
  for (const auto& [total, line] : lines) {
    totals.push_back(total * 1e-6);
    for (std::size_t i = 0; i < links.size(); ++i) {
      matrix[links[i]->getId()].push_back(line.flows[i] / line.dates);
    }
  }
  return matrix;
}

}  // namespace

RuleSettings::AllocationMatrix PriorityRunAllocation::matrixOf(const Node& node,
                                                               const Scenario& priorityRun) {
  return matrixOfLines(node, linesOfTheRun(node, priorityRun));
}
