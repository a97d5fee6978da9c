#include <gtest/gtest.h>
#include <lpsolve/lp_lib.h>
#include <stdlib.h>

#include <filesystem>
#include <map>

#include "PriorityNetworkBuilder.h"
#include "common/StringUtils.h"
#include "core/ConfigurationHeader.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "operation/NetworkFlow.h"
#include "operation/PriorityOperation.h"
#include "support/ExpectThrow.h"

namespace {

const Date kJan(2001, 1, 1);

// The model of January of a built scenario, as a run makes it.
struct Model {
  explicit Model(PriorityNetworkBuilder& net) : net(net) {
    net.scenario->preRun();
    calculator = std::make_shared<HydrologicalStateCalculator>(
        net.scenario->getHydrologicalStateConfiguration(), net.scenario->getSettingsManager(),
        ElementsFilter::filterByType(net.scenario->getElements(), ElementSets::reservoir()), false);
    flow = std::make_shared<NetworkFlow>(net.scenario->getSettingsManager(), kJan, net.interval(),
                                         calculator, 0);
    map = flow->makeMapOfPriority(elements());
  }
  const Scenario::Elements& elements() const { return net.scenario->getElements(); }
  void pass(unsigned int priority) {
    flow->createModel(elements(), map, priority, false);
    flow->executeModel();
    flow->updateMapOfPriority(map);
  }
  double solved(const std::string& name) const {
    return KLPKUtils::slp_get_col_prim(&flow->getProblem(),
                                       KLPKUtils::slp_find_col(&flow->getProblem(), name));
  }

  PriorityNetworkBuilder& net;
  std::shared_ptr<HydrologicalStateCalculator> calculator;
  std::shared_ptr<NetworkFlow> flow;
  NetworkFlow::MapOfPriority map;
};

// Working files go to a private folder while a test runs.
class WorkingFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    const char* previous = getenv("USERPROFILE");
    if (previous != nullptr) saved = previous;
    std::string pattern = (std::filesystem::temp_directory_path() / "kova-prio-XXXXXX").string();
    folder = mkdtemp(pattern.data());
    setenv("USERPROFILE", folder.c_str(), 1);
    ConfigurationHeader::setKeepTheSimulationFilesAfterExecution(true);
  }
  void TearDown() override {
    ConfigurationHeader::setKeepTheSimulationFilesAfterExecution(false);
    if (saved.empty()) {
      unsetenv("USERPROFILE");
    } else {
      setenv("USERPROFILE", saved.c_str(), 1);
    }
    std::filesystem::remove_all(folder);
  }
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder),
                                                  std::filesystem::directory_iterator()));
  }

  std::string folder, saved;
};

struct Row {
  std::map<std::string, double> terms;
  int type;
  double value;
};

std::vector<Row> rowsOf(lprec* lp) {
  std::vector<Row> rows;
  std::vector<double> values(static_cast<std::size_t>(get_Ncolumns(lp)));
  std::vector<int> columns(values.size());
  for (int i = 1; i <= get_Nrows(lp); ++i) {
    Row row{{}, get_constr_type(lp, i), get_rh(lp, i)};
    const int count = get_rowex(lp, i, values.data(), columns.data());
    for (int k = 0; k < count; ++k) row.terms[get_col_name(lp, columns[k])] = values[k];
    rows.push_back(row);
  }
  return rows;
}

}  // namespace

