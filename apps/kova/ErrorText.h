#pragma once

#include <exception>
#include <string>

// The text of a failure as the program reports it: one line, and for a database failure SQLite's
// own words behind the user's message, which help whoever looks into it.
class ErrorText {
 public:
  static std::string of(const std::exception& error);
};
