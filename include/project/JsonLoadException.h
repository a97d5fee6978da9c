#pragma once

#include <nlohmann/json_fwd.hpp>
#include <stdexcept>
#include <string>

// A project file that cannot be read as a project. Readers throw it at a value of the parsed file
// (where()) with what() telling what is wrong there; JsonProjectLoader turns it into one line that
// also tells the place, which no longer points into the file's tree (where() is then null). The
// default one, "Invalid json file", tells neither.
class JsonLoadException : public std::runtime_error {
 public:
  JsonLoadException() : std::runtime_error("Invalid json file") {}
  JsonLoadException(const nlohmann::json& where, const std::string& reason)
      : std::runtime_error(reason), place(&where) {}
  explicit JsonLoadException(const std::string& located) : std::runtime_error(located) {}

  // The value of the parsed file that is at fault, or null once the message tells the place.
  const nlohmann::json* where() const noexcept { return place; }

 private:
  const nlohmann::json* place = nullptr;
};
