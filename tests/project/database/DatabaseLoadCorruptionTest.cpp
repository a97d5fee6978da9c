#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "project/database/DatabaseLoadException.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/LoadProject.h"
#include "project/database/SaveProject.h"
#include "support/ExpectThrow.h"

using namespace databasetest;
using DatabaseLoadCorruptionTest = DatabaseTest;

namespace {

struct Corruption {
  std::string name;
  std::string sql;      // run on the saved database before it is opened again
  std::string message;  // the exact refusal, or "" when the project must load
};

// The first input row of the first element, the one each corruption below works on.
const std::string kFirstRow =
    "(SELECT MIN(id) FROM SerieInput WHERE elementID = (SELECT MIN(elementID) FROM SerieInput))";

}  // namespace

// Every value of the database is read as what it is: text, NULL, a doubled date or a row whose
// vocabulary is gone would otherwise be read as 0, 12, or no value, and a run would give other
// numbers without a word.
TEST_F(DatabaseLoadCorruptionTest, EachCorruptionIsRefusedNamingItsPlace) {
  const std::string path = folder.file("corrompido.sjson");
  installRealisticProject(1931);
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  SQLStorage::deleteInstance();
  const std::string original = folder.file("original.sqlite");
  std::filesystem::copy_file(path + ".sqlite", original);
  std::string place;
  {
    SQLite::Database database(original, SQLite::OPEN_READONLY);
    SQLite::Statement row(
        database,
        "SELECT Element.name, Element.databaseId, SerieType.type, SerieInput.date "
        "FROM SerieInput JOIN Element ON Element.databaseId = "
        "SerieInput.elementID JOIN SerieType ON SerieType.id = SerieInput.type "
        "WHERE SerieInput.id = " +
            kFirstRow);
    ASSERT_TRUE(row.executeStep());
    place = "table SerieInput, element \"" + row.getColumn(0).getString() + "\" (databaseId " +
            row.getColumn(1).getString() + "), series \"" + row.getColumn(2).getString() +
            "\", date '" + row.getColumn(3).getString() + "': ";
  }
  const std::vector<Corruption> corruptions = {
      {"untouched", "SELECT 1", ""},
      {"a whole number is a number", "UPDATE SerieInput SET value = 12 WHERE id = " + kFirstRow,
       ""},
      {"text", "UPDATE SerieInput SET value = 'abc' WHERE id = " + kFirstRow,
       place + "value 'abc' is not a finite number"},
      {"decimal comma", "UPDATE SerieInput SET value = '12,5' WHERE id = " + kFirstRow,
       place + "value '12,5' is not a finite number"},
      // The schema keeps NULL out; an empty text is what an editor leaves instead.
      {"empty text", "UPDATE SerieInput SET value = '' WHERE id = " + kFirstRow,
       place + "value '' is not a finite number"},
      {"infinite", "UPDATE SerieInput SET value = 9e999 WHERE id = " + kFirstRow,
       place + "value 'Inf' is not a finite number"},
      {"day as text", "UPDATE SerieInput SET julian = 'x' WHERE id = " + kFirstRow,
       place + "julian day 'x' is not a whole number"},
      {"date twice",
       "INSERT INTO SerieInput (timeStamp, enabled, date, julian, value, type, elementID, userID) "
       "SELECT timeStamp, enabled, date, julian, value + 1, type, elementID, userID FROM "
       "SerieInput WHERE id = " +
           kFirstRow,
       place + "two values for one date"},
  };
  for (const Corruption& corruption : corruptions) {
    SCOPED_TRACE(corruption.name);
    resetProcessState();
    std::filesystem::copy_file(original, path + ".sqlite",
                               std::filesystem::copy_options::overwrite_existing);
    SQLite::Database(path + ".sqlite", SQLite::OPEN_READWRITE).exec(corruption.sql);
    if (corruption.message.empty()) {
      EXPECT_NO_THROW(LoadProject::load(path, nullptr));
    } else {
      EXPECT_THROW_TEXT(LoadProject::load(path, nullptr), DatabaseLoadException,
                        corruption.message);
    }
  }
}

TEST_F(DatabaseLoadCorruptionTest, RowsWhoseVocabularyIsGoneAreRefused) {
  const std::string path = folder.file("vocabulario.sjson");
  installRealisticProject(1931);
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  SQLStorage::deleteInstance();
  for (const std::string table : {"SerieType", "Unit"}) {
    SCOPED_TRACE(table);
    const std::string copy = folder.file(table + ".sjson");
    std::filesystem::copy_file(path, copy);
    std::filesystem::copy_file(path + ".sqlite", copy + ".sqlite");
    {
      SQLite::Database database(copy + ".sqlite", SQLite::OPEN_READWRITE);
      // Foreign keys are off on this connection, as in any tool that edits the file by hand.
      database.exec("DELETE FROM " + table + " WHERE id = (SELECT " +
                    (table == "Unit" ? "unit" : "id") +
                    " FROM SerieType WHERE id = (SELECT MIN(type) FROM SerieInput))");
    }
    resetProcessState();
    try {
      LoadProject::load(copy, nullptr);
      ADD_FAILURE() << "loaded";
    } catch (const DatabaseLoadException& error) {
      const std::string text = error.what();
      EXPECT_EQ(text.rfind("table SerieInput, element databaseId ", 0), 0u) << text;
      EXPECT_NE(text.find("has no row in SerieType with a row in Unit"), std::string::npos) << text;
    }
  }
}

// A command that only reads changes nothing and creates nothing.
TEST_F(DatabaseLoadCorruptionTest, ReadingOnlyNeedsNoDatabaseToBeCreated) {
  const std::string path = folder.file("leitura.sjson");
  installRealisticProject(1931);
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  SQLStorage::deleteInstance();
  const auto before = contentOf(path + ".sqlite");
  resetProcessState();
  EXPECT_EQ(LoadProject::loadReadOnly(path, nullptr).size(), 1u);
  SQLStorage::deleteInstance();
  EXPECT_EQ(contentOf(path + ".sqlite"), before);

  std::filesystem::remove(path + ".sqlite");
  resetProcessState();
  EXPECT_THROW_TEXT(LoadProject::loadReadOnly(path, nullptr), std::runtime_error,
                    path + ".sqlite: no such project database");
  EXPECT_FALSE(std::filesystem::exists(path + ".sqlite"));
}
