#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "reports/LoadedData.h"

class Scenario;

// The performance metrics of a scenario's reservoirs or demands over one window of results, and
// their printed forms.
class MetricsTable {
 public:
  enum class Format { table, csv, json };

  // Throws UsageError for a name other than "table", "csv" and "json".
  static Format formatNamed(const std::string& name);
  // Every metric of the category for the enabled elements of that category, in id order.
  static LoadedData make(const std::shared_ptr<Scenario>& scenario,
                         ElementGroup::ElementCategoriesEnum category, unsigned int window);

  // One line per metric with one aligned column per element: easier to read than element rows
  // when headings are long.
  static void printTable(const LoadedData& data, const std::string& title, std::ostream& out);
  // One line per element, the headings first; fields with commas or quotes are quoted.
  static void printCsv(const LoadedData& data, std::ostream& out);
  // An array of objects {"element": name, "<heading>": value, ...}; empty cells are null.
  static nlohmann::ordered_json toJson(const LoadedData& data);
};
