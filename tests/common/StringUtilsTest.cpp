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

// A decimal comma, as on a Portuguese desktop, without depending on installed locales.
struct DecimalComma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
};

// Puts an environment variable back as it was when the test ends.
struct SavedVariable {
  explicit SavedVariable(const char* name) : name(name) {
    if (const char* current = std::getenv(name)) value = current;
  }
  ~SavedVariable() { value ? setenv(name, value->c_str(), 1) : unsetenv(name); }
  const char* name;
  std::optional<std::string> value;
};

TEST(StringUtilsTest, EditingText) {
  std::string text = "a-b-c";
  EXPECT_TRUE(StringUtils::replace(text, "-", "+"));
  EXPECT_FALSE(StringUtils::replace(text, "x", "y"));
  EXPECT_EQ("a+b-c", text);
  // The inserted text holds the searched one; it must not be replaced again.
  std::string grows = "aXa";
  StringUtils::findAndReplaceAll(grows, "a", "aa");
  EXPECT_EQ("aaXaa", grows);
  EXPECT_EQ("Rio_Verde", StringUtils::changeCharForString("Rio Verde", ' ', "_"));
  EXPECT_EQ("x y", StringUtils::trim(" \t x y \r\n"));
  EXPECT_TRUE(StringUtils::endsWith("rio.sjson", ".sjson"));
  EXPECT_FALSE(StringUtils::startsWith("Re", "Res"));
  // "ç" is two bytes: four characters are five bytes.
  EXPECT_EQ("Junç", StringUtils::truncStdString("Junção", 4));
  EXPECT_EQ("/data/rio", StringUtils::getDirectory("/data/rio/rio.sjson"));
  EXPECT_EQ("rio.sjson", StringUtils::getFileName("/data/rio/rio.sjson"));
}

TEST(StringUtilsTest, SplitKeepsEmptyFields) {
  const std::pair<const char*, Strings> cases[] = {
      {"a;b;c", {"a", "b", "c"}}, {"a;;b;", {"a", "", "b", ""}}, {"", {""}}};
  for (const auto& [text, fields] : cases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(fields, StringUtils::split(text, ';'));
    EXPECT_EQ(text, StringUtils::join(fields, ";"));
  }
}

TEST(StringUtilsTest, NumbersUseADecimalPointWhateverTheLocale) {
  const std::locale previous = std::locale::global(std::locale(std::locale(), new DecimalComma));
  EXPECT_EQ(-225.0, StringUtils::stdStringToDouble(" -2.25e2\r"));
  EXPECT_EQ(3.0, StringUtils::stdStringToDouble("+3"));
  EXPECT_EQ(0.1L, StringUtils::stdStringToLongDouble("0.1"));
  EXPECT_EQ(0.25f, StringUtils::stdStringToFloat(".25"));
  EXPECT_EQ("0.10000000000000001", StringUtils::floatingToStdString(0.1, -1));
  for (const char* text : {"1,5", "", "12 m", "1e999"}) {
    SCOPED_TRACE(text);
    EXPECT_THROW_TEXT(
        StringUtils::stdStringToDouble(text), std::invalid_argument,
        std::string("StringUtils::stdStringToDouble(): invalid number '") + text + "'");
  }
  // Within double range, beyond float range.
  EXPECT_THROW_TEXT(StringUtils::stdStringToFloat("1e39"), std::invalid_argument,
                    "StringUtils::stdStringToFloat(): invalid number '1e39'");
  std::locale::global(previous);
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
  EXPECT_TRUE(L"a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD" ==
              StringUtils::utf8Decode("a\xFF\xC0\xAF\xE2\x82"));
}

TEST(StringUtilsTest, ScopesAndStreams) {
  EXPECT_EQ("a{b}c", StringUtils::filterStringByScope("x{a{b}c}y", '{', '}'));
  EXPECT_EQ("", StringUtils::filterStringByScope("}x{", '{', '}'));
  std::istringstream stream("header\nline 1\nline 2\n");
  std::string header;
  std::getline(stream, header);
  EXPECT_EQ("line 1\nline 2\n", StringUtils::read(stream));
}

TEST(StringUtilsTest, GenericFolderFromEnvironment) {
  const SavedVariable userProfile("USERPROFILE");
  const SavedVariable home("HOME");
  setenv("USERPROFILE", "/users/ana", 1);
  setenv("HOME", "/home/ana", 1);
  EXPECT_EQ("/users/ana/model.txt", StringUtils::getFolderToSaveGenericFile("model.txt"));
  unsetenv("USERPROFILE");
  EXPECT_EQ("/home/ana/model.txt", StringUtils::getFolderToSaveGenericFile("model.txt"));
  unsetenv("HOME");
  EXPECT_EQ((fs::temp_directory_path() / "model.txt").string(),
            StringUtils::getFolderToSaveGenericFile("model.txt"));
}

TEST(StringUtilsTest, JsonProjectUrlsListsProjectFilesOnly) {
  const fs::path folder = fs::temp_directory_path() / ("kova_projects_" + std::to_string(getpid()));
  fs::create_directories(folder / "sub");
  for (const char* name : {"rio.sjson", "acude.sjson", "rio.sjson.sqlite", "sub/inner.sjson"}) {
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
      {"áàâãä éêèë íìîï óòôõö úùûü ç ñ", "aaaaa eeee iiii ooooo uuuu c n"},
      {"ÁÀÂÃÄ ÉÊÈË ÍÌÎÏ ÓÒÔÕÖ ÚÙÛÜ Ç Ñ", "AAAAA EEEE IIII OOOOO UUUU C N"},
      {"\xC1gua \xE9", "Agua e"},                    // Windows-1252 bytes for "Água é"
      {"Cota (m³) – 20 € ß", "Cota (m³) – 20 € ß"},  // no plain letter for these
  };
  for (const auto& [text, expected] : cases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(expected, StringUtils::SimplifyStringForSorting(text));
  }
}

}  // namespace
