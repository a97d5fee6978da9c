#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/KernelTestSupport.h"
#include "optimization/kernel/SolutionSet.h"
#include "support/TemporaryFolder.h"

namespace {

std::string fileText(const std::string& path) {
  std::ifstream in(path);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

std::vector<double> firstObjectives(const SolutionSet& set) {
  std::vector<double> values;
  for (int i = 0; i < set.size(); ++i) values.push_back(set.get(i)->getObjective(0));
  return values;
}

class SolutionSetTest : public ::testing::Test {
 protected:
  SolutionSet* setOf(const std::vector<double>& firsts, int capacity) {
    auto* set = new SolutionSet(capacity);
    for (double value : firsts) set->add(solutionWith(&problem, {value, -value}));
    return set;
  }
  FixedProblem problem{2, 2};
};

TEST_F(SolutionSetTest, FullSetRefusesAppendButTakesAnInsert) {
  std::unique_ptr<SolutionSet> set(setOf({1.0, 2.0}, 2));
  Solution* extra = solutionWith(&problem, {3.0, 3.0});
  EXPECT_KERNEL_FAULT(
      set->add(extra),
      "Error in class SolutionSet the maximum capacity of the set has been reached");
  set->add(0, extra);
  EXPECT_EQ(firstObjectives(*set), (std::vector<double>{3.0, 1.0, 2.0}));
  EXPECT_EQ(set->getMaxSize(), 2);
}

TEST_F(SolutionSetTest, BadIndicesAreFaults) {
  std::unique_ptr<SolutionSet> set(setOf({1.0}, 3));
  const std::string line = "Error in class SolutionSet trying to access to an element out of range";
  EXPECT_KERNEL_FAULT(set->get(1), line);
  EXPECT_KERNEL_FAULT(set->get(-1), line);
  EXPECT_KERNEL_FAULT(set->remove(4), line);
  EXPECT_KERNEL_FAULT(set->replace(1, nullptr), line);
  EXPECT_KERNEL_FAULT(set->add(3, nullptr), line);
}

TEST_F(SolutionSetTest, RemoveAndReplaceHandTheSolutionBack) {
  std::unique_ptr<SolutionSet> set(setOf({1.0, 2.0, 3.0}, 3));
  std::unique_ptr<Solution> removed(set->get(1));
  set->remove(1);
  std::unique_ptr<Solution> replaced(set->get(0));
  set->replace(0, solutionWith(&problem, {9.0, 0.0}));
  EXPECT_EQ(firstObjectives(*set), (std::vector<double>{9.0, 3.0}));
  EXPECT_EQ(removed->getObjective(0), 2.0);
  EXPECT_EQ(replaced->getObjective(0), 1.0);
}

TEST_F(SolutionSetTest, SortIsAnExchangeSortOnTheComparator) {
  std::unique_ptr<SolutionSet> set(setOf({3.0, 1.0, 2.0, 1.0, 0.5}, 5));
  ObjectiveComparator ascending(0);
  set->sort(&ascending);
  EXPECT_EQ(firstObjectives(*set), (std::vector<double>{0.5, 1.0, 1.0, 2.0, 3.0}));
  ObjectiveComparator descending(0, true);
  set->sort(&descending);
  EXPECT_EQ(firstObjectives(*set), (std::vector<double>{3.0, 2.0, 1.0, 1.0, 0.5}));
  EXPECT_KERNEL_FAULT(set->sort(nullptr), "Error. No criterium for compare exist");
}

TEST_F(SolutionSetTest, BestAndWorstKeepTheEarlierOfEquals) {
  std::unique_ptr<SolutionSet> set(setOf({2.0, 1.0, 3.0, 1.0, 3.0}, 5));
  ObjectiveComparator ascending(0);
  EXPECT_EQ(set->indexBest(&ascending), 1);
  EXPECT_EQ(set->indexWorst(&ascending), 2);
  EXPECT_EQ(set->best(&ascending), set->get(1));
  EXPECT_EQ(set->worst(&ascending), set->get(2));

  SolutionSet empty(3);
  EXPECT_EQ(empty.indexBest(&ascending), -1);
  EXPECT_EQ(empty.indexWorst(&ascending), -1);
  EXPECT_EQ(empty.best(&ascending), nullptr);
  EXPECT_EQ(empty.worst(&ascending), nullptr);
  std::unique_ptr<SolutionSet> one(setOf({7.0}, 1));
  EXPECT_EQ(one->indexBest(&ascending), 0);
  EXPECT_EQ(one->indexWorst(&ascending), 0);
}

TEST_F(SolutionSetTest, JoinCopiesBothSetsInOrder) {
  std::unique_ptr<SolutionSet> a(setOf({1.0, 2.0}, 4));
  std::unique_ptr<SolutionSet> b(setOf({3.0}, 1));
  std::unique_ptr<SolutionSet> joined(a->join(b.get()));
  EXPECT_EQ(joined->getMaxSize(), 3);
  EXPECT_EQ(firstObjectives(*joined), (std::vector<double>{1.0, 2.0, 3.0}));
  EXPECT_NE(joined->get(0), a->get(0));
  EXPECT_NE(joined->get(2), b->get(0));
}

TEST_F(SolutionSetTest, ObjectivesAndVariablesToFiles) {
  TemporaryFolder folder("kova_kernel_");
  std::unique_ptr<SolutionSet> set(setOf({1.5, -2.0}, 2));
  for (int i = 0; i < 2; ++i) {
    set->get(i)->getDecisionVariables()[0]->setValue(0.25 * (i + 1));
    set->get(i)->getDecisionVariables()[1]->setValue(0.0);
  }
  const std::string fun = folder.file("FUN");
  const std::string var = folder.file("VAR");
  set->printObjectivesToFile(fun);
  EXPECT_EQ(fileText(fun), "1.5 -1.5 \n-2 2 \n");
  set->printObjectivesToFile(fun, true);
  EXPECT_EQ(fileText(fun), "1.5 -1.5 \n-2 2 \n1.5 -1.5 \n-2 2 \n");
  set->printObjectivesToFile(fun, false);
  EXPECT_EQ(fileText(fun), "1.5 -1.5 \n-2 2 \n");

  set->printVariablesToFile(var);
  EXPECT_EQ(fileText(var), "0.25 0  | 1.5 -1.5 \n0.5 0  | -2 2 \n");
  set->printVariablesToFile(var, true);
  EXPECT_EQ(fileText(var),
            "0.25 0  | 1.5 -1.5 \n0.5 0  | -2 2 \n0.25 0  | 1.5 -1.5 \n"
            "0.5 0  | -2 2 \n");

  std::string printed;
  PRINTED_BY(set->printObjectives(), printed);
  EXPECT_EQ(printed, "0.25 0  | 1.5 -1.5 \n0.5 0  | -2 2 \n");
  EXPECT_EQ(set->writeObjectivesToMatrix(),
            (std::vector<std::vector<double>>{{1.5, -1.5}, {-2.0, 2.0}}));
}

}  // namespace
