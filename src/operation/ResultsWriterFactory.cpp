#include "operation/ResultsWriterFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/ElementSets.h"
#include "operation/BasinResultsWriter.h"
#include "operation/DemandResultsWriter.h"
#include "operation/JunctionResultsWriter.h"
#include "operation/LinkResultsWriter.h"
#include "operation/ReservoirPriorityResultsWriter.h"
#include "operation/ReservoirResultsWriter.h"

namespace {

using Maker = std::function<std::shared_ptr<ResultsWriter>()>;

// Every kind of scenario that runs shares the writers of all elements but the reservoir's.
void addWriters(std::map<KeySettings, Maker>& makers, ScenarioType scenario,
                const Maker& reservoirWriter) {
  for (ElementType link : ElementSets::links()) {
    makers[{scenario, link}] = ResultsWriterFactory::makeLinkResultsWriter;
  }
  for (ElementType demand : ElementSets::demands()) {
    makers[{scenario, demand}] = ResultsWriterFactory::makeDemandResultsWriter;
  }
  makers[{scenario, ElementType::reservoir}] = reservoirWriter;
  makers[{scenario, ElementType::junction}] = ResultsWriterFactory::makeJunctionResultsWriter;
  makers[{scenario, ElementType::basin}] = ResultsWriterFactory::makeBasinResultsWriter;
}

const std::map<KeySettings, Maker>& makers() {
  static const std::map<KeySettings, Maker> table = [] {
    std::map<KeySettings, Maker> result;
    for (ScenarioType rule : {ScenarioType::ruleSimulator, ScenarioType::ruleOptimizer,
                              ScenarioType::guaranteeCurve, ScenarioType::systemGuaranteeCurve}) {
      addWriters(result, rule, ResultsWriterFactory::makeReservoirRuleResultsWriter);
    }
    addWriters(result, ScenarioType::priorityOptimizer,
               ResultsWriterFactory::makeReservoirPriorityResultsWriter);
    return result;
  }();
  return table;
}

}  // namespace

std::shared_ptr<ResultsWriter> ResultsWriterFactory::make(const KeySettings& key) {
  auto it = makers().find(key);
  if (it == makers().end()) {
    throw std::invalid_argument(
        "ResultsWriterFactory::make(): invalid key (scenarioType, elementType)");
  }
  return it->second();
}

std::shared_ptr<ResultsWriter> ResultsWriterFactory::makeLinkResultsWriter() {
  return std::make_shared<LinkResultsWriter>();
}

std::shared_ptr<ResultsWriter> ResultsWriterFactory::makeBasinResultsWriter() {
  return std::make_shared<BasinResultsWriter>();
}

std::shared_ptr<ResultsWriter> ResultsWriterFactory::makeDemandResultsWriter() {
  return std::make_shared<DemandResultsWriter>();
}

std::shared_ptr<ResultsWriter> ResultsWriterFactory::makeReservoirRuleResultsWriter() {
  return std::make_shared<ReservoirRuleResultsWriter>();
}

std::shared_ptr<ResultsWriter> ResultsWriterFactory::makeReservoirPriorityResultsWriter() {
  return std::make_shared<ReservoirPriorityResultsWriter>();
}

std::shared_ptr<ResultsWriter> ResultsWriterFactory::makeJunctionResultsWriter() {
  return std::make_shared<JunctionResultsWriter>();
}
