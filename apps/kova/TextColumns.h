#pragma once

#include <ostream>
#include <string>
#include <vector>

// The pieces of the host's number tables: numbers in a fixed count of significant digits, csv
// fields, and lines of fields printed in right-aligned columns.
class TextColumns {
 public:
  // value in digits significant digits, with a point whatever the locale.
  static std::string number(double value, int digits);
  // text as one csv field: quoted, its quotes doubled, when it holds a comma, quote or new line.
  static std::string csvField(const std::string& text);
  // Each line's fields right-aligned in columns two blanks apart, widths counted in characters
  // as a terminal shows UTF-8.
  static void printAligned(const std::vector<std::vector<std::string>>& lines, std::ostream& out);
  // The fields joined by ',', each as csvField, and a new line.
  static void printCsvLine(const std::vector<std::string>& fields, std::ostream& out);
};
