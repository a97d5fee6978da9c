#include "reports/automatic/AutomaticReportExpressionAnalyzerUtils.h"

#include <charconv>
#include <cmath>
#include <vector>

#include "reports/automatic/AutomaticReportExpressionFunctionNode.h"
#include "reports/automatic/AutomaticReportExpressionNode.h"
#include "reports/automatic/AutomaticReportExpressionTerminator.h"

namespace {

using Expression = std::unique_ptr<AutomaticReportExpression>;

bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool isOperator(char c) { return c == '+' || c == '-' || c == '*' || c == '/'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
// Whether an operand may begin after c ('\0' for the start of the text).
bool opensOperand(char c) { return c == '\0' || isOperator(c) || c == '(' || c == ','; }

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

// Digits with at most one decimal point, then optionally "e" or "E", a sign and digits.
bool isNumberText(const std::string& text) {
  std::size_t i = 0;
  std::size_t digits = 0;
  bool point = false;
  for (; i < text.size() && (isDigit(text[i]) || (text[i] == '.' && !point)); ++i) {
    if (text[i] == '.')
      point = true;
    else
      ++digits;
  }
  if (digits == 0) return false;
  if (i == text.size()) return true;
  if (text[i] != 'e' && text[i] != 'E') return false;
  if (++i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  if (i == text.size()) return false;
  for (; i < text.size(); ++i) {
    if (!isDigit(text[i])) return false;
  }
  return true;
}

// Half-open range of byte offsets into the text.
struct Span {
  std::size_t begin;
  std::size_t end;
  bool empty() const { return begin >= end; }
};

// A recursive reading of one text; each step reads a span of it, which it cuts at the weakest
// operator outside parentheses or recognises as a group, a call or a leaf.
class Parser {
 public:
  explicit Parser(const std::string& text) : text(text), characters(text.size() + 1, 1) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool continuation = (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
      characters[i + 1] = characters[i] + (continuation ? 0 : 1);
    }
  }

  Expression whole() {
    checkCharacters();
    const Span all = trimmed({0, text.size()});
    if (all.empty()) failAt(0, "the expression is empty");
    checkBalance(all);
    return value(all, 0);
  }

 private:
  [[noreturn]] void failAt(std::size_t offset, const std::string& what) const {
    AutomaticReportExpression::failAt(characters[offset], what);
  }

  void checkCharacters() const {
    for (std::size_t i = 0; i < text.size(); ++i) {
      const auto c = static_cast<unsigned char>(text[i]);
      if ((c < 0x20 && !isSpace(text[i])) || c == 0x7F) failAt(i, "unexpected control character");
    }
  }

  // Checks that every parenthesis and quote is closed and remembers where.
  void checkBalance(Span span) {
    closing.assign(text.size(), std::string::npos);
    std::vector<std::size_t> open;
    for (std::size_t i = span.begin; i < span.end; ++i) {
      if (text[i] == '"') {
        const std::size_t quote = text.find('"', i + 1);
        if (quote >= span.end) failAt(i, "the quote is never closed");
        closing[i] = quote + 1;
        i = quote;
      } else if (text[i] == '(') {
        open.push_back(i);
      } else if (text[i] == ')') {
        if (open.empty()) failAt(i, "\")\" without a matching \"(\"");
        closing[open.back()] = i + 1;
        open.pop_back();
      }
    }
    if (!open.empty()) failAt(open.front(), "\"(\" is never closed");
  }

  Span trimmed(Span span) const {
    while (span.begin < span.end && isSpace(text[span.begin])) ++span.begin;
    while (span.end > span.begin && isSpace(text[span.end - 1])) --span.end;
    return span;
  }

  // The offset after the quote or the parenthesis that closes the one at open.
  std::size_t after(std::size_t open) const { return closing[open]; }

  // Whether the sign at offset belongs to the exponent of a number, as in 1.5e-3.
  bool isExponentSign(Span span, std::size_t offset) const {
    if (offset < span.begin + 2 || offset + 1 >= span.end || !isDigit(text[offset + 1])) {
      return false;
    }
    const char e = text[offset - 1];
    if (e != 'e' && e != 'E') return false;
    std::size_t start = offset - 1;
    while (start > span.begin && (isDigit(text[start - 1]) || text[start - 1] == '.')) --start;
    const char before = start == span.begin ? '\0' : text[start - 1];
    if (!opensOperand(before) && !isSpace(before)) return false;
    return isNumberText(text.substr(start, offset - 1 - start) + "e1");
  }

  // The weakest operator outside parentheses and quotes, the last of its strength; npos if none.
  std::size_t splitPoint(Span span) const {
    std::size_t additive = std::string::npos;
    std::size_t multiplicative = std::string::npos;
    char previous = '\0';
    for (std::size_t i = span.begin; i < span.end; ++i) {
      const char c = text[i];
      if (c == '"' || c == '(') {
        i = after(i) - 1;
      } else if (c == ',') {
        failAt(i, "unexpected \",\" outside the arguments of a call");
      } else if ((c == '+' || c == '-') && !opensOperand(previous) && !isExponentSign(span, i)) {
        additive = i;
      } else if (c == '*' || c == '/') {
        multiplicative = i;
      }
      if (!isSpace(c)) previous = text[i];
    }
    return additive != std::string::npos ? additive : multiplicative;
  }

  // An operand: anything but a bare name.
  Expression value(Span span, std::size_t depth) {
    Expression node = expression(span, depth);
    const auto* leaf = dynamic_cast<const AutomaticReportExpressionTerminator*>(node.get());
    if (leaf != nullptr && !leaf->isNumber()) {
      AutomaticReportExpression::failAt(
          leaf->getPosition(), quoted(leaf->getText()) + " is neither a number nor a call");
    }
    return node;
  }

  // Parentheses around the whole span are taken off in a loop: only operators, signs and calls
  // count as levels, so that the text print() gives, which puts every operator in parentheses,
  // nests no deeper than the text it came from.
  Expression expression(Span span, std::size_t depth) {
    while (text[span.begin] == '(' && after(span.begin) == span.end) {
      const Span inner = trimmed({span.begin + 1, span.end - 1});
      if (inner.empty()) failAt(span.begin, "expected an expression inside the parentheses");
      span = inner;
    }
    if (depth > AutomaticReportExpressionAnalyzerUtils::kMaximumDepth) {
      failAt(span.begin, "the expression is nested deeper than " +
                             std::to_string(AutomaticReportExpressionAnalyzerUtils::kMaximumDepth) +
                             " levels");
    }
    const std::size_t cut = splitPoint(span);
    if (cut != std::string::npos) return binary(span, cut, depth);
    switch (text[span.begin]) {
      case '-':
        return negation(span, depth);
      case '+':
        failAt(span.begin, "expected an operand before \"+\"");
      case '(':
        failAt(trimmed({after(span.begin), span.end}).begin, "expected an operator after \")\"");
      case '"':
        return quotedName(span);
      default:
        return callOrLeaf(span, depth);
    }
  }

  Expression binary(Span span, std::size_t cut, std::size_t depth) {
    const std::string symbol(1, text[cut]);
    const Span left = trimmed({span.begin, cut});
    const Span right = trimmed({cut + 1, span.end});
    if (left.empty()) failAt(cut, "expected an operand before " + quoted(symbol));
    if (right.empty()) failAt(cut, "expected an operand after " + quoted(symbol));
    Expression a = value(left, depth + 1);
    Expression b = value(right, depth + 1);
    const auto* divisor = dynamic_cast<const AutomaticReportExpressionTerminator*>(b.get());
    if (symbol == "/" && divisor != nullptr && divisor->calculate({}) == 0.0) {
      failAt(cut, "division by zero");
    }
    return std::make_unique<AutomaticReportExpressionNode>(text[cut], std::move(a), std::move(b),
                                                           characters[cut]);
  }

  Expression negation(Span span, std::size_t depth) {
    const Span rest = trimmed({span.begin + 1, span.end});
    if (rest.empty()) failAt(span.begin, "expected an operand after \"-\"");
    Expression operand = value(rest, depth + 1);
    const auto* number = dynamic_cast<const AutomaticReportExpressionTerminator*>(operand.get());
    const std::size_t position = characters[span.begin];
    if (number != nullptr) {
      return std::make_unique<AutomaticReportExpressionTerminator>(
          -number->calculate({}), "-" + number->getText(), position);
    }
    return std::make_unique<AutomaticReportExpressionNode>(
        '-', std::make_unique<AutomaticReportExpressionTerminator>(0.0, "0", position),
        std::move(operand), position);
  }

  // Fails with what unless only blanks follow the offset end within span.
  void expectNothingAfter(Span span, std::size_t end, const std::string& what) const {
    const Span rest = trimmed({end, span.end});
    if (!rest.empty()) failAt(rest.begin, what);
  }

  Expression quotedName(Span span) {
    const std::size_t end = after(span.begin);
    expectNothingAfter(span, end, "unexpected text after the closing quote");
    if (end - span.begin == 2) failAt(span.begin, "the name in quotes is empty");
    return std::make_unique<AutomaticReportExpressionTerminator>(
        text.substr(span.begin + 1, end - span.begin - 2), characters[span.begin]);
  }

  Expression callOrLeaf(Span span, std::size_t depth) {
    const std::size_t open = text.find_first_of("(\"", span.begin);
    if (open >= span.end) return leaf(span);
    if (text[open] == '"') failAt(open, "unexpected quote: a name in quotes stands alone");
    const Span nameSpan = trimmed({span.begin, open});
    const std::string name = text.substr(nameSpan.begin, nameSpan.end - nameSpan.begin);
    if (isNumberText(name)) failAt(open, "expected an operator before \"(\"");
    const std::size_t end = after(open);
    expectNothingAfter(span, end, "expected an operator after \")\"");
    auto call = std::make_unique<AutomaticReportExpressionFunctionNode>(
        name, arguments({open + 1, end - 1}, depth), characters[span.begin]);
    call->processStr();
    return call;
  }

  // The arguments between a call's parentheses, cut at the commas outside nested ones.
  std::vector<Expression> arguments(Span span, std::size_t depth) {
    std::vector<Expression> result;
    if (trimmed(span).empty()) return result;
    std::vector<std::size_t> commas;
    for (std::size_t i = span.begin; i < span.end; ++i) {
      if (text[i] == '"' || text[i] == '(')
        i = after(i) - 1;
      else if (text[i] == ',')
        commas.push_back(i);
    }
    std::size_t begin = span.begin;
    for (std::size_t k = 0; k <= commas.size(); ++k) {
      const std::size_t end = k < commas.size() ? commas[k] : span.end;
      const Span argument = trimmed({begin, end});
      if (argument.empty() && k < commas.size()) {
        failAt(commas[k], "expected an argument before \",\"");
      }
      if (argument.empty()) failAt(commas[k - 1], "expected an argument after \",\"");
      result.push_back(name(argument, depth + 1));
      begin = end + 1;
    }
    return result;
  }

  // An argument: a name, in quotes when it holds what would be read as an operator or a call.
  Expression name(Span span, std::size_t depth) {
    if (text[span.begin] == '"') return quotedName(span);
    const std::size_t open = text.find('(', span.begin);
    if (splitPoint(span) != std::string::npos || open < span.end) {
      failAt(span.begin,
             "expected a name; write a name that holds an operator, a parenthesis or a comma in "
             "double quotes");
    }
    return expression(span, depth);
  }

  Expression leaf(Span span) const {
    const std::string word = text.substr(span.begin, span.end - span.begin);
    const std::size_t position = characters[span.begin];
    if (!isNumberText(word)) {
      return std::make_unique<AutomaticReportExpressionTerminator>(word, position);
    }
    double number = 0.0;
    const auto read = std::from_chars(word.data(), word.data() + word.size(), number);
    if (read.ec != std::errc() || !std::isfinite(number)) {
      failAt(span.begin, "the number " + word + " is out of range");
    }
    return std::make_unique<AutomaticReportExpressionTerminator>(number, word, position);
  }

  const std::string& text;
  // The 1-based position of the character at each byte offset, UTF-8 continuation bytes taking
  // that of the character they continue.
  std::vector<std::size_t> characters;
  // The offset after the closing parenthesis or quote of each opening one.
  std::vector<std::size_t> closing;
};

}  // namespace

std::unique_ptr<AutomaticReportExpression> AutomaticReportExpressionAnalyzerUtils::strToExp(
    const std::string& text) {
  return Parser(text).whole();
}
