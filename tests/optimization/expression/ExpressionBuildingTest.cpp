#include <gtest/gtest.h>

#include "optimization/expression/ConstantExpression.h"
#include "optimization/expression/ExpressionBuilder.h"
#include "optimization/expression/ExpressionFactory.h"
#include "optimization/expression/FunctionDescriptorUtils.h"
#include "optimization/expression/SeveralFunctionsExpression.h"
#include "optimization/expression/TwoFunctionsExpression.h"
#include "scenario/ScenarioManager.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"
#include "vocabulary/ExpressionTypeFactoryByDescriptionString.h"

namespace {

std::vector<ExpressionType> everyType() {
  std::vector<ExpressionType> types;
  for (const auto& row : EnumExpressionTypeFactory::expressionTypes().getRows()) {
    types.push_back(row.getType());
  }
  return types;
}

// Makes scenario the current one for the life of the object.
class CurrentScenario {
 public:
  explicit CurrentScenario(std::shared_ptr<Scenario> scenario) {
    ScenarioManager::getInstance().setCurrentScenario(std::move(scenario));
  }
  ~CurrentScenario() { ScenarioManager::getInstance().setCurrentScenario(nullptr); }
};

}  // namespace

TEST(ExpressionBuilding, EveryNewNodeIsValidAndOwnsItsDefaultChildren) {
  for (const ExpressionType type : everyType()) {
    SCOPED_TRACE(EnumExpressionTypeFactory::makeExpressionTypeEnum(type).getName());
    const auto node = ExpressionBuilder::build(type);
    EXPECT_EQ(node->getExpressionType().getType(), type);
    EXPECT_EQ(node->getName(), "fx()");
    EXPECT_TRUE(node->validate());
    for (const auto& child : node->getVectorOfExpressionDefinitions()) {
      ASSERT_NE(child, nullptr);
      EXPECT_EQ(child->getParent(), node);
      EXPECT_EQ(child->getExpressionType().getType(), ExpressionType::constant);
    }
  }
}

TEST(ExpressionBuilding, DefaultChildrenGiveTheShapeOfEachNode) {
  const struct {
    ExpressionType type;
    const char* general;
  } shapes[] = {
      {ExpressionType::division, "\\frac{0}{1}"},
      {ExpressionType::logarithm, "(\\log_{0} 0)"},
      {ExpressionType::sum, "({0}+{0})"},
      {ExpressionType::factorial, "(0)!"},
      {ExpressionType::multiplicationByMinusOne, "-(0)"},
      {ExpressionType::radiciation, "\\sqrt[2]{0}"},
      {ExpressionType::summation, "\\left(\\sum_{}^{Elementos} {0}\\right)"},
      {ExpressionType::minimum, "min(0,0)"},
  };
  for (const auto& shape : shapes) {
    EXPECT_EQ(ExpressionBuilder::build(shape.type)->getGeneralFormat(), shape.general);
  }
}

TEST(ExpressionBuilding, ANewDivisionEvaluatesToZeroOverOne) {
  const auto division = ExpressionBuilder::build(ExpressionType::division);
  ASSERT_TRUE(division->validate());
  EXPECT_EQ(division->interpret(Context()), 0.0);
}

TEST(ExpressionBuilding, NodesOnElementsTakeTheFirstElementsOfTheCurrentScenario) {
  NetworkBuilder net(NetworkBuilder::monthly(2001, 2001));
  const auto first = net.node(ElementType::reservoir);
  CurrentScenario current(net.scenario);

  const auto several = std::static_pointer_cast<SeveralFunctionsExpression>(
      ExpressionBuilder::build(ExpressionType::meanWithSeveralContexts));
  EXPECT_EQ(several->getVectorOfExpressionDefinitions().size(), 2u);
  EXPECT_EQ(several->getElementIDs(), std::vector<unsigned int>{first->getId()});

  const auto second = net.node(ElementType::humanDemand);
  const auto two = std::static_pointer_cast<TwoFunctionsExpression>(
      ExpressionBuilder::build(ExpressionType::subtractionWithTwoContexts));
  EXPECT_EQ(two->getElementIDs(), (std::vector<unsigned int>{first->getId(), second->getId()}));
  net.node(ElementType::junction);
  EXPECT_EQ(ExpressionBuilder::buildVectorOfElementIDs(2),
            (std::vector<unsigned int>{first->getId(), second->getId()}));
}

TEST(ExpressionBuilding, UnknownTypesAreRefused) {
  const auto unknown = static_cast<ExpressionType>(99);
  EXPECT_THROW_TEXT(
      ExpressionFactory::make(unknown, std::weak_ptr<ExpressionDefinition>(), "x", "x"),
      std::invalid_argument, "ExpressionFactory::make(): invalid expressionType");
  EXPECT_THROW_TEXT(ExpressionBuilder::build(unknown), std::invalid_argument,
                    "ExpressionBuilder::make(): invalid expressionType");
}

TEST(ExpressionTypeByDescription, StatisticsOfBothFamiliesAreToldApartByTheirParameterKind) {
  using Factory = ExpressionTypeFactoryByDescriptionString;
  EXPECT_EQ(Factory::make("Mínimo-Diversas expr sobre apenas um elemento").getType(),
            ExpressionType::minimum);
  EXPECT_EQ(Factory::make("Mínimo-Uma expr para cada elemento").getType(),
            ExpressionType::minimumWithSeveralContexts);
  EXPECT_EQ(Factory::make("Somatório-Unica expr aplicada em cada elemento").getType(),
            ExpressionType::summation);
  EXPECT_EQ(Factory::make("Divisão").getType(), ExpressionType::division);
  for (const ExpressionType type : everyType()) {
    EXPECT_EQ(Factory::make(Factory::descriptionOf(type)).getType(), type);
  }
  EXPECT_THROW_TEXT(Factory::make("Mínimo"), std::invalid_argument,
                    "ExpressionTypeFactoryByDescriptionString::make(): invalid descriptionType");
}

TEST(FunctionDescriptor, ATextIsACallOfAKnownFunctionByItsExactName) {
  const struct {
    const char* text;
    bool isFunction;
    const char* name;
    const char* argument;
    int openIndex;
    int closeIndex;
  } cases[] = {
      {"Sin(x)", true, "Sin", "x", 3, 5},
      {"sin(x)", false, "sin", "x", 3, 5},
      {"Cot", false, "", "", -1, 3},
      {"Sin(", true, "Sin", "", 3, 4},
      {"Tang(a+b)", true, "Tang", "a+b", 4, 8},
      {"(x)", false, "", "x", 0, 2},
      {"", false, "", "", -1, 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    const auto descriptor = FunctionDescriptorUtils::makeAnalisysOfStringAsFunction(c.text);
    EXPECT_EQ(FunctionDescriptorUtils::isAFunction(descriptor), c.isFunction);
    EXPECT_EQ(descriptor.name, c.name);
    EXPECT_EQ(descriptor.argument, c.argument);
    EXPECT_EQ(descriptor.openIndex, c.openIndex);
    EXPECT_EQ(descriptor.closeIndex, c.closeIndex);
  }
  EXPECT_EQ(FunctionDescriptorUtils::makeAnalisysOfStringAsFunction("Cos(1)").type.getId(), 1);
  EXPECT_EQ(FunctionDescriptorUtils::makeAnalisysOfStringAsFunction("Log(1)").type.getName(),
            "Not identifyed");
}
