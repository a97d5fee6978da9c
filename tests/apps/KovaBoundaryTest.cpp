#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "DemoProject.h"
#include "KovaProcess.h"
#include "NewProjectTarget.h"
#include "project/JsonProjectLoader.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

// The names of the files in folder.
std::vector<std::string> filesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

// A folder everyone may enter and read, as the user nobody must.
std::unique_ptr<TemporaryFolder> openFolder() {
  auto folder = std::make_unique<TemporaryFolder>("kova_boundary_");
  fs::permissions(folder->root(), fs::perms::owner_all | fs::perms::group_read |
                                      fs::perms::group_exec | fs::perms::others_read |
                                      fs::perms::others_exec);
  return folder;
}

void saveDemo(const std::string& path, unsigned int lastYear) {
  ASSERT_TRUE(
      NewProjectTarget::save(DemoProject::makeScenarios(KOVA_DEMO_DATA, lastYear), path, nullptr));
}

// Whether the process may mount a file system (the super-user in most containers).
bool canMount(const fs::path& at, const std::string& size) {
  return geteuid() == 0 && mount("tmpfs", at.c_str(), "tmpfs", 0, ("size=" + size).c_str()) == 0;
}

}  // namespace

// A project whose files may not be written, and a folder where nothing may be created, are
// still fully readable: every command that only reads works, and one that writes says which
// file it cannot write.
TEST(KovaBoundary, AReadOnlyProjectIsReadableByAnotherUser) {
  const auto folder = openFolder();
  const std::string project = folder->file("leitura.sjson");
  saveDemo(project, 1932);
  ASSERT_EQ(kovaProcess({"run", project, "--quiet", "--scenario", "Regras"}).status, 0);
  const std::string before = readFile(project + ".sqlite");
  for (const std::string& file : {project, project + ".sqlite"}) {
    fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  }
  fs::permissions(folder->root(), fs::perms::owner_read | fs::perms::owner_exec |
                                      fs::perms::others_read | fs::perms::others_exec);
  const std::vector<std::vector<std::string>> reads = {
      {"info", project},
      {"check", project},
      {"metrics", project, "--scenario", "Regras"},
      {"report", project, "--scenario", "Regras"},
      {"run", project, "--no-save", "--quiet", "--scenario", "Regras"},
  };
  for (const auto& args : reads) {
    SCOPED_TRACE(args[0]);
    const Outcome run = kovaProcess(args, ProcessOptions::nobody());
    EXPECT_EQ(run.status, 0) << run.err;
  }
  const Outcome writing = kovaProcess({"run", project, "--quiet"}, ProcessOptions::nobody());
  EXPECT_EQ(writing.status, 2);
  EXPECT_EQ(writing.err, "kova run: " + project + ": cannot be written (no write permission)\n");
  fs::permissions(folder->root(), fs::perms::owner_all);
  EXPECT_EQ(readFile(project + ".sqlite"), before);
  EXPECT_EQ(filesIn(folder->root()),
            (std::vector<std::string>{"leitura.sjson", "leitura.sjson.sqlite"}));
}

TEST(KovaBoundary, ProjectsThatCannotBeReadAreOneLineAndCreateNothing) {
  TemporaryFolder folder("kova_boundary_");
  const std::string alone = folder.file("sozinho.sjson");
  saveDemo(alone, 1931);
  fs::remove(alone + ".sqlite");
  const Outcome missing = kovaProcess({"info", alone});
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.err, "kova info: " + alone + ".sqlite: no such project database\n");
  EXPECT_FALSE(fs::exists(alone + ".sqlite"));

  const std::string empty = folder.file("vazio.sjson");
  writeFile(empty, "{\"scenarios\":[],\"project\":{}}");
  writeFile(empty + ".sqlite", "");
  const Outcome none = kovaProcess({"check", empty});
  EXPECT_EQ(none.status, 2);
  EXPECT_EQ(none.err, "kova check: " + empty + ": the project has no scenario\n");

  const std::string cut = folder.file("cortado.sjson");
  writeFile(cut, readFile(alone).substr(0, 300));
  writeFile(cut + ".sqlite", "");
  const Outcome broken = kovaProcess({"info", cut});
  EXPECT_EQ(broken.status, 2);
  EXPECT_EQ(broken.err.rfind("kova info: " + cut + ": not a JSON text: parse error at line 1", 0),
            0u)
      << broken.err;
  EXPECT_EQ(std::count(broken.err.begin(), broken.err.end(), '\n'), 1);
}

