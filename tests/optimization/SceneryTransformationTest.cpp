#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "checks/SceneryCheck.h"
#include "common/PeriodWalker.h"
#include "core/Demand.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/Reservoir.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "operation/ExecutionWindowed.h"
#include "operation/PriorityNetworkBuilder.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/SceneryKindTransformation.h"
#include "optimization/SceneryTransformationFactory.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "project/JsonSaveElement.h"
#include "project/JsonSaveElementFactory.h"
#include "rules/ConstReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "scenario/PriorityScenario.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

const std::vector<ScenarioType> kKinds = {
    ScenarioType::priorityOptimizer, ScenarioType::ruleSimulator, ScenarioType::ruleOptimizer,
    ScenarioType::guaranteeCurve, ScenarioType::systemGuaranteeCurve};

int id(ScenarioType type) { return static_cast<int>(type); }

std::shared_ptr<Scenario> convert(const Scenario& source, ScenarioType to) {
  return SceneryTransformationFactory::make(id(source.getScenarioType().getType()), id(to))
      ->transform(source, source.getId() + 10);
}

std::shared_ptr<Reservoir> addReservoir(NetworkBuilder& net, double inflow, double target) {
  auto reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
  ReservoirInfo& info = reservoir->getReservoirInfo();
  info.cav = {{500, 0, 0}, {505, 20, 50}, {510, 45, 200}, {515, 80, 500}};
  info.minVol = 50;
  info.maxVol = 500;
  info.initVol = 300;
  std::size_t month = 0;
  PeriodWalker::forEach(net.scenario->getInterval(), [&](const Date& date) {
    reservoir->getInputSerie(SerieType::naturalIncrementalFlow)
        ->setValue(date, inflow * (month++ % 2 == 0 ? 0.5 : 1.5));
  });
  reservoir->getInputSerie(SerieType::evaporation)->fill(0.0);
  reservoir->getInputSerie(SerieType::precipitation)->fill(0.0);
  reservoir->getInputSerie(SerieType::targetVolume)->fill(target);
  return reservoir;
}

void giveConstantRule(const Scenario& scenario, const std::shared_ptr<Element>& reservoir,
                      double release) {
  auto rule = std::make_shared<ConstReleaseRule>();
  rule->setRelease(release);
  Scenario::getSettings<ReservoirRuleSettings>(reservoir, scenario.getSettingsManager())
      ->setRule(rule);
}

// Two reservoirs in a row, the upper one feeding a town first, the lower one a drain; 24 months
// whose natural inflows alternate between half and one and a half of their means (upper 10 m³/s,
// lower 4 m³/s).
struct SmallRiver {
  SmallRiver() : net(NetworkBuilder::monthly(2001, 2002)) {
    upper = addReservoir(net, 10.0, 0.9);
    lower = addReservoir(net, 4.0, 0.8);
    town = net.node(ElementType::humanDemand);
    town->getInputSerie(SerieType::demand)->fill(3.0);
    auto drain = net.node(ElementType::drain);
    auto river = net.link(upper, lower);
    auto canal = net.link(upper, town, 20.0, ElementType::artificialLink);
    auto outlet = net.link(lower, drain);
    const double u = upper->getId(), r = river->getId(), c = canal->getId();
    net.allocation(upper, {{u, r, c}, {3, 0, 3}, {1000, 997, 3}});
    net.allocation(lower, {{double(lower->getId()), double(outlet->getId())}, {1000, 1000}});
    giveConstantRule(*net.scenario, upper, 6.0);
    giveConstantRule(*net.scenario, lower, 8.0);
  }

  NetworkBuilder net;
  std::shared_ptr<Reservoir> upper;
  std::shared_ptr<Reservoir> lower;
  std::shared_ptr<Node> town;
};

// The element as a project file holds it, without what the scenario's kind says about it.
nlohmann::json elementJson(const std::shared_ptr<Element>& element,
                           const std::shared_ptr<Scenario>& scenario) {
  auto json =
      nlohmann::json::parse(JsonSaveElementFactory::make(element, scenario)->toJsonElement());
  json.erase("scenarioConf");
  return json;
}

