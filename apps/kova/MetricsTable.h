#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "reports/LoadedData.h"

class Scenario;

// The performance metrics of a scenario's reservoirs or demands over its windows of results, and
// their printed forms.
class MetricsTable {
 public:
  enum class Format { table, csv, json };

  // Throws UsageError for a name other than "table", "csv" and "json".
  static Format formatNamed(const std::string& name);
  // Every metric of the category for the enabled elements of that category, in id order, over one
  // window. Drains are demands only with withDrains: their target of 99,999 m³/s makes their
  // deficits figures of no use beside those of real demands. A reservoir metric that judges
  // storage against targets stays empty where there is no target to judge against: its own
  // figures when the reservoir has no target in the window, the reliabilities for reservoirs when
  // neither it nor any reservoir below it has one.
  static LoadedData make(const std::shared_ptr<Scenario>& scenario,
                         ElementGroup::ElementCategoriesEnum category, unsigned int window,
                         bool withDrains);
  // Each metric over every window: for each element, columns "<metric> <statistic>" for the
  // minimum, the 10th, 50th and 90th percentiles and the maximum of the windows that have a value
  // (percentiles interpolate linearly between ranks); empty when no window has one.
  static LoadedData summary(const std::vector<LoadedData>& windows);

  // One line per metric with one aligned column per element: easier to read than element rows
  // when headings are long.
  static void printTable(const LoadedData& data, const std::string& title, std::ostream& out);
  // One line per element, the headings first; fields with commas or quotes are quoted.
  static void printCsv(const LoadedData& data, std::ostream& out);
  // An array of objects {"element": name, "<heading>": value, ...}; empty cells are null.
  static nlohmann::ordered_json toJson(const LoadedData& data);
};
