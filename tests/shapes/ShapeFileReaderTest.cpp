#include <gtest/gtest.h>

#include <filesystem>

#include "shapes/ShapeFileReader.h"
#include "shapes/ShapeFiles.h"
#include "support/ExpectThrow.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

using shapefiles::Column;
using shapefiles::Feature;

void expectParts(const ShapeLayer::Feature& read, const std::vector<std::vector<Point2D>>& parts) {
  ASSERT_EQ(read.parts.size(), parts.size());
  for (std::size_t part = 0; part < parts.size(); ++part) {
    ASSERT_EQ(read.parts[part].size(), parts[part].size());
    for (std::size_t point = 0; point < parts[part].size(); ++point) {
      EXPECT_EQ(read.parts[part][point].x, parts[part][point].x);
      EXPECT_EQ(read.parts[part][point].y, parts[part][point].y);
    }
  }
}

}  // namespace

TEST(ShapeFileReader, PointLineAndPolygonFilesAreReadBackWithTheirTables) {
  struct Case {
    int shapeType;
    ShapeLayer::Kind kind;
    std::vector<Feature> features;
  };
  const std::vector<Column> columns{{"NOME", FTString}, {"AREA_KM2", FTDouble}};
  const Case cases[] = {
      {SHPT_POINT,
       ShapeLayer::Kind::point,
       {{{{{-40.5, -9.4}}}, {"Sobradinho", "4214.5"}}, {{{{-38.2, -9.1}}}, {"Xingó", ""}}}},
      {SHPT_ARC,
       ShapeLayer::Kind::line,
       // A river in two pieces, and a canal.
       {{{{{-40.0, -9.0}, {-39.5, -9.2}, {-39.0, -9.3}}, {{-38.9, -9.3}, {-38.5, -9.4}}},
         {"Rio São Francisco", "0.25"}},
        {{{{-39.0, -8.0}, {-38.0, -8.5}}}, {"Canal", "12"}}}},
      {SHPT_POLYGON,
       ShapeLayer::Kind::polygon,
       // A basin with a hole, clockwise outside and anticlockwise inside.
       {{{{{0.0, 0.0}, {0.0, 10.0}, {10.0, 10.0}, {10.0, 0.0}, {0.0, 0.0}},
          {{2.0, 2.0}, {4.0, 2.0}, {4.0, 4.0}, {2.0, 4.0}, {2.0, 2.0}}},
         {"Bacia", "96"}}}},
  };
  TemporaryFolder folder("kova_shapes_");
  for (const auto& c : cases) {
    const std::string kind = ShapeLayer::kindName(c.kind);
    SCOPED_TRACE(kind);
    shapefiles::write(folder.file(kind), c.shapeType, columns, c.features,
                      shapefiles::kEsriSirgas2000);
    const ShapeLayer layer = ShapeFileReader::read(folder.file(kind + ".shp"));
    EXPECT_EQ(layer.getKind(), c.kind);
    EXPECT_EQ(layer.getFile(), folder.file(kind + ".shp"));
    EXPECT_EQ(layer.getCoordinateSystem().getEpsgCode(), 4674u);
    EXPECT_EQ(layer.getColumns(), (std::vector<std::string>{"NOME", "AREA_KM2"}));
    ASSERT_EQ(layer.getFeatures().size(), c.features.size());
    for (std::size_t i = 0; i < c.features.size(); ++i) {
      expectParts(layer.getFeatures()[i], c.features[i].parts);
      EXPECT_EQ(layer.getFeatures()[i].values[0], c.features[i].values[0]);
      const std::string& area = c.features[i].values[1];
      // Numbers come back as the table's text, which has the column's six decimals.
      if (area.empty()) {
        EXPECT_EQ(layer.getFeatures()[i].values[1], "");
      } else {
        EXPECT_DOUBLE_EQ(std::stod(layer.getFeatures()[i].values[1]), std::stod(area));
      }
    }
  }
}

TEST(ShapeFileReader, ZAndMAreDroppedAndEmptyShapesKeepTheirRecord) {
  TemporaryFolder folder("kova_shapes_");
  shapefiles::write(folder.file("z"), SHPT_POINTZ, {{"NOME", FTString}},
                    {{{{{-40.0, -9.0}}}, {"A"}}, {{}, {"Sem ponto"}}}, shapefiles::kEsriWgs84);
  const ShapeLayer layer = ShapeFileReader::read(folder.file("z.shp"));
  EXPECT_EQ(layer.getKind(), ShapeLayer::Kind::point);
  ASSERT_EQ(layer.getFeatures().size(), 2u);
  expectParts(layer.getFeatures()[0], {{{-40.0, -9.0}}});
  EXPECT_TRUE(layer.getFeatures()[1].parts.empty());
  EXPECT_EQ(layer.getFeatures()[1].values[0], "Sem ponto");
}

TEST(ShapeFileReader, ALatinOneTableIsReadAsUtf8) {
  TemporaryFolder folder("kova_shapes_");
  // "Três Marias" with ê as the single byte 0xEA of Latin-1; UTF-8 text passes unchanged.
  shapefiles::writeNamedPoints(folder.file("latin"),
                               {{"Tr\xEAs Marias", {-45.2, -18.2}},
                                {"Itaparica", {-38.3, -9.1}},
                                {"Três Marias", {-45.2, -18.2}}},
                               shapefiles::kEsriWgs84);
  const ShapeLayer layer = ShapeFileReader::read(folder.file("latin.shp"));
  EXPECT_EQ(layer.getFeatures()[0].values[0], "Três Marias");
  EXPECT_EQ(layer.getFeatures()[1].values[0], "Itaparica");
  EXPECT_EQ(layer.getFeatures()[2].values[0], "Três Marias");
}

