#include "ImportShapesCommand.h"

#include <iomanip>
#include <optional>
#include <sstream>
#include <stdexcept>

#include "ExitStatus.h"
#include "HostText.h"
#include "OpenProject.h"
#include "UsageError.h"
#include "core/Node.h"
#include "core/Scenario.h"
#include "project/database/SaveProject.h"
#include "shapes/ShapeFileReader.h"
#include "shapes/ShapeImport.h"

namespace {

std::optional<CoordinateSystem> layerSystem(const CommandLine& line) {
  if (!line.has("layer-epsg")) return std::nullopt;
  const unsigned long code = line.number("layer-epsg", 0, 1);
  try {
    return CoordinateSystem::fromEpsg(static_cast<unsigned int>(code));
  } catch (const std::invalid_argument&) {
    throw UsageError(
        tr("option --layer-epsg: EPSG:{1} is not a geographic or projected coordinate system",
           {std::to_string(code)}));
  }
}

// Every file is read, and so checked, before the project changes.
std::vector<ShapeLayer> readLayers(const CommandLine& line) {
  const auto system = layerSystem(line);
  std::vector<ShapeLayer> layers;
  for (std::size_t i = 1; i < line.positional().size(); ++i) {
    layers.push_back(ShapeFileReader::read(line.positional(i), system));
  }
  return layers;
}

std::string joined(const std::vector<std::string>& names) {
  std::string text;
  for (const auto& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

std::string position(const Node& node) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(6) << node.getX() << ", " << node.getY();
  return text.str();
}

ShapeImport::Placement placeNodes(Scenario& scenario, const std::vector<ShapeLayer>& layers,
                                  const std::string& column) {
  std::vector<ShapeLayer> points;
  for (const auto& layer : layers) {
    if (layer.getKind() == ShapeLayer::Kind::point) points.push_back(layer);
  }
  if (points.empty()) {
    throw UsageError(tr("option --name-field: none of the files is a point layer"));
  }
  return ShapeImport::placeNodes(scenario, points, column);
}

void printPlacement(const Scenario& scenario, const ShapeImport::Placement& placement,
                    Console& console) {
  for (const auto& name : placement.placed) {
    const auto node = std::dynamic_pointer_cast<Node>(scenario.getElement(name));
    console.out << tr("{1}: placed at {2}", {name, position(*node)}) << '\n';
  }
  if (!placement.nodesNotInLayers.empty()) {
    console.out << tr("nodes no point names, left where they were: {1}",
                      {joined(placement.nodesNotInLayers)})
                << '\n';
  }
  if (!placement.namesWithoutNode.empty()) {
    console.out << tr("names of points without a node, ignored: {1}",
                      {joined(placement.namesWithoutNode)})
                << '\n';
  }
}

}  // namespace

Command ImportShapesCommand::describe() {
  return {"import-shapes",
          "kova import-shapes P.sjson --scenario NAME FILE.shp... [--name-field FIELD] "
          "[--layer-epsg CODE]",
          tr("attach shapefile layers to a scenario and place its nodes from a point layer"),
          HostText::help("import-shapes"),
          {{"scenario", "name-field", "layer-epsg"}, {}, {}, 2, 1000},
          run};
}

int ImportShapesCommand::run(const CommandLine& line, Console& console) {
  OpenProject project(line.positional(0), nullptr, OpenProject::Access::readWrite);
  const auto scenario = project.scenario(line.required("scenario"));
  const std::vector<ShapeLayer> layers = readLayers(line);
  std::vector<bool> attached;
  for (const auto& layer : layers) attached.push_back(ShapeImport::attach(*scenario, layer));
  const bool placing = line.has("name-field");
  const auto placement = placing ? placeNodes(*scenario, layers, line.required("name-field"))
                                 : ShapeImport::Placement{};
  if (!SaveProject::save(project.path().string(), nullptr)) {
    throw std::runtime_error(
        tr("{1}: could not be written; nothing was changed", {project.path().string()}));
  }

  if (placing) printPlacement(*scenario, placement, console);
  for (std::size_t i = 0; i < layers.size(); ++i) {
    const auto& layer = layers[i];
    console.out << tr("{1}: {2}, {3} feature(s), {4}; {5}",
                      {layer.getFile().string(),
                       tr(ShapeLayer::kindName(layer.getKind()) + " layer"),
                       std::to_string(layer.getFeatures().size()),
                       layer.getCoordinateSystem().describe(),
                       attached[i] ? tr("attached") : tr("already attached")})
                << '\n';
  }
  console.unlessQuiet(console.out)
      << tr("scenario \"{1}\" saved in {2}", {scenario->getName(), project.path().string()})
      << '\n';
  return exitOk;
}
