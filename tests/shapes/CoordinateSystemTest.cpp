#include <gtest/gtest.h>

#include "shapes/CoordinateSystem.h"
#include "shapes/ShapeFiles.h"
#include "support/ExpectThrow.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

struct Recognised {
  const char* what;
  const char* prj;
  unsigned int epsgCode;
  const char* name;
  bool geographic;
};

}  // namespace

TEST(CoordinateSystem, EachKindOfPrjIsRecognisedAsItsEpsgSystem) {
  using namespace shapefiles;
  const Recognised table[] = {
      {"ESRI, geographic WGS 84", kEsriWgs84, 4326, "WGS 84", true},
      {"ESRI, geographic SIRGAS 2000", kEsriSirgas2000, 4674, "SIRGAS 2000", true},
      {"OGC with a datum shift, SIRGAS 2000", kOgcSirgas2000, 4674, "SIRGAS 2000", true},
      {"ESRI, WGS 84 UTM south", kEsriWgs84Utm23S, 32723, "WGS 84 / UTM zone 23S", false},
      {"ESRI, WGS 84 UTM north", kEsriWgs84Utm33N, 32633, "WGS 84 / UTM zone 33N", false},
      {"ESRI, SIRGAS 2000 UTM south", kEsriSirgas2000Utm24S, 31984, "SIRGAS 2000 / UTM zone 24S",
       false},
      {"OGC, SIRGAS 2000 UTM south", kOgcSirgas2000Utm23S, 31983, "SIRGAS 2000 / UTM zone 23S",
       false},
      {"ESRI, UTM under a name of its own", kEsriNamedUtm23S, 32723, "WGS 84 / UTM zone 23S",
       false},
  };
  TemporaryFolder folder("kova_crs_");
  for (const auto& row : table) {
    SCOPED_TRACE(row.what);
    writeFile(folder.file("layer.prj"), row.prj);
    const auto system = CoordinateSystem::fromPrjFile(folder.file("layer.prj"));
    EXPECT_EQ(system.getEpsgCode(), row.epsgCode);
    EXPECT_EQ(system.getName(), row.name);
    EXPECT_EQ(system.isGeographic(), row.geographic);
    EXPECT_EQ(system, CoordinateSystem::fromEpsg(row.epsgCode));
  }
}

TEST(CoordinateSystem, ATextNotRecognisedIsRefusedNamingItsFile) {
  TemporaryFolder folder("kova_crs_");
  const std::string prj = folder.file("local.prj");
  writeFile(prj, shapefiles::kEsriLocalTransverseMercator);
  EXPECT_THROW_TEXT(
      CoordinateSystem::fromPrjFile(prj), std::runtime_error,
      prj + ": coordinate system \"Local_TM\" not recognised (no equivalent in the EPSG register)");

  writeFile(prj, shapefiles::kEsriUnknownDatum);
  EXPECT_THROW_TEXT(CoordinateSystem::fromPrjFile(prj), std::runtime_error,
                    prj +
                        ": coordinate system \"GCS_Qualquer\" not recognised (no equivalent in "
                        "the EPSG register)");

  writeFile(prj, "+proj=utm +zone=23 +south");
  EXPECT_THROW_TEXT(CoordinateSystem::fromPrjFile(prj), std::runtime_error,
                    prj + ": not a WKT description of a coordinate system");
  writeFile(prj, "");
  EXPECT_THROW_TEXT(CoordinateSystem::fromPrjFile(prj), std::runtime_error,
                    prj + ": not a WKT description of a coordinate system");

  // An earth-centred system has no map position to give a node.
  writeFile(prj,
            "GEOCCS[\"WGS 84\",DATUM[\"WGS_1984\",SPHEROID[\"WGS 84\",6378137,298.257223563]],"
            "PRIMEM[\"Greenwich\",0],UNIT[\"metre\",1],AXIS[\"Geocentric X\",OTHER],"
            "AXIS[\"Geocentric Y\",OTHER],AXIS[\"Geocentric Z\",NORTH]]");
  EXPECT_THROW_TEXT(CoordinateSystem::fromPrjFile(prj), std::runtime_error,
                    prj + ": \"WGS 84\" is neither a geographic nor a projected coordinate system");

  EXPECT_THROW_TEXT(CoordinateSystem::fromPrjFile(folder.file("none.prj")), std::runtime_error,
                    folder.file("none.prj") + ": cannot be read");
}

TEST(CoordinateSystem, ACodeOutsideTheRegisterIsRefused) {
  EXPECT_EQ(CoordinateSystem::fromEpsg(4674).describe(), "EPSG:4674 (SIRGAS 2000)");
  EXPECT_THROW_TEXT(
      CoordinateSystem::fromEpsg(99999), std::invalid_argument,
      "CoordinateSystem::fromEpsg(): EPSG:99999 is not a geographic or projected coordinate "
      "system");
  // EPSG:5714 is a height (mean sea level), not a position.
  EXPECT_THROW_TEXT(
      CoordinateSystem::fromEpsg(5714), std::invalid_argument,
      "CoordinateSystem::fromEpsg(): EPSG:5714 is not a geographic or projected coordinate "
      "system");
}
