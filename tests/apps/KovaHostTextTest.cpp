#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "ExitStatus.h"
#include "HostText.h"
#include "KovaApp.h"
#include "KovaProcess.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

// What kova printed on both streams, run as its own process under the locale settings given.
std::string kovaUnder(const std::vector<std::string>& locale,
                      const std::vector<std::string>& args) {
  const Outcome run = kovaProcess(args, ProcessOptions::under(locale));
  return run.out + run.err;
}

// The text of the string literals that follow at, joined as the compiler joins them; at is left
// after the last.
std::string literalsAt(const std::string& source, std::size_t& at) {
  std::string text;
  while (true) {
    while (at < source.size() && std::isspace(static_cast<unsigned char>(source[at]))) ++at;
    if (at >= source.size() || source[at] != '"') return text;
    for (++at; at < source.size() && source[at] != '"'; ++at) {
      if (source[at] != '\\') {
        text += source[at];
        continue;
      }
      const char escaped = source[++at];
      text += escaped == 'n' ? '\n' : escaped;
    }
    ++at;
  }
}

// Every text that a source file of the host puts through tr() as a literal.
std::vector<std::string> textsGivenToTr(const std::string& source) {
  std::vector<std::string> texts;
  for (std::size_t at = source.find("tr("); at != std::string::npos; at = source.find("tr(", at)) {
    const bool call = at == 0 || !(std::isalnum(static_cast<unsigned char>(source[at - 1])) ||
                                   source[at - 1] == '_');
    at += 3;
    const std::string text = call ? literalsAt(source, at) : "";
    if (!text.empty()) texts.push_back(text);
  }
  return texts;
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

// Every command has its one-line summary and its long help in both languages.
TEST(HostText, EveryCommandHasItsSummaryAndHelpInPortuguese) {
  HostText::use(HostText::Language::english);
  for (const auto& command : KovaApp::commands()) {
    SCOPED_TRACE(command.name);
    EXPECT_TRUE(HostText::translated(command.summary));
    EXPECT_EQ(HostText::help(command.name), command.details);
    HostText::use(HostText::Language::portuguese);
    EXPECT_NE(HostText::help(command.name), command.details);
    HostText::use(HostText::Language::english);
  }
  try {
    HostText::help("simulate");
    ADD_FAILURE() << "no throw";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), "HostText::help(): no help for the command \"simulate\"");
  }
}

// A text put through tr() without its Portuguese would be printed in English to a Portuguese user.
TEST(HostText, EveryTextTheHostTranslatesHasItsPortuguese) {
  // The demo's data are examples/sao_francisco in the source tree.
  const auto sources = std::filesystem::path(KOVA_DEMO_DATA) / ".." / ".." / "apps" / "kova";
  std::size_t texts = 0;
  for (const auto& entry : std::filesystem::directory_iterator(sources)) {
    const auto extension = entry.path().extension();
    if (extension != ".cpp" && extension != ".h") continue;
    for (const auto& text : textsGivenToTr(readFile(entry.path().string()))) {
      ++texts;
      EXPECT_TRUE(HostText::translated(text)) << entry.path().filename() << ": " << text;
    }
  }
  EXPECT_GT(texts, 0u);
}

// The messages of front, curve and solution, of the command line and of opening a project, run
// as real processes on the demo over 1931-1933.
TEST(HostText, TheCommandsMessagesFollowTheLocale) {
  const TemporaryFolder folder("kova_host_text_");
  ASSERT_EQ(kovaProcess({"demo", folder.file("D"), "--until", "1933", "--quiet"}).status, exitOk);
  const std::string project = folder.file("D/sao_francisco.sjson");
  const std::vector<std::string> pt = {"LANG=pt_BR.UTF-8"}, en = {"LANG=C"};

  const std::vector<std::string> curve = {"curve", project, "--scenario", "Curva de garantia"};
  EXPECT_EQ(kovaProcess(curve, ProcessOptions::under(pt)).status, exitFindings);
  EXPECT_EQ(kovaUnder(pt, curve),
            "kova curve: o cenário \"Curva de garantia\" não tem curva gravada; execute-o com "
            "'kova run'\n");
  EXPECT_EQ(kovaUnder(en, curve),
            "kova curve: scenario \"Curva de garantia\" has no stored curve; run it with "
            "'kova run'\n");

  EXPECT_EQ(kovaUnder(pt, {"front", project, "--scenario", "Regras"}),
            "kova front: o cenário \"Regras\" é um cenário \"Simulador por regras\", não uma "
            "otimização de regras (\"Otimizador de regras\")\n");
  EXPECT_EQ(kovaUnder(pt, {"solution", project, "--scenario", "Curva de garantia", "--row", "0"}),
            "kova solution: opção --row: o cenário \"Curva de garantia\" tem 0 linha(s) em sua "
            "curva gravada; tente 'kova solution --help'\n");
  EXPECT_EQ(kovaProcess({"run", project, "--scenario", "Curva de garantia", "--scenario", "Regras",
                         "--quiet"})
                .status,
            exitOk);
  // Headings of tables are read by people; those of csv by programs.
  EXPECT_EQ(kovaUnder(pt, curve).rfind("garantia  Três Marias", 0), 0u);
  EXPECT_EQ(kovaUnder(pt, {"curve", project, "--scenario", "Curva de garantia", "--format", "csv"})
                .rfind("guarantee,Três Marias", 0),
            0u);
  EXPECT_EQ(kovaUnder(pt, {"metrics", project, "--scenario", "Regras"})
                .rfind("cenário: Regras\njanelas: 1 de 1, de 1931-01-01 a 1933-12-01\n", 0),
            0u);
  EXPECT_EQ(kovaUnder(pt, {"solution", project, "--scenario", "Curva de garantia", "--row", "0"}),
            "Curva de garantia-GUA-0: criado a partir da linha 0 de \"Curva de garantia\" e "
            "gravado\n");

  EXPECT_EQ(kovaUnder(pt, {"info", project, "--all"}),
            "kova info: opção desconhecida --all; tente 'kova info --help'\n");
  EXPECT_EQ(kovaUnder(en, {"info", project, "--all"}),
            "kova info: unknown option --all; try 'kova info --help'\n");
  EXPECT_EQ(kovaUnder(pt, {"metrics", project, "--scenario", "Regras", "--window", "0"}),
            "kova metrics: opção --window: \"0\" não é um número inteiro de pelo menos 1; tente "
            "'kova metrics --help'\n");
  EXPECT_EQ(kovaUnder(pt, {"report", folder.file("none.sjson"), "--scenario", "Regras"}),
            "kova report: " + folder.file("none.sjson") + ": arquivo de projeto inexistente\n");
}
