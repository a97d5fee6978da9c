#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "CommandLine.h"
#include "CsvTable.h"
#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "UsageError.h"
#include "support/ExpectThrow.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

const OptionSpec kSpec{{"scenario", "format"}, {"only"}, {"quiet"}, 1, 2};

}  // namespace

TEST(CommandLine, ReadsPositionalsValuesRepeatsAndFlagsInAnyOrder) {
  const auto line = CommandLine::parse(
      {"--only", "a", "p.sjson", "--scenario=Base", "--quiet", "--only", "b", "q.sjson"}, kSpec);
  EXPECT_EQ(line.positional(), (std::vector<std::string>{"p.sjson", "q.sjson"}));
  EXPECT_EQ(line.value("scenario", ""), "Base");
  EXPECT_EQ(line.value("format", "table"), "table");
  EXPECT_EQ(line.values("only"), (std::vector<std::string>{"a", "b"}));
  EXPECT_TRUE(line.has("quiet"));
}

TEST(CommandLine, RefusesWhatItCannotActOnNamingTheArgument) {
  EXPECT_THROW_TEXT(CommandLine::parse({"p", "--colour", "x"}, kSpec), UsageError,
                    "unknown option --colour");
  EXPECT_THROW_TEXT(CommandLine::parse({"p", "--scenario"}, kSpec), UsageError,
                    "option --scenario needs a value");
  EXPECT_THROW_TEXT(CommandLine::parse({"p", "--scenario", "--quiet"}, kSpec), UsageError,
                    "option --scenario needs a value");
  EXPECT_THROW_TEXT(CommandLine::parse({"p", "--scenario=a", "--scenario=b"}, kSpec), UsageError,
                    "option --scenario given twice");
  EXPECT_THROW_TEXT(CommandLine::parse({"p", "--quiet=yes"}, kSpec), UsageError,
                    "option --quiet takes no value");
  EXPECT_THROW_TEXT(CommandLine::parse({}, kSpec), UsageError, "expected 1 argument, got 0");
  EXPECT_THROW_TEXT(CommandLine::parse({"a", "b", "c"}, kSpec), UsageError,
                    "unexpected argument \"c\"");
}

TEST(CommandLine, NumbersAreWholeAndAtLeastTheirMinimum) {
  const OptionSpec accepted{{"window"}, {}, {}, 0, 0};
  EXPECT_EQ(CommandLine::parse({}, accepted).number("window", 1, 1), 1u);
  EXPECT_EQ(CommandLine::parse({"--window", "12"}, accepted).number("window", 1, 1), 12u);
  for (const std::string bad : {"0", "-1", "1.5", "x", "12345678901"}) {
    EXPECT_THROW_TEXT(CommandLine::parse({"--window", bad}, accepted).number("window", 1, 1),
                      UsageError,
                      "option --window: \"" + bad + "\" is not a whole number of at least 1");
  }
}

TEST(KovaApp, HelpListsTheCommandsAndEachCommandHasItsOwn) {
  const auto overview = kova({"--help"});
  EXPECT_EQ(overview.status, exitOk);
  for (const auto& command : KovaApp::commands()) {
    EXPECT_NE(overview.out.find("  " + command.name + " "), std::string::npos) << command.name;
    const auto help = kova({command.name, "--help"});
    EXPECT_EQ(help.status, exitOk);
    EXPECT_EQ(help.out.rfind("Usage: " + command.usage, 0), 0u) << command.name;
  }
  EXPECT_EQ(kova({}).status, exitUsage);
}

TEST(KovaApp, UsageErrorsAreOneLineWithAPointerToHelp) {
  const auto unknown = kova({"simulate", "p.sjson"});
  EXPECT_EQ(unknown.status, exitUsage);
  EXPECT_EQ(unknown.err, "kova: unknown command \"simulate\"; try 'kova --help'\n");
  const auto option = kova({"info", "p.sjson", "--fast"});
  EXPECT_EQ(option.status, exitUsage);
  EXPECT_EQ(option.err, "kova info: unknown option --fast; try 'kova info --help'\n");
  const auto missing = kova({"report", "p.sjson"});
  EXPECT_EQ(missing.status, exitUsage);
  EXPECT_EQ(missing.err, "kova report: p.sjson: no such project file\n");
}

namespace {

namespace fs = std::filesystem;

// Each test gets the demo project over 1931-1933 in a folder of its own.
class KovaProject : public ::testing::Test {
 protected:
  KovaProject() : folder("kova_cli_") {}

