#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "PriorityNetworkBuilder.h"
#include "common/PeriodWalker.h"
#include "core/ConfigurationHeader.h"
#include "operation/KLPKRepresentation.h"

// Where every pass of every date has a single optimum, CLP and lp_solve give the same flows and
// volumes; where several vertices share the optimum (water that two equal reservoirs could keep
// either way) they may differ, which is why these networks leave no such choice: one path from
// each source to each use, and a drain that takes what no goal keeps.
namespace {

// Series of the run that are compared, per element.
const std::vector<SerieType> kLinkSeries = {SerieType::inflow};
const std::vector<SerieType> kReservoirSeries = {SerieType::finalVolume};

using Network = std::function<void(PriorityNetworkBuilder&)>;

// R1 (goal 60 % of 200, priority 3) receives 30, 0, 80, 10, 55 and 5 hm³ in six months and
// feeds through a river losing 10 % a junction that serves D1 (25 hm³, priority 1), D2 (40 hm³,
// priority 2, returning 20 % of what it gets to the river below) and R2 (goal 50 % of 100,
// priority 4), which spills into a drain.
void cascadeWithLosses(PriorityNetworkBuilder& net) {
  auto r1 = net.reservoir(10, 200, 120, 3, 0.6);
  const double inflows[] = {30, 0, 80, 10, 55, 5};
  Date date = net.interval().getBegin();
  for (double volume : inflows) {
    r1->getInputSerie(SerieType::naturalIncrementalFlow)->setValue(date, net.m3s(date, volume));
    date = net.next(date);
  }
  auto junction = net.node(ElementType::junction);
  auto d1 = net.demand(25, 1);
  auto d2 = net.demand(40, 2, ElementType::irrigationDemand);
  auto r2 = net.reservoir(5, 100, 20, 4, 0.5);
  auto drain = net.node(ElementType::drain);
  net.link(r1, junction, 10.0);
  net.link(junction, d1, 0.0, 9999.0, ElementType::artificialLink);
  net.link(junction, d2, 0.0, 9999.0, ElementType::artificialLink);
  net.link(junction, r2);
  net.link(d2, r2, 5.0);
  d2->setDemandReturnPercentage(d2->getDownstreamLinks().front(), 20.0);
  net.link(r2, drain);
}

// The same uses in another order of priority and under a link limit of 3 m³/s to D2, with R1
// starting below its minimum.
void limitedAndDry(PriorityNetworkBuilder& net) {
  auto r1 = net.reservoir(50, 200, 40, 1, 0.9);
  r1->getInputSerie(SerieType::naturalIncrementalFlow)
      ->fill(net.m3s(net.interval().getBegin(), 45));
  auto junction = net.node(ElementType::junction);
  auto d1 = net.demand(25, 3);
  auto d2 = net.demand(40, 2, ElementType::industrialDemand);
  auto drain = net.node(ElementType::drain);
  net.link(r1, junction, 2.5);
  net.link(junction, d1, 0.0, 9999.0, ElementType::artificialLink);
  net.link(junction, d2, 0.0, 3.0, ElementType::artificialLink);
  net.link(junction, drain);
}

struct Outputs {
  std::vector<double> values;
  std::vector<std::string> names;
};

Outputs runUnder(const std::string& solver, const Network& make) {
  ConfigurationHeader::setLinearProgramSolver(solver);
  PriorityNetworkBuilder net(6);
  make(net);
  Outputs run;
  const bool ran = net.scenario->run(nullptr);
  ConfigurationHeader::reset();
  EXPECT_TRUE(ran) << solver;
  for (const auto& element : net.scenario->getElements()) {
    const bool isLink = element->getType() == ElementType::naturalLink ||
                        element->getType() == ElementType::artificialLink;
    if (!isLink && element->getType() != ElementType::reservoir) continue;
    for (SerieType type : isLink ? kLinkSeries : kReservoirSeries) {
      PeriodWalker::forEach(net.interval(), [&](const Date& date) {
        run.values.push_back(element->getOutputSerie(type, 0)->getValue(date));
        run.names.push_back(element->getName() + " " + date.toString("%m/%Y"));
      });
    }
  }
  return run;
}

}  // namespace

TEST(PrioritySolverAgreement, ClpGivesLpSolvesFlowsAndVolumesWhereOptimaAreUnique) {
  for (const auto& [name, network] :
       {std::pair<std::string, Network>{"cascade with losses", cascadeWithLosses},
        {"limited and dry", limitedAndDry}}) {
    SCOPED_TRACE(name);
    const unsigned long long before = KLPKRepresentation::solvesInProcess();
    const Outputs lpsolve = runUnder("lpsolve", network);
    const unsigned long long solvedByLpSolve = KLPKRepresentation::solvesInProcess() - before;
    const Outputs clp = runUnder("clp", network);
    EXPECT_EQ(KLPKRepresentation::solvesInProcess() - before, 2 * solvedByLpSolve);
    ASSERT_EQ(clp.values.size(), lpsolve.values.size());
    ASSERT_FALSE(clp.values.empty());
    for (std::size_t at = 0; at < clp.values.size(); ++at) {
      const double scale = std::max(1.0, std::fabs(lpsolve.values[at]));
      EXPECT_NEAR(clp.values[at], lpsolve.values[at], 1e-9 * scale) << lpsolve.names[at];
    }
  }
}
