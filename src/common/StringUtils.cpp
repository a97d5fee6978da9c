#include "common/StringUtils.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <iterator>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "common/NumericalUtils.h"

namespace {

constexpr const char* kBlanks = " \t\n\r\f\v";
constexpr char32_t kReplacementCharacter = 0xFFFD;
constexpr char32_t kLastCodePoint = 0x10FFFF;
constexpr int kRoundTripDecimals = 17;

// Plain letters for the code points U+00C0..U+00FF, '\0' where there is none. The same table
// serves Latin-1 bytes and two-byte UTF-8 letters, whose code points coincide.
constexpr char kFoldedLatin1[] =
    "AAAAA\0\0C"     // À Á Â Ã Ä Å Æ Ç
    "EEEEIIII"       // È É Ê Ë Ì Í Î Ï
    "\0NOOOOO\0"     // Ð Ñ Ò Ó Ô Õ Ö ×
    "\0UUUU\0\0\0"   // Ø Ù Ú Û Ü Ý Þ ß
    "aaaaa\0\0c"     // à á â ã ä å æ ç
    "eeeeiiii"       // è é ê ë ì í î ï
    "\0nooooo\0"     // ð ñ ò ó ô õ ö ÷
    "\0uuuu\0\0\0";  // ø ù ú û ü ý þ ÿ
constexpr unsigned char kFirstFoldable = 0xC0;
static_assert(sizeof(kFoldedLatin1) == 64 + 1, "one entry per code point U+00C0..U+00FF");

char foldLatin1(unsigned char codePoint) {
  return codePoint < kFirstFoldable ? '\0' : kFoldedLatin1[codePoint - kFirstFoldable];
}

bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

// The lead bytes of multibyte UTF-8 sequences, by length, with the bits of the code point they
// carry and the smallest code point that needs that length (smaller ones would be overlong).
struct SequenceKind {
  unsigned char firstLead;
  unsigned char lastLead;
  std::size_t length;
  unsigned char payloadMask;
  char32_t smallest;
};
constexpr SequenceKind kSequenceKinds[] = {
    {0xC2, 0xDF, 2, 0x1F, 0x80}, {0xE0, 0xEF, 3, 0x0F, 0x800}, {0xF0, 0xF4, 4, 0x07, 0x10000}};

// The length of the well-formed UTF-8 sequence at pos, storing its code point; 0 when the bytes
// there are not one (overlong forms and surrogates included).
std::size_t decodeUtf8At(const std::string& text, std::size_t pos, char32_t& codePoint) {
  const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(pos);
  if (lead < 0x80) {
    codePoint = lead;
    return 1;
  }
  for (const SequenceKind& kind : kSequenceKinds) {
    if (lead < kind.firstLead || lead > kind.lastLead) continue;
    if (pos + kind.length > text.size()) return 0;
    char32_t value = lead & kind.payloadMask;
    for (std::size_t i = pos + 1; i < pos + kind.length; ++i) {
      if ((byte(i) & 0xC0) != 0x80) return 0;
      value = (value << 6) | (byte(i) & 0x3F);
    }
    if (value < kind.smallest || value > kLastCodePoint || isSurrogate(value)) return 0;
    codePoint = value;
    return kind.length;
  }
  return 0;
}

void appendUtf8(std::string& out, char32_t c) {
  const auto put = [&out](char32_t bits) { out += static_cast<char>(bits); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

void appendWide(std::wstring& out, char32_t c) {
  if constexpr (sizeof(wchar_t) == 2) {
    if (c > 0xFFFF) {
      c -= 0x10000;
      out += static_cast<wchar_t>(0xD800 + (c >> 10));
      out += static_cast<wchar_t>(0xDC00 + (c & 0x3FF));
      return;
    }
  }
  out += static_cast<wchar_t>(c);
}

// Accepts the same text as NumericalUtils::isNumber(); from_chars ignores the locale.
template <typename Number>
Number parseNumber(const std::string& text, const char* function) {
  const std::string number = StringUtils::trim(text);
  if (NumericalUtils::isNumber(number)) {
    // from_chars takes no leading '+'.
    const char* first = number.data() + (number[0] == '+' ? 1 : 0);
    const char* last = number.data() + number.size();
    Number value{};
    const auto [end, error] = std::from_chars(first, last, value);
    if (error == std::errc() && end == last) return value;
  }
  throw std::invalid_argument(std::string("StringUtils::") + function + "(): invalid number '" +
                              text + "'");
}

std::filesystem::path genericFolder() {
  for (const char* variable : {"USERPROFILE", "HOME"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return std::filesystem::temp_directory_path();
}

}  // namespace

bool StringUtils::startsWith(const std::string& text, const std::string& prefix) {
  return text.compare(0, prefix.size(), prefix) == 0;
}

bool StringUtils::endsWith(const std::string& text, const std::string& suffix) {
  return text.size() >= suffix.size() &&
         text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0;
}

bool StringUtils::replace(std::string& text, const std::string& from, const std::string& to) {
  const std::size_t pos = from.empty() ? std::string::npos : text.find(from);
  if (pos == std::string::npos) return false;
  text.replace(pos, from.size(), to);
  return true;
}

void StringUtils::findAndReplaceAll(std::string& text, const std::string& from,
                                    const std::string& to) {
  if (from.empty()) return;
  for (std::size_t pos = text.find(from); pos != std::string::npos;
       pos = text.find(from, pos + to.size())) {
    text.replace(pos, from.size(), to);
  }
}

std::string StringUtils::changeCharForString(const std::string& text, char c,
                                             const std::string& replacement) {
  std::string result;
  for (char current : text) {
    if (current == c) {
      result += replacement;
    } else {
      result += current;
    }
  }
  return result;
}

std::string StringUtils::trim(const std::string& text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string StringUtils::join(const std::vector<std::string>& parts, const std::string& separator) {
  std::string result;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) result += separator;
    result += parts[i];
  }
  return result;
}

std::vector<std::string> StringUtils::split(const std::string& text, const char& separator) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  for (std::size_t end = text.find(separator); end != std::string::npos;
       end = text.find(separator, start)) {
    fields.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  fields.push_back(text.substr(start));
  return fields;
}

std::string StringUtils::truncStdString(const std::string& text, std::size_t maxCharacters) {
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool continuesCharacter = (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
    if (!continuesCharacter && characters++ == maxCharacters) return text.substr(0, i);
  }
  return text;
}

std::string StringUtils::getDirectory(const std::string& path) {
  return std::filesystem::path(path).parent_path().string();
}

std::string StringUtils::getFileName(const std::string& path) {
  return std::filesystem::path(path).filename().string();
}

float StringUtils::stdStringToFloat(const std::string& text) {
  return parseNumber<float>(text, "stdStringToFloat");
}

double StringUtils::stdStringToDouble(const std::string& text) {
  return parseNumber<double>(text, "stdStringToDouble");
}

long double StringUtils::stdStringToLongDouble(const std::string& text) {
  return parseNumber<long double>(text, "stdStringToLongDouble");
}

std::string StringUtils::floatingToStdString(double value, int decimals) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out << std::fixed << std::setprecision(decimals < 0 ? kRoundTripDecimals : decimals) << value;
  return out.str();
}

std::string StringUtils::utf8Encode(const std::wstring& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = static_cast<char32_t>(text[i]);
    const bool pairFollows = c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() &&
                             text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
    if (pairFollows) {
      c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[++i]) - 0xDC00);
    } else if (isSurrogate(c) || c > kLastCodePoint) {
      c = kReplacementCharacter;
    }
    appendUtf8(result, c);
  }
  return result;
}

