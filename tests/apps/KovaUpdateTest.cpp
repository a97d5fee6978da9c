#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "DemoCopy.h"
#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "service/http/LocalHttpServer.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

// Points the project's web service at server.
void useService(const std::string& project, const LocalHttpServer& server) {
  nlohmann::json file = nlohmann::json::parse(readFile(project));
  file["project"]["configuration"]["saveUrlToWebService"] = "127.0.0.1";
  file["project"]["configuration"]["saveUrlPortToWebService"] = server.port();
  writeFile(project, file.dump());
}

std::string answer(const std::string& status, const std::string& body) {
  return status + "\r\nContent-Type: application/json\r\nContent-Length: " +
         std::to_string(body.size()) + "\r\n\r\n" + body;
}

}  // namespace

TEST(KovaUpdate, ATableFromTheConfiguredServiceReplacesTheReservoirsAndIsStored) {
  TemporaryFolder folder("kova_update_");
  const std::string project = copyOfDemo(folder);
  LocalHttpServer server(answer("HTTP/1.1 200 OK",
                                "{\"list\":[{\"cota\":380,\"area\":0,\"volume\":0},"
                                "{\"cota\":390,\"area\":1000,\"volume\":20000},"
                                "{\"cota\":395,\"area\":4000,\"volume\":40000}]}"));
  useService(project, server);
  const auto update = kova(
      {"update", project, "--scenario", "Regras", "--reservoir", "Sobradinho", "--cav"});
  ASSERT_EQ(update.status, exitOk) << update.err;
  EXPECT_EQ(update.out, "Sobradinho: level-area-volume table replaced by 3 row(s)\n");
  ASSERT_EQ(server.requests().size(), 1u);
  EXPECT_EQ(server.requests().front().rfind("GET /api/cavs?reservatorio_id=0 HTTP/1.1", 0), 0u);

  const auto exported = kova({"export", "cav", project, "--scenario", "Regras", "--out",
                              folder.file("cav"), "--quiet"});
  ASSERT_EQ(exported.status, exitOk) << exported.err;
  const std::string table = readFile(folder.file("cav/Regras_cav.txt"));
  EXPECT_NE(table.find("395"), std::string::npos) << table;
  EXPECT_NE(table.find("40000"), std::string::npos) << table;
}

TEST(KovaUpdate, ABadRequestAnswerUpdatesNothingAndSaysSo) {
  TemporaryFolder folder("kova_update_");
  const std::string project = copyOfDemo(folder);
  LocalHttpServer server("HTTP/1.1 400 Bad request\r\nContent-Length: 0\r\n\r\n");
  useService(project, server);
  const std::string before = readFile(project + ".sqlite");
  const auto update = kova(
      {"update", project, "--scenario", "Regras", "--reservoir", "Sobradinho", "--series"});
  EXPECT_EQ(update.status, exitFindings) << update.err;
  EXPECT_NE(update.out.find("Sobradinho: the web service has no"), std::string::npos) << update.out;
  EXPECT_EQ(readFile(project + ".sqlite"), before);
}
