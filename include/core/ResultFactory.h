#pragma once

#include <memory>
#include <tuple>
#include <vector>

#include "core/Container.h"
#include "vocabulary/EnumTypes.h"

// Makes the result containers of an element for a run, chosen by how the scenario runs.
class ResultFactory {
 public:
  struct Key {
    ExecutionType executionType;
    ElementType elementType;
    ScenarioType scenarioType;

    bool operator<(const Key& other) const {
      return std::tie(executionType, elementType, scenarioType) <
             std::tie(other.executionType, other.elementType, other.scenarioType);
    }
  };
  using Containers = std::vector<std::shared_ptr<Container<SerieType>>>;

  // One container per window. Throws std::invalid_argument
  // "SettingsFactory::make(): invalid parameter key" for a key without containers.
  static Containers make(const Key& key, unsigned int windows);

  static std::shared_ptr<Container<SerieType>> makePCR();
  static std::shared_ptr<Container<SerieType>> makePCD();
  static std::shared_ptr<Container<SerieType>> makePCL();
  static std::shared_ptr<Container<SerieType>> makePCJ();
  static std::shared_ptr<Container<SerieType>> makePCB();
  static std::shared_ptr<Container<SerieType>> makePWR();
  static std::shared_ptr<Container<SerieType>> makePWD();
  static std::shared_ptr<Container<SerieType>> makePWL();
  static std::shared_ptr<Container<SerieType>> makePWJ();
  static std::shared_ptr<Container<SerieType>> makePWB();
};
