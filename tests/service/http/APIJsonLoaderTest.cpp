#include <gtest/gtest.h>

#include "project/database/SQLStorage.h"
#include "service/http/APIJsonLoader.h"
#include "service/http/UpdateTestProject.h"
#include "support/ExpectThrow.h"

namespace {

using APIJsonLoaderTest = httptest::UpdateTest;

struct Refusal {
  std::string answer;
  std::string reason;
};

}  // namespace

TEST_F(APIJsonLoaderTest, AnswersOfTheRightShapeFillTheElementAndTheDatabase) {
  auto& storage = SQLStorage::getInstance().getStorageRef();
  const auto pairs = APIJsonLoader::loadJsonExternalSerie(
      storage, "{\"list\":[{\"data\":\"01-12-2001\",\"valor\":0.5}],\"total\":1}", *reservoir,
      SerieType::evaporation);
  ASSERT_EQ(pairs.size(), 1u);
  EXPECT_EQ(pairs.front(), std::make_pair(Date(2001, 12, 1), 0.5));
  EXPECT_EQ(reservoir->getInputSerie(SerieType::evaporation)->getValue(Date(2001, 12, 1)), 0.5);
  EXPECT_EQ(databasetest::countRows(
                path + ".sqlite", "SerieInput WHERE enabled = 1 AND value = 0.5 AND elementID = " +
                                      std::to_string(reservoir->getDatabaseId())),
            1);

  // An empty list changes no value, and the series is stored as it was.
  EXPECT_TRUE(APIJsonLoader::loadJsonExternalSerie(storage, "{\"list\":[]}", *reservoir,
                                                   SerieType::precipitation)
                  .empty());
  EXPECT_EQ(reservoir->getInputSerie(SerieType::precipitation)->size(), 12u);

  EXPECT_EQ(APIJsonLoader::loadJsonExternalCAV(
                storage, "{\"list\":[{\"cota\":1,\"area\":2,\"volume\":3}]}", *reservoir),
            1u);
  EXPECT_EQ(databasetest::countRows(path + ".sqlite", "Cav WHERE enabled = 1"), 1);
}

TEST_F(APIJsonLoaderTest, ARefusedSeriesAnswerChangesNothing) {
  const std::vector<Refusal> refusals{
      {"", "the answer is not JSON"},
      {"{\"list\":[", "the answer is not JSON"},
      {"[1,2]", "the answer has no list"},
      {"{\"lista\":[]}", "the answer has no list"},
      {"{\"list\":{}}", "the answer has no list"},
      {"{\"list\":[{\"valor\":1}]}", "item 1 of the list has no \"data\""},
      {"{\"list\":[{\"data\":\"01-01-2001\",\"valor\":1},{\"data\":\"01-02-2001\"}]}",
       "item 2 of the list has no \"valor\""},
      {"{\"list\":[3]}", "item 1 of the list has no \"data\""},
      {"{\"list\":[{\"data\":\"2001-01-01\",\"valor\":1}]}",
       "\"data\" of item 1 is not a date dd-mm-yyyy: 2001-01-01"},
      {"{\"list\":[{\"data\":20010101,\"valor\":1}]}",
       "\"data\" of item 1 is not a date dd-mm-yyyy: 20010101"},
      {"{\"list\":[{\"data\":\"15-01-2001\",\"valor\":1}]}",
       "the date 15-01-2001 is not a period of the series"},
      {"{\"list\":[{\"data\":\"01-01-2002\",\"valor\":1}]}",
       "the date 01-01-2002 is not a period of the series"},
      {"{\"list\":[{\"data\":\"01-01-2001\",\"valor\":\"muito\"}]}",
       "\"valor\" of item 1 is not a number"},
      {"{\"list\":[{\"data\":\"01-01-2001\",\"valor\":[1]}]}",
       "\"valor\" of item 1 is not a number"},
      {"{\"list\":[{\"data\":\"01-01-2001\",\"valor\":true}]}",
       "\"valor\" of item 1 is not a number"},
  };
  auto& storage = SQLStorage::getInstance().getStorageRef();
  const std::string before = databaseText();
  const auto values = reservoir->getInputSerie(SerieType::precipitation)->getMapOfJulianToValues();
  for (const auto& refusal : refusals) {
    SCOPED_TRACE(refusal.answer);
    EXPECT_THROW_TEXT(APIJsonLoader::loadJsonExternalSerie(storage, refusal.answer, *reservoir,
                                                           SerieType::precipitation),
                      std::runtime_error,
                      "APIJsonLoader::loadJsonExternalSerie(): " + refusal.reason);
  }
  EXPECT_EQ(reservoir->getInputSerie(SerieType::precipitation)->getMapOfJulianToValues(), values);
  EXPECT_EQ(databaseText(), before);
}

TEST_F(APIJsonLoaderTest, ARefusedCurveAnswerChangesNothing) {
  const std::vector<Refusal> refusals{
      {"nada", "the answer is not JSON"},
      {"{\"list\":[]}", "the list has no row"},
      {"{\"list\":[{\"cota\":1,\"area\":2}]}", "item 1 of the list has no \"volume\""},
      {"{\"list\":[{\"cota\":1,\"area\":2,\"volume\":null}]}",
       "\"volume\" of item 1 is not a number"},
      {"{\"list\":[{\"cota\":\"1e999\",\"area\":2,\"volume\":3}]}",
       "\"cota\" of item 1 is not a number"},
  };
  auto& storage = SQLStorage::getInstance().getStorageRef();
  const std::string before = databaseText();
  const auto table = reservoir->getReservoirInfo().cav;
  for (const auto& refusal : refusals) {
    SCOPED_TRACE(refusal.answer);
    EXPECT_THROW_TEXT(APIJsonLoader::loadJsonExternalCAV(storage, refusal.answer, *reservoir),
                      std::runtime_error,
                      "APIJsonLoader::loadJsonExternalCAV(): " + refusal.reason);
  }
  EXPECT_EQ(reservoir->getReservoirInfo().cav, table);
  EXPECT_EQ(databaseText(), before);
}

TEST_F(APIJsonLoaderTest, ADatabaseWithoutTheSeriesTypeIsNamed) {
  auto& storage = SQLStorage::getInstance().getStorageRef();
  storage.exec("DELETE FROM SerieType WHERE type = 'Evaporação'");
  EXPECT_THROW_TEXT(
      APIJsonLoader::loadJsonExternalSerie(storage,
                                           "{\"list\":[{\"data\":\"01-12-2001\",\"valor\":0.5}]}",
                                           *reservoir, SerieType::evaporation),
      std::runtime_error,
      "APIJsonLoader::loadJsonExternalSerie(): the database has no series type \"Evaporação\" "
      "in mm");
  EXPECT_EQ(reservoir->getInputSerie(SerieType::evaporation)->getValue(Date(2001, 12, 1)), -999.0);
}
