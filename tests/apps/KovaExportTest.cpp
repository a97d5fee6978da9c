#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "DemoCopy.h"
#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "KovaProcess.h"
#include "OpenProject.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/Link.h"
#include "core/Node.h"
#include "core/Scenario.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

// What a shell command printed on its standard output and how it ended.
struct Shell {
  int status;
  std::string out;
};

Shell shell(const std::string& command) {
  Shell result{-1, ""};
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return result;
  char buffer[4096];
  for (std::size_t got; (got = fread(buffer, 1, sizeof buffer, pipe)) > 0;) {
    result.out.append(buffer, got);
  }
  const int raw = pclose(pipe);
  result.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  return result;
}

// text between single quotes for the shell.
std::string quoted(const std::string& text) {
  std::string result = "'";
  for (char c : text) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

std::vector<std::string> filesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

// Reads the map with Python's XML parser and prints one line per placemark: its style, its name
// and its points, each "x,y,z", separated by blanks. Anything the parser refuses ends it with a
// status other than 0.
const char* const kReadMap = R"(
import sys
import xml.etree.ElementTree as ET
k = '{http://www.opengis.net/kml/2.2}'
root = ET.parse(sys.argv[1]).getroot()
assert root.tag == k + 'kml', root.tag
for mark in root.iter(k + 'Placemark'):
    style = mark.find(k + 'styleUrl').text.strip()
    name = mark.find(k + 'name').text
    points = mark.find('.//' + k + 'coordinates').text.split()
    print(style + '\t' + name + '\t' + ' '.join(points))
)";

struct Placemark {
  std::string style, name;
  std::vector<std::vector<double>> points;
};

std::vector<Placemark> readMap(const std::string& path) {
  const Shell read =
      shell("/usr/bin/python3 -c " + quoted(kReadMap) + " " + quoted(path) + " 2>&1");
  EXPECT_EQ(read.status, 0) << read.out;
  std::vector<Placemark> marks;
  std::istringstream lines(read.out);
  for (std::string line; std::getline(lines, line);) {
    const auto first = line.find('\t');
    const auto second = line.find('\t', first + 1);
    Placemark mark{line.substr(0, first), line.substr(first + 1, second - first - 1), {}};
    std::istringstream points(line.substr(second + 1));
    for (std::string point; points >> point;) {
      std::vector<double> values;
      std::istringstream fields(point);
      for (std::string field; std::getline(fields, field, ',');) {
        values.push_back(std::stod(field));
      }
      mark.points.push_back(values);
    }
    marks.push_back(mark);
  }
  return marks;
}

bool canMount(const fs::path& at, const std::string& size) {
  return geteuid() == 0 && mount("tmpfs", at.c_str(), "tmpfs", 0, ("size=" + size).c_str()) == 0;
}

// A copy of the demo over 1931-1933 for each test.
class KovaExport : public ::testing::Test {
 protected:
  TemporaryFolder folder{"kova_export_"};
  const std::string project = copyOfDemo(folder);

  std::vector<std::string> scenarioNames() const {
    OpenProject open(project);
    std::vector<std::string> names;
    for (const auto& scenario : open.scenarios()) names.push_back(scenario->getName());
    return names;
  }
};

}  // namespace

// Graphviz reads the drawing of every scenario of the demo, each kind of scenario among them,
// without a word on its error stream.
TEST_F(KovaExport, GraphvizDrawsEveryScenarioOfTheDemo) {
  const auto names = scenarioNames();
  ASSERT_EQ(names.size(), 6u);
  for (std::size_t i = 0; i < names.size(); ++i) {
    SCOPED_TRACE(names[i]);
    const std::string dot = folder.file("cenario" + std::to_string(i) + ".dot");
    const auto exported = kova({"export", "dot", project, "--scenario", names[i], "--out", dot});
    ASSERT_EQ(exported.status, exitOk) << exported.err;
    EXPECT_EQ(exported.out, "graph written to " + dot + "\n");
    EXPECT_EQ(exported.err, "");
    const std::string text = readFile(dot);
    EXPECT_EQ(text.rfind("digraph G {\nrankdir=LR;\n", 0), 0u);
    EXPECT_TRUE(text.size() >= 2 && text.compare(text.size() - 2, 2, "}\n") == 0);
    const std::string svg = folder.file("cenario" + std::to_string(i) + ".svg");
    const std::string errors = folder.file("cenario" + std::to_string(i) + ".err");
    const Shell drawn =
        shell("dot -Tsvg " + quoted(dot) + " -o " + quoted(svg) + " 2> " + quoted(errors));
    EXPECT_EQ(drawn.status, 0);
    EXPECT_EQ(readFile(errors), "");
    EXPECT_NE(readFile(svg).find("<svg"), std::string::npos);
  }
  // Nothing but the drawings, the pictures and the empty error files beside the project.
  EXPECT_EQ(filesIn(folder.root()).size(), 2u + 3u * names.size());
}

