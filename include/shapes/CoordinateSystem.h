#pragma once

#include <filesystem>
#include <string>

// A coordinate reference system of the EPSG register, as PROJ's database knows it: geographic
// (longitude, latitude in degrees) or projected (easting, northing, in metres for the UTM zones).
// A system is held by its EPSG code, so that two descriptions of one system (the OGC and the ESRI
// texts of a .prj, "GCS_SIRGAS_2000" and "SIRGAS 2000") compare equal.
//
// A .prj is recognised by PROJ: it reads the text in either dialect and identifies it against the
// register. Only a system that PROJ finds equivalent (the same datum and projection, whatever
// its name) is taken, and only when it is the one best match; a description that merely
// resembles registered systems (a projection with other parameters, an unnamed datum on a known
// ellipsoid) is refused rather than guessed.
class CoordinateSystem {
 public:
  // The system with that EPSG code. Throws std::invalid_argument
  // "CoordinateSystem::fromEpsg(): EPSG:<code> is not a geographic or projected coordinate system"
  // when the register has no such system.
  static CoordinateSystem fromEpsg(unsigned int code);
  // The system that a WKT text describes; source names the text in messages (its file). Throws
  // std::runtime_error "<source>: <reason>" when the text is not WKT, describes neither a
  // geographic nor a projected system, or has no equivalent in the register.
  static CoordinateSystem fromWkt(const std::string& wkt, const std::string& source);
  // The system of a shapefile's .prj file. Throws std::runtime_error "<file>: <reason>" when the
  // file cannot be read, as fromWkt otherwise.
  static CoordinateSystem fromPrjFile(const std::filesystem::path& prj);

  unsigned int getEpsgCode() const { return epsgCode; }
  // The register's name, "SIRGAS 2000 / UTM zone 23S".
  const std::string& getName() const { return name; }
  bool isGeographic() const { return geographic; }
  // "EPSG:31983 (SIRGAS 2000 / UTM zone 23S)".
  std::string describe() const;

  bool operator==(const CoordinateSystem& other) const { return epsgCode == other.epsgCode; }
  bool operator!=(const CoordinateSystem& other) const { return !(*this == other); }

 private:
  CoordinateSystem(unsigned int epsgCode, std::string name, bool geographic);

  unsigned int epsgCode;
  std::string name;
  bool geographic;
};
