#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "reports/CellData.h"
#include "reports/ColInfo.h"

// A report table: its columns, then rows of cells, each row one cell per column of the column's
// type of data. Cells are shared, so tables derived from this one see the same cells.
class LoadedData {
 public:
  using Row = std::vector<std::shared_ptr<CellData>>;

  // Adds a column at the right. Throws std::invalid_argument
  // "LoadedData::addColumn(): the table already has rows" once rows were added.
  void addColumn(const ColInfo& column);
  // Adds a row at the bottom. Throws std::invalid_argument "LoadedData::addRow(): invalid row
  // size" when it has not one cell per column, and "LoadedData::addRow(): invalid cell type"
  // for a missing cell or one of another type than its column.
  void addRow(Row row);

  // The columns, left to right.
  const std::vector<ColInfo>& getColumns() const { return columns; }
  // The rows, top to bottom.
  const std::vector<Row>& getRows() const { return rows; }
  // The cell of a row and column. Throws std::out_of_range "LoadedData::getCell(): invalid
  // index" outside the table.
  const std::shared_ptr<CellData>& getCell(std::size_t row, std::size_t column) const;

 private:
  std::vector<ColInfo> columns;
  std::vector<Row> rows;
};
