#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "optimization/kernel/ArrayReal.h"
#include "optimization/kernel/Binary.h"
#include "optimization/kernel/BinaryReal.h"
#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/KernelTestSupport.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/RandomGenerator.h"
#include "optimization/kernel/Real.h"

namespace {

TEST(Real, DrawsItsValueBetweenItsBounds) {
  PseudoRandom::setSeed(11);
  RandomGenerator twin(PseudoRandom::seedFor(11));
  Real real(-2.0, 6.0);
  EXPECT_EQ(real.getValue(), 8.0 * twin.randomperc() - 2.0);
  EXPECT_EQ(real.getLowerBound(), -2.0);
  EXPECT_EQ(real.getUpperBound(), 6.0);
}

TEST(Real, CopiesAnyVariableThroughItsAccessors) {
  Real original(1.0, 3.0);
  original.setValue(2.25);
  std::unique_ptr<Variable> copy(original.deepCopy());
  EXPECT_EQ(copy->getValue(), 2.25);
  EXPECT_EQ(copy->getLowerBound(), 1.0);
  EXPECT_EQ(copy->getUpperBound(), 3.0);
  EXPECT_EQ(copy->getVariableType(), "Real");
  EXPECT_EQ(copy->toString(), "2.25");
  EXPECT_EQ(Real().getValue(), 0.0);
}

TEST(Real, BoundSettersAnswerOnlyOnTheirOwnType) {
  Real real(0.0, 1.0);
  Variable* asVariable = &real;
  std::string printed;
  PRINTED_BY(asVariable->setLowerBound(-5.0), printed);
  EXPECT_EQ(printed, "Class Real does not implement method setLowerBound\n");
  PRINTED_BY(asVariable->setUpperBound(5.0), printed);
  EXPECT_EQ(printed, "Class Real does not implement method setUpperBound\n");
  EXPECT_EQ(real.getLowerBound(), 0.0);
  EXPECT_EQ(real.getUpperBound(), 1.0);
  real.setLowerBound(-5.0);
  real.setUpperBound(5.0);
  EXPECT_EQ(real.getLowerBound(), -5.0);
  EXPECT_EQ(real.getUpperBound(), 5.0);
}

TEST(Binary, EachBitIsOneDrawBelowOneHalf) {
  PseudoRandom::setSeed(3);
  RandomGenerator twin(PseudoRandom::seedFor(3));
  Binary bits(70);
  int set = 0;
  for (int i = 0; i < 70; ++i) {
    const bool expected = twin.randomperc() < 0.5;
    EXPECT_EQ(bits.getIth(i), expected) << "bit " << i;
    set += expected ? 1 : 0;
  }
  EXPECT_EQ(bits.cardinality(), set);
  EXPECT_EQ(bits.getNumberOfBits(), 70);
  EXPECT_EQ(Binary().getNumberOfBits(), -1);
}

TEST(Binary, BitOperationsAcrossWords) {
  Binary bits(40);
  for (int i = 0; i < 40; ++i) bits.setIth(i, false);
  bits.setIth(0, true);
  bits.setIth(31, true);
  bits.setIth(32, true);
  bits.flip(39);
  EXPECT_EQ(bits.toString(), "1000000000000000000000000000000110000001");
  EXPECT_EQ(bits.cardinality(), 4);
  std::unique_ptr<Binary> other(static_cast<Binary*>(bits.deepCopy()));
  EXPECT_EQ(bits.hammingDistance(other.get()), 0);
  other->flip(31);
  other->flip(5);
  EXPECT_EQ(bits.hammingDistance(other.get()), 2);
  EXPECT_EQ(bits.getValue(), 0.0);
  bits.setValue(7.0);
  EXPECT_EQ(bits.getValue(), 0.0);
  EXPECT_THROW(bits.getLowerBound(), KernelException);
  EXPECT_THROW(bits.getUpperBound(), KernelException);
}

TEST(BinaryReal, DecodesWithBitZeroLeastSignificant) {
  struct Case {
    std::string bits;  // bit 0 first
    double lower;
    double upper;
    double value;
  };
  // value = lower + S * (upper - lower) / (2^n - 1)
  const Case cases[] = {
      {"101", 0.0, 7.0, 5.0},      // S = 1 + 4
      {"011", 0.0, 7.0, 6.0},      // S = 2 + 4
      {"000", -1.0, 1.0, -1.0},    // S = 0: the lower bound
      {"1111", -1.0, 1.0, 1.0},    // S = 15 = 2^4 - 1: the upper bound
      {"1000", 10.0, 25.0, 11.0},  // S = 1: one step of 15 / 15
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.bits);
    BinaryReal variable(static_cast<int>(c.bits.size()), c.lower, c.upper);
    for (std::size_t i = 0; i < c.bits.size(); ++i) {
      variable.setIth(static_cast<int>(i), c.bits[i] == '1');
    }
    variable.decode();
    EXPECT_DOUBLE_EQ(variable.getValue(), c.value);
    std::unique_ptr<Variable> copy(variable.deepCopy());
    EXPECT_EQ(copy->getValue(), variable.getValue());
    EXPECT_EQ(copy->getLowerBound(), c.lower);
  }
}

