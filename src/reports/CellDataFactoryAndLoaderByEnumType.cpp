#include "reports/CellDataFactoryAndLoaderByEnumType.h"

#include <stdexcept>

#include "reports/CellDataFactoryByEnumType.h"

std::shared_ptr<CellData> CellDataFactoryAndLoaderByEnumType::make(TypeOfData type,
                                                                   const std::string& text) {
  if (!CellDataFactoryByEnumType::contains(type)) {
    throw std::invalid_argument("CellDataFactoryAndLoaderByEnumType::make(): invalid typeOfData");
  }
  auto cell = CellDataFactoryByEnumType::make(type);
  cell->load(text);
  return cell;
}
