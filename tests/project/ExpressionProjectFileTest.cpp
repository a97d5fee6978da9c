#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "optimization/TwoReservoirs.h"
#include "optimization/expression/ConstantExpression.h"
#include "optimization/expression/DivisionExpression.h"
#include "optimization/expression/DivisionWithTwoElementsExpression.h"
#include "optimization/expression/ExponentiationExpression.h"
#include "optimization/expression/ExpressionBuilder.h"
#include "optimization/expression/FactorialExpression.h"
#include "optimization/expression/LogarithmExpression.h"
#include "optimization/expression/MultiplicationByMinusOneExpression.h"
#include "optimization/expression/MultiplicationExpression.h"
#include "optimization/expression/PotentiationExpression.h"
#include "optimization/expression/RadiciationExpression.h"
#include "optimization/expression/SerieExpression.h"
#include "optimization/expression/SeveralFunctionsExpression.h"
#include "optimization/expression/SingleElementExpression.h"
#include "optimization/expression/SquareRootExpression.h"
#include "optimization/expression/SubtractionExpression.h"
#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"
#include "optimization/expression/TwoFunctionsExpression.h"
#include "optimization/kernel/PseudoRandom.h"
#include "project/ExpressionDefinitionJsonLoad.h"
#include "project/ExpressionDefinitionSaveFactory.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"
#include "support/ExpectThrow.h"
#include "vocabulary/EnumFactories.h"

using ExpressionProjectFileTest = projectfile::ProjectFileTest;
using X = ExpressionType;

