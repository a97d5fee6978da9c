#pragma once

#include <stdexcept>

// A project file or its database that this user may not write: its what() is "Json file with
// permission denied".
class JsonLoadExceptionPermissionDenied : public std::runtime_error {
 public:
  JsonLoadExceptionPermissionDenied() : std::runtime_error("Json file with permission denied") {}
};
