#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "core/ElementFactory.h"
#include "core/ResultFactory.h"
#include "optimization/expression/ConstantExpression.h"
#include "optimization/expression/MaximumToSingleElementExpression.h"
#include "optimization/expression/MeanToSingleElementExpression.h"
#include "optimization/expression/MedianToSingleElementExpression.h"
#include "optimization/expression/MinimumToSingleElementExpression.h"
#include "optimization/expression/PopulationStandardDeviationToSingleElementExpression.h"
#include "optimization/expression/PopulationVarianceToSingleElementExpression.h"
#include "optimization/expression/SampleStandardDeviationToSingleElementExpression.h"
#include "optimization/expression/SampleVarianceToSingleElementExpression.h"
#include "optimization/expression/SerieExpression.h"
#include "optimization/expression/SumExpression.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

const Interval kFirstQuarter(Date(2001, 1, 1), Date(2001, 3, 1),
                             Vocabulary::of(Periodicity::monthly));

// A reservoir with one result set over the first quarter of 2001, its spills and evaporation
// given month by month.
std::shared_ptr<Element> reservoir(const std::vector<double>& spills,
                                   const std::vector<double>& evaporation) {
  auto element = ElementFactory::make(ElementType::reservoir);
  element->setOutputSeries(ResultFactory::make(
      {ExecutionType::continuous, ElementType::reservoir, ScenarioType::ruleOptimizer}, 1));
  element->setIntervalSeries(kFirstQuarter);
  for (unsigned int month = 1; month <= 3; ++month) {
    element->getOutputSerie(SerieType::spilledVolume, 0)
        ->setValue(Date(2001, month, 1), spills[month - 1]);
    element->getOutputSerie(SerieType::evaporatedVolume, 0)
        ->setValue(Date(2001, month, 1), evaporation[month - 1]);
  }
  return element;
}

Context contextOf(std::vector<std::shared_ptr<Element>> elements) {
  return Context(nullptr, std::move(elements), kFirstQuarter);
}

ExpressionPtr serie(SerieType type) {
  auto node = std::make_shared<SerieExpression>(std::weak_ptr<ExpressionDefinition>(), "s");
  node->setSerieOutputType(type);
  return node;
}

ExpressionPtr constant(double value) {
  return std::make_shared<ConstantExpression>(std::weak_ptr<ExpressionDefinition>(), "c", "fx()",
                                              value);
}

// A node of the family with the given children.
template <class Node>
std::shared_ptr<Node> over(const std::vector<ExpressionPtr>& children) {
  auto node = std::make_shared<Node>(std::weak_ptr<ExpressionDefinition>(), "f");
  for (const ExpressionPtr& child : children) node->addExpression(child);
  return node;
}

class StatisticsExpression : public ::testing::Test {
 protected:
  // Spills sum to 6 and evaporation to 0.6 in the first; the second's sums are 60 and 3.
  std::shared_ptr<Element> first = reservoir({1.0, 2.0, 3.0}, {0.1, 0.2, 0.3});
  std::shared_ptr<Element> second = reservoir({10.0, 20.0, 30.0}, {1.0, 1.0, 1.0});
  // Children worth 6, 0.6 and 2.4 on the first element.
  std::vector<ExpressionPtr> three = {serie(SerieType::spilledVolume),
                                      serie(SerieType::evaporatedVolume), constant(2.4)};
};

}  // namespace

TEST_F(StatisticsExpression, ASerieSumsTheSeriesOfTheFirstElementOnly) {
  EXPECT_DOUBLE_EQ(serie(SerieType::spilledVolume)->interpret(contextOf({first, second})), 6.0);
  EXPECT_DOUBLE_EQ(serie(SerieType::evaporatedVolume)->interpret(contextOf({second, first})), 3.0);
  EXPECT_EQ(serie(SerieType::spilledVolume)->getGeneralFormat(), "[Volume vertido]");
  EXPECT_EQ(serie(SerieType::spilledVolume)->getPreVisualization(), "[Volume vertido]");
  EXPECT_EQ(serie(SerieType::spilledVolume)->getExpressionType().getName(), "Serie");
}

TEST_F(StatisticsExpression, ASerieWithoutAnElementWithResultsSaysWhich) {
  auto node = serie(SerieType::spilledVolume);
  EXPECT_THROW_TEXT(node->interpret(contextOf({})), std::invalid_argument,
                    "SerieExpression::interpret: invalid size of elements");
  EXPECT_THROW_TEXT(node->interpret(contextOf({nullptr, first})), std::invalid_argument,
                    "SerieExpression::interpret: invalid element");
  EXPECT_THROW_TEXT(node->interpret(contextOf({ElementFactory::make(ElementType::reservoir)})),
                    std::invalid_argument, "SerieExpression::interpret: invalid function call");
}

TEST_F(StatisticsExpression, ASumGivesEveryChildTheWholeListOfElements) {
  // Both series read the first of the two elements: 6 + 0.6 + 2.4.
  EXPECT_DOUBLE_EQ(over<SumExpression>(three)->interpret(contextOf({first, second})), 9.0);
  EXPECT_EQ(over<SumExpression>({})->interpret(contextOf({})), 0.0);
  EXPECT_EQ(over<SumExpression>({constant(1), constant(2)})->getGeneralFormat(), "({1}+{2})");
}

