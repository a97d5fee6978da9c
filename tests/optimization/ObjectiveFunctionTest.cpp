#include <gtest/gtest.h>

#include <cmath>

#include "core/ElementFactory.h"
#include "core/Link.h"
#include "core/LinkAddonFactory.h"
#include "core/ResultFactory.h"
#include "optimization/ObjectiveFunctionFactory.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

const Interval kFirstQuarter(Date(2001, 1, 1), Date(2001, 3, 1),
                             Vocabulary::of(Periodicity::monthly));

// An element of type with one empty result set over the first quarter of 2001.
std::shared_ptr<Element> withResults(ElementType type) {
  auto element = ElementFactory::make(type);
  element->setOutputSeries(ResultFactory::make(
      {ExecutionType::continuous, type, ScenarioType::ruleOptimizer}, 1));
  element->setIntervalSeries(kFirstQuarter);
  return element;
}

void fill(const std::shared_ptr<Element>& element, SerieType kind,
          const std::vector<double>& values) {
  for (unsigned int month = 1; month <= values.size(); ++month) {
    element->getOutputSerie(kind, 0)->setValue(Date(2001, month, 1), values[month - 1]);
  }
}

double valueOf(ObjectiveFunctionType type, bool minimize,
               const std::vector<std::shared_ptr<Element>>& elements) {
  return ObjectiveFunctionFactory::make(type, minimize, elements)->getValue(0);
}

}  // namespace

TEST(ObjectiveFunction, SumsTheResultsOfTheEnabledElementsOfItsTypes) {
  auto first = withResults(ElementType::reservoir);
  auto second = withResults(ElementType::reservoir);
  auto disabled = withResults(ElementType::reservoir);
  auto demand = withResults(ElementType::humanDemand);
  fill(first, SerieType::spilledVolume, {1.5, 0.0, 2.0});
  fill(second, SerieType::spilledVolume, {0.25, 0.25, 0.0});
  fill(disabled, SerieType::spilledVolume, {100.0, 100.0, 100.0});
  disabled->setEnabled(false);
  fill(first, SerieType::evaporatedVolume, {0.1, 0.2, 0.3});
  fill(demand, SerieType::supplyFailure, {1.0, 0.0, 1.0});

  const std::vector<std::shared_ptr<Element>> all = {first, second, disabled, demand};
  // 1.5 + 2.0 + 0.25 + 0.25; the disabled reservoir and the demand add nothing.
  EXPECT_DOUBLE_EQ(valueOf(ObjectiveFunctionType::spillVolume, true, all), 4.0);
  EXPECT_DOUBLE_EQ(valueOf(ObjectiveFunctionType::spillVolume, false, all), -4.0);
  EXPECT_DOUBLE_EQ(valueOf(ObjectiveFunctionType::evaporationLoss, true, {first}), 0.6);
  EXPECT_DOUBLE_EQ(valueOf(ObjectiveFunctionType::numberOfFailures, true, all), 2.0);
  EXPECT_EQ(valueOf(ObjectiveFunctionType::spillVolume, true, {}), 0.0);
  EXPECT_TRUE(std::signbit(valueOf(ObjectiveFunctionType::spillVolume, false, {})));
}

TEST(ObjectiveFunction, ShortageVolumeConvertsEachMonthWithItsOwnLength) {
  auto demand = withResults(ElementType::irrigationDemand);
  fill(demand, SerieType::supplyShortage, {1.0, 1.0, 2.0});
  // 1 m³/s over January is 31 * 0.0864 hm³, over February 2001 28 * 0.0864, 2 m³/s over March
  // 2 * 31 * 0.0864: 2.6784 + 2.4192 + 5.3568.
  EXPECT_NEAR(valueOf(ObjectiveFunctionType::shortageVolume, true, {demand}), 10.4544, 1e-12);
}

TEST(ObjectiveFunction, PumpingCostCountsOnlyLinksThatPump) {
  auto pumped = withResults(ElementType::artificialLink);
  auto plain = withResults(ElementType::artificialLink);
  std::static_pointer_cast<Link>(pumped)->setLinkAddon(
      LinkAddonFactory::make(LinkAddonType::pumping));
  fill(pumped, SerieType::pumpingCost, {10.0, 20.0, 30.0});
  fill(plain, SerieType::pumpingCost, {1.0, 1.0, 1.0});
  EXPECT_DOUBLE_EQ(valueOf(ObjectiveFunctionType::pumpingCost, true, {pumped, plain}), 60.0);
}

TEST(ObjectiveFunction, MissingResultsAndUnknownTypesAreNamed) {
  auto reservoir = withResults(ElementType::reservoir);
  EXPECT_THROW_TEXT(
      ObjectiveFunctionFactory::make(ObjectiveFunctionType::spillVolume, true, {reservoir})
          ->getValue(1),
      std::invalid_argument, "Invalid index value!");
  EXPECT_THROW_TEXT(ObjectiveFunctionFactory::make(static_cast<ObjectiveFunctionType>(6), true, {}),
                    std::invalid_argument,
                    "ObjectiveFunctionFactory::make(): invalid ObjectiveFunctionType");
  EXPECT_THROW_TEXT(ObjectiveFunctionTypeEnum::byName("Volume vertido "), std::invalid_argument,
                    "getObjectiveFunctionByString(): Invalid objective function");
  for (const auto& entry : ObjectiveFunctionTypeEnum::all()) {
    EXPECT_EQ(ObjectiveFunctionTypeEnum::byName(entry.getName()).getType(), entry.getType());
    EXPECT_EQ(entry.getFlag(), entry.getType() != ObjectiveFunctionType::spillVolume);
  }
}
