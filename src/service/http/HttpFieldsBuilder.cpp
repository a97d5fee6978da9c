#include "service/http/HttpFieldsBuilder.h"

namespace {

// Letters, digits and "-._~" travel as they are; the test ignores the process's locale.
bool isUnreserved(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '.' || c == '_' || c == '~';
}

}  // namespace

HttpFieldsBuilder::HttpFieldsBuilder(std::string path) : path(std::move(path)) {}

HttpFieldsBuilder& HttpFieldsBuilder::addField(const std::string& key, const std::string& value) {
  fields.emplace_back(key, value);
  return *this;
}

std::string HttpFieldsBuilder::build() const {
  std::string text = path;
  char separator = '?';
  for (const auto& [key, value] : fields) {
    text += separator + encode(key) + "=" + encode(value);
    separator = '&';
  }
  return text;
}

std::string HttpFieldsBuilder::encode(const std::string& text) {
  static const char* const hex = "0123456789ABCDEF";
  std::string encoded;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (isUnreserved(c)) {
      encoded += c;
    } else {
      encoded += '%';
      encoded += hex[byte >> 4];
      encoded += hex[byte & 0x0f];
    }
  }
  return encoded;
}
