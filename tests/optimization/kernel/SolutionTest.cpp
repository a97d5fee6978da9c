#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

#include "optimization/kernel/ArrayReal.h"
#include "optimization/kernel/BinaryReal.h"
#include "optimization/kernel/KernelTestSupport.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/Real.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/SolutionType.h"
#include "optimization/kernel/XReal.h"

namespace {

TEST(Solution, StartsWithRandomVariablesAndZeroBookkeeping) {
  FixedProblem problem(3, 2, -1.0, 1.0);
  Solution solution(&problem);
  EXPECT_EQ(solution.getNumberOfVariables(), 3);
  EXPECT_EQ(solution.getNumberOfObjectives(), 2);
  EXPECT_EQ(solution.getProblem(), &problem);
  EXPECT_EQ(solution.getType(), problem.getSolutionType());
  EXPECT_EQ(solution.getFitness(), 0.0);
  EXPECT_FALSE(solution.isMarked());
  EXPECT_EQ(solution.getRank(), 0);
  EXPECT_EQ(solution.getOverallConstraintViolation(), 0.0);
  EXPECT_EQ(solution.getNumberOfViolatedConstraints(), 0);
  EXPECT_EQ(solution.getLocation(), 0);
  EXPECT_EQ(solution.getKDistance(), 0.0);
  EXPECT_EQ(solution.getCrowdingDistance(), 0.0);
  EXPECT_EQ(solution.getDistanceToSolutionSet(), 1.7976931348623157e308);
  for (int i = 0; i < 3; ++i) {
    EXPECT_GE(solution.getDecisionVariables()[i]->getValue(), -1.0);
    EXPECT_LT(solution.getDecisionVariables()[i]->getValue(), 1.0);
  }
}

TEST(Solution, CopyIsDeep) {
  FixedProblem problem(2, 2);
  std::unique_ptr<Solution> original(solutionWith(&problem, {1.0, 2.0}, -0.5));
  original->setCrowdingDistance(4.0);
  original->setRank(3);
  original->setMarked(true);
  original->setKDistance(0.25);
  original->setDistanceToSolutionSet(9.0);
  std::unique_ptr<Solution> copy(new Solution(original.get()));
  original->setObjective(0, 100.0);
  original->getDecisionVariables()[0]->setValue(0.125);
  EXPECT_EQ(copy->getObjective(0), 1.0);
  EXPECT_NE(copy->getDecisionVariables()[0]->getValue(), 0.125);
  EXPECT_EQ(copy->getOverallConstraintViolation(), -0.5);
  EXPECT_EQ(copy->getCrowdingDistance(), 4.0);
  EXPECT_EQ(copy->getRank(), 3);
  EXPECT_TRUE(copy->isMarked());
  EXPECT_EQ(copy->getKDistance(), 0.25);
  EXPECT_EQ(copy->getDistanceToSolutionSet(), 9.0);
}

TEST(Solution, ObjectiveIndexOutOfRangeIsAFault) {
  FixedProblem problem(1, 2);
  Solution solution(&problem);
  EXPECT_KERNEL_FAULT(solution.setObjective(2, 1.0),
                      "Solution::setObjective: objective index out of range: 2");
  EXPECT_KERNEL_FAULT(solution.getObjective(-1),
                      "Solution::getObjective: objective index out of range: -1");
}

TEST(Solution, TextAndAggregate) {
  FixedProblem problem(2, 3);
  std::unique_ptr<Solution> solution(solutionWith(&problem, {1.5, -2.0, 4.0}));
  solution->getDecisionVariables()[0]->setValue(0.5);
  solution->getDecisionVariables()[1]->setValue(0.25);
  EXPECT_EQ(solution->toString(), "0.5 0.25  | 1.5 -2 4 ");
  EXPECT_EQ(solution->getAggregativeValue(), 3.5);
  FixedProblem none(1, 0);
  EXPECT_EQ(Solution(&none).getAggregativeValue(), 0.0);
}

TEST(SolutionType, BinaryRealInstallsThirtyBitsWhenThePrecisionIsMissing) {
  FixedProblem problem(3, 1, 0.0, 4.0);
  problem.setSolutionType(new BinaryRealSolutionType(&problem));
  ASSERT_TRUE(problem.getPrecision().empty());
  Solution solution(&problem);
  ASSERT_EQ(problem.getPrecision().size(), 3u);
  for (int i = 0; i < 3; ++i) {
    auto* variable = dynamic_cast<BinaryReal*>(solution.getDecisionVariables()[i]);
    ASSERT_NE(variable, nullptr);
    EXPECT_EQ(problem.getPrecision(i), 30);
    EXPECT_EQ(variable->getNumberOfBits(), 30);
    EXPECT_EQ(variable->getUpperBound(), 4.0);
  }
  problem.setPrecision({4, 5, 6});
  Solution second(&problem);
  EXPECT_EQ(static_cast<BinaryReal*>(second.getDecisionVariables()[2])->getNumberOfBits(), 6);
}

TEST(SolutionType, ArrayRealHoldsOneVariableForAll) {
  FixedProblem problem(4, 1, 2.0, 3.0);
  problem.setSolutionType(new ArrayRealSolutionType(&problem));
  Solution solution(&problem);
  EXPECT_EQ(solution.getVariableArrayLength(), 1);
  auto* array = dynamic_cast<ArrayReal*>(solution.getDecisionVariables()[0]);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ(array->getLength(), 4);
  Solution copy(&solution);
  EXPECT_EQ(static_cast<ArrayReal*>(copy.getDecisionVariables()[0])->getValue(3),
            array->getValue(3));
}

// Every real-coded encoding through the one view.
class XRealEncodings : public ::testing::TestWithParam<int> {};

TEST_P(XRealEncodings, ReadsAndWritesEveryVariable) {
  FixedProblem problem(3, 1, -2.0, 2.0);
  problem.setLimits(1, 10.0, 20.0);
  if (GetParam() == 1) problem.setSolutionType(new BinaryRealSolutionType(&problem));
  if (GetParam() == 2) problem.setSolutionType(new ArrayRealSolutionType(&problem));
  Solution solution(&problem);
  XReal x(&solution);
  EXPECT_EQ(x.getNumberOfDecisionVariables(), 3);
  EXPECT_EQ(x.size(), 3);
  EXPECT_EQ(x.getSolution(), &solution);
  EXPECT_EQ(x.getLowerBound(1), 10.0);
  EXPECT_EQ(x.getUpperBound(1), 20.0);
  x.setValue(1, 12.5);
  x.setValue(2, -1.5);
  EXPECT_EQ(x.getValue(1), 12.5);
  EXPECT_EQ(XReal(&solution).getValue(2), -1.5);
}

INSTANTIATE_TEST_SUITE_P(RealBinaryRealArrayReal, XRealEncodings, ::testing::Values(0, 1, 2));

class OddSolutionType : public RealSolutionType {
 public:
  using RealSolutionType::RealSolutionType;
};

TEST(XReal, AnyOtherSolutionTypeIsAFault) {
  FixedProblem problem(2, 1);
  problem.setSolutionType(new OddSolutionType(&problem));
  Solution solution(&problem);
  XReal x(&solution);
  const std::string line =
      "ERROR GRAVE: solution type (anonymous namespace)::OddSolutionType invalid";
  EXPECT_KERNEL_FAULT(x.getValue(0), line);
  EXPECT_KERNEL_FAULT(x.setValue(0, 1.0), line);
  EXPECT_KERNEL_FAULT(x.getNumberOfDecisionVariables(), line);
}

TEST(Problem, LimitFaultsArePrintedAndTheSlotStillRead) {
  FixedProblem problem(2, 1, -3.0, 3.0);
  std::string printed;
  double value = 0.0;
  PRINTED_BY(value = problem.getLowerLimit(1), printed);
  EXPECT_EQ(printed, "");
  EXPECT_EQ(value, -3.0);
  EXPECT_KERNEL_FAULT(problem.getLowerLimit(2),
                      "Error: lower limits have been not initialized or accessing to a variable "
                      "out of range");
  EXPECT_KERNEL_FAULT(problem.getUpperLimit(7),
                      "Error: upper limits have been not initialized or accessing to a variable "
                      "out of range");
}

TEST(Problem, LengthsDefaultToSixteenBits) {
  FixedProblem problem(3, 1);
  EXPECT_EQ(problem.getLength(2), 16);
  EXPECT_EQ(problem.getNumberOfBits(), 48);
}

}  // namespace
