#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <locale>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "common/StringUtils.h"
#include "support/ExpectThrow.h"

namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

// A decimal comma, as in a Portuguese desktop, without depending on installed locales.
struct DecimalComma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
};

class GlobalLocale {
 public:
  explicit GlobalLocale(const std::locale& locale) : previous(std::locale::global(locale)) {}
  ~GlobalLocale() { std::locale::global(previous); }

 private:
  std::locale previous;
};

// Sets or clears environment variables for one test and puts the old values back.
class Environment {
 public:
  void set(const char* name, const char* value) {
    const char* old = std::getenv(name);
    saved.emplace_back(name, old ? std::optional<std::string>(old) : std::nullopt);
    put(name, value);
  }
  ~Environment() {
    // Newest first, so a variable set twice gets its original value back.
    for (auto it = saved.rbegin(); it != saved.rend(); ++it) {
      put(it->first, it->second ? it->second->c_str() : nullptr);
    }
  }

 private:
  static void put(const char* name, const char* value) {
    if (value) {
      setenv(name, value, 1);
    } else {
      unsetenv(name);
    }
  }
  std::vector<std::pair<const char*, std::optional<std::string>>> saved;
};

TEST(StringUtilsTest, ReplaceFirstOrAll) {
  std::string text = "a-b-c";
  EXPECT_TRUE(StringUtils::replace(text, "-", "+"));
  EXPECT_EQ("a+b-c", text);
  EXPECT_FALSE(StringUtils::replace(text, "x", "y"));
  EXPECT_FALSE(StringUtils::replace(text, "", "y"));
  EXPECT_EQ("a+b-c", text);
  std::string numbers = "1,5;2,5";
  StringUtils::findAndReplaceAll(numbers, ",", ".");
  EXPECT_EQ("1.5;2.5", numbers);
  // The inserted text holds the searched one; it must not be replaced again.
  std::string grows = "aXa";
  StringUtils::findAndReplaceAll(grows, "a", "aa");
  EXPECT_EQ("aaXaa", grows);
  EXPECT_EQ("Rio_Verde_Alto", StringUtils::changeCharForString("Rio Verde Alto", ' ', "_"));
}

TEST(StringUtilsTest, TextPieces) {
  EXPECT_TRUE(StringUtils::startsWith("Reservatório", "Res"));
  EXPECT_FALSE(StringUtils::startsWith("Re", "Res"));
  EXPECT_TRUE(StringUtils::endsWith("rio.sjson", ".sjson"));
  EXPECT_FALSE(StringUtils::endsWith("json", ".sjson"));
  EXPECT_EQ("x y", StringUtils::trim(" \t x y \r\n"));
  EXPECT_EQ("", StringUtils::trim("   "));
  EXPECT_EQ("a;b;c", StringUtils::join({"a", "b", "c"}, ";"));
  // "ç" is two bytes: four characters are five bytes.
  EXPECT_EQ("Junç", StringUtils::truncStdString("Junção", 4));
  EXPECT_EQ("abc", StringUtils::truncStdString("abc", 10));
  EXPECT_EQ("/data/rio", StringUtils::getDirectory("/data/rio/rio.sjson"));
  EXPECT_EQ("rio.sjson", StringUtils::getFileName("/data/rio/rio.sjson"));
}

TEST(StringUtilsTest, SplitKeepsEmptyFields) {
  const std::pair<const char*, Strings> cases[] = {
      {"a;b;c", {"a", "b", "c"}},
      {"a;;b;", {"a", "", "b", ""}},
      {"", {""}},
      {";", {"", ""}},
  };
  for (const auto& [text, fields] : cases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(fields, StringUtils::split(text, ';'));
  }
}

TEST(StringUtilsTest, NumbersUseADecimalPointWhateverTheLocale) {
  const GlobalLocale comma(std::locale(std::locale::classic(), new DecimalComma));
  const std::pair<const char*, double> cases[] = {
      {"1.5", 1.5}, {" -2.25e2 ", -225.0}, {"+3", 3.0}, {"7\r", 7.0}, {".5", 0.5}};
  for (const auto& [text, value] : cases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(value, StringUtils::stdStringToDouble(text));
  }
  EXPECT_EQ(0.1L, StringUtils::stdStringToLongDouble("0.1"));
  EXPECT_EQ(0.25f, StringUtils::stdStringToFloat("0.25"));
  EXPECT_EQ("0.10000000000000001", StringUtils::floatingToStdString(0.1, -1));
  EXPECT_EQ("2.50", StringUtils::floatingToStdString(2.5, 2));
}

TEST(StringUtilsTest, GarbageIsNotANumber) {
  for (const char* text : {"1,5", "abc", "", "12 m", "1e999"}) {
    SCOPED_TRACE(text);
    EXPECT_THROW_TEXT(
        StringUtils::stdStringToDouble(text), std::invalid_argument,
        std::string("StringUtils::stdStringToDouble(): invalid number '") + text + "'");
  }
  // Within double range, beyond float range.
  EXPECT_THROW_TEXT(StringUtils::stdStringToFloat("1e39"), std::invalid_argument,
                    "StringUtils::stdStringToFloat(): invalid number '1e39'");
}

