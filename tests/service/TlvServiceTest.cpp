#include <nlohmann/json.hpp>

#include "ServiceSupport.h"
#include "core/Demand.h"
#include "core/Scenario.h"
#include "project/database/LoadProject.h"
#include "reports/CSVWriteResults.h"
#include "service/ProjectSession.h"

using namespace servicetest;

namespace {

const std::string failureLine = "An error hapenned in the parse of json <<<<<<<<";

ServiceSettings defaults() { return ServiceSettings{}; }

ServiceSettings changesAllowed() {
  ServiceSettings settings;
  settings.allowChanges = true;
  return settings;
}

// The ids of the first element of kind ElementKind in the pristine project's scenario.
template <typename ElementKind>
unsigned int firstIdOf(const std::string& path) {
  const ProjectSession session(path, ProjectSession::Access::readOnly);
  for (const auto& element : session.scenario("Base")->getSortedElements()) {
    if (std::dynamic_pointer_cast<ElementKind>(element)) return element->getId();
  }
  return 0;
}

std::string serieRequest(unsigned int id) {
  return R"({"projname": "demo", "scenery": "Base", "elementid": )" + std::to_string(id) +
         R"(, "serietypename": "Demanda"})";
}

// The lines of a CSV text without the one that holds the time it was written.
std::string withoutTimeStamp(const std::string& csv) {
  std::istringstream in(csv);
  std::string kept, line;
  for (bool first = true; std::getline(in, line); first = false) {
    if (!first) kept += line + "\n";
  }
  return kept;
}

}  // namespace

TEST_F(ServiceTest, TheListNamesEveryProjectOfTheFolderTopWithItsScenarios) {
  LoopbackService service(folder, defaults(), 1);
  const Reply reply = exchange(service.port(), 2, "");
  ASSERT_TRUE(reply.received);
  EXPECT_EQ(reply.type, 3);
  EXPECT_EQ(reply.value, R"({ "projects": [{ "projname": "demo","sceneries": ["Base"] }] })");
}

TEST_F(ServiceTest, TheListOfAFolderWithoutProjectsIsEmpty) {
  LoopbackService service(folder, defaults(), 1);
  std::filesystem::remove(folder.file("demo.sjson"));
  const Reply reply = exchange(service.port(), 2, "{}");
  ASSERT_TRUE(reply.received);
  EXPECT_EQ(reply.value, R"({ "projects": [] })");
}

TEST_F(ServiceTest, TheNetworkGivesEveryNodeAndLinkWithTheCodeAndStoredCoordinates) {
  const std::string path = folder.file("expected.sjson");
  std::filesystem::copy(pristineProject().file("demo.sjson"), path);
  std::filesystem::copy(pristineProject().file("demo.sjson.sqlite"), path + ".sqlite");
  std::size_t demands = 0, links = 0, reservoirs = 0, junctions = 0;
  {
    const ProjectSession session(path, ProjectSession::Access::readOnly);
    for (const auto& element : session.scenario("Base")->getElements()) {
      demands += std::dynamic_pointer_cast<Demand>(element) != nullptr;
      links += std::dynamic_pointer_cast<Link>(element) != nullptr;
      reservoirs += element->getType() == ElementType::reservoir;
      junctions += element->getType() == ElementType::junction;
    }
  }
  LoopbackService service(folder, defaults(), 1);
  const Reply reply =
      exchange(service.port(), 4, R"({"code": "c7", "projname": "demo", "scenery": "Base"})");
  ASSERT_TRUE(reply.received);
  EXPECT_EQ(reply.type, 5);
  EXPECT_EQ(reply.value.rfind(R"({"code": "c7","demands": [{"Name": )", 0), 0u) << reply.value;
  const auto network = nlohmann::json::parse(reply.value);
  EXPECT_EQ(network["demands"].size(), demands);
  EXPECT_EQ(network["reservoirs"].size(), reservoirs);
  EXPECT_EQ(network["junctions"].size(), junctions);
  EXPECT_EQ(network["links"].size(), links);
  // The first reservoir was placed at x 10.5, y -8.25: lat is y and lon is x, unconverted.
  EXPECT_EQ(network["reservoirs"][0]["lat"], -8.25);
  EXPECT_EQ(network["reservoirs"][0]["lon"], 10.5);
  // The first link runs from the first reservoir to the second.
  EXPECT_EQ(network["links"][0]["sourceid"], network["reservoirs"][0]["id"]);
  EXPECT_EQ(network["links"][0]["destid"], network["reservoirs"][1]["id"]);
  EXPECT_NE(service.stop().find("Iniciando envio de rede JSON montada."), std::string::npos);
}

