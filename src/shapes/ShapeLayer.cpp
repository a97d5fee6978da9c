#include "shapes/ShapeLayer.h"

#include <algorithm>
#include <map>
#include <stdexcept>

ShapeLayer::ShapeLayer(std::filesystem::path file, Kind kind, CoordinateSystem coordinateSystem,
                       std::vector<std::string> columns)
    : file(std::move(file)),
      kind(kind),
      coordinateSystem(std::move(coordinateSystem)),
      columns(std::move(columns)) {}

void ShapeLayer::addFeature(Feature feature) {
  if (feature.values.size() != columns.size()) {
    throw std::invalid_argument(
        "ShapeLayer::addFeature(): " + std::to_string(feature.values.size()) + " values for " +
        std::to_string(columns.size()) + " columns");
  }
  features.push_back(std::move(feature));
}

const std::string& ShapeLayer::kindName(Kind kind) {
  static const std::map<Kind, std::string> names{
      {Kind::point, "point"}, {Kind::line, "line"}, {Kind::polygon, "polygon"}};
  return names.at(kind);
}

std::size_t ShapeLayer::columnIndex(const std::string& name) const {
  const auto found = std::find(columns.begin(), columns.end(), name);
  if (found != columns.end()) return static_cast<std::size_t>(found - columns.begin());
  std::string list;
  for (const auto& column : columns) list += (list.empty() ? "" : ", ") + column;
  throw std::runtime_error(file.string() + ": no column \"" + name +
                           "\" (columns: " + (list.empty() ? "none" : list) + ")");
}
