#pragma once

#include <filesystem>
#include <memory>
#include <ostream>
#include <vector>

#include "core/Element.h"
#include "core/Scenario.h"

// Exports the results of runs as CSV files, one per element and window, in a folder per
// scenario. Scenario and element names become file names through ReportFormat::safeFileName
// ("Reservatório Norte" -> "Reservatorio_Norte"), the element's followed by "_w", the window
// index and ".csv". A file opens with lines behind "# ": the time it was written
// ("%Y%m%d %H:%M:%S"), the periodicity, the element and the scenario. Then comes the table of
// CSVSeriesWriter with dates as "%Y%m%d".
class CSVWriteResults {
 public:
  // Writes every window of every enabled element with results of each scenario under folder,
  // elements in the order of their ids; gives the paths written. Throws as writeSeriesElement,
  // after removing the files it wrote.
  static std::vector<std::filesystem::path> writeScenarios(
      const std::vector<std::shared_ptr<Scenario>>& scenarios, const std::filesystem::path& folder);
  // Writes the results of element in window runIndex under folder and gives the file's path.
  // Throws std::out_of_range "Invalid window index" for a window without results, and
  // std::runtime_error "CSVWriteResults::writeSeriesElement(): erro ao abrir arquivo" when the
  // file cannot be made, and
  // "CSVWriteResults::writeSeriesElement(): erro ao escrever arquivo: <path>" when a write to it
  // fails (the file is then removed).
  static std::filesystem::path writeSeriesElement(const std::shared_ptr<Scenario>& scenario,
                                                  const std::filesystem::path& folder,
                                                  const std::shared_ptr<Element>& element,
                                                  unsigned int runIndex);

 private:
  static void writeTimeStamp(std::ostream& out);
  static void writePeriodicity(std::ostream& out, const Scenario& scenario);
  static void writeElementInfo(std::ostream& out, const Element& element);
  static void writeScenarioInfo(std::ostream& out, const Scenario& scenario, unsigned int runIndex);
};
