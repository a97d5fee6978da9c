#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <vector>

#include "checks/SceneryCheck.h"
#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "core/IsolatedNetworkUtils.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "optimization/GuaranteeCascade.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "rules/ConstReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "scenario/ScenarioManager.h"
#include "support/ExpectThrow.h"

using namespace guaranteetest;

namespace {

// Whether scenario ran, with the findings of its checks when it did not.
::testing::AssertionResult runs(Scenario& scenario, const Scenario::Progress& progress = nullptr) {
  if (scenario.run(progress)) return ::testing::AssertionSuccess();
  auto failure = ::testing::AssertionFailure() << scenario.getName() << " did not run:";
  if (scenario.getSceneryCheck()) {
    for (const auto& finding : scenario.getSceneryCheck()->getAllErrors()) {
      failure << " " << finding.message << " " << finding.elementName << ";";
    }
  }
  return failure;
}

}  // namespace

TEST(GuaranteeCurve, TheTextbookYieldIsFoundFromBelowWithinTheLastStep) {
  Cascade cascade(kDays, {kTextbook}, 7.5);
  EXPECT_EQ(cascade.guarantees({3.5}), std::vector<double>{100.0});
  EXPECT_LT(cascade.guarantees({3.6})[0], 100.0);

  ExecutionGuaranteeCurve::setSeed(11);
  cascade.curve().setGuaranteeValues({100});
  cascade.curve().setNumberOfIterations(200);
  ASSERT_TRUE(runs(*cascade.scenario));
  const auto& curve = cascade.curve().getGuaranteeStr();
  ASSERT_EQ(curve.guarantees, std::vector<double>{100});
  const double q = curve.values[0][0];
  // It starts at 90 % of the mean inflow, 3.6, and steps down at most 2.5 % of q per missed
  // period (one period is 2.78 points) until the first release that never fails.
  EXPECT_LE(q, 3.5 + 1e-9);
  EXPECT_GE(q, 3.5 - 0.025 * 100.0 / 36.0 * 3.6);
  EXPECT_EQ(cascade.guarantees({q}), std::vector<double>{100.0});
  EXPECT_EQ(cascade.curve().getQGuarantee(cascade.reservoirs[0]->getId(), 100.0), q);
}

TEST(GuaranteeCurve, EveryFlowReachesItsLevelAndIsAtMostTheLargestThatDoes) {
  Cascade cascade(kTwoYears, {kSeasons}, 40.0 * 30);
  ExecutionGuaranteeCurve::setSeed(3);
  cascade.curve().setGuaranteeValues({50, 75, 90, 100});
  cascade.curve().setNumberOfIterations(80);
  ASSERT_TRUE(runs(*cascade.scenario));
  const auto& curve = cascade.curve().getGuaranteeStr();
  ASSERT_FALSE(curve.guarantees.empty());
  for (std::size_t row = 0; row < curve.guarantees.size(); ++row) {
    const double level = curve.guarantees[row];
    const double q = curve.values[row][0];
    SCOPED_TRACE(level);
    EXPECT_GE(cascade.guarantees({q})[0] + 1e-9, NumericalUtils::getNearGuarantee(level, 24));
    double largest = 0.0;
    for (double grid = 0.0; grid <= 12.0; grid += 0.01) {
      if (cascade.guarantees({grid})[0] + 1e-9 >= NumericalUtils::getNearGuarantee(level, 24)) {
        largest = grid;
      }
    }
    EXPECT_LE(q, largest + 0.01);
  }
  // Higher levels never sustain more.
  for (std::size_t row = 1; row < curve.guarantees.size(); ++row) {
    EXPECT_LE(curve.values[row][0], curve.values[row - 1][0] + 1e-9);
  }
}

