#include "CsvTable.h"

#include <fstream>
#include <stdexcept>

#include "HostText.h"
#include "common/StringUtils.h"

namespace {

// Fields split at commas outside double quotes.
std::vector<std::string> fieldsOf(const std::string& line) {
  std::vector<std::string> fields(1);
  bool quoted = false;
  for (char c : line) {
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ',' && !quoted) {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

}  // namespace

CsvTable::CsvTable(const std::filesystem::path& path) : path(path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error(path.string() + ": " + tr("cannot be read"));
  std::string line;
  if (!std::getline(file, line)) throw std::runtime_error(path.string() + ": " + tr("empty file"));
  headings = fieldsOf(StringUtils::trim(line));
  for (std::size_t number = 2; std::getline(file, line); ++number) {
    line = StringUtils::trim(line);
    if (line.empty()) continue;
    cells.push_back(fieldsOf(line));
    if (cells.back().size() != headings.size()) {
      throw std::runtime_error(path.string() + ": " +
                               tr("line {1} has {2} fields, the header {3}",
                                  {std::to_string(number), std::to_string(cells.back().size()),
                                   std::to_string(headings.size())}));
    }
  }
}

std::size_t CsvTable::column(const std::string& heading) const {
  for (std::size_t i = 0; i < headings.size(); ++i) {
    if (headings[i] == heading) return i;
  }
  throw std::runtime_error(path.string() + ": " + tr("no column \"{1}\"", {heading}));
}

const std::string& CsvTable::text(std::size_t row, std::size_t column) const {
  return cells.at(row).at(column);
}

double CsvTable::number(std::size_t row, std::size_t column) const {
  const std::string& field = text(row, column);
  try {
    return StringUtils::stdStringToDouble(field);
  } catch (const std::exception&) {
    throw std::runtime_error(path.string() + ": " +
                             tr("\"{1}\" in column \"{2}\", line {3}, is not a number",
                                {field, headings.at(column), std::to_string(row + 2)}));
  }
}

std::size_t CsvTable::rowOf(const std::string& key) const {
  for (std::size_t row = 0; row < cells.size(); ++row) {
    if (cells[row].front() == key) return row;
  }
  throw std::runtime_error(path.string() + ": " + tr("no line for \"{1}\"", {key}));
}
