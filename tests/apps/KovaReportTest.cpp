#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <map>

#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "KovaProcess.h"
#include "OpenProject.h"
#include "common/Calendar.h"
#include "common/PeriodWalker.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

const std::string kWindowed = "Janelas a partir do armazenamento atual";

// The values of one result series of an element on each date of a window, read straight from
// the stored run, with the days of each month.
struct Read {
  std::vector<double> values;
  std::vector<double> days;
};

Read readStored(const std::string& project, const std::string& scenarioName,
                const std::string& element, SerieType type, unsigned int window) {
  OpenProject open(project);
  const auto scenario = open.scenario(scenarioName);
  open.loadLatestResults(scenario);
  Read read;
  for (const auto& candidate : scenario->getElements()) {
    if (candidate->getName() != element) continue;
    const auto& serie = candidate->getOutputSerie(type, window);
    PeriodWalker::forEach(scenario->calcVectorOfIntervals()[window], [&](const Date& date) {
      read.values.push_back(serie->getValue(date));
      read.days.push_back(Calendar::daysInMonth(date.getYear(), date.getMonth()));
    });
  }
  return read;
}

double minimumVolume(const std::string& project, const std::string& reservoir) {
  OpenProject open(project);
  for (const auto& element : open.scenario("Regras")->getElements()) {
    if (element->getName() == reservoir) {
      return std::static_pointer_cast<Reservoir>(element)->getReservoirInfo().minVol;
    }
  }
  throw std::runtime_error("no reservoir " + reservoir);
}

// m³/s over the days of each month, in hm³: 86,400 s a day, 1,000,000 m³ a hm³.
double volume(const Read& read) {
  double total = 0.0;
  for (std::size_t t = 0; t < read.values.size(); ++t) {
    total += read.values[t] * read.days[t] * 86400.0 / 1e6;
  }
  return total;
}

template <typename Condition>
double percentOf(const Read& read, Condition condition) {
  const auto count = std::count_if(read.values.begin(), read.values.end(), condition);
  return static_cast<double>(count) * 100.0 / static_cast<double>(read.values.size());
}

double mean(const std::vector<double>& values) {
  double sum = 0.0;
  for (double value : values) sum += value;
  return sum / static_cast<double>(values.size());
}

double sampleDeviation(const std::vector<double>& values) {
  const double average = mean(values);
  double squares = 0.0;
  for (double value : values) squares += (value - average) * (value - average);
  return std::sqrt(squares / static_cast<double>(values.size() - 1));
}

// The values kova printed, by the text of each expression.
std::map<std::string, double> printed(const std::string& out) {
  std::map<std::string, double> values;
  std::istringstream lines(out);
  for (std::string line; std::getline(lines, line);) {
    const auto equals = line.rfind(" = ");
    const std::string value = line.substr(equals + 3);
    values[line.substr(0, equals)] = value == "-" ? std::nan("") : std::stod(value);
  }
  return values;
}

// The demo project over 1931-1933, its rule and windowed scenarios run and stored once for the
// whole suite.
class KovaReport : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder = new TemporaryFolder("kova_report_");
    project = folder->file("sao_francisco.sjson");
    const auto made =
        kova({"demo", folder->file(""), "--data", KOVA_DEMO_DATA, "--until", "1933", "--quiet"});
    ASSERT_EQ(made.status, exitOk) << made.err;
    const auto run =
        kova({"run", project, "--scenario", "Regras", "--scenario", kWindowed, "--quiet"});
    ASSERT_EQ(run.status, exitOk) << run.err;
  }
  static void TearDownTestSuite() {
    delete folder;
    folder = nullptr;
  }

  static std::map<std::string, double> report(const std::string& scenario,
                                              const std::vector<std::string>& texts,
                                              const std::string& window = "1") {
    std::vector<std::string> args = {"report", project, "--scenario", scenario, "--window", window};
    for (const auto& text : texts) args.insert(args.end(), {"--expression", text});
    const auto outcome = kova(args);
    EXPECT_EQ(outcome.status, exitOk) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    return printed(outcome.out);
  }

  static TemporaryFolder* folder;
  static std::string project;
};

TemporaryFolder* KovaReport::folder = nullptr;
std::string KovaReport::project;

}  // namespace

