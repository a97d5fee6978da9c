#include "shapes/ShapeImport.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>

#include "core/Node.h"
#include "core/Scenario.h"
#include "shapes/CoordinateConverter.h"

namespace {

// Where a name was found: its point in the scenario's system, and the feature for messages.
struct Found {
  Point2D position;
  std::string where;  // "<file> feature <i>"
};

// The project file writes texts as they are, so these would break it.
bool keepable(const std::string& path) {
  return std::none_of(path.begin(), path.end(),
                      [](unsigned char c) { return c == '"' || c == '\\' || c < 0x20; });
}

// point in the scenario's system; a failure names the feature.
Point2D converted(const std::optional<CoordinateConverter>& converter, const Point2D& point,
                  const std::string& where) {
  if (!converter) return point;
  try {
    return converter->forward(point);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(where + ": " + error.what());
  }
}

// The named points of one layer, converted into target, added to found.
void collect(const ShapeLayer& layer, const std::string& nameColumn, const CoordinateSystem& target,
             std::map<std::string, Found>& found, std::vector<std::string>& order) {
  if (layer.getKind() != ShapeLayer::Kind::point) {
    throw std::invalid_argument("ShapeImport::placeNodes(): " + layer.getFile().string() +
                                " is a " + ShapeLayer::kindName(layer.getKind()) +
                                " layer, not a point layer");
  }
  const std::size_t column = layer.columnIndex(nameColumn);
  std::optional<CoordinateConverter> converter;
  if (layer.getCoordinateSystem() != target) converter.emplace(layer.getCoordinateSystem(), target);
  const auto& features = layer.getFeatures();
  for (std::size_t index = 0; index < features.size(); ++index) {
    const auto& feature = features[index];
    const std::string& name = feature.values[column];
    if (name.empty() || feature.parts.empty() || feature.parts.front().empty()) continue;
    const Point2D point = feature.parts.front().front();
    const std::string where = layer.getFile().string() + " feature " + std::to_string(index);
    const auto [entry, added] =
        found.emplace(name, Found{converted(converter, point, where), where});
    if (!added) {
      throw std::runtime_error(layer.getFile().string() + ": \"" + name + "\" names two points (" +
                               entry->second.where + " and " + where + ")");
    }
    order.push_back(name);
  }
}

}  // namespace

bool ShapeImport::attach(Scenario& scenario, const ShapeLayer& layer) {
  const std::string fullpath =
      std::filesystem::absolute(layer.getFile()).lexically_normal().string();
  if (!keepable(fullpath)) {
    throw std::runtime_error(fullpath +
                             ": the project file cannot keep a path with a double quote, a "
                             "backslash or a control character");
  }
  const auto& layers = scenario.getVectorOfPathInfo();
  if (std::any_of(layers.begin(), layers.end(),
                  [&](const Scenario::PathInfo& info) { return info.fullpath == fullpath; })) {
    return false;
  }
  scenario.addPathInfo(layer.getFile().filename().string(), fullpath);
  return true;
}

ShapeImport::Placement ShapeImport::placeNodes(Scenario& scenario,
                                               const std::vector<ShapeLayer>& pointLayers,
                                               const std::string& nameColumn) {
  const CoordinateSystem target = CoordinateSystem::fromEpsg(scenario.getEPSGCode());
  std::map<std::string, Found> found;
  std::vector<std::string> order;
  for (const auto& layer : pointLayers) collect(layer, nameColumn, target, found, order);

  Placement placement;
  std::set<std::string> named;
  for (const auto& element : scenario.getSortedElements()) {
    const auto node = std::dynamic_pointer_cast<Node>(element);
    if (!node) continue;
    const auto at = found.find(node->getName());
    if (at == found.end()) {
      placement.nodesNotInLayers.push_back(node->getName());
      continue;
    }
    node->setX(at->second.position.x);
    node->setY(at->second.position.y);
    named.insert(node->getName());
  }
  for (const auto& name : order) {
    (named.count(name) ? placement.placed : placement.namesWithoutNode).push_back(name);
  }
  return placement;
}
