#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/Scenario.h"
#include "vocabulary/EnumTypes.h"

// The general report of a scenario: a text file of one line per item, "label: value", about the
// enabled elements. Counts of reservoirs, junctions, each kind of demand, drains, demands (the
// four consumer kinds) and links, the initial useful volume of the reservoirs (above their
// minimum) and the volume that each kind of demand requires over the scenario's interval. Volumes
// carry their unit behind the label, "(hm³)", and are written with the project's precision.
class GeneralSceneryReport {
 public:
  // Writes the report of scenario to path. Throws std::runtime_error
  // "GeneralSceneryReport::make(): erro ao abrir arquivo" when the file cannot be made.
  static void make(const std::filesystem::path& path, const std::shared_ptr<Scenario>& scenario);
  // The lines of the report, without line breaks, in the order they are written.
  static std::vector<std::string> makeLines(const Scenario& scenario);

  // The number of enabled elements of the given types.
  static unsigned int countElements(const Scenario& scenario, const std::set<ElementType>& types);
  // The sum over the enabled reservoirs of the initial volume above the minimum, hm³; a
  // reservoir starting below its minimum adds nothing.
  static double getTotalInitialUtilVolume(const Scenario& scenario);
  // The volume the enabled demands of the given types require over the scenario's interval: their
  // input "Demanda" (m³/s) as volume period by period, missing values left out, hm³.
  static double getTotalDemandVolume(const Scenario& scenario, const std::set<ElementType>& types);
};