TEST(GuaranteeCurve, TheSameSeedGivesTheSameCurveAndTheRulesComeBack) {
  Cascade cascade(kTwoYears, {kSeasons, {2, 2, 2, 1, 1, 1, 1, 1, 1, 1, 2, 2}}, 40.0 * 30);
  const auto upstreamRule = cascade.settings(cascade.reservoirs[0])->getRule();
  cascade.curve().setGuaranteeValues({60, 90});
  cascade.curve().setNumberOfIterations(40);
  ExecutionGuaranteeCurve::setSeed(21);
  ASSERT_TRUE(runs(*cascade.scenario));
  const auto first = cascade.curve().getGuaranteeStr();
  ASSERT_FALSE(first.guarantees.empty());
  ExecutionGuaranteeCurve::setSeed(21);
  ASSERT_TRUE(runs(*cascade.scenario));
  EXPECT_EQ(cascade.curve().getGuaranteeStr(), first);
  EXPECT_EQ(cascade.settings(cascade.reservoirs[0])->getRule(), upstreamRule);
  // Two reservoirs in series: each row holds, together, for both.
  ASSERT_EQ(first.reservoirIds.size(), 2u);
  for (std::size_t row = 0; row < first.guarantees.size(); ++row) {
    const auto shares = cascade.guarantees(first.values[row]);
    for (double share : shares) {
      EXPECT_GE(share + 1e-9, NumericalUtils::getNearGuarantee(first.guarantees[row], 24));
    }
  }
  // A run leaves the curve, not the trials' series.
  EXPECT_TRUE(cascade.reservoirs[0]->getOutputSeries().empty());
}

TEST(GuaranteeCurve, OnlyQ90RunsOneLevelAndACancelledRunRestoresTheRules) {
  Cascade cascade(kTwoYears, {kSeasons}, 40.0 * 30);
  cascade.curve().setGuaranteeValues({10, 20, 30});
  cascade.curve().setOnlyQ90(true);
  cascade.curve().setNumberOfIterations(30);
  std::vector<long> steps;
  ASSERT_TRUE(runs(*cascade.scenario, [&](long percent, long size) {
    steps.push_back(size);
    return percent >= 0;
  }));
  EXPECT_EQ(cascade.curve().getGuaranteeStr().guarantees, std::vector<double>{90});
  EXPECT_LE(cascade.curve().getNumberOfSimulations(), 30u);
  EXPECT_GE(cascade.curve().getNumberOfSimulations(), 1u);
  ASSERT_FALSE(steps.empty());
  EXPECT_EQ(steps.back(), 1);

  const auto rule = cascade.settings(cascade.reservoirs[0])->getRule();
  long calls = 0;
  EXPECT_FALSE(cascade.scenario->run([&](long, long) { return ++calls < 3; }));
  EXPECT_EQ(calls, 3);  // asked after every trial, not only after each level
  EXPECT_TRUE(cascade.curve().getGuaranteeStr().guarantees.empty());
  EXPECT_EQ(cascade.settings(cascade.reservoirs[0])->getRule(), rule);
}

TEST(GuaranteeCurve, NoInflowFailsEveryLevelAndNamesTheReservoir) {
  Cascade cascade(kTwoYears, {{0.0}}, 10.0);
  cascade.reservoirs[0]->setName("Seco");
  cascade.curve().setGuaranteeValues({50, 100});
  ASSERT_TRUE(runs(*cascade.scenario));
  EXPECT_TRUE(cascade.curve().getGuaranteeStr().guarantees.empty());
  EXPECT_EQ(cascade.curve().getReservoirFailMap(),
            (std::map<unsigned int, std::string>{{cascade.reservoirs[0]->getId(), "Seco"}}));
}

TEST(GuaranteeCurve, LevelsAndIterationsAreChecked) {
  ExecutionGuaranteeCurve curve;
  EXPECT_EQ(curve.getGuaranteeValues().size(), 23u);
  EXPECT_THROW_TEXT(curve.setGuaranteeValues({50, 0}), std::invalid_argument,
                    "ExecutionGuaranteeCurve::setGuaranteeValues(): a guarantee must be above 0 "
                    "and at most 100");
  EXPECT_THROW(curve.setGuaranteeValues({100.5}), std::invalid_argument);
  EXPECT_THROW_TEXT(curve.setNumberOfIterations(0), std::invalid_argument,
                    "ExecutionGuaranteeCurve::setNumberOfIterations(): the number of iterations "
                    "must be positive");
  EXPECT_EQ(curve.getQGuarantee(1, 90.0), 0.0);
}

