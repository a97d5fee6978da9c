#include "optimization/expression/ExpressionBuilder.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "optimization/expression/ConstantExpression.h"
#include "optimization/expression/DivisionExpression.h"
#include "optimization/expression/ExponentiationExpression.h"
#include "optimization/expression/ExpressionFactory.h"
#include "optimization/expression/FactorialExpression.h"
#include "optimization/expression/LogarithmExpression.h"
#include "optimization/expression/MultiplicationByMinusOneExpression.h"
#include "optimization/expression/MultiplicationExpression.h"
#include "optimization/expression/PotentiationExpression.h"
#include "optimization/expression/RadiciationExpression.h"
#include "optimization/expression/SeveralFunctionsExpression.h"
#include "optimization/expression/SingleElementExpression.h"
#include "optimization/expression/SquareRootExpression.h"
#include "optimization/expression/SubtractionExpression.h"
#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"
#include "optimization/expression/TwoFunctionsExpression.h"
#include "scenario/ScenarioManager.h"

namespace {

const char* const defaultName = "fx()";

ExpressionPtr constantUnder(const ExpressionPtr& parent) {
  return std::make_shared<ConstantExpression>(parent, defaultName);
}

// Fills node, already made of its type, with its default children.
using Filler = std::function<void(const ExpressionPtr& node)>;

template <typename Node>
Node& as(const ExpressionPtr& node) {
  return static_cast<Node&>(*node);
}

void leaf(const ExpressionPtr&) {}

template <typename Node>
void firstAndSecond(const ExpressionPtr& node) {
  as<Node>(node).setFirstExpression(constantUnder(node));
  as<Node>(node).setSecondExpression(constantUnder(node));
}

void buildDivisionExpression(const ExpressionPtr& node) {
  auto denominator = std::make_shared<ConstantExpression>(node, defaultName, defaultName, 1.0);
  as<DivisionExpression>(node).setNumeratorExpression(constantUnder(node));
  as<DivisionExpression>(node).setDenominatorExpression(denominator);
}

void buildLogarithmExpression(const ExpressionPtr& node) {
  as<LogarithmExpression>(node).setLogarithmingExpression(constantUnder(node));
  as<LogarithmExpression>(node).setBaseExpression(constantUnder(node));
}

void buildMultByMinusOneExpression(const ExpressionPtr& node) {
  as<MultiplicationByMinusOneExpression>(node).setExpressionToBeMultiplied(constantUnder(node));
}

void buildPotentiationExpression(const ExpressionPtr& node) {
  as<PotentiationExpression>(node).setBaseExpression(constantUnder(node));
}

void buildExponentiationExpression(const ExpressionPtr& node) {
  as<ExponentiationExpression>(node).setExponentExpression(constantUnder(node));
}

template <typename Node>
void rooting(const ExpressionPtr& node) {
  as<Node>(node).setRootingExpression(constantUnder(node));
}

void toSingleElement(const ExpressionPtr& node) {
  for (auto& child : ExpressionBuilder::buildVectorOfExpressions(2, node)) {
    as<SingleElementExpression>(node).addExpression(child);
  }
}

// With fewer elements in the scenario than children, the node keeps fewer ids than children, and
// the user must pick the missing elements before it can be evaluated.
void withSeveralContexts(const ExpressionPtr& node) {
  auto& several = as<SeveralFunctionsExpression>(node);
  const auto ids = ExpressionBuilder::buildVectorOfElementIDs(2);
  for (auto& child : ExpressionBuilder::buildVectorOfExpressions(2, node)) {
    several.addExpression(child, 0);
  }
  several.setVectorOfElementIDs(ids);
}

void withTwoContexts(const ExpressionPtr& node) {
  firstAndSecond<TwoFunctionsExpression>(node);
  const auto ids = ExpressionBuilder::buildVectorOfElementIDs(2);
  for (std::size_t i = 0; i < ids.size(); ++i) {
    as<TwoFunctionsExpression>(node).changeIDInIndex(i, ids[i]);
  }
}

void buildSumationToSeveralElementsContextsExpression(const ExpressionPtr& node) {
  as<SummationToSeveralElementsWithSingleFunctionExpression>(node).setExpression(
      constantUnder(node));
}

const std::map<ExpressionType, Filler>& fillers() {
  using X = ExpressionType;
  static const std::map<ExpressionType, Filler> table{
      {X::constant, leaf},
      {X::serie, leaf},
      {X::sum, toSingleElement},
      {X::subtraction, firstAndSecond<SubtractionExpression>},
      {X::multiplication, firstAndSecond<MultiplicationExpression>},
      {X::multiplicationByMinusOne, buildMultByMinusOneExpression},
      {X::division, buildDivisionExpression},
      {X::potentiation, buildPotentiationExpression},
      {X::exponentiation, buildExponentiationExpression},
      {X::squareRoot, rooting<SquareRootExpression>},
      {X::radiciation, rooting<RadiciationExpression>},
      {X::logarithm, buildLogarithmExpression},
      {X::factorial, rooting<FactorialExpression>},
      {X::minimum, toSingleElement},
      {X::maximum, toSingleElement},
      {X::mean, toSingleElement},
      {X::median, toSingleElement},
      {X::sampleVariance, toSingleElement},
      {X::populationVariance, toSingleElement},
      {X::sampleStandardDeviation, toSingleElement},
      {X::populationStandardDeviation, toSingleElement},
      {X::sumWithSeveralContexts, withSeveralContexts},
      {X::subtractionWithTwoContexts, withTwoContexts},
      {X::multiplicationWithTwoContexts, withTwoContexts},
      {X::divisionWithTwoContexts, withTwoContexts},
      {X::summation, buildSumationToSeveralElementsContextsExpression},
      {X::meanWithSeveralContexts, withSeveralContexts},
      {X::medianWithSeveralContexts, withSeveralContexts},
      {X::minimumWithSeveralContexts, withSeveralContexts},
      {X::maximumWithSeveralContexts, withSeveralContexts},
      {X::sampleVarianceWithSeveralContexts, withSeveralContexts},
      {X::populationVarianceWithSeveralContexts, withSeveralContexts},
      {X::sampleStandardDeviationWithSeveralContexts, withSeveralContexts},
      {X::populationStandardDeviationWithSeveralContexts, withSeveralContexts},
  };
  return table;
}

}  // namespace

ExpressionPtr ExpressionBuilder::build(ExpressionType type,
                                       std::weak_ptr<ExpressionDefinition> parent) {
  const auto found = fillers().find(type);
  if (found == fillers().end()) {
    throw std::invalid_argument("ExpressionBuilder::make(): invalid expressionType");
  }
  auto node = ExpressionFactory::make(type, std::move(parent), defaultName, defaultName);
  found->second(node);
  return node;
}

std::vector<ExpressionPtr> ExpressionBuilder::buildVectorOfExpressions(
    std::size_t count, const ExpressionPtr& parent) {
  std::vector<ExpressionPtr> expressions;
  for (std::size_t i = 0; i < count; ++i) expressions.push_back(constantUnder(parent));
  return expressions;
}

std::vector<unsigned int> ExpressionBuilder::buildVectorOfElementIDs(std::size_t count) {
  std::vector<unsigned int> ids;
  const auto& scenario = ScenarioManager::getInstance().getCurrentScenario();
  if (!scenario) return ids;
  for (const auto& element : scenario->getElements()) {
    if (ids.size() == count) break;
    ids.push_back(element->getId());
  }
  return ids;
}