  void SetUp() override {
    const auto made =
        kova({"demo", folder.file(""), "--data", KOVA_DEMO_DATA, "--until", "1933", "--quiet"});
    ASSERT_EQ(made.status, exitOk) << made.err;
    project = folder.file("sao_francisco.sjson");
  }

  TemporaryFolder folder;
  std::string project;
};

}  // namespace

TEST_F(KovaProject, InfoSummarisesTheScenariosAndCountsTheirElements) {
  const auto info = kova({"info", project});
  ASSERT_EQ(info.status, exitOk) << info.err;
  EXPECT_NE(info.out.find("Cenário 2: Prioridades\n  Tipo: Otimizador por prioridades\n"),
            std::string::npos);
  EXPECT_NE(info.out.find("  Período: 01/1931 a 12/1933 (Mensal)"), std::string::npos);
  EXPECT_NE(info.out.find("Elements of Regras:\n  Reservatório: 5\n"), std::string::npos);
  EXPECT_NE(info.out.find("  Trecho natural: 15\n"), std::string::npos);
}

// The fields of the line of info --elements that names element in scenario's table.
std::vector<std::string> elementLine(const std::string& text, const std::string& scenario,
                                     const std::string& element) {
  const auto table = text.find("Elements of " + scenario + ":\n");
  const auto named = text.find("  " + element + "  ", table);
  if (table == std::string::npos || named == std::string::npos) return {};
  const auto start = text.rfind('\n', named) + 1;
  // Names and kinds hold single spaces; fields are parted by two or more.
  std::vector<std::string> fields;
  const std::string line = text.substr(start, text.find('\n', start) - start);
  for (std::size_t at = line.find_first_not_of(' '); at != std::string::npos;) {
    const auto end = line.find("  ", at);
    fields.push_back(line.substr(at, end - at));
    at = end == std::string::npos ? end : line.find_first_not_of(' ', end);
  }
  return fields;
}

TEST_F(KovaProject, InfoElementsGivesEachElementsKeyInputs) {
  const auto info = kova({"info", project, "--elements"});
  ASSERT_EQ(info.status, exitOk) << info.err;
  // Capacity and minimum are the reservoir table's volume_max_hm3 and volume_min_hm3.
  const CsvTable reservoirs(std::string(KOVA_DEMO_DATA) + "/sf_reservoirs.csv");
  const auto row = reservoirs.rowOf("tres_marias");
  char capacity[32], minimum[32];
  std::snprintf(capacity, sizeof capacity, "%.2f",
                reservoirs.number(row, reservoirs.column("volume_max_hm3")));
  std::snprintf(minimum, sizeof minimum, "%.2f",
                reservoirs.number(row, reservoirs.column("volume_min_hm3")));
  const auto rule = elementLine(info.out, "Regras", "Três Marias");
  ASSERT_EQ(rule.size(), 9u) << info.out;
  EXPECT_EQ(rule[0], "Reservatório");
  EXPECT_EQ(rule[3], capacity);
  EXPECT_EQ(rule[4], minimum);
  EXPECT_EQ(rule[6], "-");  // no demand
  EXPECT_EQ(rule[7], "-");  // no priority in a rule scenario
  EXPECT_NE(rule[8].find("Liberação"), std::string::npos);
  const auto priority = elementLine(info.out, "Prioridades", "Três Marias");
  ASSERT_EQ(priority.size(), 9u);
  EXPECT_EQ(priority[3], capacity);
  EXPECT_NE(priority[7], "-");
  EXPECT_EQ(priority[8], "-");  // no rule in a priority scenario
  // A drain asks for 99,999 m³/s on every date, so that is its mean.
  const auto drain = elementLine(info.out, "Regras", "Foz");
  ASSERT_EQ(drain.size(), 9u);
  EXPECT_EQ(drain[6], "99999.000");
  EXPECT_EQ(std::vector<std::string>(drain.begin() + 3, drain.begin() + 6),
            (std::vector<std::string>{"-", "-", "-"}));
}

