#include <gtest/gtest.h>

#include "DemoProject.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"

namespace {

std::shared_ptr<Reservoir> reservoir(const Scenario& scenario, const std::string& name) {
  return std::static_pointer_cast<Reservoir>(scenario.getElement(name));
}

}  // namespace

TEST(DemoProject, ReservoirsGetTheirOwnCatchmentTheirWholeTableAndSplitEvaporation) {
  const auto scenarios = DemoProject::makeScenarios(KOVA_DEMO_DATA, 1932);
  ASSERT_EQ(scenarios.size(), 6u);
  const Scenario& rules = *scenarios[0];
  EXPECT_EQ(rules.getInterval().period(), 24u);
  const Date january(1931, 1, 1), july(1931, 7, 1);
  const auto inflow = [&](const std::string& name, const Date& date) {
    return reservoir(rules, name)->getInputSerie(SerieType::naturalIncrementalFlow)->getValue(date);
  };
  // January 1931: Três Marias 940 less Retiro Baixo's 138; Sobradinho's incremental 3544 less
  // Queimado's 50.
  EXPECT_EQ(inflow("Retiro Baixo", january), 138.0);
  EXPECT_EQ(inflow("Três Marias", january), 802.0);
  EXPECT_EQ(inflow("Sobradinho", january), 3494.0);
  EXPECT_EQ(inflow("Itaparica", january), 0.0);

  // Net evaporation of Três Marias: -1 mm in January is rain, 58 mm in July evaporation.
  const auto tresMarias = reservoir(rules, "Três Marias");
  EXPECT_EQ(tresMarias->getInputSerie(SerieType::evaporation)->getValue(january), 0.0);
  EXPECT_EQ(tresMarias->getInputSerie(SerieType::precipitation)->getValue(january), 1.0);
  EXPECT_EQ(tresMarias->getInputSerie(SerieType::evaporation)->getValue(july), 58.0);
  EXPECT_EQ(tresMarias->getInputSerie(SerieType::precipitation)->getValue(july), 0.0);

  // The table starts at the river bed (mean tailwater 515.77 m) with an empty lake, then the
  // operating range from the minimum volume.
  const auto& info = tresMarias->getReservoirInfo();
  EXPECT_EQ(info.cav.front(), (std::vector<double>{515.77, 0.0, 0.0}));
  EXPECT_EQ(info.cav[1][2], 4250.0);
  EXPECT_EQ(info.minVol, 4250.0);
  EXPECT_EQ(info.maxVol, 19528.0);
  EXPECT_DOUBLE_EQ(info.initVol, 4250.0 + 0.7 * 15278.0);
}

TEST(DemoProject, EveryScenarioRunsAndTheWindowsStartFromTheStorageAtTheEnd) {
  const auto scenarios = DemoProject::makeScenarios(KOVA_DEMO_DATA, 1934);
  for (const auto& scenario : scenarios) {
    ASSERT_TRUE(scenario->run(nullptr)) << scenario->getName();
  }
  const Scenario& rules = *scenarios[0];
  const Scenario& windows = *scenarios[2];
  // Windows of a year from every November: 1931-32, 1932-33, 1933-34.
  EXPECT_EQ(windows.calcVectorOfIntervals().size(), 3u);
  for (const auto& name : {"Três Marias", "Sobradinho", "Itaparica"}) {
    const double atTheEnd = reservoir(rules, name)
                                ->getOutputSerie(SerieType::finalVolume, 0)
                                ->getValue(Date(1934, 12, 1));
    EXPECT_EQ(reservoir(windows, name)->getReservoirInfo().initVol, atTheEnd) << name;
    EXPECT_EQ(reservoir(windows, name)
                  ->getOutputSerie(SerieType::initialVolume, 2)
                  ->getValue(Date(1933, 11, 1)),
              atTheEnd)
        << name;
  }
}

TEST(DemoProject, AMissingDataFileIsNamed) {
  try {
    DemoProject::makeScenarios("/nonexistent/folder", 1935);
    FAIL() << "no error";
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(std::string(error.what()),
              "/nonexistent/folder/sf_natural_inflow_monthly_m3s.csv: cannot be read");
  }
}
