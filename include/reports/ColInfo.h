#pragma once

#include <string>

#include "reports/TypeOfData.h"

// A column of a report table: the type of data of its cells and its heading.
struct ColInfo {
  TypeOfData typeOfData;
  std::string name;
};
