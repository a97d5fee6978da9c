#include "project/database/UnitCopy.h"

#include "project/database/TableCopy.h"

const std::vector<std::string>& UnitCopy::tables() {
  static const std::vector<std::string> names = {"Unit", "SerieType"};
  return names;
}

void UnitCopy::copyUnits(TableCopy& copy) {
  for (const auto& table : tables()) copy.copy(table);
}