TEST_F(StatisticsExpression, TheStatisticsReadEveryChildOnTheFirstElement) {
  const Context both = contextOf({first, second});
  EXPECT_DOUBLE_EQ(over<MinimumToSingleElementExpression>(three)->interpret(both), 0.6);
  EXPECT_DOUBLE_EQ(over<MaximumToSingleElementExpression>(three)->interpret(both), 6.0);
  EXPECT_DOUBLE_EQ(over<MeanToSingleElementExpression>(three)->interpret(both), 3.0);
  EXPECT_DOUBLE_EQ(over<MedianToSingleElementExpression>(three)->interpret(both), 2.4);
  // Deviations from the mean of 3: 3, -2.4 and -0.6, whose squares sum to 15.12.
  EXPECT_DOUBLE_EQ(over<PopulationVarianceToSingleElementExpression>(three)->interpret(both),
                   15.12 / 3);
  EXPECT_DOUBLE_EQ(over<SampleVarianceToSingleElementExpression>(three)->interpret(both),
                   15.12 / 2);
  EXPECT_DOUBLE_EQ(
      over<PopulationStandardDeviationToSingleElementExpression>(three)->interpret(both),
      std::sqrt(5.04));
  EXPECT_DOUBLE_EQ(over<SampleStandardDeviationToSingleElementExpression>(three)->interpret(both),
                   std::sqrt(7.56));
}

TEST_F(StatisticsExpression, AnEmptyListOfElementsOrOfChildrenIsRefusedWithTheNodesText) {
  const Context none = contextOf({});
  const Context one = contextOf({first});
  const std::vector<ExpressionPtr> child = {constant(1)};
  EXPECT_THROW_TEXT(over<MinimumToSingleElementExpression>(child)->interpret(none),
                    std::invalid_argument, "Invalid count of elements");
  EXPECT_THROW_TEXT(over<MinimumToSingleElementExpression>({})->interpret(one),
                    std::invalid_argument,
                    "MinimumWithSeveralContextsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(over<MaximumToSingleElementExpression>(child)->interpret(none),
                    std::invalid_argument,
                    "MaximumToSingleElementExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(over<MaximumToSingleElementExpression>({})->interpret(one),
                    std::invalid_argument,
                    "MaximumWithSeveralContextsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(over<MeanToSingleElementExpression>({})->interpret(one), std::invalid_argument,
                    "MeanToSingleElementExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(over<MedianToSingleElementExpression>(child)->interpret(none),
                    std::invalid_argument,
                    "MedianToSingleElementExpression::interpret invalid parameter");
  EXPECT_THROW_TEXT(over<MedianToSingleElementExpression>({})->interpret(one),
                    std::invalid_argument,
                    "MedianToSingleElementExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(over<SampleVarianceToSingleElementExpression>(child)->interpret(none),
                    std::invalid_argument,
                    "SampleVarianceToSingleElementExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(over<SampleVarianceToSingleElementExpression>({})->interpret(one),
                    std::invalid_argument,
                    "SampleVarianceWithSeveralContextsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(
      over<SampleStandardDeviationToSingleElementExpression>(child)->interpret(none),
      std::invalid_argument,
      "SampleStandardDeviationToSingleElementExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(over<SampleStandardDeviationToSingleElementExpression>({})->interpret(one),
                    std::invalid_argument,
                    "SampleStdDeviationToSingleElementExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(over<PopulationVarianceToSingleElementExpression>({})->interpret(none),
                    std::invalid_argument,
                    "PopulationVarianceToSingleElementExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(
      over<PopulationStandardDeviationToSingleElementExpression>({})->interpret(one),
      std::invalid_argument,
      "PopulationStandardDeviationToSingleElementExpression::interpret invalid element count");
}

TEST_F(StatisticsExpression, RenderingsJoinTheChildrenWithCommas) {
  const std::vector<ExpressionPtr> two = {constant(1.5), serie(SerieType::spilledVolume)};
  EXPECT_EQ(over<MeanToSingleElementExpression>(two)->getGeneralFormat(),
            "média(1.5,[Volume vertido])");
  EXPECT_EQ(over<MedianToSingleElementExpression>(two)->getPreVisualization(),
            "mediana(1.5,[Volume vertido])");
  EXPECT_EQ(over<MinimumToSingleElementExpression>(two)->getGeneralFormat(),
            "min(1.5,[Volume vertido])");
  EXPECT_EQ(over<MaximumToSingleElementExpression>(two)->getGeneralFormat(),
            "max(1.5,[Volume vertido])");
  auto deviation = over<PopulationStandardDeviationToSingleElementExpression>(two);
  EXPECT_EQ(deviation->getGeneralFormat(), "popStdDev(1.5,[Volume vertido])");
  EXPECT_EQ(deviation->getPreVisualization(), "popStdDeviation(1.5,[Volume vertido])");
  EXPECT_EQ(deviation->getExpressionType().getName(), "Desvio padrão sobre população");
}

TEST_F(StatisticsExpression, TheChildMutatorsKeepTheListAndRefuseAMissingPlace) {
  auto mean = over<MeanToSingleElementExpression>({constant(1), constant(3)});
  mean->setExpressionsCount(3);
  EXPECT_FALSE(mean->validate());
  mean->changeExpression(2, constant(8));
  EXPECT_TRUE(mean->validate());
  EXPECT_DOUBLE_EQ(mean->interpret(contextOf({first})), 4.0);
  const ExpressionPtr middle = mean->getVectorOfExpressionDefinitions()[1];
  mean->updateChieldPointer(middle, constant(6));
  EXPECT_DOUBLE_EQ(mean->interpret(contextOf({first})), 5.0);
  mean->removeLastExpression();
  EXPECT_DOUBLE_EQ(mean->interpret(contextOf({first})), 3.5);
  EXPECT_THROW_TEXT(mean->changeExpression(2, constant(0)), std::invalid_argument,
                    "SingleElementExpression::changeExpression invalid call function");
  mean->setExpressionsCount(0);
  EXPECT_THROW_TEXT(mean->removeLastExpression(), std::invalid_argument,
                    "SingleElementExpression::removeLastExpression invalid call function");
}