// Each figure is computed here from the stored series themselves and compared with kova's.
TEST_F(KovaReport, ExpressionsOverTheDemoEqualFiguresComputedFromTheStoredSeries) {
  const Read releases = readStored(project, "Regras", "Sobradinho", SerieType::releasedFlow, 0);
  const Read volumes = readStored(project, "Regras", "Três Marias", SerieType::finalVolume, 0);
  const Read spills = readStored(project, "Regras", "Sobradinho", SerieType::spilledVolume, 0);
  const Read shortage = readStored(project, "Regras", "Foz", SerieType::supplyShortage, 0);
  const Read failures =
      readStored(project, "Regras", "Vazão mínima de Xingó", SerieType::supplyFailure, 0);
  const Read junction = readStored(project, "Regras", "Juazeiro-Petrolina", SerieType::outflow, 0);
  const double minimum = minimumVolume(project, "Três Marias");
  ASSERT_EQ(releases.values.size(), 36u);
  ASSERT_GT(volume(shortage), 0.0);  // a drain asks for 99999 m³/s

  const std::map<std::string, double> expected = {
      {"Soma de liberações em Hm3(Sobradinho)", volume(releases)},
      {"Soma de liberações em L(Sobradinho)", volume(releases) * 1e9},
      {"Média de liberações em M3s(Sobradinho)", mean(releases.values)},
      {"Escassez total em hm3(Foz)", volume(shortage)},
      {"Escassez média em m3(Foz)", volume(shortage) * 1e6 / 36},
      {"Perc. médio de tempo que dem. é atend.(Vazão mínima de Xingó)",
       percentOf(failures, [](double f) { return std::abs(f) <= 1e-6; })},
      {"Percent. de tempo médio abaixo do vol. mínimo(Três Marias)",
       percentOf(volumes, [&](double v) { return v - minimum <= 1e-6; })},
      {"Percent. de tempo médio acima do vol. mínimo(Três Marias)",
       percentOf(volumes, [&](double v) { return v - minimum > 1e-6; })},
      {"Percent. de tempo médio no qual ocorreu vert.(Sobradinho)",
       percentOf(spills, [](double s) { return s > 1e-6; })},
      {"Max(\"Três Marias\", Volume final)",
       *std::max_element(volumes.values.begin(), volumes.values.end())},
      {"StdDeviationSample(Três Marias, Volume final)", sampleDeviation(volumes.values)},
      {"Average(\"Juazeiro-Petrolina\", Vazão efluente)", mean(junction.values)},
      {"Soma de liberações em Hm3(Sobradinho) / Escassez total em hm3(Foz) - 1",
       volume(releases) / volume(shortage) - 1},
  };
  std::vector<std::string> texts;
  for (const auto& entry : expected) texts.push_back(entry.first);
  const auto values = report("Regras", texts);
  ASSERT_EQ(values.size(), expected.size());
  for (const auto& [text, value] : expected) {
    SCOPED_TRACE(text);
    ASSERT_EQ(values.count(text), 1u);
    EXPECT_NEAR(values.at(text), value, std::abs(value) * 1e-12 + 1e-12);
  }
}

TEST_F(KovaReport, AWindowIsChosenLikeTheMetricsOne) {
  // The windows run from November: the second covers November 1932 to October 1933.
  const Read second = readStored(project, kWindowed, "Sobradinho", SerieType::releasedFlow, 1);
  ASSERT_EQ(second.values.size(), 12u);
  const auto values = report(kWindowed, {"Sum(Sobradinho, Vazão liberada)"}, "2");
  double sum = 0.0;
  for (double value : second.values) sum += value;
  EXPECT_NEAR(values.at("Sum(Sobradinho, Vazão liberada)"), sum, sum * 1e-12);
  const auto third =
      kova({"report", project, "--scenario", kWindowed, "--window", "3", "--expression", "1"});
  EXPECT_EQ(third.status, exitUsage);
  EXPECT_EQ(third.err, "kova report: option --window: scenario \"" + kWindowed +
                           "\" has 2 window(s); try 'kova report --help'\n");
}

