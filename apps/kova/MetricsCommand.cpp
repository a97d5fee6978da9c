#include "MetricsCommand.h"

#include "ExitStatus.h"
#include "MetricsTable.h"
#include "OpenProject.h"
#include "UsageError.h"
#include "core/Scenario.h"

namespace {

using Category = ElementGroup::ElementCategoriesEnum;

std::vector<std::pair<Category, std::string>> categoriesNamed(const std::string& name) {
  const std::pair<Category, std::string> reservoirs{Category::reservoir, "Reservatórios"};
  const std::pair<Category, std::string> demands{Category::demand, "Demandas"};
  if (name == "all") return {reservoirs, demands};
  if (name == "reservoirs") return {reservoirs};
  if (name == "demands") return {demands};
  throw UsageError("option --elements: \"" + name + "\" is not one of all, reservoirs, demands");
}

}  // namespace

Command MetricsCommand::describe() {
  return {
      "metrics",
      "kova metrics P.sjson --scenario NAME [--window N] [--elements all|reservoirs|demands]\n"
      "             [--format table|csv|json]",
      "performance metrics of a stored run",
      "Computes the metrics of the reservoirs and demands from the latest stored run of the\n"
      "scenario, in window N (counted from 1, default 1). The table has one line per metric\n"
      "and one column per element; csv has one line per element (the reservoirs' table, a\n"
      "blank line, then the demands'); json has {\"Reservatórios\": [...], \"Demandas\": [...]}.\n",
      {{"scenario", "window", "elements", "format"}, {}, {}, 1, 1},
      run};
}

int MetricsCommand::run(const CommandLine& line, Console& console) {
  const auto format = MetricsTable::formatNamed(line.value("format", "table"));
  const auto categories = categoriesNamed(line.value("elements", "all"));
  OpenProject project(line.positional(0));
  const auto scenario = project.scenario(line.required("scenario"));
  const unsigned long window = line.number("window", 1, 1);
  const std::size_t windows = scenario->calcVectorOfIntervals().size();
  if (window > windows) {
    throw UsageError("option --window: scenario \"" + scenario->getName() + "\" has " +
                     std::to_string(windows) + " window(s)");
  }
  project.loadLatestResults(scenario);
  nlohmann::ordered_json json;
  for (std::size_t i = 0; i < categories.size(); ++i) {
    const auto& [category, title] = categories[i];
    const LoadedData data = MetricsTable::make(scenario, category, window - 1);
    if (format == MetricsTable::Format::table) {
      console.out << (i == 0 ? "" : "\n");
      MetricsTable::printTable(data, title, console.out);
    } else if (format == MetricsTable::Format::csv) {
      console.out << (i == 0 ? "" : "\n");
      MetricsTable::printCsv(data, console.out);
    } else {
      json[title] = MetricsTable::toJson(data);
    }
  }
  if (format == MetricsTable::Format::json) console.out << json.dump(2) << '\n';
  return exitOk;
}
