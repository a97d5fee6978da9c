#pragma once

#include <cmath>
#include <memory>
#include <vector>

#include "common/PeriodWalker.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "rules/ConstReleaseRule.h"
#include "support/NetworkBuilder.h"

namespace guaranteetest {

inline constexpr double kUnit = 0.0864;  // hm³: 1 m³/s over one day

// Reservoirs in series, each on its own inflows, the last one into a drain; every reservoir is
// marked for the curve unless told otherwise. Volumes are in units of 1 m³/s·day, no losses.
// The reservoirs start on a constant release of 7.
template <class CurveScenario>
struct BasicCascade {
  BasicCascade(const Interval& interval, const std::vector<std::vector<double>>& inflows,
               double capacity)
      : scenario(std::make_shared<CurveScenario>(1, interval, "Curva")), net(scenario) {
    std::shared_ptr<Node> previous;
    for (const auto& cycle : inflows) {
      auto reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
      ReservoirInfo& info = reservoir->getReservoirInfo();
      // The useful storage lies above a dead storage of one unit, the first row above the bed.
      const double full = capacity * kUnit;
      info.cav = {{100, 0, 0}, {101, 1, kUnit}, {102, 2, kUnit + full / 2}, {103, 3, kUnit + full}};
      info.minVol = kUnit;
      info.maxVol = kUnit + full;
      info.initVol = kUnit + full;
      std::size_t index = 0;
      PeriodWalker::forEach(interval, [&](const Date& date) {
        reservoir->getInputSerie(SerieType::naturalIncrementalFlow)
            ->setValue(date, cycle[index++ % cycle.size()]);
      });
      reservoir->getInputSerie(SerieType::evaporation)->fill(0.0);
      reservoir->getInputSerie(SerieType::precipitation)->fill(0.0);
      if (previous) link(previous, reservoir);
      previous = reservoir;
      reservoirs.push_back(reservoir);
      settings(reservoir)->setIsGuaranteeCurve(true);
      auto rule = std::make_shared<ConstReleaseRule>();
      rule->setRelease(7.0);
      settings(reservoir)->setRule(rule);
    }
    link(previous, net.node(ElementType::drain));
  }

  void link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down) {
    auto river = net.link(up, down, 100000.0);
    net.allocation(up, {{double(up->getId()), double(river->getId())}, {100000, 100000}});
  }

  std::shared_ptr<ReservoirGuaranteeCurveSettings> settings(const std::shared_ptr<Element>& e) {
    return Scenario::getSettings<ReservoirGuaranteeCurveSettings>(e,
                                                                  scenario->getSettingsManager());
  }

  ExecutionGuaranteeCurve& curve() { return scenario->getExecutionGuaranteeCurve(); }
  ExecutionSystemGuaranteeCurve& system() { return scenario->getExecutionSystemGuaranteeCurve(); }

  // The share of periods (%) in which each reservoir delivers its release when they hold the
  // releases given, computed by a plain rule simulation of the same network.
  std::vector<double> guarantees(const std::vector<double>& releases) {
    const auto copy = scenario->copy();
    std::vector<std::shared_ptr<Element>> copies;
    for (std::size_t i = 0; i < releases.size(); ++i) {
      copies.push_back(copy->getElement(reservoirs[i]->getId()));
      auto rule = std::make_shared<ConstReleaseRule>();
      rule->setRelease(releases[i]);
      Scenario::getSettings<ReservoirRuleSettings>(copies.back(), copy->getSettingsManager())
          ->setRule(rule);
    }
    auto simulation = std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 2,
                                                     copy->getInterval(), "Simulação");
    copy->copyNetworkInto(*simulation);
    simulation->resolveRuleReferences();
    EXPECT_TRUE(simulation->run(nullptr));
    std::vector<double> shares;
    for (std::size_t i = 0; i < releases.size(); ++i) {
      const auto& released = simulation->getElement(reservoirs[i]->getId())
                                 ->getOutputSerie(SerieType::releasedFlow, 0);
      unsigned int periods = 0, delivered = 0;
      PeriodWalker::forEach(simulation->getInterval(), [&](const Date& date) {
        ++periods;
        if (std::fabs(released->getValue(date) - releases[i]) <= 1e-6) ++delivered;
      });
      shares.push_back(delivered * 100.0 / periods);
    }
    return shares;
  }

  std::shared_ptr<CurveScenario> scenario;
  NetworkBuilder net;
  std::vector<std::shared_ptr<Element>> reservoirs;
};

using Cascade = BasicCascade<GuaranteeCurveScenario>;
using SystemCascade = BasicCascade<SystemGuaranteeCurveScenario>;

// 36 days of the textbook record: a yield of 3.5 needs exactly the 7.5 units of storage.
inline const Interval kDays(Date(2001, 1, 1), Date(2001, 2, 5), Vocabulary::of(Periodicity::daily));
inline const std::vector<double> kTextbook = {1, 3, 3, 5, 8, 6, 7, 2, 1};

inline const Interval kTwoYears(Date(2001, 1, 1), Date(2002, 12, 1),
                                Vocabulary::of(Periodicity::monthly));
inline const std::vector<double> kSeasons = {9, 12, 10, 6, 3, 1.5, 1, 0.5, 0.5, 2, 5, 8};

}  // namespace guaranteetest
