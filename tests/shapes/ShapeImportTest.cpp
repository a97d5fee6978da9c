#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "core/Node.h"
#include "shapes/CoordinateConverter.h"
#include "shapes/ShapeFileReader.h"
#include "shapes/ShapeFiles.h"
#include "shapes/ShapeImport.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"
#include "support/TemporaryFolder.h"

namespace {

constexpr double kNanoDegree = 1e-9;  // °, about 0.1 mm on the ground

// A scenario with the nodes Sobradinho, Itaparica and Xingó at (1, 1), (2, 2) and (3, 3).
std::shared_ptr<RuleScenario> threeNodes() {
  NetworkBuilder network(NetworkBuilder::monthly(2000, 2000));
  const char* names[] = {"Sobradinho", "Itaparica", "Xingó"};
  for (int i = 0; i < 3; ++i) {
    auto node = network.node(ElementType::reservoir);
    node->setName(names[i]);
    node->setX(i + 1.0);
    node->setY(i + 1.0);
  }
  network.link(std::static_pointer_cast<Node>(network.scenario->getElement("Sobradinho")),
               std::static_pointer_cast<Node>(network.scenario->getElement("Itaparica")));
  return network.scenario;
}

Point2D positionOf(const Scenario& scenario, const std::string& name) {
  const auto node = std::dynamic_pointer_cast<Node>(scenario.getElement(name));
  EXPECT_TRUE(node) << "no node named " << name;
  return node ? node->getPosition() : Point2D{std::nan(""), std::nan("")};
}

}  // namespace

TEST(ShapeImport, ALayerIsAttachedOnceByItsAbsolutePath) {
  TemporaryFolder folder("kova_import_");
  shapefiles::writeNamedPoints(folder.file("postos"), {{"A", {-40.0, -9.0}}},
                               shapefiles::kEsriSirgas2000);
  const auto scenario = threeNodes();
  const std::filesystem::path relative =
      std::filesystem::relative(folder.file("postos.shp"), std::filesystem::current_path());
  const ShapeLayer layer = ShapeFileReader::read(relative);
  EXPECT_TRUE(ShapeImport::attach(*scenario, layer));
  EXPECT_FALSE(ShapeImport::attach(*scenario, ShapeFileReader::read(folder.file("postos.shp"))));
  ASSERT_EQ(scenario->getVectorOfPathInfo().size(), 1u);
  EXPECT_EQ(scenario->getVectorOfPathInfo()[0].filename, "postos.shp");
  EXPECT_EQ(scenario->getVectorOfPathInfo()[0].fullpath, folder.file("postos.shp"));
}

TEST(ShapeImport, APathTheProjectFileCannotKeepIsRefused) {
  TemporaryFolder folder("kova_import_");
  const std::string base = folder.file("say \"rio\"");
  shapefiles::writeNamedPoints(base, {{"A", {-40.0, -9.0}}}, shapefiles::kEsriSirgas2000);
  const auto scenario = threeNodes();
  EXPECT_THROW_TEXT(ShapeImport::attach(*scenario, ShapeFileReader::read(base + ".shp")),
                    std::runtime_error,
                    base +
                        ".shp: the project file cannot keep a path with a double quote, a "
                        "backslash or a control character");
  EXPECT_TRUE(scenario->getVectorOfPathInfo().empty());
}

TEST(ShapeImport, AUtmPointLayerPlacesTheNodesItNamesInDegrees) {
  TemporaryFolder folder("kova_import_");
  // The positions in SIRGAS 2000 degrees, written into the layer in its zone 24 S.
  const Point2D sobradinho{-40.8317, -9.4294}, xingo{-37.7944, -9.6181};
  const CoordinateConverter toUtm(CoordinateSystem::fromEpsg(4674),
                                  CoordinateSystem::fromEpsg(31984));
  shapefiles::writeNamedPoints(folder.file("usinas"),
                               {{"Xingó", toUtm.forward(xingo)},
                                {"Paulo Afonso", {570000.0, 8960000.0}},
                                {"Sobradinho", toUtm.forward(sobradinho)},
                                {"", {0.0, 0.0}}},
                               shapefiles::kEsriSirgas2000Utm24S);
  const auto scenario = threeNodes();
  const auto placement = ShapeImport::placeNodes(
      *scenario, {ShapeFileReader::read(folder.file("usinas.shp"))}, "NOME");
  EXPECT_EQ(placement.placed, (std::vector<std::string>{"Xingó", "Sobradinho"}));
  EXPECT_EQ(placement.nodesNotInLayers, (std::vector<std::string>{"Itaparica"}));
  EXPECT_EQ(placement.namesWithoutNode, (std::vector<std::string>{"Paulo Afonso"}));
  EXPECT_NEAR(positionOf(*scenario, "Sobradinho").x, sobradinho.x, kNanoDegree);
  EXPECT_NEAR(positionOf(*scenario, "Sobradinho").y, sobradinho.y, kNanoDegree);
  EXPECT_NEAR(positionOf(*scenario, "Xingó").x, xingo.x, kNanoDegree);
  EXPECT_NEAR(positionOf(*scenario, "Xingó").y, xingo.y, kNanoDegree);
  EXPECT_EQ(positionOf(*scenario, "Itaparica").x, 2.0);
  EXPECT_EQ(positionOf(*scenario, "Itaparica").y, 2.0);
}

