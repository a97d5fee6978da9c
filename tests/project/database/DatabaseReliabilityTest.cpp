#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <fstream>

#include "project/database/DatabaseException.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/FileUtils.h"
#include "project/database/JsonLoadExceptionPermissionDenied.h"
#include "project/database/LoadProject.h"
#include "project/database/SaveProject.h"
#include "support/ExpectThrow.h"

using namespace databasetest;
using DatabaseReliabilityTest = DatabaseTest;

namespace {

// A project saved once at path, then changed in memory so that a second save differs.
std::unique_ptr<RealisticNetwork> savedThenChanged(const std::string& path, unsigned int lastYear) {
  auto network = installRealisticProject(lastYear);
  EXPECT_TRUE(SaveProject::saveAs(path, nullptr));
  EXPECT_TRUE(ScenarioManager::getInstance().executeScenery(0, nullptr, nullptr));
  network->reservoirs.front()->getReservoirInfo().cav.push_back({999.0, 999.0, 99999.0});
  return network;
}

}  // namespace

TEST_F(DatabaseReliabilityTest, ASaveCancelledHalfWayLeavesTheDatabaseAsItWas) {
  const std::string path = folder.file("cancel.sjson");
  const auto network = savedThenChanged(path, 1931);
  const auto before = contentOf(path + ".sqlite");
  const auto ids = network->net.scenario->getElements().back()->getDatabaseId();
  long calls = 0;
  EXPECT_FALSE(SaveProject::saveAs(path, [&](long done, long total) {
    ++calls;
    return done < total / 2;
  }));
  EXPECT_GT(calls, 1);
  EXPECT_EQ(contentOf(path + ".sqlite"), before);
  EXPECT_EQ(network->net.scenario->getElements().back()->getDatabaseId(), ids);
}

TEST_F(DatabaseReliabilityTest, AProcessKilledDuringALargeSaveLeavesTheOldOrTheNewState) {
  const std::string path = folder.file("killed.sjson");
  const std::string database = path + ".sqlite";
  const auto network = savedThenChanged(path, 1960);
  SQLStorage::deleteInstance();
  const auto before = contentOf(database);

  int pipeEnds[2];
  ASSERT_EQ(pipe(pipeEnds), 0);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    close(pipeEnds[0]);
    // Tells the parent once the save is well inside its transaction, then goes on writing.
    (void)SaveProject::saveAs(path, [&](long done, long total) {
      if (done == total / 2) {
        const char mark = 'x';
        (void)!write(pipeEnds[1], &mark, 1);
        // Holds the transaction open, so that the kill lands inside it whatever the machine.
        sleep(5);
      }
      return true;
    });
    _exit(0);
  }
  close(pipeEnds[1]);
  char mark = 0;
  ASSERT_EQ(read(pipeEnds[0], &mark, 1), 1);
  kill(child, SIGKILL);
  int status = 0;
  waitpid(child, &status, 0);
  close(pipeEnds[0]);
  ASSERT_TRUE(WIFSIGNALED(status));

  {
    SQLite::Database check(database, SQLite::OPEN_READWRITE);
    EXPECT_EQ(check.execAndGet("PRAGMA integrity_check").getString(), "ok");
  }
  EXPECT_EQ(contentOf(database), before);
  ConfigurationHeader::setLoadResults(true);
  const auto scenarios = LoadProject::load(path, nullptr);
  EXPECT_EQ(scenarios.size(), 1u);
}

TEST_F(DatabaseReliabilityTest, ADatabaseLockedByAnotherConnectionIsReportedAndLeftAlone) {
  const std::string path = folder.file("locked.sjson");
  const auto network = savedThenChanged(path, 1931);
  const auto before = contentOf(path + ".sqlite");
  SQLite::Database other(path + ".sqlite", SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  EXPECT_THROW_TEXT((void)SaveProject::saveAs(path, nullptr), DatabaseException,
                    "Banco de dados do projeto está bloqueado. Verifique se ele está sendo "
                    "utilizado por outra aplicação.");
  other.exec("ROLLBACK");
  EXPECT_EQ(contentOf(path + ".sqlite"), before);
}

namespace {

// Whether opening the project at path is refused for want of permission, before anything is
// read or created.
bool refusedAsReadOnly(const std::string& path) {
  if (FileUtils::hasFileWritePermission(path)) return false;
  try {
    LoadProject::load(path, nullptr);
    return false;
  } catch (const JsonLoadExceptionPermissionDenied& error) {
    return std::string(error.what()) == "Json file with permission denied" &&
           !std::filesystem::exists(path + ".sqlite");
  } catch (...) {
    return false;
  }
}

}  // namespace

TEST_F(DatabaseReliabilityTest, AReadOnlyProjectIsRefusedBeforeItIsRead) {
  EXPECT_TRUE(FileUtils::isPermissionDenied(EACCES));
  EXPECT_FALSE(FileUtils::isPermissionDenied(ENOENT));
  const std::string path = folder.file("readonly.sjson");
  // Not a project at all: a refusal must come before any parsing.
  std::ofstream(path) << "not json";
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  if (geteuid() != 0) {
    EXPECT_TRUE(refusedAsReadOnly(path));
    return;
  }
  // The super-user may write any file: the test runs in a child that gives up its rights.
  const pid_t child = fork();
  ASSERT_NE(child, -1);
  if (child == 0) {
    constexpr uid_t kNobody = 65534;
    if (setgid(kNobody) != 0 || setuid(kNobody) != 0) _exit(2);
    _exit(refusedAsReadOnly(path) ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0) << "1: not refused as read-only; 2: could not give up the rights";
}

TEST_F(DatabaseReliabilityTest, AMissingDatabaseIsCreatedBesideTheProjectFile) {
  const std::string path = folder.file("fresh.sjson");
  EXPECT_THROW(LoadProject::load(path, nullptr), std::exception);
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(countRows(path + ".sqlite", "Scenario"), 0);
}

TEST_F(DatabaseReliabilityTest, ACorruptDatabaseGivesTheGeneralMessage) {
  const std::string path = folder.file("corrupt.sjson");
  std::ofstream(path) << "{}";
  std::ofstream(path + ".sqlite") << std::string(4096, 'k');
  EXPECT_THROW_TEXT(LoadProject::load(path, nullptr), DatabaseException,
                    "Ocorreu algum erro na operação do banco de dados do projeto.");
  EXPECT_FALSE(SQLStorage::hasInstance());
}
