// Simulates the middle São Francisco by operating rules over 1931-2019, month by month: Três
// Marias releases a constant flow into the river down to Sobradinho, which releases the standard
// minimum to the lower river and supplies the firm withdrawal of the transfer canal. Prints, for
// each year, the storage at the end of December, Sobradinho's spill and the canal's supply.
//
// Usage: kova-example [data folder]   (defaults to the example data of the source tree)
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "checks/SceneryCheck.h"
#include "common/PeriodWalker.h"
#include "common/StringUtils.h"
#include "core/ElementFactory.h"
#include "core/LinkFactory.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "operation/ExecutionContinuous.h"
#include "rules/ConstReleaseRule.h"
#include "scenario/RuleScenario.h"
#include "scenario/ScenarioManager.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Table = std::vector<std::vector<std::string>>;

// Rows of a comma-separated file without its header.
Table readCsv(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot open " + path);
  Table rows;
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    if (!StringUtils::trim(line).empty()) rows.push_back(StringUtils::split(line, ','));
  }
  return rows;
}

std::size_t column(const std::string& path, const std::string& name) {
  std::ifstream file(path);
  std::string header;
  std::getline(file, header);
  const auto names = StringUtils::split(StringUtils::trim(header), ',');
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i] == name) return i;
  }
  throw std::runtime_error("no column " + name + " in " + path);
}

struct Site {
  std::string inflowColumn, evaporationColumn, cavFile;
  double minVol, maxVol, initVol, release;  // hm³, hm³, hm³, m³/s
};

std::shared_ptr<Reservoir> addReservoir(Scenario& scenario, const std::string& folder,
                                        const std::string& name, const Site& site) {
  auto reservoir = std::static_pointer_cast<Reservoir>(ElementFactory::make(ElementType::reservoir));
  scenario.addElement(reservoir, false);
  reservoir->setName(name);
  ReservoirInfo& info = reservoir->getReservoirInfo();
  // The tables start at the minimum volume; the empty lake is the first row a table needs.
  const Table cav = readCsv(folder + "/" + site.cavFile);
  info.cav.push_back({std::stod(cav[0][0]), 0.0, 0.0});
  for (const auto& row : cav) info.cav.push_back({std::stod(row[0]), std::stod(row[1]), std::stod(row[2])});
  info.minVol = site.minVol;
  info.maxVol = site.maxVol;
  info.initVol = site.initVol;

  const std::string inflowFile = folder + "/sf_natural_inflow_monthly_m3s.csv";
  const std::size_t inflow = column(inflowFile, site.inflowColumn);
  for (const auto& row : readCsv(inflowFile)) {
    const Date month = Date::fromString(row[0] + "-01", "%Y-%m-%d");
    reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->setValue(month, std::stod(row[inflow]));
  }
  const std::string evaporationFile = folder + "/sf_net_evaporation_monthly_mm.csv";
  std::map<unsigned int, double> netEvaporation;
  const std::size_t evaporation = column(evaporationFile, site.evaporationColumn);
  for (const auto& row : readCsv(evaporationFile)) {
    netEvaporation[std::stoul(row[0])] = std::stod(row[evaporation]);
  }
  // Net evaporation below zero is a net gain of the lake: it enters as rain.
  PeriodWalker::forEach(scenario.getInterval(), [&](const Date& date) {
    const double net = netEvaporation.at(date.getMonth());
    reservoir->getInputSerie(SerieType::evaporation)->setValue(date, std::max(net, 0.0));
    reservoir->getInputSerie(SerieType::precipitation)->setValue(date, std::max(-net, 0.0));
  });

  auto rule = std::make_shared<ConstReleaseRule>();
  rule->setRelease(site.release);
  Scenario::getSettings<ReservoirRuleSettings>(reservoir, scenario.getSettingsManager())->setRule(rule);
  return reservoir;
}

template <typename LinkType>
std::shared_ptr<Link> addLink(Scenario& scenario, const std::shared_ptr<Node>& up,
                              const std::shared_ptr<Node>& down) {
  auto link = LinkFactory<LinkType>::make(up, down, up->getName() + " - " + down->getName(),
                                          Vocabulary::of(LinkAddonType::none));
  scenario.addElement(link, false);
  link->getInputSerie(SerieType::transitLossPercentage)->fill(0.0);
  link->getInputSerie(SerieType::linkLimit)->fill(99999.0);
  return link;
}

