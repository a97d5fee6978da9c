#include "reports/CSVWriteResults.h"

#include <ctime>
#include <iomanip>
#include <stdexcept>

#include "core/ExecutionMethod.h"
#include "reports/CSVSeriesWriter.h"
#include "reports/CSVWriteFile.h"
#include "reports/ReportFormat.h"

std::vector<std::filesystem::path> CSVWriteResults::writeScenarios(
    const std::vector<std::shared_ptr<Scenario>>& scenarios, const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> written;
  // The scenario folders this export makes: a failed export takes them back with its files.
  std::vector<std::filesystem::path> made;
  for (const auto& scenario : scenarios) {
    const auto own = folder / ReportFormat::safeFileName(scenario->getName());
    if (!std::filesystem::exists(own)) made.push_back(own);
  }
  try {
    for (const auto& scenario : scenarios) {
      for (const auto& element : scenario->getSortedElements()) {
        if (!element->isEnabled()) continue;
        const auto windows = static_cast<unsigned int>(element->getOutputSeries().size());
        for (unsigned int window = 0; window < windows; ++window) {
          written.push_back(writeSeriesElement(scenario, folder, element, window));
        }
      }
    }
  } catch (...) {
    CSVWriteFile::removeAll(written);
    CSVWriteFile::removeAll(made);
    throw;
  }
  return written;
}

std::filesystem::path CSVWriteResults::writeSeriesElement(const std::shared_ptr<Scenario>& scenario,
                                                          const std::filesystem::path& folder,
                                                          const std::shared_ptr<Element>& element,
                                                          unsigned int runIndex) {
  const auto series = element->getVectorOfSeries(runIndex);
  const std::filesystem::path path =
      folder / ReportFormat::safeFileName(scenario->getName()) /
      (ReportFormat::safeFileName(element->getName()) + "_w" + std::to_string(runIndex) + ".csv");
  std::ofstream file =
      CSVSeriesWriter::create(path, "CSVWriteResults::writeSeriesElement(): erro ao abrir arquivo");
  writeTimeStamp(file);
  writePeriodicity(file, *scenario);
  writeElementInfo(file, *element);
  writeScenarioInfo(file, *scenario, runIndex);
  CSVSeriesWriter::write(file, series, "%Y%m%d");
  CSVWriteFile::finish(file, path,
                       "CSVWriteResults::writeSeriesElement(): erro ao escrever arquivo");
  return path;
}

void CSVWriteResults::writeTimeStamp(std::ostream& out) {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  out << "# " << std::put_time(&local, "%Y%m%d %H:%M:%S") << '\n';
}

void CSVWriteResults::writePeriodicity(std::ostream& out, const Scenario& scenario) {
  out << "# Periodicidade: " << scenario.getInterval().getPeriodicity().getName() << '\n';
}

void CSVWriteResults::writeElementInfo(std::ostream& out, const Element& element) {
  out << "# Elemento: " << element.getName() << " (" << element.getElementType().getName()
      << ", id " << element.getId() << ")\n";
}

void CSVWriteResults::writeScenarioInfo(std::ostream& out, const Scenario& scenario,
                                        unsigned int runIndex) {
  out << "# Cenário: " << scenario.getName() << " (" << scenario.getScenarioType().getName() << ", "
      << scenario.getExecutionMethod()->getExecutionType().getName() << ", janela " << runIndex
      << ")\n";
}
