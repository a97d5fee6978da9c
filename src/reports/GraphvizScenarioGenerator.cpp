#include "reports/GraphvizScenarioGenerator.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <locale>
#include <map>
#include <stdexcept>
#include <system_error>

#include "common/NumericalUtils.h"
#include "core/ElementSets.h"
#include "core/Link.h"
#include "core/Node.h"
#include "core/PrioritySettings.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "core/Scenario.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "reports/ReportFormat.h"

namespace {

// The attributes of each kind of element: a node's whole attribute list, a link's
// attribute behind its label.
const std::map<ElementType, std::string> kAttributes = {
    {ElementType::reservoir, "[shape=triangle,color=lightblue,style=filled];"},
    {ElementType::humanDemand, "[shape=polygon, sides=4, color=red,style=filled];"},
    {ElementType::animalDemand, "[shape=polygon, sides=4, color=yellow,style=filled];"},
    {ElementType::industrialDemand, "[shape=polygon, sides=4, color=grey,style=filled];"},
    {ElementType::irrigationDemand, "[shape=polygon, sides=4, color=green,style=filled];"},
    {ElementType::drain, "[shape=polygon, sides=4, color=cyan,style=filled];"},
    {ElementType::junction, "[shape=circle, sides=4, color=cyan,style=filled];"},
    {ElementType::basin, "[shape=circle, sides=4, color=DodgerBlue,style=filled];"},
    {ElementType::artificialLink, "color=black"},
    {ElementType::naturalLink, "color=cyan"},
};

const std::string& attributesOf(const Element& element) {
  const auto found = kAttributes.find(element.getType());
  if (found == kAttributes.end()) {
    throw std::invalid_argument("GraphvizScenarioGenerator: invalid elementType of \"" +
                                element.getName() + "\"");
  }
  return found->second;
}

// What a node's label adds behind its name, "" for nothing.
using Addition = std::function<std::string(const std::shared_ptr<Element>& element)>;

const double kQ90 = 90.0;
const double kTolerance = 1e-6;

std::string q90Text(double flow) { return "Q90=" + ReportFormat::number(flow); }

const char* const kNoQ90 = "Q90=-";

void write(const std::filesystem::path& path, const Scenario& scenario, const Addition& addition) {
  const Scenario::Elements elements = scenario.getSortedElements();
  // Every lookup that may throw is done before the file is made.
  std::map<unsigned int, std::string> additions;
  for (const auto& element : elements) {
    attributesOf(*element);
    if (ElementSets::nodes().count(element->getType()) != 0) {
      additions[element->getId()] = addition(element);
    }
  }
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) throw std::runtime_error("GraphVizGenerator::generateFile() error in open file");
  file.imbue(std::locale::classic());
  file << "digraph G {\n"
       << "rankdir=LR;\n";
  for (const auto& element : elements) {
    const auto link = std::dynamic_pointer_cast<Link>(element);
    if (!link) continue;
    const auto up = link->getUpstream();
    const auto down = link->getDownstream();
    if (!up || !down) continue;
    file << '"' << GraphvizScenarioGenerator::escape(up->getName()) << "\" -> \""
         << GraphvizScenarioGenerator::escape(down->getName()) << "\" [label=\""
         << GraphvizScenarioGenerator::escape(link->getName()) << "\"," << attributesOf(*link)
         << "];\n";
  }
  for (const auto& element : elements) {
    if (ElementSets::nodes().count(element->getType()) == 0) continue;
    const std::string name = GraphvizScenarioGenerator::escape(element->getName());
    file << '"' << name << "\" ";
    const std::string& added = additions[element->getId()];
    if (!added.empty()) file << "[label=\"" << name << "\\n" << added << "\"]";
    file << attributesOf(*element) << '\n';
  }
  file << "}\n";
  file.close();
  if (file.fail()) {
    // Only a file this call made is taken back, never a device or a folder the path names.
    std::error_code ignored;
    if (std::filesystem::is_regular_file(path, ignored)) std::filesystem::remove(path, ignored);
    throw std::runtime_error("GraphVizGenerator::generateFile() error in write file: " +
                             path.string());
  }
}

