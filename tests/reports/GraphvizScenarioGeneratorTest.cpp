#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "core/PrioritySettings.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "operation/ExecutionContinuous.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "reports/GraphvizScenarioGenerator.h"
#include "reports/GraphvizSceneryGeneratorFactory.h"
#include "scenario/PriorityScenario.h"
#include "scenario/RuleScenario.h"
#include "support/ExpectThrow.h"
#include "support/FileText.h"
#include "support/NetworkBuilder.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

const Interval kYear = NetworkBuilder::monthly(2001, 2001);

std::shared_ptr<Node> named(Scenario& scenario, ElementType type, const std::string& name) {
  auto node = addNode(scenario, type);
  node->setName(name);
  return node;
}

std::shared_ptr<Link> joined(Scenario& scenario, const std::shared_ptr<Node>& up,
                             const std::shared_ptr<Node>& down, ElementType type,
                             const std::string& name) {
  auto link = addLink(scenario, up, down, 1000.0, 0.0, type);
  link->setName(name);
  return link;
}

// Every kind of node and both kinds of link, around the junction of Pirapora. Ids follow the
// order of adding: the nodes 0 to 7, then the links 8 to 14.
void addEveryKind(Scenario& scenario) {
  auto reservoir = named(scenario, ElementType::reservoir, "Três Marias");
  auto basin = named(scenario, ElementType::basin, "Bacia do Paracatu");
  auto junction = named(scenario, ElementType::junction, "Pirapora");
  auto city = named(scenario, ElementType::humanDemand, "Cidade");
  auto herd = named(scenario, ElementType::animalDemand, "Rebanho");
  auto industry = named(scenario, ElementType::industrialDemand, "Indústria");
  auto irrigation = named(scenario, ElementType::irrigationDemand, "Irrigação");
  auto mouth = named(scenario, ElementType::drain, "Foz");
  joined(scenario, reservoir, junction, ElementType::naturalLink, "Rio");
  joined(scenario, basin, junction, ElementType::naturalLink, "Paracatu");
  joined(scenario, junction, city, ElementType::artificialLink, "Adutora");
  joined(scenario, junction, herd, ElementType::artificialLink, "Bebedouro");
  joined(scenario, junction, industry, ElementType::artificialLink, "Canal industrial");
  joined(scenario, junction, irrigation, ElementType::artificialLink, "Canal de irrigação");
  joined(scenario, junction, mouth, ElementType::naturalLink, "Baixo São Francisco");
}

// The drawing of addEveryKind, written by hand from the table of attributes.
const std::string kEveryKind = R"(digraph G {
rankdir=LR;
"Três Marias" -> "Pirapora" [label="Rio",color=cyan];
"Bacia do Paracatu" -> "Pirapora" [label="Paracatu",color=cyan];
"Pirapora" -> "Cidade" [label="Adutora",color=black];
"Pirapora" -> "Rebanho" [label="Bebedouro",color=black];
"Pirapora" -> "Indústria" [label="Canal industrial",color=black];
"Pirapora" -> "Irrigação" [label="Canal de irrigação",color=black];
"Pirapora" -> "Foz" [label="Baixo São Francisco",color=cyan];
"Três Marias" [shape=triangle,color=lightblue,style=filled];
"Bacia do Paracatu" [shape=circle, sides=4, color=DodgerBlue,style=filled];
"Pirapora" [shape=circle, sides=4, color=cyan,style=filled];
"Cidade" [shape=polygon, sides=4, color=red,style=filled];
"Rebanho" [shape=polygon, sides=4, color=yellow,style=filled];
"Indústria" [shape=polygon, sides=4, color=grey,style=filled];
"Irrigação" [shape=polygon, sides=4, color=green,style=filled];
"Foz" [shape=polygon, sides=4, color=cyan,style=filled];
}
)";

