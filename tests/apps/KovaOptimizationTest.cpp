#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <sstream>

#include "DemoCopy.h"
#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/ObjectiveFunctionFactory.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/expression/SerieExpression.h"
#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"
#include "project/ExpressionDefinitionSaveFactory.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "scenario/ScenarioManager.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

const std::string kOptimisation = "Otimização das regras";

std::string frontCsv(const std::string& project) {
  const auto front = kova({"front", project, "--scenario", kOptimisation, "--format", "csv"});
  EXPECT_EQ(front.status, exitOk) << front.err;
  return front.out;
}

std::vector<std::shared_ptr<Scenario>> openProject(const std::string& path) {
  ScenarioManager::getInstance().clear();
  SQLStorage::deleteInstance();
  const auto scenarios = LoadProject::load(path, nullptr);
  for (unsigned int i = 0; i < scenarios.size(); ++i) {
    ScenarioManager::getInstance().addScenery(i, scenarios[i]);
  }
  return scenarios;
}

void closeProject() {
  ScenarioManager::getInstance().clear();
  SQLStorage::deleteInstance();
}

std::shared_ptr<Scenario> named(const std::vector<std::shared_ptr<Scenario>>& scenarios,
                                const std::string& name) {
  for (const auto& scenario : scenarios) {
    if (scenario->getName() == name) return scenario;
  }
  ADD_FAILURE() << "no scenario " << name;
  return nullptr;
}

}  // namespace

TEST(KovaOptimization, ASeededRunPrintsAndStoresTheSameFrontOnOneAndTwoThreads) {
  TemporaryFolder folder("kova_optimisation_");
  const std::string project = copyOfDemo(folder);
  const std::string fileBefore = readFile(project);

  const auto dry = kova({"run", project, "--scenario", kOptimisation, "--seed", "4", "--threads",
                         "2", "--no-save", "--quiet"});
  ASSERT_EQ(dry.status, exitOk) << dry.err;
  EXPECT_NE(dry.out.find("row  Déficit no atendimento à demanda  Volume vertido"),
            std::string::npos)
      << dry.out;
  EXPECT_EQ(dry.err, "");
  // Without saving, the project and its folder stay as they were.
  EXPECT_EQ(readFile(project), fileBefore);
  EXPECT_FALSE(fs::exists(folder.file("VAR")));

  const auto one = kova(
      {"run", project, "--scenario", kOptimisation, "--seed", "4", "--threads", "1", "--quiet"});
  ASSERT_EQ(one.status, exitOk) << one.err;
  EXPECT_EQ(one.out, dry.out);
  const std::string stored = frontCsv(project);
  EXPECT_NE(readFile(project), fileBefore);
  EXPECT_TRUE(fs::exists(folder.file("VAR")));
  EXPECT_TRUE(fs::exists(folder.file("FUN")));

  const auto two = kova(
      {"run", project, "--scenario", kOptimisation, "--seed", "4", "--threads", "2", "--quiet"});
  ASSERT_EQ(two.status, exitOk) << two.err;
  EXPECT_EQ(frontCsv(project), stored);
  EXPECT_GT(std::count(stored.begin(), stored.end(), '\n'), 2);
}

TEST(KovaOptimization, TheScenarioOfARowReproducesItsObjectivesExactly) {
  TemporaryFolder folder("kova_optimisation_");
  const std::string project = copyOfDemo(folder);
  ASSERT_EQ(kova({"run", project, "--scenario", kOptimisation, "--seed", "2", "--quiet"}).status,
            exitOk);
  const auto made = kova({"solution", project, "--scenario", kOptimisation, "--row", "0"});
  ASSERT_EQ(made.status, exitOk) << made.err;
  EXPECT_EQ(made.out,
            kOptimisation + "-SOL-0: made from row 0 of \"" + kOptimisation + "\" and saved\n");
  const auto again = kova({"solution", project, "--scenario", kOptimisation, "--row", "0"});
  EXPECT_EQ(again.status, exitUsage);
  EXPECT_NE(again.err.find("already has a scenario named"), std::string::npos) << again.err;
  const auto outside = kova({"solution", project, "--scenario", kOptimisation, "--row", "900"});
  EXPECT_EQ(outside.status, exitUsage);
  EXPECT_NE(outside.err.find("row(s) in its stored front, rows 0 to"), std::string::npos);

  const auto scenarios = openProject(project);
  const auto& optimisation =
      dynamic_cast<const RuleOptimizationScenario&>(*named(scenarios, kOptimisation));
  const auto solution = named(scenarios, kOptimisation + "-SOL-0");
  ASSERT_TRUE(solution->run(nullptr));
  const auto& functions = optimisation.getExecutionOptimization().getVectorOfObjectiveFunctions();
  const auto& row = optimisation.getMatrixOfObjectiveFunctionsValues().at(0);
  ASSERT_EQ(row.size(), functions.size());
  for (std::size_t i = 0; i < functions.size(); ++i) {
    Scenario::Elements elements;
    for (const auto& element : functions[i]->getElements()) {
      elements.push_back(solution->getElement(element->getId()));
    }
    const auto function = ObjectiveFunctionFactory::make(functions[i]->getType().getType(),
                                                         functions[i]->isMinimization(), elements);
    EXPECT_EQ(function->getValue(0), row[i]) << functions[i]->getType().getName();
  }
  closeProject();
}

