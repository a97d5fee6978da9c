#include <gtest/gtest.h>

#include "core/ConfigurationHeader.h"
#include "core/Demand.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "hydrology/HydrologicalBalance.h"
#include "operation/DemandResultsWriter.h"
#include "rules/ConstReleaseRule.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

// Rows of (level m, area km², volume hm³). The working table drops the first row, so volume to
// area runs through (10, 2), (30, 5), (70, 9), (150, 14).
const std::vector<std::vector<double>> kCav = {
    {100, 0, 0}, {101, 2, 10}, {102, 5, 30}, {103, 9, 70}, {104, 14, 150}};

// Reservoir -> natural link -> drain, monthly over the first quarter of 2001, starting at 50 hm³
// with a minimum of 10, 8 m³/s of natural inflow, 50 mm of rain and 100 mm of evaporation each
// month, and a constant rule of 5 m³/s shared entirely to the link.
struct ReservoirToDrain {
  NetworkBuilder net{Interval(Date(2001, 1, 1), Date(2001, 3, 1), Vocabulary::of(Periodicity::monthly))};
  std::shared_ptr<Reservoir> reservoir;
  std::shared_ptr<Node> drain;
  std::shared_ptr<Link> river;

  explicit ReservoirToDrain(double maxVol) {
    reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    drain = net.node(ElementType::drain);
    river = net.link(reservoir, drain);
    ReservoirInfo& info = reservoir->getReservoirInfo();
    info.cav = kCav;
    info.initVol = 50.0;
    info.minVol = 10.0;
    info.maxVol = maxVol;
    reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->fill(8.0);
    reservoir->getInputSerie(SerieType::precipitation)->fill(50.0);
    reservoir->getInputSerie(SerieType::evaporation)->fill(100.0);
    net.allocation(reservoir, {{double(reservoir->getId()), double(river->getId())}, {100, 100}});
    auto rule = std::make_shared<ConstReleaseRule>();
    rule->setRelease(5.0);
    Scenario::getSettings<ReservoirRuleSettings>(reservoir, net.scenario->getSettingsManager())
        ->setRule(rule);
  }

  double out(const std::shared_ptr<Element>& element, SerieType type, const Date& date) const {
    return element->getOutputSerie(type, 0)->getValue(date);
  }
};

constexpr double kJanuary = 31 * 0.0864;   // hm³ per m³/s over January
constexpr double kFebruary = 28 * 0.0864;  // hm³ per m³/s over February 2001

}  // namespace

TEST(ReservoirStorage, WorkingTableAndLookups) {
  ReservoirInfo info;
  info.cav = {{100, 0, 0}, {101, 2, 1}, {102, 5, 3}, {103, 9, 7}, {103.5, 9.5, 3}};
  info.calculateCav(ReservoirInfo::volume);
  ASSERT_EQ(info.workingCav.size(), 3u);  // the first row never enters; the repeated volume 3 is dropped
  EXPECT_EQ(info.workingCav[1], (std::vector<double>{102, 5, 3}));

  auto reservoir = std::static_pointer_cast<Reservoir>(ElementFactory::make(ElementType::reservoir));
  reservoir->getReservoirInfo().cav = {{100, 0, 0}, {101, 2, 1}, {102, 5, 3}, {103, 9, 7}};
  reservoir->getReservoirInfo().calculateCav(ReservoirInfo::volume);
  const Cav area = HydrologicalBalance::makeCAV(reservoir, {2, 1});
  const Cav level = HydrologicalBalance::makeCAV(reservoir, {2, 0});
  EXPECT_NEAR(HydrologicalBalance::area(area, 2.0), 3.5, 1e-12);
  EXPECT_NEAR(HydrologicalBalance::level(level, 2.0), 101.5, 1e-12);
  EXPECT_EQ(HydrologicalBalance::area(area, 0.0), 0.0);
  EXPECT_EQ(HydrologicalBalance::area(area, 0.00005), 0.0);
  // The curve a reservoir keeps between lookups answers exactly as a freshly built one, and
  // follows its table when the table changes.
  for (double volume : {0.5, 1.0, 2.0, 4.5, 7.0, 12.0}) {
    EXPECT_EQ(HydrologicalBalance::area(HydrologicalBalance::curve(reservoir, {2, 1}), volume),
              HydrologicalBalance::area(HydrologicalBalance::makeCAV(reservoir, {2, 1}), volume));
  }
  reservoir->getReservoirInfo().workingCav[1][1] = 6.0;
  EXPECT_NEAR(HydrologicalBalance::area(HydrologicalBalance::curve(reservoir, {2, 1}), 2.0), 4.0,
              1e-12);
  EXPECT_THROW_TEXT(Cav(area.getRegressionTechnique(), {{1, 2}}), std::invalid_argument,
                    "The matrix must have at least two rows and have exactly two columns.");
}

