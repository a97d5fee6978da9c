#include <gtest/gtest.h>

#include <string>

#include "optimization/GuaranteeCascade.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "project/database/SaveProject.h"

using GuaranteeCurveProjectFileTest = projectfile::ProjectFileTest;
using guaranteetest::Cascade;

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

std::string saved(const std::shared_ptr<Scenario>& scenario, const std::string& path) {
  auto& manager = ScenarioManager::getInstance();
  manager.clear();
  manager.addScenery(0, scenario);
  EXPECT_TRUE(JsonSaveBuilder::save(path));
  manager.clear();
  return projectfile::readFile(path);
}

const ExecutionGuaranteeCurve& curveOf(const Scenario& scenario) {
  return dynamic_cast<const GuaranteeCurveScenario&>(scenario).getExecutionGuaranteeCurve();
}

}  // namespace

TEST_F(GuaranteeCurveProjectFileTest, AComputedCurveComesBackByteIdenticalThroughFileAndDatabase) {
  projectfile::TemporaryFolder folder;
  const auto scenario = computedCurve();
  ASSERT_FALSE(curveOf(*scenario).getGuaranteeStr().guarantees.empty());
  const std::string text = saved(scenario, folder.file("curva.sjson"));
  EXPECT_NE(text.find(R"("ExecutionMethodType":"Curva de garantia")"), std::string::npos);
  EXPECT_NE(text.find(R"("numOfIterations":25,"OnlyQ90":0,"GuaranteeCurveStr":{)"
                      R"("guaranteeValues":[40,62.5,90,100],"reservoirsIds":[)"),
            std::string::npos)
      << text.substr(0, 600);
  EXPECT_NE(text.find(R"(,"isGuaranteeCurve":0})"), std::string::npos);

  const auto loaded = JsonProjectLoader::load(folder.file("curva.sjson"));
  ASSERT_EQ(loaded.size(), 1u);
  EXPECT_EQ(saved(loaded[0], folder.file("again.sjson")), text);
  EXPECT_EQ(curveOf(*loaded[0]).getGuaranteeStr(), curveOf(*scenario).getGuaranteeStr());
  EXPECT_EQ(curveOf(*loaded[0]).getNumberOfIterations(), 25u);

  // The database keeps the series the file does not: the project opened again runs the same.
  ScenarioManager::getInstance().addScenery(0, scenario);
  ASSERT_TRUE(SaveProject::saveAs(folder.file("base.sjson"), nullptr));
  SQLStorage::deleteInstance();
  ScenarioManager::getInstance().clear();
  const auto opened = LoadProject::load(folder.file("base.sjson"), nullptr);
  ASSERT_EQ(opened.size(), 1u);
  EXPECT_EQ(JsonSaveBuilder::toJson(opened), JsonSaveBuilder::toJson({scenario}));
  ExecutionGuaranteeCurve::setSeed(8);
  ASSERT_TRUE(opened[0]->run(nullptr));
  EXPECT_EQ(curveOf(*opened[0]).getGuaranteeStr(), curveOf(*scenario).getGuaranteeStr());
  SQLStorage::deleteInstance();
}

TEST_F(GuaranteeCurveProjectFileTest, AWrongCurveIsOneLineNamingItsPlace) {
  projectfile::TemporaryFolder folder;
  const std::string text = saved(computedCurve(), folder.file("curva.sjson"));
  const struct {
    std::string from, to, expected;
  } cases[] = {
      {R"("guaranteeValues":[40,)", R"("guaranteeValues":[0,)",
       "ExecutionGuaranteeCurve::setGuaranteeValues(): a guarantee must be above 0 and at most "
       "100"},
      {R"("numOfIterations":25)", R"("numOfIterations":0)",
       "the number of iterations must be positive"},
      {R"("releases":[[)", R"("releases":[[1],[)", "one row of releases per level found"},
      {R"("isGuaranteeCurve":0)", R"("isGuaranteeCurve":"não")", "isGuaranteeCurve"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.to);
    projectfile::writeFile(folder.file("bad.sjson"), projectfile::replaced(text, c.from, c.to));
    try {
      JsonProjectLoader::load(folder.file("bad.sjson"));
      ADD_FAILURE() << "loaded";
    } catch (const std::exception& error) {
      const std::string message = error.what();
      EXPECT_NE(message.find(c.expected), std::string::npos) << message;
      EXPECT_EQ(message.rfind("/scenarios/0", 0), 0u) << message;
    }
  }
}