TEST_F(ServiceTest, TheSeriesIsTheDemandOfTheElementWithFixedDecimals) {
  LoopbackService service(folder, defaults(), 1);
  const unsigned int supply = firstIdOf<HumanDemand>(folder.file("demo.sjson"));
  const Reply reply = exchange(service.port(), 6, serieRequest(supply));
  ASSERT_TRUE(reply.received);
  EXPECT_EQ(reply.type, 7);
  // The supply demand holds 26.4 m³/s in each month of 1931.
  std::string values;
  for (int month = 1; month <= 12; ++month) {
    char date[16];
    std::snprintf(date, sizeof(date), "1931-%02d-01", month);
    values +=
        (month > 1 ? "," : "") + std::string(R"({"date":")") + date + R"(","value":26.400000})";
  }
  EXPECT_EQ(reply.value, R"({"type": "Demanda","unit": "m³/s","interval":{"begin": )"
                         R"("1931-01-01","end":"1931-12-01"},"values":[)" +
                             values + "]}");
}

TEST_F(ServiceTest, AChangeIsStoredAndRepliedNoneWhenTheHostAllowsIt) {
  LoopbackService service(folder, changesAllowed(), 2);
  const unsigned int supply = firstIdOf<HumanDemand>(folder.file("demo.sjson"));
  const std::string change =
      R"({"projname": "demo", "scenery": "Base", "elementid": ")" + std::to_string(supply) +
      R"(", "serietypename": "Demanda", "serie": {"values": [{"date": "1931-03-01", "value": 12.5}]}})";
  const Reply reply = exchange(service.port(), 8, change);
  ASSERT_TRUE(reply.received);
  EXPECT_EQ(reply.type, 9);
  EXPECT_EQ(reply.value, "none");
  const Reply after = exchange(service.port(), 6, serieRequest(supply));
  EXPECT_NE(after.value.find(R"({"date":"1931-03-01","value":12.500000})"), std::string::npos);
  EXPECT_NE(after.value.find(R"({"date":"1931-04-01","value":26.400000})"), std::string::npos);
  const std::string console = service.stop();
  EXPECT_NE(console.find("Antes: 26.400000\n"), std::string::npos);
  EXPECT_NE(console.find("Depois: 12.500000\n"), std::string::npos);
  // The copy under personalized/ is another project and keeps its value.
  const ProjectSession session((folder.root() / "personalized/c7/demo.sjson").string(),
                               ProjectSession::Access::readOnly);
  EXPECT_EQ(session.scenario("Base")
                ->getElement(supply)
                ->getInputSerie(SerieType::demand)
                ->getValue(Date(1931, 3, 1)),
            26.4);
}

TEST_F(ServiceTest, AChangeIsRefusedWithoutTheHostsLeaveAndTheFilesStayAsTheyWere) {
  LoopbackService service(folder, defaults(), 1);
  const auto before = snapshot(folder.root());
  const Reply reply = exchange(
      service.port(), 8,
      R"({"projname": "demo", "scenery": "Base", "elementid": 1, "serietypename": "Demanda", )"
      R"("serie": {"values": [{"date": "1931-03-01", "value": 12.5}]}})");
  EXPECT_FALSE(reply.received);
  EXPECT_NE(service.stop().find(failureLine + "\nRequestModifySerieOfElementRequestProcessor: "
                                              "changes are not enabled on this service"),
            std::string::npos);
  EXPECT_EQ(snapshot(folder.root()), before);
}

TEST_F(ServiceTest, AFailedChangeLeavesTheProjectFilesByteIdentical) {
  LoopbackService service(folder, changesAllowed(), 1);
  const unsigned int supply = firstIdOf<HumanDemand>(folder.file("demo.sjson"));
  const auto before = snapshot(folder.root());
  const std::string prefix = R"({"projname": "demo", "scenery": "Base", "elementid": )" +
                             std::to_string(supply) +
                             R"(, "serietypename": "Demanda", "serie": {"values": [)";
  for (const std::string values :
       {R"({"date": "1931-03-01", "value": 1}, {"date": "1940-01-01", "value": 2})",
        R"({"date": "1931-03-01", "value": 1}, {"date": "31/03/1931", "value": 2})",
        R"({"date": "1931-03-01", "value": "x"})", R"({"value": 3})"}) {
    SCOPED_TRACE(values);
    EXPECT_FALSE(exchange(service.port(), 8, prefix + values + "]}}").received);
    EXPECT_EQ(snapshot(folder.root()), before);
  }
}

