#include "reports/CSVSeriesWriter.h"

#include <cstdio>
#include <stdexcept>
#include <system_error>

#include "common/PeriodWalker.h"
#include "reports/ReportFormat.h"

namespace {

void appendPadded(std::string& text, unsigned int value, int width) {
  char digits[16];
  const int length = std::snprintf(digits, sizeof digits, "%0*u", width, value);
  text.append(digits, static_cast<std::size_t>(length));
}

// Date::toString builds a locale for every date, and an export prints a date per line: the
// numeric directives are printed here, and a format with any other goes to Date::toString.
std::string dateText(const Date& date, const std::string& format) {
  std::string text;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] != '%' || i + 1 == format.size()) {
      text += format[i];
      continue;
    }
    const char directive = format[++i];
    if (directive == 'Y') {
      appendPadded(text, date.getYear(), 4);
    } else if (directive == 'm') {
      appendPadded(text, date.getMonth(), 2);
    } else if (directive == 'd') {
      appendPadded(text, date.getDay(), 2);
    } else {
      return date.toString(format);
    }
  }
  return text;
}

double valueAt(const Serie& serie, unsigned int julian) {
  const Serie::Values& values = serie.getMapOfJulianToValues();
  const auto entry = values.find(julian);
  return entry == values.end() ? Serie::kEmptyValue : entry->second;
}

}  // namespace

std::string CSVSeriesWriter::heading(const Serie& serie) {
  return serie.getName() + " (" + serie.getUnit().getName() + ")";
}

void CSVSeriesWriter::write(std::ostream& out, const std::vector<std::shared_ptr<Serie>>& series,
                            const std::string& dateFormat) {
  std::string line = "Date;";
  for (std::size_t i = 0; i < series.size(); ++i) {
    line += (i == 0 ? "" : ";") + heading(*series[i]);
  }
  out << line << '\n';
  if (series.empty()) return;
  PeriodWalker::forEach(series.front()->getInterval(), [&](const Date& date) {
    const unsigned int julian = Date::julian(date);
    line = dateText(date, dateFormat);
    for (const auto& serie : series) line += ';' + ReportFormat::number(valueAt(*serie, julian));
    line += '\n';
    out << line;
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
