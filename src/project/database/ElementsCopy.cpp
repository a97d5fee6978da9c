#include "project/database/ElementsCopy.h"

#include "project/database/TableCopy.h"

const std::vector<std::string>& ElementsCopy::tables() {
  static const std::vector<std::string> names = {"ElementType",
                                                 "Element",
                                                 "SerieInput",
                                                 "SerieOutput",
                                                 "Cav",
                                                 "HidrologicalStateSeries",
                                                 "HidrologicalStatePerReservoirSeries",
                                                 "HidrologicalStatePerReservoirMonthlySeries"};
  return names;
}

void ElementsCopy::copyElements(TableCopy& copy) {
  for (const auto& table : tables()) copy.copy(table);
}
