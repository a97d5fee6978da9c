#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/ConfigurationHeader.h"
#include "reports/GeneralSceneryReport.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"
#include "support/TemporaryFolder.h"

TEST(GeneralSceneryReport, CountsAndVolumesOfTheEnabledNetwork) {
  ConfigurationHeader::reset();  // five decimals
  // January to March 2001: 31 + 28 + 31 = 90 days, so 1 m³/s all along is 7.776 hm³.
  NetworkBuilder net(
      Interval(Date(2001, 1, 1), Date(2001, 3, 1), Vocabulary::of(Periodicity::monthly)));
  const auto reservoir = [&](double initVol, double minVol) {
    auto created = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    created->getReservoirInfo().initVol = initVol;
    created->getReservoirInfo().minVol = minVol;
    return created;
  };
  const auto demand = [&](ElementType type, double flow) {
    auto created = net.node(type);
    created->getInputSerie(SerieType::demand)->fill(flow);
    return created;
  };
  auto upper = reservoir(50.0, 10.0);
  auto lower = reservoir(5.0, 8.0);  // starts below its minimum: no useful volume
  auto junction = net.node(ElementType::junction);
  net.link(upper, junction);
  net.link(lower, junction, 1000.0, ElementType::artificialLink);
  auto city = demand(ElementType::humanDemand, 1.0);
  demand(ElementType::humanDemand, 2.0);
  demand(ElementType::humanDemand, 4.0)->setEnabled(false);
  demand(ElementType::animalDemand, 0.5);
  demand(ElementType::irrigationDemand, 10.0);
  net.link(junction, city);
  net.node(ElementType::drain);

  const std::vector<std::string> expected = {
      "Número de reservatórios: 2",
      "Número de junções: 1",
      "Valor total de volume útil inicial dos reservatórios (hm³): 40.00000",
      "Número de demandas humanas: 2",
      "Volume total requerido pelas demandas humanas (hm³): 23.32800",  // 3 * 7.776
      "Número de demandas animais: 1",
      "Volume total requerido pelas demandas animais (hm³): 3.88800",
      "Número de demandas industriais: 0",
      "Volume total requerido pelas demandas industriais (hm³): 0.00000",
      "Número de demandas de irrigação: 1",
      "Volume total requerido pelas demandas de irrigação (hm³): 77.76000",
      "Número de drenos: 1",
      "Número de demandas: 4",
      "Volume total requerido pelas demandas (hm³): 104.97600",  // 13.5 * 7.776
      "Número de trechos naturais: 2",
      "Número de trechos artificiais: 1",
      "Número de trechos: 3",
  };
  EXPECT_EQ(GeneralSceneryReport::makeLines(*net.scenario), expected);

  const TemporaryFolder folder("kova_report_");
  const std::filesystem::path path = folder.file("relatorio.txt");
  GeneralSceneryReport::make(path, net.scenario);
  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  EXPECT_EQ(lines, expected);
  EXPECT_THROW_TEXT(GeneralSceneryReport::make(path / "inside-a-file", net.scenario),
                    std::runtime_error, "GeneralSceneryReport::make(): erro ao abrir arquivo");
}
