#include "MetricsTable.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

#include "UsageError.h"
#include "core/ElementSets.h"
#include "core/Scenario.h"
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

}  // namespace

MetricsTable::Format MetricsTable::formatNamed(const std::string& name) {
  if (name == "table") return Format::table;
  if (name == "csv") return Format::csv;
  if (name == "json") return Format::json;
  throw UsageError("option --format: \"" + name + "\" is not one of table, csv, json");
}

LoadedData MetricsTable::make(const std::shared_ptr<Scenario>& scenario,
                              ElementGroup::ElementCategoriesEnum category, unsigned int window) {
  const auto& types = ElementSetFactoryByCategory::make(category);
  std::vector<std::shared_ptr<Element>> elements;
  for (const auto& element : scenario->getSortedElements()) {
    if (element->isEnabled() && types.count(element->getElementType().getType()) != 0) {
      elements.push_back(element);
    }
  }
  std::vector<std::shared_ptr<SimulationMetricsEnum>> metrics;
  for (const auto kind : SimulationMetricsAbstractFactory::make(category)->kinds()) {
    metrics.push_back(SimulationMetricsEnumFactoryByType::make(kind));
  }
  return LoadedDataProducerOfSimulationMetrics::getLoadedDataOfSimulationMetrics(
      category, elements, metrics, scenario, window);
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