TEST(StringUtilsTest, Utf8RoundTrip) {
  const std::pair<std::wstring, std::string> cases[] = {
      {L"Junção", "Jun\xC3\xA7\xC3\xA3o"},  // U+00E7, U+00E3: two bytes each
      {L"20 €", "20 \xE2\x82\xAC"},         // U+20AC: three bytes
      {L"\U0001F30A", "\xF0\x9F\x8C\x8A"},  // U+1F30A: four bytes
  };
  for (const auto& [wide, utf8] : cases) {
    SCOPED_TRACE(utf8);
    EXPECT_EQ(utf8, StringUtils::utf8Encode(wide));
    EXPECT_TRUE(wide == StringUtils::utf8Decode(utf8));
  }
  // A stray byte, an overlong '/' and a cut sequence: one U+FFFD per byte.
  EXPECT_TRUE(L"a\uFFFD" == StringUtils::utf8Decode("a\xFF"));
  EXPECT_TRUE(L"\uFFFD\uFFFD" == StringUtils::utf8Decode("\xC0\xAF"));
  EXPECT_TRUE(L"\uFFFD\uFFFD" == StringUtils::utf8Decode("\xE2\x82"));
}

TEST(StringUtilsTest, FilterStringByScopeKeepsNestedScopes) {
  EXPECT_EQ("a{b}c", StringUtils::filterStringByScope("x{a{b}c}y", '{', '}'));
  EXPECT_EQ("1,2", StringUtils::filterStringByScope("[1,2]", '[', ']'));
  EXPECT_EQ("", StringUtils::filterStringByScope("}x{", '{', '}'));
  EXPECT_EQ("", StringUtils::filterStringByScope("no scope", '{', '}'));
}

TEST(StringUtilsTest, ReadTakesTheRestOfTheStream) {
  std::istringstream stream("header\nline 1\nline 2\n");
  std::string header;
  std::getline(stream, header);
  EXPECT_EQ("line 1\nline 2\n", StringUtils::read(stream));
}

TEST(StringUtilsTest, GenericFolderFromEnvironment) {
  Environment environment;
  environment.set("USERPROFILE", "/users/ana");
  environment.set("HOME", "/home/ana");
  EXPECT_EQ("/users/ana/model.txt", StringUtils::getFolderToSaveGenericFile("model.txt"));
  environment.set("USERPROFILE", nullptr);
  EXPECT_EQ("/home/ana/model.txt", StringUtils::getFolderToSaveGenericFile("model.txt"));
  environment.set("HOME", nullptr);
  EXPECT_EQ((fs::temp_directory_path() / "model.txt").string(),
            StringUtils::getFolderToSaveGenericFile("model.txt"));
}

TEST(StringUtilsTest, JsonProjectUrlsListsProjectFilesOnly) {
  const fs::path folder = fs::temp_directory_path() / ("kova_projects_" + std::to_string(getpid()));
  fs::create_directories(folder / "sub");
  for (const char* name :
       {"rio.sjson", "acude.sjson", "rio.sjson.sqlite", "notes.txt", "sub/inner.sjson"}) {
    std::ofstream(folder / name) << "{}";
  }
  const Strings expected{(folder / "acude.sjson").string(), (folder / "rio.sjson").string()};
  EXPECT_EQ(expected, StringUtils::getJsonProjectUrls(folder.string()));
  fs::remove_all(folder);
  EXPECT_THROW(StringUtils::getJsonProjectUrls(folder.string()), fs::filesystem_error);
}

TEST(StringUtilsTest, SimplifyForSortingFoldsPortugueseAccents) {
  const std::pair<const char*, const char*> cases[] = {
      {"Reservatório Águas Claras", "Reservatorio Aguas Claras"},
      {"Junção", "Juncao"},
      {"AÇUDE SÃO JOÃO", "ACUDE SAO JOAO"},
      {"Piauí Itaú Ênio Ñandú Müller", "Piaui Itau Enio Nandu Muller"},
      {"áàâãä éêèë íìîï óòôõö úùûü ç ñ", "aaaaa eeee iiii ooooo uuuu c n"},
      {"ÁÀÂÃÄ ÉÊÈË ÍÌÎÏ ÓÒÔÕÖ ÚÙÛÜ Ç Ñ", "AAAAA EEEE IIII OOOOO UUUU C N"},
      {"\xC1gua \xE9", "Agua e"},                    // Windows-1252 bytes for "Água é"
      {"Cota (m³) – 20 € ß", "Cota (m³) – 20 € ß"},  // no plain letter for these
  };
  for (const auto& [text, expected] : cases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(expected, StringUtils::SimplifyStringForSorting(text));
  }
  EXPECT_EQ("c", StringUtils::SimplifyDoubleCharForSorting('\xC3', '\xA7'));
  EXPECT_EQ('C', StringUtils::SimplifySingleCharForSorting('\xC7'));
  EXPECT_EQ('x', StringUtils::SimplifySingleCharForSorting('x'));
}

}  // namespace
