#pragma once

#include <filesystem>
#include <string>

class GuaranteeCurveScenario;
class Scenario;
class SystemGuaranteeCurveScenario;

// The network of a scenario as a Graphviz digraph (DOT):
//
//   digraph G {
//   rankdir=LR;
//   "<up>" -> "<down>" [label="<link name>",color=black];      one line per link, by id
//   "<node>" [shape=triangle,color=lightblue,style=filled];     one line per node, by id
//   "<node>" [label="<node>\nP=2"][shape=polygon, ...];         a node whose label adds a text
//   }
//
// Links and nodes are every element of the scenario, enabled or not, in the order of their ids;
// a link whose ends are gone is left out. The attributes of each kind of element come from one
// table: artificial links "color=black", natural links "color=cyan", and a shape and
// colour for each kind of node. Behind the literal "\n" a node's label may add:
//   - "P=<priority>" (the element's own priority) in a priority scenario, for the elements that
//     hold priority settings: reservoirs and demands (drains included);
//   - "Q90=<flow>" in a guarantee-curve scenario, for the reservoirs marked for the curve, and in
//     a system guarantee curve for its out reservoir: the flow (m³/s) of the stored curve at the
//     level 90 % (within 1e-6), as the shortest text that reads back as the same double. When the
//     curve has no such level (the scenario was not run, the run stopped before it, or the
//     reservoir failed it) or does not hold the reservoir, the label is "Q90=-": the reservoir is
//     one of the curve, and the curve has no flow of 90 % for it.
//
// Names are quoted: a double quote becomes \" and a backslash \\ (so that no name closes its
// quotes early or runs into the next), and a line break the two characters \n. Element names
// never hold a quote or a backslash (Element::setName), but the file does not rely on it.
// Numbers are written in the classic locale.
class GraphvizScenarioGenerator {
 public:
  // The plain drawing, for rule scenarios and rule optimisations.
  static void generateFile(const std::filesystem::path& path, const Scenario& scenario);
  // With "P=" for reservoirs and demands. Throws std::invalid_argument
  // "Passed element is not valid for element setting" when one of them does not hold priority
  // settings (the scenario is not one by priorities).
  static void generateFileWithPriority(const std::filesystem::path& path, const Scenario& scenario);
  // With "Q90=" for the reservoirs marked for the curve. Throws std::invalid_argument
  // "Passed element is not valid for element setting" when a reservoir does not hold
  // guarantee-curve settings.
  static void generateFileWithGuaranteeCurve(const std::filesystem::path& path,
                                             const GuaranteeCurveScenario& scenario);
  // With "Q90=" for the out reservoir of the method (ExecutionSystemGuaranteeCurve's
  // outSystemReservoirId).
  static void generateFileWithSystemGuaranteeCurve(const std::filesystem::path& path,
                                                   const SystemGuaranteeCurveScenario& scenario);

  // text as the inside of a DOT quoted string: '"' as \", '\' as \\, a line break as \n.
  static std::string escape(const std::string& text);

  // Every generator throws std::runtime_error "GraphVizGenerator::generateFile() error in open
  // file" when the file cannot be made, and "GraphVizGenerator::generateFile() error in write
  // file: <path>" when a write or the closing fails (a full disk), after removing the file.
};
