#pragma once

#include <string>

// Replies are built as text: the one place where a name becomes a JSON string.
class JsonText {
 public:
  // text in double quotes with JSON's escapes; bytes that are not UTF-8 become U+FFFD.
  static std::string quote(const std::string& text);
};
