#pragma once

#include <stdexcept>

// A project file that lacks a key it must have: its what() is "Invalid json file".
class JsonLoadException : public std::runtime_error {
 public:
  JsonLoadException() : std::runtime_error("Invalid json file") {}
};