// R1 (priority 1) feeds D2 (priority 2) through an artificial link losing 10 %. It holds 50 hm³
// above its minimum and aims at 0.4 * 100 - 10 = 30; D2 asks for 40. Pass 1 keeps 30 and holds D2
// at zero; pass 2 pins the 30, so R1_D2 <= 50 - 30 = 20 (and 0.9 * 20 <= 40).
TEST(NetworkFlow, WorkedFormKeepsTheGoalThenServesTheDemand) {
  PriorityNetworkBuilder net(1);
  net.node(ElementType::junction);  // J0 stands apart, so that the others are R1 and D2
  auto reservoir = net.reservoir(10, 100, 60, 1, 0.4);
  auto demand = net.demand(40, 2);
  auto link = net.link(reservoir, demand, 10.0, 9999.0, ElementType::artificialLink);
  Model model(net);
  EXPECT_EQ(model.flow->makePriorities(model.elements()), (std::vector<unsigned int>{1, 2}));
  model.pass(1);
  EXPECT_NEAR(model.map.at("R1_volGoal").value, 30.0, 1e-9);
  EXPECT_NEAR(model.map.at("R1_D2").value, 0.0, 1e-9);
  model.pass(2);
  EXPECT_NEAR(model.map.at("R1_volGoal").value, 30.0, 1e-9);
  EXPECT_NEAR(model.map.at("R1_D2").value, 20.0, 1e-9);
  EXPECT_NEAR(model.flow->releaseLinkValue(link), net.m3s(kJan, 20.0), 1e-9);
}

