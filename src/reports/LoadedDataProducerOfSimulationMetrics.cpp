#include "reports/LoadedDataProducerOfSimulationMetrics.h"

#include "reports/CellDataFactoryByEnumType.h"
#include "reports/SimulationMetricsAbstractFactory.h"

LoadedData LoadedDataProducerOfSimulationMetrics::getLoadedDataOfSimulationMetrics(
    ElementGroup::ElementCategoriesEnum category,
    const std::vector<std::shared_ptr<Element>>& elements,
    const std::vector<std::shared_ptr<SimulationMetricsEnum>>& metrics,
    const std::shared_ptr<Scenario>& scenario, unsigned int runIndex) {
  const auto factory = SimulationMetricsAbstractFactory::make(category);
  std::vector<std::shared_ptr<SimulationMetric>> calculators;
  LoadedData table;
  table.addColumn({TypeOfData::stringType, "Elemento"});
  for (const auto& kind : metrics) {
    calculators.push_back(factory->makeMetric(*kind));
    const auto& metric = *calculators.back();
    table.addColumn({metric.getReturnType(), metric.getName() + " " + metric.getUnit()});
  }
  for (const auto& element : elements) {
    LoadedData::Row row{CellDataFactoryByEnumType::make(TypeOfData::stringType)};
    row.front()->load(element->getName());
    for (const auto& metric : calculators) {
      row.push_back(metric->calculate(element, scenario, runIndex));
    }
    table.addRow(std::move(row));
  }
  return table;
}
