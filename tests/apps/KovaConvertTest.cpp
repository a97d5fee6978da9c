#include <gtest/gtest.h>

#include <string>

#include "DemoCopy.h"
#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

const std::string kRules = "Regras";
const std::string kPriority = "Prioridades";

}  // namespace

// Rules become priorities and back: the scenarios are saved, keep the rule scenario's inputs,
// and run; the priority scenario had no stored run, so it runs first.
TEST(KovaConvert, RulesToPrioritiesAndBackAreSavedWithTheSameInputsAndRun) {
  TemporaryFolder folder("kova_convert_");
  const std::string project = copyOfDemo(folder);
  const auto toPriorities = kova({"convert", project, "--scenario", kRules, "--to", "priority"});
  ASSERT_EQ(toPriorities.status, exitOk) << toPriorities.err;
  const std::string priorities = kRules + "-priority";
  EXPECT_EQ(toPriorities.out, priorities + ": made from \"" + kRules +
                                  "\" as a scenario of kind priority and saved\n");

  const auto back =
      kova({"convert", project, "--scenario", priorities, "--to", "rule", "--name", "De volta"});
  ASSERT_EQ(back.status, exitOk) << back.err;
  EXPECT_NE(
      back.out.find("scenario \"" + priorities + "\" has no stored run to read: it runs first"),
      std::string::npos)
      << back.out;

  const auto info = kova({"info", project});
  ASSERT_EQ(info.status, exitOk) << info.err;
  EXPECT_NE(info.out.find(priorities), std::string::npos) << info.out;
  EXPECT_NE(info.out.find("De volta"), std::string::npos) << info.out;
  for (const std::string& scenario : {kRules, priorities, std::string("De volta")}) {
    EXPECT_EQ(kova({"run", project, "--scenario", scenario, "--quiet"}).status, exitOk) << scenario;
  }
  // The natural inflow of a lake, an input, travels unchanged.
  const std::string inflow = seriesCsv(project, kRules, "Sobradinho", "2");
  EXPECT_EQ(seriesCsv(project, "De volta", "Sobradinho", "2"), inflow);
  EXPECT_EQ(seriesCsv(project, priorities, "Sobradinho", "2"), inflow);
}

TEST(KovaConvert, RefusesAnUnknownKindTheKindItHasAndANameTaken) {
  TemporaryFolder folder("kova_convert_");
  const std::string project = copyOfDemo(folder);
  const std::string before = readFile(project);
  const auto unknown = kova({"convert", project, "--scenario", kRules, "--to", "rules"});
  EXPECT_EQ(unknown.status, exitUsage);
  EXPECT_NE(unknown.err.find("option --to: no kind named \"rules\""), std::string::npos)
      << unknown.err;
  const auto same = kova({"convert", project, "--scenario", kRules, "--to", "rule"});
  EXPECT_EQ(same.status, exitUsage);
  EXPECT_NE(same.err.find("scenario \"Regras\" is already of kind rule"), std::string::npos)
      << same.err;
  const auto taken =
      kova({"convert", project, "--scenario", kRules, "--to", "guarantee", "--name", kPriority});
  EXPECT_EQ(taken.status, exitUsage);
  EXPECT_NE(taken.err.find("already has a scenario named \"Prioridades\""), std::string::npos)
      << taken.err;
  EXPECT_EQ(readFile(project), before);
}
