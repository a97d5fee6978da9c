#pragma once

#include <string>
#include <vector>

// The program's own words in the user's language: Portuguese when the locale's language is
// Portuguese, English otherwise. The texts of the library (the vocabulary, check findings, run
// statuses) are the system's own and are printed as they are, whatever the language.
//
// A text is looked up by its English form, which is what the code reads; the table gives its
// Portuguese form. The long help of a command is looked up by the command's name instead, so that
// its English is written once, beside its Portuguese. "{1}", "{2}"... stand for the values a text
// is filled with, so that each language puts them where its grammar wants them.
class HostText {
 public:
  enum class Language { english, portuguese };

  // The language of the first of LC_ALL, LC_MESSAGES and LANG that is set and not empty:
  // Portuguese when it begins with "pt", English otherwise.
  static Language fromEnvironment();
  // The language of every text from now on; fromEnvironment() until a call says otherwise.
  static void use(Language language);

  // english in the language in use; english itself when the table has no Portuguese for it.
  static std::string of(const std::string& english);
  // Whether the table has a Portuguese form of english.
  static bool translated(const std::string& english);
  // of(english) with "{1}", "{2}"... replaced by values in their order.
  static std::string fill(const std::string& english, const std::vector<std::string>& values);
  // The long help of the command of that name, for --help, in the language in use. Throws
  // std::invalid_argument when the command has none.
  static std::string help(const std::string& command);
};

// Short for HostText::of and HostText::fill at the places that print.
inline std::string tr(const std::string& english) { return HostText::of(english); }
inline std::string tr(const std::string& english, const std::vector<std::string>& values) {
  return HostText::fill(english, values);
}
