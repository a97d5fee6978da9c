#include "TextColumns.h"

#include <algorithm>
#include <iomanip>
#include <locale>
#include <sstream>

namespace {

std::size_t displayWidth(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

}  // namespace

std::string TextColumns::number(double value, int digits) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << std::setprecision(digits) << value;
  return text.str();
}

std::string TextColumns::csvField(const std::string& text) {
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

void TextColumns::printAligned(const std::vector<std::vector<std::string>>& lines,
                               std::ostream& out) {
  std::vector<std::size_t> widths;
  for (const auto& line : lines) {
    if (widths.size() < line.size()) widths.resize(line.size(), 0);
    for (std::size_t i = 0; i < line.size(); ++i) {
      widths[i] = std::max(widths[i], displayWidth(line[i]));
    }
  }
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      out << (i == 0 ? "" : "  ") << std::string(widths[i] - displayWidth(line[i]), ' ') << line[i];
    }
    out << '\n';
  }
}

void TextColumns::printCsvLine(const std::vector<std::string>& fields, std::ostream& out) {
  for (std::size_t i = 0; i < fields.size(); ++i) out << (i == 0 ? "" : ",") << csvField(fields[i]);
  out << '\n';
}