// The node's release goes out by the links in the proportions of the given flows (m³/s): one
// line of the allocation matrix, whose total is their sum.
void share(Scenario& scenario, const std::shared_ptr<Node>& node,
           const std::vector<std::pair<std::shared_ptr<Link>, double>>& flows) {
  std::vector<std::vector<double>> matrix = {{double(node->getId())}, {0.0}};
  for (const auto& [link, flow] : flows) {
    matrix[0].push_back(link->getId());
    matrix[1].push_back(flow);
    matrix[1][0] += flow;
  }
  std::static_pointer_cast<RuleSettings>(scenario.getSettingsManager().getSettings(node->getId()))
      ->setAllocationByMatrixOfDouble(matrix);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string folder = argc > 1 ? argv[1] : KOVA_EXAMPLE_DATA;
  try {
    const Interval period(Date(1931, 1, 1), Date(2019, 12, 1), Vocabulary::of(Periodicity::monthly));
    auto scenario =
        std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 0, period, "Exemplo");
    auto tresMarias = addReservoir(*scenario, folder, "Três Marias",
                                   {"tres_marias_156", "tres_marias", "cav_tres_marias.csv", 4250.0,
                                    19528.0, 15000.0, 500.0});
    auto sobradinho = addReservoir(*scenario, folder, "Sobradinho",
                                   {"sobradinho_incremental_168", "sobradinho", "cav_sobradinho.csv",
                                    5447.0, 34116.0, 25000.0, 1326.4});
    auto canal = std::static_pointer_cast<Node>(ElementFactory::make(ElementType::humanDemand));
    scenario->addElement(canal, false);
    canal->setName("Transposição");
    canal->getInputSerie(SerieType::demand)->fill(26.4, period);
    auto mouth = std::static_pointer_cast<Node>(ElementFactory::make(ElementType::drain));
    scenario->addElement(mouth, false);
    mouth->setName("Foz");

    auto river = addLink<NaturalLink>(*scenario, tresMarias, sobradinho);
    auto lowerRiver = addLink<NaturalLink>(*scenario, sobradinho, mouth);
    auto intake = addLink<ArtificialLink>(*scenario, sobradinho, canal);
    share(*scenario, tresMarias, {{river, 500.0}});
    share(*scenario, sobradinho, {{lowerRiver, 1300.0}, {intake, 26.4}});

    ScenarioManager& manager = ScenarioManager::getInstance();
    manager.addScenery(0, scenario);
    manager.executeScenery(0, nullptr, nullptr);
    std::printf("%s\n\n", scenario->getSceneryStatus().getName().c_str());
    if (scenario->getSceneryStatus().getType() != SceneryStatus::success) {
      for (const auto& finding : scenario->getSceneryCheck()->getAllErrors()) {
        std::printf("%s: %s\n", finding.elementName.c_str(), finding.message.c_str());
      }
      return 1;
    }

    std::printf("%-6s %18s %18s %20s %18s\n", "ano", "Três Marias (hm³)", "Sobradinho (hm³)",
                "vertido médio (m³/s)", "transposição (%)");
    for (unsigned int year = 1931; year <= 2019; ++year) {
      double spill = 0.0, attended = 0.0;
      for (unsigned int month = 1; month <= 12; ++month) {
        const Date date(year, month, 1);
        spill += sobradinho->getOutputSerie(SerieType::spilledFlow, 0)->getValue(date) / 12.0;
        attended += canal->getOutputSerie(SerieType::attendedDemandPercentage, 0)->getValue(date) / 12.0;
      }
      const Date december(year, 12, 1);
      std::printf("%-6u %18.1f %18.1f %20.1f %18.1f\n", year,
                  tresMarias->getOutputSerie(SerieType::finalVolume, 0)->getValue(december),
                  sobradinho->getOutputSerie(SerieType::finalVolume, 0)->getValue(december), spill,
                  attended);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "kova-example: %s\n", error.what());
    return 2;
  }
  return 0;
}
