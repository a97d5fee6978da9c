#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>

#include "DemoCopy.h"
#include "ExitStatus.h"
#include "KovaInProcess.h"
#include "OpenProject.h"
#include "core/Node.h"
#include "core/Scenario.h"
#include "shapes/CoordinateConverter.h"
#include "shapes/ShapeFiles.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

constexpr double kNanoDegree = 1e-9;  // °

// Sobradinho's and Itaparica's dams in SIRGAS 2000 degrees (longitude, latitude).
const Point2D kSobradinho{-40.8317, -9.4294};
const Point2D kItaparica{-38.3117, -9.1417};

// In folder: usinas.shp, points in SIRGAS 2000 / UTM 24S named in column NOME; rio.shp, a line in
// WGS 84 degrees; bacia.shp, a polygon in SIRGAS 2000 degrees.
void writeLayers(const TemporaryFolder& folder) {
  const CoordinateConverter toUtm(CoordinateSystem::fromEpsg(4674),
                                  CoordinateSystem::fromEpsg(31984));
  shapefiles::writeNamedPoints(folder.file("usinas"),
                               {{"Sobradinho", toUtm.forward(kSobradinho)},
                                {"Itaparica", toUtm.forward(kItaparica)},
                                {"Paulo Afonso IV", {585000.0, 8959000.0}}},
                               shapefiles::kEsriSirgas2000Utm24S);
  shapefiles::write(folder.file("rio"), SHPT_ARC, {{"NOME", FTString}},
                    {{{{kSobradinho, {-39.5, -9.2}, kItaparica}}, {"Rio São Francisco"}}},
                    shapefiles::kEsriWgs84);
  shapefiles::write(folder.file("bacia"), SHPT_POLYGON, {{"AREA_KM2", FTDouble}},
                    {{{{{-45.0, -8.0}, {-37.0, -8.0}, {-37.0, -20.0}, {-45.0, -8.0}}}, {"639219"}}},
                    shapefiles::kEsriSirgas2000);
}

Point2D positionOf(const Scenario& scenario, const std::string& name) {
  const auto node = std::dynamic_pointer_cast<Node>(scenario.getElement(name));
  EXPECT_TRUE(node) << "no node named " << name;
  return node ? node->getPosition() : Point2D{std::nan(""), std::nan("")};
}

}  // namespace

TEST(KovaImportShapes, LayersAreAttachedAndNodesPlacedAndTheProjectReloadsWithThem) {
  TemporaryFolder folder("kova_shapes_");
  const std::string project = copyOfDemo(folder);
  writeLayers(folder);
  const auto imported =
      kova({"import-shapes", project, "--scenario", "Regras", folder.file("usinas.shp"),
            folder.file("rio.shp"), folder.file("bacia.shp"), "--name-field", "NOME"});
  ASSERT_EQ(imported.status, exitOk) << imported.err;
  const std::string out = imported.out;
  const std::string placed =
      "Sobradinho: placed at -40.831700, -9.429400\n"
      "Itaparica: placed at -38.311700, -9.141700\n"
      "nodes no point names, left where they were: Retiro Baixo, Três Marias, Queimado, ";
  EXPECT_EQ(out.substr(0, placed.size()), placed);
  const std::string attached =
      "\nnames of points without a node, ignored: Paulo Afonso IV\n" + folder.file("usinas.shp") +
      ": point layer, 3 feature(s), EPSG:31984 (SIRGAS 2000 / UTM zone 24S); attached\n" +
      folder.file("rio.shp") + ": line layer, 1 feature(s), EPSG:4326 (WGS 84); attached\n" +
      folder.file("bacia.shp") +
      ": polygon layer, 1 feature(s), EPSG:4674 (SIRGAS 2000); attached\n"
      "scenario \"Regras\" saved in " +
      project + "\n";
  ASSERT_GT(out.size(), attached.size());
  EXPECT_EQ(out.substr(out.size() - attached.size()), attached);

  OpenProject reloaded(project);
  const auto rules = reloaded.scenario("Regras");
  const auto& layers = rules->getVectorOfPathInfo();
  ASSERT_EQ(layers.size(), 3u);
  EXPECT_EQ(layers[0].filename, "usinas.shp");
  EXPECT_EQ(layers[0].fullpath, folder.file("usinas.shp"));
  EXPECT_EQ(layers[2].filename, "bacia.shp");
  EXPECT_NEAR(positionOf(*rules, "Sobradinho").x, kSobradinho.x, kNanoDegree);
  EXPECT_NEAR(positionOf(*rules, "Sobradinho").y, kSobradinho.y, kNanoDegree);
  EXPECT_NEAR(positionOf(*rules, "Itaparica").x, kItaparica.x, kNanoDegree);
  EXPECT_NEAR(positionOf(*rules, "Itaparica").y, kItaparica.y, kNanoDegree);
  // The other scenario of the project is as it was.
  const auto priorities = reloaded.scenario("Prioridades");
  EXPECT_TRUE(priorities->getVectorOfPathInfo().empty());
  EXPECT_EQ(positionOf(*priorities, "Moxotó").x, positionOf(*rules, "Moxotó").x);
  EXPECT_NE(positionOf(*priorities, "Sobradinho").x, positionOf(*rules, "Sobradinho").x);
}

