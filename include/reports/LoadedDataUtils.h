#pragma once

#include <string>

#include "reports/LoadedData.h"

// Helpers over report tables.
class LoadedDataUtils {
 public:
  // The heading of the column that getLoadedDataWithOriginalIndexIndicator adds.
  static const std::string& originalIndexColumnName();
  // A table with the columns and cells of data and, at the right, a whole-number column
  // "Índice original" holding each row's position in data (from 0), so that the rows can be
  // sorted and still be traced back.
  static LoadedData getLoadedDataWithOriginalIndexIndicator(const LoadedData& data);
};
