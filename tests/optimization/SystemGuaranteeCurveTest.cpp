#include <gtest/gtest.h>

#include <vector>

#include "checks/SceneryCheck.h"
#include "common/NumericalUtils.h"
#include "operation/ExecutionContinuous.h"
#include "optimization/GuaranteeCascade.h"
#include "optimization/kernel/PseudoRandom.h"
#include "rules/OptConstReleaseRule.h"
#include "support/ExpectThrow.h"

using namespace guaranteetest;

namespace {

// Every reservoir of the cascade on a constant rule whose release the swarm picks in [0, upper];
// the last one is the out reservoir. A swarm of particles over iterations, seeded.
void makeSystem(SystemCascade& cascade, double upper, std::uint32_t particles,
                std::uint32_t iterations) {
  for (const auto& reservoir : cascade.reservoirs) {
    auto rule = std::make_shared<OptConstReleaseRule>();
    rule->setLowerAndUpperRelease(0.0, upper);
    rule->setToOpt(true);
    cascade.settings(reservoir)->setRule(rule);
  }
  cascade.scenario->setAutoOutReservoir();
  auto& parameters = static_cast<PSOParameters&>(*cascade.system().getAlgorithmParameters());
  parameters.swarmSize = particles;
  parameters.maxIterations = iterations;
  PseudoRandom::setSeed(5);
}

// The findings of the scenario's own checks, not those of its elements.
std::vector<std::string> findings(Scenario& scenario) {
  std::vector<std::string> messages;
  scenario.executeSceneryCheck();
  for (const auto& finding : scenario.getSceneryCheck()->getAllErrors()) {
    if (finding.elementName == scenario.getName()) messages.push_back(finding.message);
  }
  return messages;
}

// The largest release, on a grid of step 0.01, that the reservoir alone delivers at each level.
std::vector<double> largestByGrid(SystemCascade& cascade, const std::vector<double>& levels,
                                  unsigned int periods) {
  std::vector<double> largest(levels.size(), 0.0);
  for (double q = 0.0; q <= 6.0; q += 0.01) {
    const double share = cascade.guarantees({q})[0];
    for (std::size_t i = 0; i < levels.size(); ++i) {
      if (share + 1e-9 >= NumericalUtils::getNearGuarantee(levels[i], periods)) largest[i] = q;
    }
  }
  return largest;
}

}  // namespace

TEST(SystemGuaranteeCurve, EachFlowReachesItsLevelAndIsAtMostTheLargestThatDoes) {
  SystemCascade cascade(kDays, {kTextbook}, 7.5);
  makeSystem(cascade, 6.0, 8, 10);
  ASSERT_TRUE(cascade.scenario->run(nullptr));
  const auto& curve = cascade.system().getSystemGuaranteeCurveStr();
  EXPECT_EQ(curve.outSystemReservoirId, cascade.reservoirs[0]->getId());
  ASSERT_GE(curve.guarantees.size(), 20u);
  const auto largest = largestByGrid(cascade, curve.guarantees, 36);
  for (std::size_t row = 0; row < curve.guarantees.size(); ++row) {
    SCOPED_TRACE(curve.guarantees[row]);
    const double q = curve.guaranteeCurveValues[row];
    EXPECT_GE(cascade.guarantees({q})[0] + 1e-9,
              NumericalUtils::getNearGuarantee(curve.guarantees[row], 36));
    EXPECT_LE(q, largest[row] + 0.01);
    EXPECT_EQ(cascade.system().getQGuarantee(curve.guarantees[row]), q);
  }
  // The textbook yield: never failing needs a release of at most 3.5.
  EXPECT_EQ(curve.guarantees.back(), 100.0);
  EXPECT_LE(curve.guaranteeCurveValues.back(), 3.5 + 1e-9);
  // A run leaves the curve, not the trials' series.
  EXPECT_TRUE(cascade.reservoirs[0]->getOutputSeries().empty());
}

TEST(SystemGuaranteeCurve, AnExactHitEndsTheSimulationsOfItsLevel) {
  SystemCascade cascade(kDays, {kTextbook}, 7.5);
  makeSystem(cascade, 3.0, 6, 4);  // no release up to 3 ever fails
  cascade.system().setOnlyQ90(true);
  std::vector<long> sizes;
  ASSERT_TRUE(cascade.scenario->run([&](long, long size) {
    sizes.push_back(size);
    return true;
  }));
  // At 90 % on 36 days the reachable level is 33 of 36 periods. Every candidate delivers on all
  // 36, above it but not exactly on it, so the whole swarm runs: 6 * (1 + 4) simulations.
  const auto& curve = cascade.system().getSystemGuaranteeCurveStr();
  EXPECT_EQ(curve.guarantees, std::vector<double>{90.0});
  EXPECT_EQ(cascade.system().getNumberOfSimulations(), 6u * 5u);
  // The progress is sized by the whole list of levels, so one level stops far below its end.
  ASSERT_FALSE(sizes.empty());
  EXPECT_EQ(sizes.front(), 23 * 6 * 4);

  // A swarm that finds a release failing exactly the reachable number of periods stops
  // simulating: with releases up to 6 some candidate of 90 % is exact.
  makeSystem(cascade, 6.0, 12, 30);
  cascade.system().setOnlyQ90(true);
  ASSERT_TRUE(cascade.scenario->run(nullptr));
  EXPECT_LT(cascade.system().getNumberOfSimulations(), 12u * 31u);
  const double q = cascade.system().getQGuarantee(90.0);
  EXPECT_NEAR(cascade.guarantees({q})[0], NumericalUtils::getNearGuarantee(90.0, 36), 1e-9);
  // On threads the candidates after the hit are simulated but take the hit's flow all the same.
  PseudoRandom::setSeed(5);
  cascade.system().setThreads(3);
  ASSERT_TRUE(cascade.scenario->run(nullptr));
  EXPECT_EQ(cascade.system().getQGuarantee(90.0), q);
}