// Every element as written to a project file, and every value of its input series.
void expectSameNetwork(const std::shared_ptr<Scenario>& expected,
                       const std::shared_ptr<Scenario>& actual) {
  ASSERT_EQ(expected->getElements().size(), actual->getElements().size());
  for (const auto& element : expected->getSortedElements()) {
    const auto& other = actual->getElement(element->getId());
    EXPECT_EQ(elementJson(element, expected), elementJson(other, actual)) << element->getName();
    const auto series = element->getVectorOfInputSeries();
    const auto otherSeries = other->getVectorOfInputSeries();
    ASSERT_EQ(series.size(), otherSeries.size()) << element->getName();
    for (std::size_t i = 0; i < series.size(); ++i) {
      EXPECT_EQ(series[i]->getMapOfJulianToValues(), otherSeries[i]->getMapOfJulianToValues())
          << element->getName();
    }
  }
}

std::shared_ptr<ReleaseRule> ruleOf(const Scenario& scenario, const std::shared_ptr<Element>& e) {
  return Scenario::getSettings<ReservoirRuleSettings>(scenario.getElement(e->getId()),
                                                      scenario.getSettingsManager())
      ->getRule();
}

bool markedForTheCurve(const Scenario& scenario, const std::shared_ptr<Element>& e) {
  return Scenario::getSettings<ReservoirGuaranteeCurveSettings>(scenario.getElement(e->getId()),
                                                                scenario.getSettingsManager())
      ->getIsGuaranteeCurve();
}

// What kept a scenario from running, for the failure's message.
std::string findings(const Scenario& scenario) {
  std::string text;
  if (!scenario.getSceneryCheck()) return text;
  for (const auto& error : scenario.getSceneryCheck()->getAllErrors()) {
    text += "\n" + error.elementName + ": " + error.message;
  }
  return text;
}

}  // namespace

// Each kind is made from the rule scenario, then each of them becomes each other kind: the
// result is of the kind asked, passes its checks and runs, and the source keeps what it had.
TEST(SceneryTransformation, EveryDirectionGivesAScenarioThatRuns) {
  SmallRiver river;
  std::map<ScenarioType, std::shared_ptr<Scenario>> sources = {
      {ScenarioType::ruleSimulator, river.net.scenario}};
  for (const ScenarioType kind : kKinds) {
    if (kind != ScenarioType::ruleSimulator) sources[kind] = convert(*river.net.scenario, kind);
  }
  unsigned int directions = 0;
  for (const auto& [from, source] : sources) {
    for (const ScenarioType to : kKinds) {
      if (to == from) continue;
      const auto target = convert(*source, to);
      EXPECT_EQ(target->getScenarioType().getType(), to);
      EXPECT_EQ(target->getName(), source->getName());
      EXPECT_EQ(target->getId(), source->getId() + 10);
      EXPECT_TRUE(target->run(nullptr))
          << id(from) << " -> " << id(to) << ": " << target->getSceneryStatus().getName()
          << findings(*target);
      EXPECT_FALSE(source->hasResults());
      ++directions;
    }
  }
  EXPECT_EQ(directions, 20u);
}

TEST(SceneryTransformation, RulesToPrioritiesAndBackKeepTheNetworkAndItsSeries) {
  SmallRiver river;
  const auto priorities = convert(*river.net.scenario, ScenarioType::priorityOptimizer);
  const auto rules = convert(*priorities, ScenarioType::ruleSimulator);
  expectSameNetwork(river.net.scenario, priorities);
  expectSameNetwork(river.net.scenario, rules);
  EXPECT_EQ(rules->getInterval(), river.net.scenario->getInterval());

  // A rule run does not read target volumes; where they are missing, priorities keep full.
  river.upper->getInputSerie(SerieType::targetVolume)->fill(-999.0);
  const auto filled = convert(*river.net.scenario, ScenarioType::priorityOptimizer);
  const Date june(2002, 6, 1);
  EXPECT_EQ(filled->getElement(river.upper->getId())
                ->getInputSerie(SerieType::targetVolume)
                ->getValue(june),
            1.0);
  EXPECT_EQ(filled->getElement(river.lower->getId())
                ->getInputSerie(SerieType::targetVolume)
                ->getValue(june),
            0.8);
  EXPECT_TRUE(filled->run(nullptr)) << findings(*filled);
}

