#pragma once

#include <string>
#include <vector>

class TableCopy;

// The part of a database copy (DatabaseCopy) that carries the element types, the elements and every
// row that hangs on an element: input and result series with their history, curves and hydrological
// series.
class ElementsCopy {
 public:
  // The tables it copies, parents first.
  static const std::vector<std::string>& tables();
  // Copies them through copy. Throws as TableCopy::copy.
  static void copyElements(TableCopy& copy);
};
