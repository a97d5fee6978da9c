#pragma once

#include <shapefil.h>

#include <string>
#include <vector>

#include "common/Point2D.h"
#include "support/FileText.h"

// Shapefiles written with shapelib for the tests, and .prj texts as GIS programs write them.
namespace shapefiles {

struct Column {
  std::string name;
  DBFFieldType type;  // FTString or FTDouble
};

struct Feature {
  std::vector<std::vector<Point2D>> parts;  // none: a feature without geometry
  std::vector<std::string> values;          // "" writes a null
};

// Writes base.shp, base.shx and base.dbf with the features as shapes of shapeType (SHPT_POINT,
// SHPT_ARC, SHPT_POLYGON...), and base.prj with prj unless it is empty. base has no extension.
inline void write(const std::string& base, int shapeType, const std::vector<Column>& columns,
                  const std::vector<Feature>& features, const std::string& prj) {
  SHPHandle shapes = SHPCreate(base.c_str(), shapeType);
  DBFHandle table = DBFCreate(base.c_str());
  for (const auto& column : columns) {
    DBFAddField(table, column.name.c_str(), column.type, column.type == FTString ? 40 : 19,
                column.type == FTString ? 0 : 6);
  }
  for (int index = 0; index < static_cast<int>(features.size()); ++index) {
    const auto& feature = features[index];
    std::vector<double> x, y;
    std::vector<int> starts;
    for (const auto& part : feature.parts) {
      starts.push_back(static_cast<int>(x.size()));
      for (const auto& point : part) {
        x.push_back(point.x);
        y.push_back(point.y);
      }
    }
    SHPObject* shape = feature.parts.empty()
                           ? SHPCreateSimpleObject(SHPT_NULL, 0, nullptr, nullptr, nullptr)
                           : SHPCreateObject(shapeType, -1, static_cast<int>(starts.size()),
                                             starts.data(), nullptr, static_cast<int>(x.size()),
                                             x.data(), y.data(), nullptr, nullptr);
    SHPWriteObject(shapes, -1, shape);
    SHPDestroyObject(shape);
    for (int field = 0; field < static_cast<int>(columns.size()); ++field) {
      const std::string& value = feature.values.at(field);
      if (value.empty()) {
        DBFWriteNULLAttribute(table, index, field);
      } else if (columns[field].type == FTString) {
        DBFWriteStringAttribute(table, index, field, value.c_str());
      } else {
        DBFWriteDoubleAttribute(table, index, field, std::stod(value));
      }
    }
  }
  SHPClose(shapes);
  DBFClose(table);
  if (!prj.empty()) writeFile(base + ".prj", prj);
}

// A point layer with the single text column "NOME", one point a name.
inline void writeNamedPoints(const std::string& base,
                             const std::vector<std::pair<std::string, Point2D>>& points,
                             const std::string& prj) {
  std::vector<Feature> features;
  for (const auto& [name, point] : points) features.push_back({{{point}}, {name}});
  write(base, SHPT_POINT, {{"NOME", FTString}}, features, prj);
}

// ESRI's texts, as ArcGIS and QGIS write them beside a shapefile.
const char* const kEsriWgs84 =
    "GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\",6378137.0,"
    "298.257223563]],PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]";
const char* const kEsriSirgas2000 =
    "GEOGCS[\"GCS_SIRGAS_2000\",DATUM[\"D_SIRGAS_2000\",SPHEROID[\"GRS_1980\",6378137.0,"
    "298.257222101]],PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]";
const char* const kEsriSirgas2000Utm24S =
    "PROJCS[\"SIRGAS_2000_UTM_Zone_24S\",GEOGCS[\"GCS_SIRGAS_2000\",DATUM[\"D_SIRGAS_2000\","
    "SPHEROID[\"GRS_1980\",6378137.0,298.257222101]],PRIMEM[\"Greenwich\",0.0],"
    "UNIT[\"Degree\",0.0174532925199433]],PROJECTION[\"Transverse_Mercator\"],"
    "PARAMETER[\"False_Easting\",500000.0],PARAMETER[\"False_Northing\",10000000.0],"
    "PARAMETER[\"Central_Meridian\",-39.0],PARAMETER[\"Scale_Factor\",0.9996],"
    "PARAMETER[\"Latitude_Of_Origin\",0.0],UNIT[\"Meter\",1.0]]";
const char* const kEsriWgs84Utm23S =
    "PROJCS[\"WGS_1984_UTM_Zone_23S\",GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\","
    "SPHEROID[\"WGS_1984\",6378137.0,298.257223563]],PRIMEM[\"Greenwich\",0.0],"
    "UNIT[\"Degree\",0.0174532925199433]],PROJECTION[\"Transverse_Mercator\"],"
    "PARAMETER[\"False_Easting\",500000.0],PARAMETER[\"False_Northing\",10000000.0],"
    "PARAMETER[\"Central_Meridian\",-45.0],PARAMETER[\"Scale_Factor\",0.9996],"
    "PARAMETER[\"Latitude_Of_Origin\",0.0],UNIT[\"Meter\",1.0]]";
const char* const kEsriWgs84Utm33N =
    "PROJCS[\"WGS_1984_UTM_Zone_33N\",GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\","
    "SPHEROID[\"WGS_1984\",6378137.0,298.257223563]],PRIMEM[\"Greenwich\",0.0],"
    "UNIT[\"Degree\",0.0174532925199433]],PROJECTION[\"Transverse_Mercator\"],"
    "PARAMETER[\"False_Easting\",500000.0],PARAMETER[\"False_Northing\",0.0],"
    "PARAMETER[\"Central_Meridian\",15.0],PARAMETER[\"Scale_Factor\",0.9996],"
    "PARAMETER[\"Latitude_Of_Origin\",0.0],UNIT[\"Meter\",1.0]]";
// The OGC text with the register's names, codes and a datum shift, as GDAL writes it.
const char* const kOgcSirgas2000 =
    "GEOGCS[\"SIRGAS 2000\",DATUM[\"Sistema_de_Referencia_Geocentrico_para_las_AmericaS_2000\","
    "SPHEROID[\"GRS 1980\",6378137,298.257222101,AUTHORITY[\"EPSG\",\"7019\"]],"
    "TOWGS84[0,0,0,0,0,0,0],AUTHORITY[\"EPSG\",\"6674\"]],PRIMEM[\"Greenwich\",0,"
    "AUTHORITY[\"EPSG\",\"8901\"]],UNIT[\"degree\",0.0174532925199433,"
    "AUTHORITY[\"EPSG\",\"9122\"]],AUTHORITY[\"EPSG\",\"4674\"]]";
const char* const kOgcSirgas2000Utm23S =
    "PROJCS[\"SIRGAS 2000 / UTM zone 23S\",GEOGCS[\"SIRGAS 2000\",DATUM[\"Sistema_de_Referencia_"
    "Geocentrico_para_America_del_Sur_2000\",SPHEROID[\"GRS 1980\",6378137,298.257222101]],"
    "PRIMEM[\"Greenwich\",0],UNIT[\"degree\",0.0174532925199433]],"
    "PROJECTION[\"Transverse_Mercator\"],PARAMETER[\"latitude_of_origin\",0],"
    "PARAMETER[\"central_meridian\",-45],PARAMETER[\"scale_factor\",0.9996],"
    "PARAMETER[\"false_easting\",500000],PARAMETER[\"false_northing\",10000000],"
    "UNIT[\"metre\",1]]";
// UTM zone 23 S on WGS 84 under a name of the user's.
const char* const kEsriNamedUtm23S =
    "PROJCS[\"Minha_Projecao\",GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\","
    "6378137.0,298.257223563]],PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]],"
    "PROJECTION[\"Transverse_Mercator\"],PARAMETER[\"False_Easting\",500000.0],"
    "PARAMETER[\"False_Northing\",10000000.0],PARAMETER[\"Central_Meridian\",-45.0],"
    "PARAMETER[\"Scale_Factor\",0.9996],PARAMETER[\"Latitude_Of_Origin\",0.0],"
    "UNIT[\"Meter\",1.0]]";
// A geographic system on the GRS 1980 ellipsoid with a datum of no name: SIRGAS 2000 and a
// hundred others share that ellipsoid.
const char* const kEsriUnknownDatum =
    "GEOGCS[\"GCS_Qualquer\",DATUM[\"D_Qualquer\",SPHEROID[\"GRS_1980\",6378137.0,"
    "298.257222101]],PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]";
// A transverse Mercator of a local survey: the register has none like it.
const char* const kEsriLocalTransverseMercator =
    "PROJCS[\"Local_TM\",GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\","
    "6378137.0,298.257223563]],PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]],"
    "PROJECTION[\"Transverse_Mercator\"],PARAMETER[\"False_Easting\",123456.0],"
    "PARAMETER[\"False_Northing\",0.0],PARAMETER[\"Central_Meridian\",-47.3],"
    "PARAMETER[\"Scale_Factor\",0.9999],PARAMETER[\"Latitude_Of_Origin\",0.0],"
    "UNIT[\"Meter\",1.0]]";

}  // namespace shapefiles