TEST(ReservoirOperation, JanuaryCloseComputedByHand) {
  ReservoirToDrain case_(150.0);
  ASSERT_TRUE(case_.net.scenario->run(nullptr));
  const Date jan(2001, 1, 1);
  // Area at the initial 50 hm³: 5 + (50 - 30) * 4 / 40 = 7 km²; rain 50 * 7 / 1000 = 0.35 hm³,
  // evaporation 0.7 hm³, inflow 8 * 2.6784 = 21.4272 hm³, release 5 * 2.6784 = 13.392 hm³.
  const double final = 50.0 + 8 * kJanuary + 0.35 - 0.7 - 5 * kJanuary;
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::initialVolume, jan), 50.0, 1e-12);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::finalVolume, jan), final, 1e-9);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::area, jan), 7.0, 1e-12);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::level, jan), 102.5, 1e-12);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::precipitatedVolume, jan), 0.35, 1e-12);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::evaporatedVolume, jan), 0.7, 1e-12);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::upstreamUncontrolledVolume, jan), 8 * kJanuary,
              1e-12);
  EXPECT_EQ(case_.out(case_.reservoir, SerieType::upstreamUncontrolledFlow, jan), 8.0);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::releasedFlow, jan), 5.0, 1e-9);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::releasedVolume, jan), 5 * kJanuary, 1e-9);
  EXPECT_EQ(case_.out(case_.reservoir, SerieType::spilledVolume, jan), 0.0);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::outflow, jan), 5.0, 1e-9);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::outflowVolume, jan), 5 * kJanuary, 1e-9);
  EXPECT_NEAR(case_.out(case_.river, SerieType::outflow, jan), 5.0, 1e-9);
  // A drain demands 99999 m³/s and so shows the rest as shortage, and a failure.
  EXPECT_NEAR(case_.out(case_.drain, SerieType::supplyShortage, jan), 99999.0 - 5.0, 1e-6);
  EXPECT_EQ(case_.out(case_.drain, SerieType::supplyFailure, jan), 1.0);
  // February starts from January's final volume.
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::initialVolume, Date(2001, 2, 1)), final, 1e-12);
}

TEST(ReservoirOperation, FullReservoirSpillsIntoItsNaturalLink) {
  ReservoirToDrain case_(55.0);
  ASSERT_TRUE(case_.net.scenario->run(nullptr));
  const Date jan(2001, 1, 1), feb(2001, 2, 1);
  // Useful capacity 55 - 10 = 45 hm³. What could be held above the minimum beyond it is the
  // excess, (50 - 10) + 21.4272 + 0.35 - 0.7 - 45 = 16.0772 hm³; the release of 13.392 counts
  // against it, and the rest, 2.6852 hm³, spills: exactly what the lake holds above 55.
  const double spilled = 8 * kJanuary - 5 * kJanuary + 0.35 - 0.7 - 5.0;
  EXPECT_EQ(case_.out(case_.reservoir, SerieType::finalVolume, jan), 55.0);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::spilledVolume, jan), spilled, 1e-9);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::spilledFlow, jan), spilled / kJanuary, 1e-9);
  EXPECT_NEAR(case_.out(case_.river, SerieType::inflow, jan), 5.0 + spilled / kJanuary, 1e-9);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::outflow, jan), 5.0 + spilled / kJanuary, 1e-9);
  // February starts full: area 5 + 25 * 0.1 = 7.5 km², and again what exceeds 55 spills.
  const double februarySpill = (8 - 5) * kFebruary + (50 - 100) * 7.5 / 1000;
  EXPECT_EQ(case_.out(case_.reservoir, SerieType::initialVolume, feb), 55.0);
  EXPECT_NEAR(case_.out(case_.reservoir, SerieType::spilledVolume, feb), februarySpill, 1e-9);
}

