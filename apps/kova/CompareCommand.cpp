#include "CompareCommand.h"

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
#include "core/Scenario.h"

namespace {

using Category = ElementGroup::ElementCategoriesEnum;

std::vector<Category> categoriesNamed(const std::string& name) {
  if (name == "all" || name == "default") return {Category::reservoir, Category::demand};
  if (name == "reservoirs") return {Category::reservoir};
  if (name == "demands") return {Category::demand};
  throw UsageError(tr("option --elements: \"{1}\" is not one of all, reservoirs, demands", {name}));
}

// One metric of one element in each scenario; empty values are -999.
struct Line {
  std::string element;
  std::string metric;
  std::vector<double> values;
};

double valueOf(const LoadedData& data, const std::string& element, std::size_t column) {
  for (const auto& row : data.getRows()) {
    if (row[0]->toString() == element) {
      return row[column]->isEmpty() ? Serie::kEmptyValue : row[column]->getNumber();
    }
  }
  return Serie::kEmptyValue;
}

// The lines of the elements of the first scenario, matched by name in the others.
std::vector<Line> linesOf(const std::vector<LoadedData>& tables) {
  std::vector<Line> lines;
  const LoadedData& first = tables.front();
  for (const auto& row : first.getRows()) {
    for (std::size_t column = 1; column < first.getColumns().size(); ++column) {
      Line line{row[0]->toString(), first.getColumns()[column].name, {}};
      for (const auto& table : tables) line.values.push_back(valueOf(table, line.element, column));
      lines.push_back(line);
    }
  }
  return lines;
}

bool empty(double value) { return value == Serie::kEmptyValue; }

std::string shown(double value) {
  if (empty(value)) return "";
  std::ostringstream text;
  text << std::fixed << std::setprecision(2) << value;
  return text.str();
}

// Each scenario after the first against the first: B - A.
std::vector<double> differences(const Line& line) {
  std::vector<double> result;
  for (std::size_t i = 1; i < line.values.size(); ++i) {
    const bool known = !empty(line.values[i]) && !empty(line.values.front());
    result.push_back(known ? line.values[i] - line.values.front() : Serie::kEmptyValue);
  }
  return result;
}

std::vector<std::string> headings(const std::vector<std::string>& scenarios) {
  std::vector<std::string> result = {"element", "metric"};
  result.insert(result.end(), scenarios.begin(), scenarios.end());
  for (std::size_t i = 1; i < scenarios.size(); ++i) {
    result.push_back(scenarios[i] + " - " + scenarios.front());
  }
  return result;
}

std::vector<std::string> fieldsOf(const Line& line) {
  std::vector<std::string> fields = {line.element, line.metric};
  for (double value : line.values) fields.push_back(shown(value));
  for (double value : differences(line)) fields.push_back(shown(value));
  return fields;
}

std::size_t width(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

void printTable(const std::vector<std::string>& heads, const std::vector<Line>& lines,
                std::ostream& out) {
  std::vector<std::vector<std::string>> rows = {heads};
  rows.front()[0] = tr("element");
  rows.front()[1] = tr("metric");
  for (const auto& line : lines) {
    auto fields = fieldsOf(line);
    for (std::size_t i = 2; i < fields.size(); ++i) fields[i] = fields[i].empty() ? "-" : fields[i];
    rows.push_back(fields);
  }
  std::vector<std::size_t> widths(heads.size(), 0);
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], width(row[i]));
  }
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      const std::string fill(widths[i] - width(row[i]), ' ');
      out << (i == 0 ? "" : "  ") << (i < 2 ? row[i] + fill : fill + row[i]);
    }
    out << '\n';
  }
}

std::string csvField(const std::string& text) {
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

void printCsv(const std::vector<std::string>& heads, const std::vector<Line>& lines,
              std::ostream& out) {
  const auto print = [&out](const std::vector<std::string>& fields) {
    for (std::size_t i = 0; i < fields.size(); ++i) out << (i == 0 ? "" : ",") << csvField(fields[i]);
    out << '\n';
  };
  print(heads);
  for (const auto& line : lines) print(fieldsOf(line));
}

nlohmann::ordered_json toJson(const std::vector<std::string>& heads, const std::vector<Line>& lines) {
  auto rows = nlohmann::ordered_json::array();
  const auto number = [](double value) {
    return empty(value) ? nlohmann::ordered_json() : nlohmann::ordered_json(value);
  };
  for (const auto& line : lines) {
    nlohmann::ordered_json row;
    row["element"] = line.element;
    row["metric"] = line.metric;
    std::size_t head = 2;
    for (double value : line.values) row[heads[head++]] = number(value);
    for (double value : differences(line)) row[heads[head++]] = number(value);
    rows.push_back(row);
  }
  return rows;
}

}  // namespace

Command CompareCommand::describe() {
  return {"compare",
          "kova compare P.sjson --scenario A --scenario B [--scenario C]... [--window N]\n"
          "             [--elements all|reservoirs|demands] [--format table|csv|json]",
          tr("the metrics of several scenarios side by side"),
          HostText::help("compare"),
          {{"window", "elements", "format"}, {"scenario"}, {}, 1, 1},
          run};
}

int CompareCommand::run(const CommandLine& line, Console& console) {
  const auto format = MetricsTable::formatNamed(line.value("format", "table"));
  const std::string elements = line.value("elements", "default");
  const auto categories = categoriesNamed(elements);
  const auto names = line.values("scenario");
  if (names.size() < 2) throw UsageError(tr("option --scenario: name two scenarios or more"));
  OpenProject project(line.positional(0));
  const auto scenarios = project.select(names);
  const unsigned long window = line.number("window", 1, 1);
  for (const auto& scenario : scenarios) {
    const std::size_t windows = scenario->calcVectorOfIntervals().size();
    if (window > windows) {
      throw UsageError(tr("option --window: scenario \"{1}\" has {2} window(s)",
                          {scenario->getName(), std::to_string(windows)}));
    }
    project.loadLatestResults(scenario);
    const StoredRun run = StoredRun::latest(scenario, project.path());
    console.unlessQuiet(console.err)
        << tr("scenario \"{1}\": stored run {2}", {scenario->getName(), run.getTimeStamp()})
        << (run.inputsAreNewer() ? tr(" (warning: the project's inputs were saved after it)") : "")
        << '\n';
  }
  std::vector<Line> lines;
  for (const Category category : categories) {
    std::vector<LoadedData> tables;
    for (const auto& scenario : scenarios) {
      tables.push_back(MetricsTable::make(scenario, category, static_cast<unsigned int>(window - 1),
                                          elements == "all"));
    }
    const auto more = linesOf(tables);
    lines.insert(lines.end(), more.begin(), more.end());
  }
  const auto heads = headings(names);
  if (format == MetricsTable::Format::table) printTable(heads, lines, console.out);
  if (format == MetricsTable::Format::csv) printCsv(heads, lines, console.out);
  if (format == MetricsTable::Format::json) console.out << toJson(heads, lines).dump(2) << '\n';
  return exitOk;
}
