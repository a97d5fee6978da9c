#include "SeriesCommand.h"

#include <algorithm>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

#include "ExitStatus.h"
#include "HostText.h"
#include "MetricsTable.h"
#include "OpenProject.h"
#include "StoredRun.h"
#include "UsageError.h"
#include "common/PeriodWalker.h"
#include "core/Scenario.h"

namespace {

// One value of one series on one date.
struct Value {
  std::string date;  // ISO
  std::string kind;
  std::string direction;  // "input" or "result"
  double value;
  std::string unit;
};

std::shared_ptr<Element> elementNamed(const Scenario& scenario, const std::string& name) {
  std::string names;
  for (const auto& element : scenario.getElements()) {
    if (element->getName() == name) return element;
  }
  throw std::runtime_error(
      tr("scenario \"{1}\" has no element named \"{2}\"", {scenario.getName(), name}));
}

// Whether a series answers to one of the kinds asked, by name or by number; all when none asked.
bool asked(const Serie& serie, const std::vector<std::string>& kinds) {
  if (kinds.empty()) return true;
  const std::string number = std::to_string(static_cast<int>(serie.getType()));
  return std::any_of(kinds.begin(), kinds.end(), [&](const std::string& kind) {
    return kind == serie.getName() || kind == number;
  });
}

void collect(const Serie& serie, const std::string& direction, const Interval& window,
             std::vector<Value>& values) {
  PeriodWalker::forEach(window, [&](const Date& date) {
    values.push_back({date.toString("%Y-%m-%d"), serie.getName(), direction, serie.getValue(date),
                      serie.getUnit().getName()});
  });
}

std::string shown(double value) {
  if (value == Serie::kEmptyValue) return "";
  std::ostringstream text;
  text << std::setprecision(10) << value;
  return text.str();
}

// The table is read by people, in their language; csv and json keep the words programs read.
void printTable(const std::vector<Value>& values, std::ostream& out) {
  std::vector<std::vector<std::string>> lines = {
      {tr("date"), tr("kind"), tr("direction"), tr("value"), tr("unit")}};
  for (const auto& v : values) {
    const std::string number = shown(v.value);
    const std::string direction = v.direction == "input" ? tr("input") : tr("result");
    lines.push_back({v.date, v.kind, direction, number.empty() ? "-" : number, v.unit});
  }
  std::vector<std::size_t> widths(5, 0);
  const auto width = [](const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
      return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
  };
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], width(line[i]));
  }
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      const std::string fill(widths[i] - width(line[i]), ' ');
      out << (i == 0 ? "" : "  ") << (i == 3 ? fill + line[i] : line[i] + (i + 1 < line.size() ? fill : ""));
    }
    out << '\n';
  }
}

void printCsv(const std::vector<Value>& values, std::ostream& out) {
  out << "date,kind,direction,value,unit\n";
  for (const auto& v : values) {
    out << v.date << ',' << v.kind << ',' << v.direction << ',' << shown(v.value) << ',' << v.unit
        << '\n';
  }
}

nlohmann::ordered_json toJson(const std::vector<Value>& values) {
  auto rows = nlohmann::ordered_json::array();
  for (const auto& v : values) {
    nlohmann::ordered_json row;
    row["date"] = v.date;
    row["kind"] = v.kind;
    row["direction"] = v.direction;
    row["value"] = v.value == Serie::kEmptyValue ? nlohmann::ordered_json() : nlohmann::ordered_json(v.value);
    row["unit"] = v.unit;
    rows.push_back(row);
  }
  return rows;
}

}  // namespace

Command SeriesCommand::describe() {
  return {"series",
          "kova series P.sjson --scenario NAME --element NAME [--kind K]... [--window N]\n"
          "            [--format table|csv|json]",
          tr("one element's input and result series of a stored run"),
          HostText::help("series"),
          {{"scenario", "element", "window", "format"}, {"kind"}, {}, 1, 1},
          run};
}

int SeriesCommand::run(const CommandLine& line, Console& console) {
  const auto format = MetricsTable::formatNamed(line.value("format", "table"));
  OpenProject project(line.positional(0));
  const auto scenario = project.scenario(line.required("scenario"));
  const auto element = elementNamed(*scenario, line.required("element"));
  const auto windows = scenario->calcVectorOfIntervals();
  const unsigned long window = line.number("window", 1, 1);
  if (window > windows.size()) {
    throw UsageError(tr("option --window: scenario \"{1}\" has {2} window(s)",
                        {scenario->getName(), std::to_string(windows.size())}));
  }
  project.loadLatestResults(scenario);
  const StoredRun run = StoredRun::latest(scenario, project.path());
  if (run.inputsAreNewer()) {
    console.unlessQuiet(console.err)
        << "kova series: "
        << tr("warning: the project's inputs were saved after the stored run of {1}",
              {run.getTimeStamp()})
        << '\n';
  }
  const auto kinds = line.values("kind");
  std::vector<Value> values;
  for (const auto& serie : element->getVectorOfInputSeries()) {
    if (asked(*serie, kinds)) collect(*serie, "input", windows[window - 1], values);
  }
  if (window - 1 < element->getOutputSeries().size()) {
    for (const auto& serie : element->getVectorOfSeries(static_cast<unsigned int>(window - 1))) {
      if (asked(*serie, kinds)) collect(*serie, "result", windows[window - 1], values);
    }
  }
  if (values.empty() && !kinds.empty()) {
    throw UsageError(tr("option --kind: element \"{1}\" has no such series", {element->getName()}));
  }
  if (format == MetricsTable::Format::table) printTable(values, console.out);
  if (format == MetricsTable::Format::csv) printCsv(values, console.out);
  if (format == MetricsTable::Format::json) console.out << toJson(values).dump(2) << '\n';
  return exitOk;
}
