#pragma once

#include <filesystem>
#include <optional>

#include "shapes/CoordinateSystem.h"
#include "shapes/ShapeLayer.h"

// Reads a shapefile into a ShapeLayer with shapelib: the geometry from NAME.shp and its index
// NAME.shx, the table from NAME.dbf, the coordinate system from NAME.prj (the extensions in lower
// or upper case, as shapelib looks for them). Point, PolyLine and Polygon files are read, with or
// without Z and M, which are dropped. Texts of the table that are not UTF-8 are read as Latin-1,
// the encoding of most older tables.
//
// Every failure is a std::runtime_error "<file>: <reason>" naming the file at fault, and nothing
// is half read: a missing companion file, a damaged one, a table whose records do not match the
// shapes, a geometry of another kind.
class ShapeFileReader {
 public:
  // The layer of the shapefile shp (a path ending in .shp). coordinateSystem, when given, is the
  // layer's and its .prj is not read: for a file that has none, or one PROJ does not recognise.
  static ShapeLayer read(const std::filesystem::path& shp,
                         const std::optional<CoordinateSystem>& coordinateSystem = std::nullopt);
};
