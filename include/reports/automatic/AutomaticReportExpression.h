#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

class Scenario;

// The kinds of node of a report expression; 1 to 4 are the four arithmetic operators.
enum class AutomaticReportExpressionType : int32_t {
  terminator = 0,
  add = 1,
  subtract = 2,
  multiply = 3,
  divide = 4,
  function = 5,
};

// What a report expression is evaluated against: the stored results of one window (run) of a
// scenario, counted from 0.
struct AutomaticReportRun {
  std::shared_ptr<Scenario> scenario;
  unsigned int runIndex = 0;
};

// A node of a report expression: an arithmetic operator over two nodes, a metric or a series
// operation called on an element, or a leaf (a number, or a name given to a call). Every node
// remembers the 1-based character position of the text it was read from, so that a failure
// met while evaluating it names the place: "position 7: division by zero".
//
// A value without meaning (a metric or an operation that has no value over the window, such as
// the sample variance of one value) is NaN, and so is everything computed from it.
class AutomaticReportExpression {
 public:
  virtual ~AutomaticReportExpression() = default;

  virtual AutomaticReportExpressionType getExpressionType() const = 0;
  // Whether the node has every part it needs, and so has every node below it.
  virtual bool isValid() const = 0;
  // The value over the run, in the units of the metrics and series it reads. Throws
  // std::invalid_argument "position N: <what is wrong>" for an element the scenario lacks, a
  // metric that does not apply to the element, a series the element lacks, a division by zero,
  // and for a leaf or an invalid node that has no value of its own.
  virtual double calculate(const AutomaticReportRun& run) const = 0;
  // The text of the node in a drawing: its operator, number, name or function name.
  virtual std::string getLabel() const = 0;
  // The text of the subtree, which AutomaticReportExpressionAnalyzerUtils::strToExp reads back
  // into the same tree: operators in parentheses, names in double quotes.
  virtual std::string print() const = 0;
  // Drops the nodes below this one, which is then no longer valid.
  virtual void release() = 0;
  // The nodes directly below, left to right.
  virtual std::vector<const AutomaticReportExpression*> children() const = 0;

  // Writes the Graphviz lines of this node, of the edges to its children and of their subtrees.
  // Nodes are named "n" and a number, this node taking next; next is left after the last used.
  void drawGraphvizOfSubTree(std::ostream& out, unsigned int& next) const;
  // The 1-based character position of the node in its text.
  std::size_t getPosition() const { return position; }

  // Throws std::invalid_argument "position N: what", control characters in what as blanks.
  [[noreturn]] static void failAt(std::size_t position, const std::string& what);

 protected:
  explicit AutomaticReportExpression(std::size_t position) : position(position) {}

  // Throws std::invalid_argument "position N: what", N being this node's position.
  [[noreturn]] void fail(const std::string& what) const;

 private:
  std::size_t position;
};
