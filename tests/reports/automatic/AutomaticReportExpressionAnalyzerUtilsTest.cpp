#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <string>

#include "reports/automatic/AutomaticReportExpressionAnalyzerUtils.h"
#include "reports/automatic/AutomaticReportExpressionFunctionNode.h"
#include "reports/automatic/AutomaticReportExpressionNode.h"
#include "reports/automatic/AutomaticReportTreeUtils.h"
#include "support/ExpectThrow.h"
#include "support/TemporaryFolder.h"

namespace {

using Utils = AutomaticReportExpressionAnalyzerUtils;

double valueOf(const std::string& text) { return Utils::strToExp(text)->calculate({}); }

std::string repeated(const std::string& piece, std::size_t times) {
  std::string text;
  for (std::size_t i = 0; i < times; ++i) text += piece;
  return text;
}

}  // namespace

// Each text's value worked by hand, and its tree as print() writes it with every operator in
// parentheses; the printed text reads back into the same tree.
TEST(ReportExpressionParser, BindsParenthesesFirstThenProductsThenSumsFromTheLeft) {
  struct Case {
    std::string text;
    double value;
    std::string tree;
  };
  const Case cases[] = {
      {"1 + 2 * 3", 7.0, "(1 + (2 * 3))"},
      {"(1 + 2) * 3", 9.0, "((1 + 2) * 3)"},
      {"10 - 4 - 3", 3.0, "((10 - 4) - 3)"},  // not 10 - (4 - 3) = 9
      {"24 / 4 / 2", 3.0, "((24 / 4) / 2)"},  // not 24 / (4 / 2) = 12
      {"8 / 2 * 4", 16.0, "((8 / 2) * 4)"},   // not 8 / (2 * 4) = 1
      {"2 * 3 + 4 * 5", 26.0, "((2 * 3) + (4 * 5))"},
      {"10 - (4 - 3)", 9.0, "(10 - (4 - 3))"},
      {"((((7))))", 7.0, "7"},
      {repeated("(", 5000) + "7" + repeated(")", 5000), 7.0, "7"},  // parentheses alone nest freely
      {"  1+2\t", 3.0, "(1 + 2)"},
      {"1.5e-3 * 1000", 1.5, "(1.5e-3 * 1000)"},  // the sign of an exponent is no operator
      {"2E+2 - 1e2", 100.0, "(2E+2 - 1e2)"},
      {".5 + 5.", 5.5, "(.5 + 5.)"},
      {"-3 * 2", -6.0, "(-3 * 2)"},  // a minus before a number: a negative number
      {"2 * -3", -6.0, "(2 * -3)"},
      {"1 - -2", 3.0, "(1 - -2)"},
      {"-(1 + 2) * 2", -6.0, "((0 - (1 + 2)) * 2)"},  // before anything else: 0 minus it
      {"- - 4", 4.0, "--4"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    const auto tree = Utils::strToExp(c.text);
    EXPECT_TRUE(tree->isValid());
    EXPECT_DOUBLE_EQ(tree->calculate({}), c.value);
    EXPECT_EQ(tree->print(), c.tree);
    EXPECT_EQ(Utils::strToExp(tree->print())->print(), c.tree);
  }
}

// print() puts every operator in parentheses; they must not make the printed text too deep.
TEST(ReportExpressionParser, ATreeNearTheDepthLimitPrintsAsATextThatReadsBack) {
  const auto tree = Utils::strToExp("-(1" + repeated(" - 1", 195) + ")");
  EXPECT_EQ(tree->calculate({}), 194.0);
  const std::string printed = tree->print();
  EXPECT_EQ(printed.rfind("(0 - " + repeated("(", 195) + "1 - 1) - 1)", 0), 0u);
  EXPECT_EQ(Utils::strToExp(printed)->print(), printed);
}

TEST(ReportExpressionParser, CallsTakeNamesPlainOrInQuotes) {
  const auto tree =
      Utils::strToExp("Max( \"Juazeiro-Petrolina\" , Volume final ) / Escassez total em hm3(D1)");
  ASSERT_EQ(tree->getExpressionType(), AutomaticReportExpressionType::divide);
  const auto& divide = static_cast<const AutomaticReportExpressionNode&>(*tree);
  const auto& max = static_cast<const AutomaticReportExpressionFunctionNode&>(*divide.getLeft());
  EXPECT_EQ(max.getExpressionType(), AutomaticReportExpressionType::function);
  EXPECT_EQ(max.getName(), "Max");
  ASSERT_EQ(max.getVectorOfFunctionParameter().size(), 2u);
  EXPECT_EQ(max.getVectorOfFunctionParameter()[0]->getLabel(), "Juazeiro-Petrolina");
  EXPECT_EQ(max.getVectorOfFunctionParameter()[1]->getLabel(), "Volume final");
  EXPECT_EQ(divide.getRight()->getPosition(), 46u);
  EXPECT_EQ(tree->print(),
            "(Max(\"Juazeiro-Petrolina\", \"Volume final\") / Escassez total em hm3(\"D1\"))");
  EXPECT_EQ(Utils::strToExp(tree->print())->print(), tree->print());
}

TEST(ReportExpressionParser, ReleaseLeavesANodeWithoutItsParts) {
  auto tree = Utils::strToExp("Max(R, Volume final) + 1");
  auto& sum = static_cast<AutomaticReportExpressionNode&>(*tree);
  EXPECT_TRUE(sum.isValid());
  tree->release();
  EXPECT_FALSE(tree->isValid());
  EXPECT_EQ(tree->children().size(), 0u);
  EXPECT_THROW_TEXT(tree->calculate({}), std::invalid_argument,
                    "position 22: the operator \"+\" lacks an operand");
}

TEST(ReportExpressionDrawing, ASmallTreeIsDrawnNodeBeforeChildren) {
  const auto tree = Utils::strToExp("Max(\"Juazeiro-Petrolina\", Volume final) / (1 + 2 * 3)");
  EXPECT_EQ(AutomaticReportTreeUtils::drawGraphVizStartingOfNode(*tree),
            "digraph G { \n"
            "n0 [label=\"/\"];\n"
            "n0 -> n1;\n"
            "n1 [label=\"Max\"];\n"
            "n1 -> n2;\n"
            "n2 [label=\"Juazeiro-Petrolina\"];\n"
            "n1 -> n3;\n"
            "n3 [label=\"Volume final\"];\n"
            "n0 -> n4;\n"
            "n4 [label=\"+\"];\n"
            "n4 -> n5;\n"
            "n5 [label=\"1\"];\n"
            "n4 -> n6;\n"
            "n6 [label=\"*\"];\n"
            "n6 -> n7;\n"
            "n7 [label=\"2\"];\n"
            "n6 -> n8;\n"
            "n8 [label=\"3\"];\n"
            "}\n");
  EXPECT_EQ(AutomaticReportTreeUtils::getNodeDescInGraphViz(3, "a\"b\\c\nd"),
            "n3 [label=\"a\\\"b\\\\c d\"];\n");
}

TEST(ReportExpressionDrawing, GraphvizAcceptsTheDrawingOfADeepTree) {
  if (std::system("command -v dot > /dev/null 2>&1") != 0) GTEST_SKIP() << "no dot";
  // Three levels a round: the product, the parentheses and the sum: 180 in all.
  std::string text = "1";
  for (int i = 0; i < 60; ++i) {
    text = "(" + text + " + Sum(\"R-" + std::to_string(i) + "\", Volume final)) * " +
           std::to_string(i % 7 + 1) + ".5e-1";
  }
  const auto tree = Utils::strToExp(text);
  TemporaryFolder folder("report_dot_");
  std::ofstream(folder.file("tree.dot"))
      << AutomaticReportTreeUtils::drawGraphVizStartingOfNode(*tree);
  const std::string command = "dot -Tsvg '" + folder.file("tree.dot") + "' -o '" +
                              folder.file("tree.svg") + "' 2> '" + folder.file("err") + "'";
  EXPECT_EQ(std::system(command.c_str()), 0);
  std::ifstream svg(folder.file("tree.svg"));
  const std::string drawn((std::istreambuf_iterator<char>(svg)), std::istreambuf_iterator<char>());
  EXPECT_NE(drawn.find(">R&#45;59<"), std::string::npos);  // SVG's form of "R-59"
  EXPECT_NE(drawn.find("</svg>"), std::string::npos);
}

// Every malformed text gives one line naming the character where it goes wrong.
TEST(ReportExpressionParser, MalformedTextsNameThePositionAndWhatIsWrong) {
  const std::string name =
      "expected a name; write a name that holds an operator, a parenthesis or a comma in double "
      "quotes";
  struct Case {
    std::string text;
    std::string error;
  };
  const Case cases[] = {
      {"", "position 1: the expression is empty"},
      {" \t ", "position 1: the expression is empty"},
      {"1 +", "position 3: expected an operand after \"+\""},
      {"* 2", "position 1: expected an operand before \"*\""},
      {"+ 2", "position 1: expected an operand before \"+\""},
      {"1 + + 2", "position 5: expected an operand before \"+\""},
      {"1 * * 2", "position 3: expected an operand after \"*\""},
      {"1e+", "position 3: expected an operand after \"+\""},
      {"- ", "position 1: expected an operand after \"-\""},
      {"2 * (3 + )", "position 8: expected an operand after \"+\""},
      {"2 * (/ 3)", "position 6: expected an operand before \"/\""},
      {"(1 + 2", "position 1: \"(\" is never closed"},
      {"((1)", "position 1: \"(\" is never closed"},
      {"3 * Min(A, Volume final", "position 8: \"(\" is never closed"},
      {"1 + 2)", "position 6: \")\" without a matching \"(\""},
      {")", "position 1: \")\" without a matching \"(\""},
      {"()", "position 1: expected an expression inside the parentheses"},
      {"1 + ()", "position 5: expected an expression inside the parentheses"},
      {"(1)(2)", "position 4: expected an operator after \")\""},
      {"Max(A, B) 3", "position 11: expected an operator after \")\""},
      {"Max(A, Volume final)(1)", "position 21: expected an operator after \")\""},
      {"2 (3)", "position 3: expected an operator before \"(\""},
      {"1 2", "position 1: \"1 2\" is neither a number nor a call"},
      {"1.2.3", "position 1: \"1.2.3\" is neither a number nor a call"},
      {"1 $ 2", "position 1: \"1 $ 2\" is neither a number nor a call"},
      {"Sobradinho", "position 1: \"Sobradinho\" is neither a number nor a call"},
      {"2 * \"Sobradinho\"", "position 5: \"Sobradinho\" is neither a number nor a call"},
      {"(Sobradinho)", "position 2: \"Sobradinho\" is neither a number nor a call"},
      {"1 , 2", "position 3: unexpected \",\" outside the arguments of a call"},
      {"1 + \x01", "position 5: unexpected control character"},
      {"1 + Sobradinho\nNorte", "position 5: \"Sobradinho Norte\" is neither a number nor a call"},
      {"1 / 0", "position 3: division by zero"},
      {"1 / -0.0", "position 3: division by zero"},
      {"1e999", "position 1: the number 1e999 is out of range"},
      {"Foo(Sobradinho)", "position 1: unknown metric or operation \"Foo\""},
      {"Irrigação(A) + 1", "position 1: unknown metric or operation \"Irrigação\""},
      {"Max(Sobradinho)",
       "position 1: \"Max\" takes 2 arguments (an element and a kind of series), found 1"},
      {"2 + Max()",
       "position 5: \"Max\" takes 2 arguments (an element and a kind of series), found 0"},
      {"Sum(\"A\", \"Volume final\", \"x\")",
       "position 1: \"Sum\" takes 2 arguments (an element and a kind of series), found 3"},
      {"Escassez total em hm3(A, B)",
       "position 1: \"Escassez total em hm3\" takes 1 argument (an element), found 2"},
      {"Max(, Volume final)", "position 5: expected an argument before \",\""},
      {"Max(A, )", "position 6: expected an argument after \",\""},
      {"Max(A, Volume)", "position 8: unknown kind of series \"Volume\""},
      {"Max(Juazeiro-Petrolina, Volume final)", "position 5: " + name},
      {"Max(1 + 2, Volume final)", "position 5: " + name},
      {"Max(Max(A, Volume final), Volume final)", "position 5: " + name},
      {"Min(A, Volume (final))", "position 8: " + name},
      {"Escassez total em hm3(D1 * 2)", "position 23: " + name},
      {"Média de liberações em M3s(R) / 0", "position 31: division by zero"},
      {"Max(A, \"Volume final)", "position 8: the quote is never closed"},
      {"\"\"", "position 1: the name in quotes is empty"},
      {"Max(\"A\"B, Volume final)", "position 8: unexpected text after the closing quote"},
      {"Max(A\"B\", Volume final)", "position 6: unexpected quote: a name in quotes stands alone"},
      {repeated("-(", 300) + "1" + repeated(")", 300),
       "position 403: the expression is nested deeper than 200 levels"},
      {"1" + repeated(" + 1", 300), "position 1: the expression is nested deeper than 200 levels"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text.substr(0, 60));
    EXPECT_THROW_TEXT(Utils::strToExp(c.text), std::invalid_argument, c.error);
  }
}

TEST(ReportExpressionParser, ADivisionByAComputedZeroIsFoundWhenItIsCalculated) {
  const auto tree = Utils::strToExp("4 / (2 - 2)");
  EXPECT_THROW_TEXT(tree->calculate({}), std::invalid_argument, "position 3: division by zero");
  EXPECT_TRUE(std::isinf(valueOf("1e308 * 10")));
}