TEST(SceneryTransformation, APriorityRunBecomesConstantReleasesAndTheSharesItsLinksCarried) {
  // A big lake gains 10 m³/s and serves a town 3 m³/s first, keeping the rest, so that it
  // releases exactly 3 m³/s every month, all of it down the canal.
  PriorityNetworkBuilder net(12);
  auto lake = net.reservoir(50, 2000, 1000, 50, 1.0);
  lake->getInputSerie(SerieType::naturalIncrementalFlow)->fill(10.0);
  auto town = net.node(ElementType::humanDemand);
  town->getInputSerie(SerieType::demand)->fill(3.0);
  net.settings(town)->setPriority(1);
  auto canal = net.link(lake, town, 0.0, 9999.0, ElementType::artificialLink);
  auto river = net.link(lake, net.node(ElementType::drain));

  for (const bool ranBefore : {false, true}) {
    if (ranBefore) {
      ASSERT_TRUE(net.scenario->run(nullptr));
    }
    const auto rules = convert(*net.scenario, ScenarioType::ruleSimulator);
    EXPECT_EQ(net.scenario->hasResults(), ranBefore);
    const auto rule = std::dynamic_pointer_cast<ConstReleaseRule>(ruleOf(*rules, lake));
    ASSERT_TRUE(rule);
    EXPECT_NEAR(rule->getRelease(), 3.0, 1e-9);
    const auto& matrix = Scenario::getSettings<RuleSettings>(rules->getElement(lake->getId()),
                                                             rules->getSettingsManager())
                             ->getAllocation();
    ASSERT_EQ(matrix.at(lake->getId()).size(), 1u);
    EXPECT_NEAR(matrix.at(lake->getId())[0], 3.0, 1e-6);
    EXPECT_NEAR(matrix.at(canal->getId())[0], 3.0, 1e-6);
    EXPECT_NEAR(matrix.at(river->getId())[0], 0.0, 1e-6);
    ASSERT_TRUE(rules->run(nullptr));
    PeriodWalker::forEach(rules->getInterval(), [&](const Date& date) {
      EXPECT_NEAR(rules->getElement(town->getId())
                      ->getOutputSerie(SerieType::attendedDemand, 0)
                      ->getValue(date),
                  3.0, 1e-6);
    });
  }
}

TEST(SceneryTransformation, ASwarmGetsTheTwinsOfTheRulesAndARuleRunGetsThemBack) {
  SmallRiver river;
  const auto optimisation = convert(*river.net.scenario, ScenarioType::ruleOptimizer);
  // The upper lake gets 10 m³/s on average; the lower one 4 m³/s and what comes from above.
  const auto upper =
      std::dynamic_pointer_cast<OptConstReleaseRule>(ruleOf(*optimisation, river.upper));
  const auto lower =
      std::dynamic_pointer_cast<OptConstReleaseRule>(ruleOf(*optimisation, river.lower));
  ASSERT_TRUE(upper && lower);
  EXPECT_DOUBLE_EQ(upper->getRelease(), 6.0);
  EXPECT_DOUBLE_EQ(upper->getUpperRelease(), 20.0);
  EXPECT_DOUBLE_EQ(lower->getUpperRelease(), 28.0);
  EXPECT_TRUE(upper->getToOpt());

  const auto rules = convert(*optimisation, ScenarioType::ruleSimulator);
  const auto back = std::dynamic_pointer_cast<ConstReleaseRule>(ruleOf(*rules, river.upper));
  ASSERT_TRUE(back);
  EXPECT_DOUBLE_EQ(back->getRelease(), 6.0);
}

