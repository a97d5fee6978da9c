#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "project/JsonSaveBuilder.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/ProjectResumate.h"
#include "support/ExpectThrow.h"

using namespace databasetest;
using ProjectResumateTest = DatabaseTest;

namespace {

// A project file whose two scenarios are told in the order given; nothing else of them is read.
std::string writeProject(const databasetest::TemporaryFolder& folder,
                         const std::string& scenarios) {
  const std::string path = folder.file("resumate.sjson");
  std::ofstream(path) << R"({"scenarios":[)" << scenarios << R"(],"project":{}})";
  return path;
}

std::string scenarioText(const std::string& name, const std::string& type,
                         const std::string& method, const std::string& periodicity) {
  return R"({"interval":{"begin":{"day":1,"month":3,"year":1931},"end":{"day":1,"month":2,)"
         R"("year":1935},"periodicity":")" +
         periodicity + R"("},"name":")" + name + R"(","type":")" + type +
         R"(","ExecutionMethodType":")" + method + R"("})";
}

}  // namespace

TEST_F(ProjectResumateTest, EachScenarioIsToldByNameKindMethodAndPeriod) {
  const std::string path = writeProject(
      folder, scenarioText("Base", "Simulador por regras", "Contínuo", "Mensal") + "," +
                  scenarioText("Seca", "Otimizador por prioridades", "Janela", "Diário"));
  const auto resumate = ProjectResumate::getResumate(path);
  ASSERT_EQ(resumate.size(), 2u);
  EXPECT_EQ(resumate[1].name, "Seca");
  EXPECT_EQ(resumate[1].type, Vocabulary::of(ScenarioType::priorityOptimizer));
  EXPECT_EQ(resumate[1].executionType, Vocabulary::of(ExecutionType::windowed));
  EXPECT_EQ(resumate[1].interval,
            Interval(Date(1931, 3, 1), Date(1935, 2, 1), Vocabulary::of(Periodicity::daily)));
  EXPECT_EQ(ProjectResumate::toText(resumate),
            "Cenário 1: Base\n"
            "  Tipo: Simulador por regras\n"
            "  Método de execução: Contínuo\n"
            "  Período: 03/1931 a 02/1935 (Mensal)\n"
            "Cenário 2: Seca\n"
            "  Tipo: Otimizador por prioridades\n"
            "  Método de execução: Janela\n"
            "  Período: 01/03/1931 a 01/02/1935 (Diário)\n");
  EXPECT_EQ(ProjectResumate::toText({}), "Projeto sem cenários.\n");
}

TEST_F(ProjectResumateTest, AProjectSavedByTheProgramIsSummarisedWithoutOpeningIt) {
  const auto network = installRealisticProject(1932);
  const std::string path = folder.file("rio.sjson");
  ASSERT_TRUE(JsonSaveBuilder::save(path));
  const auto resumate = ProjectResumate::getResumate(path);
  ASSERT_EQ(resumate.size(), 1u);
  EXPECT_EQ(resumate[0].name, network->net.scenario->getName());
  EXPECT_EQ(resumate[0].type, network->net.scenario->getScenarioType());
  EXPECT_EQ(resumate[0].interval, network->net.scenario->getInterval());
  EXPECT_FALSE(SQLStorage::hasInstance());
}

TEST_F(ProjectResumateTest, UnknownKindsAndMissingFilesAreNamed) {
  const struct {
    std::string scenario;
    std::string text;
  } cases[] = {
      {scenarioText("A", "Simulador", "Contínuo", "Mensal"),
       "SceneryTypeFactoryByString::make(): invalid ScenarioType"},
      {scenarioText("A", "Simulador por regras", "Continuo", "Mensal"),
       "ExecutionTypeFactoryByString::make(): invalid executionType"},
      {scenarioText("A", "Simulador por regras", "Contínuo", "Semanal"),
       "JsonLoadInterval::load(): invalid periodicity"},
  };
  for (const auto& item : cases) {
    SCOPED_TRACE(item.text);
    EXPECT_THROW_TEXT(ProjectResumate::getResumate(writeProject(folder, item.scenario)),
                      std::invalid_argument, item.text);
  }
  EXPECT_THROW_TEXT(ProjectResumate::getResumate(folder.file("absent.sjson")), std::runtime_error,
                    "ProjectResumate::getResumate() error in open JSON file");
  EXPECT_THROW(ProjectResumate::getResumate(writeProject(folder, "{")), nlohmann::json::exception);
}
