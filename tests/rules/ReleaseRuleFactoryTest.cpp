#include <gtest/gtest.h>

#include <map>
#include <typeindex>

#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/NoneReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptNoneReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"
#include "rules/OptVolDepOnePeriodicReleaseRule.h"
#include "rules/OptVolDepOneStaticReleaseRule.h"
#include "rules/OptVolDepTwoPeriodicReleaseRule.h"
#include "rules/OptVolDepTwoStaticReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/ReleaseRuleFactory.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOnePeriodicReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "rules/VolDepTwoPeriodicReleaseRule.h"
#include "rules/VolDepTwoStaticReleaseRule.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

const char kRefusal[] = "ReleaseRuleFactory::make(): invalid ReleaseRuleType";

// The class made for each type the factory knows.
const std::map<ReleaseRuleType, std::type_index> kClasses = {
    {ReleaseRuleType::none, typeid(NoneReleaseRule)},
    {ReleaseRuleType::constant, typeid(ConstReleaseRule)},
    {ReleaseRuleType::periodic, typeid(PeriodicReleaseRule)},
    {ReleaseRuleType::serie, typeid(SerieReleaseRule)},
    {ReleaseRuleType::hydrologicalState, typeid(HydrologicalStateReleaseRule)},
    {ReleaseRuleType::staticVolumeDependence1, typeid(VolDepOneStaticReleaseRule)},
    {ReleaseRuleType::periodicVolumeDependence1, typeid(VolDepOnePeriodicReleaseRule)},
    {ReleaseRuleType::staticVolumeDependence2, typeid(VolDepTwoStaticReleaseRule)},
    {ReleaseRuleType::periodicVolumeDependence2, typeid(VolDepTwoPeriodicReleaseRule)},
    {ReleaseRuleType::optNone, typeid(OptNoneReleaseRule)},
    {ReleaseRuleType::optConstant, typeid(OptConstReleaseRule)},
    {ReleaseRuleType::optPeriodic, typeid(OptPeriodicReleaseRule)},
    {ReleaseRuleType::optSerie, typeid(OptSerieReleaseRule)},
    {ReleaseRuleType::optStaticVolumeDependence1, typeid(OptVolDepOneStaticReleaseRule)},
    {ReleaseRuleType::optPeriodicVolumeDependence1, typeid(OptVolDepOnePeriodicReleaseRule)},
    {ReleaseRuleType::optStaticVolumeDependence2, typeid(OptVolDepTwoStaticReleaseRule)},
    {ReleaseRuleType::optPeriodicVolumeDependence2, typeid(OptVolDepTwoPeriodicReleaseRule)},
    {ReleaseRuleType::optHydrologicalState, typeid(OptHydrologicalStateReleaseRule)}};

std::type_index classOf(const std::shared_ptr<ReleaseRule>& rule) {
  const ReleaseRule& object = *rule;
  return typeid(object);
}

}  // namespace

// Every rule is made by type and by name, and copies itself into a new rule of its class with the
// run's settings.
TEST(ReleaseRuleFactory, MakesAndCopiesEveryRule) {
  const Interval interval(Date(1990, 1, 1), Date(1990, 12, 1), Vocabulary::of(Periodicity::daily));
  for (const auto& [type, madeClass] : kClasses) {
    SCOPED_TRACE(Vocabulary::of(type).getName());
    const auto rule = ReleaseRuleFactory::make(type);
    EXPECT_EQ(classOf(rule), madeClass);
    EXPECT_EQ(rule->getType(), Vocabulary::of(type));
    EXPECT_EQ(classOf(ReleaseRuleFactory::make(Vocabulary::of(type).getName())), madeClass);

    rule->setInterval(interval);
    rule->setWindowIndex(3);
    rule->setZeroContribution(true);
    const auto copy = rule->copy();
    EXPECT_NE(copy, rule);
    EXPECT_EQ(classOf(copy), madeClass);
    EXPECT_EQ(copy->getInterval(), interval);
    EXPECT_EQ(copy->getWindowIndex(), 3u);
    EXPECT_TRUE(copy->getZeroContribution());
  }
}

TEST(ReleaseRuleFactory, RefusesTheRulesNotYetAvailableAndUnknownKeys) {
  for (int value = 9; value <= 11; ++value) {
    const auto type = static_cast<ReleaseRuleType>(value);
    SCOPED_TRACE(Vocabulary::of(type).getName());
    EXPECT_THROW_TEXT(ReleaseRuleFactory::make(type), std::invalid_argument, kRefusal);
    EXPECT_THROW_TEXT(ReleaseRuleFactory::make(Vocabulary::of(type).getName()),
                      std::invalid_argument, kRefusal);
  }
  EXPECT_THROW_TEXT(ReleaseRuleFactory::make(static_cast<ReleaseRuleType>(21)),
                    std::invalid_argument, kRefusal);
  EXPECT_THROW_TEXT(ReleaseRuleFactory::make("Liberação constante "), std::invalid_argument,
                    kRefusal);
}
