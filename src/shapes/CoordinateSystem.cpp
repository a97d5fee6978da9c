#include "shapes/CoordinateSystem.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "ProjHandles.h"

namespace {

// PROJ rates an identification 100 when the systems and their names are the same, 90 when the
// names differ in form (an ESRI text against the register's names) and 70 when a system has a
// name of its own but the same datum and projection; below that only the names or the ellipsoid
// resemble, which says nothing of the datum.
constexpr int kEquivalent = 70;

std::string nameOf(const PJ* crs) {
  const char* name = proj_get_name(crs);
  return name ? name : "";
}

bool isGeographicOrProjected(const PJ* crs) {
  const PJ_TYPE type = proj_get_type(crs);
  return type == PJ_TYPE_GEOGRAPHIC_2D_CRS || type == PJ_TYPE_PROJECTED_CRS;
}

// A text with a datum shift to WGS 84 (TOWGS84) reads as a bound system: the system proper is
// its source.
ProjObject withoutDatumShift(PJ_CONTEXT* context, ProjObject crs) {
  if (proj_get_type(crs.get()) != PJ_TYPE_BOUND_CRS) return crs;
  return ProjObject(proj_get_source_crs(context, crs.get()));
}

// The EPSG code of the register's system equivalent to crs; 0 when there is none, or when two
// are equally so.
unsigned int identify(PJ_CONTEXT* context, const PJ* crs) {
  int* confidence = nullptr;
  const ProjList matches(proj_identify(context, crs, "EPSG", nullptr, &confidence));
  const int count = matches ? proj_list_get_count(matches.get()) : 0;
  unsigned int code = 0;
  // The matches come best first.
  if (count > 0 && confidence[0] >= kEquivalent && (count == 1 || confidence[1] < confidence[0])) {
    const ProjObject best(proj_list_get(context, matches.get(), 0));
    const char* id = proj_get_id_code(best.get(), 0);
    if (id) code = static_cast<unsigned int>(std::stoul(id));
  }
  proj_int_list_destroy(confidence);
  return code;
}

}  // namespace

CoordinateSystem::CoordinateSystem(unsigned int epsgCode, std::string name, bool geographic)
    : epsgCode(epsgCode), name(std::move(name)), geographic(geographic) {}

CoordinateSystem CoordinateSystem::fromEpsg(unsigned int code) {
  const ProjContext context = makeQuietProjContext();
  const ProjObject crs(proj_create_from_database(
      context.get(), "EPSG", std::to_string(code).c_str(), PJ_CATEGORY_CRS, false, nullptr));
  if (!crs || !isGeographicOrProjected(crs.get())) {
    throw std::invalid_argument("CoordinateSystem::fromEpsg(): EPSG:" + std::to_string(code) +
                                " is not a geographic or projected coordinate system");
  }
  return {code, nameOf(crs.get()), proj_get_type(crs.get()) == PJ_TYPE_GEOGRAPHIC_2D_CRS};
}

CoordinateSystem CoordinateSystem::fromWkt(const std::string& wkt, const std::string& source) {
  const ProjContext context = makeQuietProjContext();
  PROJ_STRING_LIST warnings = nullptr;
  PROJ_STRING_LIST errors = nullptr;
  ProjObject read(proj_create_from_wkt(context.get(), wkt.c_str(), nullptr, &warnings, &errors));
  proj_string_list_destroy(warnings);
  proj_string_list_destroy(errors);
  if (!read) {
    throw std::runtime_error(source + ": not a WKT description of a coordinate system");
  }
  const ProjObject crs = withoutDatumShift(context.get(), std::move(read));
  const std::string described = crs ? nameOf(crs.get()) : "";
  if (!crs || !isGeographicOrProjected(crs.get())) {
    throw std::runtime_error(source + ": \"" + described +
                             "\" is neither a geographic nor a projected coordinate system");
  }
  const unsigned int code = identify(context.get(), crs.get());
  if (code == 0) {
    throw std::runtime_error(source + ": coordinate system \"" + described +
                             "\" not recognised (no equivalent in the EPSG register)");
  }
  return fromEpsg(code);
}

CoordinateSystem CoordinateSystem::fromPrjFile(const std::filesystem::path& prj) {
  std::ifstream file(prj);
  if (!file) throw std::runtime_error(prj.string() + ": cannot be read");
  std::ostringstream text;
  text << file.rdbuf();
  return fromWkt(text.str(), prj.string());
}

std::string CoordinateSystem::describe() const {
  return "EPSG:" + std::to_string(epsgCode) + " (" + name + ")";
}
