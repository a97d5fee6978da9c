#include "reports/GeneralSceneryReport.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "common/StringUtils.h"
#include "core/ConfigurationHeader.h"
#include "core/ElementSets.h"
#include "core/Reservoir.h"
#include "hydrology/HydrologicalBalance.h"

namespace {

using Types = std::set<ElementType>;

// One line of the report: its label and how its value is written.
struct Item {
  std::string label;
  std::function<std::string(const Scenario&)> value;
};

std::string countOf(const Scenario& scenario, const Types& types) {
  return std::to_string(GeneralSceneryReport::countElements(scenario, types));
}

std::string volume(double hm3) {
  return StringUtils::floatingToStdString(hm3,
                                          static_cast<int>(ConfigurationHeader::getPrecision()));
}

Item count(const std::string& label, const Types& types) {
  return {label, [types](const Scenario& scenario) { return countOf(scenario, types); }};
}

Item demandVolume(const std::string& label, const Types& types) {
  return {label + " (hm³)", [types](const Scenario& scenario) {
            return volume(GeneralSceneryReport::getTotalDemandVolume(scenario, types));
          }};
}

const std::vector<Item>& items() {
  using E = ElementType;
  static const std::vector<Item> list = {
      count("Número de reservatórios", ElementSets::reservoir()),
      count("Número de junções", ElementSets::junction()),
      {"Valor total de volume útil inicial dos reservatórios (hm³)",
       [](const Scenario& scenario) {
         return volume(GeneralSceneryReport::getTotalInitialUtilVolume(scenario));
       }},
      count("Número de demandas humanas", {E::humanDemand}),
      demandVolume("Volume total requerido pelas demandas humanas", {E::humanDemand}),
      count("Número de demandas animais", {E::animalDemand}),
      demandVolume("Volume total requerido pelas demandas animais", {E::animalDemand}),
      count("Número de demandas industriais", {E::industrialDemand}),
      demandVolume("Volume total requerido pelas demandas industriais", {E::industrialDemand}),
      count("Número de demandas de irrigação", {E::irrigationDemand}),
      demandVolume("Volume total requerido pelas demandas de irrigação", {E::irrigationDemand}),
      count("Número de drenos", {E::drain}),
      count("Número de demandas", ElementSets::consumerDemands()),
      demandVolume("Volume total requerido pelas demandas", ElementSets::consumerDemands()),
      count("Número de trechos naturais", {E::naturalLink}),
      count("Número de trechos artificiais", {E::artificialLink}),
      count("Número de trechos", ElementSets::links()),
  };
  return list;
}

bool qualifies(const Element& element, const Types& types) {
  return element.isEnabled() && types.count(element.getType()) != 0;
}

}  // namespace

void GeneralSceneryReport::make(const std::filesystem::path& path,
                                const std::shared_ptr<Scenario>& scenario) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) throw std::runtime_error("GeneralSceneryReport::make(): erro ao abrir arquivo");
  for (const std::string& line : makeLines(*scenario)) file << line << '\n';
}

std::vector<std::string> GeneralSceneryReport::makeLines(const Scenario& scenario) {
  std::vector<std::string> lines;
  for (const Item& item : items()) lines.push_back(item.label + ": " + item.value(scenario));
  return lines;
}

unsigned int GeneralSceneryReport::countElements(const Scenario& scenario, const Types& types) {
  const auto& elements = scenario.getElements();
  return static_cast<unsigned int>(std::count_if(
      elements.begin(), elements.end(),
      [&types](const std::shared_ptr<Element>& element) { return qualifies(*element, types); }));
}

double GeneralSceneryReport::getTotalInitialUtilVolume(const Scenario& scenario) {
  double total = 0.0;
  for (const auto& element : scenario.getElements()) {
    if (!qualifies(*element, ElementSets::reservoir())) continue;
    const ReservoirInfo& info = std::static_pointer_cast<Reservoir>(element)->getReservoirInfo();
    total += std::max(0.0, info.initVol - info.minVol);
  }
  return total;
}

double GeneralSceneryReport::getTotalDemandVolume(const Scenario& scenario, const Types& types) {
  const Interval& interval = scenario.getInterval();
  const auto balance = HydrologicalBalanceFactory::make(interval.getPeriodicity().getType());
  double total = 0.0;
  for (const auto& element : scenario.getElements()) {
    if (!qualifies(*element, types)) continue;
    const Serie& demand = *element->getInputSerie(SerieType::demand);
    PeriodWalker::forEach(interval, [&](const Date& date) {
      const double flow = demand.getValue(date);
      if (!NumericalUtils::isEmpty(flow)) total += balance->hm3(date, flow);
    });
  }
  return total;
}