// R0 (below its minimum, priority 3) feeds R1 (priority 2) through a link losing 20 %; R1 feeds
// J2 (limit 10 m³/s) and D3 (artificial); J2 feeds D3 (10 % loss, limit 20 m³/s) and drain D4;
// D3 returns half of its inflow to D4. The model of pass 1 is written, read back and compared
// row by row with its nine families, and solved again from the file.
TEST_F(WorkingFolder, ModelFileHoldsTheNineFamiliesInOrder) {
  PriorityNetworkBuilder net(1);
  auto r0 = net.reservoir(50, 200, 20, 3);
  auto r1 = net.reservoir(10, 100, 60, 2, 0.5);
  auto j2 = net.node(ElementType::junction);
  auto d3 = net.demand(30, 1);
  auto d4 = net.node(ElementType::drain);
  net.link(r0, r1, 20.0);
  net.link(r1, j2, 0.0, 10.0);
  net.link(j2, d3, 10.0, 20.0, ElementType::artificialLink);
  net.link(r1, d3, 0.0, 9999.0, ElementType::artificialLink);
  d3->setDemandReturnPercentage(net.link(d3, d4), 50.0);
  net.link(j2, d4);
  Model model(net);
  model.pass(1);
  model.flow->writeModel(1);
  model.flow->writeSolution(1);

  const double unlimited = net.hm3(kJan, 9999.0);
  const std::vector<Row> expected = {
      {{{"R0_s", 1}}, LE, 30},                                                       // 2
      {{{"R0_R1", 1}, {"R0_volGoal", 1}, {"R0_s", -1}}, LE, -30},                    // 1
      {{{"R1_J2", 1}, {"R1_D3", 1}, {"R1_volGoal", 1}, {"R0_R1", -0.8}}, LE, 50},    // 1
      {{{"R0_volGoal", 1}}, EQ, 0},                                                  // 3
      {{{"R1_volGoal", 1}}, EQ, 0},                                                  // 3
      {{{"J2_D3", 0.9}, {"R1_D3", 1}}, LE, 30},                                      // 4
      {{{"D3_D4", 1}, {"J2_D3", -0.45}, {"R1_D3", -0.5}, {"D3_D4_drs", 1}}, EQ, 0},  // 5
      {{{"D3_D4_drs", 1}}, LE, net.hm3(kJan, 99999.0)},                              // 5
      {{{"D3_D4", 1}, {"J2_D4", 1}}, EQ, 0},                                         // 4
      {{{"J2_D3", 1}, {"J2_D4", 1}, {"R1_J2", -1}}, EQ, 0},                          // 6
      {{{"R1_D3", 1}}, LE, 90},                                                      // 8
      {{{"R0_R1", 1}, {"R0_R1_s", 1}}, GE, 0},                                       // 7
      {{{"R1_J2", 1}, {"R1_J2_s", 1}}, GE, 0},
      {{{"R1_D3", 1}, {"R1_D3_s", 1}}, GE, 0},
      {{{"J2_D3", 1}, {"J2_D3_s", 1}}, GE, 0},
      {{{"J2_D4", 1}, {"J2_D4_s", 1}}, GE, 0},
      {{{"D3_D4", 1}, {"D3_D4_s", 1}}, GE, 0},
      // Family 9 and the lower bounds, column by column; none for goals and slacks.
      {{{"J2_D3", 1}}, LE, net.hm3(kJan, 20.0)},
      {{{"J2_D3", 1}}, GE, 0},
      {{{"R1_D3", 1}}, LE, unlimited},
      {{{"R1_D3", 1}}, GE, 0},
      {{{"D3_D4", 1}}, GE, 0},
      {{{"J2_D4", 1}}, LE, unlimited},
      {{{"J2_D4", 1}}, GE, 0},
      {{{"R0_R1", 1}}, LE, unlimited},
      {{{"R0_R1", 1}}, GE, 0},
      {{{"R1_J2", 1}}, LE, net.hm3(kJan, 10.0)},
      {{{"R1_J2", 1}}, GE, 0},
      {{{"D3_D4_drs", 1}}, GE, 0},
  };
  std::string file = NetworkFlow::getModelFilename(1, kJan);
  lprec* lp = read_LP(file.data(), NEUTRAL, nullptr);
  ASSERT_NE(lp, nullptr);
  const std::vector<Row> rows = rowsOf(lp);
  ASSERT_EQ(rows.size(), expected.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(i);
    ASSERT_EQ(rows[i].terms.size(), expected[i].terms.size());
    for (const auto& [name, coefficient] : expected[i].terms) {
      EXPECT_NEAR(rows[i].terms.at(name), coefficient, 1e-12) << name;
    }
    EXPECT_EQ(rows[i].type, expected[i].type);
    EXPECT_NEAR(rows[i].value, expected[i].value, 1e-6);
  }

  // 0.9 J2_D3 + R1_D3 <= 30 with J2_D3 <= R1_J2 <= 26.784 hm³ (10 m³/s over 31 days).
  set_verbose(lp, NEUTRAL);
  ASSERT_EQ(solve(lp), OPTIMAL);
  EXPECT_NEAR(get_objective(lp), model.flow->getProblem().getValueOfOptimizationFound(), 1e-3);
  EXPECT_NEAR(model.solved("J2_D3"), 26.784, 1e-9);
  EXPECT_NEAR(model.solved("R1_D3"), 30.0 - 0.9 * 26.784, 1e-9);
  EXPECT_NEAR(model.solved("R0_s"), 30.0, 1e-9);
  std::vector<double> values(static_cast<std::size_t>(get_Ncolumns(lp)));
  get_variables(lp, values.data());
  for (int column = 1; column <= get_Ncolumns(lp); ++column) {
    EXPECT_NEAR(values[static_cast<std::size_t>(column - 1)],
                model.solved(get_col_name(lp, column)), 1e-6)
        << get_col_name(lp, column);
  }
  delete_lp(lp);
  EXPECT_TRUE(std::filesystem::exists(NetworkFlow::getModelSolutionFilename(1, kJan)));
}

// A run keeps one model and one solution file per priority and date; erasing removes them all,
// and with keeping off nothing is written and the flows are the same.
TEST_F(WorkingFolder, SimulationFilesFollowTheConfiguration) {
  EXPECT_TRUE(StringUtils::endsWith(NetworkFlow::getModelFilename(2, Date(2020, 2, 3)),
                                    "2-zonebased-model-03-02-2020.txt"));
  EXPECT_EQ(StringUtils::getDirectory(NetworkFlow::getModelSolutionFilename(2, kJan)), folder);
  PriorityNetworkBuilder net(2);
  auto link = net.link(net.reservoir(0, 100, 50, 1, 0.2), net.demand(10, 2));
  ASSERT_TRUE(net.scenario->run(nullptr));
  EXPECT_EQ(filesInFolder(), 2u * 2u * 2u);
  const double kept = net.taken(link, Date(2001, 2, 1));
  auto operation =
      std::static_pointer_cast<PriorityOperation>(net.scenario->getCurrentOperationSystem());
  operation->eraseSimulationFiles(net.interval());
  EXPECT_EQ(filesInFolder(), 0u);

  ConfigurationHeader::setKeepTheSimulationFilesAfterExecution(false);
  ASSERT_TRUE(net.scenario->run(nullptr));
  EXPECT_EQ(filesInFolder(), 0u);
  EXPECT_EQ(net.taken(link, Date(2001, 2, 1)), kept);
}

