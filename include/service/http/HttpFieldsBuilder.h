#pragma once

#include <string>
#include <utility>
#include <vector>

// The service text of a request: a path followed by its fields as a query,
// "/api/series?variavel=precipitacao&reservatorio_id=12". Keys and values are percent-encoded
// (UTF-8 bytes outside letters, digits and "-._~" become %XX), so that any name travels intact.
class HttpFieldsBuilder {
 public:
  // path begins with '/', "/api/series".
  explicit HttpFieldsBuilder(std::string path);

  // Adds one field after those already added.
  HttpFieldsBuilder& addField(const std::string& key, const std::string& value);
  // The path, then "?" and the fields joined by "&"; the path alone without fields.
  std::string build() const;

  // text with every byte but the unreserved ones written %XX (upper-case hex).
  static std::string encode(const std::string& text);

 private:
  std::string path;
  std::vector<std::pair<std::string, std::string>> fields;
};
