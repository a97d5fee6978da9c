#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "common/Calendar.h"
#include "core/PermanenceCurveCalculator.h"
#include "core/ResultFactory.h"
#include "core/SerieManager.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

std::shared_ptr<Serie> makeSerie(Periodicity periodicity, const Date& begin, const Date& end) {
  return std::make_shared<Serie>(Interval(begin, end, Vocabulary::of(periodicity)),
                                 Vocabulary::of(SerieType::naturalIncrementalFlow),
                                 Vocabulary::of(Unit::cubicMetresPerSecond));
}

class CsvFile : public ::testing::Test {
 protected:
  std::filesystem::path path =
      std::filesystem::temp_directory_path() /
      ("kova-serie-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
       ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".csv");
  void write(const std::string& text) { std::ofstream(path) << text; }
  void TearDown() override { std::filesystem::remove(path); }
};

}  // namespace

TEST_F(CsvFile, FillsTheSerieAndRefusesBadFiles) {
  auto serie = makeSerie(Periodicity::monthly, Date(2000, 1, 1), Date(2000, 3, 1));
  serie->setValue(Date(1990, 1, 1), 1.0);
  write("Data;Vazão\r\n01-01-2000;12.5\r\n01-02-2000; 7\n\n01-03-2000;-999\n");
  SerieManager::fillSerieFromCSVFile(path.string(), serie, ';');
  EXPECT_EQ(SerieManager::values(serie), (std::vector<double>{12.5, 7.0, -999.0}));

  write("\n01-01-2000;1\n");
  EXPECT_THROW_TEXT(SerieManager::fillSerieFromCSVFile(path.string(), serie, ';'),
                    std::runtime_error, "SerieManager::fillSerieFromCSVFile(): invalid file");
  write("Data;Vazão\n01-01-2000;1\n31-02-2000;2\n");
  EXPECT_THROW_TEXT(SerieManager::fillSerieFromCSVFile(path.string(), serie, ';'),
                    std::runtime_error, "SerieManager::fillSerieFromCSVFile(): invalid line 3");
  EXPECT_EQ(serie->size(), 0u);
  EXPECT_THROW_TEXT(SerieManager::fillSerieFromCSVFile((path / "none").string(), serie, ';'),
                    std::runtime_error,
                    "SerieManager::fillSerieFromCSVFile(): Cannot open the input file");
}

TEST(SerieManager, MonthlyMeansOfDailyValuesKeepTheDivisor) {
  auto daily = makeSerie(Periodicity::daily, Date(2001, 2, 1), Date(2001, 3, 31));
  daily->fill(2.0);
  daily->setValue(Date(2001, 2, 10), -999.0);
  auto monthly = SerieManager::monthlyFromDaily(daily, daily->getInterval());
  // February 2001: 27 days of 2.0 over 28 days; March: 31 days of 2.0 over 31.
  EXPECT_NEAR(monthly->getValue(Date(2001, 2, 1)), 54.0 / 28.0, 1e-12);
  EXPECT_DOUBLE_EQ(monthly->getValue(Date(2001, 3, 1)), 2.0);
  EXPECT_EQ(monthly->size(), 2u);
}

TEST(SerieManager, SumsAndFilters) {
  EXPECT_EQ(SerieManager::getSumSerie({}), nullptr);
  auto a = makeSerie(Periodicity::monthly, Date(2000, 1, 1), Date(2000, 2, 1));
  auto b = makeSerie(Periodicity::monthly, Date(2000, 1, 1), Date(2000, 2, 1));
  a->fill(1.5);
  b->setValue(Date(2000, 1, 1), 2.0);
  auto sum = SerieManager::getSumSerie({a, b});
  EXPECT_DOUBLE_EQ(sum->getValue(Date(2000, 1, 1)), 3.5);
  EXPECT_DOUBLE_EQ(sum->getValue(Date(2000, 2, 1)), 1.5 - 999.0);  // the mark is added as it is
  auto january = SerieManager::filter(a, Interval(Date(2000, 1, 1), Date(2000, 1, 31),
                                                  Vocabulary::of(Periodicity::monthly)));
  EXPECT_EQ(january->size(), 1u);
}

TEST(SerieManager, WindowSumsByElementTypeAndPermanenceCurves) {
  NetworkBuilder net(Interval(Date(2000, 1, 1), Date(2000, 3, 1), Vocabulary::of(Periodicity::monthly)));
  auto a = net.node(ElementType::junction);
  auto b = net.node(ElementType::junction);
  auto link = net.link(a, b);
  auto other = net.link(b, net.node(ElementType::junction));
  net.scenario->createResults();
  const double flows[] = {5, 1, 3};
  Date date(2000, 1, 1);
  for (double flow : flows) {
    link->getOutputSerie(SerieType::inflow, 0)->setValue(date, flow);
    other->getOutputSerie(SerieType::inflow, 0)->setValue(date, 10 * flow);
    date += Calendar::incMonth(date);
  }
  auto sum = SerieManager::getWndSumSerieByType(net.scenario, SerieType::inflow,
                                                ElementType::naturalLink, 0);
  EXPECT_DOUBLE_EQ(sum->getValue(Date(2000, 2, 1)), 11.0);
  EXPECT_EQ(SerieManager::getAllWndSumSeriesByType(net.scenario, SerieType::inflow,
                                                   ElementType::naturalLink).size(), 1u);

  const PermanenceCurve curve = PermanenceCurveCalculator::make(net.scenario->getElements(), 0);
  ASSERT_EQ(curve.size(), 2u);
  const std::vector<Point2D>& points = curve.at(link->getId());
  ASSERT_EQ(points.size(), 3u);
  const double expected[][2] = {{100.0 / 3, 5}, {200.0 / 3, 3}, {100, 1}};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(points[i].x, expected[i][0], 1e-12);
    EXPECT_EQ(points[i].y, expected[i][1]);
  }
  EXPECT_THROW_TEXT(PermanenceCurveCalculator::makeVector(net.scenario->getElements(), 2),
                    std::invalid_argument, "Invalid index value!");
}