namespace {

ExpressionPtr constant(double value) {
  return std::make_shared<ConstantExpression>(std::weak_ptr<ExpressionDefinition>(), "c", "fx()",
                                              value);
}

ExpressionPtr serie(SerieType type) {
  auto node = std::make_shared<SerieExpression>(std::weak_ptr<ExpressionDefinition>(), "s");
  node->setSerieOutputType(type);
  return node;
}

template <typename Node>
std::shared_ptr<Node> node(ExpressionType type, const std::string& name) {
  auto made = std::static_pointer_cast<Node>(ExpressionBuilder::build(type));
  made->setName(name);
  made->setDescription("escolhido " + name);
  return made;
}

template <typename Node>
ExpressionPtr binary(ExpressionType type, ExpressionPtr first, ExpressionPtr second) {
  auto made = node<Node>(type, "binário");
  made->setFirstExpression(std::move(first));
  made->setSecondExpression(std::move(second));
  return made;
}

ExpressionPtr onOneElement(ExpressionType type, std::vector<ExpressionPtr> children) {
  auto made = node<SingleElementExpression>(type, "um elemento");
  made->setExpressionsCount(0);
  for (auto& child : children) made->addExpression(std::move(child));
  return made;
}

// The first child on the reservoir, the second on the demand.
ExpressionPtr onEachElement(ExpressionType type, ExpressionPtr onReservoir, ExpressionPtr onDemand,
                            const std::vector<unsigned int>& ids) {
  auto made = node<SeveralFunctionsExpression>(type, "cada elemento");
  while (!made->getVectorOfExpressionDefinitions().empty()) made->removeLastExpression();
  made->addExpression(std::move(onReservoir), ids[0]);
  made->addExpression(std::move(onDemand), ids[1]);
  return made;
}

ExpressionPtr onTwoElements(ExpressionType type, ExpressionPtr onReservoir, ExpressionPtr onDemand,
                            const std::vector<unsigned int>& ids) {
  auto made = std::static_pointer_cast<TwoFunctionsExpression>(
      binary<TwoFunctionsExpression>(type, std::move(onReservoir), std::move(onDemand)));
  made->changeIDInIndex(0, ids[0]);
  made->changeIDInIndex(1, ids[1]);
  return made;
}

// -(\frac{\log_{10} v^2}{\sqrt{16}} - 2^3 * \sqrt[3]{27}) on the reservoir's final volumes v: eight
// levels of the one- and two-child nodes.
ExpressionPtr deepChain() {
  auto power = node<PotentiationExpression>(X::potentiation, "potência");
  power->setBaseExpression(serie(SerieType::finalVolume));
  power->setExponent(2);
  auto logarithm = node<LogarithmExpression>(X::logarithm, "log");
  logarithm->setLogarithmingExpression(power);
  logarithm->setBaseExpression(constant(10.0));
  auto root = node<SquareRootExpression>(X::squareRoot, "raiz");
  root->setRootingExpression(constant(16.0));
  auto division = node<DivisionExpression>(X::division, "divisão");
  division->setNumeratorExpression(logarithm);
  division->setDenominatorExpression(root);
  auto exponential = node<ExponentiationExpression>(X::exponentiation, "exponencial");
  exponential->setBaseConstant(2);
  exponential->setExponentExpression(constant(3.0));
  auto radix = node<RadiciationExpression>(X::radiciation, "radical");
  radix->setIndex(3);
  radix->setRootingExpression(constant(27.0));
  auto negated = node<MultiplicationByMinusOneExpression>(X::multiplicationByMinusOne, "menos");
  negated->setExpressionToBeMultiplied(binary<SubtractionExpression>(
      X::subtraction, division,
      binary<MultiplicationExpression>(X::multiplication, exponential, radix)));
  return negated;
}

// A formula with every kind of node, read on the reservoir and the demand of ids: the root's
// children see both elements, the nodes on elements read one each below them.
ExpressionPtr everyKind(const std::vector<unsigned int>& ids) {
  const auto volumes = [] { return serie(SerieType::finalVolume); };
  const auto served = [] { return serie(SerieType::attendedDemand); };
  auto sum = onOneElement(X::sum, {});
  auto& children = static_cast<SingleElementExpression&>(*sum);
  children.addExpression(onTwoElements(X::subtractionWithTwoContexts, volumes(), served(), ids));
  children.addExpression(onTwoElements(X::multiplicationWithTwoContexts, constant(2.0),
                                       serie(SerieType::supplyShortage), ids));
  children.addExpression(
      onTwoElements(X::divisionWithTwoContexts, constant(10.0), constant(4.0), ids));
  children.addExpression(onEachElement(X::sumWithSeveralContexts, deepChain(), constant(1.0), ids));
  for (auto type :
       {X::meanWithSeveralContexts, X::medianWithSeveralContexts, X::minimumWithSeveralContexts,
        X::maximumWithSeveralContexts, X::sampleVarianceWithSeveralContexts,
        X::populationVarianceWithSeveralContexts, X::sampleStandardDeviationWithSeveralContexts,
        X::populationStandardDeviationWithSeveralContexts}) {
    children.addExpression(onEachElement(type, volumes(), served(), ids));
  }
  for (auto type :
       {X::minimum, X::maximum, X::mean, X::median, X::sampleVariance, X::populationVariance,
        X::sampleStandardDeviation, X::populationStandardDeviation}) {
    children.addExpression(onOneElement(type, {volumes(), constant(100.0), constant(-2.5)}));
  }
  auto summation = node<SummationToSeveralElementsWithSingleFunctionExpression>(X::summation, "Σ");
  summation->setExpression(constant(3.0));
  summation->setVectorOfElementIDs(ids);
  children.addExpression(summation);
  auto factorial = node<FactorialExpression>(X::factorial, "fatorial");
  factorial->setRootingExpression(constant(4.5));
  children.addExpression(factorial);
  return sum;
}

std::shared_ptr<RuleOptimizationScenario> loaded(const std::string& path) {
  const auto scenarios = JsonProjectLoader::load(path);
  return std::dynamic_pointer_cast<RuleOptimizationScenario>(scenarios.at(0));
}

const ExpressionPtr& formulaOf(const RuleOptimizationScenario& scenario) {
  return scenario.getExecutionOptimization()
      .getVectorOfExpressionDefinitionConfiguration()
      .at(0)
      .getRootExpression();
}

// Every node of the tree under root, in depth-first order.
std::vector<ExpressionPtr> nodesOf(const ExpressionPtr& root) {
  std::vector<ExpressionPtr> nodes{root};
  for (const auto& child : root->getVectorOfExpressionDefinitions()) {
    const auto below = nodesOf(child);
    nodes.insert(nodes.end(), below.begin(), below.end());
  }
  return nodes;
}

class PersonalizedFormula : public ExpressionProjectFileTest {
 protected:
  PersonalizedFormula()
      : scenario(optimisationtest::optimisation(OptimizationAlgorithmType::smpso, 4, 4, 1)) {
    const auto& elements = scenario->getElements();
    const auto reservoir = std::find_if(elements.begin(), elements.end(), [](const auto& e) {
      return e->getType() == ElementType::reservoir;
    });
    const auto demand = std::find_if(elements.begin(), elements.end(), [](const auto& e) {
      return e->getType() == ElementType::humanDemand;
    });
    onBoth = {*reservoir, *demand};
    ids = {(*reservoir)->getId(), (*demand)->getId()};
    scenario->getExecutionOptimization().addExpressionDefinitionConfiguration(
        ExpressionDefinitionConfiguration(everyKind(ids), false, false,
                                          EnumUnitFactory::makeUnit("hm³")));
  }

