#include "reports/CellDataFactoryByEnumType.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace {

using Maker = std::function<std::shared_ptr<CellData>()>;

const std::map<TypeOfData, Maker>& makers() {
  static const std::map<TypeOfData, Maker> mapOfCallbacks = {
      {TypeOfData::intType, CellDataFactoryByEnumType::makeIntCellData},
      {TypeOfData::stringType, CellDataFactoryByEnumType::makeStringCellData},
      {TypeOfData::doubleType, CellDataFactoryByEnumType::makeDoubleCellData},
  };
  return mapOfCallbacks;
}

}  // namespace

std::shared_ptr<CellData> CellDataFactoryByEnumType::make(TypeOfData type) {
  auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument("CellDataFactoryByEnumType::make(): invalid typeOfData");
  }
  return it->second();
}

std::vector<TypeOfData> CellDataFactoryByEnumType::keys() {
  std::vector<TypeOfData> result;
  for (const auto& entry : makers()) result.push_back(entry.first);
  return result;
}

bool CellDataFactoryByEnumType::contains(TypeOfData type) { return makers().count(type) != 0; }

std::shared_ptr<CellData> CellDataFactoryByEnumType::makeIntCellData() {
  return std::make_shared<CellDataInt>();
}

std::shared_ptr<CellData> CellDataFactoryByEnumType::makeDoubleCellData() {
  return std::make_shared<CellDataDouble>();
}

std::shared_ptr<CellData> CellDataFactoryByEnumType::makeStringCellData() {
  return std::make_shared<CellDataString>();
}
