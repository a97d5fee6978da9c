#include <gtest/gtest.h>

#include "managers/AutomatedScenarioBuilder.h"
#include "optimization/TwoReservoirs.h"
#include "optimization/kernel/PseudoRandom.h"
#include "project/database/DatabaseInsert.h"
#include "project/database/DatabaseSceneryCopy.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/SaveProject.h"
#include "rules/ConstReleaseRule.h"
#include "support/ExpectThrow.h"

using namespace databasetest;
using namespace optimisationtest;

namespace {

class AutomatedScenarioBuilderTest : public DatabaseTest {
 protected:
  // An optimised two-reservoir system stored in a new project database.
  void SetUp() override {
    DatabaseTest::SetUp();
    ASSERT_TRUE(SaveProject::saveAs(folder.file("solutions.sjson"), nullptr));
    PseudoRandom::setSeed(17);
    scenario = optimisation(OptimizationAlgorithmType::smpso, 6, 6, 3);
    DatabaseInsert::insertSceneryEntryInDatabase(*scenario);
    ASSERT_TRUE(DatabaseSceneryCopy::sceneryCopy(scenario, nullptr));
    ASSERT_TRUE(scenario->run(nullptr));
    ASSERT_GE(scenario->getMatrixOfSolutions().size(), 2u);
  }

  std::shared_ptr<RuleOptimizationScenario> scenario;
};

}  // namespace

TEST_F(AutomatedScenarioBuilderTest, ARowBecomesARuleScenarioThatReproducesItsObjectives) {
  const unsigned int row = 1;
  long steps = 0;
  const auto rules = AutomatedScenarioBuilder::makeRuleScenarioFromOptimization(
      *scenario, row, [&](long, long) { return ++steps > 0; });
  ASSERT_TRUE(rules);
  EXPECT_EQ(steps, 5);
  EXPECT_EQ(rules->getName(), "Otimização-SOL-1");
  EXPECT_EQ(rules->getScenarioType().getType(), ScenarioType::ruleSimulator);
  EXPECT_NE(rules->getDatabaseId(), scenario->getDatabaseId());
  EXPECT_NE(rules->getElements()[0]->getDatabaseId(), scenario->getElements()[0]->getDatabaseId());

  const auto& solution = scenario->getMatrixOfSolutions()[row];
  std::vector<std::shared_ptr<Element>> reservoirs, demands;
  for (const auto& element : rules->getElements()) {
    if (element->getType() == ElementType::reservoir) reservoirs.push_back(element);
    if (element->getType() == ElementType::humanDemand) demands.push_back(element);
  }
  ASSERT_EQ(reservoirs.size(), 2u);
  for (std::size_t i = 0; i < reservoirs.size(); ++i) {
    const auto rule = std::dynamic_pointer_cast<ConstReleaseRule>(
        Scenario::getSettings<ReservoirRuleSettings>(reservoirs[i], rules->getSettingsManager())
            ->getRule());
    ASSERT_TRUE(rule) << "reservoir " << i;
    EXPECT_DOUBLE_EQ(rule->getRelease(), 20.0 * solution[i]);  // the range 0 to 20 m³/s
  }
  ASSERT_TRUE(rules->run(nullptr));
  const double shortage =
      ObjectiveFunctionFactory::make(ObjectiveFunctionType::shortageVolume, true, demands)
          ->getValue(0);
  const double evaporation =
      ObjectiveFunctionFactory::make(ObjectiveFunctionType::evaporationLoss, true, reservoirs)
          ->getValue(0);
  EXPECT_EQ(std::vector<double>({shortage, evaporation}),
            scenario->getMatrixOfObjectiveFunctionsValues()[row]);
}

TEST_F(AutomatedScenarioBuilderTest, ARowOutsideTheFrontOrACancelGivesNothing) {
  const auto rows = static_cast<unsigned int>(scenario->getMatrixOfSolutions().size());
  EXPECT_THROW_TEXT(
      AutomatedScenarioBuilder::makeRuleScenarioFromOptimization(*scenario, rows, nullptr),
      std::invalid_argument,
      "AutomatedScenarioBuilder::makeRuleScenarioFromOptimization: solutionLineIndex out of range "
      "of solutionMatrix");
  EXPECT_FALSE(AutomatedScenarioBuilder::makeRuleScenarioFromOptimization(
      *scenario, 0, [](long done, long) { return done < 2; }));
}