// Sobradinho feeds the town and the irrigation through Juazeiro and spills to the sea; the
// priorities are 5, 1 and 2, the drain keeps its 99 and the junction has none.
std::shared_ptr<PriorityScenario> priorityScenario() {
  auto scenario =
      std::make_shared<PriorityScenario>(std::make_shared<ExecutionContinuous>(), 1, kYear, "P");
  auto lake = named(*scenario, ElementType::reservoir, "Sobradinho");
  auto junction = named(*scenario, ElementType::junction, "Juazeiro");
  auto town = named(*scenario, ElementType::humanDemand, "Petrolina");
  auto fields = named(*scenario, ElementType::irrigationDemand, "Projeto Nilo Coelho");
  auto sea = named(*scenario, ElementType::drain, "Foz");
  joined(*scenario, lake, junction, ElementType::naturalLink, "Rio");
  joined(*scenario, junction, town, ElementType::artificialLink, "Adutora");
  joined(*scenario, junction, fields, ElementType::artificialLink, "Canal");
  joined(*scenario, junction, sea, ElementType::naturalLink, "Baixo");
  const auto& settings = scenario->getSettingsManager();
  Scenario::getSettings<PrioritySettings>(lake, settings)->setPriority(5);
  Scenario::getSettings<PrioritySettings>(town, settings)->setPriority(1);
  Scenario::getSettings<PrioritySettings>(fields, settings)->setPriority(2);
  return scenario;
}

const std::string kPriority = R"(digraph G {
rankdir=LR;
"Sobradinho" -> "Juazeiro" [label="Rio",color=cyan];
"Juazeiro" -> "Petrolina" [label="Adutora",color=black];
"Juazeiro" -> "Projeto Nilo Coelho" [label="Canal",color=black];
"Juazeiro" -> "Foz" [label="Baixo",color=cyan];
"Sobradinho" [label="Sobradinho\nP=5"][shape=triangle,color=lightblue,style=filled];
"Juazeiro" [shape=circle, sides=4, color=cyan,style=filled];
"Petrolina" [label="Petrolina\nP=1"][shape=polygon, sides=4, color=red,style=filled];
"Projeto Nilo Coelho" [label="Projeto Nilo Coelho\nP=2"][shape=polygon, sides=4, color=green,style=filled];
"Foz" [label="Foz\nP=99"][shape=polygon, sides=4, color=cyan,style=filled];
}
)";

// Três Marias (id 0) and Sobradinho (1) are marked for the curve, Itaparica (2) is not unless
// markAll; they run in a row to the sea (3).
template <typename CurveScenario>
std::shared_ptr<CurveScenario> cascade(bool markAll) {
  auto scenario = std::make_shared<CurveScenario>(1, kYear, "Curva");
  auto first = named(*scenario, ElementType::reservoir, "Três Marias");
  auto second = named(*scenario, ElementType::reservoir, "Sobradinho");
  auto third = named(*scenario, ElementType::reservoir, "Itaparica");
  auto sea = named(*scenario, ElementType::drain, "Foz");
  EXPECT_EQ(first->getId(), 0u);
  EXPECT_EQ(second->getId(), 1u);
  EXPECT_EQ(third->getId(), 2u);
  joined(*scenario, first, second, ElementType::naturalLink, "Médio");
  joined(*scenario, second, third, ElementType::naturalLink, "Submédio");
  joined(*scenario, third, sea, ElementType::naturalLink, "Baixo");
  const auto& settings = scenario->getSettingsManager();
  for (const auto& reservoir : {first, second, third}) {
    Scenario::getSettings<ReservoirGuaranteeCurveSettings>(reservoir, settings)
        ->setIsGuaranteeCurve(markAll || reservoir != third);
  }
  return scenario;
}

