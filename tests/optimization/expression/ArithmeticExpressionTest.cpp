#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "optimization/expression/ConstantExpression.h"
#include "optimization/expression/DivisionExpression.h"
#include "optimization/expression/ExponentiationExpression.h"
#include "optimization/expression/FactorialExpression.h"
#include "optimization/expression/LogarithmExpression.h"
#include "optimization/expression/MultiplicationByMinusOneExpression.h"
#include "optimization/expression/MultiplicationExpression.h"
#include "optimization/expression/PotentiationExpression.h"
#include "optimization/expression/RadiciationExpression.h"
#include "optimization/expression/SquareRootExpression.h"
#include "optimization/expression/SubtractionExpression.h"
#include "support/ExpectThrow.h"

namespace {

std::shared_ptr<ConstantExpression> constant(double value) {
  return std::make_shared<ConstantExpression>(std::weak_ptr<ExpressionDefinition>(), "c", "fx()",
                                              value);
}

template <class Node>
std::shared_ptr<Node> node() {
  return std::make_shared<Node>(std::weak_ptr<ExpressionDefinition>(), "n");
}

std::shared_ptr<DivisionExpression> division(double numerator, double denominator) {
  auto result = node<DivisionExpression>();
  result->setNumeratorExpression(constant(numerator));
  result->setDenominatorExpression(constant(denominator));
  return result;
}

std::shared_ptr<LogarithmExpression> logarithm(double argument, double base) {
  auto result = node<LogarithmExpression>();
  result->setLogarithmingExpression(constant(argument));
  result->setBaseExpression(constant(base));
  return result;
}

double factorial(double x) {
  auto result = node<FactorialExpression>();
  result->setRootingExpression(constant(x));
  return result->interpret(Context());
}

}  // namespace

TEST(ArithmeticExpression, ANewNodeCarriesItsKindAndTheDefaultDescription) {
  auto division = node<DivisionExpression>();
  EXPECT_EQ(division->getExpressionType().getName(), "Divisão");
  EXPECT_EQ(division->getExpressionType().getId(), 5);
  EXPECT_EQ(division->getDescription(), "fx()");
  EXPECT_EQ(node<RadiciationExpression>()->getExpressionType().getName(), "Enésima Raiz");
  EXPECT_EQ(constant(1)->getExpressionType().getId(), 0);
}

TEST(ArithmeticExpression, FactorialStopsAtTwoInsteadOfRounding) {
  EXPECT_EQ(factorial(0.0), 1.0);
  EXPECT_EQ(factorial(1.0), 1.0);
  EXPECT_EQ(factorial(1.99), 1.0);
  EXPECT_EQ(factorial(-3.0), 1.0);
  EXPECT_DOUBLE_EQ(factorial(5.0), 120.0);
  EXPECT_DOUBLE_EQ(factorial(4.5), 4.5 * 3.5 * 2.5);
  EXPECT_TRUE(std::isinf(factorial(1e300)));
}

TEST(ArithmeticExpression, DivisionRefusesADenominatorWithinOneMillionthOfZero) {
  EXPECT_DOUBLE_EQ(division(7.0, 2.0)->interpret(Context()), 3.5);
  EXPECT_DOUBLE_EQ(division(1.0, 2e-6)->interpret(Context()), 5e5);
  EXPECT_THROW_TEXT(division(1.0, 1e-7)->interpret(Context()), std::invalid_argument,
                    "DivisionExpression::interpret: division by zero");
  EXPECT_THROW_TEXT(division(1.0, -1e-6)->interpret(Context()), std::invalid_argument,
                    "DivisionExpression::interpret: division by zero");
}

TEST(ArithmeticExpression, LogarithmAcceptsABaseOfZero) {
  EXPECT_DOUBLE_EQ(logarithm(8.0, 2.0)->interpret(Context()), 3.0);
  EXPECT_DOUBLE_EQ(logarithm(0.01, 10.0)->interpret(Context()), -2.0);
  // ln(5) / ln(0) = ln(5) / -inf: a negative zero.
  const double zeroBase = logarithm(5.0, 0.0)->interpret(Context());
  EXPECT_EQ(zeroBase, 0.0);
  EXPECT_TRUE(std::signbit(zeroBase));
  for (auto operands : {std::make_pair(8.0, 1.0), std::make_pair(8.0, -2.0),
                        std::make_pair(0.0, 2.0), std::make_pair(-1.0, 2.0)}) {
    EXPECT_THROW_TEXT(logarithm(operands.first, operands.second)->interpret(Context()),
                      std::invalid_argument, "LogarithmExpression::interpret invalid operands");
  }
}

