#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "core/ElementFactory.h"
#include "core/ResultFactory.h"
#include "optimization/expression/ConstantExpression.h"
#include "optimization/expression/DivisionWithTwoElementsExpression.h"
#include "optimization/expression/MaximumWithSeveralContextsExpression.h"
#include "optimization/expression/MeanWithSeveralContextsExpression.h"
#include "optimization/expression/MedianWithSeveralContextsExpression.h"
#include "optimization/expression/MinimumWithSeveralContextsExpression.h"
#include "optimization/expression/MultiplicationWithTwoContextsExpression.h"
#include "optimization/expression/PopulationStandardDeviationWithSeveralContextsExpression.h"
#include "optimization/expression/PopulationVarianceWithSeveralContextsExpression.h"
#include "optimization/expression/SampleStandardDeviationWithSeveralContextsExpression.h"
#include "optimization/expression/SampleVarianceWithSeveralContextsExpression.h"
#include "optimization/expression/SerieExpression.h"
#include "optimization/expression/SubtractionWithTwoContextsExpression.h"
#include "optimization/expression/SumExpression.h"
#include "optimization/expression/SumWithSeveralContextsExpression.h"
#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

const Interval kFirstQuarter(Date(2001, 1, 1), Date(2001, 3, 1),
                             Vocabulary::of(Periodicity::monthly));