TEST(ShapeImport, ALayerInTheScenariosSystemIsTakenAsItIs) {
  TemporaryFolder folder("kova_import_");
  shapefiles::writeNamedPoints(folder.file("a"), {{"Itaparica", {-38.31234567, -9.14321}}},
                               shapefiles::kOgcSirgas2000);
  shapefiles::writeNamedPoints(folder.file("b"), {{"Xingó", {-37.7944, -9.6181}}},
                               shapefiles::kEsriSirgas2000);
  const auto scenario = threeNodes();
  const auto placement = ShapeImport::placeNodes(
      *scenario,
      {ShapeFileReader::read(folder.file("a.shp")), ShapeFileReader::read(folder.file("b.shp"))},
      "NOME");
  EXPECT_EQ(placement.placed, (std::vector<std::string>{"Itaparica", "Xingó"}));
  EXPECT_EQ(positionOf(*scenario, "Itaparica").x, -38.31234567);
  EXPECT_EQ(positionOf(*scenario, "Itaparica").y, -9.14321);
}

TEST(ShapeImport, NothingMovesWhenTheLayersCannotPlaceTheNodes) {
  TemporaryFolder folder("kova_import_");
  shapefiles::writeNamedPoints(folder.file("a"), {{"Sobradinho", {-40.8, -9.4}}},
                               shapefiles::kEsriSirgas2000);
  shapefiles::writeNamedPoints(folder.file("b"),
                               {{"Xingó", {-37.8, -9.6}}, {"Sobradinho", {-40.9, -9.5}}},
                               shapefiles::kEsriSirgas2000);
  shapefiles::write(folder.file("rio"), SHPT_ARC, {{"NOME", FTString}},
                    {{{{{-40.0, -9.0}, {-39.0, -9.5}}}, {"Rio"}}}, shapefiles::kEsriSirgas2000);
  const auto a = ShapeFileReader::read(folder.file("a.shp"));
  const auto b = ShapeFileReader::read(folder.file("b.shp"));
  const auto river = ShapeFileReader::read(folder.file("rio.shp"));
  const auto scenario = threeNodes();

  EXPECT_THROW_TEXT(ShapeImport::placeNodes(*scenario, {a, b}, "NOME"), std::runtime_error,
                    folder.file("b.shp") + ": \"Sobradinho\" names two points (" +
                        folder.file("a.shp") + " feature 0 and " + folder.file("b.shp") +
                        " feature 1)");
  EXPECT_THROW_TEXT(ShapeImport::placeNodes(*scenario, {a, river}, "NOME"), std::invalid_argument,
                    "ShapeImport::placeNodes(): " + folder.file("rio.shp") +
                        " is a line layer, not a point layer");
  shapefiles::writeNamedPoints(folder.file("far"), {{"Xingó", {1e9, 8e6}}},
                               shapefiles::kEsriSirgas2000Utm24S);
  EXPECT_THROW_TEXT(
      ShapeImport::placeNodes(*scenario, {a, ShapeFileReader::read(folder.file("far.shp"))},
                              "NOME"),
      std::runtime_error,
      folder.file("far.shp") +
          " feature 0: CoordinateConverter: (1000000000, 8000000) cannot be converted from "
          "EPSG:31984 (SIRGAS 2000 / UTM zone 24S) to EPSG:4674 (SIRGAS 2000)");
  EXPECT_THROW_TEXT(ShapeImport::placeNodes(*scenario, {a}, "NAME"), std::runtime_error,
                    folder.file("a.shp") + ": no column \"NAME\" (columns: NOME)");
  for (const char* name : {"Sobradinho", "Itaparica", "Xingó"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(positionOf(*scenario, name).x, positionOf(*scenario, name).y);
    EXPECT_LT(positionOf(*scenario, name).x, 4.0);
  }
}
