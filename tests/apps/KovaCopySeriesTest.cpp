#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "DemoCopy.h"
#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "OpenProject.h"
#include "core/Scenario.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

using Values = std::vector<std::pair<unsigned int, double>>;
// The input series of a scenario, by "element: kind".
using Inputs = std::map<std::string, Values>;

// Every input series of the scenario as the project holds it, read afresh from its files.
Inputs storedInputs(const std::string& project, const std::string& scenario) {
  const OpenProject open(project);
  Inputs inputs;
  for (const auto& element : open.scenario(scenario)->getElements()) {
    for (const auto& serie : element->getVectorOfInputSeries()) {
      const auto& values = serie->getMapOfJulianToValues();
      inputs[element->getName() + ": " + serie->getName()].assign(values.begin(), values.end());
    }
  }
  return inputs;
}

// The inputs of the named kinds only.
Inputs only(const Inputs& inputs, const std::vector<std::string>& kinds) {
  Inputs chosen;
  for (const auto& [key, values] : inputs) {
    for (const auto& kind : kinds) {
      if (key.size() > kind.size() && key.compare(key.size() - kind.size(), kind.size(), kind) == 0)
        chosen.emplace(key, values);
    }
  }
  return chosen;
}

// Gives every stored input value of the scenario a value of its own, 2v + 1, so that a copy
// shows.
void changeInputs(const std::string& project, const std::string& scenario) {
  SQLite::Database database(project + ".sqlite", SQLite::OPEN_READWRITE);
  SQLite::Statement change(database,
                           "UPDATE SerieInput SET value = 2 * value + 1 WHERE elementID IN "
                           "(SELECT databaseId FROM Element WHERE scenId = (SELECT databaseId "
                           "FROM Scenario WHERE name = ?))");
  change.bind(1, scenario);
  EXPECT_GT(change.exec(), 0);
}

int64_t enabledResultRows(const std::string& project) {
  SQLite::Database database(project + ".sqlite");
  return database.execAndGet("SELECT COUNT(*) FROM SerieOutput WHERE enabled = 1").getInt64();
}

// Renames, in every scenario of the project file, the element of that name.
void rename(const std::string& project, const std::string& from, const std::string& to) {
  nlohmann::json file = nlohmann::json::parse(readFile(project));
  for (auto& scenario : file["scenarios"]) {
    for (auto& node : scenario["nodes"]) {
      auto& element = node["node"]["element"];
      if (element["name"] == from) element["name"] = to;
    }
  }
  writeFile(project, file.dump());
}

// The lines of text that begin with start.
std::vector<std::string> linesStarting(const std::string& text, const std::string& start) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.rfind(start, 0) == 0) lines.push_back(line);
  }
  return lines;
}

}  // namespace

TEST(KovaCopySeries, WithinAProjectTheTargetStoresTheSourcesSeries) {
  TemporaryFolder folder("kova_copy_series_");
  const std::string project = copyOfDemo(folder);
  changeInputs(project, "Regras");
  const std::string json = readFile(project);
  const Inputs windows = storedInputs(project, "Janelas a partir do armazenamento atual");
  const Inputs target = storedInputs(project, "Prioridades");
  ASSERT_NE(target, storedInputs(project, "Regras"));
  // The rules have no target volumes; the priorities' reservoirs have theirs.
  ASSERT_TRUE(storedInputs(project, "Regras").at("Sobradinho: Volume meta").empty());
  ASSERT_FALSE(target.at("Sobradinho: Volume meta").empty());

  const auto copy = kova({"copy-series", project, "--from", "Regras", "--to", "Prioridades"});
  ASSERT_EQ(copy.status, exitOk) << copy.err;
  EXPECT_EQ(copy.err, "");
  // The demo's 5 reservoirs, 8 demands (the drain among them) and 22 links hold values; its 5
  // junctions have no inflow of their own.
  EXPECT_EQ(linesStarting(copy.out, "copied ").size(), 35u) << copy.out;
  EXPECT_NE(copy.out.find("copied \"Sobradinho\": Precipitação, Evaporação, Vazão natural "
                          "incremental\n"),
            std::string::npos)
      << copy.out;
  EXPECT_EQ(linesStarting(copy.out, "").back(),
            "35 of 40 element(s) copied from \"Regras\" into \"Prioridades\": 0 of another "
            "kind, 0 without a namesake, 5 with nothing to copy");
  EXPECT_EQ(linesOf(copy.out), 36u);

  // Every series is now the source's, but where the source had no value: there the target keeps
  // its own (the target volumes, and the junctions' empty inflows).
  Inputs expected = storedInputs(project, "Regras");
  for (auto& [key, values] : expected) {
    if (values.empty()) values = target.at(key);
  }
  EXPECT_EQ(storedInputs(project, "Prioridades"), expected);
  EXPECT_EQ(storedInputs(project, "Janelas a partir do armazenamento atual"), windows);
  EXPECT_EQ(readFile(project), json);
}

