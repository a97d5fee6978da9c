#pragma once

#include <string>

// Text forms shared by the reports and exports.
class ReportFormat {
 public:
  // The shortest text that reads back as the same double, "." as the decimal point whatever the
  // locale ("2.5", "-999", "1e-07").
  static std::string number(double value);
  // text as a file or folder name that stays inside its folder: accents folded to plain letters,
  // blanks to "_", and path separators, drive colons and control characters to "_". A name made
  // only of dots ("..") or empty becomes underscores ("__", "_").
  static std::string safeFileName(const std::string& text);
};
