#pragma once

#include <map>
#include <utility>

// A rows x cols matrix that stores only the cells holding a value; any other cell reads as the
// missing-value mark -999.0. Rows and columns count from 0.
class SparseMatrix {
 public:
  // A 0 x 0 matrix.
  SparseMatrix();
  // An empty rows x cols matrix. Throws std::invalid_argument "invalid number of rows/cols" when
  // a size is negative or only one of them is 0.
  SparseMatrix(int rows, int cols);

  // Stores value at (row, col); -999.0 clears the cell. Throws std::out_of_range
  // "Invalid value index" outside the matrix.
  void setValue(int row, int col, double value);
  // The value at (row, col), -999.0 when none is stored. Throws std::out_of_range
  // "Invalid value index" outside the matrix.
  double getValue(int row, int col) const;
  // The number of rows.
  int rowsLength() const { return rows; }
  // The number of columns.
  int colsLength() const { return cols; }
  // True when (row, col) lies inside the matrix.
  bool isValid(int row, int col) const;

  // Adds count empty rows at the end; a matrix grown from 0 x 0 may have rows and no columns in
  // between. Throws std::invalid_argument "SparseMatrix::appendRow(): negative count".
  void appendRow(int count);
  // As appendRow() for columns; "SparseMatrix::appendCol(): negative count".
  void appendCol(int count);
  // Puts an empty row before row (at the end when row == rowsLength()); the rows from there down
  // move one place. Throws std::out_of_range "SparseMatrix::insertRow(): invalid row index".
  void insertRow(int row);
  // Deletes a row with its values; the rows below move up one place. Throws std::out_of_range
  // "SparseMatrix::removeRow(): invalid row index".
  void removeRow(int row);
  // As insertRow() for a column; "SparseMatrix::insertCol(): invalid col index".
  void insertCol(int col);
  // As removeRow() for a column; "SparseMatrix::removeCol(): invalid col index".
  void removeCol(int col);

 private:
  // Moves the stored values of every row from `first` on by `shift` places.
  void updateRowIndex(int first, int shift);
  // Moves the stored values of every column from `first` on by `shift` places.
  void updateColIndex(int first, int shift);

  int rows;
  int cols;
  std::map<std::pair<int, int>, double> values;
};