TEST_F(ServiceTest, TheProjectArchiveHoldsTheProjectFileAndItsDatabase) {
  LoopbackService service(folder, defaults(), 1);
  for (const std::string& request : {std::string(R"({"projname": "demo"})"),
                                     std::string(R"({"projname": "demo", "code": "c7"})")}) {
    SCOPED_TRACE(request);
    const Reply reply = exchange(service.port(), 10, request);
    ASSERT_TRUE(reply.received);
    EXPECT_EQ(reply.type, 11);
    const auto entries = unzipEntries(reply.value, folder);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries.at("demo.sjson"), bytesOf(pristineProject().file("demo.sjson")));
    EXPECT_EQ(entries.at("demo.sjson.sqlite"),
              bytesOf(pristineProject().file("demo.sjson.sqlite")));
  }
}

TEST_F(ServiceTest, ConcurrentArchiveRequestsEachGetTheirOwnWholeArchive) {
  LoopbackService service(folder, defaults(), 4);
  std::vector<Reply> replies(8);
  std::vector<std::thread> clients;
  for (auto& reply : replies) {
    clients.emplace_back(
        [&reply, &service] { reply = exchange(service.port(), 10, R"({"projname": "demo"})"); });
  }
  for (auto& client : clients) client.join();
  for (const auto& reply : replies) {
    ASSERT_TRUE(reply.received);
    const auto entries = unzipEntries(reply.value, folder);
    EXPECT_EQ(entries.at("demo.sjson.sqlite"),
              bytesOf(pristineProject().file("demo.sjson.sqlite")));
  }
}

TEST_F(ServiceTest, TheResultsArchiveHoldsTheCsvFilesOfTheStoredRun) {
  const std::string path = folder.file("expected.sjson");
  std::filesystem::copy(pristineProject().file("demo.sjson"), path);
  std::filesystem::copy(pristineProject().file("demo.sjson.sqlite"), path + ".sqlite");
  std::map<std::string, std::string> expected;
  {
    const ProjectSession session(path, ProjectSession::Access::readOnly);
    const auto scenario = session.scenario("Base");
    ASSERT_TRUE(session.loadLatestResults(scenario));
    const auto written = folder.root() / "written";
    for (const auto& file : CSVWriteResults::writeScenarios({scenario}, written)) {
      expected[std::filesystem::relative(file, written).generic_string()] =
          withoutTimeStamp(bytesOf(file));
    }
  }
  std::filesystem::remove_all(folder.root() / "written");
  std::filesystem::remove(path);
  std::filesystem::remove(path + ".sqlite");
  ASSERT_FALSE(expected.empty());

  LoopbackService service(folder, defaults(), 1);
  const auto before = snapshot(folder.root());
  const Reply reply = exchange(service.port(), 0, R"({"projname": "demo", "sceneries": ["Base"]})");
  ASSERT_TRUE(reply.received);
  EXPECT_EQ(reply.type, 1);
  std::map<std::string, std::string> got;
  for (const auto& [name, bytes] : unzipEntries(reply.value, folder)) {
    got[name] = withoutTimeStamp(bytes);
  }
  EXPECT_EQ(got, expected);
  // Nothing is written beside the project.
  EXPECT_EQ(snapshot(folder.root()), before);
}

TEST_F(ServiceTest, AnUnknownScenarioGivesNoReplyAndTheServiceGoesOn) {
  LoopbackService service(folder, defaults(), 1);
  EXPECT_FALSE(
      exchange(service.port(), 0, R"({"projname": "demo", "sceneries": ["Nenhum"]})").received);
  EXPECT_FALSE(
      exchange(service.port(), 4, R"({"projname": "demo", "scenery": "Nenhum"})").received);
  EXPECT_TRUE(exchange(service.port(), 2, "").received);
  EXPECT_NE(service.stop().find(failureLine + "\nProjectSession: no scenario named \"Nenhum\""),
            std::string::npos);
}

TEST_F(ServiceTest, AReplyTypeSentAsARequestIsAnsweredWithNothing) {
  LoopbackService service(folder, defaults(), 1);
  for (int type : {1, 3, 5, 7, 9, 11}) {
    SCOPED_TRACE(type);
    EXPECT_FALSE(exchange(service.port(), type, R"({"projname": "demo"})").received);
  }
  EXPECT_TRUE(exchange(service.port(), 2, "").received);
}
