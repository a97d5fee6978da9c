#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <stdexcept>
#include <utility>
#include <vector>

#include "common/SparseMatrix.h"
#include "support/ExpectThrow.h"

namespace {

using Grid = std::vector<std::vector<double>>;
constexpr double e = -999.0;  // an empty cell; one letter keeps the grids readable

// Every cell, row by row, so that a renumbering shows whole.
Grid cells(const SparseMatrix& matrix) {
  Grid result(matrix.rowsLength());
  for (int row = 0; row < matrix.rowsLength(); ++row) {
    for (int col = 0; col < matrix.colsLength(); ++col) {
      result[row].push_back(matrix.getValue(row, col));
    }
  }
  return result;
}

// {{1, e}, {e, 2}, {3, e}}
SparseMatrix threeByTwo() {
  SparseMatrix matrix(3, 2);
  matrix.setValue(0, 0, 1.0);
  matrix.setValue(1, 1, 2.0);
  matrix.setValue(2, 0, 3.0);
  return matrix;
}

TEST(SparseMatrixTest, SizesMustBothBeZeroOrBothPositive) {
  EXPECT_THROW_TEXT(SparseMatrix(0, 3), std::invalid_argument, "invalid number of rows/cols");
  EXPECT_THROW_TEXT(SparseMatrix(-1, 2), std::invalid_argument, "invalid number of rows/cols");
  SparseMatrix grown;
  grown.appendRow(2);
  grown.appendCol(1);
  grown.setValue(1, 0, 4.5);
  EXPECT_EQ((Grid{{e}, {4.5}}), cells(grown));
}

TEST(SparseMatrixTest, CellsInsideOnly) {
  SparseMatrix matrix = threeByTwo();
  matrix.setValue(0, 0, e);  // clears the cell
  matrix.setValue(0, 1, 0.0);
  EXPECT_EQ((Grid{{e, 0.0}, {e, 2}, {3, e}}), cells(matrix));
  EXPECT_FALSE(matrix.isValid(3, 0));
  EXPECT_THROW_TEXT(matrix.getValue(3, 0), std::out_of_range, "Invalid value index");
  EXPECT_THROW_TEXT(matrix.setValue(0, -1, 1.0), std::out_of_range, "Invalid value index");
}

TEST(SparseMatrixTest, InsertAndRemoveRenumberStoredValues) {
  const std::pair<std::function<void(SparseMatrix&)>, Grid> cases[] = {
      {[](SparseMatrix& m) { m.insertRow(1); }, {{1, e}, {e, e}, {e, 2}, {3, e}}},
      {[](SparseMatrix& m) { m.insertRow(3); }, {{1, e}, {e, 2}, {3, e}, {e, e}}},
      {[](SparseMatrix& m) { m.removeRow(1); }, {{1, e}, {3, e}}},
      {[](SparseMatrix& m) { m.insertCol(0); }, {{e, 1, e}, {e, e, 2}, {e, 3, e}}},
      {[](SparseMatrix& m) { m.removeCol(0); }, {{e}, {2}, {e}}},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    SCOPED_TRACE(testing::Message() << "case " << i);
    SparseMatrix matrix = threeByTwo();
    cases[i].first(matrix);
    EXPECT_EQ(cases[i].second, cells(matrix));
  }
}

TEST(SparseMatrixTest, InsertAndRemoveOutsideAreRefused) {
  SparseMatrix matrix = threeByTwo();
  EXPECT_THROW_TEXT(matrix.insertRow(4), std::out_of_range,
                    "SparseMatrix::insertRow(): invalid row index");
  EXPECT_THROW_TEXT(matrix.removeCol(2), std::out_of_range,
                    "SparseMatrix::removeCol(): invalid col index");
  EXPECT_THROW_TEXT(matrix.appendRow(-1), std::invalid_argument,
                    "SparseMatrix::appendRow(): negative count");
  EXPECT_EQ(cells(threeByTwo()), cells(matrix));
}

}  // namespace
