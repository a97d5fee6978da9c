#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "core/Element.h"
#include "core/Scenario.h"

// Exports the input series of a scenario as CSV files, one per element, "<element name>.csv" in
// the scenario's folder, names made safe by ReportFormat::safeFileName. Each file is the table of
// CSVSeriesWriter with dates as "%d-%m-%Y", the form SerieManager::fillSerieFromCSVFile reads
// back (the first series of a file).
class CSVWriteInputs {
 public:
  // Writes every element of scenario, in the order of the ids, under folder; gives the paths
  // written. Throws as createFolders and writeSeriesElement, after removing the files it wrote.
  static std::vector<std::filesystem::path> writeInputs(const std::filesystem::path& folder,
                                                        const std::shared_ptr<Scenario>& scenario);
  // Makes the scenario's folder under folder and gives it. Throws std::runtime_error
  // "CSVWriteInputs::createFolders(): erro ao criar pasta" when it cannot be made.
  static std::filesystem::path createFolders(const std::filesystem::path& folder,
                                             const Scenario& scenario);
  // Writes the input series of element into scenarioFolder and gives the file's path. Throws
  // std::runtime_error "CSVWriteInputs::writeSeriesElement(): erro ao abrir arquivo" when the
  // file cannot be made, and
  // "CSVWriteInputs::writeSeriesElement(): erro ao escrever arquivo: <path>" when a write to it
  // fails (the file is then removed).
  static std::filesystem::path writeSeriesElement(const std::filesystem::path& scenarioFolder,
                                                  const Element& element);
};
