#pragma once

#include <string>
#include <vector>

#include "common/Interval.h"
#include "vocabulary/Enum.h"
#include "vocabulary/EnumTypes.h"

// A quick look into a project file: what each scenario is, read from the file alone, without
// building the model or opening the database.
class ProjectResumate {
 public:
  // What one scenario is.
  struct SceneryResumate {
    std::string name;
    Enum<ScenarioType> type;
    Enum<ExecutionType> executionType;
    Interval interval;
  };

  // The summary of each scenario of the project file at path (UTF-8), in the order of the file.
  // Throws std::runtime_error "ProjectResumate::getResumate() error in open JSON file" when the
  // file cannot be opened, nlohmann::json::parse_error for text that is not JSON, JsonLoadException
  // "Invalid json file" for a missing key, std::invalid_argument
  // "SceneryTypeFactoryByString::make(): invalid ScenarioType" or
  // "ExecutionTypeFactoryByString::make(): invalid executionType" for a kind the vocabulary does
  // not know, and as JsonLoadInterval::load for a bad interval.
  static std::vector<SceneryResumate> getResumate(const std::string& path);

  // The summary as text for people: "Projeto sem cenários." for none, otherwise one block per
  // scenario, numbered from 1:
  //   Cenário 1: <name>
  //     Tipo: <type>
  //     Método de execução: <execution method>
  //     Período: <begin> a <end> (<periodicity>)
  // with the dates in the format of the periodicity ("01/1931" for a monthly one).
  static std::string toText(const std::vector<SceneryResumate>& resumate);
};