  std::shared_ptr<RuleOptimizationScenario> scenario;
  std::vector<std::shared_ptr<Element>> onBoth;
  std::vector<unsigned int> ids;
};

}  // namespace

TEST_F(PersonalizedFormula, AFormulaOfEveryKindComesBackByteIdenticalAndEvaluatesAlike) {
  projectfile::TemporaryFolder folder;
  const std::string first = projectfile::saved({scenario}, folder.file("first.sjson"));
  const auto again = loaded(folder.file("first.sjson"));
  ASSERT_TRUE(again);
  EXPECT_EQ(projectfile::saved({again}, folder.file("second.sjson")), first);

  const auto& original = formulaOf(*scenario);
  const auto& reloaded = formulaOf(*again);
  const auto before = nodesOf(original);
  const auto after = nodesOf(reloaded);
  ASSERT_EQ(after.size(), before.size());
  std::set<ExpressionType> kinds;
  for (std::size_t i = 0; i < before.size(); ++i) {
    kinds.insert(after[i]->getExpressionType().getType());
    EXPECT_EQ(after[i]->getExpressionType(), before[i]->getExpressionType());
    EXPECT_EQ(after[i]->getDescription(), before[i]->getDescription());
    for (const auto& child : after[i]->getVectorOfExpressionDefinitions()) {
      EXPECT_EQ(child->getParent(), after[i]);
    }
  }
  EXPECT_EQ(kinds.size(), EnumExpressionTypeFactory::expressionTypes().getRows().size());
  const auto& configuration =
      again->getExecutionOptimization().getVectorOfExpressionDefinitionConfiguration()[0];
  EXPECT_FALSE(configuration.isEnabled());
  EXPECT_FALSE(configuration.isMinimization());
  EXPECT_EQ(configuration.getUnit().getName(), "hm³");
  EXPECT_EQ(original->getGeneralFormat(), reloaded->getGeneralFormat());

  PseudoRandom::setSeed(2);
  scenario->getExecutionOptimization().setThreads(1);  // the results stay on these elements
  ASSERT_TRUE(scenario->run(nullptr));  // results to read: those of the last candidate
  const Context context(scenario, onBoth, optimisationtest::kTwoYears);
  const double value = original->interpret(context);
  EXPECT_TRUE(std::isfinite(value));
  EXPECT_EQ(reloaded->interpret(context), value);
}

TEST_F(PersonalizedFormula, SeriesAreReadByTheirResultKind) {
  projectfile::TemporaryFolder folder;
  const std::string text = projectfile::saved({scenario}, folder.file("p.sjson"));
  const auto path = folder.file("edited.sjson");
  const auto firstSerieOf = [&](const std::string& edited) {
    projectfile::writeFile(path, edited);
    for (const auto& node : nodesOf(formulaOf(*loaded(path)))) {
      if (auto serie = std::dynamic_pointer_cast<SerieExpression>(node))
        return serie->getSerieType();
    }
    return SerieType{};
  };
  const std::string volume = R"("serieType":"Volume final")";
  ASSERT_NE(text.find(volume), std::string::npos);
  // "Perda em trânsito" names a link's input percentage and its result flow alike.
  EXPECT_EQ(firstSerieOf(projectfile::replaced(text, volume, R"("serieType":"Perda em trânsito")")),
            SerieType::transitLoss);
  EXPECT_EQ(firstSerieOf(projectfile::replaced(text, volume, R"("absent":0)")),
            SerieType::releasedVolume);
}