TEST_F(KovaExport, ThePriorityScenarioShowsPrioritiesAndTheCurvesTheirQ90) {
  const std::string dot = folder.file("rede.dot");
  ASSERT_EQ(kova({"export", "dot", project, "--scenario", "Prioridades", "--out", dot}).status,
            exitOk);
  const std::string priorities = readFile(dot);
  EXPECT_NE(priorities.find("\\nP="), std::string::npos) << priorities;
  EXPECT_EQ(priorities.find("Q90="), std::string::npos);
  // Not run yet: the reservoirs of the curve are marked, without a flow.
  ASSERT_EQ(
      kova({"export", "dot", project, "--scenario", "Curva de garantia", "--out", dot, "--quiet"})
          .status,
      exitOk);
  const std::string unrun = readFile(dot);
  EXPECT_NE(unrun.find("\"Três Marias\" [label=\"Três Marias\\nQ90=-\"]"), std::string::npos)
      << unrun;
  EXPECT_NE(unrun.find("\"Sobradinho\" [label=\"Sobradinho\\nQ90=-\"]"), std::string::npos);
  EXPECT_EQ(unrun.find("P="), std::string::npos);
  // Once run, the flow of 90 % that 'kova curve' prints.
  const Outcome run =
      kovaProcess({"run", project, "--scenario", "Curva de garantia", "--seed", "7", "--quiet"});
  ASSERT_EQ(run.status, exitOk) << run.err;
  const Outcome curve =
      kova({"curve", project, "--scenario", "Curva de garantia", "--format", "json"});
  ASSERT_EQ(curve.status, exitOk) << curve.err;
  ASSERT_EQ(
      kova({"export", "dot", project, "--scenario", "Curva de garantia", "--out", dot}).status,
      exitOk);
  const std::string ran = readFile(dot);
  std::size_t labels = 0;
  for (std::size_t at = ran.find("\\nQ90="); at != std::string::npos;
       at = ran.find("\\nQ90=", at + 1)) {
    ++labels;
    const std::string flow = ran.substr(at + 6, ran.find('"', at) - at - 6);
    SCOPED_TRACE(flow);
    if (flow == "-") continue;  // the level was not reached
    EXPECT_TRUE(std::isfinite(std::stod(flow)));
    EXPECT_NE(curve.out.find(flow), std::string::npos) << curve.out;
  }
  EXPECT_EQ(labels, 2u) << ran;
}

// Python's XML parser reads the map; every reservoir of the scenario has its placemark at its
// position, and every link with both ends its line.
TEST_F(KovaExport, TheMapIsXmlWithEveryReservoirWhereItLies) {
  const std::string kml = folder.file("mapa.kml");
  const auto exported = kova({"export", "kml", project, "--scenario", "Regras", "--out", kml});
  ASSERT_EQ(exported.status, exitOk) << exported.err;
  EXPECT_EQ(exported.out, "map written to " + kml + "\n");
  const auto marks = readMap(kml);

  OpenProject open(project);
  const auto scenario = open.scenario("Regras");
  const auto nodes = ElementsFilter::filterByNodes(scenario->getSortedElements());
  std::size_t reservoirs = 0, links = 0;
  for (const auto& node : nodes) {
    for (const auto& link : node->getDownstreamLinks()) links += link->getDownstream() ? 1 : 0;
    if (node->getType() != ElementType::reservoir) continue;
    ++reservoirs;
    SCOPED_TRACE(node->getName());
    const auto mark = std::find_if(marks.begin(), marks.end(), [&](const Placemark& one) {
      return one.style == "#reservoir" && one.name == node->getName();
    });
    ASSERT_NE(mark, marks.end());
    ASSERT_EQ(mark->points.size(), 1u);
    ASSERT_EQ(mark->points[0].size(), 3u);
    for (double value : mark->points[0]) EXPECT_TRUE(std::isfinite(value));
    // Longitude then latitude, read back exactly from their 17 digits.
    EXPECT_EQ(mark->points[0][0], node->getX());
    EXPECT_EQ(mark->points[0][1], node->getY());
    EXPECT_EQ(mark->points[0][2], 2357.0);
  }
  EXPECT_GT(reservoirs, 0u);
  EXPECT_EQ(std::count_if(marks.begin(), marks.end(),
                          [](const Placemark& one) { return one.style == "#reservoir"; }),
            static_cast<long>(reservoirs));
  const auto lines = std::count_if(marks.begin(), marks.end(), [](const Placemark& one) {
    return one.style == "#yellowLineGreenPoly" && one.points.size() == 2;
  });
  EXPECT_EQ(lines, static_cast<long>(links));
  EXPECT_EQ(marks.size(), reservoirs + links);
}

