#include "CurveTable.h"

#include <algorithm>
#include <iomanip>
#include <limits>
#include <sstream>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "optimization/GuaranteeCurveScenario.h"

namespace {

constexpr double kQ90 = 90.0;

std::string number(double value, int digits) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << std::setprecision(digits) << value;
  return text.str();
}

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

bool isQ90(double level) { return NumericalUtils::compareDoubles(level, kQ90, 1e-6); }

}  // namespace

GuaranteeCurveScenario& CurveTable::curveOf(Scenario& scenario) {
  auto* curve = dynamic_cast<GuaranteeCurveScenario*>(&scenario);
  if (!curve) {
    throw std::runtime_error("scenario \"" + scenario.getName() + "\" is a \"" +
                             scenario.getScenarioType().getName() +
                             "\" scenario, not a guarantee curve (\"Curva de garantia\")");
  }
  return *curve;
}

CurveTable::CurveTable(const GuaranteeCurveScenario& scenario) {
  const auto& execution = scenario.getExecutionGuaranteeCurve();
  const auto& curve = execution.getGuaranteeStr();
  for (unsigned int id : curve.reservoirIds) names.push_back(scenario.getElement(id)->getName());
  levels = curve.guarantees;
  releases = curve.values;
  const std::vector<double> asked =
      execution.isOnlyQ90() ? std::vector<double>{kQ90} : execution.getGuaranteeValues();
  for (double level : asked) {
    if (std::none_of(levels.begin(), levels.end(), [&](double found) {
          return NumericalUtils::compareDoubles(found, level, 1e-6);
        })) {
      missing.push_back(level);
    }
  }
  for (const auto& [id, name] : execution.getReservoirFailMap()) failed.push_back(name);
}

void CurveTable::printTable(std::ostream& out) const {
  std::vector<std::vector<std::string>> lines = {{"guarantee"}};
  lines[0].insert(lines[0].end(), names.begin(), names.end());
  for (std::size_t row = 0; row < levels.size(); ++row) {
    lines.push_back({number(levels[row], 10) + (isQ90(levels[row]) ? " (Q90)" : "")});
    for (double q : releases[row]) lines.back().push_back(number(q, 10));
  }
  std::vector<std::size_t> widths(lines[0].size(), 0);
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

void CurveTable::printCsv(std::ostream& out) const {
  out << "guarantee";
  for (const auto& name : names) out << ',' << csvField(name);
  out << '\n';
  const int digits = std::numeric_limits<double>::max_digits10;
  for (std::size_t row = 0; row < levels.size(); ++row) {
    out << number(levels[row], digits);
    for (double q : releases[row]) out << ',' << number(q, digits);
    out << '\n';
  }
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
  for (double level : missing) out << "no release reaches the guarantee " << level << " %\n";
  for (const auto& name : failed) out << "reservoir \"" << name << "\" failed a level\n";
}