TEST(ArithmeticExpression, PowersAndRoots) {
  auto potentiation = node<PotentiationExpression>();
  potentiation->setBaseExpression(constant(1.5));
  potentiation->setExponent(3);
  EXPECT_DOUBLE_EQ(potentiation->interpret(Context()), 3.375);

  auto exponentiation = node<ExponentiationExpression>();
  exponentiation->setBaseConstant(2);
  exponentiation->setExponentExpression(constant(-2.0));
  EXPECT_DOUBLE_EQ(exponentiation->interpret(Context()), 0.25);

  auto radiciation = node<RadiciationExpression>();
  radiciation->setRootingExpression(constant(27.0));
  radiciation->setIndex(3);
  EXPECT_DOUBLE_EQ(radiciation->interpret(Context()), 3.0);
  radiciation->setIndex(0);
  EXPECT_THROW_TEXT(radiciation->interpret(Context()), std::invalid_argument,
                    "RadiciationExpression::interpret: invalid parameter");

  auto squareRoot = node<SquareRootExpression>();
  squareRoot->setRootingExpression(constant(6.25));
  EXPECT_DOUBLE_EQ(squareRoot->interpret(Context()), 2.5);
  squareRoot->setRootingExpression(constant(-4.0));
  EXPECT_TRUE(std::isnan(squareRoot->interpret(Context())));
}

TEST(ArithmeticExpression, ASmallTreeEvaluatesAndRendersBothWays) {
  // -((3 - 1.5) * 2^(0.5!)) / (\sqrt{9}), where 0.5! is 1.
  auto subtraction = node<SubtractionExpression>();
  subtraction->setFirstExpression(constant(3.0));
  subtraction->setSecondExpression(constant(1.5));
  auto factorialNode = node<FactorialExpression>();
  factorialNode->setRootingExpression(constant(0.5));
  auto power = node<ExponentiationExpression>();
  power->setBaseConstant(2);
  power->setExponentExpression(factorialNode);
  auto product = node<MultiplicationExpression>();
  product->setFirstExpression(subtraction);
  product->setSecondExpression(power);
  auto negated = node<MultiplicationByMinusOneExpression>();
  negated->setExpressionToBeMultiplied(product);
  auto root = node<SquareRootExpression>();
  root->setRootingExpression(constant(9.0));
  auto top = node<DivisionExpression>();
  top->setNumeratorExpression(negated);
  top->setDenominatorExpression(root);

  EXPECT_DOUBLE_EQ(top->interpret(Context()), -1.0);
  EXPECT_EQ(top->getGeneralFormat(), "\\frac{-(((3-1.5)*({2}^{(0.5)!})))}{\\sqrt{9}}");
  EXPECT_EQ(top->getPreVisualization(), "(\\frac{-(((3-1.5)*({2}^{(0.5)!})))}{\\sqrt{9}})");
  EXPECT_TRUE(top->validate());
}

TEST(ArithmeticExpression, RenderingsOfTheRemainingNodes) {
  auto potentiation = node<PotentiationExpression>();
  potentiation->setBaseExpression(constant(1.5));
  potentiation->setExponent(3);
  EXPECT_EQ(potentiation->getGeneralFormat(), "({1.5}^{3})");
  auto radiciation = node<RadiciationExpression>();
  radiciation->setRootingExpression(constant(27));
  radiciation->setIndex(3);
  EXPECT_EQ(radiciation->getPreVisualization(), "\\sqrt[3]{27}");
  EXPECT_EQ(logarithm(8, 2)->getGeneralFormat(), "(\\log_{2} 8)");
}

TEST(ArithmeticExpression, AMissingChildInvalidatesTheTreeAndIsRefusedByName) {
  auto product = node<MultiplicationExpression>();
  product->setFirstExpression(constant(2.0));
  EXPECT_FALSE(product->validate());
  EXPECT_THROW_TEXT(product->interpret(Context()), std::invalid_argument,
                    "ExpressionDefinition::interpret: \"n\" has a missing operand");
  auto outer = node<MultiplicationByMinusOneExpression>();
  outer->setExpressionToBeMultiplied(product);
  EXPECT_FALSE(outer->validate());
  product->setSecondExpression(constant(4.0));
  EXPECT_TRUE(outer->validate());
}

TEST(ArithmeticExpression, UpdateChieldPointerReplacesOnlyTheGivenChild) {
  auto same = constant(2.0);
  auto subtraction = node<SubtractionExpression>();
  subtraction->setFirstExpression(same);
  subtraction->setSecondExpression(constant(5.0));
  subtraction->updateChieldPointer(same, constant(10.0));
  EXPECT_DOUBLE_EQ(subtraction->interpret(Context()), 5.0);
  subtraction->updateChieldPointer(constant(10.0), constant(0.0));
  EXPECT_DOUBLE_EQ(subtraction->interpret(Context()), 5.0);

  auto division = node<DivisionExpression>();
  auto denominator = constant(4.0);
  division->setNumeratorExpression(constant(2.0));
  division->setDenominatorExpression(denominator);
  division->updateChieldPointer(denominator, constant(8.0));
  EXPECT_DOUBLE_EQ(division->interpret(Context()), 0.25);
  ASSERT_EQ(division->getVectorOfExpressionDefinitions().size(), 2u);
  EXPECT_EQ(division->getVectorOfExpressionDefinitions()[1]->getGeneralFormat(), "8");
}