TEST_F(KovaExport, AFileThatCannotBeWrittenIsAnErrorAndLeavesNothing) {
  const std::string nowhere = folder.file("nenhuma/pasta");
  for (const std::string kind : {"dot", "kml"}) {
    SCOPED_TRACE(kind);
    const Outcome missing = kovaProcess(
        {"export", kind, project, "--scenario", "Regras", "--out", nowhere + "/rede." + kind});
    EXPECT_EQ(missing.status, exitUsage);
    EXPECT_EQ(missing.err, "kova export: " + nowhere + ": no such folder\n");
    EXPECT_EQ(missing.out, "");
    const Outcome onFolder =
        kova({"export", kind, project, "--scenario", "Regras", "--out", folder.file("")});
    EXPECT_EQ(onFolder.status, exitUsage);
    EXPECT_EQ(onFolder.err, "kova export: " + folder.file("") + ": is a folder, not a file\n");
  }
  EXPECT_EQ(filesIn(folder.root()),
            (std::vector<std::string>{"sao_francisco.sjson", "sao_francisco.sjson.sqlite"}));
  EXPECT_EQ(kova({"export", "svg", project, "--scenario", "Regras", "--out", "x"}).err,
            "kova export: nothing to export named \"svg\" (csv, inputs, cav, dot or kml); try "
            "'kova export --help'\n");
}

// A folder where the user may not create a file, and a disk that fills up: an error naming the
// file, and neither the file nor its partial copy left.
TEST_F(KovaExport, AFolderWithoutPermissionOrAFullDiskLeavesNoFile) {
  if (geteuid() != 0) GTEST_SKIP() << "needs the super-user to act as another user and to mount";
  const fs::path locked = folder.root() / "fechada";
  fs::create_directories(locked);
  fs::permissions(folder.root(), fs::perms::owner_all | fs::perms::group_read |
                                     fs::perms::group_exec | fs::perms::others_read |
                                     fs::perms::others_exec);
  fs::permissions(locked, fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  const std::string denied = (locked / "rede.dot").string();
  const Outcome refused =
      kovaProcess({"export", "dot", project, "--scenario", "Regras", "--out", denied},
                  ProcessOptions::nobody());
  EXPECT_EQ(refused.status, exitUsage);
  EXPECT_EQ(refused.err, "kova export: " + denied + ": could not be written\n");
  EXPECT_TRUE(fs::is_empty(locked));

  const fs::path disk = folder.root() / "disco";
  fs::create_directories(disk);
  if (!canMount(disk, "64k")) GTEST_SKIP() << "a small tmpfs could not be mounted";
  {
    std::ofstream filler(disk / "enchimento", std::ios::binary);
    const std::string block(4096, 'x');
    while (filler << block << std::flush) {
    }
  }
  for (const std::string kind : {"dot", "kml"}) {
    SCOPED_TRACE(kind);
    const std::string full = (disk / ("rede." + kind)).string();
    const Outcome exported =
        kovaProcess({"export", kind, project, "--scenario", "Regras", "--out", full});
    EXPECT_EQ(exported.status, exitUsage);
    EXPECT_EQ(exported.err,
              "kova export: " + full + ": could not be written completely (disk full?)\n");
    EXPECT_EQ(filesIn(disk), std::vector<std::string>{"enchimento"});
  }
  umount(disk.c_str());
}
