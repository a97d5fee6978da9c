#include <gtest/gtest.h>

#include <functional>

#include "core/ElementFactory.h"
#include "core/ReleaseRule.h"
#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOnePeriodicReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "rules/VolDepTwoPeriodicReleaseRule.h"
#include "rules/VolDepTwoStaticReleaseRule.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

TEST(ReleaseRule, PeriodicReleasesTheValueOfTheMonth) {
  PeriodicReleaseRule rule;
  rule.setRelease({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  rule.setRelease(12, 0.0);  // zero is not negative; month 12 is the last accepted
  const auto copy = rule.copy();
  rule.setRelease(7, 70.0);
  EXPECT_EQ(copy->getRelease(Date(2003, 1, 31)), 1.0);
  EXPECT_EQ(copy->getRelease(Date(2003, 7, 1)), 7.0);
  EXPECT_EQ(copy->getRelease(Date(2003, 12, 1)), 0.0);
}

TEST(ReleaseRule, ASeriesRuleCopyOwnsAnotherSeries) {
  SerieReleaseRule rule;
  EXPECT_EQ(rule.getRelease(Date(2000, 5, 1)), Serie::kEmptyValue);  // born empty
  auto serie = std::make_shared<Serie>(Interval(), Vocabulary::of(SerieType::releasedFlow),
                                       Vocabulary::of(Unit::cubicMetresPerSecond));
  serie->setValue(Date(2000, 5, 1), 3.25);
  rule.setReleaseSerie(serie);
  const auto copy = std::static_pointer_cast<SerieReleaseRule>(rule.copy());
  serie->setValue(Date(2000, 5, 1), 9.0);
  EXPECT_EQ(rule.getRelease(Date(2000, 5, 1)), 9.0);  // the rule shares what it was given
  EXPECT_NE(copy->getReleaseSerie(), serie);
  EXPECT_EQ(copy->getRelease(Date(2000, 5, 1)), 3.25);
}

// Every setter refuses with its own text, and the rule keeps what it had.
TEST(ReleaseRule, SettersRefuseWithTheirTexts) {
  const auto reservoir = ElementFactory::make(ElementType::reservoir);
  const auto junction = ElementFactory::make(ElementType::junction);
  const VolDepTwoReleaseStruct square{{50, 100}, {50, 100}, {{{1, 2}, {3, 4}}}};
  auto falling = square, negative = square, misshapen = square, noSlot = square;
  falling.volumePercentageD2 = {50, 49.9999999};  // the two-reservoir table has no tolerance
  negative.releases[0][1][0] = -1;
  misshapen.releases[0][1].pop_back();
  noSlot.releases.clear();
  const std::vector<double> month(12, 1.0);

  ConstReleaseRule constant;
  PeriodicReleaseRule periodic;
  SerieReleaseRule serie;
  VolDepOneStaticReleaseRule oneStatic;
  VolDepOnePeriodicReleaseRule onePeriodic;
  VolDepTwoStaticReleaseRule twoStatic;
  VolDepTwoPeriodicReleaseRule twoPeriodic;
  HydrologicalStateReleaseRule state;
  const std::pair<std::function<void()>, const char*> refusals[] = {
      {[&] { constant.setRelease(-0.1); },
       "ConstReleaseRule::setRelease(): the release is a negative value"},
      {[&] { periodic.setRelease(13, 1.0); },
       "PeriodicReleaseRule::setRelease(): invalid month value"},
      {[&] { periodic.setRelease(3, -1.0); },
       "PeriodicReleaseRule::setRelease(): the release is a negative value"},
      {[&] { periodic.setRelease(std::vector<double>(11, 1.0)); },
       "PeriodicReleaseRule::setRelease(): invalid size of vector releases"},
      {[&] { serie.setReleaseSerie(nullptr); },
       "SerieReleaseRule::setReleaseSerie(): the serie is nullptr"},
      {[&] { oneStatic.setReservoirDependency(nullptr); },
       "VolDepOneReleaseRule::setReservoirDenpendency: the reservoir is nullptr"},
      {[&] { oneStatic.setReservoirDependency(junction); },
       "VolDepOneReleaseRule::setReservoirDependency: The element is not a reservoir"},
      {[&] {
         oneStatic.setVectorOfVolDepOneReleaseStruct({{30, {1}}, {60, {-0.5}}});
       },
       "VolDepOneReleaseRule::setVolumePeriodicReleaseStr(): All values of releases must be "
       "positive"},
      {[&] {
         oneStatic.setVectorOfVolDepOneReleaseStruct({{30, {1}}, {29.99, {2}}});
       },
       "VolDepOneReleaseRule:setVolumePeriodicReleaseStr(): The volume percentage values must be "
       "in ascending order."},
      {[&] {
         oneStatic.setVectorOfVolDepOneReleaseStruct({{30, {}}});
       },
       "VolDepOneStaticReleaseRule: the releases vector must not be empty."},
      {[&] {
         onePeriodic.setVectorOfVolDepOneReleaseStruct({{30, {1}}, {60, month}});
       },
       "VolDepOnePeriodicReleaseRule: the releases vector must be the size 12."},
      {[&] { twoStatic.setReservoirDependency(nullptr, nullptr); },
       "VolDepOneReleaseRule::setReservoirDenpendency: the reservoirD1 is nullptr"},
      {[&] { twoStatic.setReservoirDependency(junction, nullptr); },
       "VolDepOneReleaseRule::setReservoirDenpendency: the reservoirD2 is nullptr"},
      {[&] { twoStatic.setReservoirDependency(junction, junction); },
       "VolDepOneReleaseRule::setReservoirDependency: The element reservoirD1 is not a reservoir"},
      {[&] { twoStatic.setReservoirDependency(reservoir, junction); },
       "VolDepOneReleaseRule::setReservoirDependency: The element reservoirD2 is not a reservoir"},
      {[&] { twoStatic.setVolDepTwoReleaseStruct(falling); },
       "VolDepTwoStaticReleaseRule:setVolDepTwoReleaseStruct(): The volume percentage values must "
       "be in ascending order"},
      {[&] { twoStatic.setVolDepTwoReleaseStruct(negative); },
       "VolDepTwoStaticReleaseRule:setVolDepTwoReleaseStruct(): The releases has a negative "
       "value."},
      {[&] { twoStatic.setVolDepTwoReleaseStruct(misshapen); },
       "VolDepTwoReleaseRule::setVolDepTwoReleaseStruct(): each month slot must have one row per "
       "limit of D1 and one release per limit of D2"},
      {[&] { twoStatic.setVolDepTwoReleaseStruct(noSlot); },
       "VolDepTwoStaticReleaseRule: the releases vector must have a month slot."},
      {[&] { twoPeriodic.setVolDepTwoReleaseStruct(square); },
       "VolDepTwoPeriodicReleaseRule: the releases vector must be the size 12."},
      {[&] {
         state.setReservoirsOfSystem({reservoir, nullptr});
       },
       "HydrologicalStateReleaseRule::setReservoirsOfSystem(): There is some element with "
       "nullptr"},
      {[&] {
         state.setReservoirsOfSystem({reservoir, junction});
       },
       "HydrologicalStateReleaseRule::setReservoirsOfSystem(): There is some element that is not "
       "reservoir."},
      {[&] { state.setStates(2, {}, {1.0}); },  // both sizes wrong: the zones come first
       "HydrologicalStateReleaseRule::setStates(): The size of proportionalZones must be "
       "numOfStates - 1"},
      {[&] { state.setStates(2, {0.5}, {1.0}); },
       "HydrologicalStateReleaseRule::setStates(): The size of releases must be numOfStates"},
      {[&] {
         state.setStates(2, {0.5}, {1.0, -2.0});
       },
       "HydrologicalStateReleaseRule::setStates(): All values of releases must be positive"},
  };
  for (const auto& [attempt, text] : refusals) {
    SCOPED_TRACE(text);
    EXPECT_THROW_TEXT(attempt(), std::invalid_argument, text);
  }
  EXPECT_EQ(periodic.getRelease(), std::vector<double>(12, 0.0));
  EXPECT_TRUE(oneStatic.getReservoirDependency() == nullptr &&
              oneStatic.getVectorOfVolDepOneReleaseStruct().empty());
  EXPECT_EQ(twoStatic.getVolDepTwoReleaseStruct(), VolDepTwoReleaseStruct());
  EXPECT_TRUE(state.getReservoirs().empty() && state.getNumOfStates() == 1);
}
