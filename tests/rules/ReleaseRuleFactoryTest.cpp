#include <gtest/gtest.h>

#include <typeindex>

#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/NoneReleaseRule.h"
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

// The class made for each type, in the order of the types 0 to 8.
const std::type_index kClasses[] = {typeid(NoneReleaseRule),
                                    typeid(ConstReleaseRule),
                                    typeid(PeriodicReleaseRule),
                                    typeid(SerieReleaseRule),
                                    typeid(HydrologicalStateReleaseRule),
                                    typeid(VolDepOneStaticReleaseRule),
                                    typeid(VolDepOnePeriodicReleaseRule),
                                    typeid(VolDepTwoStaticReleaseRule),
                                    typeid(VolDepTwoPeriodicReleaseRule)};

std::type_index classOf(const std::shared_ptr<ReleaseRule>& rule) {
  const ReleaseRule& object = *rule;
  return typeid(object);
}

}  // namespace

// Every rule is made by type and by name, and copies itself into a new rule of its class with the
// run's settings.
TEST(ReleaseRuleFactory, MakesAndCopiesEverySimulationRule) {
  const Interval interval(Date(1990, 1, 1), Date(1990, 12, 1), Vocabulary::of(Periodicity::daily));
  for (int value = 0; value <= 8; ++value) {
    const auto type = static_cast<ReleaseRuleType>(value);
    SCOPED_TRACE(Vocabulary::of(type).getName());
    const auto rule = ReleaseRuleFactory::make(type);
    EXPECT_EQ(classOf(rule), kClasses[value]);
    EXPECT_EQ(rule->getType(), Vocabulary::of(type));
    EXPECT_EQ(classOf(ReleaseRuleFactory::make(Vocabulary::of(type).getName())), kClasses[value]);

    rule->setInterval(interval);
    rule->setWindowIndex(3);
    rule->setZeroContribution(true);
    const auto copy = rule->copy();
    EXPECT_NE(copy, rule);
    EXPECT_EQ(classOf(copy), kClasses[value]);
    EXPECT_EQ(copy->getInterval(), interval);
    EXPECT_EQ(copy->getWindowIndex(), 3u);
    EXPECT_TRUE(copy->getZeroContribution());
  }
}

TEST(ReleaseRuleFactory, RefusesTheRulesNotYetAvailableAndUnknownKeys) {
  for (int value = 9; value <= 20; ++value) {
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
