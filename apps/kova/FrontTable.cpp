#include "FrontTable.h"

#include <algorithm>
#include <iomanip>
#include <limits>
#include <sstream>
#include <stdexcept>

#include "optimization/RuleOptimizationScenario.h"

namespace {

std::string number(double value, int digits) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << std::setprecision(digits) << value;
  return text.str();
}

// Characters as a terminal shows them: UTF-8 continuation bytes take no column.
std::size_t displayWidth(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

std::string csvField(const std::string& text) {
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

}  // namespace

RuleOptimizationScenario& FrontTable::optimisationOf(Scenario& scenario) {
  auto* optimisation = dynamic_cast<RuleOptimizationScenario*>(&scenario);
  if (!optimisation) {
    throw std::runtime_error("scenario \"" + scenario.getName() + "\" is a \"" +
                             scenario.getScenarioType().getName() +
                             "\" scenario, not a rule optimisation (\"Otimizador de regras\")");
  }
  return *optimisation;
}

FrontTable::FrontTable(const RuleOptimizationScenario& scenario, bool withVariables)
    : objectives(scenario.getMatrixOfObjectiveFunctionsValues()) {
  for (const auto& function : scenario.getExecutionOptimization().getVectorOfObjectiveFunctions()) {
    names.push_back(function->getType().getName());
  }
  if (withVariables) variables = scenario.getMatrixOfSolutions();
}

std::vector<std::string> FrontTable::header() const {
  std::vector<std::string> line = {"row"};
  line.insert(line.end(), names.begin(), names.end());
  const std::size_t count = variables.empty() ? 0 : variables.front().size();
  for (std::size_t i = 1; i <= count; ++i) line.push_back("x" + std::to_string(i));
  return line;
}

std::vector<std::string> FrontTable::fields(std::size_t row, int digits) const {
  std::vector<std::string> line = {std::to_string(row)};
  for (double value : objectives[row]) line.push_back(number(value, digits));
  if (row < variables.size()) {
    for (double value : variables[row]) line.push_back(number(value, digits));
  }
  return line;
}

void FrontTable::printTable(std::ostream& out) const {
  std::vector<std::vector<std::string>> lines = {header()};
  for (std::size_t row = 0; row < objectives.size(); ++row) lines.push_back(fields(row, 10));
  std::vector<std::size_t> widths(lines.front().size(), 0);
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size() && i < widths.size(); ++i) {
      widths[i] = std::max(widths[i], displayWidth(line[i]));
    }
  }
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size() && i < widths.size(); ++i) {
      out << (i == 0 ? "" : "  ") << std::string(widths[i] - displayWidth(line[i]), ' ') << line[i];
    }
    out << '\n';
  }
}

void FrontTable::printCsv(std::ostream& out) const {
  const auto print = [&](const std::vector<std::string>& line) {
    for (std::size_t i = 0; i < line.size(); ++i) out << (i == 0 ? "" : ",") << csvField(line[i]);
    out << '\n';
  };
  print(header());
  for (std::size_t row = 0; row < objectives.size(); ++row) {
    print(fields(row, std::numeric_limits<double>::max_digits10));
  }
}

nlohmann::ordered_json FrontTable::toJson() const {
  auto rows = nlohmann::ordered_json::array();
  for (std::size_t row = 0; row < objectives.size(); ++row) {
    nlohmann::ordered_json entry;
    entry["row"] = row;
    nlohmann::ordered_json values = nlohmann::ordered_json::object();
    for (std::size_t i = 0; i < objectives[row].size() && i < names.size(); ++i) {
      values[names[i]] = objectives[row][i];
    }
    entry["objectives"] = values;
    if (row < variables.size()) entry["variables"] = variables[row];
    rows.push_back(entry);
  }
  return rows;
}
