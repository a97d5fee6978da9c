#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "common/PeriodWalker.h"
#include "common/StringUtils.h"
#include "core/ReservoirRuleSettings.h"
#include "core/SerieManager.h"
#include "operation/ExecutionMethodFactoryByType.h"
#include "reports/CSVCav.h"
#include "reports/CSVSeriesWriter.h"
#include "reports/CSVWriteInputs.h"
#include "reports/CSVWriteResults.h"
#include "reports/ReportFormat.h"
#include "rules/ConstReleaseRule.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

std::vector<std::string> readLines(const fs::path& path) {
  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

// A reservoir releasing 5 m³/s to a city whose 20 % return to a drain, run in yearly windows over
// 2001 and 2002. Names carry accents, blanks and a slash.
struct RunOfTwoWindows {
  NetworkBuilder net{NetworkBuilder::monthly(2001, 2002)};
  std::shared_ptr<Reservoir> reservoir =
      std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
  std::shared_ptr<Node> city = net.node(ElementType::humanDemand);
  std::shared_ptr<Node> drain = net.node(ElementType::drain);

  RunOfTwoWindows() {
    net.scenario->setName("Cenário São Francisco");
    reservoir->setName("Reservatório Três Marias");
    city->setName("Ação/Norte");
    auto toCity = net.link(reservoir, city);
    net.link(city, drain);
    ReservoirInfo& info = reservoir->getReservoirInfo();
    info.cav = {{100, 0, 0}, {101, 2, 10}, {102, 5, 30}, {103, 9, 70}, {104, 14, 150}};
    info.initVol = 50.0;
    info.minVol = 10.0;
    info.maxVol = 150.0;
    reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->fill(4.0);
    reservoir->getInputSerie(SerieType::precipitation)->fill(50.0);
    reservoir->getInputSerie(SerieType::evaporation)->fill(100.0);
    city->getInputSerie(SerieType::demand)->fill(6.0);
    city->getInputSerie(SerieType::naturalIncrementalFlow)->fill(0.75);
    net.allocation(reservoir, {{double(reservoir->getId()), double(toCity->getId())}, {100, 100}});
    auto rule = std::make_shared<ConstReleaseRule>();
    rule->setRelease(5.0);
    Scenario::getSettings<ReservoirRuleSettings>(reservoir, net.scenario->getSettingsManager())
        ->setRule(rule);
    const Interval& interval = net.scenario->getInterval();
    auto method = ExecutionMethodFactoryByType::make(ExecutionType::windowed, interval);
    method->setWindowSize(12);
    method->initializeYearsWindow(interval, 1, true);
    net.scenario->setExecutionMethod(method);
  }
};

class CSVExport : public ::testing::Test {
 protected:
  TemporaryFolder temporary{"kova_reports_"};
  const fs::path& folder = temporary.root();
};

// A result container without series.
class NoSeries : public Container<SerieType> {
 public:
  std::shared_ptr<Container<SerieType>> copy() const override {
    return std::make_shared<NoSeries>();
  }
};

}  // namespace

TEST(ReportFormat, NamesStayInsideTheirFolder) {
  EXPECT_EQ(ReportFormat::safeFileName("Reservatório Três Marias"), "Reservatorio_Tres_Marias");
  EXPECT_EQ(ReportFormat::safeFileName("Ação/Norte"), "Acao_Norte");
  EXPECT_EQ(ReportFormat::safeFileName("../../etc"), ".._.._etc");
  EXPECT_EQ(ReportFormat::safeFileName(".."), "__");
  EXPECT_EQ(ReportFormat::safeFileName("."), "_");
  EXPECT_EQ(ReportFormat::safeFileName(""), "_");
  EXPECT_EQ(ReportFormat::safeFileName("C:\\dados\ttab"), "C__dados_tab");
  EXPECT_EQ(ReportFormat::number(-999.0), "-999");
  EXPECT_EQ(ReportFormat::number(0.1 + 0.2), "0.30000000000000004");
}

TEST_F(CSVExport, ResultsOfEachWindowReadBackExactly) {
  RunOfTwoWindows run;
  ASSERT_TRUE(run.net.scenario->run(nullptr));
  const auto written = CSVWriteResults::writeScenarios({run.net.scenario}, folder);
  // Three nodes and two links, two windows each.
  ASSERT_EQ(written.size(), 10u);
  const fs::path scenarioFolder = folder / "Cenario_Sao_Francisco";
  EXPECT_EQ(written[0], scenarioFolder / "Reservatorio_Tres_Marias_w0.csv");
  EXPECT_EQ(written[1], scenarioFolder / "Reservatorio_Tres_Marias_w1.csv");
  EXPECT_EQ(written[2], scenarioFolder / "Acao_Norte_w0.csv");

  for (const auto& element : run.net.scenario->getSortedElements()) {
    for (unsigned int window = 0; window < 2; ++window) {
      SCOPED_TRACE(element->getName() + " window " + std::to_string(window));
      const fs::path path = scenarioFolder / (ReportFormat::safeFileName(element->getName()) +
                                              "_w" + std::to_string(window) + ".csv");
      const std::vector<std::string> lines = readLines(path);
      ASSERT_EQ(lines.size(), 4u + 1u + 12u);  // comments, heading, a year of months
      EXPECT_TRUE(std::regex_match(lines[0], std::regex("# [0-9]{8} [0-9]{2}:[0-9]{2}:[0-9]{2}")));
      EXPECT_EQ(lines[1], "# Periodicidade: Mensal");
      EXPECT_EQ(lines[2], "# Elemento: " + element->getName() + " (" +
                              element->getElementType().getName() + ", id " +
                              std::to_string(element->getId()) + ")");
      EXPECT_EQ(lines[3],
                "# Cenário: Cenário São Francisco (Simulador por regras, Janela, janela " +
                    std::to_string(window) + ")");
      const auto series = element->getVectorOfSeries(window);
      std::vector<std::string> headings{"Date"};
      for (const auto& serie : series) headings.push_back(CSVSeriesWriter::heading(*serie));
      EXPECT_EQ(StringUtils::split(lines[4], ';'), headings);
      for (std::size_t i = 5; i < lines.size(); ++i) {
        const auto fields = StringUtils::split(lines[i], ';');
        ASSERT_EQ(fields.size(), series.size() + 1);
        const Date date = Date::fromString(fields[0], "%Y%m%d");
        EXPECT_EQ(date, Date(2001 + window, static_cast<unsigned int>(i - 4), 1));
        for (std::size_t s = 0; s < series.size(); ++s) {
          EXPECT_EQ(StringUtils::stdStringToDouble(fields[s + 1]), series[s]->getValue(date));
        }
      }
    }
  }
  EXPECT_EQ(readLines(written[0])[4].rfind(
                "Date;Volume meta (adimensional);Volume inicial (hm³);Volume final (hm³);", 0),
            0u);
}