TEST(BinaryReal, SetValueLeavesTheBitsAlone) {
  BinaryReal variable(8, 0.0, 255.0);
  const std::string bits = Binary(static_cast<const Binary*>(&variable)).toString();
  variable.setValue(3.5);
  EXPECT_EQ(variable.getValue(), 3.5);
  EXPECT_EQ(Binary(static_cast<const Binary*>(&variable)).toString(), bits);
  variable.decode();
  EXPECT_NE(variable.getValue(), 3.5);
}

TEST(ArrayReal, DrawsEachEntryWithinTheProblemsLimits) {
  FixedProblem problem(3, 1);
  problem.setLimits(0, 0.0, 1.0);
  problem.setLimits(1, -10.0, 10.0);
  problem.setLimits(2, 5.0, 6.0);
  PseudoRandom::setSeed(17);
  RandomGenerator twin(PseudoRandom::seedFor(17));
  ArrayReal array(3, &problem);
  EXPECT_EQ(array.getValue(0), 1.0 * twin.randomperc() + 0.0);
  EXPECT_EQ(array.getValue(1), 20.0 * twin.randomperc() - 10.0);
  EXPECT_EQ(array.getValue(2), 1.0 * twin.randomperc() + 5.0);
  EXPECT_EQ(array.getLowerBound(1), -10.0);
  EXPECT_EQ(array.getUpperBound(2), 6.0);
  EXPECT_EQ(array.getLength(), 3);
}

TEST(ArrayReal, FaultsArePrintedAndTheCallGoesOn) {
  FixedProblem problem(2, 1);
  ArrayReal array(2, &problem);
  array.setValue(1, 0.75);
  struct Case {
    std::string name;
    std::function<double()> call;
    std::string printed;
  };
  const Case cases[] = {
      {"getValue(2)", [&] { return array.getValue(2); },
       "ArrayReal.getValue: index value (2) invalid\n"},
      {"getValue(-1)", [&] { return array.getValue(-1); },
       "ArrayReal.getValue: index value (-1) invalid\n"},
      {"setValue(5, x)",
       [&] {
         array.setValue(5, 9.0);
         return 0.0;
       },
       "ArrayReal.getValue: index value (5) invalid\n"},
      {"getValue()", [&] { return array.getValue(); },
       "ERROR: ArrayReal::getValue() without index\n"},
      {"setValue(x)",
       [&] {
         array.setValue(9.0);
         return 0.0;
       },
       "ERROR: ArrayReal::setValue(value) without index\n"},
      {"getLowerBound()", [&] { return array.getLowerBound(); },
       "ERROR: ArrayReal::getLowerBound() without index\n"},
      {"getUpperBound()", [&] { return array.getUpperBound(); },
       "ERROR: ArrayReal::getUpperBound() without index\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::string printed;
    double result = -1.0;
    PRINTED_BY(result = c.call(), printed);
    EXPECT_EQ(printed, c.printed);
    EXPECT_EQ(result, 0.0);
  }
  EXPECT_EQ(array.getValue(1), 0.75);
}

}  // namespace
