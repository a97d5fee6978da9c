#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "optimization/GuaranteeCascade.h"
#include "optimization/kernel/PseudoRandom.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "project/database/SaveProject.h"
#include "rules/OptConstReleaseRule.h"

using GuaranteeCurveProjectFileTest = projectfile::ProjectFileTest;
using guaranteetest::Cascade;
using guaranteetest::SystemCascade;

namespace {

// Two reservoirs in series with their curve computed, and a third one upstream, not marked.
std::shared_ptr<GuaranteeCurveScenario> computedCurve() {
  Cascade cascade(guaranteetest::kTwoYears,
                  {{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}, guaranteetest::kSeasons, {2, 2, 1}},
                  1200.0);
  cascade.settings(cascade.reservoirs[0])->setIsGuaranteeCurve(false);
  cascade.scenario->setDatabaseId(4);
  auto& curve = cascade.curve();
  curve.setGuaranteeValues({40, 62.5, 90, 100});
  curve.setNumberOfIterations(25);
  ExecutionGuaranteeCurve::setSeed(8);
  EXPECT_TRUE(cascade.scenario->run(nullptr));
  return cascade.scenario;
}

// Two reservoirs in series whose system curve was computed, the lower one the out reservoir.
std::shared_ptr<SystemGuaranteeCurveScenario> computedSystemCurve() {
  SystemCascade cascade(guaranteetest::kTwoYears, {guaranteetest::kSeasons, {2, 2, 1}}, 1200.0);
  for (const auto& reservoir : cascade.reservoirs) {
    auto rule = std::make_shared<OptConstReleaseRule>();
    rule->setLowerAndUpperRelease(0.5, 9.0);
    rule->setToOpt(true);
    cascade.settings(reservoir)->setRule(rule);
  }
  cascade.scenario->setAutoOutReservoir();
  cascade.scenario->setDatabaseId(5);
  static_cast<PSOParameters&>(*cascade.system().getAlgorithmParameters()).swarmSize = 3;
  PseudoRandom::setSeed(4);
  EXPECT_TRUE(cascade.scenario->run(nullptr));
  return cascade.scenario;
}

// scenario saved as a project with its database and opened again, the same as it was, or null.
std::shared_ptr<Scenario> throughDatabase(const std::shared_ptr<Scenario>& scenario,
                                          const projectfile::TemporaryFolder& folder) {
  ScenarioManager::getInstance().addScenery(0, scenario);
  EXPECT_TRUE(SaveProject::saveAs(folder.file("base.sjson"), nullptr));
  SQLStorage::deleteInstance();
  ScenarioManager::getInstance().clear();
  const auto opened = LoadProject::load(folder.file("base.sjson"), nullptr);
  if (opened.size() != 1) return nullptr;
  EXPECT_EQ(JsonSaveBuilder::toJson(opened), JsonSaveBuilder::toJson({scenario}));
  return opened[0];
}

// A text replaced in a saved file, and what the failure to read it must say.
struct Flaw {
  std::string from, to, expected;
};

// Each flaw of text is refused with one message that starts at the scenario's place.
void expectRefused(const std::string& text, const std::vector<Flaw>& flaws,
                   const projectfile::TemporaryFolder& folder) {
  for (const auto& flaw : flaws) {
    SCOPED_TRACE(flaw.to);
    projectfile::writeFile(folder.file("bad.sjson"),
                           projectfile::replaced(text, flaw.from, flaw.to));
    try {
      JsonProjectLoader::load(folder.file("bad.sjson"));
      ADD_FAILURE() << "loaded";
    } catch (const std::exception& error) {
      const std::string message = error.what();
      EXPECT_NE(message.find(flaw.expected), std::string::npos) << message;
      EXPECT_EQ(message.rfind("/scenarios/0", 0), 0u) << message;
    }
  }
}

const ExecutionSystemGuaranteeCurve& systemCurveOf(const Scenario& scenario) {
  return dynamic_cast<const SystemGuaranteeCurveScenario&>(scenario)
      .getExecutionSystemGuaranteeCurve();
}

const ExecutionGuaranteeCurve& curveOf(const Scenario& scenario) {
  return dynamic_cast<const GuaranteeCurveScenario&>(scenario).getExecutionGuaranteeCurve();
}

}  // namespace

