#include "InfoCommand.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

#include "ExitStatus.h"
#include "HostText.h"
#include "OpenProject.h"
#include "core/PrioritySettings.h"
#include "core/ReleaseRule.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "core/Scenario.h"
#include "project/database/ProjectResumate.h"

namespace {

// The number of elements of each kind, in the vocabulary's order of kinds.
std::map<int, std::pair<std::string, unsigned int>> countByKind(const Scenario& scenario) {
  std::map<int, std::pair<std::string, unsigned int>> counts;
  for (const auto& element : scenario.getElements()) {
    const auto& type = element->getElementType();
    auto& entry = counts[static_cast<int>(type.getType())];
    entry.first = type.getName();
    ++entry.second;
  }
  return counts;
}

std::string number(double value, int decimals) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", decimals, value);
  return text;
}

// The mean of the values of the demand series that are not missing; "-" when there is none.
std::string meanDemand(const Element& element) {
  const auto series = element.getVectorOfInputSeries();
  const auto serie = std::find_if(series.begin(), series.end(), [](const auto& candidate) {
    return candidate->getType() == SerieType::demand;
  });
  if (serie == series.end()) return "-";
  double sum = 0.0;
  std::size_t count = 0;
  for (const auto& [julian, value] : (*serie)->getMapOfJulianToValues()) {
    if (value == Serie::kEmptyValue) continue;
    sum += value;
    ++count;
  }
  return count == 0 ? "-" : number(sum / static_cast<double>(count), 3);
}

std::vector<std::string> volumes(const Element& element) {
  const auto* reservoir = dynamic_cast<const Reservoir*>(&element);
  if (!reservoir) return {"-", "-", "-"};
  const ReservoirInfo& info = reservoir->getReservoirInfo();
  return {number(info.maxVol, 2), number(info.minVol, 2), number(info.initVol, 2)};
}

// The priority in a priority scenario, the release rule's kind in a rule scenario.
std::pair<std::string, std::string> priorityAndRule(const Scenario& scenario,
                                                    const Element& element) {
  const auto& settingsOf = scenario.getSettingsManager();
  if (!settingsOf.contains(element.getId())) return {"-", "-"};
  const auto& settings = settingsOf.getSettings(element.getId());
  if (const auto* priority = dynamic_cast<const PrioritySettings*>(settings.get()))
    return {std::to_string(priority->getPriority()), "-"};
  if (const auto* rule = dynamic_cast<const ReservoirRuleSettings*>(settings.get()))
    return {"-", rule->getRule() ? rule->getRule()->getType().getName() : "-"};
  return {"-", "-"};
}

std::vector<std::string> rowOf(const Scenario& scenario, const Element& element) {
  std::vector<std::string> row = {element.getElementType().getName(), element.getName(),
                                  std::to_string(element.getId())};
  const auto held = volumes(element);
  row.insert(row.end(), held.begin(), held.end());
  row.push_back(meanDemand(element));
  const auto [priority, rule] = priorityAndRule(scenario, element);
  row.push_back(priority);
  row.push_back(rule);
  return row;
}

// Widths in characters, not bytes: names and kinds are UTF-8 and often accented.
std::size_t width(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

// Text columns to the left, numbers (from the fourth column on, but the rule) to the right.
void printAligned(const std::vector<std::vector<std::string>>& rows, std::ostream& out) {
  std::vector<std::size_t> widths(rows.front().size(), 0);
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], width(row[i]));
  }
  for (const auto& row : rows) {
    std::string line = "  ";
    for (std::size_t i = 0; i < row.size(); ++i) {
      const std::string fill(widths[i] - width(row[i]), ' ');
      const bool right = i >= 2 && i + 1 < row.size();
      line += (i == 0 ? "" : "  ") + (right ? fill + row[i] : row[i] + fill);
    }
    out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
  }
}

void printElements(const Scenario& scenario, std::ostream& out) {
  std::vector<std::vector<std::string>> rows = {
      {tr("kind"), tr("name"), tr("id"), tr("capacity hm³"), tr("minimum hm³"), tr("initial hm³"),
       tr("mean demand m³/s"), tr("priority"), tr("rule")}};
  for (const auto& element : scenario.getElements()) rows.push_back(rowOf(scenario, *element));
  printAligned(rows, out);
}

}  // namespace

Command InfoCommand::describe() {
  return {"info",
          "kova info P.sjson [--elements]",
          tr("summarise a project and its scenarios"),
          HostText::help("info"),
          {{}, {}, {"elements"}, 1, 1},
          run};
}

int InfoCommand::run(const CommandLine& line, Console& console) {
  OpenProject project(line.positional(0));
  console.out << ProjectResumate::toText(ProjectResumate::getResumate(project.path().string()));
  for (const auto& scenario : project.scenarios()) {
    console.out << "\n" << tr("Elements of {1}:", {scenario->getName()}) << '\n';
    if (line.has("elements")) {
      printElements(*scenario, console.out);
      continue;
    }
    for (const auto& [kind, entry] : countByKind(*scenario)) {
      console.out << "  " << entry.first << ": " << entry.second << '\n';
    }
  }
  return exitOk;
}
