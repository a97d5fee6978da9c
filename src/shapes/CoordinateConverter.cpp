#include "shapes/CoordinateConverter.h"

#include <cmath>
#include <sstream>
#include <stdexcept>
#include <string>

#include "ProjHandles.h"

// The context and the operation; the operation is destroyed before its context.
struct CoordinateConverter::Proj {
  ProjContext context = makeQuietProjContext();
  ProjObject operation;
};

namespace {

std::string epsg(const CoordinateSystem& system) {
  return "EPSG:" + std::to_string(system.getEpsgCode());
}

}  // namespace

CoordinateConverter::CoordinateConverter(const CoordinateSystem& from, const CoordinateSystem& to)
    : from(from), to(to), proj(std::make_unique<Proj>()) {
  PJ_CONTEXT* context = proj->context.get();
  const ProjObject operation(
      proj_create_crs_to_crs(context, epsg(from).c_str(), epsg(to).c_str(), nullptr));
  // The register orders latitude before longitude for most geographic systems; a map, and the
  // nodes of a network, order longitude first.
  if (operation) proj->operation.reset(proj_normalize_for_visualization(context, operation.get()));
  if (!proj->operation) {
    throw std::runtime_error("CoordinateConverter: no conversion from " + from.describe() + " to " +
                             to.describe());
  }
}

CoordinateConverter::~CoordinateConverter() = default;

Point2D CoordinateConverter::forward(const Point2D& position) const {
  return convert(position, true);
}

Point2D CoordinateConverter::inverse(const Point2D& position) const {
  return convert(position, false);
}

Point2D CoordinateConverter::convert(const Point2D& position, bool toSecond) const {
  const PJ_COORD result = proj_trans(proj->operation.get(), toSecond ? PJ_FWD : PJ_INV,
                                     proj_coord(position.x, position.y, 0.0, 0.0));
  if (!std::isfinite(result.xy.x) || !std::isfinite(result.xy.y)) {
    std::ostringstream text;
    text.precision(17);
    text << "CoordinateConverter: (" << position.x << ", " << position.y
         << ") cannot be converted from " << (toSecond ? from : to).describe() << " to "
         << (toSecond ? to : from).describe();
    throw std::runtime_error(text.str());
  }
  return {result.xy.x, result.xy.y};
}
