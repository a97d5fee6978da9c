#include "reports/LoadedData.h"

#include <stdexcept>

void LoadedData::addColumn(const ColInfo& column) {
  if (!rows.empty()) {
    throw std::invalid_argument("LoadedData::addColumn(): the table already has rows");
  }
  columns.push_back(column);
}

void LoadedData::addRow(Row row) {
  if (row.size() != columns.size()) {
    throw std::invalid_argument("LoadedData::addRow(): invalid row size");
  }
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (!row[i] || row[i]->getTypeOfData() != columns[i].typeOfData) {
      throw std::invalid_argument("LoadedData::addRow(): invalid cell type");
    }
  }
  rows.push_back(std::move(row));
}

const std::shared_ptr<CellData>& LoadedData::getCell(std::size_t row, std::size_t column) const {
  if (row >= rows.size() || column >= columns.size()) {
    throw std::out_of_range("LoadedData::getCell(): invalid index");
  }
  return rows[row][column];
}
