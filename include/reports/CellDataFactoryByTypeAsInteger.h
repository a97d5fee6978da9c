#pragma once

#include <memory>

#include "reports/CellData.h"

// Makes an empty cell from the number of its type of data (0 whole, 1 text, 2 floating), as
// stored by the host.
class CellDataFactoryByTypeAsInteger {
 public:
  // Throws std::invalid_argument "CellDataFactoryByTypeAsInteger::make(): invalid typeOfData".
  static std::shared_ptr<CellData> make(int type);
};
