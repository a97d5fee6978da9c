#include "project/ExpressionDefinitionLoadFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "project/ConstantExpressionDefinitionJsonLoad.h"
#include "project/DivisionExpressionDefinitionJsonLoad.h"
#include "project/ExponentiationExpressionDefinitionJsonLoad.h"
#include "project/FactorialExpressionDefinitionJsonLoad.h"
#include "project/LogarithmExpressionDefinitionJsonLoad.h"
#include "project/MultByMinusOneExpressionDefinitionJsonLoad.h"
#include "project/MultExpressionDefinitionJsonLoad.h"
#include "project/PotentiationExpressionDefinitionJsonLoad.h"
#include "project/RadiciationExpressionDefinitionJsonLoad.h"
#include "project/SerieExpressionDefinitionJsonLoad.h"
#include "project/SeveralFunctionsExpressionDefinitionJsonLoad.h"
#include "project/SingleElementExpressionDefinitionJsonLoad.h"
#include "project/SquareRootExpressionDefinitionJsonLoad.h"
#include "project/SubExpressionDefinitionJsonLoad.h"
#include "project/SummationToSeveralElementsWithSingleFunctionExpressionDefinitionJsonLoad.h"
#include "project/TwoFunctionsExpressionDefinitionJsonLoad.h"

namespace {

using Reader = std::shared_ptr<ExpressionDefinitionJsonLoad>;
using Maker = std::function<Reader()>;

template <typename R>
Reader makeReader() {
  return std::make_shared<R>();
}

const std::map<ExpressionType, Maker>& readers() {
  using X = ExpressionType;
  static const std::map<ExpressionType, Maker> table{
      {X::constant, makeReader<ConstantExpressionDefinitionJsonLoad>},
      {X::sum, makeReader<SingleElementExpressionDefinitionJsonLoad>},
      {X::subtraction, makeReader<SubExpressionDefinitionJsonLoad>},
      {X::multiplication, makeReader<MultExpressionDefinitionJsonLoad>},
      {X::multiplicationByMinusOne, makeReader<MultByMinusOneExpressionDefinitionJsonLoad>},
      {X::division, makeReader<DivisionExpressionDefinitionJsonLoad>},
      {X::potentiation, makeReader<PotentiationExpressionDefinitionJsonLoad>},
      {X::exponentiation, makeReader<ExponentiationExpressionDefinitionJsonLoad>},
      {X::squareRoot, makeReader<SquareRootExpressionDefinitionJsonLoad>},
      {X::radiciation, makeReader<RadiciationExpressionDefinitionJsonLoad>},
      {X::logarithm, makeReader<LogarithmExpressionDefinitionJsonLoad>},
      {X::factorial, makeReader<FactorialExpressionDefinitionJsonLoad>},
      {X::serie, makeReader<SerieExpressionDefinitionJsonLoad>},
      {X::minimum, makeReader<SingleElementExpressionDefinitionJsonLoad>},
      {X::maximum, makeReader<SingleElementExpressionDefinitionJsonLoad>},
      {X::mean, makeReader<SingleElementExpressionDefinitionJsonLoad>},
      {X::median, makeReader<SingleElementExpressionDefinitionJsonLoad>},
      {X::sampleVariance, makeReader<SingleElementExpressionDefinitionJsonLoad>},
      {X::populationVariance, makeReader<SingleElementExpressionDefinitionJsonLoad>},
      {X::sampleStandardDeviation, makeReader<SingleElementExpressionDefinitionJsonLoad>},
      {X::populationStandardDeviation, makeReader<SingleElementExpressionDefinitionJsonLoad>},
      {X::sumWithSeveralContexts, makeReader<SeveralFunctionsExpressionDefinitionJsonLoad>},
      {X::subtractionWithTwoContexts, makeReader<TwoFunctionsExpressionDefinitionJsonLoad>},
      {X::multiplicationWithTwoContexts, makeReader<TwoFunctionsExpressionDefinitionJsonLoad>},
      {X::divisionWithTwoContexts, makeReader<TwoFunctionsExpressionDefinitionJsonLoad>},
      {X::summation,
       makeReader<SummationToSeveralElementsWithSingleFunctionExpressionDefinitionJsonLoad>},
      {X::meanWithSeveralContexts, makeReader<SeveralFunctionsExpressionDefinitionJsonLoad>},
      {X::medianWithSeveralContexts, makeReader<SeveralFunctionsExpressionDefinitionJsonLoad>},
      {X::minimumWithSeveralContexts, makeReader<SeveralFunctionsExpressionDefinitionJsonLoad>},
      {X::maximumWithSeveralContexts, makeReader<SeveralFunctionsExpressionDefinitionJsonLoad>},
      {X::sampleVarianceWithSeveralContexts,
       makeReader<SeveralFunctionsExpressionDefinitionJsonLoad>},
      {X::populationVarianceWithSeveralContexts,
       makeReader<SeveralFunctionsExpressionDefinitionJsonLoad>},
      {X::sampleStandardDeviationWithSeveralContexts,
       makeReader<SeveralFunctionsExpressionDefinitionJsonLoad>},
      {X::populationStandardDeviationWithSeveralContexts,
       makeReader<SeveralFunctionsExpressionDefinitionJsonLoad>},
  };
  return table;
}

}  // namespace

std::shared_ptr<ExpressionDefinitionJsonLoad> ExpressionDefinitionLoadFactory::make(
    ExpressionType type) {
  const auto found = readers().find(type);
  if (found == readers().end()) {
    throw std::invalid_argument(
        "ExpressionDefinitionLoadFactory::make(): invalid expressionDefinition");
  }
  return found->second();
}