TEST(SceneryTransformation, TheCurvesPassTheirReservoirsToEachOther) {
  SmallRiver river;
  river.upper->setEnabled(false);
  const auto curve = convert(*river.net.scenario, ScenarioType::guaranteeCurve);
  EXPECT_FALSE(markedForTheCurve(*curve, river.upper));
  EXPECT_TRUE(markedForTheCurve(*curve, river.lower));
  river.upper->setEnabled(true);

  // A curve of the upper lake alone makes it the out reservoir of the system, on an optimisable
  // constant release; the system's out reservoir is the one curve asked for on the way back.
  const auto curveOfUpper = convert(*river.net.scenario, ScenarioType::guaranteeCurve);
  Scenario::getSettings<ReservoirGuaranteeCurveSettings>(
      curveOfUpper->getElement(river.lower->getId()), curveOfUpper->getSettingsManager())
      ->setIsGuaranteeCurve(false);
  std::static_pointer_cast<GuaranteeCurveScenario>(curveOfUpper)
      ->getExecutionGuaranteeCurve()
      .setOnlyQ90(true);
  const auto system = std::static_pointer_cast<SystemGuaranteeCurveScenario>(
      convert(*curveOfUpper, ScenarioType::systemGuaranteeCurve));
  EXPECT_EQ(system->getExecutionSystemGuaranteeCurve().getOutSystemReservoirId(),
            river.upper->getId());
  EXPECT_TRUE(system->getExecutionSystemGuaranteeCurve().isOnlyQ90());
  const auto out = std::dynamic_pointer_cast<OptConstReleaseRule>(ruleOf(*system, river.upper));
  ASSERT_TRUE(out);
  EXPECT_TRUE(out->getToOpt());

  const auto again = convert(*system, ScenarioType::guaranteeCurve);
  EXPECT_TRUE(markedForTheCurve(*again, river.upper));
  EXPECT_FALSE(markedForTheCurve(*again, river.lower));

  // Without one curve reservoir the system flows out of the last lake downstream.
  const auto fromAll = std::static_pointer_cast<SystemGuaranteeCurveScenario>(
      convert(*curve, ScenarioType::systemGuaranteeCurve));
  EXPECT_EQ(fromAll->getExecutionSystemGuaranteeCurve().getOutSystemReservoirId(),
            river.lower->getId());
}

TEST(SceneryTransformation, ASimulationKeepsItsWindowsAndZeroContribution) {
  SmallRiver river;
  auto windows = std::make_shared<ExecutionWindowed>();
  windows->setZeroContribution(true);
  river.net.scenario->setExecutionMethod(windows);
  const auto priorities = convert(*river.net.scenario, ScenarioType::priorityOptimizer);
  EXPECT_EQ(priorities->getExecutionMethod()->getExecutionType().getType(),
            ExecutionType::windowed);
  EXPECT_TRUE(priorities->getExecutionMethod()->getZeroContribution());
  const auto curve = convert(*river.net.scenario, ScenarioType::guaranteeCurve);
  EXPECT_TRUE(curve->getExecutionMethod()->getZeroContribution());
  const auto rules = convert(*curve, ScenarioType::ruleSimulator);
  EXPECT_EQ(rules->getExecutionMethod()->getExecutionType().getType(), ExecutionType::continuous);
  EXPECT_TRUE(rules->getExecutionMethod()->getZeroContribution());
}

TEST(SceneryTransformation, RefusesAKindIntoItselfAndASourceOfAnotherKind) {
  EXPECT_THROW_TEXT(SceneryTransformationFactory::make(1, 1), std::invalid_argument,
                    "SceneryTransformationFactory::make(): no transformation from 1 to 1");
  EXPECT_THROW_TEXT(SceneryTransformationFactory::make(0, 7), std::invalid_argument,
                    "SceneryTransformationFactory::make(): no transformation from 0 to 7");
  SmallRiver river;
  EXPECT_THROW_TEXT(
      SceneryTransformationFactory::make(0, 1)->transform(*river.net.scenario, 2),
      std::invalid_argument,
      "SceneryKindTransformation::transform(): the scenario is not of kind Otimizador por "
      "prioridades");
}
