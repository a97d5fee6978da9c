#include "project/ExpressionDefinitionSaveFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "optimization/expression/SeveralFunctionsExpression.h"
#include "optimization/expression/SingleElementExpression.h"
#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"
#include "optimization/expression/TwoFunctionsExpression.h"
#include "project/ConstantExpressionDefinitionJsonSave.h"
#include "project/DivisionExpressionDefinitionJsonSave.h"
#include "project/ExponentiationExpressionDefinitionJsonSave.h"
#include "project/FactorialExpressionDefinitionJsonSave.h"
#include "project/LogarithmExpressionDefinitionJsonSave.h"
#include "project/MultiplicationByMinunOneExpressionDefinitionJsonSave.h"
#include "project/MultiplicationExpressionDefinitionJsonSave.h"
#include "project/OneFunctionAppliedToSeveralElementsExpressionDefinitionJsonSave.h"
#include "project/OneFunctionToEachElementExpressionDefinitionJsonSave.h"
#include "project/OneFunctionToEachOfTwoElementExpressionDefinitionJsonSave.h"
#include "project/PotentiationExpressionDefinitionJsonSave.h"
#include "project/RadiciationExpressionDefinitionJsonSave.h"
#include "project/SerieExpressionDefinitionJsonSave.h"
#include "project/SingleElementExpressionDefinitionJsonSave.h"
#include "project/SquareRootExpressionDefinitionJsonSave.h"
#include "project/SubtractionExpressionDefinitionJsonSave.h"

namespace {

using Writer = std::shared_ptr<ExpressionDefinitionJsonSave>;
using Maker = std::function<Writer(const ExpressionPtr&)>;

template <typename W>
Writer makeWriter(const ExpressionPtr& expression) {
  return std::make_shared<W>(expression);
}

// The writers of the nodes outside the families, by type.
const std::map<ExpressionType, Maker>& writersOfSingleNodes() {
  using X = ExpressionType;
  static const std::map<ExpressionType, Maker> table{
      {X::constant, makeWriter<ConstantExpressionDefinitionJsonSave>},
      {X::subtraction, makeWriter<SubtractionExpressionDefinitionJsonSave>},
      {X::multiplication, makeWriter<MultiplicationExpressionDefinitionJsonSave>},
      {X::multiplicationByMinusOne,
       makeWriter<MultiplicationByMinunOneExpressionDefinitionJsonSave>},
      {X::division, makeWriter<DivisionExpressionDefinitionJsonSave>},
      {X::potentiation, makeWriter<PotentiationExpressionDefinitionJsonSave>},
      {X::exponentiation, makeWriter<ExponentiationExpressionDefinitionJsonSave>},
      {X::squareRoot, makeWriter<SquareRootExpressionDefinitionJsonSave>},
      {X::radiciation, makeWriter<RadiciationExpressionDefinitionJsonSave>},
      {X::logarithm, makeWriter<LogarithmExpressionDefinitionJsonSave>},
      {X::factorial, makeWriter<FactorialExpressionDefinitionJsonSave>},
      {X::serie, makeWriter<SerieExpressionDefinitionJsonSave>},
  };
  return table;
}

// Every member of a family is written alike, whatever it computes.
Writer makeFamilyWriter(const ExpressionPtr& expression) {
  if (std::dynamic_pointer_cast<SingleElementExpression>(expression)) {
    return makeWriter<SingleElementExpressionDefinitionJsonSave>(expression);
  }
  if (std::dynamic_pointer_cast<SeveralFunctionsExpression>(expression)) {
    return makeWriter<OneFunctionToEachElementExpressionDefinitionJsonSave>(expression);
  }
  if (std::dynamic_pointer_cast<TwoFunctionsExpression>(expression)) {
    return makeWriter<OneFunctionToEachOfTwoElementExpressionDefinitionJsonSave>(expression);
  }
  if (std::dynamic_pointer_cast<SummationToSeveralElementsWithSingleFunctionExpression>(
          expression)) {
    return makeWriter<OneFunctionAppliedToSeveralElementsExpressionDefinitionJsonSave>(expression);
  }
  return nullptr;
}

}  // namespace

std::shared_ptr<ExpressionDefinitionJsonSave> ExpressionDefinitionSaveFactory::make(
    const ExpressionPtr& expression) {
  Writer writer;
  if (expression) {
    const auto single = writersOfSingleNodes().find(expression->getExpressionType().getType());
    writer = single != writersOfSingleNodes().end() ? single->second(expression)
                                                    : makeFamilyWriter(expression);
  }
  if (!writer) {
    throw std::invalid_argument(
        "ExpressionDefinitionSaveFactory::make(): invalid expressionDefinition");
  }
  return writer;
}