// Another program that holds the writer's lock keeps writers out, not readers; and a run learns
// that it cannot write, its database or its CSV folder, before it computes.
TEST(KovaBoundary, OnlyWritersWaitForALockAndLearnItBeforeTheyCompute) {
  const auto folder = openFolder();
  const std::string project = folder->file("travado.sjson");
  saveDemo(project, 1932);
  {
    SQLite::Database holder(project + ".sqlite", SQLite::OPEN_READWRITE);
    holder.exec("BEGIN IMMEDIATE");
    EXPECT_EQ(kovaProcess({"info", project}).status, 0);
    const Outcome writer = kovaProcess({"run", project, "--quiet"});
    EXPECT_EQ(writer.status, 2);
    EXPECT_NE(writer.err.find("Banco de dados do projeto está bloqueado."), std::string::npos)
        << writer.err;
    EXPECT_EQ(writer.out, "");
    holder.exec("ROLLBACK");
  }
  const std::string closed = folder->file("fechada");
  fs::create_directories(closed);
  fs::permissions(closed, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                              fs::perms::others_exec);
  const Outcome csv = kovaProcess({"run", project, "--no-save", "--quiet", "--csv", closed},
                                  ProcessOptions::nobody());
  EXPECT_EQ(csv.status, 2);
  EXPECT_EQ(csv.err,
            "kova run: " + closed + ": CSV files cannot be written there (Permission denied)\n");
  EXPECT_EQ(csv.out, "");
}

// Malformed copies of a saved project, each beside a copy of its database, go through kova
// check, kova run --no-save and kova metrics: each either works as for a file that was never
// changed (the value was optional) or ends with status 2 and one line naming the file and the
// place. None may end in a crash or a raw library text.
TEST(KovaBoundary, MalformedProjectsGetOneLineNamingFileAndPlace) {
  TemporaryFolder folder("kova_boundary_");
  const std::string good = folder.file("vale.sjson");
  ASSERT_TRUE(NewProjectTarget::save(
      JsonProjectLoader::load(std::string(KOVA_EXAMPLES_DIR) + "/../tests/data/project/vale.sjson"),
      good, nullptr));
  const nlohmann::json root = nlohmann::json::parse(readFile(good));
  // Every member of the first scenario's nodes and links, removed, made null, or a list.
  std::vector<std::pair<std::string, nlohmann::json>> corpus;
  for (const char* array : {"nodes", "links"}) {
    const auto& items = root["scenarios"][0][array];
    for (std::size_t i = 0; i < items.size(); ++i) {
      const nlohmann::json::json_pointer item("/scenarios/0/" + std::string(array) + "/" +
                                              std::to_string(i));
      for (const auto& [key, value] : root[item].items()) {
        (void)value;
        for (const nlohmann::json& replacement : {nlohmann::json(), nlohmann::json::array()}) {
          nlohmann::json mutated = root;
          mutated[item][key] = replacement;
          corpus.push_back({item.to_string() + "/" + key + "=" + replacement.dump(), mutated});
        }
        nlohmann::json removed = root;
        removed[item].erase(key);
        corpus.push_back({item.to_string() + "/" + key + " removed", removed});
      }
    }
  }
  ASSERT_GT(corpus.size(), 30u);
  std::size_t refused = 0;
  for (std::size_t n = 0; n < corpus.size(); ++n) {
    SCOPED_TRACE(corpus[n].first);
    const std::string file = folder.file("caso" + std::to_string(n) + ".sjson");
    writeFile(file, corpus[n].second.dump());
    fs::copy_file(good + ".sqlite", file + ".sqlite");
    for (const std::vector<std::string>& args : {std::vector<std::string>{"check", file},
                                                 {"run", file, "--no-save", "--quiet"},
                                                 {"metrics", file, "--scenario", "Vale"}}) {
      const Outcome outcome = kovaProcess(args);
      if (outcome.status != 2) continue;
      ++refused;
      const std::string start = "kova " + args[0] + ": " + file + ": ";
      EXPECT_EQ(outcome.err.rfind(start, 0), 0u) << outcome.err;
      EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
      for (const char* raw : {"[json.exception", "map::at", "Invalid json file", "::make("}) {
        EXPECT_EQ(outcome.err.find(raw), std::string::npos) << outcome.err;
      }
    }
  }
  EXPECT_GT(refused, corpus.size());
}

// A save killed at any moment leaves the project complete or nothing under its names, and the
// same command tried again succeeds.
TEST(KovaBoundary, AKilledSaveLeavesNothingOrAProjectAndARetryWorks) {
  TemporaryFolder folder("kova_boundary_");
  const std::string source = folder.file("origem.sjson");
  saveDemo(source, 1960);
  for (const int ms : {0, 20, 60, 150, 400}) {
    for (const std::string command : {"save-as", "new", "demo"}) {
      SCOPED_TRACE(command + " killed after " + std::to_string(ms) + " ms");
      const fs::path target = folder.root() / (command + std::to_string(ms));
      fs::create_directories(target);
      const std::string project = (target / "alvo.sjson").string();
      std::vector<std::string> args{command};
      if (command == "save-as") args = {"save-as", source, project, "--quiet"};
      if (command == "new") args = {"new", project};
      if (command == "demo") args = {"demo", target.string(), "--until", "1940", "--quiet"};
      const Outcome killed = kovaProcess(args, ProcessOptions::signalAfter(SIGKILL, ms));
      const std::string written =
          command == "demo" ? (target / "sao_francisco.sjson").string() : project;
      if (fs::exists(written)) {
        EXPECT_TRUE(fs::exists(written + ".sqlite"));
        EXPECT_EQ(kovaProcess({"info", written}).status, 0);
        continue;
      }
      EXPECT_FALSE(fs::exists(written + ".sqlite"));
      const Outcome retry = kovaProcess(args);
      EXPECT_EQ(retry.status, 0) << retry.err;
      EXPECT_EQ(kovaProcess({"info", written}).status, 0);
      // What the killed attempt left under its partial names went with the retry.
      EXPECT_EQ(filesIn(target).size(), 2u);
    }
  }
}

