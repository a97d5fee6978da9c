#pragma once

#include <memory>

#include "common/Point2D.h"
#include "shapes/CoordinateSystem.h"

// Converts positions from one coordinate system to another with PROJ: between a UTM zone and
// geodetic longitude and latitude, between datums (SIRGAS 2000 and WGS 84), or between any two
// systems of the register. Positions are (x, y) in the order a map shows them: longitude and
// latitude in degrees for a geographic system, easting and northing for a projected one, whatever
// axis order the register gives the system.
//
// Each converter has a PROJ context of its own, freed with it: converters on different threads
// share nothing, and one converter is used by one thread at a time.
class CoordinateConverter {
 public:
  // Throws std::runtime_error "CoordinateConverter: no conversion from <from> to <to>" when PROJ
  // knows no way between the two systems.
  CoordinateConverter(const CoordinateSystem& from, const CoordinateSystem& to);
  ~CoordinateConverter();
  CoordinateConverter(const CoordinateConverter&) = delete;
  CoordinateConverter& operator=(const CoordinateConverter&) = delete;

  // position, given in the first system, in the second. Throws std::runtime_error
  // "CoordinateConverter: (<x>, <y>) cannot be converted from <from> to <to>" for a position
  // outside the first system's domain (a latitude beyond 90°).
  Point2D forward(const Point2D& position) const;
  // position, given in the second system, in the first; throws as forward.
  Point2D inverse(const Point2D& position) const;

  const CoordinateSystem& getFrom() const { return from; }
  const CoordinateSystem& getTo() const { return to; }

 private:
  struct Proj;

  Point2D convert(const Point2D& position, bool toSecond) const;

  CoordinateSystem from;
  CoordinateSystem to;
  std::unique_ptr<Proj> proj;
};