// Flagging both reservoirs of the cascade splits it at the river between them: each trial then
// runs the upper reservoir's piece, hands its release to the lower one's through the union link,
// and gives the same releases as the whole network, so the curve is the same draw for draw.
TEST(GuaranteeCurve, TheIsolatedTrialGivesTheCurveOfTheWholeNetwork) {
  Cascade cascade(kTwoYears, {kSeasons, kSeasons}, 40.0 * 30);
  cascade.curve().setGuaranteeValues({50, 75, 90, 100});
  cascade.curve().setNumberOfIterations(30);
  for (const auto& reservoir : cascade.reservoirs) {
    IsolatedNetworkUtils::setReservoirIsolated(*cascade.scenario, reservoir, true);
  }
  ASSERT_EQ(cascade.scenario->getUnionLinks().size(), 1u);
  const auto whole = std::static_pointer_cast<GuaranteeCurveScenario>(cascade.scenario->copy());
  ExecutionGuaranteeCurve::setSeed(5);
  ASSERT_TRUE(runs(*whole));
  ExecutionGuaranteeCurve::setSeed(5);
  ASSERT_TRUE(cascade.scenario->runIsolated(nullptr));
  const auto& curve = cascade.curve().getGuaranteeStr();
  ASSERT_EQ(curve.guarantees.size(), 4u);
  EXPECT_EQ(curve, whole->getExecutionGuaranteeCurve().getGuaranteeStr());
  EXPECT_EQ(cascade.curve().getNumberOfSimulations(),
            whole->getExecutionGuaranteeCurve().getNumberOfSimulations());
  EXPECT_FALSE(cascade.curve().isIsolated());
  // The trials' rule scenarios came and went: the manager is as it was.
  EXPECT_EQ(ScenarioManager::getInstance().getNumberOfSceneries(), 0u);
  EXPECT_EQ(ScenarioManager::getInstance().getCurrentScenario(), nullptr);
}

// The lowest reservoir, out of the curve, follows the volume of the first; flagging the lower two
// puts them in networks of their own, apart from the first, which the trial's run refuses.
TEST(GuaranteeCurve, AnIsolatedTrialThatIsRefusedEndsTheRunWithItsText) {
  Cascade cascade(kTwoYears, {kSeasons, kSeasons, kSeasons}, 40.0 * 30);
  cascade.curve().setGuaranteeValues({90});
  const auto& lowest = cascade.reservoirs[2];
  cascade.settings(lowest)->setIsGuaranteeCurve(false);
  auto byFirst = std::make_shared<VolDepOneStaticReleaseRule>();
  byFirst->setReservoirDependency(cascade.reservoirs[0]);
  byFirst->setVectorOfVolDepOneReleaseStruct({{50, {3}}, {100, {6}}});
  cascade.settings(lowest)->setRule(byFirst);
  for (std::size_t i = 1; i < 3; ++i) {
    IsolatedNetworkUtils::setReservoirIsolated(*cascade.scenario, cascade.reservoirs[i], true);
  }
  EXPECT_THROW_TEXT(cascade.scenario->runIsolated(nullptr), std::runtime_error,
                    "ExecutionGuaranteeCurve::runIsolated(): A regra do reservatório \"" +
                        lowest->getName() + "\" depende do reservatório \"" +
                        cascade.reservoirs[0]->getName() + "\", que está em outra rede isolada.");
  EXPECT_EQ(ScenarioManager::getInstance().getNumberOfSceneries(), 0u);
  EXPECT_EQ(ScenarioManager::getInstance().getCurrentScenario(), nullptr);
  // The user's rules come back whatever ended the run.
  const auto first = cascade.settings(cascade.reservoirs[0])->getRule();
  EXPECT_EQ(std::static_pointer_cast<ConstReleaseRule>(first)->getRelease(), 7.0);
}