std::wstring StringUtils::utf8Decode(const std::string& text) {
  std::wstring result;
  for (std::size_t i = 0; i < text.size();) {
    char32_t c = 0;
    const std::size_t length = decodeUtf8At(text, i, c);
    appendWide(result, length == 0 ? kReplacementCharacter : c);
    i += std::max<std::size_t>(length, 1);
  }
  return result;
}

std::string StringUtils::filterStringByScope(const std::string& text, char open, char close) {
  const std::size_t first = text.find(open);
  const std::size_t last = text.rfind(close);
  if (first == std::string::npos || last == std::string::npos || last <= first) return "";
  return text.substr(first + 1, last - first - 1);
}

std::string StringUtils::read(std::istream& stream) {
  return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
}

std::string StringUtils::getFolderToSaveGenericFile(const std::string& fileName) {
  return (genericFolder() / fileName).string();
}

std::vector<std::string> StringUtils::getJsonProjectUrls(const std::string& folder) {
  std::vector<std::string> urls;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.is_regular_file() && entry.path().extension() == ".sjson") {
      urls.push_back(entry.path().string());
    }
  }
  std::sort(urls.begin(), urls.end());
  return urls;
}

std::string StringUtils::SimplifyStringForSorting(std::string text) {
  std::string result;
  for (std::size_t i = 0; i < text.size();) {
    char32_t codePoint = 0;
    const std::size_t length = decodeUtf8At(text, i, codePoint);
    if (length == 0) {
      result += SimplifySingleCharForSorting(text[i]);
      i += 1;
    } else if (length == 2) {
      result += SimplifyDoubleCharForSorting(text[i], text[i + 1]);
      i += 2;
    } else {
      result.append(text, i, length);
      i += length;
    }
  }
  return result;
}

std::string StringUtils::SimplifyDoubleCharForSorting(char lead, char trail) {
  // A lead byte of 0xC3 holds U+00C0..U+00FF, the trail byte's low six bits the offset.
  if (static_cast<unsigned char>(lead) == 0xC3) {
    const char plain = foldLatin1(kFirstFoldable + (static_cast<unsigned char>(trail) & 0x3F));
    if (plain != '\0') return std::string(1, plain);
  }
  return std::string{lead, trail};
}

char StringUtils::SimplifySingleCharForSorting(char c) {
  const char plain = foldLatin1(static_cast<unsigned char>(c));
  return plain == '\0' ? c : plain;
}
