#pragma once

#include <memory>
#include <string>

#include "core/Reservoir.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/LoadProject.h"
#include "project/database/SaveProject.h"
#include "support/NetworkBuilder.h"

namespace httptest {

// The answer of a web service with content, its length counted in bytes.
inline std::string answer(const std::string& status, const std::string& content) {
  return status +
         "\r\nContent-Type: application/json\r\nContent-Length: " + std::to_string(content.size()) +
         "\r\n\r\n" + content;
}

// A saved project of one monthly year, 2001, with a reservoir known to the service as 1234 and a
// demand below it. Its database is the open one.
class UpdateTest : public databasetest::DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    NetworkBuilder net(NetworkBuilder::monthly(2001, 2001));
    reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    reservoir->setName("Açude Novo");
    reservoir->setInstitutionalIDs({{1234, "ANA"}});
    reservoir->getReservoirInfo().cav = {{400.0, 0.0, 0.0}, {410.0, 5.0, 20.0}};
    reservoir->getInputSerie(SerieType::precipitation)->fill(1.0);
    demand = net.node(ElementType::humanDemand);
    demand->setName("Cidade");
    net.link(reservoir, demand);
    scenario = net.scenario;
    ScenarioManager::getInstance().addScenery(0, scenario);
    path = folder.file("acude.sjson");
    ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  }

  // The project's reservoir as the files give it back.
  std::shared_ptr<Reservoir> reservoirReadBack() {
    ScenarioManager::getInstance().clear();
    SQLStorage::deleteInstance();
    loaded = LoadProject::load(path, nullptr);
    for (const auto& element : loaded.front()->getElements()) {
      if (element->getName() == reservoir->getName()) {
        return std::dynamic_pointer_cast<Reservoir>(element);
      }
    }
    return nullptr;
  }

  std::string databaseText() const { return databasetest::contentOf(path + ".sqlite"); }

  std::shared_ptr<Scenario> scenario;
  std::shared_ptr<Reservoir> reservoir;
  std::shared_ptr<Node> demand;
  std::string path;
  std::vector<std::shared_ptr<Scenario>> loaded;
};

}  // namespace httptest
