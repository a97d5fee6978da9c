#pragma once

#include <string>
#include <vector>

class TableCopy;

// The part of a database copy (DatabaseCopy) that carries the scenario rows.
class SceneryCopy {
 public:
  // The tables it copies, parents first.
  static const std::vector<std::string>& tables();
  // Copies them through copy. Throws as TableCopy::copy.
  static void copyScenery(TableCopy& copy);
};
