#include "optimization/expression/ExpressionFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "optimization/expression/ConstantExpression.h"
#include "optimization/expression/DivisionExpression.h"
#include "optimization/expression/DivisionWithTwoElementsExpression.h"
#include "optimization/expression/ExponentiationExpression.h"
#include "optimization/expression/FactorialExpression.h"
#include "optimization/expression/LogarithmExpression.h"
#include "optimization/expression/MaximumToSingleElementExpression.h"
#include "optimization/expression/MaximumWithSeveralContextsExpression.h"
#include "optimization/expression/MeanToSingleElementExpression.h"
#include "optimization/expression/MeanWithSeveralContextsExpression.h"
#include "optimization/expression/MedianToSingleElementExpression.h"
#include "optimization/expression/MedianWithSeveralContextsExpression.h"
#include "optimization/expression/MinimumToSingleElementExpression.h"
#include "optimization/expression/MinimumWithSeveralContextsExpression.h"
#include "optimization/expression/MultiplicationByMinusOneExpression.h"
#include "optimization/expression/MultiplicationExpression.h"
#include "optimization/expression/MultiplicationWithTwoContextsExpression.h"
#include "optimization/expression/PopulationStandardDeviationToSingleElementExpression.h"
#include "optimization/expression/PopulationStandardDeviationWithSeveralContextsExpression.h"
#include "optimization/expression/PopulationVarianceToSingleElementExpression.h"
#include "optimization/expression/PopulationVarianceWithSeveralContextsExpression.h"
#include "optimization/expression/PotentiationExpression.h"
#include "optimization/expression/RadiciationExpression.h"
#include "optimization/expression/SampleStandardDeviationToSingleElementExpression.h"
#include "optimization/expression/SampleStandardDeviationWithSeveralContextsExpression.h"
#include "optimization/expression/SampleVarianceToSingleElementExpression.h"
#include "optimization/expression/SampleVarianceWithSeveralContextsExpression.h"
#include "optimization/expression/SerieExpression.h"
#include "optimization/expression/SquareRootExpression.h"
#include "optimization/expression/SubtractionExpression.h"
#include "optimization/expression/SubtractionWithTwoContextsExpression.h"
#include "optimization/expression/SumExpression.h"
#include "optimization/expression/SumWithSeveralContextsExpression.h"
#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"

namespace {

using Maker =
    std::function<ExpressionPtr(std::weak_ptr<ExpressionDefinition>, std::string, std::string)>;

template <typename Node>
ExpressionPtr makeNode(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                       std::string description) {
  return std::make_shared<Node>(std::move(parent), std::move(name), std::move(description));
}

const std::map<ExpressionType, Maker>& makers() {
  using X = ExpressionType;
  static const std::map<ExpressionType, Maker> table{
      {X::constant, makeNode<ConstantExpression>},
      {X::sum, makeNode<SumExpression>},
      {X::subtraction, makeNode<SubtractionExpression>},
      {X::multiplication, makeNode<MultiplicationExpression>},
      {X::multiplicationByMinusOne, makeNode<MultiplicationByMinusOneExpression>},
      {X::division, makeNode<DivisionExpression>},
      {X::potentiation, makeNode<PotentiationExpression>},
      {X::exponentiation, makeNode<ExponentiationExpression>},
      {X::squareRoot, makeNode<SquareRootExpression>},
      {X::radiciation, makeNode<RadiciationExpression>},
      {X::logarithm, makeNode<LogarithmExpression>},
      {X::factorial, makeNode<FactorialExpression>},
      {X::serie, makeNode<SerieExpression>},
      {X::minimum, makeNode<MinimumToSingleElementExpression>},
      {X::maximum, makeNode<MaximumToSingleElementExpression>},
      {X::mean, makeNode<MeanToSingleElementExpression>},
      {X::median, makeNode<MedianToSingleElementExpression>},
      {X::sampleVariance, makeNode<SampleVarianceToSingleElementExpression>},
      {X::populationVariance, makeNode<PopulationVarianceToSingleElementExpression>},
      {X::sampleStandardDeviation, makeNode<SampleStandardDeviationToSingleElementExpression>},
      {X::populationStandardDeviation,
       makeNode<PopulationStandardDeviationToSingleElementExpression>},
      {X::sumWithSeveralContexts, makeNode<SumWithSeveralContextsExpression>},
      {X::subtractionWithTwoContexts, makeNode<SubtractionWithTwoContextsExpression>},
      {X::multiplicationWithTwoContexts, makeNode<MultiplicationWithTwoContextsExpression>},
      {X::divisionWithTwoContexts, makeNode<DivisionWithTwoElementsExpression>},
      {X::summation, makeNode<SummationToSeveralElementsWithSingleFunctionExpression>},
      {X::meanWithSeveralContexts, makeNode<MeanWithSeveralContextsExpression>},
      {X::medianWithSeveralContexts, makeNode<MedianWithSeveralContextsExpression>},
      {X::minimumWithSeveralContexts, makeNode<MinimumWithSeveralContextsExpression>},
      {X::maximumWithSeveralContexts, makeNode<MaximumWithSeveralContextsExpression>},
      {X::sampleVarianceWithSeveralContexts, makeNode<SampleVarianceWithSeveralContextsExpression>},
      {X::populationVarianceWithSeveralContexts,
       makeNode<PopulationVarianceWithSeveralContextsExpression>},
      {X::sampleStandardDeviationWithSeveralContexts,
       makeNode<SampleStandardDeviationWithSeveralContextsExpression>},
      {X::populationStandardDeviationWithSeveralContexts,
       makeNode<PopulationStandardDeviationWithSeveralContextsExpression>},
  };
  return table;
}

}  // namespace

ExpressionPtr ExpressionFactory::make(ExpressionType type,
                                      std::weak_ptr<ExpressionDefinition> parent, std::string name,
                                      std::string description) {
  const auto found = makers().find(type);
  if (found == makers().end()) {
    throw std::invalid_argument("ExpressionFactory::make(): invalid expressionType");
  }
  return found->second(std::move(parent), std::move(name), std::move(description));
}
