#include <gtest/gtest.h>

#include "core/ElementsFilter.h"
#include "core/LinkRuleSettings.h"
#include "operation/ExecutionMethodFactoryByType.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"
#include "support/RealisticNetwork.h"

using ProjectRoundTripTest = projectfile::ProjectFileTest;

namespace {

// Two reservoirs joined by a bidirectional canal that inverts by their storage bands, each with
// an outlet, run in yearly windows from March. As a draft, the rules of both reservoirs wait for
// the reservoirs they depend on: the first reservoir is element 0, and a rule without a
// dependency must not come back depending on it.
std::shared_ptr<Scenario> reservoirPair(unsigned int id, bool draft) {
  const Interval interval(Date(2001, 1, 1), Date(2004, 12, 1),
                          Vocabulary::of(Periodicity::monthly));
  auto method = ExecutionMethodFactoryByType::makeWindowed(interval);
  method->initializeYearsWindow(interval, 3, true);
  method->setYearCheckByIndex(1, false);
  method->setZeroContribution(true);
  NetworkBuilder net(interval);
  net.scenario = std::make_shared<RuleScenario>(method, id, interval, draft ? "Rascunho" : "Par");
  const auto reservoir = [&](double initVol, double inflow) {
    auto r = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    r->getReservoirInfo().cav = {{100, 0, 0}, {101, 2, 1}, {102, 5, 3}, {103, 9, 7}, {104, 14, 15}};
    r->getReservoirInfo().minVol = 1.0;
    r->getReservoirInfo().maxVol = 15.0;
    r->getReservoirInfo().initVol = initVol;
    r->getInputSerie(SerieType::naturalIncrementalFlow)->fill(inflow);
    r->getInputSerie(SerieType::evaporation)->fill(50.0);
    r->getInputSerie(SerieType::precipitation)->fill(20.0);
    return r;
  };
  auto a = reservoir(4.0, 0.5);
  auto b = reservoir(10.0, 2.0);
  auto canal = net.link(a, b, 1000.0, ElementType::artificialLink);
  auto outA = net.link(a, net.node(ElementType::drain));
  auto outB = net.link(b, net.node(ElementType::drain));
  canal->setIsBidirectional(true);
  canal->configureSenseInfo({{5.0, 15.0}, {5.0, 15.0}, {{0, 1}, {0, 0}}});
  const auto idOf = [](const std::shared_ptr<Element>& e) { return double(e->getId()); };
  net.allocation(a, {{idOf(a), idOf(canal), idOf(outA)}, {10, 10, 0}, {1000, 500, 500}});
  net.allocation(b, {{idOf(b), idOf(outB)}, {10, 10}, {1000, 990}});
  auto& manager = net.scenario->getSettingsManager();
  Scenario::getSettings<LinkRuleSettings>(canal, manager)->setValues({0, 10});

  auto byOne = std::make_shared<VolDepOneStaticReleaseRule>();
  byOne->setVectorOfVolDepOneReleaseStruct({{40, {0.5}}, {100, {1.0}}});
  auto byTwo = std::make_shared<VolDepTwoStaticReleaseRule>();
  byTwo->setVolDepTwoReleaseStruct({{50, 100}, {100}, {{{2.0}, {3.0}}}});
  if (draft) {
    byTwo->setReservoirDependency2(a);
  } else {
    byOne->setReservoirDependency(b);
    byTwo->setReservoirDependency(a, b);
  }
  Scenario::getSettings<ReservoirRuleSettings>(a, manager)->setRule(byOne);
  Scenario::getSettings<ReservoirRuleSettings>(b, manager)->setRule(byTwo);
  net.scenario->setDatabaseId(10 + id);
  return net.scenario;
}

// The São Francisco network with every element kind and every simulation rule, over ten years,
// with what the file keeps beside the network.
std::shared_ptr<Scenario> saoFrancisco() {
  RealisticNetwork network(
      Interval(Date(1931, 1, 1), Date(1940, 12, 1), Vocabulary::of(Periodicity::monthly)));
  const auto scenario = network.net.scenario;
  scenario->setName("São Francisco");
  scenario->setDatabaseId(5);
  scenario->addPathInfo("rio.shp", "/mapas/sf/rio.shp");
  scenario->addPathInfo("sedes.shp", "/mapas/sf/sedes.shp");
  scenario->setLabelElementsSelects({{"Reservatórios", {0, 1, 2, 3, 4}}, {"Foz", {17}}});
  scenario->setPumpingCostsConfiguration({1.25, 0.0, 3.5, -999.0});
  for (const auto& link : ElementsFilter::filterByLinks(scenario->getElements())) {
    if (auto natural = std::dynamic_pointer_cast<NaturalLink>(link)) {
      natural->setLateralContribution(link->getId() % 2 == 0);
    }
  }
  for (const auto& element : scenario->getElements()) element->setName("E" + element->getName());
  return scenario;
}

void setNonDefaultConfiguration() {
  ConfigurationHeader::setPrecision(2);
  ConfigurationHeader::setSaveResults(true);
  ConfigurationHeader::setUrlToWebService("kova.example.org");
  ConfigurationHeader::setUtmZone(23);
  ConfigurationHeader::setUtmHemisphere("Norte");
  ConfigurationHeader::setCoreReservoirColors({{1, 2, 3, 90.0}});
}

using Values = std::vector<std::pair<unsigned int, double>>;

Values valuesOf(const Serie& serie) {
  return Values(serie.getMapOfJulianToValues().begin(), serie.getMapOfJulianToValues().end());
}

void expectSameResults(const Scenario& original, const Scenario& loaded) {
  for (const auto& element : original.getElements()) {
    const auto& copy = loaded.getElement(element->getId());
    ASSERT_EQ(copy->getOutputSeries().size(), element->getOutputSeries().size());
    for (unsigned int window = 0; window < element->getOutputSeries().size(); ++window) {
      const auto series = element->getVectorOfSeries(window);
      const auto copies = copy->getVectorOfSeries(window);
      ASSERT_EQ(series.size(), copies.size());
      for (std::size_t i = 0; i < series.size(); ++i) {
        EXPECT_EQ(valuesOf(*copies[i]), valuesOf(*series[i]))
            << element->getName() << " " << series[i]->getName() << " window " << window;
      }
    }
  }
}

}  // namespace