// The cascade's drawing with the label of each reservoir given.
std::string cascadeDrawing(const std::string& first, const std::string& second,
                           const std::string& third) {
  return "digraph G {\n"
         "rankdir=LR;\n"
         "\"Três Marias\" -> \"Sobradinho\" [label=\"Médio\",color=cyan];\n"
         "\"Sobradinho\" -> \"Itaparica\" [label=\"Submédio\",color=cyan];\n"
         "\"Itaparica\" -> \"Foz\" [label=\"Baixo\",color=cyan];\n"
         "\"Três Marias\" " +
         first +
         "[shape=triangle,color=lightblue,style=filled];\n"
         "\"Sobradinho\" " +
         second +
         "[shape=triangle,color=lightblue,style=filled];\n"
         "\"Itaparica\" " +
         third +
         "[shape=triangle,color=lightblue,style=filled];\n"
         "\"Foz\" [shape=polygon, sides=4, color=cyan,style=filled];\n"
         "}\n";
}

class GraphvizExport : public ::testing::Test {
 protected:
  TemporaryFolder temporary{"kova_graphviz_"};
  const std::string path = temporary.file("rede.dot");
};

}  // namespace

TEST_F(GraphvizExport, ARuleScenarioDrawsEveryKindWithItsAttributes) {
  auto scenario =
      std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1, kYear, "Regras");
  addEveryKind(*scenario);
  GraphvizScenarioGenerator::generateFile(path, *scenario);
  EXPECT_EQ(readFile(path), kEveryKind);
  // The factory takes the plain drawing for rules and for rule optimisations.
  fs::remove(path);
  GraphvizSceneryGeneratorFactory::make(path, scenario);
  EXPECT_EQ(readFile(path), kEveryKind);
  auto optimisation = std::make_shared<RuleOptimizationScenario>(2, kYear, "Otimização");
  addEveryKind(*optimisation);
  GraphvizSceneryGeneratorFactory::make(temporary.file("otimizacao.dot"), optimisation);
  EXPECT_EQ(readFile(temporary.file("otimizacao.dot")), kEveryKind);
}

TEST_F(GraphvizExport, DisabledElementsAreDrawnAndAnExistingFileIsReplaced) {
  auto scenario =
      std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1, kYear, "Regras");
  addEveryKind(*scenario);
  scenario->getElement("Rebanho")->setEnabled(false);
  scenario->getElement("Bebedouro")->setEnabled(false);
  writeFile(path, std::string(100000, 'x'));
  GraphvizScenarioGenerator::generateFile(path, *scenario);
  EXPECT_EQ(readFile(path), kEveryKind);
}

TEST_F(GraphvizExport, APriorityScenarioLabelsReservoirsAndDemandsWithTheirPriority) {
  const auto scenario = priorityScenario();
  GraphvizScenarioGenerator::generateFileWithPriority(path, *scenario);
  EXPECT_EQ(readFile(path), kPriority);
  fs::remove(path);
  GraphvizSceneryGeneratorFactory::make(path, scenario);
  EXPECT_EQ(readFile(path), kPriority);
}

TEST_F(GraphvizExport, AGuaranteeCurveLabelsItsReservoirsWithTheFlowOfNinetyPercent) {
  const auto scenario = cascade<GuaranteeCurveScenario>(false);
  ExecutionGuaranteeCurve::GuaranteeStr curve;
  curve.guarantees = {80.0, 90.0, 95.0};
  curve.reservoirIds = {0, 1};
  curve.values = {{700.0, 2100.0}, {512.5, 1815.25}, {400.0, 1500.0}};
  scenario->getExecutionGuaranteeCurve().setGuaranteeStr(curve);
  GraphvizScenarioGenerator::generateFileWithGuaranteeCurve(path, *scenario);
  const std::string expected = cascadeDrawing("[label=\"Três Marias\\nQ90=512.5\"]",
                                              "[label=\"Sobradinho\\nQ90=1815.25\"]", "");
  EXPECT_EQ(readFile(path), expected);
  fs::remove(path);
  GraphvizSceneryGeneratorFactory::make(path, scenario);
  EXPECT_EQ(readFile(path), expected);
}