// A reservoir with one result set over the first quarter of 2001 whose spills and evaporation
// are the same every month.
std::shared_ptr<Element> reservoir(double monthlySpill, double monthlyEvaporation) {
  auto element = ElementFactory::make(ElementType::reservoir);
  element->setOutputSeries(ResultFactory::make(
      {ExecutionType::continuous, ElementType::reservoir, ScenarioType::ruleOptimizer}, 1));
  element->setIntervalSeries(kFirstQuarter);
  for (unsigned int month = 1; month <= 3; ++month) {
    element->getOutputSerie(SerieType::spilledVolume, 0)
        ->setValue(Date(2001, month, 1), monthlySpill);
    element->getOutputSerie(SerieType::evaporatedVolume, 0)
        ->setValue(Date(2001, month, 1), monthlyEvaporation);
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

ExpressionPtr spills() { return serie(SerieType::spilledVolume); }

ExpressionPtr constant(double value) {
  return std::make_shared<ConstantExpression>(std::weak_ptr<ExpressionDefinition>(), "c", "fx()",
                                              value);
}

template <class Node>
std::shared_ptr<Node> node() {
  return std::make_shared<Node>(std::weak_ptr<ExpressionDefinition>(), "f");
}

// A several-contexts node with the spills of elements 1 and 2 as its children.
template <class Node>
std::shared_ptr<Node> spillsOfTwo() {
  auto result = node<Node>();
  result->addExpression(spills(), 1);
  result->addExpression(spills(), 2);
  return result;
}

template <class Node>
std::shared_ptr<Node> twoContexts(ExpressionPtr first, ExpressionPtr second) {
  auto result = node<Node>();
  result->setFirstExpression(std::move(first));
  result->setSecondExpression(std::move(second));
  return result;
}

class ContextExpression : public ::testing::Test {
 protected:
  // Spills sum to 6 and 60, evaporation to 0.3 and 3.
  std::shared_ptr<Element> first = reservoir(2.0, 0.1);
  std::shared_ptr<Element> second = reservoir(20.0, 1.0);
  Context both = contextOf({first, second});
};

}  // namespace

TEST_F(ContextExpression, EachChildOfSeveralContextsReadsItsOwnElementUnlikeASum) {
  EXPECT_DOUBLE_EQ(spillsOfTwo<SumWithSeveralContextsExpression>()->interpret(both), 66.0);
  auto sum = node<SumExpression>();
  sum->addExpression(spills());
  sum->addExpression(spills());
  EXPECT_DOUBLE_EQ(sum->interpret(both), 12.0);
}

TEST_F(ContextExpression, TheStatisticsOfSeveralContextsReduceOneValuePerElement) {
  EXPECT_DOUBLE_EQ(spillsOfTwo<MinimumWithSeveralContextsExpression>()->interpret(both), 6.0);
  EXPECT_DOUBLE_EQ(spillsOfTwo<MaximumWithSeveralContextsExpression>()->interpret(both), 60.0);
  EXPECT_DOUBLE_EQ(spillsOfTwo<MeanWithSeveralContextsExpression>()->interpret(both), 33.0);
  EXPECT_DOUBLE_EQ(spillsOfTwo<MedianWithSeveralContextsExpression>()->interpret(both), 33.0);
  // Both values lie 27 from the mean: 729 each.
  EXPECT_DOUBLE_EQ(spillsOfTwo<PopulationVarianceWithSeveralContextsExpression>()->interpret(both),
                   729.0);
  EXPECT_DOUBLE_EQ(spillsOfTwo<SampleVarianceWithSeveralContextsExpression>()->interpret(both),
                   1458.0);
  EXPECT_DOUBLE_EQ(
      spillsOfTwo<PopulationStandardDeviationWithSeveralContextsExpression>()->interpret(both),
      27.0);
  EXPECT_DOUBLE_EQ(
      spillsOfTwo<SampleStandardDeviationWithSeveralContextsExpression>()->interpret(both),
      std::sqrt(1458.0));
}

TEST_F(ContextExpression, SeveralContextsRefuseAnotherNumberOfElementsWithTheNodesText) {
  const Context one = contextOf({first});
  EXPECT_THROW_TEXT(spillsOfTwo<SumWithSeveralContextsExpression>()->interpret(one),
                    std::invalid_argument,
                    "SumWithSeveralContextsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(spillsOfTwo<MinimumWithSeveralContextsExpression>()->interpret(one),
                    std::invalid_argument,
                    "MinimumWithSeveralContextsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(spillsOfTwo<MedianWithSeveralContextsExpression>()->interpret(one),
                    std::invalid_argument,
                    "MedianWithSeveralContextsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(
      spillsOfTwo<SampleStandardDeviationWithSeveralContextsExpression>()->interpret(
          contextOf({first, second, first})),
      std::invalid_argument,
      "SampleStandardDeviationWithSeveralContextsExpression::interpret invalid element count");
}

TEST_F(ContextExpression, TheElementIDsFollowTheChildren) {
  auto mean = spillsOfTwo<MeanWithSeveralContextsExpression>();
  EXPECT_EQ(mean->getElementIDs(), (std::vector<unsigned int>{1, 2}));
  mean->changeIDInIndex(1, 7);
  EXPECT_EQ(mean->getElementIDs(), (std::vector<unsigned int>{1, 7}));
  mean->changeExpression(1, constant(0.0));
  EXPECT_DOUBLE_EQ(mean->interpret(both), 3.0);
  mean->removeLastExpression();
  EXPECT_EQ(mean->getElementIDs(), (std::vector<unsigned int>{1}));
  EXPECT_THROW_TEXT(mean->changeIDInIndex(1, 3), std::invalid_argument,
                    "SeveralFunctionsExpression::changeIDInIndex invalid call function");
  EXPECT_THROW_TEXT(mean->changeExpression(1, constant(1.0)), std::invalid_argument,
                    "SeveralFunctionsExpression::changeExpression invalid call function");
  mean->removeLastExpression();
  EXPECT_THROW_TEXT(mean->removeLastExpression(), std::invalid_argument,
                    "SeveralFunctionsExpression::removeLastExpression invalid call function");
  EXPECT_EQ(mean->getExpressionType().getId(), 26);
  EXPECT_EQ(mean->getExpressionType().getName(), "Média");
}

TEST_F(ContextExpression, TwoContextsReadTheFirstChildOnTheFirstElement) {
  const ExpressionPtr evaporation = serie(SerieType::evaporatedVolume);
  EXPECT_DOUBLE_EQ(
      twoContexts<SubtractionWithTwoContextsExpression>(spills(), evaporation)->interpret(both),
      3.0);
  EXPECT_DOUBLE_EQ(
      twoContexts<MultiplicationWithTwoContextsExpression>(spills(), evaporation)->interpret(both),
      18.0);
  EXPECT_DOUBLE_EQ(twoContexts<DivisionWithTwoElementsExpression>(spills(), spills())
                       ->interpret(contextOf({second, first})),
                   10.0);
}

TEST_F(ContextExpression, TwoContextsRefuseAnotherCountAndAZeroDenominator) {
  const Context one = contextOf({first});
  EXPECT_THROW_TEXT(
      twoContexts<SubtractionWithTwoContextsExpression>(spills(), spills())->interpret(one),
      std::invalid_argument,
      "SubtractionWithSeveralContextsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(
      twoContexts<MultiplicationWithTwoContextsExpression>(spills(), spills())->interpret(one),
      std::invalid_argument,
      "MultiplicationWithTwoContextsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(
      twoContexts<DivisionWithTwoElementsExpression>(spills(), spills())->interpret(one),
      std::invalid_argument, "DivisionWithTwoContextsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(
      twoContexts<DivisionWithTwoElementsExpression>(spills(), constant(1e-7))->interpret(both),
      std::invalid_argument, "DivisionWithTwoContextsExpression::interpret: division by zero");

  auto division = twoContexts<DivisionWithTwoElementsExpression>(spills(), constant(2.0));
  division->changeIDInIndex(0, 4);
  division->changeIDInIndex(1, 9);
  EXPECT_EQ(division->getElementIDs(), (std::vector<unsigned int>{4, 9}));
  EXPECT_THROW_TEXT(division->changeIDInIndex(2, 1), std::invalid_argument,
                    "TwoFunctionsExpression::changeIDInIndex invalid call function");
}

TEST_F(ContextExpression, ASummationReadsItsChildOnEachElementAlone) {
  auto summation = node<SummationToSeveralElementsWithSingleFunctionExpression>();
  summation->setExpression(spills());
  summation->setVectorOfElementIDs({1, 2});
  EXPECT_DOUBLE_EQ(summation->interpret(both), 66.0);
  EXPECT_THROW_TEXT(summation->interpret(contextOf({})), std::invalid_argument,
                    "SummationToSeveralElementsExpression::interpret invalid element count");
  EXPECT_THROW_TEXT(
      summation->interpret(contextOf({first})), std::invalid_argument,
      "SummationToSeveralElementsWithSingleFunctionExpression::interpret invalid size");
  EXPECT_EQ(summation->getGeneralFormat(),
            "\\left(\\sum_{}^{Elementos} {[Volume vertido]}\\right)");
}

TEST_F(ContextExpression, RenderingsOfANestedTree) {
  auto several = node<SumWithSeveralContextsExpression>();
  several->addExpression(constant(1.5), 1);
  several->addExpression(twoContexts<DivisionWithTwoElementsExpression>(spills(), constant(2)), 2);
  EXPECT_EQ(several->getGeneralFormat(), "({1.5}+{\\frac{[Volume vertido]}{2}})");
  EXPECT_EQ(several->getPreVisualization(), "({1.5}+{\\frac{[Volume vertido]}{2}})");
  auto deviation = spillsOfTwo<PopulationStandardDeviationWithSeveralContextsExpression>();
  EXPECT_EQ(deviation->getGeneralFormat(), "popStdDev([Volume vertido],[Volume vertido])");
  EXPECT_EQ(deviation->getPreVisualization(), "popStdDeviation([Volume vertido],[Volume vertido])");
  EXPECT_TRUE(several->validate());
  several->changeExpression(0, nullptr);
  EXPECT_FALSE(several->validate());
}