TEST_F(KovaReport, AFileOfExpressionsAndTheirDrawingsAsARealProcess) {
  TemporaryFolder work("kova_report_file_");
  // A byte-order mark, a blank line, a line of blanks and CR LF line ends.
  writeFile(
      work.file("asked.txt"),
      "\xEF\xBB\xBFMax(Sobradinho, Volume final)\n\n   \r\n2 * (1 + 3)\r\nAverage(Sobradinho, "
      "Prioridade)\n");
  const auto run = kovaProcess({"report", project, "--scenario", "Regras", "--expressions",
                                work.file("asked.txt"), "--dot", work.file("trees.dot")});
  ASSERT_EQ(run.status, exitOk) << run.err;
  EXPECT_EQ(run.err, "");
  const auto values = printed(run.out);
  EXPECT_EQ(linesOf(run.out), 3u);
  EXPECT_EQ(values.at("2 * (1 + 3)"), 8.0);
  // A rule run writes no priority: an average of nothing has no meaning.
  EXPECT_NE(run.out.find("\nAverage(Sobradinho, Prioridade) = -\n"), std::string::npos) << run.out;
  const std::string trees = readFile(work.file("trees.dot"));
  EXPECT_EQ(trees.rfind("// Max(Sobradinho, Volume final)\ndigraph G { \n", 0), 0u) << trees;
  EXPECT_NE(trees.find("// 2 * (1 + 3)\ndigraph G { \nn0 [label=\"*\"];\nn0 -> n1;\n"
                       "n1 [label=\"2\"];\nn0 -> n2;\nn2 [label=\"+\"];\n"),
            std::string::npos);
  if (std::system("command -v dot > /dev/null 2>&1") == 0) {
    const std::string command = "dot -Tsvg '" + work.file("trees.dot") + "' > /dev/null";
    EXPECT_EQ(std::system(command.c_str()), 0);
  }
  // Nothing but the drawing is left beside it.
  EXPECT_EQ(std::distance(fs::directory_iterator(work.root()), fs::directory_iterator()), 2);
}

TEST_F(KovaReport, MalformedExpressionsAreToldOneALineAndNothingIsWritten) {
  TemporaryFolder work("kova_report_bad_");
  writeFile(work.file("trees.dot"), "kept");
  const auto run =
      kovaProcess({"report", project, "--scenario", "Regras", "--expression",
                   "Max(Sobradinho, Volume final)", "--expression", "1 +", "--expression",
                   "Max(Juazeiro-Petrolina,\nVolume final)", "--dot", work.file("trees.dot")});
  EXPECT_EQ(run.status, exitUsage);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err,
            "kova report: expression \"1 +\": position 3: expected an operand after \"+\"\n"
            "kova report: expression \"Max(Juazeiro-Petrolina, Volume final)\": position 5: "
            "expected a name; write a name that holds an operator, a parenthesis or a comma in "
            "double quotes\n");
  const auto unknown = kovaProcess({"report", project, "--scenario", "Regras", "--expression",
                                    "Escassez total em hm3(Sobradinho)", "--expression",
                                    "Min(Xingó, Volume final)", "--dot", work.file("trees.dot")});
  EXPECT_EQ(unknown.status, exitUsage);
  EXPECT_EQ(unknown.out, "");
  EXPECT_EQ(unknown.err,
            "kova report: expression \"Escassez total em hm3(Sobradinho)\": position 1: "
            "\"Escassez total em hm3\" does not apply to \"Sobradinho\" (Reservatório)\n"
            "kova report: expression \"Min(Xingó, Volume final)\": position 5: scenario "
            "\"Regras\" has no element named \"Xingó\"\n");
  EXPECT_EQ(readFile(work.file("trees.dot")), "kept");
  EXPECT_EQ(std::distance(fs::directory_iterator(work.root()), fs::directory_iterator()), 1);

  const auto portuguese =
      kovaProcess({"report", project, "--scenario", "Regras", "--expression", "(1"},
                  ProcessOptions::under({"LANG=pt_BR.UTF-8"}));
  EXPECT_EQ(portuguese.err, "kova report: expressão \"(1\": position 1: \"(\" is never closed\n");
}

TEST_F(KovaReport, TheDrawingsFileFailsWholeOrNotAtAll) {
  const auto run = kova({"report", project, "--scenario", "Regras", "--expression", "1", "--dot",
                         folder->file("no/such/folder/trees.dot")});
  EXPECT_EQ(run.status, exitUsage);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "kova report: " + folder->file("no/such/folder/trees.dot") +
                         ": could not be written\n");
  const auto empty = kova(
      {"report", project, "--scenario", "Regras", "--expressions", folder->file("nothing.txt")});
  EXPECT_EQ(empty.status, exitUsage);
  EXPECT_EQ(empty.err, "kova report: " + folder->file("nothing.txt") + ": cannot be read\n");
  const auto general = kova({"report", project, "--scenario", "Regras", "--dot", "x.dot"});
  EXPECT_EQ(general.err,
            "kova report: option --dot needs --expression or --expressions; try 'kova report "
            "--help'\n");
}

TEST_F(KovaReport, WithoutExpressionsTheGeneralReportIsPrinted) {
  const auto run = kova({"report", project, "--scenario", "Regras"});
  ASSERT_EQ(run.status, exitOk) << run.err;
  EXPECT_EQ(run.out.rfind("Número de reservatórios", 0), 0u) << run.out;
}
