#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "DemoCopy.h"
#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

const std::string kRules = "Regras";

// Flags the named reservoirs of a scenario of the project file isolated.
void isolate(const std::string& project, const std::string& scenario,
             const std::set<std::string>& reservoirs) {
  nlohmann::json file = nlohmann::json::parse(readFile(project));
  for (auto& entry : file["scenarios"]) {
    if (entry["name"] != scenario) continue;
    for (auto& node : entry["nodes"]) {
      if (reservoirs.count(node["node"]["element"]["name"].get<std::string>()))
        node["isolated"] = 1;
    }
  }
  writeFile(project, file.dump());
}

// The result files under folder by name, each without its first line (the time stamp).
std::map<std::string, std::string> resultFiles(const std::string& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    const std::string text = readFile(entry.path().string());
    files[std::filesystem::relative(entry.path(), folder).string()] =
        text.substr(text.find('\n') + 1);
  }
  return files;
}

}  // namespace

// The demo's cascade split at Queimado and Sobradinho runs piece by piece, rule scenario, and
// writes the very results of the whole run.
TEST(KovaIsolatedRun, TheDemoSplitAtTwoReservoirsWritesTheResultsOfTheWholeRun) {
  TemporaryFolder folder("kova_isolated_");
  const std::string project = copyOfDemo(folder);
  isolate(project, kRules, {"Queimado", "Sobradinho"});
  const auto whole = kova({"run", project, "--scenario", kRules, "--no-save", "--quiet", "--csv",
                           folder.file("whole")});
  ASSERT_EQ(whole.status, exitOk) << whole.err;
  const auto pieces =
      kova({"run", project, "--scenario", kRules, "--isolated", "--csv", folder.file("pieces")});
  ASSERT_EQ(pieces.status, exitOk) << pieces.err << pieces.out;
  EXPECT_NE(pieces.out.find(kRules + ": Cenário executado com sucesso!"), std::string::npos)
      << pieces.out;
  const auto expected = resultFiles(folder.file("whole"));
  EXPECT_GT(expected.size(), 15u);
  EXPECT_EQ(resultFiles(folder.file("pieces")), expected);

  // Stored like any run: the series of a reservoir of the middle piece read back alike.
  const auto stored = kova({"series", project, "--scenario", kRules, "--element", "Sobradinho",
                            "--kind", "35", "--format", "csv"});
  EXPECT_EQ(stored.status, exitOk) << stored.err;
  EXPECT_GT(linesOf(stored.out), 30u);
}

TEST(KovaIsolatedRun, RefusalsPrintTheirText) {
  TemporaryFolder folder("kova_isolated_");
  const std::string project = copyOfDemo(folder);
  const auto swarm = kova({"run", project, "--scenario", "Otimização das regras", "--isolated",
                           "--no-save", "--quiet"});
  EXPECT_EQ(swarm.status, exitFindings);
  EXPECT_EQ(swarm.out,
            "Otimização das regras: Este tipo de cenário não pode ser executado no modo rede "
            "isolada!\n");

  // Sobradinho's rule reads Três Marias, which a flag would put in a network of its own.
  isolate(project, kRules, {"Três Marias", "Sobradinho"});
  const auto apart = kova({"run", project, "--scenario", kRules, "--isolated", "--quiet"});
  EXPECT_EQ(apart.status, exitFindings);
  EXPECT_EQ(apart.out, kRules +
                           ": A regra do reservatório \"Sobradinho\" depende do reservatório "
                           "\"Três Marias\", que está em outra rede isolada.\n");
}
