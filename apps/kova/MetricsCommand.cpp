#include "MetricsCommand.h"

#include "ExitStatus.h"
#include "HostText.h"
#include "MetricsTable.h"
#include "OpenProject.h"
#include "StoredRun.h"
#include "UsageError.h"
#include "core/Scenario.h"

namespace {

using Category = ElementGroup::ElementCategoriesEnum;

struct Selection {
  std::vector<std::pair<Category, std::string>> categories;
  bool withDrains = false;
};

Selection selectionNamed(const std::string& name) {
  const std::pair<Category, std::string> reservoirs{Category::reservoir, "Reservatórios"};
  const std::pair<Category, std::string> demands{Category::demand, "Demandas"};
  if (name == "default") return {{reservoirs, demands}, false};
  if (name == "all") return {{reservoirs, demands}, true};
  if (name == "reservoirs") return {{reservoirs}, false};
  if (name == "demands") return {{demands}, false};
  throw UsageError(tr("option --elements: \"{1}\" is not one of all, reservoirs, demands", {name}));
}

// Which windows the command measures: one, or all of them summarised.
struct Windows {
  std::size_t first = 0;  // 0-based
  std::size_t last = 0;
  std::size_t count = 0;
  bool summary = false;
};

Windows windowsAsked(const CommandLine& line, const Scenario& scenario) {
  Windows windows;
  windows.count = scenario.calcVectorOfIntervals().size();
  if (line.has("windows")) {
    if (line.has("window"))
      throw UsageError(tr("options --window and --windows exclude each other"));
    if (line.value("windows", "") != "all") {
      throw UsageError(tr("option --windows: \"{1}\" is not all", {line.value("windows", "")}));
    }
    windows.summary = true;
    windows.last = windows.count - 1;
    return windows;
  }
  const unsigned long window = line.number("window", 1, 1);
  if (window > windows.count) {
    throw UsageError(tr("option --window: scenario \"{1}\" has {2} window(s)",
                        {scenario.getName(), std::to_string(windows.count)}));
  }
  windows.first = windows.last = window - 1;
  return windows;
}

std::string isoDate(const Date& date) { return date.toString("%Y-%m-%d"); }

// What the figures are of: the scenario, the windows and their dates, the stored run.
struct Heading {
  std::string scenario;
  std::string windows;  // "1 of 88" or "all 88"
  std::string windowsRead;  // the same in the user's language
  std::string firstDate;
  std::string lastDate;
  std::string run;
  bool stale = false;
};

Heading headingOf(const Scenario& scenario, const Windows& windows, const StoredRun& run) {
  const auto intervals = scenario.calcVectorOfIntervals();
  const std::string count = std::to_string(windows.count);
  const std::string first = std::to_string(windows.first + 1);
  return {scenario.getName(),
          windows.summary ? "all " + count : first + " of " + count,
          windows.summary ? tr("all {1}", {count}) : tr("{1} of {2}", {first, count}),
          isoDate(intervals[windows.first].getBegin()),
          isoDate(intervals[windows.last].getEnd()),
          run.getTimeStamp(),
          run.inputsAreNewer()};
}

// The csv's heading is read by programs and stays in English; the table's by people, in their
// language.
void printHeading(const Heading& heading, MetricsTable::Format format, std::ostream& out) {
  if (format == MetricsTable::Format::csv) {
    out << "# scenario: " << heading.scenario << '\n'
        << "# windows: " << heading.windows << ", " << heading.firstDate << " to "
        << heading.lastDate << '\n'
        << "# stored run: " << heading.run << '\n';
    if (heading.stale) out << "# warning: the project's inputs were saved after this run\n";
    return;
  }
  out << tr("scenario: {1}", {heading.scenario}) << '\n'
      << tr("windows: {1}, {2} to {3}", {heading.windowsRead, heading.firstDate, heading.lastDate})
      << '\n'
      << tr("stored run: {1}", {heading.run}) << '\n';
  if (heading.stale) out << tr("warning: the project's inputs were saved after this run") << '\n';
  out << '\n';
}

nlohmann::ordered_json headingJson(const Heading& heading) {
  nlohmann::ordered_json json;
  json["scenario"] = heading.scenario;
  json["windows"] = heading.windows;
  json["first"] = heading.firstDate;
  json["last"] = heading.lastDate;
  json["storedRun"] = heading.run;
  json["inputsNewerThanRun"] = heading.stale;
  return json;
}

LoadedData measured(const std::shared_ptr<Scenario>& scenario, Category category,
                    const Windows& windows, bool withDrains) {
  if (!windows.summary) {
    return MetricsTable::make(scenario, category, static_cast<unsigned int>(windows.first),
                              withDrains);
  }
  std::vector<LoadedData> each;
  for (std::size_t window = 0; window < windows.count; ++window) {
    each.push_back(
        MetricsTable::make(scenario, category, static_cast<unsigned int>(window), withDrains));
  }
  return MetricsTable::summary(each);
}

}  // namespace

Command MetricsCommand::describe() {
  return {"metrics",
          "kova metrics P.sjson --scenario NAME [--window N | --windows all]\n"
          "             [--elements all|reservoirs|demands] [--format table|csv|json]",
          tr("performance metrics of a stored run"),
          HostText::help("metrics"),
          {{"scenario", "window", "windows", "elements", "format"}, {}, {}, 1, 1},
          run};
}

int MetricsCommand::run(const CommandLine& line, Console& console) {
  const auto format = MetricsTable::formatNamed(line.value("format", "table"));
  const auto selection = selectionNamed(line.value("elements", "default"));
  OpenProject project(line.positional(0));
  const auto scenario = project.scenario(line.required("scenario"));
  const Windows windows = windowsAsked(line, *scenario);
  project.loadLatestResults(scenario);
  const Heading heading =
      headingOf(*scenario, windows, StoredRun::latest(scenario, project.path()));
  if (heading.stale) {
    console.unlessQuiet(console.err)
        << "kova metrics: "
        << tr("warning: the project's inputs were saved after the stored run of {1}; run the "
              "scenario again for results that answer to them",
              {heading.run})
        << '\n';
  }
  nlohmann::ordered_json json = headingJson(heading);
  if (format != MetricsTable::Format::json) printHeading(heading, format, console.out);
  for (std::size_t i = 0; i < selection.categories.size(); ++i) {
    const auto& [category, title] = selection.categories[i];
    const LoadedData data = measured(scenario, category, windows, selection.withDrains);
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
