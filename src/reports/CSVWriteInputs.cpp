#include "reports/CSVWriteInputs.h"

#include <stdexcept>
#include <system_error>

#include "reports/CSVSeriesWriter.h"
#include "reports/CSVWriteFile.h"
#include "reports/ReportFormat.h"

std::vector<std::filesystem::path> CSVWriteInputs::writeInputs(
    const std::filesystem::path& folder, const std::shared_ptr<Scenario>& scenario) {
  const std::filesystem::path scenarioFolder = createFolders(folder, *scenario);
  std::vector<std::filesystem::path> written;
  try {
    for (const auto& element : scenario->getSortedElements()) {
      written.push_back(writeSeriesElement(scenarioFolder, *element));
    }
  } catch (...) {
    CSVWriteFile::removeAll(written);
    throw;
  }
  return written;
}

std::filesystem::path CSVWriteInputs::createFolders(const std::filesystem::path& folder,
                                                    const Scenario& scenario) {
  const std::filesystem::path scenarioFolder =
      folder / ReportFormat::safeFileName(scenario.getName());
  std::error_code error;
  std::filesystem::create_directories(scenarioFolder, error);
  if (error || !std::filesystem::is_directory(scenarioFolder)) {
    throw std::runtime_error("CSVWriteInputs::createFolders(): erro ao criar pasta");
  }
  return scenarioFolder;
}

std::filesystem::path CSVWriteInputs::writeSeriesElement(
    const std::filesystem::path& scenarioFolder, const Element& element) {
  const std::filesystem::path path =
      scenarioFolder / (ReportFormat::safeFileName(element.getName()) + ".csv");
  std::ofstream file =
      CSVSeriesWriter::create(path, "CSVWriteInputs::writeSeriesElement(): erro ao abrir arquivo");
  CSVSeriesWriter::write(file, element.getVectorOfInputSeries(), "%d-%m-%Y");
  CSVWriteFile::finish(file, path,
                       "CSVWriteInputs::writeSeriesElement(): erro ao escrever arquivo");
  return path;
}
