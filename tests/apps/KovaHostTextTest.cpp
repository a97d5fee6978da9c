#include <gtest/gtest.h>

#include <set>
#include <string>

#include "HostText.h"
#include "KovaApp.h"
#include "KovaProcess.h"

namespace {

// What kova printed on both streams, run as its own process under the locale settings given.
std::string kovaUnder(const std::vector<std::string>& locale,
                      const std::vector<std::string>& args) {
  const Outcome run = kovaProcess(args, ProcessOptions::under(locale));
  return run.out + run.err;
}

}  // namespace

TEST(HostText, FillsPlaceholdersWhereverTheLanguagePutsThem) {
  HostText::use(HostText::Language::english);
  EXPECT_EQ(tr("generated {1}: {2} reservoirs, {3} demands, {4} months, ", {"a", "1", "2", "3"}),
            "generated a: 1 reservoirs, 2 demands, 3 months, ");
  HostText::use(HostText::Language::portuguese);
  EXPECT_EQ(tr("scenario \"{1}\": {2} finding(s)", {"Base", "4"}), "cenário \"Base\": 4 achado(s)");
  EXPECT_EQ(tr("Usage: {1}", {"kova info {1}"}),
            "Uso: kova info {1}");  // values are not read again
  EXPECT_EQ(tr("no such text"), "no such text");
  HostText::use(HostText::Language::english);
}

TEST(HostText, TheHostSpeaksTheLanguageOfTheLocale) {
  const std::string portuguese = kovaUnder({"LANG=pt_BR.UTF-8"}, {"--help"});
  EXPECT_NE(portuguese.find("\nComandos:\n"), std::string::npos) << portuguese;
  EXPECT_NE(portuguese.find("  check     verifica cenários antes de executá-los\n"),
            std::string::npos);
  EXPECT_EQ(portuguese.find("Commands:"), std::string::npos);
  const std::string english = kovaUnder({"LANG=C.UTF-8"}, {"--help"});
  EXPECT_NE(english.find("\nCommands:\n"), std::string::npos) << english;
  EXPECT_NE(english.find("  check     check scenarios before running them\n"), std::string::npos);
  // LC_ALL, when set, is the locale whatever LANG says.
  EXPECT_NE(kovaUnder({"LANG=C", "LC_ALL=pt_PT.UTF-8"}, {"--help"}).find("Comandos:"),
            std::string::npos);
  EXPECT_EQ(kovaUnder({"LANG=pt_BR.UTF-8"}, {"simular", "p.sjson"}),
            "kova: comando desconhecido \"simular\"; tente 'kova --help'\n");
  EXPECT_EQ(kovaUnder({"LANG=en_GB.UTF-8"}, {"simulate", "p.sjson"}),
            "kova: unknown command \"simulate\"; try 'kova --help'\n");
}

// The commands that look at projects and make them have their one-line summary and their help in
// both languages.
TEST(HostText, TheCommandsSummariesAndHelpHaveTheirPortuguese) {
  HostText::use(HostText::Language::english);
  const std::set<std::string> translated = {"info",    "check",  "metrics", "series",
                                            "compare", "report", "export",  "new",
                                            "save-as", "demo",   "generate"};
  std::size_t found = 0;
  for (const auto& command : KovaApp::commands()) {
    if (translated.count(command.name) == 0) continue;
    ++found;
    EXPECT_TRUE(HostText::translated(command.summary)) << command.name;
    EXPECT_TRUE(HostText::translated(command.details)) << command.name;
  }
  EXPECT_EQ(found, translated.size());
}
