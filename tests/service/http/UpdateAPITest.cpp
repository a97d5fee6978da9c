#include <gtest/gtest.h>

#include "core/ConfigurationHeader.h"
#include "service/http/LocalHttpServer.h"
#include "service/http/UpdateCAVAPI.h"
#include "service/http/UpdateSerieAPI.h"
#include "service/http/UpdateTestProject.h"
#include "support/ExpectThrow.h"

using httptest::answer;

namespace {

class UpdateAPITest : public httptest::UpdateTest {
 protected:
  // The configuration names the server as the web service.
  void useService(const LocalHttpServer& server) {
    ConfigurationHeader::setUrlToWebService("127.0.0.1");
    ConfigurationHeader::setUrlPortToWebService(server.port());
  }

  // Bounds small enough for a test to see a silent or slow server out.
  static HttpLimits quickLimits() {
    HttpLimits limits;
    limits.timeoutMilliseconds = 300;
    return limits;
  }
};

const std::string kAccept =
    "text/html,application/xhtml+xml,application/xml;q=0.9,application/json,*/*;q=0.8";

}  // namespace

TEST_F(UpdateAPITest, ASeriesAnswerIsStoredInTheProjectDatabase) {
  // The content begins with a byte-order mark, which is not JSON.
  LocalHttpServer server(answer("HTTP/1.1 200 OK",
                                "\xEF\xBB\xBF{\"list\":[{\"data\":\"01-03-2001\",\"valor\":12.5},"
                                "{\"data\":\"01-04-2001\",\"valor\":\"7.25\"},"
                                "{\"data\":\"01-05-2001\",\"valor\":null}]}"));
  useService(server);
  UpdateSerieAPI update(reservoir, scenario, SerieType::precipitation);
  ASSERT_TRUE(update.update());

  ASSERT_EQ(server.requests().size(), 1u);
  EXPECT_EQ(server.requests().front(),
            "GET /api/series?variavel=precipitacao&reservatorio_id=1234&variacao=Mensal"
            "&datainicial=01-01-2001&datafinal=01-12-2001 HTTP/1.1\r\n"
            "Host: 127.0.0.1:" +
                std::to_string(server.port()) +
                "\r\n"
                "Connection: keep-alive\r\n"
                "Cache-Control: max-age=0\r\n"
                "Content-Type: application/json; charset=utf-8\r\n"
                "Keep-Alive: timeout=5, max=100\r\n"
                "Accept: " +
                kAccept + "\r\n\r\n");
  const std::vector<std::pair<Date, double>> read{
      {Date(2001, 3, 1), 12.5}, {Date(2001, 4, 1), 7.25}, {Date(2001, 5, 1), -999.0}};
  EXPECT_EQ(update.getVecOfPairOfDateValue(), read);

  const auto stored = reservoirReadBack();
  ASSERT_NE(stored, nullptr);
  const auto& precipitation = *stored->getInputSerie(SerieType::precipitation);
  EXPECT_EQ(precipitation.getValue(Date(2001, 3, 1)), 12.5);
  EXPECT_EQ(precipitation.getValue(Date(2001, 4, 1)), 7.25);
  EXPECT_EQ(precipitation.getValue(Date(2001, 5, 1)), -999.0);
  EXPECT_EQ(precipitation.getValue(Date(2001, 1, 1)), 1.0);
  EXPECT_EQ(precipitation.getValue(Date(2001, 12, 1)), 1.0);
  EXPECT_EQ(precipitation.size(), 12u);
}

TEST_F(UpdateAPITest, ACurveAnswerReplacesTheStoredTable) {
  LocalHttpServer server(answer("HTTP/1.1 200 OK",
                                "{\"list\":[{\"cota\":400,\"area\":0,\"volume\":0},"
                                "{\"cota\":405.5,\"area\":3.25,\"volume\":10.5},"
                                "{\"cota\":\"412\",\"area\":9,\"volume\":48.75}]}"));
  useService(server);
  UpdateCAVAPI update(reservoir, scenario);
  ASSERT_TRUE(update.update());
  EXPECT_EQ(update.getRowsStored(), 3u);
  ASSERT_EQ(server.requests().size(), 1u);
  EXPECT_EQ(server.requests().front().substr(0, 43), "GET /api/cavs?reservatorio_id=1234 HTTP/1.1");

  const std::vector<std::vector<double>> table{
      {400.0, 0.0, 0.0}, {405.5, 3.25, 10.5}, {412.0, 9.0, 48.75}};
  EXPECT_EQ(reservoir->getReservoirInfo().cav, table);
  const auto stored = reservoirReadBack();
  ASSERT_NE(stored, nullptr);
  EXPECT_EQ(stored->getReservoirInfo().cav, table);
}

