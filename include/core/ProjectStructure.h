#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "vocabulary/Enum.h"
#include "vocabulary/EnumElementType.h"
#include "vocabulary/EnumTypes.h"

class Scenario;

// Light descriptions of a project, without series or settings: what a user sees when choosing
// scenarios and elements to compare, export or copy.

// One element of a scenario.
struct ElementStructure {
  unsigned int id = 0;
  std::string name;
  EnumElementType elementType;
};

// One scenario: its kind, its name and its elements in id order.
struct SceneryStructure {
  Enum<SceneryIndicator> indicator;
  std::string name;
  std::vector<ElementStructure> elements;

  // The description of scenario.
  static SceneryStructure describe(const Scenario& scenario);
};

// A user's pick: a scenario, by its position in ProjectStructure::sceneries, and the ids of the
// elements chosen in it.
struct ScenerySelectedStructure {
  unsigned int sceneryPosition = 0;
  std::vector<unsigned int> elementIds;
};

// A project: where it is stored and its scenarios in index order.
struct ProjectStructure {
  std::string url;
  std::vector<SceneryStructure> sceneries;

  // The description of the scenarios of a project stored at url, by index.
  static ProjectStructure describe(
      const std::string& url, const std::map<unsigned int, std::shared_ptr<Scenario>>& sceneries);
  // The picked scenarios, each with only the picked elements in the order picked. Throws
  // std::out_of_range "ProjectStructure::select(): invalid scenery position" and
  // std::invalid_argument "ProjectStructure::select(): invalid elementId" for a pick that is not
  // in the project.
  std::vector<SceneryStructure> select(const std::vector<ScenerySelectedStructure>& picks) const;
};
