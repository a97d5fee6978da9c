#include "reports/ReportFormat.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "common/StringUtils.h"

std::string ReportFormat::number(double value) {
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return std::string(buffer.data(), result.ptr);
}

std::string ReportFormat::safeFileName(const std::string& text) {
  std::string name = StringUtils::SimplifyStringForSorting(text);
  for (char& c : name) {
    const bool control = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
    if (c == ' ' || c == '/' || c == '\\' || c == ':' || control) c = '_';
  }
  // "." and ".." name the folder itself or its parent.
  if (name.find_first_not_of('.') == std::string::npos) {
    name = std::string(std::max<std::size_t>(name.size(), 1), '_');
  }
  return name;
}