bool isReservoir(const Element& element) { return element.getType() == ElementType::reservoir; }

}  // namespace

void GraphvizScenarioGenerator::generateFile(const std::filesystem::path& path,
                                             const Scenario& scenario) {
  write(path, scenario, [](const std::shared_ptr<Element>&) { return std::string(); });
}

void GraphvizScenarioGenerator::generateFileWithPriority(const std::filesystem::path& path,
                                                         const Scenario& scenario) {
  const SettingsManager& settings = scenario.getSettingsManager();
  write(path, scenario, [&settings](const std::shared_ptr<Element>& element) {
    // Reservoirs and demands hold priorities; junctions, basins and links take no part in them.
    if (ElementSets::demandsWithReservoir().count(element->getType()) == 0) return std::string();
    return "P=" + std::to_string(
                      Scenario::getSettings<PrioritySettings>(element, settings)->getPriority());
  });
}

void GraphvizScenarioGenerator::generateFileWithGuaranteeCurve(
    const std::filesystem::path& path, const GuaranteeCurveScenario& scenario) {
  const SettingsManager& settings = scenario.getSettingsManager();
  const auto& curve = scenario.getExecutionGuaranteeCurve().getGuaranteeStr();
  write(path, scenario, [&settings, &curve](const std::shared_ptr<Element>& element) {
    if (!isReservoir(*element)) return std::string();
    if (!Scenario::getSettings<ReservoirGuaranteeCurveSettings>(element, settings)
             ->getIsGuaranteeCurve()) {
      return std::string();
    }
    const auto column =
        std::find(curve.reservoirIds.begin(), curve.reservoirIds.end(), element->getId());
    if (column == curve.reservoirIds.end()) return std::string(kNoQ90);
    const auto index = static_cast<std::size_t>(column - curve.reservoirIds.begin());
    for (std::size_t row = 0; row < curve.guarantees.size(); ++row) {
      if (NumericalUtils::compareDoubles(curve.guarantees[row], kQ90, kTolerance) &&
          row < curve.values.size() && index < curve.values[row].size()) {
        return q90Text(curve.values[row][index]);
      }
    }
    return std::string(kNoQ90);
  });
}

void GraphvizScenarioGenerator::generateFileWithSystemGuaranteeCurve(
    const std::filesystem::path& path, const SystemGuaranteeCurveScenario& scenario) {
  const auto& execution = scenario.getExecutionSystemGuaranteeCurve();
  const auto& curve = execution.getSystemGuaranteeCurveStr();
  const unsigned int outId = execution.getOutSystemReservoirId();
  write(path, scenario, [&curve, outId](const std::shared_ptr<Element>& element) {
    if (!isReservoir(*element) || element->getId() != outId) return std::string();
    for (std::size_t row = 0; row < curve.guarantees.size(); ++row) {
      if (NumericalUtils::compareDoubles(curve.guarantees[row], kQ90, kTolerance) &&
          row < curve.guaranteeCurveValues.size()) {
        return q90Text(curve.guaranteeCurveValues[row]);
      }
    }
    return std::string(kNoQ90);
  });
}

std::string GraphvizScenarioGenerator::escape(const std::string& text) {
  // Inside DOT quotes a double quote would close the string, and a backslash would take the
  // character after it (a closing quote among them); a line break is written as the escape that
  // labels read.
  std::string escaped;
  escaped.reserve(text.size());
  for (char c : text) {
    if (c == '"') {
      escaped += "\\\"";
    } else if (c == '\\') {
      escaped += "\\\\";
    } else if (c == '\n') {
      escaped += "\\n";
    } else {
      escaped += c;
    }
  }
  return escaped;
}