TEST(KovaOptimization, FrontAndSolutionRefuseWhatTheyCannotActOn) {
  TemporaryFolder folder("kova_optimisation_");
  const std::string project = copyOfDemo(folder);
  const auto notRun = kova({"front", project, "--scenario", kOptimisation});
  EXPECT_EQ(notRun.status, exitFindings);
  EXPECT_EQ(notRun.err, "kova front: scenario \"" + kOptimisation +
                            "\" has no stored front; run it with 'kova run'\n");
  const auto rules = kova({"front", project, "--scenario", "Regras"});
  EXPECT_EQ(rules.status, exitUsage);
  EXPECT_NE(rules.err.find("not a rule optimisation"), std::string::npos) << rules.err;
  const auto noRow = kova({"solution", project, "--scenario", kOptimisation});
  EXPECT_EQ(noRow.status, exitUsage);
  EXPECT_NE(noRow.err.find("option --row is required"), std::string::npos) << noRow.err;
  const auto noThreads =
      kova({"run", project, "--scenario", kOptimisation, "--threads", "0", "--no-save"});
  EXPECT_EQ(noThreads.status, exitUsage);
  const auto tooMany =
      kova({"run", project, "--scenario", kOptimisation, "--threads", "100000", "--no-save"});
  EXPECT_EQ(tooMany.status, exitUsage);
  EXPECT_NE(tooMany.err.find("option --threads: at most 256"), std::string::npos) << tooMany.err;
}

TEST(KovaOptimization, AGuaranteeCurveIsPrintedStoredAndReproducedByItsRuleScenario) {
  TemporaryFolder folder("kova_optimisation_");
  const std::string project = copyOfDemo(folder);
  const std::string name = "Curva de garantia";
  const auto run = kova({"run", project, "--scenario", name, "--seed", "6", "--quiet"});
  ASSERT_EQ(run.status, exitOk) << run.err;
  EXPECT_NE(run.out.find("guarantee  Três Marias"), std::string::npos) << run.out;
  const auto stored = kova({"curve", project, "--scenario", name, "--format", "csv"});
  ASSERT_EQ(stored.status, exitOk) << stored.err;
  EXPECT_EQ(stored.out.substr(0, stored.out.find('\n')), "guarantee,Três Marias,Sobradinho");

  // The same seed finds the same curve again.
  TemporaryFolder other("kova_optimisation_");
  const std::string copy = copyOfDemo(other);
  ASSERT_EQ(kova({"run", copy, "--scenario", name, "--seed", "6", "--quiet"}).status, exitOk);
  EXPECT_EQ(kova({"curve", copy, "--scenario", name, "--format", "csv"}).out, stored.out);

  ASSERT_EQ(kova({"solution", project, "--scenario", name, "--row", "0"}).status, exitOk);
  const auto scenarios = openProject(project);
  const auto& curve = dynamic_cast<const GuaranteeCurveScenario&>(*named(scenarios, name))
                          .getExecutionGuaranteeCurve();
  const auto& str = curve.getGuaranteeStr();
  ASSERT_FALSE(str.guarantees.empty());
  const auto solution = named(scenarios, name + "-GUA-0");
  ASSERT_TRUE(solution->run(nullptr));
  for (std::size_t column = 0; column < str.reservoirIds.size(); ++column) {
    const double q = str.values[0][column];
    const auto& released =
        solution->getElement(str.reservoirIds[column])->getOutputSerie(SerieType::releasedFlow, 0);
    unsigned int periods = 0, delivered = 0;
    PeriodWalker::forEach(solution->getInterval(), [&](const Date& date) {
      ++periods;
      if (std::fabs(released->getValue(date) - q) <= 1e-6) ++delivered;
    });
    EXPECT_GE(delivered * 100.0 / periods + 1e-9,
              NumericalUtils::getNearGuarantee(str.guarantees[0], periods));
  }
  closeProject();
}

