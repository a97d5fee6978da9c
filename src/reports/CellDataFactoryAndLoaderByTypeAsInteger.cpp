#include "reports/CellDataFactoryAndLoaderByTypeAsInteger.h"

#include <stdexcept>

#include "reports/CellDataFactoryByEnumType.h"

std::shared_ptr<CellData> CellDataFactoryAndLoaderByTypeAsInteger::make(int type,
                                                                        const std::string& text) {
  const auto typeOfData = static_cast<TypeOfData>(type);
  if (!CellDataFactoryByEnumType::contains(typeOfData)) {
    throw std::invalid_argument(
        "CellDataFactoryAndLoaderByTypeAsInteger::make(): invalid typeOfData");
  }
  auto cell = CellDataFactoryByEnumType::make(typeOfData);
  cell->load(text);
  return cell;
}
