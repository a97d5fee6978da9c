#include "reports/CSVSeriesWriter.h"

#include <stdexcept>
#include <system_error>

#include "common/PeriodWalker.h"
#include "reports/ReportFormat.h"

std::string CSVSeriesWriter::heading(const Serie& serie) {
  return serie.getName() + " (" + serie.getUnit().getName() + ")";
}

void CSVSeriesWriter::write(std::ostream& out, const std::vector<std::shared_ptr<Serie>>& series,
                            const std::string& dateFormat) {
  out << "Date;";
  for (std::size_t i = 0; i < series.size(); ++i) out << (i == 0 ? "" : ";") << heading(*series[i]);
  out << '\n';
  if (series.empty()) return;
  PeriodWalker::forEach(series.front()->getInterval(), [&](const Date& date) {
    out << date.toString(dateFormat);
    for (const auto& serie : series) out << ';' << ReportFormat::number(serie->getValue(date));
    out << '\n';
  });
}

std::ofstream CSVSeriesWriter::create(const std::filesystem::path& path, const std::string& error) {
  // A folder that cannot be made shows as a file that cannot be opened.
  std::error_code ignored;
  std::filesystem::create_directories(path.parent_path(), ignored);
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) throw std::runtime_error(error);
  return file;
}
