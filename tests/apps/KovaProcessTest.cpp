#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "DemoProject.h"
#include "NewProjectTarget.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

// The kova program run as its own process: its exit status and what it wrote.
class Process {
 public:
  // Starts kova with args; with interruptOnProgress, sends SIGINT once it reports progress. As
  // the super-user, withoutRights runs it as the user nobody, to whom permissions apply.
  Process(const std::vector<std::string>& args, bool interruptOnProgress,
          bool withoutRights = false) {
    int out[2], err[2];
    if (pipe(out) != 0 || pipe(err) != 0) throw std::runtime_error("pipe");
    pid = fork();
    if (pid == 0) {
      constexpr uid_t kNobody = 65534;
      if (withoutRights && geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) {
        _exit(126);
      }
      dup2(out[1], STDOUT_FILENO);
      dup2(err[1], STDERR_FILENO);
      std::vector<char*> argv{const_cast<char*>(KOVA_BINARY)};
      for (const auto& arg : args) argv.push_back(const_cast<char*>(arg.c_str()));
      argv.push_back(nullptr);
      execv(KOVA_BINARY, argv.data());
      _exit(127);
    }
    close(out[1]);
    close(err[1]);
    errText = readAll(err[0], interruptOnProgress);
    outText = readAll(out[0], false);
    int raw = 0;
    waitpid(pid, &raw, 0);
    status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  }

  int status = -1;
  std::string outText, errText;

 private:
  // Reads until the end; sends SIGINT at the first progress line past 0 % of a run.
  std::string readAll(int fd, bool interrupt) {
    std::string text;
    std::array<char, 4096> buffer{};
    for (ssize_t got; (got = read(fd, buffer.data(), buffer.size())) > 0;) {
      text.append(buffer.data(), static_cast<std::size_t>(got));
      if (interrupt && text.find("Prioridades: 10%") != std::string::npos) {
        kill(pid, SIGINT);
        interrupt = false;
      }
    }
    close(fd);
    return text;
  }

  pid_t pid = -1;
};

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
  const Process run({"run", project, "--scenario", "Prioridades"}, true);
  EXPECT_EQ(run.status, 3) << run.errText;
  EXPECT_EQ(run.outText, "Prioridades: A execução do cenário foi cancelada!\n");
  EXPECT_EQ(readFile(project + ".sqlite"), before);
}

TEST(KovaProcess, ARefusedScenarioPrintsItsFindingsAndEndsWithStatusOne) {
  TemporaryFolder folder("kova_process_");
  const std::string project = folder.file("falho.sjson");
  saveDemo(project, 1932, [](const std::vector<std::shared_ptr<Scenario>>& scenarios) {
    auto sobradinho = std::static_pointer_cast<Reservoir>(scenarios[0]->getElement("Sobradinho"));
    sobradinho->getReservoirInfo().initVol = sobradinho->getReservoirInfo().maxVol + 1.0;
  });
  const Process check({"check", project, "--scenario", "Regras"}, false);
  EXPECT_EQ(check.status, 1);
  const std::string finding = "Volume inicial maior que volume máximo em: Sobradinho\n";
  EXPECT_EQ(check.outText.rfind(finding, 0), 0u) << check.outText;
  const Process run({"run", project, "--quiet"}, false);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.outText.rfind(
                "Regras: Cenário não executado devido a existência algum erro de configuração.\n" +
                    finding,
                0),
            0u)
      << run.outText;
  // The other scenarios still run.
  EXPECT_NE(run.outText.find("Prioridades: Cenário executado com sucesso!"), std::string::npos);
  EXPECT_EQ(run.errText, "");
}

TEST(KovaProcess, FileErrorsEndWithStatusTwoAndOneLine) {
  const Process missing({"info", "/nonexistent/p.sjson"}, false);
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.errText, "kova info: /nonexistent/p.sjson: no such project file\n");
  EXPECT_FALSE(std::ifstream("/nonexistent/p.sjson.sqlite").good());

  TemporaryFolder folder("kova_process_");
  const std::string locked = folder.file("fechado.sjson");
  writeFile(locked, "{}");
  std::filesystem::permissions(locked, std::filesystem::perms::none);
  const Process unreadable({"info", locked}, false, true);
  EXPECT_EQ(unreadable.status, 2);
  EXPECT_EQ(unreadable.errText, "kova info: " + locked + ": cannot be read\n");
}
