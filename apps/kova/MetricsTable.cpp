#include "MetricsTable.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

#include "HostText.h"
#include "UsageError.h"
#include "core/ElementSets.h"
#include "core/NetworkUtils.h"
#include "core/Scenario.h"
#include "reports/CellDataFactoryByEnumType.h"
#include "reports/LoadedDataProducerOfSimulationMetrics.h"
#include "reports/ReportFormat.h"
#include "reports/SimulationMetricsAbstractFactory.h"
#include "reports/SimulationMetricsEnumFactoryByType.h"

namespace {

// Characters shown, not bytes: names and headings carry accents.
std::size_t displayWidth(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

std::string padded(const std::string& text, std::size_t width, bool right) {
  const std::string fill(width - std::min(width, displayWidth(text)), ' ');
  return right ? fill + text : text + fill;
}

std::string shown(const CellData& cell) {
  if (cell.isEmpty()) return "-";
  if (cell.getTypeOfData() != TypeOfData::doubleType) return cell.toString();
  std::ostringstream text;
  text << std::fixed << std::setprecision(2) << cell.getNumber();
  return text.str();
}

std::string csvField(const std::string& text) {
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

using T = SimulationMetricsTypeDefinition;

std::string headingOf(T kind) {
  const auto metric = SimulationMetricsAbstractFactory::make(
                          ElementGroup::ElementCategoriesEnum::reservoir)
                          ->makeMetric(*SimulationMetricsEnumFactoryByType::make(kind));
  return metric->getName() + " " + metric->getUnit();
}

bool hasTarget(const Element& reservoir, unsigned int window) {
  if (window >= reservoir.getOutputSeries().size()) return false;
  for (const auto& serie : reservoir.getVectorOfSeries(window)) {
    if (serie->getType() == SerieType::targetVolume && !serie->isEmpty()) return true;
  }
  return false;
}

// Whether the reservoir or a reservoir below it along enabled links has a target in the window.
bool someTargetAtOrBelow(const std::shared_ptr<Element>& reservoir, unsigned int window) {
  if (hasTarget(*reservoir, window)) return true;
  const auto node = std::static_pointer_cast<Node>(reservoir);
  for (const auto& below : NetworkUtils::getAllDownstreamNodes(node, ElementSets::reservoir(), true)) {
    if (hasTarget(*below, window)) return true;
  }
  return false;
}

void emptyColumn(LoadedData::Row& row, const LoadedData& data, const std::string& heading) {
  const auto& columns = data.getColumns();
  for (std::size_t column = 1; column < columns.size(); ++column) {
    if (columns[column].name == heading) row[column]->setNumber(Serie::kEmptyValue);
  }
}

// Empties, in the reservoirs' table, the target figures that would only say "no target".
void emptyTargetMetricsWithoutTarget(const LoadedData& data,
                                     const std::vector<std::shared_ptr<Element>>& reservoirs,
                                     unsigned int window) {
  for (std::size_t i = 0; i < reservoirs.size(); ++i) {
    auto row = data.getRows()[i];
    if (!hasTarget(*reservoirs[i], window)) {
      emptyColumn(row, data, headingOf(T::frequencyUnderTargetVolumeInPercentage));
      emptyColumn(row, data, headingOf(T::maxTimeUnderTargetVolumeInMonths));
    }
    if (!someTargetAtOrBelow(reservoirs[i], window)) {
      emptyColumn(row, data, headingOf(T::reliabilityToReservoirs));
      emptyColumn(row, data, headingOf(T::reliabilityToReservoirsAndDemands));
    }
  }
}

// The q-th quantile (0 to 1) of sorted values, interpolating linearly between ranks.
double quantile(const std::vector<double>& sorted, double q) {
  const double position = q * static_cast<double>(sorted.size() - 1);
  const auto below = static_cast<std::size_t>(std::floor(position));
  const std::size_t above = std::min(below + 1, sorted.size() - 1);
  return sorted[below] + (position - static_cast<double>(below)) * (sorted[above] - sorted[below]);
}

const std::vector<std::pair<std::string, double>>& statistics() {
  static const std::vector<std::pair<std::string, double>> all = {
      {"min", 0.0}, {"p10", 0.1}, {"p50", 0.5}, {"p90", 0.9}, {"max", 1.0}};
  return all;
}

}  // namespace

MetricsTable::Format MetricsTable::formatNamed(const std::string& name) {
  if (name == "table") return Format::table;
  if (name == "csv") return Format::csv;
  if (name == "json") return Format::json;
  throw UsageError(tr("option --format: \"{1}\" is not one of table, csv, json", {name}));
}

LoadedData MetricsTable::make(const std::shared_ptr<Scenario>& scenario,
                              ElementGroup::ElementCategoriesEnum category, unsigned int window,
                              bool withDrains) {
  const auto& types = ElementSetFactoryByCategory::make(category);
  std::vector<std::shared_ptr<Element>> elements;
  for (const auto& element : scenario->getSortedElements()) {
    const ElementType type = element->getElementType().getType();
    if (!element->isEnabled() || types.count(type) == 0) continue;
    if (type == ElementType::drain && !withDrains) continue;
    elements.push_back(element);
  }
  std::vector<std::shared_ptr<SimulationMetricsEnum>> metrics;
  for (const auto kind : SimulationMetricsAbstractFactory::make(category)->kinds()) {
    metrics.push_back(SimulationMetricsEnumFactoryByType::make(kind));
  }
  const LoadedData data = LoadedDataProducerOfSimulationMetrics::getLoadedDataOfSimulationMetrics(
      category, elements, metrics, scenario, window);
  if (category == ElementGroup::ElementCategoriesEnum::reservoir) {
    emptyTargetMetricsWithoutTarget(data, elements, window);
  }
  return data;
}

LoadedData MetricsTable::summary(const std::vector<LoadedData>& windows) {
  LoadedData result;
  if (windows.empty()) return result;
  const LoadedData& first = windows.front();
  const auto& columns = first.getColumns();
  result.addColumn(columns[0]);
  for (std::size_t column = 1; column < columns.size(); ++column) {
    for (const auto& [name, q] : statistics()) {
      result.addColumn({TypeOfData::doubleType, columns[column].name + " " + name});
    }
  }
  for (std::size_t row = 0; row < first.getRows().size(); ++row) {
    LoadedData::Row cells = {first.getRows()[row][0]};
    for (std::size_t column = 1; column < columns.size(); ++column) {
      std::vector<double> values;
      for (const auto& window : windows) {
        const auto& cell = window.getRows()[row][column];
        if (!cell->isEmpty()) values.push_back(cell->getNumber());
      }
      std::sort(values.begin(), values.end());
      for (const auto& statistic : statistics()) {
        auto cell = CellDataFactoryByEnumType::make(TypeOfData::doubleType);
        if (!values.empty()) cell->setNumber(quantile(values, statistic.second));
        cells.push_back(cell);
      }
    }
    result.addRow(cells);
  }
  return result;
}

void MetricsTable::printTable(const LoadedData& data, const std::string& title, std::ostream& out) {
  const auto& columns = data.getColumns();
  const auto& rows = data.getRows();
  std::vector<std::vector<std::string>> lines(columns.size());
  for (std::size_t column = 0; column < columns.size(); ++column) {
    lines[column].push_back(column == 0 ? title : columns[column].name);
    for (const auto& row : rows)
      lines[column].push_back(column == 0 ? row[0]->toString() : shown(*row[column]));
  }
  std::vector<std::size_t> widths(rows.size() + 1, 0);
  for (const auto& line : lines) {
    for (std::size_t field = 0; field < line.size(); ++field) {
      widths[field] = std::max(widths[field], displayWidth(line[field]));
    }
  }
  for (const auto& line : lines) {
    out << padded(line[0], widths[0], false);
    for (std::size_t field = 1; field < line.size(); ++field) {
      out << "  " << padded(line[field], widths[field], true);
    }
    out << '\n';
  }
}

void MetricsTable::printCsv(const LoadedData& data, std::ostream& out) {
  const auto& columns = data.getColumns();
  for (std::size_t column = 0; column < columns.size(); ++column) {
    out << (column == 0 ? "" : ",") << csvField(columns[column].name);
  }
  out << '\n';
  for (const auto& row : data.getRows()) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      out << (column == 0 ? "" : ",")
          << csvField(row[column]->isEmpty() ? "" : row[column]->toString());
    }
    out << '\n';
  }
}

nlohmann::ordered_json MetricsTable::toJson(const LoadedData& data) {
  auto rows = nlohmann::ordered_json::array();
  const auto& columns = data.getColumns();
  for (const auto& row : data.getRows()) {
    nlohmann::ordered_json object;
    object["element"] = row[0]->toString();
    for (std::size_t column = 1; column < row.size(); ++column) {
      object[columns[column].name] = row[column]->isEmpty()
                                         ? nlohmann::ordered_json()
                                         : nlohmann::ordered_json(row[column]->getNumber());
    }
    rows.push_back(object);
  }
  return rows;
}
