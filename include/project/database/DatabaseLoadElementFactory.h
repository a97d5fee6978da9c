#pragma once

#include <memory>

class DatabaseLoadElement;
class Element;

// The database loader of each kind of element.
class DatabaseLoadElementFactory {
 public:
  // The loader for element's type (every element type has one).
  static std::unique_ptr<DatabaseLoadElement> make(const std::shared_ptr<Element>& element);
};
