#include <gtest/gtest.h>

#include "project/database/DatabaseCopy.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/SaveProject.h"
#include "project/database/StorageManager.h"
#include "project/database/UserLiteSaver.h"
#include "support/ExpectThrow.h"

using namespace databasetest;
using DatabaseCopyTest = DatabaseTest;

namespace {

// A database with one row that points at no element, as programs that write without foreign
// keys may leave.
void addOrphanRow(const std::string& path) {
  SQLite::Database raw(path, SQLite::OPEN_READWRITE);
  raw.exec(
      "INSERT INTO SerieInput (timeStamp, enabled, date, julian, value, type, elementID, userID) "
      "SELECT '', 1, '1931-01-01', 2426343, 1.0, MIN(id), 999999, 1 FROM SerieType");
}

}  // namespace

TEST_F(DatabaseCopyTest, EveryRowIsCopiedKeyForKeyAndOrphansStayBehind) {
  installRealisticProject(1931);
  const std::string source = folder.file("source.sjson.sqlite");
  const std::string target = folder.file("target.sjson.sqlite");
  ASSERT_TRUE(SaveProject::saveAs(folder.file("source.sjson"), nullptr));
  const auto expected = contentOf(source);
  addOrphanRow(source);
  // The target held another project before: all of it goes.
  installRealisticProject(1932);
  ASSERT_TRUE(SaveProject::saveAs(folder.file("target.sjson"), nullptr));

  auto from = StorageManager::createStorage(source);
  auto to = StorageManager::createStorage(target);
  std::vector<long> steps;
  ASSERT_TRUE(DatabaseCopy::copyRows(*from, *to, UserLiteSaver::defaultUserId(*from),
                                     [&](long done, long total) {
                                       EXPECT_EQ(total, 12);
                                       steps.push_back(done);
                                       return true;
                                     }));
  EXPECT_EQ(steps, (std::vector<long>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
  EXPECT_EQ(contentOf(target), expected);
}

TEST_F(DatabaseCopyTest, ACancelledOrRefusedCopyLeavesTheTargetAsItWas) {
  installRealisticProject(1931);
  ASSERT_TRUE(SaveProject::saveAs(folder.file("source.sjson"), nullptr));
  const std::string target = folder.file("target.sqlite");
  auto from = StorageManager::createStorage(folder.file("source.sjson.sqlite"));
  auto to = StorageManager::createStorage(target);
  const int64_t user = UserLiteSaver::defaultUserId(*from);
  ASSERT_TRUE(DatabaseCopy::copyRows(*from, *to, user, nullptr));
  from->exec("DELETE FROM Cav");
  const auto before = contentOf(target);

  EXPECT_FALSE(DatabaseCopy::copyRows(*from, *to, user, [](long done, long) { return done < 9; }));
  EXPECT_EQ(contentOf(target), before);
  EXPECT_THROW_TEXT(static_cast<void>(DatabaseCopy::copyRows(*from, *to, 77, nullptr)),
                    std::invalid_argument, "UsersCopy::copyUsers(): unknown userId");
  EXPECT_EQ(contentOf(target), before);
  EXPECT_THROW_TEXT(static_cast<void>(DatabaseCopy::copyDatabase(
                        *from, folder.file("source.sjson.sqlite"), user, nullptr)),
                    std::invalid_argument,
                    "DatabaseCopy::copyDatabase(): the copy would overwrite its source");
}