TEST(SystemGuaranteeCurve, TwoReservoirsInSeriesGiveTheSameCurveOnEveryThreadCount) {
  SystemCascade cascade(kTwoYears, {kSeasons, {2, 2, 2, 1, 1, 1, 1, 1, 1, 1, 2, 2}}, 40.0 * 30);
  makeSystem(cascade, 8.0, 6, 5);
  EXPECT_EQ(cascade.system().getOutSystemReservoirId(), cascade.reservoirs[1]->getId());
  cascade.system().setThreads(1);
  ASSERT_TRUE(cascade.scenario->run(nullptr));
  const auto serial = cascade.system().getSystemGuaranteeCurveStr();
  ASSERT_FALSE(serial.guarantees.empty());
  for (unsigned int threads : {2u, 3u}) {
    SCOPED_TRACE(threads);
    PseudoRandom::setSeed(5);
    cascade.system().setThreads(threads);
    ASSERT_TRUE(cascade.scenario->run(nullptr));
    EXPECT_EQ(cascade.system().getSystemGuaranteeCurveStr(), serial);
  }
}

TEST(SystemGuaranteeCurve, ACancelledRunLeavesNoCurve) {
  SystemCascade cascade(kTwoYears, {kSeasons}, 40.0 * 30);
  makeSystem(cascade, 8.0, 4, 3);
  long calls = 0;
  EXPECT_FALSE(cascade.scenario->run([&](long, long) { return ++calls < 10; }));
  EXPECT_EQ(calls, 10);
  EXPECT_EQ(cascade.scenario->getSceneryStatus().getType(), SceneryStatus::cancelled);
  EXPECT_TRUE(cascade.system().getSystemGuaranteeCurveStr().guarantees.empty());
}

TEST(SystemGuaranteeCurve, TheOutReservoirAndTheSwarmAreChecked) {
  SystemCascade cascade(kTwoYears, {kSeasons, kSeasons}, 40.0 * 30);
  makeSystem(cascade, 8.0, 2, 1);
  EXPECT_TRUE(findings(*cascade.scenario).empty());
  auto& system = cascade.system();

  system.setOutSystemReservoirId(999);
  EXPECT_EQ(findings(*cascade.scenario),
            std::vector<std::string>{"Reservatório de saída inválido"});
  system.setOutSystemReservoirId(cascade.reservoirs[0]->getId());
  cascade.settings(cascade.reservoirs[0])->setRule(std::make_shared<ConstReleaseRule>());
  EXPECT_EQ(findings(*cascade.scenario),
            std::vector<std::string>{"Reservatório de saída inválido"});

  makeSystem(cascade, 8.0, 2, 1);
  system.setOutSystemReservoirId(cascade.reservoirs[0]->getId());
  cascade.reservoirs[0]->setEnabled(false);
  EXPECT_EQ(findings(*cascade.scenario),
            std::vector<std::string>{"Reservatório de saída desabilitado"});
  cascade.reservoirs[0]->setEnabled(true);
  cascade.link(std::static_pointer_cast<Node>(cascade.reservoirs[0]),
               cascade.net.node(ElementType::drain));
  EXPECT_EQ(findings(*cascade.scenario),
            std::vector<std::string>{"Reservatório de saída só poder um trecho a jusante"});

  system.setOutSystemReservoirId(cascade.reservoirs[1]->getId());
  system.configureAlgorithm(OptimizationAlgorithmType::smpso);
  EXPECT_EQ(findings(*cascade.scenario),
            std::vector<std::string>{"Quantidade de funções objetivo inferior a 2:"});
}

TEST(SystemGuaranteeCurve, ARunWithoutASwarmIsRefused) {
  ExecutionSystemGuaranteeCurve curve;
  EXPECT_EQ(curve.getGuaranteeValues().size(), 23u);
  EXPECT_THROW_TEXT(curve.run(Interval(), nullptr, nullptr), std::runtime_error,
                    "ExecutionSystemGuaranteeCurve::run: The algorithm not is configured");
  EXPECT_EQ(curve.getQGuarantee(90.0), 0.0);
}
