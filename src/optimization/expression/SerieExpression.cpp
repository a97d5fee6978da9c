#include "optimization/expression/SerieExpression.h"

#include <stdexcept>
#include <utility>

#include "common/SerieStatistics.h"
#include "vocabulary/Vocabulary.h"

SerieExpression::SerieExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                                 std::string description)
    : ExpressionDefinition(EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::serie),
                           std::move(parent), std::move(name), std::move(description)) {}

double SerieExpression::interpret(Context context) const {
  if (context.getElements().empty()) {
    throw std::invalid_argument("SerieExpression::interpret: invalid size of elements");
  }
  const std::shared_ptr<Element>& element = context.getElements().front();
  if (!element) throw std::invalid_argument("SerieExpression::interpret: invalid element");
  if (element->getOutputSeries().empty()) {
    throw std::invalid_argument("SerieExpression::interpret: invalid function call");
  }
  const std::shared_ptr<Serie>& serie = element->getOutputSerie(serieType, 0);
  if (!serie) throw std::invalid_argument("SerieExpression::interpret: invalid function call");
  return SerieStatistics::sum(*serie);
}

std::string SerieExpression::getPreVisualization() const { return getGeneralFormat(); }

std::string SerieExpression::getGeneralFormat() const {
  return "[" + Vocabulary::of(serieType).getName() + "]";
}

std::vector<ExpressionPtr> SerieExpression::getVectorOfExpressionDefinitions() const { return {}; }

void SerieExpression::updateChieldPointer(const ExpressionPtr&, ExpressionPtr) {}
