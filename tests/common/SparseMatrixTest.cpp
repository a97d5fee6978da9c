#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "common/SparseMatrix.h"
#include "support/ExpectThrow.h"

namespace {

constexpr double kEmpty = -999.0;

// Every cell, row by row, so a renumbering shows whole.
std::vector<std::vector<double>> cells(const SparseMatrix& matrix) {
  std::vector<std::vector<double>> result(matrix.rowsLength());
  for (int row = 0; row < matrix.rowsLength(); ++row) {
    for (int col = 0; col < matrix.colsLength(); ++col) {
      result[row].push_back(matrix.getValue(row, col));
    }
  }
  return result;
}

// 1 .
// . 2
// 3 .
SparseMatrix threeByTwo() {
  SparseMatrix matrix(3, 2);
  matrix.setValue(0, 0, 1.0);
  matrix.setValue(1, 1, 2.0);
  matrix.setValue(2, 0, 3.0);
  return matrix;
}

TEST(SparseMatrixTest, SizesMustBothBeZeroOrBothPositive) {
  for (const std::pair<int, int>& size : {std::pair{0, 3}, std::pair{3, 0}, std::pair{-1, 2}}) {
    SCOPED_TRACE(testing::Message() << size.first << " x " << size.second);
    EXPECT_THROW_TEXT(SparseMatrix(size.first, size.second), std::invalid_argument,
                      "invalid number of rows/cols");
  }
  EXPECT_EQ(0, SparseMatrix().rowsLength());
  EXPECT_EQ(0, SparseMatrix(0, 0).colsLength());
}

TEST(SparseMatrixTest, UnsetCellsReadAsMissing) {
  SparseMatrix matrix = threeByTwo();
  EXPECT_EQ(kEmpty, matrix.getValue(0, 1));
  matrix.setValue(0, 0, kEmpty);
  EXPECT_EQ(kEmpty, matrix.getValue(0, 0));
  matrix.setValue(0, 0, 0.0);
  EXPECT_EQ(0.0, matrix.getValue(0, 0));
}

TEST(SparseMatrixTest, IndexesOutsideAreRefused) {
  const SparseMatrix matrix = threeByTwo();
  EXPECT_TRUE(matrix.isValid(2, 1));
  EXPECT_FALSE(matrix.isValid(3, 0));
  EXPECT_FALSE(matrix.isValid(0, -1));
  EXPECT_THROW_TEXT(matrix.getValue(3, 0), std::out_of_range, "Invalid value index");
  EXPECT_THROW_TEXT(threeByTwo().setValue(0, 2, 1.0), std::out_of_range, "Invalid value index");
}

TEST(SparseMatrixTest, InsertAndRemoveRenumberStoredValues) {
  using Grid = std::vector<std::vector<double>>;
  const double e = kEmpty;
  struct Case {
    const char* name;
    std::function<void(SparseMatrix&)> change;
    Grid expected;
  };
  const Case cases[] = {
      {"insert row 1", [](SparseMatrix& m) { m.insertRow(1); }, {{1, e}, {e, e}, {e, 2}, {3, e}}},
      {"insert row at end",
       [](SparseMatrix& m) { m.insertRow(3); },
       {{1, e}, {e, 2}, {3, e}, {e, e}}},
      {"remove row 1", [](SparseMatrix& m) { m.removeRow(1); }, {{1, e}, {3, e}}},
      {"insert col 0", [](SparseMatrix& m) { m.insertCol(0); }, {{e, 1, e}, {e, e, 2}, {e, 3, e}}},
      {"remove col 0", [](SparseMatrix& m) { m.removeCol(0); }, {{e}, {2}, {e}}},
      {"append",
       [](SparseMatrix& m) {
         m.appendRow(1);
         m.appendCol(1);
       },
       {{1, e, e}, {e, 2, e}, {3, e, e}, {e, e, e}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    SparseMatrix matrix = threeByTwo();
    c.change(matrix);
    EXPECT_EQ(c.expected, cells(matrix));
  }
}

TEST(SparseMatrixTest, GrowsFromEmpty) {
  SparseMatrix matrix;
  matrix.appendRow(2);
  matrix.appendCol(3);
  matrix.setValue(1, 2, 4.5);
  EXPECT_EQ(4.5, matrix.getValue(1, 2));
  EXPECT_THROW_TEXT(matrix.appendCol(-1), std::invalid_argument,
                    "SparseMatrix::appendCol(): negative count");
}

TEST(SparseMatrixTest, InsertAndRemoveOutsideAreRefused) {
  SparseMatrix matrix = threeByTwo();
  EXPECT_THROW_TEXT(matrix.insertRow(4), std::out_of_range,
                    "SparseMatrix::insertRow(): invalid row index");
  EXPECT_THROW_TEXT(matrix.removeRow(3), std::out_of_range,
                    "SparseMatrix::removeRow(): invalid row index");
  EXPECT_THROW_TEXT(matrix.insertCol(-1), std::out_of_range,
                    "SparseMatrix::insertCol(): invalid col index");
  EXPECT_THROW_TEXT(matrix.removeCol(2), std::out_of_range,
                    "SparseMatrix::removeCol(): invalid col index");
  EXPECT_EQ(3, matrix.rowsLength());
  EXPECT_EQ(2, matrix.colsLength());
}

}  // namespace
