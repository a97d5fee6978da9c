#include <gtest/gtest.h>

#include "core/IntervalWindowed.h"
#include "operation/ExecutionMethodFactoryByType.h"
#include "operation/ExecutionWindowed.h"
#include "support/ExpectThrow.h"
#include "support/RealisticNetwork.h"

namespace {

Interval monthly(unsigned int firstYear, unsigned int firstMonth, unsigned int lastYear,
                 unsigned int lastMonth) {
  return Interval(Date(firstYear, firstMonth, 1), Date(lastYear, lastMonth, 1),
                  Vocabulary::of(Periodicity::monthly));
}

std::vector<Date> starts(const std::vector<Interval>& windows) {
  std::vector<Date> dates;
  for (const auto& window : windows) dates.push_back(window.getBegin());
  return dates;
}

}  // namespace

TEST(WindowedExecution, YearsAndWindowsOfAnInterval) {
  const Interval interval = monthly(2000, 1, 2002, 12);
  ExecutionWindowed method;
  method.setWindowSize(12);
  method.initializeYearsWindow(interval, 7, true);
  // July 2002 would end in June 2003, after the interval.
  ASSERT_EQ(method.getYearsDate().size(), 2u);
  EXPECT_EQ(method.getYearsDate()[0].first, Date(2000, 7, 1));
  EXPECT_EQ(method.getYearsDate()[1].first, Date(2001, 7, 1));
  EXPECT_EQ(method.getInitialMonth(), 7u);
  const auto windows = IntervalWindowed::makeIntervals(interval, method.getYearsDate(), 12,
                                                       ExecutionType::windowed);
  ASSERT_EQ(windows.size(), 2u);
  EXPECT_EQ(windows[0].getEnd(), Date(2001, 6, 1));

  method.setYearCheckByIndex(0, false);
  EXPECT_EQ(starts(IntervalWindowed::makeIntervals(interval, method.getYearsDate(), 12,
                                                   ExecutionType::windowed)),
            std::vector<Date>{Date(2001, 7, 1)});
  EXPECT_THROW_TEXT(method.setYearCheckByIndex(2, true), std::out_of_range,
                    "ExecutionMethod::setYearCheckByIndex: invalid index");

  // A continuous method, or another periodicity, runs the whole interval as one window.
  EXPECT_EQ(IntervalWindowed::makeIntervals(interval, method.getYearsDate(), 12,
                                            ExecutionType::continuous),
            std::vector<Interval>{interval});
  const Interval daily(Date(2000, 1, 1), Date(2000, 3, 31), Vocabulary::of(Periodicity::daily));
  method.initializeYearsWindow(daily, 1, true);
  EXPECT_EQ(IntervalWindowed::sizeIntervals(daily, method.getYearsDate(), 12, ExecutionType::windowed),
            1u);

  method.initializeYearsWindow(interval, 1, true);
  EXPECT_EQ(IntervalWindowed::sizeIntervals(interval, method.getYearsDate(), 36,
                                            ExecutionType::windowed),
            1u);
  EXPECT_THROW_TEXT(IntervalWindowed::makeIntervals(interval, {}, 37, ExecutionType::continuous),
                    std::invalid_argument, "makeIntervals() - interval period < window size");
  EXPECT_THROW_TEXT(method.setWindowSize(0), std::invalid_argument,
                    "ExecutionMethod::setWindowSize(): the window size must be at least 1");
}

TEST(WindowedExecution, WindowZeroEqualsTheContinuousRunOfItsYear) {
  RealisticNetwork windowed(monthly(1931, 1, 1940, 12));
  auto method = std::make_shared<ExecutionWindowed>();
  method->setWindowSize(12);
  method->initializeYearsWindow(windowed.net.scenario->getInterval(), 7, true);
  windowed.net.scenario->setExecutionMethod(method);
  std::vector<std::pair<long, long>> calls;
  ASSERT_TRUE(windowed.net.scenario->run([&](long p, long t) {
    calls.emplace_back(p, t);
    return true;
  }));
  ASSERT_EQ(windowed.net.scenario->calcVectorOfIntervals().size(), 9u);
  EXPECT_EQ(calls.size(), 9u);  // progress counts windows
  EXPECT_EQ(calls.back(), std::make_pair(100L, 9L));

  RealisticNetwork continuous(monthly(1931, 7, 1932, 6));
  ASSERT_TRUE(continuous.net.scenario->run(nullptr));
  const auto& windowedElements = windowed.net.scenario->getElements();
  const auto& continuousElements = continuous.net.scenario->getElements();
  ASSERT_EQ(windowedElements.size(), continuousElements.size());
  for (std::size_t e = 0; e < windowedElements.size(); ++e) {
    const auto window = windowedElements[e]->getVectorOfSeries(0);
    const auto whole = continuousElements[e]->getVectorOfSeries(0);
    for (std::size_t k = 0; k < window.size(); ++k) {
      EXPECT_EQ(window[k]->getInterval(), continuous.net.scenario->getInterval());
      EXPECT_EQ(window[k]->getMapOfJulianToValues(), whole[k]->getMapOfJulianToValues())
          << windowedElements[e]->getName() << " " << window[k]->getName();
    }
  }
  // Every window starts from the initial volumes, whatever the one before left.
  for (const auto& reservoir : windowed.reservoirs) {
    EXPECT_EQ(reservoir->getOutputSerie(SerieType::initialVolume, 1)->getValue(Date(1932, 7, 1)),
              reservoir->getReservoirInfo().initVol);
  }
}

TEST(WindowedExecution, CancellingEndsAfterTheWindowInProgress) {
  RealisticNetwork network(monthly(1931, 1, 1935, 12));
  network.net.scenario->setExecutionMethod(
      ExecutionMethodFactoryByType::make(ExecutionType::windowed, network.net.scenario->getInterval()));
  int calls = 0;
  EXPECT_FALSE(network.net.scenario->run([&](long, long) { return ++calls < 2; }));
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(network.net.scenario->getSceneryStatus().getId(), 2);
  EXPECT_FALSE(network.reservoirs.front()->hasResults());
}
