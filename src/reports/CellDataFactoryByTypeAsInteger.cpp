#include "reports/CellDataFactoryByTypeAsInteger.h"

#include <stdexcept>

#include "reports/CellDataFactoryByEnumType.h"

std::shared_ptr<CellData> CellDataFactoryByTypeAsInteger::make(int type) {
  if (!CellDataFactoryByEnumType::contains(static_cast<TypeOfData>(type))) {
    throw std::invalid_argument("CellDataFactoryByTypeAsInteger::make(): invalid typeOfData");
  }
  return CellDataFactoryByEnumType::make(static_cast<TypeOfData>(type));
}