TEST_F(GraphvizExport, ACurveWithoutTheLevelNinetyGivesADash) {
  // Not run: no curve at all.
  const auto scenario = cascade<GuaranteeCurveScenario>(false);
  GraphvizScenarioGenerator::generateFileWithGuaranteeCurve(path, *scenario);
  EXPECT_EQ(readFile(path), cascadeDrawing("[label=\"Três Marias\\nQ90=-\"]",
                                           "[label=\"Sobradinho\\nQ90=-\"]", ""));
  // Run over other levels only; Itaparica, now marked too, is not a column of the stored curve.
  const auto allMarked = cascade<GuaranteeCurveScenario>(true);
  ExecutionGuaranteeCurve::GuaranteeStr curve;
  curve.guarantees = {80.0, 95.0};
  curve.reservoirIds = {0, 1};
  curve.values = {{700.0, 2100.0}, {400.0, 1500.0}};
  allMarked->getExecutionGuaranteeCurve().setGuaranteeStr(curve);
  GraphvizScenarioGenerator::generateFileWithGuaranteeCurve(path, *allMarked);
  EXPECT_EQ(readFile(path),
            cascadeDrawing("[label=\"Três Marias\\nQ90=-\"]", "[label=\"Sobradinho\\nQ90=-\"]",
                           "[label=\"Itaparica\\nQ90=-\"]"));
  // A level that is 90 within 1e-6 is the level 90.
  curve.guarantees = {90.0000004};
  curve.values = {{0.125, 1e-7}};
  allMarked->getExecutionGuaranteeCurve().setGuaranteeStr(curve);
  GraphvizScenarioGenerator::generateFileWithGuaranteeCurve(path, *allMarked);
  EXPECT_EQ(readFile(path),
            cascadeDrawing("[label=\"Três Marias\\nQ90=0.125\"]",
                           "[label=\"Sobradinho\\nQ90=1e-07\"]", "[label=\"Itaparica\\nQ90=-\"]"));
}

TEST_F(GraphvizExport, ASystemCurveLabelsItsOutReservoirOnly) {
  const auto scenario = cascade<SystemGuaranteeCurveScenario>(true);
  auto& execution = scenario->getExecutionSystemGuaranteeCurve();
  execution.setOutSystemReservoirId(2);
  GraphvizScenarioGenerator::generateFileWithSystemGuaranteeCurve(path, *scenario);
  EXPECT_EQ(readFile(path), cascadeDrawing("", "", "[label=\"Itaparica\\nQ90=-\"]"));
  ExecutionSystemGuaranteeCurve::SystemGuaranteeCurveStr curve;
  curve.guarantees = {85.0, 90.0, 95.0};
  curve.guaranteeCurveValues = {2000.0, 1234.5, 1000.0};
  curve.outSystemReservoirId = 2;
  execution.setSystemGuaranteeCurveStr(curve);
  fs::remove(path);
  GraphvizSceneryGeneratorFactory::make(path, scenario);
  EXPECT_EQ(readFile(path), cascadeDrawing("", "", "[label=\"Itaparica\\nQ90=1234.5\"]"));
}

