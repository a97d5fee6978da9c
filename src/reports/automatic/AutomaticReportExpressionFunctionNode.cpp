#include "reports/automatic/AutomaticReportExpressionFunctionNode.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "core/Element.h"
#include "core/Scenario.h"
#include "reports/SerieStatisticsInInterval.h"
#include "reports/automatic/AutomaticReportExpressionTerminator.h"
#include "reports/automatic/FactoryOfElementTypeToVectorOfReportMetricTypeEnum.h"
#include "reports/automatic/FactoryOfReportMetricTypeToReportMetric.h"
#include "reports/automatic/FactoryOfReportSerieTypeToReportSerie.h"
#include "vocabulary/AutomaticReportSerieTypeEnumFactory.h"
#include "vocabulary/ReportMetricTypeEnumFactory.h"
#include "vocabulary/Vocabulary.h"

namespace {

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

// The kind of series of that name; of two kinds so named, the result's.
const Enum<SerieType>* serieTypeNamed(const std::string& name) {
  const Enum<SerieType>* found = nullptr;
  for (const auto& row : Vocabulary::serieTypes().getRows()) {
    if (row.getName() != name) continue;
    if (found == nullptr || Vocabulary::outputSerieTypes().count(row.getType()) != 0) {
      found = &row;
    }
  }
  return found;
}

double orNaN(double value) {
  return NumericalUtils::isEmpty(value) ? std::numeric_limits<double>::quiet_NaN() : value;
}

}  // namespace

AutomaticReportExpressionFunctionNode::AutomaticReportExpressionFunctionNode(
    std::string name, std::vector<std::unique_ptr<AutomaticReportExpression>> parameters,
    std::size_t position)
    : AutomaticReportExpression(position),
      name(std::move(name)),
      parameters(std::move(parameters)) {}

void AutomaticReportExpressionFunctionNode::processStr() {
  if (const auto kind = ReportMetricTypeEnumFactory::findByName(name)) {
    expectParameters(1, "an element");
    nameAt(0, "an element name");
    metric = kind->getType();
    return;
  }
  const auto kind = AutomaticReportSerieTypeEnumFactory::findByName(name);
  if (!kind) fail("unknown metric or operation " + quoted(name));
  expectParameters(2, "an element and a kind of series");
  nameAt(0, "an element name");
  const Enum<SerieType>* type = serieTypeNamed(nameAt(1, "the name of a kind of series"));
  if (type == nullptr) {
    failAt(parameters[1]->getPosition(), "unknown kind of series " + quoted(nameAt(1, "")));
  }
  serieType = type->getType();
  operation = kind->getType();
}

void AutomaticReportExpressionFunctionNode::expectParameters(std::size_t count,
                                                             const std::string& what) const {
  if (parameters.size() == count) return;
  fail(quoted(name) + " takes " + std::to_string(count) + " argument" + (count == 1 ? "" : "s") +
       " (" + what + "), found " + std::to_string(parameters.size()));
}

const std::string& AutomaticReportExpressionFunctionNode::nameAt(
    std::size_t index, const std::string& expected) const {
  if (!parameters.at(index)) fail("the call of " + quoted(name) + " lacks an argument");
  const auto* leaf =
      dynamic_cast<const AutomaticReportExpressionTerminator*>(parameters[index].get());
  if (leaf == nullptr) {
    failAt(parameters[index]->getPosition(),
           "expected " + expected +
               "; write a name that holds an operator, a parenthesis or a comma in double quotes");
  }
  return leaf->getText();
}

AutomaticReportExpressionType AutomaticReportExpressionFunctionNode::getExpressionType() const {
  return AutomaticReportExpressionType::function;
}

bool AutomaticReportExpressionFunctionNode::isValid() const {
  if (!metric && !operation) return false;
  if (parameters.size() != (metric ? 1u : 2u)) return false;
  for (const auto& parameter : parameters) {
    if (!parameter || !parameter->isValid()) return false;
  }
  return true;
}

double AutomaticReportExpressionFunctionNode::calculate(const AutomaticReportRun& run) const {
  if (!isValid()) fail("the call of " + quoted(name) + " is incomplete");
  return metric ? metricOver(run) : operationOver(run);
}

std::shared_ptr<Element> AutomaticReportExpressionFunctionNode::elementOf(
    const AutomaticReportRun& run) const {
  const std::string& elementName = nameAt(0, "");
  for (const auto& element : run.scenario->getElements()) {
    if (element->getName() == elementName) return element;
  }
  failAt(parameters[0]->getPosition(), "scenario " + quoted(run.scenario->getName()) +
                                           " has no element named " + quoted(elementName));
}

double AutomaticReportExpressionFunctionNode::metricOver(const AutomaticReportRun& run) const {
  const auto element = elementOf(run);
  if (!FactoryOfElementTypeToVectorOfReportMetricTypeEnum::allows(element->getType(), *metric)) {
    fail(quoted(name) + " does not apply to " + quoted(element->getName()) + " (" +
         element->getElementType().getName() + ")");
  }
  try {
    return orNaN(FactoryOfReportMetricTypeToReportMetric::make(*metric)->calculate(
        element, run.scenario, run.runIndex));
  } catch (const std::exception& error) {
    fail(name + "(" + element->getName() + "): " + error.what());
  }
}

double AutomaticReportExpressionFunctionNode::operationOver(const AutomaticReportRun& run) const {
  const auto element = elementOf(run);
  const bool input = SerieStatisticsInInterval::isAInputSerie(serieType);
  if (!input && run.runIndex >= element->getOutputSeries().size()) {
    failAt(parameters[0]->getPosition(), "element " + quoted(element->getName()) +
                                             " has no results in window " +
                                             std::to_string(run.runIndex + 1));
  }
  const auto& container =
      input ? element->getInputSeries() : element->getOutputSeries()[run.runIndex];
  if (!container || !container->hasSerie(serieType)) {
    failAt(parameters[1]->getPosition(),
           "element " + quoted(element->getName()) + " has no series " + quoted(nameAt(1, "")));
  }
  try {
    return orNaN(FactoryOfReportSerieTypeToReportSerie::make(*operation)
                     ->calculate(run.scenario, *element, serieType, run.runIndex));
  } catch (const std::exception& error) {
    fail(name + "(" + element->getName() + ", " + nameAt(1, "") + "): " + error.what());
  }
}

std::string AutomaticReportExpressionFunctionNode::print() const {
  std::string text = name + "(";
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    text += (i == 0 ? "" : ", ") + (parameters[i] ? parameters[i]->print() : std::string());
  }
  return text + ")";
}

void AutomaticReportExpressionFunctionNode::release() { parameters.clear(); }

std::vector<const AutomaticReportExpression*> AutomaticReportExpressionFunctionNode::children()
    const {
  std::vector<const AutomaticReportExpression*> result;
  for (const auto& parameter : parameters) {
    if (parameter) result.push_back(parameter.get());
  }
  return result;
}
