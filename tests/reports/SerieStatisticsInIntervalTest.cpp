#include <gtest/gtest.h>

#include <cmath>

#include "reports/SerieStatisticsInInterval.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

using S = SerieStatisticsInInterval;

const Date kFeb(2001, 2, 1), kApr(2001, 4, 1);

// Monthly values 10, 2, missing, 4, 6 from January to May 2001.
std::shared_ptr<Serie> fiveMonths() {
  auto serie = std::make_shared<Serie>(NetworkBuilder::monthly(2001, 2001),
                                       Vocabulary::of(SerieType::finalVolume),
                                       Vocabulary::of(Unit::cubicHectometres));
  const std::vector<double> values = {10, 2, -999.0, 4, 6};
  for (unsigned int m = 1; m <= values.size(); ++m)
    serie->setValue(Date(2001, m, 1), values[m - 1]);
  return serie;
}

}  // namespace

TEST(SerieStatisticsInInterval, MissingValuesTakeNoPart) {
  const auto serie = fiveMonths();
  // February to April: 2 and 4; March is missing.
  EXPECT_EQ(S::sumSerieValuesInInterval(serie, kFeb, kApr), 6.0);
  EXPECT_EQ(S::sumAndCountSerieValuesInInterval(serie, kFeb, kApr),
            (std::pair<double, unsigned>(6, 2)));
  EXPECT_EQ(S::averageOfSerieValuesInInterval(serie, kFeb, kApr), 3.0);
  EXPECT_EQ(S::getMinValue(serie, kFeb, kApr), 2.0);
  EXPECT_EQ(S::getMaxValue(serie, kFeb, kApr), 4.0);
  EXPECT_EQ(S::varianceOverPopulationOfSerieValuesInInterval(serie, kFeb, kApr), 1.0);  // (1+1)/2
  EXPECT_EQ(S::stdDeviationOverPopulationOfSerieValuesInInterval(serie, kFeb, kApr), 1.0);
  EXPECT_EQ(S::varianceOverSampleOfSerieValuesInInterval(serie, kFeb, kApr), 2.0);  // (1+1)/1
  EXPECT_EQ(S::stdDeviationOverSampleOfSerieValuesInInterval(serie, kFeb, kApr), std::sqrt(2.0));
  // Only March: nothing to average, a single value has no sample variance.
  const Date mar(2001, 3, 1);
  EXPECT_EQ(S::sumSerieValuesInInterval(serie, mar, mar), 0.0);
  EXPECT_EQ(S::averageOfSerieValuesInInterval(serie, mar, mar), -999.0);
  EXPECT_EQ(S::getMaxValue(serie, mar, mar), -999.0);
  EXPECT_EQ(S::varianceOverSampleOfSerieValuesInInterval(serie, kFeb, kFeb), -999.0);
  EXPECT_EQ(S::stdDeviationOverSampleOfSerieValuesInInterval(serie, kFeb, kFeb), -999.0);
  EXPECT_THROW_TEXT(S::getMinValue(nullptr, kFeb, kApr), std::invalid_argument,
                    "The serie is a null pointer");
}

TEST(SerieStatisticsInInterval, ElementsPoolInputsOrResultsOfARun) {
  EXPECT_TRUE(S::isAInputSerie(SerieType::demand));
  EXPECT_TRUE(S::isAInputSerie(SerieType::targetVolume));
  EXPECT_FALSE(S::isAInputSerie(SerieType::attendedDemand));
  NetworkBuilder net(NetworkBuilder::monthly(2001, 2001));
  auto first = net.node(ElementType::humanDemand);
  auto second = net.node(ElementType::animalDemand);
  first->getInputSerie(SerieType::demand)->fill(1.0);
  second->getInputSerie(SerieType::demand)->fill(4.0);
  net.scenario->createResults();
  first->getOutputSerie(SerieType::attendedDemand, 0)->setValue(kFeb, 3.0);
  const std::vector<std::shared_ptr<Element>> both = {first, second};
  // Three months of 1 and of 4 m³/s.
  EXPECT_EQ(S::sumSerieValuesInIntervalOfElements(both, SerieType::demand, kFeb, kApr, 0), 15.0);
  EXPECT_EQ(S::averageOfSerieValuesInIntervalOfElements(both, SerieType::demand, kFeb, kApr, 0),
            2.5);
  EXPECT_EQ(S::sumSerieValuesInIntervalOfElements(both, SerieType::attendedDemand, kFeb, kApr, 0),
            3.0);
  EXPECT_THROW_TEXT(
      S::sumSerieValuesInIntervalOfElements(both, SerieType::attendedDemand, kFeb, kApr, 1),
      std::invalid_argument, "Invalid index value!");
}