TEST_F(ProjectRoundTripTest, SaveLoadSaveIsByteIdenticalAndRunsTheSame) {
  projectfile::TemporaryFolder folder;
  const std::vector<std::shared_ptr<Scenario>> originals = {saoFrancisco(), reservoirPair(2, false),
                                                            reservoirPair(3, true)};
  auto& manager = ScenarioManager::getInstance();
  for (unsigned int index = 0; index < originals.size(); ++index) {
    manager.addScenery(index, originals[index]);
  }
  setNonDefaultConfiguration();
  ASSERT_TRUE(JsonSaveBuilder::save(folder.file("first.sjson")));

  ConfigurationHeader::reset();
  manager.clear();
  const auto loaded = JsonProjectLoader::load(folder.file("first.sjson"));
  ASSERT_EQ(loaded.size(), originals.size());
  EXPECT_EQ(ConfigurationHeader::getUtmHemisphere(), "Norte");
  EXPECT_EQ(manager.getNextScenarioId(), 4u);
  for (unsigned int index = 0; index < loaded.size(); ++index)
    manager.addScenery(index, loaded[index]);
  ASSERT_TRUE(JsonSaveBuilder::save(folder.file("second.sjson")));
  EXPECT_EQ(projectfile::readFile(folder.file("second.sjson")),
            projectfile::readFile(folder.file("first.sjson")));

  // The draft cannot run: its rules lack their dependencies.
  for (std::size_t index = 0; index < 2; ++index) {
    SCOPED_TRACE(originals[index]->getName());
    projectfile::handOverSeries(*originals[index], *loaded[index]);
    ASSERT_TRUE(originals[index]->run(nullptr));
    ASSERT_TRUE(loaded[index]->run(nullptr));
    expectSameResults(*originals[index], *loaded[index]);
  }
}