TEST(KovaImportShapes, ALayerIsAttachedOnceAndAFileWithoutPrjTakesTheGivenSystem) {
  TemporaryFolder folder("kova_shapes_");
  const std::string project = copyOfDemo(folder);
  shapefiles::writeNamedPoints(folder.file("sem_prj"), {{"Moxotó", {-38.2, -9.35}}}, "");
  const std::vector<std::string> args{
      "import-shapes", project, "--scenario", "Prioridades", folder.file("sem_prj.shp"),
      "--layer-epsg",  "4674",  "--quiet"};
  const auto first = kova(args);
  ASSERT_EQ(first.status, exitOk) << first.err;
  EXPECT_NE(first.out.find("; attached\n"), std::string::npos) << first.out;
  const auto again = kova(args);
  ASSERT_EQ(again.status, exitOk) << again.err;
  EXPECT_NE(again.out.find("; already attached\n"), std::string::npos) << again.out;
  OpenProject reloaded(project);
  EXPECT_EQ(reloaded.scenario("Prioridades")->getVectorOfPathInfo().size(), 1u);
}

TEST(KovaImportShapes, BadInputIsNamedAndLeavesTheProjectAsItWas) {
  TemporaryFolder folder("kova_shapes_");
  const std::string project = copyOfDemo(folder);
  writeLayers(folder);
  shapefiles::writeNamedPoints(folder.file("local"), {{"Sobradinho", {1.0, 2.0}}}, "");
  writeFile(folder.file("local.prj"), shapefiles::kEsriLocalTransverseMercator);
  std::filesystem::copy_file(folder.file("usinas.shp"), folder.file("sem_dbf.shp"));
  std::filesystem::copy_file(folder.file("usinas.shx"), folder.file("sem_dbf.shx"));
  const std::string before = readFile(project);
  struct Case {
    std::vector<std::string> args;  // after the project
    std::string error;              // how the error stream starts
  };
  const std::string prefix = "kova import-shapes: ";
  const std::string usinas = folder.file("usinas.shp");
  const Case cases[] = {
      {{"--scenario", "Regras", usinas, folder.file("local.shp")},
       prefix + folder.file("local.prj") +
           ": coordinate system \"Local_TM\" not recognised (no equivalent in the EPSG "
           "register)\n"},
      {{"--scenario", "Regras", folder.file("sem_dbf.shp")},
       prefix + folder.file("sem_dbf.dbf") +
           ": missing (a shapefile comes with its .shx index and its .dbf table)\n"},
      {{"--scenario", "Regras", usinas, "--name-field", "NAME"},
       prefix + usinas + ": no column \"NAME\" (columns: NOME)\n"},
      {{"--scenario", "Regras", folder.file("rio.shp"), "--name-field", "NOME"},
       prefix + "option --name-field: none of the files is a point layer; try 'kova "
                "import-shapes --help'\n"},
      {{"--scenario", "Regras", folder.file("local.shp"), "--layer-epsg", "5714"},
       prefix + "option --layer-epsg: EPSG:5714 is not a geographic or projected coordinate "
                "system; try 'kova import-shapes --help'\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.error);
    std::vector<std::string> args{"import-shapes", project};
    args.insert(args.end(), c.args.begin(), c.args.end());
    const auto run = kova(args);
    EXPECT_EQ(run.status, exitUsage);
    EXPECT_EQ(run.err, c.error);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(readFile(project), before);
  }
}