TEST_F(GraphvizExport, SettingsOfAnotherKindAreRefusedBeforeAnythingIsWritten) {
  auto rules =
      std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1, kYear, "Regras");
  addEveryKind(*rules);
  EXPECT_THROW_TEXT(GraphvizScenarioGenerator::generateFileWithPriority(path, *rules),
                    std::invalid_argument, "Passed element is not valid for element setting");
  EXPECT_FALSE(fs::exists(path));

  const auto curve = cascade<GuaranteeCurveScenario>(true);
  curve->getSettingsManager().make(1, Vocabulary::of(ScenarioType::ruleSimulator),
                                   Vocabulary::of(ElementType::reservoir));
  EXPECT_THROW_TEXT(GraphvizScenarioGenerator::generateFileWithGuaranteeCurve(path, *curve),
                    std::invalid_argument, "Passed element is not valid for element setting");
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(GraphvizExport, AFileThatCannotBeMadeIsAnError) {
  const auto scenario = priorityScenario();
  const std::string nowhere = temporary.file("nenhuma/pasta/rede.dot");
  EXPECT_THROW_TEXT(GraphvizScenarioGenerator::generateFile(nowhere, *scenario), std::runtime_error,
                    "GraphVizGenerator::generateFile() error in open file");
  EXPECT_THROW_TEXT(GraphvizSceneryGeneratorFactory::make(nowhere, scenario), std::runtime_error,
                    "GraphVizGenerator::generateFile() error in open file");
  // A folder is not a file either.
  EXPECT_THROW_TEXT(GraphvizScenarioGenerator::generateFile(temporary.root(), *scenario),
                    std::runtime_error, "GraphVizGenerator::generateFile() error in open file");
  EXPECT_TRUE(fs::is_directory(temporary.root()));
  EXPECT_THROW_TEXT(GraphvizSceneryGeneratorFactory::make(path, nullptr), std::invalid_argument,
                    "GraphvizSceneryGeneratorFactory::make(): invalid scenario");
}

TEST_F(GraphvizExport, ACurveMakerRefusesAScenarioOfAnotherClass) {
  auto rules =
      std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1, kYear, "Regras");
  EXPECT_THROW_TEXT(GraphvizSceneryGeneratorFactory::makeGuaranteeCurve(path, rules),
                    std::invalid_argument,
                    "GraphvizSceneryGeneratorFactory::makeGuaranteeCurve(): not a "
                    "guarantee-curve scenario");
  EXPECT_THROW_TEXT(GraphvizSceneryGeneratorFactory::makeSystemGuaranteeCurve(path, rules),
                    std::invalid_argument,
                    "GraphvizSceneryGeneratorFactory::makeSystemGuaranteeCurve(): not a system "
                    "guarantee-curve scenario");
  EXPECT_FALSE(fs::exists(path));
}

// Element names never hold a quote or a backslash (Element::setName drops them), but the
// drawing does not rely on it: a name cannot close its quotes early.
TEST(GraphvizEscape, QuotesBackslashesAndLineBreaksAreEscaped) {
  EXPECT_EQ(GraphvizScenarioGenerator::escape("Três Marias"), "Três Marias");
  EXPECT_EQ(GraphvizScenarioGenerator::escape("Açude \"Velho\""), "Açude \\\"Velho\\\"");
  EXPECT_EQ(GraphvizScenarioGenerator::escape("C:\\rio\\"), "C:\\\\rio\\\\");
  EXPECT_EQ(GraphvizScenarioGenerator::escape("linha\num"), "linha\\num");
  EXPECT_EQ(GraphvizScenarioGenerator::escape("A & B <C> {d} [e];"), "A & B <C> {d} [e];");
  EXPECT_EQ(GraphvizScenarioGenerator::escape(""), "");
}

TEST_F(GraphvizExport, NamesWithCharactersOfOtherFormatsAreWrittenAsTheyAre) {
  auto scenario =
      std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1, kYear, "Regras");
  auto up = named(*scenario, ElementType::reservoir, "Açude <Norte> & {Sul}; -> x");
  auto down = named(*scenario, ElementType::drain, "Mar\nAberto");
  joined(*scenario, up, down, ElementType::naturalLink, "[a]=b,c");
  GraphvizScenarioGenerator::generateFile(path, *scenario);
  EXPECT_EQ(readFile(path),
            "digraph G {\n"
            "rankdir=LR;\n"
            "\"Açude <Norte> & {Sul}; -> x\" -> \"Mar\\nAberto\" [label=\"[a]=b,c\",color=cyan];\n"
            "\"Açude <Norte> & {Sul}; -> x\" [shape=triangle,color=lightblue,style=filled];\n"
            "\"Mar\\nAberto\" [shape=polygon, sides=4, color=cyan,style=filled];\n"
            "}\n");
}
