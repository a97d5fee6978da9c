#pragma once

#include <cmath>
#include <memory>
#include <vector>

#include "common/PeriodWalker.h"
#include "core/Demand.h"
#include "core/ReservoirRuleSettings.h"
#include "rules/ConstReleaseRule.h"
#include "support/NetworkBuilder.h"

// The quantities that set how wet the system is.
struct GeneratedSystemShape {
  double suppliedDemand = 2.0;   // m³/s
  double returningDemand = 1.0;  // m³/s
  double maxVol = 900;           // hm³
  double initVol = 400;          // hm³
  double amplitude = 8.0;        // m³/s, of the seasonal inflow around 10
  double evaporation = 120.0;    // mm
  double release = 8.0;          // m³/s
};

// A river system generated for timing: 50 reservoirs in a binary tree of tributaries, each
// releasing a constant flow through a junction that also serves two demands (one returning 20 %
// downstream), 100 demands in all, and a drain at the mouth. Inflows vary by month.
class GeneratedSystem {
 public:
  using Shape = GeneratedSystemShape;

  explicit GeneratedSystem(unsigned int years, Shape shape = Shape())
      : GeneratedSystem(std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1,
                                                       monthsOf(years), "Teste"),
                        shape) {}

  // Builds into target, a rule scenario of any kind over its own interval.
  GeneratedSystem(std::shared_ptr<RuleScenario> target, Shape shape) : net(target), shape(shape) {
    std::vector<std::shared_ptr<Node>> confluences;
    for (int i = 0; i < 50; ++i) {
      auto reservoir = addReservoir(i);
      auto junction = net.node(ElementType::junction);
      link(reservoir, junction);
      sendAll(reservoir);
      auto supplied = net.node(ElementType::irrigationDemand);
      auto returning = std::static_pointer_cast<Demand>(net.node(ElementType::humanDemand));
      supplied->getInputSerie(SerieType::demand)->fill(shape.suppliedDemand);
      returning->getInputSerie(SerieType::demand)->fill(shape.returningDemand);
      auto toSupplied = link(junction, supplied, ElementType::artificialLink);
      auto toReturning = link(junction, returning, ElementType::artificialLink);
      confluences.push_back(net.node(ElementType::junction));
      auto onward = link(junction, confluences.back());
      auto back = link(returning, confluences.back());
      returning->setDemandReturnPercentage(back, 20.0);
      net.allocation(junction, {{id(junction), id(toSupplied), id(toReturning), id(onward)},
                                {0, 0, 0, 0},
                                {3, 2, 1, 0},
                                {100, 2, 1, 97}});
      junctions.push_back(junction);
      reservoirs.push_back(reservoir);
    }
    // Reservoir i is fed by the confluences of its two tributaries 2i + 1 and 2i + 2.
    for (int i = 1; i < 50; ++i) link(confluences[i], reservoirs[(i - 1) / 2]);
    link(confluences[0], net.node(ElementType::drain));
    for (const auto& junction : confluences) sendAll(junction);
  }

  // The months from January 1901 over years.
  static Interval monthsOf(unsigned int years) {
    return Interval(Date(1901, 1, 1), Date(1900 + years, 12, 1),
                    Vocabulary::of(Periodicity::monthly));
  }

  const std::vector<std::shared_ptr<Node>>& getReservoirs() const { return reservoirs; }

  NetworkBuilder net;

 private:
  static double id(const std::shared_ptr<Element>& e) { return e->getId(); }

  std::shared_ptr<Link> link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down,
                             ElementType type = ElementType::naturalLink) {
    auto created = net.link(up, down, 1000.0, type);
    created->getInputSerie(SerieType::transitLossPercentage)->fill(1.0);
    return created;
  }

  // A node whose single way out takes all it receives: one line, shared in full.
  void sendAll(const std::shared_ptr<Node>& node) {
    for (const auto& out : node->getDownstreamLinks()) {
      net.allocation(node, {{id(node), id(out)}, {100, 100}});
    }
  }

  std::shared_ptr<Node> addReservoir(int index) {
    auto reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    ReservoirInfo& info = reservoir->getReservoirInfo();
    info.cav = {{500, 0, 0}, {505, 20, 50}, {510, 45, 200}, {515, 80, 500}, {520, 120, 900}};
    info.minVol = 50;
    info.maxVol = shape.maxVol;
    info.initVol = shape.initVol;
    PeriodWalker::forEach(net.scenario->getInterval(), [&](const Date& date) {
      const double seasonal = 10.0 + shape.amplitude * std::sin((date.getMonth() + index) * 0.5236);
      reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->setValue(date, seasonal);
      reservoir->getInputSerie(SerieType::evaporation)->setValue(date, shape.evaporation);
      reservoir->getInputSerie(SerieType::precipitation)->setValue(date, 60.0);
    });
    auto rule = std::make_shared<ConstReleaseRule>();
    rule->setRelease(shape.release);
    Scenario::getSettings<ReservoirRuleSettings>(reservoir, net.scenario->getSettingsManager())
        ->setRule(rule);
    return reservoir;
  }

  Shape shape;
  std::vector<std::shared_ptr<Node>> reservoirs, junctions;
};