TEST_F(KovaProject, QuietLeavesOnlyResultsAndErrors) {
  const auto check = kova({"check", project, "--quiet"});
  EXPECT_EQ(check.status, exitOk);
  EXPECT_EQ(check.out + check.err, "");
  const auto inputs = kova(
      {"export", "inputs", project, "--scenario", "Regras", "--out", folder.file("q"), "--quiet"});
  EXPECT_EQ(inputs.status, exitOk);
  EXPECT_EQ(inputs.out + inputs.err, "");
  EXPECT_EQ(fs::is_directory(folder.file("q")), true);
  const auto saved = kova({"save-as", project, folder.file("q.sjson"), "--quiet"});
  EXPECT_EQ(saved.out + saved.err, "");
  ASSERT_EQ(kova({"run", project, "--scenario", "Regras", "--quiet"}).status, exitOk);
  for (const std::string command : {"metrics", "series", "compare"}) {
    std::vector<std::string> args = {command, project, "--scenario", "Regras"};
    if (command == "series") args.insert(args.end(), {"--element", "Queimado"});
    if (command == "compare") args.insert(args.end(), {"--scenario", "Regras"});
    const auto loud = kova(args);
    args.push_back("--quiet");
    const auto quiet = kova(args);
    ASSERT_EQ(quiet.status, exitOk) << quiet.err;
    EXPECT_EQ(quiet.err, "") << command;
    EXPECT_EQ(quiet.out, loud.out) << command;  // the results are all there
  }
  const auto failed = kova({"report", project, "--scenario", "Nenhum", "--quiet"});
  EXPECT_EQ(failed.status, exitUsage);
  EXPECT_NE(failed.err, "");
}

// Results that stop short of the scenario's last date are refused, not measured over what is left.
TEST_F(KovaProject, StoredResultsThatDoNotCoverTheRunAreRefused) {
  ASSERT_EQ(kova({"run", project, "--scenario", "Regras", "--quiet"}).status, exitOk);
  {
    SQLite::Database database(project + ".sqlite", SQLite::OPEN_READWRITE);
    ASSERT_GT(database.exec("DELETE FROM SerieOutput WHERE date = '1933-12-01'"), 0);
  }
  for (const std::string command : {"metrics", "series", "compare"}) {
    std::vector<std::string> args = {command, project, "--scenario", "Regras"};
    if (command == "series") args.insert(args.end(), {"--element", "Queimado"});
    if (command == "compare") args.insert(args.end(), {"--scenario", "Regras"});
    const auto refused = kova(args);
    EXPECT_EQ(refused.status, exitUsage) << command;
    EXPECT_EQ(refused.out, "") << command;
    EXPECT_EQ(refused.err.rfind("kova " + command + ": " + project +
                                    ": the stored results of scenario \"Regras\" do not cover "
                                    "its dates (element \"",
                                0),
              0u)
        << refused.err;
    EXPECT_NE(refused.err.find(", 1933-12-01); run it again\n"), std::string::npos) << refused.err;
  }
}

TEST_F(KovaProject, RunStoresResultsThatMetricsReportAndNoSaveLeavesTheDatabase) {
  const std::string database = project + ".sqlite";
  const std::string before = readFile(database);
  const auto unsaved = kova({"run", project, "--scenario", "Regras", "--no-save", "--quiet"});
  ASSERT_EQ(unsaved.status, exitOk) << unsaved.err;
  EXPECT_EQ(unsaved.out, "Regras: Cenário executado com sucesso!\n");
  EXPECT_EQ(readFile(database), before);
  const auto none = kova({"metrics", project, "--scenario", "Regras"});
  EXPECT_EQ(none.status, exitUsage);
  EXPECT_NE(none.err.find("scenario \"Regras\" has no stored results"), std::string::npos)
      << none.err;

  const auto run = kova({"run", project, "--quiet", "--csv", folder.file("csv")});
  ASSERT_EQ(run.status, exitOk) << run.err;
  EXPECT_NE(run.out.find("Prioridades: Cenário executado com sucesso!\n"), std::string::npos);
  EXPECT_TRUE(fs::is_directory(folder.file("csv")));

  const auto table = kova({"metrics", project, "--scenario", "Prioridades"});
  ASSERT_EQ(table.status, exitOk) << table.err;
  EXPECT_NE(table.out.find("\n\nReservatórios  "), std::string::npos);
  EXPECT_NE(table.out.find("Confiabilidade para demandas (%)"), std::string::npos);
  EXPECT_NE(table.out.find("Transposição (PISF)"), std::string::npos);

  const auto csv = kova(
      {"metrics", project, "--scenario", "Regras", "--elements", "demands", "--format", "csv"});
  ASSERT_EQ(csv.status, exitOk) << csv.err;
  // Three '# ' lines (scenario, windows, stored run), the headings, then the seven demands: the
  // drain at the mouth is left out.
  EXPECT_EQ(linesOf(csv.out), 3u + 1u + 7u);
  EXPECT_NE(csv.out.find("\nElemento,Volume acumulado dos déficits (hm³),"), std::string::npos);

  // The windowed scenario has one window per November: 1931-32 and 1932-33.
  EXPECT_EQ(
      kova({"metrics", project, "--scenario", "Janelas a partir do armazenamento atual", "--window",
            "3"})
          .err,
      "kova metrics: option --window: scenario \"Janelas a partir do armazenamento atual\" has 2 "
      "window(s); try 'kova metrics --help'\n");
}

