#include "FrontTable.h"

#include <limits>
#include <stdexcept>

#include "HostText.h"
#include "TextColumns.h"
#include "optimization/RuleOptimizationScenario.h"

RuleOptimizationScenario& FrontTable::optimisationOf(Scenario& scenario) {
  auto* optimisation = dynamic_cast<RuleOptimizationScenario*>(&scenario);
  if (!optimisation) {
    throw std::runtime_error(
        tr("scenario \"{1}\" is a \"{2}\" scenario, not a rule optimisation (\"Otimizador de "
           "regras\")",
           {scenario.getName(), scenario.getScenarioType().getName()}));
  }
  return *optimisation;
}

FrontTable::FrontTable(const RuleOptimizationScenario& scenario, bool withVariables)
    : objectives(scenario.getMatrixOfObjectiveFunctionsValues()) {
  for (const auto& function : scenario.getExecutionOptimization().getVectorOfObjectiveFunctions()) {
    names.push_back(function->getType().getName());
  }
  // The personalised functions follow the fixed ones in every row, the enabled ones only.
  for (const auto& configuration :
       scenario.getExecutionOptimization().getVectorOfExpressionDefinitionConfiguration()) {
    if (configuration.isEnabled()) names.push_back(configuration.getName());
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
  for (double value : objectives[row]) line.push_back(TextColumns::number(value, digits));
  if (row < variables.size()) {
    for (double value : variables[row]) line.push_back(TextColumns::number(value, digits));
  }
  return line;
}

void FrontTable::printTable(std::ostream& out) const {
  std::vector<std::vector<std::string>> lines = {header()};
  lines.front().front() = tr("row");
  for (std::size_t row = 0; row < objectives.size(); ++row) lines.push_back(fields(row, 10));
  TextColumns::printAligned(lines, out);
}

void FrontTable::printCsv(std::ostream& out) const {
  TextColumns::printCsvLine(header(), out);
  for (std::size_t row = 0; row < objectives.size(); ++row) {
    TextColumns::printCsvLine(fields(row, std::numeric_limits<double>::max_digits10), out);
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
