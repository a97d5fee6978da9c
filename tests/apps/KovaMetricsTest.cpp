#include <gtest/gtest.h>

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "ScenarioFindings.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

const std::string kWindowed = "Janelas a partir do armazenamento atual";

// The demo project over 1931-1933, every scenario run and stored once for the whole suite.
class KovaResults : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder = new TemporaryFolder("kova_metrics_");
    project = folder->file("sao_francisco.sjson");
    const auto made =
        kova({"demo", folder->file(""), "--data", KOVA_DEMO_DATA, "--until", "1933", "--quiet"});
    ASSERT_EQ(made.status, exitOk) << made.err;
    const auto run = kova({"run", project, "--quiet"});
    ASSERT_EQ(run.status, exitOk) << run.err;
  }
  static void TearDownTestSuite() {
    delete folder;
    folder = nullptr;
  }

  static nlohmann::json metricsJson(const std::vector<std::string>& more) {
    std::vector<std::string> args = {"metrics", project, "--format", "json"};
    args.insert(args.end(), more.begin(), more.end());
    const auto outcome = kova(args);
    EXPECT_EQ(outcome.status, exitOk) << outcome.err;
    return nlohmann::json::parse(outcome.out);
  }

  static TemporaryFolder* folder;
  static std::string project;
};

TemporaryFolder* KovaResults::folder = nullptr;
std::string KovaResults::project;

const nlohmann::json& rowOf(const nlohmann::json& rows, const std::string& element) {
  for (const auto& row : rows) {
    if (row["element"] == element) return row;
  }
  throw std::runtime_error("no row of " + element);
}

}  // namespace

TEST_F(KovaResults, EveryOutputNamesItsScenarioWindowDatesAndStoredRun) {
  const auto table = kova({"metrics", project, "--scenario", "Regras"});
  ASSERT_EQ(table.status, exitOk) << table.err;
  EXPECT_EQ(table.out.rfind("scenario: Regras\nwindows: 1 of 1, 1931-01-01 to 1933-12-01\n"
                            "stored run: ",
                            0),
            0u)
      << table.out;
  EXPECT_NE(table.out.find("\n\nReservatórios  "), std::string::npos);
  EXPECT_EQ(table.err, "");

  const auto csv = kova({"metrics", project, "--scenario", kWindowed, "--window", "2",
                         "--elements", "reservoirs", "--format", "csv"});
  ASSERT_EQ(csv.status, exitOk) << csv.err;
  // The windows run from November: the second covers November 1932 to October 1933.
  EXPECT_EQ(csv.out.rfind("# scenario: " + kWindowed + "\n# windows: 2 of 2, 1932-11-01 to "
                          "1933-10-01\n# stored run: ",
                          0),
            0u)
      << csv.out;

  const auto json = metricsJson({"--scenario", "Regras"});
  EXPECT_EQ(json["scenario"], "Regras");
  EXPECT_EQ(json["windows"], "1 of 1");
  EXPECT_EQ(json["first"], "1931-01-01");
  EXPECT_EQ(json["last"], "1933-12-01");
  EXPECT_EQ(json["storedRun"].get<std::string>().size(), 19u);  // YYYY-MM-DDTHH:MM:SS
  EXPECT_EQ(json["inputsNewerThanRun"], false);
}

TEST_F(KovaResults, InputsSavedAfterTheRunAreWarnedOf) {
  const auto written = fs::last_write_time(project);
  fs::last_write_time(project, written + std::chrono::hours(1));
  const auto table = kova({"metrics", project, "--scenario", "Regras"});
  const auto json = metricsJson({"--scenario", "Regras"});
  fs::last_write_time(project, written);
  ASSERT_EQ(table.status, exitOk);
  EXPECT_NE(table.out.find("\nwarning: the project's inputs were saved after this run\n"),
            std::string::npos);
  EXPECT_EQ(table.err.rfind("kova metrics: warning: the project's inputs were saved after the "
                            "stored run of ",
                            0),
            0u)
      << table.err;
  EXPECT_EQ(json["inputsNewerThanRun"], true);
}

TEST_F(KovaResults, DrainsAreMeasuredOnlyWhenAllElementsAreAsked) {
  struct Case {
    std::string elements;
    std::size_t reservoirs, demands;
  };
  // The demo has five reservoirs, seven demands and one drain (the river's mouth).
  for (const Case& c : {Case{"", 5, 7}, Case{"all", 5, 8}, Case{"demands", 0, 7}}) {
    SCOPED_TRACE("--elements " + c.elements);
    std::vector<std::string> args = {"--scenario", "Regras"};
    if (!c.elements.empty()) args.insert(args.end(), {"--elements", c.elements});
    const auto json = metricsJson(args);
    EXPECT_EQ(json.value("Reservatórios", nlohmann::json::array()).size(), c.reservoirs);
    EXPECT_EQ(json["Demandas"].size(), c.demands);
  }
}

