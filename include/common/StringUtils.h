#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

// Text, path and number-format helpers. Text is UTF-8 throughout; numbers are read and written
// with "." as the decimal point whatever the locale of the process.
class StringUtils {
 public:
  // True when text begins with prefix.
  static bool startsWith(const std::string& text, const std::string& prefix);
  // True when text ends with suffix.
  static bool endsWith(const std::string& text, const std::string& suffix);
  // Replaces the first occurrence of from in text; false when there is none or from is empty.
  static bool replace(std::string& text, const std::string& from, const std::string& to);
  // Replaces every occurrence of from in text, left to right; replacements are not searched again.
  static void findAndReplaceAll(std::string& text, const std::string& from, const std::string& to);
  // text with every character c replaced by replacement.
  static std::string changeCharForString(const std::string& text, char c,
                                         const std::string& replacement);
  // text without leading and trailing blanks, tabs and line breaks.
  static std::string trim(const std::string& text);
  // The parts with separator between each two.
  static std::string join(const std::vector<std::string>& parts, const std::string& separator);
  // The fields between separators, empty ones included: n separators give n + 1 fields, so
  // "" gives {""} and "a,,b," gives {"a", "", "b", ""}.
  static std::vector<std::string> split(const std::string& text, const char& separator);
  // The first maxCharacters characters of text; a multibyte character is never cut in two.
  static std::string truncStdString(const std::string& text, std::size_t maxCharacters);
  // The folder part of a path ("a/b/c.txt" -> "a/b"); "" when there is none.
  static std::string getDirectory(const std::string& path);
  // The last component of a path ("a/b/c.txt" -> "c.txt").
  static std::string getFileName(const std::string& path);

  // The number in text, blanks around it allowed, in the form NumericalUtils::isNumber() accepts.
  // Throws std::invalid_argument "StringUtils::stdStringToFloat(): invalid number '<text>'" for
  // anything else or a value out of range.
  static float stdStringToFloat(const std::string& text);
  // As stdStringToFloat(); "StringUtils::stdStringToDouble(): invalid number '<text>'".
  static double stdStringToDouble(const std::string& text);
  // As stdStringToFloat(); "StringUtils::stdStringToLongDouble(): invalid number '<text>'".
  static long double stdStringToLongDouble(const std::string& text);
  // value in fixed notation with the given decimals; a negative count gives 17, enough for the
  // text to read back as the same double.
  static std::string floatingToStdString(double value, int decimals);

  // The UTF-8 form of text (UTF-32, or UTF-16 where wchar_t has 16 bits); code units that are not
  // a character become U+FFFD.
  static std::string utf8Encode(const std::wstring& text);
  // The wide form of UTF-8 text; each byte that does not belong to a well-formed sequence becomes
  // U+FFFD.
  static std::wstring utf8Decode(const std::string& text);
  // What lies strictly between the first open and the last close character, so nested scopes
  // stay whole ("x{a{b}c}y" -> "a{b}c"); "" when either is missing or close comes first.
  static std::string filterStringByScope(const std::string& text, char open, char close);
  // The rest of the stream, to its end.
  static std::string read(std::istream& stream);
  // The path of fileName in the folder for working files: USERPROFILE, else HOME, else the
  // system temporary folder.
  static std::string getFolderToSaveGenericFile(const std::string& fileName);
  // The paths of the ".sjson" files directly inside folder, sorted. Throws
  // std::filesystem::filesystem_error when the folder cannot be listed.
  static std::vector<std::string> getJsonProjectUrls(const std::string& folder);

  // text with the accented letters of Portuguese (and their capitals) folded to plain ASCII
  // letters, so that "Águas" sorts among the A's. Both UTF-8 letters and stray Latin-1 bytes
  // (text saved as Windows-1252) are folded; other characters stay as they are.
  static std::string SimplifyStringForSorting(std::string text);
  // The plain letter for the two-byte UTF-8 letter (lead, trail), or the two bytes unchanged.
  static std::string SimplifyDoubleCharForSorting(char lead, char trail);
  // The plain letter for a Latin-1 accented letter byte, or c unchanged.
  static char SimplifySingleCharForSorting(char c);
};
