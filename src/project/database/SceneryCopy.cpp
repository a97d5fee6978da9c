#include "project/database/SceneryCopy.h"

#include "project/database/TableCopy.h"

const std::vector<std::string>& SceneryCopy::tables() {
  static const std::vector<std::string> names = {"Scenario"};
  return names;
}

void SceneryCopy::copyScenery(TableCopy& copy) {
  for (const auto& table : tables()) copy.copy(table);
}
