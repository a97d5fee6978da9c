#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "common/Calendar.h"
#include "core/ElementFactory.h"
#include "operation/ExecutionContinuous.h"
#include "reports/automatic/AutomaticReportExpressionAnalyzerUtils.h"
#include "reports/automatic/AutomaticReportTreeUtils.h"
#include "scenario/RuleScenario.h"
#include "vocabulary/Vocabulary.h"

// Feeds arbitrary text to the report expression reader. Any text must end in a tree or in one
// line "position N: ...", N within the text, never in a crash, a hang or a leak. A tree must be
// valid, print as a text that reads back into the same tree, draw as one digraph and evaluate
// against a small run to a number or to a positioned failure.
namespace {

// Four months of a reservoir R and a demand D with a few results.
std::shared_ptr<Scenario> makeRun() {
  const Interval months(Date(2001, 1, 1), Date(2001, 4, 1), Vocabulary::of(Periodicity::monthly));
  auto scenario =
      std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1, months, "Fuzz");
  for (const auto& [type, name] :
       {std::pair{ElementType::reservoir, "R"}, std::pair{ElementType::humanDemand, "D"}}) {
    auto element = ElementFactory::make(type);
    element->setName(name);
    scenario->addElement(element, false);
  }
  scenario->getExecutionMethod()->setWindowSize(4);
  scenario->createResults();
  Date date = months.getBegin();
  for (double value : {10.0, 0.0, 5.0, -999.0}) {
    for (const auto& element : scenario->getElements()) {
      for (const auto& serie : element->getVectorOfSeries(0)) serie->setValue(date, value);
    }
    date += Calendar::incInterval(date, months);
  }
  return scenario;
}

std::size_t characters(const std::string& text) {
  std::size_t count = 0;
  for (char c : text) count += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
  return count;
}

// Ends the run when a failure is not one line naming a position within the text.
void checkFailure(const std::string& text, const std::invalid_argument& error) {
  const std::string what = error.what();
  if (what.rfind("position ", 0) != 0 || what.find('\n') != std::string::npos) std::abort();
  const std::size_t position = std::strtoul(what.c_str() + 9, nullptr, 10);
  if (position < 1 || position > characters(text) + 1) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::shared_ptr<Scenario> run = makeRun();
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::unique_ptr<AutomaticReportExpression> tree;
  try {
    tree = AutomaticReportExpressionAnalyzerUtils::strToExp(text);
  } catch (const std::invalid_argument& error) {
    checkFailure(text, error);
    return 0;
  }
  if (!tree->isValid()) std::abort();
  const std::string printed = tree->print();
  try {
    if (AutomaticReportExpressionAnalyzerUtils::strToExp(printed)->print() != printed) std::abort();
  } catch (const std::invalid_argument&) {
    std::abort();
  }
  const std::string drawing = AutomaticReportTreeUtils::drawGraphVizStartingOfNode(*tree);
  if (drawing.rfind("digraph G { \n", 0) != 0 || drawing.substr(drawing.size() - 2) != "}\n") {
    std::abort();
  }
  try {
    tree->calculate({run, 0});
  } catch (const std::invalid_argument& error) {
    checkFailure(text, error);
  }
  return 0;
}
