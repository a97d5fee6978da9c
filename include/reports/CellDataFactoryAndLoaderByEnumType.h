#pragma once

#include <memory>
#include <string>

#include "reports/CellData.h"

// Makes a cell of a type of data holding the value read from text.
class CellDataFactoryAndLoaderByEnumType {
 public:
  // Throws std::invalid_argument "CellDataFactoryAndLoaderByEnumType::make(): invalid
  // typeOfData" for an unknown type, and CellData::load's failures for text of the wrong form.
  static std::shared_ptr<CellData> make(TypeOfData type, const std::string& text);
};
