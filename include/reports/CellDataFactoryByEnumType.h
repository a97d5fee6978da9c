#pragma once

#include <memory>
#include <vector>

#include "reports/CellData.h"

// Makes an empty cell (-999 in a numeric cell, "" in a text cell) of a type of data. Its map is
// the one list of the cell types; the other cell factories go through it.
class CellDataFactoryByEnumType {
 public:
  // Throws std::invalid_argument "CellDataFactoryByEnumType::make(): invalid typeOfData".
  static std::shared_ptr<CellData> make(TypeOfData type);
  // Every type of data a cell can have, in the order of their numbers.
  static std::vector<TypeOfData> keys();
  // True when type is one of keys().
  static bool contains(TypeOfData type);
  // The makers of the map: an empty cell of each type.
  static std::shared_ptr<CellData> makeIntCellData();
  static std::shared_ptr<CellData> makeDoubleCellData();
  static std::shared_ptr<CellData> makeStringCellData();
};
