#include <gtest/gtest.h>

#include <typeindex>

#include "rules/ReleaseRuleFactory.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

const char kRefusal[] = "ReleaseRuleFactory::make(): invalid ReleaseRuleType";

std::type_index classOf(const std::shared_ptr<ReleaseRule>& rule) {
  const ReleaseRule& object = *rule;
  return typeid(object);
}

}  // namespace

// Every rule is made by type and by name alike, says it is of the type asked for, and copies
// itself into a new rule of its class with the run's settings.
TEST(ReleaseRuleFactory, MakesAndCopiesEveryRule) {
  const Interval interval(Date(1990, 1, 1), Date(1990, 12, 1), Vocabulary::of(Periodicity::daily));
  for (const auto& row : Vocabulary::releaseRuleTypes().getRows()) {
    SCOPED_TRACE(row.getName());
    const auto rule = ReleaseRuleFactory::make(row.getType());
    EXPECT_EQ(rule->getType(), row);
    EXPECT_EQ(classOf(ReleaseRuleFactory::make(row.getName())), classOf(rule));

    rule->setInterval(interval);
    rule->setWindowIndex(3);
    rule->setZeroContribution(true);
    const auto copy = rule->copy();
    EXPECT_NE(copy, rule);
    EXPECT_EQ(classOf(copy), classOf(rule));
    EXPECT_EQ(copy->getInterval(), interval);
    EXPECT_EQ(copy->getWindowIndex(), 3u);
    EXPECT_TRUE(copy->getZeroContribution());
  }
}

TEST(ReleaseRuleFactory, RefusesUnknownKeys) {
  EXPECT_THROW_TEXT(ReleaseRuleFactory::make(static_cast<ReleaseRuleType>(21)),
                    std::invalid_argument, kRefusal);
  EXPECT_THROW_TEXT(ReleaseRuleFactory::make("Liberação constante "), std::invalid_argument,
                    kRefusal);
}