TEST_F(UpdateAPITest, ABadRequestAnswerIsNoUpdate) {
  LocalHttpServer server("HTTP/1.1 400 Bad request\r\nContent-Length: 0\r\n\r\n");
  useService(server);
  const std::string before = databaseText();
  UpdateSerieAPI series(reservoir, scenario, SerieType::evaporation);
  EXPECT_FALSE(series.update());
  EXPECT_TRUE(series.getVecOfPairOfDateValue().empty());
  UpdateCAVAPI curve(reservoir, scenario);
  EXPECT_FALSE(curve.update());
  EXPECT_EQ(curve.getRowsStored(), 0u);
  EXPECT_EQ(server.requests().size(), 2u);
  EXPECT_EQ(databaseText(), before);
  EXPECT_EQ(reservoir->getReservoirInfo().cav.size(), 2u);
}

TEST_F(UpdateAPITest, AnotherStatusIsTheServiceDecliningTheRequest) {
  LocalHttpServer server(answer("HTTP/1.1 503 Service Unavailable", "{\"list\":[]}"));
  useService(server);
  const std::string before = databaseText();
  UpdateCAVAPI update(reservoir, scenario);
  EXPECT_THROW_TEXT(update.update(), std::runtime_error, "Error - Connection Declined");
  EXPECT_EQ(databaseText(), before);
}

TEST_F(UpdateAPITest, AServerThatNeverAnswersEndsWithItsText) {
  LocalHttpServer server("", LocalHttpServer::Manner::silent);
  useService(server);
  UpdateSerieAPI update(reservoir, scenario, SerieType::precipitation);
  update.setLimits(quickLimits());
  EXPECT_THROW_TEXT(update.update(), std::runtime_error, "Error: recv HTTP data.");
}

TEST_F(UpdateAPITest, AServerThatTricklesItsHeaderEndsWithinTheTimeLimit) {
  // 1 byte every 20 ms: the 4000 bytes of this header would take over a minute.
  LocalHttpServer server("HTTP/1.1 200 OK\r\nX-Padding: " + std::string(4000, 'x') + "\r\n\r\n",
                         LocalHttpServer::Manner::trickle);
  useService(server);
  UpdateSerieAPI update(reservoir, scenario, SerieType::precipitation);
  update.setLimits(quickLimits());
  EXPECT_THROW_TEXT(update.update(), std::runtime_error, "Error: recv HTTP data.");
}

TEST_F(UpdateAPITest, AServerThatAnnouncesAHugeContentEndsWithItsText) {
  // The default bound of 64 MiB refuses 99,999,999,999 bytes before reading or allocating.
  LocalHttpServer server("HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\n{\"list\":[");
  useService(server);
  const std::string before = databaseText();
  UpdateSerieAPI update(reservoir, scenario, SerieType::naturalIncrementalFlow);
  EXPECT_THROW_TEXT(update.update(), std::runtime_error, "Error in recv HTTP content");
  EXPECT_EQ(databaseText(), before);
}

TEST_F(UpdateAPITest, AServiceThatIsNotThereIsAFailedConnection) {
  unsigned int port = 0;
  {
    LocalHttpServer gone("");
    port = gone.port();
  }
  ConfigurationHeader::setUrlToWebService("127.0.0.1");
  ConfigurationHeader::setUrlPortToWebService(port);
  UpdateCAVAPI update(reservoir, scenario);
  EXPECT_THROW_TEXT(update.update(), std::runtime_error, "Error: connect to server.");
  // 65536 + 80 would reach port 80 if it were taken modulo 65536.
  for (const unsigned int outside : {0u, 65616u}) {
    ConfigurationHeader::setUrlPortToWebService(outside);
    EXPECT_THROW_TEXT(update.update(), std::runtime_error, "Error: invalid socket.");
  }
}

TEST_F(UpdateAPITest, OnlyAReservoirWithAnInstitutionalIdAndAKnownSeriesIsAsked) {
  EXPECT_THROW_TEXT(UpdateSerieAPI(demand, scenario, SerieType::precipitation).update(),
                    std::invalid_argument,
                    "UpdateSerieAPI::update(): the element is not a reservoir");
  reservoir->setInstitutionalIDs({});
  EXPECT_THROW_TEXT(UpdateCAVAPI(reservoir, scenario).update(), std::invalid_argument,
                    "UpdateCAVAPI::update(): reservoir \"Açude Novo\" has no institutional id");
  reservoir->setInstitutionalIDs({{7, "ANA"}});
  EXPECT_THROW_TEXT(UpdateSerieAPI(reservoir, scenario, SerieType::targetVolume).makeJsonRequest(),
                    std::invalid_argument, "UpdateSerieApi::getWSToSerieType:: invalid SerieType");
}

TEST(UpdateSerieAPITest, TheServiceHasOnlyInputSeriesOfReservoirs) {
  for (const SerieType kind : UpdateSerieAPI::getServiceSerieTypes()) {
    EXPECT_TRUE(Vocabulary::inputSerieTypes().count(kind));
    EXPECT_FALSE(UpdateSerieAPI::getWSToSerieType(kind).empty());
  }
  for (const SerieType kind : {SerieType::demand, SerieType::finalVolume}) {
    EXPECT_THROW_TEXT(UpdateSerieAPI::getWSToSerieType(kind), std::invalid_argument,
                      "UpdateSerieApi::getWSToSerieType:: invalid SerieType");
  }
}
