#pragma once

#include <memory>

#include "core/KeySettings.h"
#include "operation/ResultsWriter.h"

// Makes the results writer of an element kind in a scenario kind. Throws std::invalid_argument
// "ResultsWriterFactory::make(): invalid key (scenarioType, elementType)" for a pair without one.
class ResultsWriterFactory {
 public:
  static std::shared_ptr<ResultsWriter> make(const KeySettings& key);
  static std::shared_ptr<ResultsWriter> makeLinkResultsWriter();
  static std::shared_ptr<ResultsWriter> makeBasinResultsWriter();
  static std::shared_ptr<ResultsWriter> makeDemandResultsWriter();
  static std::shared_ptr<ResultsWriter> makeReservoirRuleResultsWriter();
  static std::shared_ptr<ResultsWriter> makeReservoirPriorityResultsWriter();
  static std::shared_ptr<ResultsWriter> makeJunctionResultsWriter();
};