TEST(NetworkFlow, WeightsFallByPriority) {
  PriorityNetworkBuilder net(1);
  Model model(net);
  for (const auto& [priority, weight] : {std::pair{0u, 10000000.0}, std::pair{1u, 9900000.0},
                                         std::pair{99u, 100000.0}, std::pair{100u, 0.0}}) {
    EXPECT_EQ(model.flow->priority(priority), weight) << priority;
  }
}

// Demand rows that no flow can meet leave the pass without a solution.
TEST(NetworkFlow, PassWithoutSolutionThrows) {
  PriorityNetworkBuilder net(1);
  auto demand = net.demand(10, 1);
  net.link(net.reservoir(0, 100, 50, 2), demand);
  demand->getInputSerie(SerieType::demand)->fill(-1.0);
  Model model(net);
  model.flow->createModel(model.elements(), model.map, 1, false);
  EXPECT_THROW_TEXT(model.flow->executeModel(), NetworkFlow::NetflowOptimalException,
                    "It did not found a valid solution");
}

// A supply slack opens only when the reservoir misses its minimum by more than 1e-06; a disabled
// link leaves the model and keeps its 0.0 in the map.
TEST(NetworkFlow, SlackAndDisabledLinks) {
  for (const auto& [initial, slack] :
       {std::pair{20.0, true}, std::pair{50.0 - 5e-7, false}, std::pair{50.0, false}}) {
    PriorityNetworkBuilder net(1);
    auto reservoir = net.reservoir(50, 200, initial, 1);
    auto link = net.link(reservoir, net.demand(5, 1));
    link->setEnabled(false);
    Model model(net);
    model.pass(1);
    EXPECT_EQ(model.flow->getProblem().findVariable("R0_s") >= 0, slack) << initial;
    EXPECT_EQ(model.flow->getProblem().findVariable("R0_D1"), -1);
    EXPECT_EQ(model.map.at("R0_D1").value, 0.0);
    EXPECT_EQ(model.flow->releaseLinkValue(link), 0.0);
  }
}

TEST(KLPKUtils, NamingHelpersFindOrAddAndBound) {
  KLPKRepresentation problem;
  const int column = KLPKUtils::doubleBounded(&problem, "R1_D2", 0.0, 5.0);
  EXPECT_EQ(KLPKUtils::lowColValue(&problem, "R1_D2", 1.0), column);
  EXPECT_EQ(problem.getVariable(column).typeOfBound, kLowerBound);
  EXPECT_EQ(KLPKUtils::subject(&problem), "r_0");
  const int row = KLPKUtils::assignRowValue(&problem, KLPKUtils::subject(&problem), 3.0);
  EXPECT_EQ(KLPKUtils::upRowValue(&problem, "r_0", 4.0), row);
  EXPECT_EQ(problem.getRow(row).typeOfBound, kUpperBound);
  EXPECT_EQ(KLPKUtils::slp_find_col(&problem, "absent"), -1);
  const int terms[] = {0, 7};
  const double coefs[] = {1.0, 1.0};
  EXPECT_THROW_TEXT(KLPKUtils::slp_set_mat_row(&problem, row, 1, terms, coefs),
                    std::invalid_argument, "The index is out of bounds");
  EXPECT_THROW_TEXT(KLPKUtils::slp_get_col_prim(&problem, 1), std::invalid_argument,
                    "The index is out of bounds");
}