TEST(HydrologicalBalanceClose, ZeroContributionKeepsEvaporationOnly) {
  ReservoirToDrain case_(150.0);
  const Date jan(2001, 1, 1);
  case_.reservoir->getReservoirInfo().calculateCav(ReservoirInfo::volume);
  const auto monthly = HydrologicalBalanceFactory::make(Periodicity::monthly);
  // Without nature: 50 - 0.7 evaporated - 3 released = 46.3.
  EXPECT_NEAR(monthly->balance(case_.reservoir, jan, 50.0, true, 0.0, 3.0), 46.3, 1e-12);
  EXPECT_NEAR(monthly->balance(case_.reservoir, jan, 50.0, false, 1.0, 0.0),
              50.0 + 1.0 + 8 * kJanuary + 0.35 - 0.7, 1e-12);
  // An empty lake has no surface: no rain, no evaporation.
  EXPECT_NEAR(monthly->balance(case_.reservoir, jan, 0.0, false, 0.0, 0.0), 8 * kJanuary, 1e-12);
  // A stock and a loss within 1e-6 of each other leave exactly nothing.
  EXPECT_EQ(monthly->balance(case_.reservoir, jan, 50.0, true, 0.0, 50.0 - 0.7 + 5e-7), 0.0);
}

TEST(ReservoirOperation, ReleaseIsCutToStorageAndMaximum) {
  ReservoirToDrain atMinimum(150.0);
  ReservoirInfo& info = atMinimum.reservoir->getReservoirInfo();
  info.initVol = 10.0;
  atMinimum.reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->fill(0.0);
  atMinimum.reservoir->getInputSerie(SerieType::evaporation)->fill(0.0);
  atMinimum.reservoir->getInputSerie(SerieType::precipitation)->fill(0.0);
  ASSERT_TRUE(atMinimum.net.scenario->run(nullptr));
  EXPECT_EQ(atMinimum.out(atMinimum.river, SerieType::inflow, Date(2001, 1, 1)), 0.0);

  ReservoirToDrain capped(150.0);
  capped.reservoir->getReservoirInfo().maxRelease = 0.5;
  ASSERT_TRUE(capped.net.scenario->run(nullptr));
  EXPECT_NEAR(capped.out(capped.river, SerieType::inflow, Date(2001, 1, 1)), 0.5, 1e-9);
}

TEST(DemandResults, AttendanceShortageAndFailureByPrecision) {
  NetworkBuilder net(Interval(Date(2001, 1, 1), Date(2001, 1, 1), Vocabulary::of(Periodicity::monthly)));
  auto source = net.node(ElementType::junction);
  auto demand = std::static_pointer_cast<Demand>(net.node(ElementType::humanDemand));
  auto feed = net.link(source, demand);
  auto back = net.link(demand, net.node(ElementType::junction));
  demand->setDemandReturnPercentage(back, 20.0);
  net.scenario->createResults();
  const Date date(2001, 1, 1);
  const auto put = [&](const std::shared_ptr<Element>& e, SerieType type, double value) {
    e->getOutputSerie(type, 0)->setValue(date, value);
  };
  const auto get = [&](SerieType type) { return demand->getOutputSerie(type, 0)->getValue(date); };
  DemandResultsWriter writer;

  put(feed, SerieType::outflow, 3.0);
  put(demand, SerieType::targetDemand, 5.0);
  writer.write(date, 0, demand, net.scenario->getInterval(), false);
  EXPECT_EQ(get(SerieType::attendedDemand), 3.0);
  EXPECT_NEAR(get(SerieType::attendedDemandPercentage), 60.0, 1e-12);
  EXPECT_EQ(get(SerieType::supplyShortage), 2.0);
  EXPECT_EQ(get(SerieType::supplyFailure), 1.0);
  EXPECT_EQ(get(SerieType::supplyExcess), 0.0);
  EXPECT_NEAR(get(SerieType::outflow), 0.6, 1e-12);  // 20 % of 3 returns
  EXPECT_NEAR(get(SerieType::consumedDemand), 2.4, 1e-12);
  EXPECT_NEAR(get(SerieType::targetDemandVolume), 5 * 31 * 0.0864, 1e-12);

  ConfigurationHeader::setPrecision(3);
  put(feed, SerieType::outflow, 4.9996);  // a shortage of 0.0004 rounds to 0.000
  writer.write(date, 0, demand, net.scenario->getInterval(), false);
  EXPECT_EQ(get(SerieType::supplyFailure), 0.0);
  ConfigurationHeader::setPrecision(5);
  writer.write(date, 0, demand, net.scenario->getInterval(), false);
  EXPECT_EQ(get(SerieType::supplyFailure), 1.0);
  ConfigurationHeader::reset();

  put(demand, SerieType::targetDemand, 0.0);
  writer.write(date, 0, demand, net.scenario->getInterval(), false);
  EXPECT_EQ(get(SerieType::attendedDemandPercentage), 0.0);
  EXPECT_NEAR(get(SerieType::supplyExcess), 4.9996, 1e-12);
}