TEST(KovaCopySeries, IntoAnotherProjectOnlyTheKindsAskedAndTheSourceStaysByteForByte) {
  TemporaryFolder sourceFolder("kova_copy_series_p_");
  TemporaryFolder targetFolder("kova_copy_series_q_");
  const std::string source = copyOfDemo(sourceFolder);
  const std::string target = copyOfDemo(targetFolder);
  changeInputs(source, "Regras");
  // In the target, the junction Pirapora gives its name to the reservoir Queimado.
  rename(target, "Pirapora", "Pirapora velha");
  rename(target, "Queimado", "Pirapora");
  const std::string json = readFile(source), database = readFile(source + ".sqlite");
  const Inputs sourceInputs = storedInputs(source, "Regras");
  const Inputs targetInputs = storedInputs(target, "Prioridades");

  const auto copy = kova({"copy-series", source, "--from", "Regras", "--to", "Prioridades",
                          "--series", "Evaporação", "--series", "2", "--project", target});
  ASSERT_EQ(copy.status, exitOk) << copy.err;
  EXPECT_EQ(readFile(source), json);
  EXPECT_EQ(readFile(source + ".sqlite"), database);

  EXPECT_NE(copy.out.find("copied \"Sobradinho\": Evaporação, Vazão natural incremental\n"),
            std::string::npos)
      << copy.out;
  EXPECT_NE(copy.out.find("skipped \"Pirapora\": Junção in \"Regras\" but Reservatório in "
                          "\"Prioridades\"\n"),
            std::string::npos)
      << copy.out;
  EXPECT_NE(copy.out.find("not in scenario \"Prioridades\": \"Queimado\"\n"), std::string::npos)
      << copy.out;

  // Every element but the two renamed took the source's series of the kinds asked, and kept its
  // own of the other kinds.
  const auto stored = storedInputs(target, "Prioridades");
  for (const auto& [key, values] :
       only(sourceInputs, {": Evaporação", ": Vazão natural incremental"})) {
    SCOPED_TRACE(key);
    if (key.rfind("Pirapora:", 0) == 0 || key.rfind("Queimado:", 0) == 0) continue;
    EXPECT_EQ(stored.at(key), values);
  }
  EXPECT_NE(stored.at("Sobradinho: Evaporação"), targetInputs.at("Sobradinho: Evaporação"));
  EXPECT_EQ(stored.at("Sobradinho: Precipitação"), targetInputs.at("Sobradinho: Precipitação"));
  EXPECT_EQ(stored.at("Pirapora: Evaporação"), targetInputs.at("Pirapora: Evaporação"));
  EXPECT_EQ(stored.at("Pirapora velha: Vazão natural incremental"),
            targetInputs.at("Pirapora velha: Vazão natural incremental"));
}

TEST(KovaCopySeries, TheTargetsStoredResultsStayAndTheCopySaysTheyAreOutOfDate) {
  TemporaryFolder folder("kova_copy_series_");
  const std::string project = copyOfDemo(folder);
  ASSERT_EQ(kova({"run", project, "--scenario", "Regras", "--quiet"}).status, exitOk);
  const int64_t results = enabledResultRows(project);
  ASSERT_GT(results, 0);

  const auto copy = kova(
      {"copy-series", project, "--from", "Prioridades", "--to", "Regras", "--series", "Demanda"});
  ASSERT_EQ(copy.status, exitOk) << copy.err;
  EXPECT_EQ(copy.err,
            "kova copy-series: warning: the stored results of scenario \"Regras\" were computed "
            "from its former inputs; run it again\n");
  EXPECT_EQ(enabledResultRows(project), results);

  const auto quiet = kova({"copy-series", project, "--from", "Prioridades", "--to", "Regras",
                           "--series", "Demanda", "--quiet"});
  EXPECT_EQ(quiet.err, "");
  EXPECT_EQ(linesStarting(quiet.out, "copied ").size(), linesOf(quiet.out)) << quiet.out;
}

TEST(KovaCopySeries, BadRequestsAreRefusedByNameAndChangeNothing) {
  TemporaryFolder folder("kova_copy_series_");
  const std::string project = copyOfDemo(folder);
  const std::string json = readFile(project), database = readFile(project + ".sqlite");
  const std::string missing = folder.file("none.sjson");
  const std::string kinds =
      "0 Precipitação, 1 Evaporação, 2 Vazão natural incremental, 3 Volume meta, 5 Demanda, 7 "
      "Perda em trânsito, 42 Limite de trecho";
  const std::string help = "; try 'kova copy-series --help'\n";
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{missing, "--from", "Regras", "--to", "Prioridades"}, missing + ": no such project file\n"},
      {{project, "--from", "Regras", "--to", "Prioridades", "--project", missing},
       missing + ": no such project file\n"},
      {{project, "--from", "Regras", "--to", "Regras"},
       "--from and --to name the same scenario \"Regras\"" + help},
      {{project, "--from", "Regras", "--to", "Regras", "--project",
        folder.file("./sao_francisco.sjson")},
       "--from and --to name the same scenario \"Regras\"" + help},
      {{project, "--from", "Regras", "--to", "Prioridades", "--series", "Volume final"},
       "option --series: \"Volume final\" is not an input series kind (" + kinds + ")" + help},
      {{project, "--from", "Regras", "--to", "Prioridades", "--series", "10"},
       "option --series: \"10\" is not an input series kind (" + kinds + ")" + help},
      {{project, "--from", "Regras", "--to", "Nenhum"},
       project + ": no scenario named \"Nenhum\" (scenarios: \"Regras\", \"Prioridades\", "
                 "\"Janelas a partir do armazenamento atual\", \"Otimização das regras\", "
                 "\"Curva de garantia\", \"Curva de garantia do sistema\")\n"},
  };
  for (const auto& [args, error] : cases) {
    std::vector<std::string> line = {"copy-series"};
    line.insert(line.end(), args.begin(), args.end());
    SCOPED_TRACE(line.back());
    const auto refused = kova(line);
    EXPECT_EQ(refused.status, exitUsage);
    EXPECT_EQ(refused.err, "kova copy-series: " + error);
    EXPECT_EQ(refused.out, "");
  }
  EXPECT_EQ(kova({"copy-series", project, "--from", "Regras"}).status, exitUsage);
  EXPECT_EQ(readFile(project), json);
  EXPECT_EQ(readFile(project + ".sqlite"), database);
}