TEST(KovaOptimization, ASystemCurveIsTheSameOnEveryThreadCountAndMakesNoRuleScenario) {
  TemporaryFolder folder("kova_optimisation_");
  const std::string project = copyOfDemo(folder);
  const std::string name = "Curva de garantia do sistema";
  const auto dry = kova({"run", project, "--scenario", name, "--seed", "3", "--threads", "2",
                         "--no-save", "--quiet"});
  ASSERT_EQ(dry.status, exitOk) << dry.err;
  EXPECT_NE(dry.out.find("guarantee    Itaparica\n"), std::string::npos) << dry.out;
  const auto one =
      kova({"run", project, "--scenario", name, "--seed", "3", "--threads", "1", "--quiet"});
  ASSERT_EQ(one.status, exitOk) << one.err;
  EXPECT_EQ(one.out, dry.out);

  const auto stored = kova({"curve", project, "--scenario", name, "--format", "csv"});
  ASSERT_EQ(stored.status, exitOk) << stored.err;
  EXPECT_EQ(stored.out.substr(0, stored.out.find('\n')), "guarantee,Itaparica");
  const auto solution = kova({"solution", project, "--scenario", name, "--row", "0"});
  EXPECT_EQ(solution.status, exitUsage);
  EXPECT_NE(solution.err.find("no rule scenario is made from it"), std::string::npos)
      << solution.err;
  const auto metrics = kova({"metrics", project, "--scenario", name});
  EXPECT_NE(metrics.status, exitOk);
  EXPECT_NE(metrics.err.find("is a guarantee curve, which keeps its curve and no results: see "
                             "kova curve"),
            std::string::npos)
      << metrics.err;
}

TEST(KovaOptimization, APersonalisedObjectiveIsAColumnOfTheFrontAndHoldsForItsSolution) {
  TemporaryFolder folder("kova_optimisation_");
  const std::string project = copyOfDemo(folder);
  auto scenarios = openProject(project);
  // The reservoirs of the spills objective.
  std::vector<unsigned int> reservoirIds;
  for (const auto& reservoir :
       dynamic_cast<const RuleOptimizationScenario&>(*named(scenarios, kOptimisation))
           .getExecutionOptimization()
           .getVectorOfObjectiveFunctions()
           .at(1)
           ->getElements()) {
    reservoirIds.push_back(reservoir->getId());
  }
  closeProject();

  // The sum over those reservoirs of their monthly spills.
  auto formula = std::make_shared<SummationToSeveralElementsWithSingleFunctionExpression>(
      std::weak_ptr<ExpressionDefinition>(), "Vertimentos");
  auto spills = std::make_shared<SerieExpression>(formula, "Vertido");
  spills->setSerieOutputType(SerieType::spilledVolume);
  formula->setExpression(spills);
  formula->setVectorOfElementIDs(reservoirIds);
  const std::string personalised =
      R"("personalizedObjectiveFunctions":[{"isMinimization":1,"isEnabled":1,"rootExpression":)" +
      ExpressionDefinitionSaveFactory::make(formula)->toJson() + R"(,"unit":"hm³"}])";
  std::string text = readFile(project);
  const std::string none = R"("personalizedObjectiveFunctions":[])";
  ASSERT_NE(text.find(none), std::string::npos);
  writeFile(project, text.replace(text.find(none), none.size(), personalised));

  ASSERT_EQ(kova({"run", project, "--scenario", kOptimisation, "--seed", "3", "--quiet"}).status,
            exitOk);
  const std::string front = frontCsv(project);
  EXPECT_NE(front.find(",Vertimentos"), std::string::npos) << front;
  ASSERT_EQ(kova({"solution", project, "--scenario", kOptimisation, "--row", "0"}).status, exitOk);

  scenarios = openProject(project);
  const auto& optimisation =
      dynamic_cast<const RuleOptimizationScenario&>(*named(scenarios, kOptimisation));
  const auto solution = named(scenarios, kOptimisation + "-SOL-0");
  ASSERT_TRUE(solution->run(nullptr));
  const auto& row = optimisation.getMatrixOfObjectiveFunctionsValues().at(0);
  ASSERT_EQ(row.size(),
            optimisation.getExecutionOptimization().getVectorOfObjectiveFunctions().size() + 1);
  double sum = 0.0;
  for (const unsigned int id : reservoirIds) {
    const auto& series = *solution->getElement(id)->getOutputSerie(SerieType::spilledVolume, 0);
    PeriodWalker::forEach(series.getInterval(),
                          [&](const Date& date) { sum += series.getValue(date); });
  }
  EXPECT_NEAR(row.back(), sum, 1e-9 * sum);
  EXPECT_GT(sum, 0.0);
  // The fixed function over the same reservoirs measures the same volume.
  EXPECT_NEAR(row.back(), row[1], 1e-9 * sum);
  closeProject();
}