TEST(KovaBoundary, CtrlCDuringTheDemoExitsThreeAndLeavesNothing) {
  TemporaryFolder folder("kova_boundary_");
  const Outcome interrupted =
      kovaProcess({"demo", folder.root().string()}, ProcessOptions::signalAfter(SIGINT, 300));
  if (interrupted.status == 0) GTEST_SKIP() << "the demo was written before the interrupt came";
  EXPECT_EQ(interrupted.status, 3) << interrupted.err;
  EXPECT_TRUE(filesIn(folder.root()).empty());
}

// A disk that fills up is an error naming the file, with nothing of the attempt left behind.
TEST(KovaBoundary, AFullDiskIsAnErrorAndLeavesNoOrphan) {
  TemporaryFolder folder("kova_boundary_");
  const std::string source = folder.file("origem.sjson");
  saveDemo(source, 1950);
  ASSERT_EQ(kovaProcess({"run", source, "--quiet", "--scenario", "Regras"}).status, 0);
  const fs::path disk = folder.root() / "disco";
  fs::create_directories(disk);
  if (!canMount(disk, "64k")) GTEST_SKIP() << "a small tmpfs needs the super-user; not tested";
  const Outcome saved =
      kovaProcess({"save-as", source, (disk / "copia.sjson").string(), "--quiet"});
  EXPECT_EQ(saved.status, 2) << saved.err;
  EXPECT_EQ(std::count(saved.err.begin(), saved.err.end(), '\n'), 1) << saved.err;
  EXPECT_TRUE(filesIn(disk).empty());

  const Outcome exported =
      kovaProcess({"export", "csv", source, "--scenario", "Regras", "--out", disk.string()});
  EXPECT_EQ(exported.status, 2) << exported.out;
  EXPECT_NE(exported.err.find("erro ao escrever arquivo: " + disk.string()), std::string::npos)
      << exported.err;
  std::size_t files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(disk)) files += entry.is_regular_file();
  EXPECT_EQ(files, 0u);

  // The curves are a few kilobytes: the disk is filled first, so that their writes fail.
  {
    std::ofstream filler(disk / "enchimento", std::ios::binary);
    const std::string block(4096, 'x');
    while (filler << block << std::flush) {
    }
  }
  const Outcome curves =
      kovaProcess({"export", "cav", source, "--scenario", "Regras", "--out", disk.string()});
  EXPECT_EQ(curves.status, 2) << curves.out;
  EXPECT_EQ(curves.err, "kova export: CSVCav::exportCavs(): erro ao escrever arquivo: " +
                            (disk / "Regras_cav.txt").string() + "\n");
  EXPECT_EQ(filesIn(disk), std::vector<std::string>{"enchimento"});
  umount(disk.c_str());
}

TEST(KovaBoundary, CtrlCDuringGenerateExitsThreeAndLeavesNothing) {
  TemporaryFolder folder("kova_boundary_");
  const Outcome interrupted =
      kovaProcess({"generate", folder.file("grande.sjson"), "--reservoirs", "50", "--demands",
                   "100", "--periods", "1200", "--quiet"},
                  ProcessOptions::signalAfter(SIGINT, 300));
  if (interrupted.status == 0) GTEST_SKIP() << "the project was written before the interrupt came";
  EXPECT_EQ(interrupted.status, 3) << interrupted.err;
  EXPECT_TRUE(filesIn(folder.root()).empty());
}

TEST(KovaBoundary, CtrlCDuringSaveAsExitsThreeAndLeavesTheSourceAlone) {
  TemporaryFolder folder("kova_boundary_");
  const std::string source = folder.file("origem.sjson");
  saveDemo(source, 2019);
  const std::string before = readFile(source + ".sqlite");
  const Outcome interrupted =
      kovaProcess({"save-as", source, folder.file("copia.sjson"), "--quiet"},
                  ProcessOptions::signalAfter(SIGINT, 300));
  if (interrupted.status == 0) GTEST_SKIP() << "the copy was written before the interrupt came";
  EXPECT_EQ(interrupted.status, 3) << interrupted.err;
  EXPECT_EQ(filesIn(folder.root()),
            (std::vector<std::string>{"origem.sjson", "origem.sjson.sqlite"}));
  EXPECT_EQ(readFile(source + ".sqlite"), before);
}
