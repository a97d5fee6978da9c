#pragma once

#include <memory>
#include <string>

#include "reports/CellData.h"

// Makes a cell from the number of its type of data (0 whole, 1 text, 2 floating) holding the
// value read from text.
class CellDataFactoryAndLoaderByTypeAsInteger {
 public:
  // Throws std::invalid_argument "CellDataFactoryAndLoaderByTypeAsInteger::make(): invalid
  // typeOfData" for an unknown number, and CellData::load's failures for text of the wrong form.
  static std::shared_ptr<CellData> make(int type, const std::string& text);
};
