#include <SQLiteCpp/SQLiteCpp.h>

#include <future>

#include "ServiceSupport.h"
#include "project/database/SQLStorage.h"
#include "service/ProjectSession.h"

using namespace servicetest;

namespace {

// Writes to both files of the open project, as a change that fails half-way would.
void writeToBothFiles(const std::string& path) {
  SQLStorage::getInstance().getStorageRef().exec("CREATE TABLE halfway (a INTEGER)");
  std::ofstream(path, std::ios::app) << "\n";
}

}  // namespace

TEST_F(ServiceTest, AWritingSessionWithoutCommitPutsBothFilesBack) {
  std::filesystem::copy(pristineProject().file("demo.sjson"), folder.file("demo.sjson"));
  std::filesystem::copy(pristineProject().file("demo.sjson.sqlite"),
                        folder.file("demo.sjson.sqlite"));
  const auto before = snapshot(folder.root());
  {
    const ProjectSession session(folder.file("demo.sjson"), ProjectSession::Access::readWrite);
    writeToBothFiles(folder.file("demo.sjson"));
  }
  EXPECT_EQ(snapshot(folder.root()), before);
  {
    ProjectSession session(folder.file("demo.sjson"), ProjectSession::Access::readWrite);
    writeToBothFiles(folder.file("demo.sjson"));
    session.commit();
  }
  const auto after = snapshot(folder.root());
  EXPECT_NE(after.at("demo.sjson"), before.at("demo.sjson"));
  EXPECT_NE(after.at("demo.sjson.sqlite"), before.at("demo.sjson.sqlite"));
}

TEST_F(ServiceTest, ASessionOpensTheProjectAloneAndClosesIt) {
  std::filesystem::copy(pristineProject().file("demo.sjson"), folder.file("demo.sjson"));
  std::filesystem::copy(pristineProject().file("demo.sjson.sqlite"),
                        folder.file("demo.sjson.sqlite"));
  std::future<bool> other;
  {
    const ProjectSession session(folder.file("demo.sjson"), ProjectSession::Access::readOnly);
    EXPECT_EQ(ScenarioManager::getInstance().getNumberOfSceneries(), 1u);
    EXPECT_EQ(session.scenario("Base")->getName(), "Base");
    // Another request waits for the session to end.
    other = std::async(std::launch::async, [] { return ProjectSession::exclusive().owns_lock(); });
    EXPECT_EQ(other.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
  }
  EXPECT_TRUE(other.get());
  EXPECT_EQ(ScenarioManager::getInstance().getNumberOfSceneries(), 0u);
  EXPECT_FALSE(SQLStorage::hasInstance());
  EXPECT_THROW(ProjectSession(folder.file("none.sjson"), ProjectSession::Access::readOnly),
               std::exception);
  EXPECT_TRUE(ProjectSession::exclusive().owns_lock());
}
