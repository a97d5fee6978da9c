#pragma once

#include <stdexcept>
#include <string>

// A project database whose rows cannot be read as the project's series: a value that is no
// finite number, two values of one series on one date, or rows whose series type has no row in
// the vocabulary tables. what() names the table, the element, the series and the date.
class DatabaseLoadException : public std::runtime_error {
 public:
  explicit DatabaseLoadException(const std::string& what) : std::runtime_error(what) {}
};