TEST(ShapeFileReader, AGivenCoordinateSystemStandsForTheLayersPrj) {
  TemporaryFolder folder("kova_shapes_");
  shapefiles::writeNamedPoints(folder.file("noprj"), {{"A", {193000.0, 8249000.0}}}, "");
  const auto layer =
      ShapeFileReader::read(folder.file("noprj.shp"), CoordinateSystem::fromEpsg(31983));
  EXPECT_EQ(layer.getCoordinateSystem().getEpsgCode(), 31983u);
  EXPECT_EQ(layer.columnIndex("NOME"), 0u);
  EXPECT_THROW_TEXT(layer.columnIndex("NAME"), std::runtime_error,
                    folder.file("noprj.shp") + ": no column \"NAME\" (columns: NOME)");
}

TEST(ShapeFileReader, EachBadFileIsNamedWithWhatIsWrong) {
  TemporaryFolder folder("kova_shapes_");
  const auto base = [&](const std::string& name) {
    shapefiles::writeNamedPoints(folder.file(name), {{"A", {-40.0, -9.0}}, {"B", {-39.0, -9.5}}},
                                 shapefiles::kEsriSirgas2000);
    return folder.file(name);
  };
  struct Case {
    const char* what;
    std::string shp;
    std::string message;
  };
  std::vector<Case> cases;
  {
    const auto b = base("noshx");
    std::filesystem::remove(b + ".shx");
    cases.push_back(
        {"no index", b + ".shp",
         b + ".shx: missing (a shapefile comes with its .shx index and its .dbf table)"});
  }
  {
    const auto b = base("nodbf");
    std::filesystem::remove(b + ".dbf");
    cases.push_back(
        {"no table", b + ".shp",
         b + ".dbf: missing (a shapefile comes with its .shx index and its .dbf table)"});
  }
  {
    const auto b = base("noprj");
    std::filesystem::remove(b + ".prj");
    cases.push_back({"no projection", b + ".shp",
                     b + ".prj: missing: the layer's coordinate system is unknown"});
  }
  {
    const auto b = base("unknownprj");
    writeFile(b + ".prj", shapefiles::kEsriLocalTransverseMercator);
    cases.push_back({"unknown projection", b + ".shp",
                     b + ".prj: coordinate system \"Local_TM\" not recognised (no equivalent in "
                         "the EPSG register)"});
  }
  {
    const auto b = base("garbage");
    writeFile(b + ".shp", std::string(200, 'x'));
    cases.push_back(
        {"corrupt shapes", b + ".shp", b + ".shp: not a shapefile (its header is damaged)"});
  }
  {
    const auto b = base("badshx");
    writeFile(b + ".shx", std::string(200, 'x'));
    cases.push_back(
        {"corrupt index", b + ".shp", b + ".shx: not a shapefile (its header is damaged)"});
  }
  {
    const auto b = base("badbody");
    const std::string whole = readFile(b + ".shp");
    writeFile(b + ".shp", whole.substr(0, 100) + std::string(whole.size() - 100, 'x'));
    cases.push_back(
        {"corrupt shape", b + ".shp",
         b + ".shp: shape 0 has type UnknownShapeType in a Point layer (damaged file)"});
  }
  {
    const auto b = base("cut");
    const std::string whole = readFile(b + ".shp");
    writeFile(b + ".shp", whole.substr(0, whole.size() - 10));
    cases.push_back(
        {"truncated shapes", b + ".shp", b + ".shp: shape 1 cannot be read (damaged file)"});
  }
  {
    const auto b = base("baddbf");
    writeFile(b + ".dbf", "not a table");
    cases.push_back({"corrupt table", b + ".shp", b + ".dbf: not a dBASE table"});
  }
  {
    const auto b = base("fewer");
    shapefiles::writeNamedPoints(folder.file("one"), {{"A", {-40.0, -9.0}}}, "");
    std::filesystem::copy_file(folder.file("one.dbf"), b + ".dbf",
                               std::filesystem::copy_options::overwrite_existing);
    cases.push_back({"records and shapes differ", b + ".shp",
                     b + ".dbf: 1 record(s) for 2 shape(s) in fewer.shp"});
  }
  {
    const auto b = folder.file("multi");
    shapefiles::write(b, SHPT_MULTIPOINT, {{"NOME", FTString}},
                      {{{{{-40.0, -9.0}, {-39.0, -9.0}}}, {"A"}}}, shapefiles::kEsriWgs84);
    cases.push_back({"multipoints", b + ".shp",
                     b + ".shp: shapes of type MultiPoint are not read (only Point, Arc and "
                         "Polygon, with or without Z or M)"});
  }
  cases.push_back(
      {"no file", folder.file("absent.shp"), folder.file("absent.shp") + ": no such file"});
  cases.push_back(
      {"not a .shp", base("dbfgiven") + ".dbf", folder.file("dbfgiven.dbf") + ": not a .shp file"});

  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_THROW_TEXT(ShapeFileReader::read(c.shp), std::runtime_error, c.message);
  }
}