TEST_F(GuaranteeCurveProjectFileTest, AComputedCurveComesBackByteIdenticalThroughFileAndDatabase) {
  projectfile::TemporaryFolder folder;
  const auto scenario = computedCurve();
  ASSERT_FALSE(curveOf(*scenario).getGuaranteeStr().guarantees.empty());
  const std::string text = projectfile::saved({scenario}, folder.file("curva.sjson"));
  EXPECT_NE(text.find(R"("ExecutionMethodType":"Curva de garantia")"), std::string::npos);
  EXPECT_NE(text.find(R"("numOfIterations":25,"OnlyQ90":0,"GuaranteeCurveStr":{)"
                      R"("guaranteeValues":[40,62.5,90,100],"reservoirsIds":[)"),
            std::string::npos)
      << text.substr(0, 600);
  EXPECT_NE(text.find(R"(,"isGuaranteeCurve":0})"), std::string::npos);

  const auto loaded = JsonProjectLoader::load(folder.file("curva.sjson"));
  ASSERT_EQ(loaded.size(), 1u);
  EXPECT_EQ(projectfile::saved({loaded[0]}, folder.file("again.sjson")), text);
  EXPECT_EQ(curveOf(*loaded[0]).getGuaranteeStr(), curveOf(*scenario).getGuaranteeStr());
  EXPECT_EQ(curveOf(*loaded[0]).getNumberOfIterations(), 25u);

  // The database keeps the series the file does not: the project opened again runs the same.
  const auto opened = throughDatabase(scenario, folder);
  ASSERT_TRUE(opened);
  ExecutionGuaranteeCurve::setSeed(8);
  ASSERT_TRUE(opened->run(nullptr));
  EXPECT_EQ(curveOf(*opened).getGuaranteeStr(), curveOf(*scenario).getGuaranteeStr());
  SQLStorage::deleteInstance();
}

TEST_F(GuaranteeCurveProjectFileTest, AWrongCurveIsOneLineNamingItsPlace) {
  projectfile::TemporaryFolder folder;
  const std::string text = projectfile::saved({computedCurve()}, folder.file("curva.sjson"));
  const std::vector<Flaw> cases = {
      {R"("guaranteeValues":[40,)", R"("guaranteeValues":[0,)",
       "ExecutionGuaranteeCurve::setGuaranteeValues(): a guarantee must be above 0 and at most "
       "100"},
      {R"("numOfIterations":25)", R"("numOfIterations":0)",
       "the number of iterations must be positive"},
      {R"("releases":[[)", R"("releases":[[1],[)", "one row of releases per level found"},
      {R"("isGuaranteeCurve":0)", R"("isGuaranteeCurve":"não")", "isGuaranteeCurve"},
  };
  expectRefused(text, cases, folder);
}

TEST_F(GuaranteeCurveProjectFileTest, ASystemCurveComesBackByteIdenticalThroughFileAndDatabase) {
  projectfile::TemporaryFolder folder;
  const auto scenario = computedSystemCurve();
  const auto& curve = systemCurveOf(*scenario).getSystemGuaranteeCurveStr();
  ASSERT_FALSE(curve.guarantees.empty());
  const std::string text = projectfile::saved({scenario}, folder.file("sistema.sjson"));
  const std::string out = std::to_string(curve.outSystemReservoirId);
  EXPECT_NE(text.find(R"("outSystemReservoirId":)" + out +
                      R"(,"OnlyQ90":0,"OptAlgorithm":{)"
                      R"("type":"PSO","PSOParameters":{"particlesSize":3,"maxIterations":1}},)"
                      R"("SystemGuaranteeCurveStr":{"guaranteeCurveValues":[)"),
            std::string::npos)
      << text.substr(0, 600);

  const auto loaded = JsonProjectLoader::load(folder.file("sistema.sjson"));
  ASSERT_EQ(loaded.size(), 1u);
  EXPECT_EQ(projectfile::saved({loaded[0]}, folder.file("again.sjson")), text);
  EXPECT_EQ(systemCurveOf(*loaded[0]).getSystemGuaranteeCurveStr(), curve);

  const auto opened = throughDatabase(scenario, folder);
  ASSERT_TRUE(opened);
  PseudoRandom::setSeed(4);
  ASSERT_TRUE(opened->run(nullptr));
  EXPECT_EQ(systemCurveOf(*opened).getSystemGuaranteeCurveStr(), curve);
  SQLStorage::deleteInstance();

  // Where the curve names another out reservoir, the method's key stands.
  projectfile::writeFile(
      folder.file("other.sjson"),
      projectfile::replaced(text, R"("outReservoirId":)" + out, R"("outReservoirId":77)"));
  const auto other = JsonProjectLoader::load(folder.file("other.sjson"));
  EXPECT_EQ(systemCurveOf(*other[0]).getOutSystemReservoirId(), curve.outSystemReservoirId);
}

TEST_F(GuaranteeCurveProjectFileTest, AWrongSystemCurveOrMethodIsOneLineNamingItsPlace) {
  projectfile::TemporaryFolder folder;
  const std::string text =
      projectfile::saved({computedSystemCurve()}, folder.file("sistema.sjson"));
  const std::vector<Flaw> cases = {
      {R"("type":"PSO")", R"("type":"GA")",
       "getSystemGuaranteeCurveAlgorithmTypeByString(): Invalid optimization algorithm type"},
      {R"("releases":[)", R"("releases":[1,)", "one release per level found"},
      {R"("ExecutionMethodType":"Curva de garantia do sistema")",
       R"("ExecutionMethodType":"Janela")",
       R"(expected the method of a "Curva de garantia do sistema" scenario: "Curva de garantia )"
       R"(do sistema", found the text "Janela")"},
  };
  expectRefused(text, cases, folder);
}