TEST_F(KovaResults, AllWindowsGiveEachMetricsSpreadOverTheWindows) {
  const auto first = metricsJson({"--scenario", kWindowed, "--window", "1"});
  const auto second = metricsJson({"--scenario", kWindowed, "--window", "2"});
  const auto all = metricsJson({"--scenario", kWindowed, "--windows", "all"});
  EXPECT_EQ(all["windows"], "all 2");
  EXPECT_EQ(all["first"], "1931-11-01");
  EXPECT_EQ(all["last"], "1933-10-01");
  const std::string metric = "Demanda média fornecida (m³/s)";
  for (const auto& row : all["Demandas"]) {
    const std::string element = row["element"];
    SCOPED_TRACE(element);
    const double a = rowOf(first["Demandas"], element)[metric];
    const double b = rowOf(second["Demandas"], element)[metric];
    // Two windows: the minimum and maximum are the two values, the 10th percentile lies a tenth
    // of the way between them, the median halfway.
    EXPECT_DOUBLE_EQ(row[metric + " min"].get<double>(), std::min(a, b));
    EXPECT_DOUBLE_EQ(row[metric + " max"].get<double>(), std::max(a, b));
    EXPECT_NEAR(row[metric + " p10"].get<double>(), std::min(a, b) + 0.1 * std::abs(a - b), 1e-9);
    EXPECT_NEAR(row[metric + " p50"].get<double>(), (a + b) / 2, 1e-9);
  }
  EXPECT_EQ(kova({"metrics", project, "--scenario", "Regras", "--windows", "some"}).err,
            "kova metrics: option --windows: \"some\" is not all; try 'kova metrics --help'\n");
}

TEST_F(KovaResults, SeriesGivesOneValueALineFromTheStoredRun) {
  const auto csv = kova({"series", project, "--scenario", "Regras", "--element", "Sobradinho",
                         "--kind", "Volume final", "--kind", "0", "--format", "csv"});
  ASSERT_EQ(csv.status, exitOk) << csv.err;
  // The headings, then 36 months of "Volume final" (result) and of "Precipitação" (input, 0).
  EXPECT_EQ(linesOf(csv.out), 1u + 36u + 36u);
  EXPECT_EQ(csv.out.rfind("date,kind,direction,value,unit\n1931-01-01,Precipitação,input,", 0), 0u)
      << csv.out.substr(0, 200);
  EXPECT_NE(csv.out.find("\n1933-12-01,Volume final,result,"), std::string::npos);
  EXPECT_EQ(kova({"series", project, "--scenario", "Regras", "--element", "Nada"}).err,
            "kova series: scenario \"Regras\" has no element named \"Nada\"\n");
}

TEST_F(KovaResults, CompareSetsScenariosSideBySideWithTheirDifference) {
  const auto outcome = kova({"compare", project, "--scenario", "Regras", "--scenario",
                             "Prioridades", "--elements", "reservoirs", "--format", "json"});
  ASSERT_EQ(outcome.status, exitOk) << outcome.err;
  const auto rows = nlohmann::json::parse(outcome.out);
  ASSERT_EQ(rows.size(), 5u * 12u);  // five reservoirs, twelve metrics each
  for (const auto& row : rows) {
    if (row["Regras"].is_null() || row["Prioridades"].is_null()) continue;
    EXPECT_NEAR(row["Prioridades - Regras"].get<double>(),
                row["Prioridades"].get<double>() - row["Regras"].get<double>(), 1e-9);
  }
  EXPECT_EQ(kova({"compare", project, "--scenario", "Regras"}).err,
            "kova compare: option --scenario: name two scenarios or more; try 'kova compare "
            "--help'\n");
}

TEST(ScenarioFindings, AFindingReadsAsItsMessageThenItsPlace) {
  struct Case {
    std::string place, message, line;
  };
  const std::vector<Case> table = {
      {"Sobradinho-Evaporação-01-01-1941--5.000000", "Valor negativo em:",
       "Valor negativo em: Sobradinho-Evaporação-01-01-1941--5.000000"},
      {"Regras", "Existe um loop na rede", "Existe um loop na rede: Regras"},
  };
  for (const Case& c : table) {
    EXPECT_EQ(ScenarioFindings::lineOf({c.place, c.message}), c.line);
  }
}
