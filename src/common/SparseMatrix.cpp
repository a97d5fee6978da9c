#include "common/SparseMatrix.h"

#include <stdexcept>
#include <string>

#include "common/NumericalUtils.h"

namespace {

constexpr double kEmpty = -999.0;

void requireNonNegative(int count, const char* function) {
  if (count < 0) {
    throw std::invalid_argument(std::string("SparseMatrix::") + function + "(): negative count");
  }
}

// Throws unless 0 <= index < end.
void requireIndex(int index, int end, const char* function, const char* what) {
  if (index < 0 || index >= end) {
    throw std::out_of_range(std::string("SparseMatrix::") + function + "(): invalid " + what +
                            " index");
  }
}

}  // namespace

SparseMatrix::SparseMatrix() : SparseMatrix(0, 0) {}

SparseMatrix::SparseMatrix(int rows, int cols) : rows(rows), cols(cols) {
  if (rows < 0 || cols < 0 || (rows == 0) != (cols == 0)) {
    throw std::invalid_argument("invalid number of rows/cols");
  }
}

void SparseMatrix::setValue(int row, int col, double value) {
  if (!isValid(row, col)) throw std::out_of_range("Invalid value index");
  if (NumericalUtils::isEmpty(value)) {
    values.erase({row, col});
  } else {
    values[{row, col}] = value;
  }
}

double SparseMatrix::getValue(int row, int col) const {
  if (!isValid(row, col)) throw std::out_of_range("Invalid value index");
  const auto found = values.find({row, col});
  return found == values.end() ? kEmpty : found->second;
}

bool SparseMatrix::isValid(int row, int col) const {
  return row >= 0 && row < rows && col >= 0 && col < cols;
}

void SparseMatrix::appendRow(int count) {
  requireNonNegative(count, "appendRow");
  rows += count;
}

void SparseMatrix::appendCol(int count) {
  requireNonNegative(count, "appendCol");
  cols += count;
}

void SparseMatrix::insertRow(int row) {
  requireIndex(row, rows + 1, "insertRow", "row");
  updateRowIndex(row, 1);
  ++rows;
}

void SparseMatrix::removeRow(int row) {
  requireIndex(row, rows, "removeRow", "row");
  for (int col = 0; col < cols; ++col) values.erase({row, col});
  updateRowIndex(row + 1, -1);
  --rows;
}

void SparseMatrix::insertCol(int col) {
  requireIndex(col, cols + 1, "insertCol", "col");
  updateColIndex(col, 1);
  ++cols;
}

void SparseMatrix::removeCol(int col) {
  requireIndex(col, cols, "removeCol", "col");
  for (int row = 0; row < rows; ++row) values.erase({row, col});
  updateColIndex(col + 1, -1);
  --cols;
}

void SparseMatrix::updateRowIndex(int first, int shift) {
  std::map<std::pair<int, int>, double> moved;
  for (const auto& [key, value] : values) {
    const int row = key.first >= first ? key.first + shift : key.first;
    moved.emplace(std::make_pair(row, key.second), value);
  }
  values.swap(moved);
}

void SparseMatrix::updateColIndex(int first, int shift) {
  std::map<std::pair<int, int>, double> moved;
  for (const auto& [key, value] : values) {
    const int col = key.second >= first ? key.second + shift : key.second;
    moved.emplace(std::make_pair(key.first, col), value);
  }
  values.swap(moved);
}
