#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "common/Point2D.h"
#include "shapes/CoordinateSystem.h"

// The contents of one shapefile: its kind of geometry, its features and its table. A feature has
// the parts of its geometry (a point layer's feature one part of one point, a line's its paths,
// a polygon's its rings, in the file's order) and one text per column of the table. Coordinates
// are those of the file, in its coordinate system.
class ShapeLayer {
 public:
  enum class Kind { point, line, polygon };
  using Part = std::vector<Point2D>;
  struct Feature {
    std::vector<Part> parts;          // none for a feature without geometry
    std::vector<std::string> values;  // one per column, in the columns' order; "" for null
  };

  ShapeLayer(std::filesystem::path file, Kind kind, CoordinateSystem coordinateSystem,
             std::vector<std::string> columns);

  // Appends feature. Throws std::invalid_argument "ShapeLayer::addFeature(): <n> values for <m>
  // columns" when it does not have one value per column.
  void addFeature(Feature feature);

  // "point", "line" or "polygon".
  static const std::string& kindName(Kind kind);

  const std::filesystem::path& getFile() const { return file; }
  Kind getKind() const { return kind; }
  const CoordinateSystem& getCoordinateSystem() const { return coordinateSystem; }
  const std::vector<std::string>& getColumns() const { return columns; }
  const std::vector<Feature>& getFeatures() const { return features; }
  // The position of the column of that name. Throws std::runtime_error "<file>: no column
  // \"<name>\" (columns: A, B)" when the table has none.
  std::size_t columnIndex(const std::string& name) const;

 private:
  std::filesystem::path file;
  Kind kind;
  CoordinateSystem coordinateSystem;
  std::vector<std::string> columns;
  std::vector<Feature> features;
};
