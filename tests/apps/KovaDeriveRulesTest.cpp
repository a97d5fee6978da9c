#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <vector>

#include "DemoCopy.h"
#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "support/TemporaryFolder.h"

namespace {

const std::string kPriority = "Prioridades";
const char* const kReservoirs[] = {"Retiro Baixo", "Três Marias", "Queimado", "Sobradinho",
                                   "Itaparica"};

std::string releases(const std::string& project, const std::string& scenario,
                     const std::string& reservoir) {
  return seriesCsv(project, scenario, reservoir, "35");
}

}  // namespace

TEST(KovaDeriveRules, TheSeriesKindReleasesWhatThePriorityRunReleased) {
  TemporaryFolder folder("kova_derive_");
  const std::string project = copyOfDemo(folder);
  const auto early = kova({"derive-rules", project, "--scenario", kPriority, "--kind", "series"});
  EXPECT_EQ(early.status, exitUsage);
  EXPECT_NE(early.err.find("has no stored results"), std::string::npos) << early.err;

  ASSERT_EQ(kova({"run", project, "--scenario", kPriority, "--quiet"}).status, exitOk);
  const auto made = kova({"derive-rules", project, "--scenario", kPriority, "--kind", "series"});
  ASSERT_EQ(made.status, exitOk) << made.err;
  const std::string derived = kPriority + "-rule-Padrão";
  EXPECT_EQ(made.out, derived + ": made from the stored run of \"" + kPriority + "\" and saved\n");
  const auto again = kova({"derive-rules", project, "--scenario", kPriority, "--kind", "series"});
  EXPECT_EQ(again.status, exitUsage);
  EXPECT_NE(again.err.find("already has a scenario named"), std::string::npos) << again.err;

  ASSERT_EQ(kova({"run", project, "--scenario", derived, "--quiet"}).status, exitOk);
  for (const char* reservoir : kReservoirs) {
    SCOPED_TRACE(reservoir);
    const std::string priority = releases(project, kPriority, reservoir);
    EXPECT_GT(linesOf(priority), 30u);
    // The same dates and values; the result kind column names the same series.
    EXPECT_EQ(releases(project, derived, reservoir), priority);
  }
}

TEST(KovaDeriveRules, AModelPrintsTheErrorOfEachReservoirAndItsScenarioRuns) {
  TemporaryFolder folder("kova_derive_");
  const std::string project = copyOfDemo(folder);
  ASSERT_EQ(kova({"run", project, "--scenario", kPriority, "--quiet"}).status, exitOk);
  const auto made = kova({"derive-rules", project, "--scenario", kPriority, "--kind", "forest",
                          "--entries", "3", "--seed", "4"});
  ASSERT_EQ(made.status, exitOk) << made.err;
  EXPECT_EQ(linesOf(made.out), 2u + 1u + 5u) << made.out;
  for (const char* reservoir : kReservoirs) {
    EXPECT_NE(made.out.find(reservoir), std::string::npos) << made.out;
  }
  const std::string derived = kPriority + "-rule-Floresta aleatória de regressão";
  const auto run = kova({"run", project, "--scenario", derived, "--quiet"});
  EXPECT_EQ(run.status, exitOk) << run.err << run.out;

  // The same seed draws the same forest: its errors are printed alike by a second project.
  TemporaryFolder other("kova_derive_");
  const std::string twin = copyOfDemo(other);
  ASSERT_EQ(kova({"run", twin, "--scenario", kPriority, "--quiet"}).status, exitOk);
  EXPECT_EQ(kova({"derive-rules", twin, "--scenario", kPriority, "--kind", "forest", "--entries",
                  "3", "--seed", "4"})
                .out,
            made.out);
}

TEST(KovaDeriveRules, TheBestNumberOfEntriesIsChosenPerReservoirWithinTheLimitGiven) {
  TemporaryFolder folder("kova_derive_");
  const std::string project = copyOfDemo(folder);
  ASSERT_EQ(kova({"run", project, "--scenario", kPriority, "--quiet"}).status, exitOk);
  const auto both = kova({"derive-rules", project, "--scenario", kPriority, "--kind", "knn",
                          "--entries", "3", "--best-entries", "6"});
  EXPECT_EQ(both.status, exitUsage);
  EXPECT_NE(both.err.find("options --entries and --best-entries exclude each other"),
            std::string::npos);
  const auto made = kova(
      {"derive-rules", project, "--scenario", kPriority, "--kind", "knn", "--best-entries", "6"});
  ASSERT_EQ(made.status, exitOk) << made.err;
  std::istringstream lines(made.out);
  std::string line;
  std::getline(lines, line);  // made and saved
  std::getline(lines, line);  // what the errors are
  std::getline(lines, line);  // headings
  int reservoirs = 0;
  while (std::getline(lines, line)) {
    // The last three columns: entries, test error, train error.
    std::istringstream fields(line);
    std::vector<std::string> words{std::istream_iterator<std::string>(fields), {}};
    ASSERT_GE(words.size(), 4u) << line;
    const int entries = std::stoi(words[words.size() - 3]);
    EXPECT_GE(entries, 1) << line;
    EXPECT_LE(entries, 6) << line;
    ++reservoirs;
  }
  EXPECT_EQ(reservoirs, 5);
}

TEST(KovaDeriveRules, WrongKindsAndScenariosAreRefused) {
  TemporaryFolder folder("kova_derive_");
  const std::string project = copyOfDemo(folder);
  const auto kind = kova({"derive-rules", project, "--scenario", kPriority, "--kind", "svm"});
  EXPECT_EQ(kind.status, exitUsage);
  EXPECT_EQ(kind.err,
            "kova derive-rules: option --kind: \"svm\" is not one of knn, tree, forest, series; "
            "try 'kova derive-rules --help'\n");
  const auto rules = kova({"derive-rules", project, "--scenario", "Regras", "--kind", "knn"});
  EXPECT_EQ(rules.status, exitUsage);
  EXPECT_EQ(
      rules.err,
      "kova derive-rules: scenario \"Regras\" is a \"Simulador por regras\" scenario, not one "
      "by priorities (\"Otimizador por prioridades\"); try 'kova derive-rules --help'\n");
}
