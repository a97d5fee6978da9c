#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "DemoProject.h"
#include "KovaProcess.h"
#include "NewProjectTarget.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

// Saves the demo scenarios up to lastYear as the project at path, after edit.
void saveDemo(const std::string& path, unsigned int lastYear,
              const std::function<void(const std::vector<std::shared_ptr<Scenario>>&)>& edit) {
  const auto scenarios = DemoProject::makeScenarios(KOVA_DEMO_DATA, lastYear);
  edit(scenarios);
  ASSERT_TRUE(NewProjectTarget::save(scenarios, path, nullptr));
}

}  // namespace

TEST(KovaProcess, CtrlCCancelsTheRunAndLeavesTheDatabaseAsItWas) {
  TemporaryFolder folder("kova_process_");
  const std::string project = folder.file("longo.sjson");
  saveDemo(project, 1990, [](const auto&) {});
  const std::string before = readFile(project + ".sqlite");
  const Outcome run = kovaProcess({"run", project, "--scenario", "Prioridades"},
                                  ProcessOptions::signalOn(SIGINT, "Prioridades: 10%"));
  EXPECT_EQ(run.status, 3) << run.err;
  EXPECT_EQ(run.out, "Prioridades: A execução do cenário foi cancelada!\n");
  EXPECT_EQ(readFile(project + ".sqlite"), before);
}

TEST(KovaProcess, ARefusedScenarioPrintsItsFindingsAndEndsWithStatusOne) {
  TemporaryFolder folder("kova_process_");
  const std::string project = folder.file("falho.sjson");
  saveDemo(project, 1932, [](const std::vector<std::shared_ptr<Scenario>>& scenarios) {
    auto sobradinho = std::static_pointer_cast<Reservoir>(scenarios[0]->getElement("Sobradinho"));
    sobradinho->getReservoirInfo().initVol = sobradinho->getReservoirInfo().maxVol + 1.0;
  });
  const Outcome check = kovaProcess({"check", project, "--scenario", "Regras"});
  EXPECT_EQ(check.status, 1);
  const std::string finding = "Volume inicial maior que volume máximo em: Sobradinho\n";
  EXPECT_EQ(check.out.rfind(finding, 0), 0u) << check.out;
  const Outcome run =
      kovaProcess({"run", project, "--scenario", "Regras", "--scenario", "Prioridades", "--quiet"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out.rfind(
                "Regras: Cenário não executado devido a existência algum erro de configuração.\n" +
                    finding,
                0),
            0u)
      << run.out;
  // The other scenarios still run.
  EXPECT_NE(run.out.find("Prioridades: Cenário executado com sucesso!"), std::string::npos);
  EXPECT_EQ(run.err, "");
}

TEST(KovaProcess, FileErrorsEndWithStatusTwoAndOneLine) {
  const Outcome missing = kovaProcess({"info", "/nonexistent/p.sjson"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.err, "kova info: /nonexistent/p.sjson: no such project file\n");
  EXPECT_FALSE(std::ifstream("/nonexistent/p.sjson.sqlite").good());

  TemporaryFolder folder("kova_process_");
  const std::string locked = folder.file("fechado.sjson");
  writeFile(locked, "{}");
  std::filesystem::permissions(locked, std::filesystem::perms::none);
  const Outcome unreadable = kovaProcess({"info", locked}, ProcessOptions::nobody());
  EXPECT_EQ(unreadable.status, 2);
  EXPECT_EQ(unreadable.err, "kova info: " + locked + ": cannot be read\n");
}