TEST_F(CSVExport, ResultFilesNeverLeaveTheirFolderAndMayHoldNoSeries) {
  RunOfTwoWindows run;
  run.net.scenario->setName("..");
  run.city->setName("../../fora");
  run.net.scenario->createResults();
  const fs::path path = CSVWriteResults::writeSeriesElement(run.net.scenario, folder, run.city, 1);
  EXPECT_EQ(path, folder / "__" / ".._.._fora_w1.csv");
  EXPECT_TRUE(fs::exists(path));

  run.reservoir->setOutputSeries({std::make_shared<NoSeries>()});
  const auto lines =
      readLines(CSVWriteResults::writeSeriesElement(run.net.scenario, folder, run.reservoir, 0));
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[4], "Date;");
  EXPECT_THROW_TEXT(CSVWriteResults::writeSeriesElement(run.net.scenario, folder, run.reservoir, 1),
                    std::out_of_range, "Invalid window index");
  EXPECT_THROW_TEXT(CSVWriteResults::writeSeriesElement(
                        run.net.scenario, folder / "__" / ".._.._fora_w1.csv", run.city, 0),
                    std::runtime_error,
                    "CSVWriteResults::writeSeriesElement(): erro ao abrir arquivo");
}

TEST_F(CSVExport, InputsReadBackThroughTheSeriesLoader) {
  RunOfTwoWindows run;
  PeriodWalker::forEach(run.net.scenario->getInterval(), [&](const Date& date) {
    run.reservoir->getInputSerie(SerieType::precipitation)->setValue(date, date.getMonth() / 3.0);
  });
  const auto written = CSVWriteInputs::writeInputs(folder, run.net.scenario);
  ASSERT_EQ(written.size(), 5u);
  EXPECT_EQ(written[1], folder / "Cenario_Sao_Francisco" / "Acao_Norte.csv");
  const auto lines = readLines(written[0]);
  EXPECT_EQ(lines[0],
            "Date;Precipitação (mm);Evaporação (mm);Vazão natural incremental (m³/s);"
            "Volume meta (adimensional)");
  EXPECT_EQ(lines[2].substr(0, 11), "01-02-2001;");
  // The loader reads the first series of a file: precipitation, and the city's natural flow.
  for (const auto& [path, element, type] :
       {std::tuple{written[0], std::shared_ptr<Element>(run.reservoir), SerieType::precipitation},
        std::tuple{written[1], std::shared_ptr<Element>(run.city),
                   SerieType::naturalIncrementalFlow}}) {
    const auto original = element->getInputSerie(type);
    auto loaded = original->copy();
    SerieManager::fillSerieFromCSVFile(path.string(), loaded, ';');
    EXPECT_EQ(loaded->getMapOfJulianToValues(), original->getMapOfJulianToValues());
  }
}

TEST_F(CSVExport, CurvesOfReservoirsOnly) {
  RunOfTwoWindows run;
  run.reservoir->setName("Sobradinho");
  const fs::path path = folder / "cavs.txt";
  CSVCav::exportCavs({run.reservoir}, path);
  const auto lines = readLines(path);
  ASSERT_EQ(lines.size(), 6u);
  EXPECT_EQ(lines[0], "Reservatório\tCota (m)\tÁrea (km²)\tVolume (hm³)");
  EXPECT_EQ(lines[1], "Sobradinho\t100\t0\t0");
  EXPECT_EQ(lines[5], "Sobradinho\t104\t14\t150");
  EXPECT_THROW_TEXT(CSVCav::exportCavs({run.reservoir, run.city}, folder / "other.txt"),
                    std::invalid_argument, "CSVCav::exportCavs(): element type is not a reservoir");
  EXPECT_FALSE(fs::exists(folder / "other.txt"));
  EXPECT_THROW_TEXT(CSVCav::exportCavs({run.reservoir}, folder / "missing" / "cavs.txt"),
                    std::runtime_error, "CSVCav::exportCavs(): erro ao abrir arquivo");
}
