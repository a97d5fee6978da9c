#include <gtest/gtest.h>

#include "core/ElementSets.h"
#include "operation/ReservoirResultsWriter.h"
#include "operation/ResultsWriterFactory.h"
#include "operation/RuleReleaseAllocationFactory.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

constexpr unsigned int kNode = 1, kA = 2, kB = 3;

// Breakpoints 0, 10, 20: link A takes 0, 4, 8 and link B 0, 6, 12.
const RuleReleaseDefaultAllocation::AllocationMatrix kThreeLines = {
    {kNode, {0, 10, 20}}, {kA, {0, 4, 8}}, {kB, {0, 6, 12}}};

double shareOfA(const RuleReleaseDefaultAllocation::AllocationMatrix& matrix, double total) {
  return RuleReleaseDefaultAllocation::GetInterpolationAllocationMatrix(matrix, total, kA, kNode);
}

}  // namespace

TEST(AllocationInterpolation, SharesByLinesAndRemainders) {
  struct Case {
    double total, expected;
    const char* why;
  };
  const Case cases[] = {
      {10, 4, "on a line"},
      {15, 6, "halfway between 4 and 8"},
      {20, 8, "on the last line"},
      {30, 12, "8 at the top, and the remainder 10 falls on the line of 10: 8 + 4"},
      {25, 10, "8 at the top, and the remainder 5 interpolates to 2"},
      {0, 0, "nothing passes"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.why);
    EXPECT_NEAR(shareOfA(kThreeLines, c.total), c.expected, 1e-12);
  }
}

TEST(AllocationInterpolation, OneLineSharesByItsProportions) {
  const RuleReleaseDefaultAllocation::AllocationMatrix oneLine = {{kNode, {10}}, {kA, {4}}, {kB, {6}}};
  // 5 lies below the only line: A takes 4 / (4 + 6) of it.
  EXPECT_NEAR(shareOfA(oneLine, 5), 2.0, 1e-12);
  const RuleReleaseDefaultAllocation::AllocationMatrix empty = {{kNode, {}}, {kA, {}}};
  EXPECT_EQ(shareOfA(empty, 5), 0.0);
  EXPECT_THROW(RuleReleaseDefaultAllocation::GetInterpolationAllocationMatrix(kThreeLines, 5, 99,
                                                                              kNode),
               std::out_of_range);
}

TEST(AllocationInterpolation, LinkLimitCapsTheShareWithoutRedistribution) {
  NetworkBuilder net(NetworkBuilder::monthly(2000, 2000));
  auto source = net.node(ElementType::junction);
  auto junction = net.node(ElementType::junction);
  auto feed = net.link(source, junction);
  auto a = net.link(junction, net.node(ElementType::drain), 3.0);
  auto b = net.link(junction, net.node(ElementType::drain));
  net.allocation(junction, {{double(junction->getId()), double(a->getId()), double(b->getId())},
                            {0, 0, 0},
                            {10, 4, 6},
                            {20, 8, 12}});
  net.scenario->createResults();
  const Date date(2000, 1, 1);
  feed->getOutputSerie(SerieType::outflow, 0)->setValue(date, 15.0);
  auto allocator = RuleReleaseAllocationFactory::make(ElementType::junction,
                                                      net.scenario->getInterval(), date, 0);
  const auto& settings = net.scenario->getSettingsManager();
  EXPECT_NEAR(allocator->getValue(junction, a, settings, false, 0), 3.0, 1e-9);  // 6 capped at 3
  EXPECT_NEAR(allocator->getValue(junction, b, settings, false, 0), 9.0, 1e-9);  // not 12
  EXPECT_THROW_TEXT(RuleReleaseAllocationFactory::make(ElementType::naturalLink,
                                                       net.scenario->getInterval(), date, 0),
                    std::invalid_argument,
                    "RuleRelaseAllocationFactory::make(): invalid elementType");
}

TEST(HydrologicalBalance, ConvertsByTheLengthOfThePeriod) {
  const Date leapFebruary(2000, 2, 1);
  EXPECT_NEAR(HydrologicalBalanceFactory::make(Periodicity::daily)->hm3(leapFebruary, 1.0), 0.0864,
              1e-15);
  EXPECT_NEAR(HydrologicalBalanceFactory::make(Periodicity::daily)->m3s(leapFebruary, 0.0864), 1.0,
              1e-12);
  // 29 days * 0.0864 hm³ per m³/s-day.
  EXPECT_NEAR(HydrologicalBalanceFactory::make(Periodicity::monthly)->hm3(leapFebruary, 1.0),
              2.5056, 1e-12);
  // 10 m³/s over January: 10 * 31 * 0.0864.
  EXPECT_NEAR(HydrologicalBalanceFactory::make(Periodicity::monthly)->hm3(Date(2001, 1, 1), 10.0),
              26.784, 1e-12);
  EXPECT_NEAR(HydrologicalBalanceFactory::make(Periodicity::yearly)->hm3(leapFebruary, 1.0),
              366 * 0.0864, 1e-12);
  EXPECT_NEAR(HydrologicalBalance::volume(100.0, 2.5), 0.25, 1e-15);
  EXPECT_THROW_TEXT(HydrologicalBalanceFactory::make(static_cast<Periodicity>(3)),
                    std::invalid_argument, "HydrologicalBalanceFactory::make(): invalid periodicity");
}

TEST(ResultsWriters, EveryRuleElementHasItsWriter) {
  for (ElementType type : ElementSets::allElements()) {
    EXPECT_NE(ResultsWriterFactory::make({ScenarioType::ruleSimulator, type}), nullptr);
  }
  EXPECT_NE(std::dynamic_pointer_cast<ReservoirRuleResultsWriter>(
                ResultsWriterFactory::make({ScenarioType::ruleSimulator, ElementType::reservoir})),
            nullptr);
  EXPECT_THROW_TEXT(
      ResultsWriterFactory::make({ScenarioType::ruleSimulator, ElementType::genericDemand}),
      std::invalid_argument, "ResultsWriterFactory::make(): invalid key (scenarioType, elementType)");
}