TEST_F(KovaProject, ReportAndExportsWriteWhatTheyName) {
  const auto report = kova({"report", project, "--scenario", "Regras"});
  ASSERT_EQ(report.status, exitOk) << report.err;
  EXPECT_NE(report.out.find("5"), std::string::npos);

  ASSERT_EQ(
      kova({"export", "cav", project, "--scenario", "Regras", "--out", folder.file("out")}).status,
      exitOk);
  const std::string cav = readFile(folder.file("out/Regras_cav.txt"));
  EXPECT_NE(cav.find("Três Marias\t515.77\t0\t0"), std::string::npos) << cav.substr(0, 200);
  const auto inputs =
      kova({"export", "inputs", project, "--scenario", "Regras", "--out", folder.file("out")});
  ASSERT_EQ(inputs.status, exitOk) << inputs.err;
  EXPECT_EQ(inputs.out, "40 file(s) written under " + folder.file("out") + "\n");
  EXPECT_EQ(
      kova({"export", "csv", project, "--scenario", "Regras", "--out", folder.file("out")}).status,
      exitUsage);  // nothing stored yet
  EXPECT_EQ(
      kova({"export", "shapes", project, "--scenario", "Regras", "--out", "x"}).err,
      "kova export: nothing to export named \"shapes\" (csv, inputs, cav, dot or kml); try 'kova "
      "export --help'\n");
}

TEST_F(KovaProject, SaveAsCopiesTheProjectAndNeverOverwrites) {
  const std::string copy = folder.file("copia.sjson");
  const auto saved = kova({"save-as", project, copy, "--quiet"});
  ASSERT_EQ(saved.status, exitOk) << saved.err;
  EXPECT_TRUE(fs::exists(copy + ".sqlite"));
  EXPECT_EQ(kova({"info", copy}).out, kova({"info", project}).out);
  const std::string before = readFile(copy);
  const auto again = kova({"save-as", project, copy, "--quiet"});
  EXPECT_EQ(again.status, exitUsage);
  EXPECT_EQ(again.err, "kova save-as: " + copy + ": already exists (choose another name)\n");
  EXPECT_EQ(readFile(copy), before);
}

TEST_F(KovaProject, ABadProjectOrScenarioIsNamedInOneLine) {
  const auto unknown = kova({"check", project, "--scenario", "Seca"});
  EXPECT_EQ(unknown.status, exitUsage);
  EXPECT_EQ(unknown.err,
            "kova check: " + project +
                ": no scenario named \"Seca\" (scenarios: \"Regras\", \"Prioridades\", "
                "\"Janelas a partir do armazenamento atual\", \"Otimização das regras\", "
                "\"Curva de garantia\", \"Curva de garantia do sistema\")\n");

  const std::string broken = folder.file("quebrado.sjson");
  fs::copy_file(project + ".sqlite", broken + ".sqlite");
  std::ofstream(broken) << "{\"scenarios\": [";
  const auto malformed = kova({"info", broken});
  EXPECT_EQ(malformed.status, exitUsage);
  EXPECT_EQ(malformed.err.rfind("kova info: " + broken + ": ", 0), 0u) << malformed.err;
  EXPECT_EQ(linesOf(malformed.err), 1u);

  writeFile(project + ".sqlite", std::string(4096, 'x'));
  EXPECT_EQ(kova({"info", project}).err,
            "kova info: " + project +
                ": Ocorreu algum erro na operação do banco de dados do projeto. (SQLite: file is "
                "not a database)\n");

  const auto folderGiven = kova({"info", folder.file("")});
  EXPECT_EQ(folderGiven.err, "kova info: " + folder.file("") + ": not a project file\n");
}

TEST(KovaNew, MakesABlankPriorityProjectThatOpensAndChecks) {
  TemporaryFolder folder("kova_cli_");
  const std::string project = folder.file("novo.sjson");
  const auto made = kova({"new", project});
  ASSERT_EQ(made.status, exitOk) << made.err;
  EXPECT_TRUE(fs::exists(project + ".sqlite"));
  const auto info = kova({"info", project});
  ASSERT_EQ(info.status, exitOk) << info.err;
  EXPECT_NE(info.out.find("  Tipo: Otimizador por prioridades\n"), std::string::npos) << info.out;
  EXPECT_EQ(kova({"new", project}).err,
            "kova new: " + project + ": already exists (choose another name)\n");
  EXPECT_EQ(kova({"new", folder.file("nao/existe.sjson")}).err,
            "kova new: " + folder.file("nao") + ": no such folder\n");
}
