#include "CurveTable.h"

#include <algorithm>
#include <limits>
#include <sstream>
#include <stdexcept>

#include "HostText.h"
#include "TextColumns.h"
#include "common/NumericalUtils.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"

namespace {

constexpr double kQ90 = 90.0;

bool isQ90(double level) { return NumericalUtils::compareDoubles(level, kQ90, 1e-6); }

}  // namespace

CurveTable CurveTable::of(const Scenario& scenario) {
  if (const auto* curve = dynamic_cast<const GuaranteeCurveScenario*>(&scenario)) {
    return CurveTable(*curve);
  }
  if (const auto* system = dynamic_cast<const SystemGuaranteeCurveScenario*>(&scenario)) {
    return CurveTable(*system);
  }
  throw std::runtime_error(
      tr("scenario \"{1}\" is a \"{2}\" scenario, not a guarantee curve "
         "(\"Curva de garantia\" or \"Curva de garantia do sistema\")",
         {scenario.getName(), scenario.getScenarioType().getName()}));
}

CurveTable::CurveTable(const GuaranteeCurveScenario& scenario) {
  const auto& execution = scenario.getExecutionGuaranteeCurve();
  const auto& curve = execution.getGuaranteeStr();
  for (unsigned int id : curve.reservoirIds) names.push_back(scenario.getElement(id)->getName());
  levels = curve.guarantees;
  releases = curve.values;
  findMissing(execution.isOnlyQ90() ? std::vector<double>{kQ90} : execution.getGuaranteeValues());
  for (const auto& [id, name] : execution.getReservoirFailMap()) failed.push_back(name);
}

CurveTable::CurveTable(const SystemGuaranteeCurveScenario& scenario) {
  const auto& execution = scenario.getExecutionSystemGuaranteeCurve();
  const auto& curve = execution.getSystemGuaranteeCurveStr();
  const unsigned int id = execution.getOutSystemReservoirId();
  const auto& elements = scenario.getElements();
  const auto out = std::find_if(elements.begin(), elements.end(),
                                [id](const auto& element) { return element->getId() == id; });
  // A file may name an out reservoir that is not there, which the checks report before a run.
  names.push_back(out != elements.end() ? (*out)->getName() : "#" + std::to_string(id));
  levels = curve.guarantees;
  for (double q : curve.guaranteeCurveValues) releases.push_back({q});
  findMissing(execution.isOnlyQ90() ? std::vector<double>{kQ90}
                                    : ExecutionSystemGuaranteeCurve::getGuaranteeValues());
}

void CurveTable::findMissing(const std::vector<double>& asked) {
  for (double level : asked) {
    if (std::none_of(levels.begin(), levels.end(), [&](double found) {
          return NumericalUtils::compareDoubles(found, level, 1e-6);
        })) {
      missing.push_back(level);
    }
  }
}

void CurveTable::printTable(std::ostream& out) const {
  std::vector<std::vector<std::string>> lines = {header()};
  lines.front().front() = tr("guarantee");
  for (std::size_t row = 0; row < levels.size(); ++row) {
    lines.push_back(fields(row, 10));
    if (isQ90(levels[row])) lines.back().front() += " (Q90)";
  }
  TextColumns::printAligned(lines, out);
}

void CurveTable::printCsv(std::ostream& out) const {
  TextColumns::printCsvLine(header(), out);
  for (std::size_t row = 0; row < levels.size(); ++row) {
    TextColumns::printCsvLine(fields(row, std::numeric_limits<double>::max_digits10), out);
  }
}

std::vector<std::string> CurveTable::header() const {
  std::vector<std::string> line = {"guarantee"};
  line.insert(line.end(), names.begin(), names.end());
  return line;
}

std::vector<std::string> CurveTable::fields(std::size_t row, int digits) const {
  std::vector<std::string> line = {TextColumns::number(levels[row], digits)};
  for (double q : releases[row]) line.push_back(TextColumns::number(q, digits));
  return line;
}

nlohmann::ordered_json CurveTable::toJson() const {
  auto rows = nlohmann::ordered_json::array();
  for (std::size_t row = 0; row < levels.size(); ++row) {
    nlohmann::ordered_json flows = nlohmann::ordered_json::object();
    for (std::size_t i = 0; i < names.size() && i < releases[row].size(); ++i) {
      flows[names[i]] = releases[row][i];
    }
    rows.push_back({{"guarantee", levels[row]}, {"releases", flows}});
  }
  return rows;
}

void CurveTable::printFailures(std::ostream& out) const {
  for (double level : missing) {
    std::ostringstream shown;
    shown << level;
    out << tr("no release reaches the guarantee {1} %", {shown.str()}) << '\n';
  }
  for (const auto& name : failed) out << tr("reservoir \"{1}\" failed a level", {name}) << '\n';
}