TEST_F(PersonalizedFormula, AWrongFormulaIsOneLineNamingItsPlace) {
  projectfile::TemporaryFolder folder;
  const std::string text = projectfile::saved({scenario}, folder.file("p.sjson"));
  const std::string path = folder.file("bad.sjson");
  using projectfile::replaced;
  const std::string twoContexts =
      R"("type":"Subtração com dois contextos","parameterType":"Uma expr para cada elemento")";
  const struct {
    std::string from, to, expected;
  } cases[] = {
      {R"("type":"Fatorial")", R"("type":"Fatorials")", "a type of formula node"},
      {R"("type":"Soma","parameterType":"Diversas expr sobre apenas um elemento")",
       R"("type":"Soma","parameterType":"Uma expr para cada elemento")", "a type of formula node"},
      {R"("serieType":"Volume final")", R"("serieType":"Volume")", "the name of a series type"},
      {R"("unit":"hm³")", R"("unit":"hm")", "the name of a unit"},
      {R"("index":3)", R"("index":"3")", "a whole number"},
      {R"("expressionsAndElements":[{"elementID")", R"("expressionsAndElements":[{"elementIDs")",
       "elementID"},
      {R"("specificContent":{"constant")", R"("specificContents":{"constant")", "specificContent"},
      {twoContexts +
           R"(,"name":"binário","nameChoicedByUser":"escolhido binário","specificContent":{"expressionsAndElements":[)",
       twoContexts +
           R"(,"name":"binário","nameChoicedByUser":"escolhido binário","specificContent":{"expressionsAndElements":[{},)",
       "two expressions with their elements"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.to);
    ASSERT_NE(text.find(c.from), std::string::npos);
    projectfile::writeFile(path, replaced(text, c.from, c.to));
    try {
      JsonProjectLoader::load(path);
      ADD_FAILURE() << "loaded";
    } catch (const std::exception& error) {
      const std::string message = error.what();
      EXPECT_NE(message.find(c.expected), std::string::npos) << message;
      EXPECT_EQ(message.find('\n'), std::string::npos) << message;
      EXPECT_EQ(message.rfind("/scenarios/0", 0), 0u) << message;
    }
  }
}

TEST(ExpressionJson, AFormulaNestedTooDeepIsRefusedInsteadOfExhaustingTheStack) {
  ExpressionPtr formula = constant(1.0);
  for (int level = 1; level <= ExpressionDefinitionJsonLoad::maximumDepth; ++level) {
    auto negated = std::make_shared<MultiplicationByMinusOneExpression>(
        std::weak_ptr<ExpressionDefinition>(), "menos");
    negated->setExpressionToBeMultiplied(formula);
    formula = negated;
  }
  const auto text = ExpressionDefinitionSaveFactory::make(formula)->toJson();
  const auto object = nlohmann::json::parse(text);
  try {
    ExpressionDefinitionJsonLoad::loadExpression(object);
    ADD_FAILURE() << "loaded";
  } catch (const std::runtime_error& error) {
    EXPECT_NE(std::string(error.what()).find("a formula nested at most 100 deep"),
              std::string::npos)
        << error.what();
  }
  // One level less loads, and writes the same text again.
  const auto shallower = std::static_pointer_cast<MultiplicationByMinusOneExpression>(formula)
                             ->getExpressionToBeMultiplied();
  const auto shallowerText = ExpressionDefinitionSaveFactory::make(shallower)->toJson();
  const auto reloaded =
      ExpressionDefinitionJsonLoad::loadExpression(nlohmann::json::parse(shallowerText));
  EXPECT_EQ(ExpressionDefinitionSaveFactory::make(reloaded)->toJson(), shallowerText);
}

TEST(ExpressionJson, AFormulaWithAHoleIsNotWritten) {
  auto division = ExpressionBuilder::build(X::division);
  std::static_pointer_cast<DivisionExpression>(division)->setDenominatorExpression(nullptr);
  EXPECT_THROW_TEXT(ExpressionDefinitionSaveFactory::make(division)->toJson(),
                    std::invalid_argument,
                    "ExpressionDefinitionSaveFactory::make(): invalid expressionDefinition");
}
