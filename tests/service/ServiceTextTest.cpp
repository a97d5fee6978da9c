#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <thread>

#include "common/Serie.h"
#include "service/JsonText.h"
#include "service/Labeldefinitions.h"
#include "service/ProjectConfigsLoader.h"
#include "service/ProjectLocation.h"
#include "service/SerieSaverAsJson.h"
#include "service/SocketContainer.h"
#include "service/TemporaryWorkspace.h"
#include "service/wqueue.h"
#include "support/ExpectThrow.h"
#include "support/TemporaryFolder.h"
#include "vocabulary/Vocabulary.h"

TEST(ServiceTextTest, ALabelIsTheTimeStampWithoutDotsColonsBreaksAndBlanks) {
  EXPECT_EQ(Labeldefinitions::produceLabel("Tue Nov 24 22:57:29.5 2026\n"), "TueNov2422572952026");
  const std::string stamp = Labeldefinitions::produceTimeStamp();
  ASSERT_FALSE(stamp.empty());
  EXPECT_EQ(stamp.back(), '\n');
}

TEST(ServiceTextTest, AProjectLiesAtTheTopOrUnderItsCode) {
  const auto plain = nlohmann::json::parse(R"({"projname": "rio"})");
  EXPECT_EQ(ProjectLocation::projectPath("/srv/p", plain), "/srv/p/rio.sjson");
  const auto coded = nlohmann::json::parse(R"({"projname": "rio", "code": "u12"})");
  EXPECT_EQ(ProjectLocation::projectPath("/srv/p", coded), "/srv/p/personalized/u12/rio.sjson");
  const auto numbered = nlohmann::json::parse(R"({"projname": "rio", "code": 12})");
  EXPECT_EQ(ProjectLocation::projectPath("/srv/p", numbered), "/srv/p/personalized/12/rio.sjson");
  EXPECT_EQ(ProjectLocation::databasePath("/srv/p/rio.sjson"), "/srv/p/rio.sjson.sqlite");
}

TEST(ServiceTextTest, NamesThatCouldLeaveTheFolderAreRefused) {
  for (const std::string name : {"..", ".", "", "a/b", "a\\b", "/abs", "c:x", "a..b", "~root"}) {
    SCOPED_TRACE(name);
    EXPECT_THROW_TEXT(ProjectLocation::checkName("projname", name), std::invalid_argument,
                      "ProjectLocation: projname \"" + name + "\" is not a plain name");
  }
  EXPECT_THROW_TEXT(ProjectLocation::checkName("code", std::string("ab\0cd", 5)),
                    std::invalid_argument, "ProjectLocation: code \"ab\" is not a plain name");
  EXPECT_NO_THROW(ProjectLocation::checkName("projname", "Três Marias 2.0"));
}

TEST(ServiceTextTest, NamesInRepliesAreEscaped) {
  EXPECT_EQ(JsonText::quote("a\"b\\c\nd"), R"("a\"b\\c\nd")");
  EXPECT_EQ(JsonText::quote("Três"), "\"Três\"");
}

TEST(ServiceTextTest, TheListTakesEveryProjectFileOfTheFolderTop) {
  TemporaryFolder folder("kova_service_list_");
  std::ofstream(folder.file("b.sjson")) << R"({"scenarios": [{"name": "S\"1"}, {"name": "S2"}]})";
  std::ofstream(folder.file("a.sjson")) << R"({"scenarios": []})";
  std::ofstream(folder.file("notes.txt")) << "not a project";
  const auto projects = ProjectConfigsLoader::loadProjectConfigs(folder.root().string());
  EXPECT_EQ(ProjectConfigsLoader::createJsonOfAvailableProjects(projects),
            R"({ "projects": [{ "projname": "a","sceneries": [] },)"
            R"({ "projname": "b","sceneries": ["S\"1","S2"] }] })");
  std::ofstream(folder.file("c.sjson")) << R"({"scenario": []})";
  EXPECT_THROW_TEXT(ProjectConfigsLoader::loadProjectConfigs(folder.root().string()),
                    std::runtime_error,
                    "ProjectConfigsLoader::loadProjectConfigs error in open JSON file");
}

TEST(ServiceTextTest, ASeriesIsWrittenWithItsIntervalAndFixedDecimals) {
  Serie serie(Interval(Date(2020, 1, 1), Date(2020, 3, 1), Vocabulary::of(Periodicity::monthly)),
              Vocabulary::of(SerieType::demand), Vocabulary::of(Unit::cubicMetresPerSecond));
  serie.setValue(Date(2020, 2, 1), 1.0 / 3.0);
  serie.setValue(Date(2020, 1, 1), -2.5);
  EXPECT_EQ(SerieSaverAsJson::getJson(serie),
            R"({"type": "Demanda","unit": "m³/s","interval":{"begin": "2020-01-01",)"
            R"("end":"2020-03-01"},"values":[{"date":"2020-01-01","value":-2.500000},)"
            R"({"date":"2020-02-01","value":0.333333}]})");
}

TEST(ServiceTextTest, AWorkspaceIsPrivateAndGoesWithEverythingInIt) {
  std::filesystem::path kept;
  {
    const TemporaryWorkspace workspace;
    kept = workspace.path();
    std::ofstream(workspace.path() / "project.zip") << "x";
    struct stat info {};
    ASSERT_EQ(stat(kept.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700u);
    const TemporaryWorkspace other;
    EXPECT_NE(other.path(), kept);
  }
  EXPECT_FALSE(std::filesystem::exists(kept));
}

TEST(ServiceTextTest, TheQueueHandsItemsOverInOrderAndWaitsWhenEmpty) {
  wqueue<SocketContainer> queue;
  std::vector<uint64_t> taken;
  std::thread consumer([&] {
    for (;;) {
      const SocketContainer item = queue.remove();
      if (item.isStopMark()) return;
      taken.push_back(item.getSocket());
    }
  });
  for (uint64_t socket : {5u, 3u, 9u}) queue.add(SocketContainer(socket));
  queue.add(SocketContainer());
  consumer.join();
  EXPECT_EQ(taken, (std::vector<uint64_t>{5, 3, 9}));
  EXPECT_EQ(queue.size(), 0u);
}
