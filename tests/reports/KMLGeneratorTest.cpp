#include <gtest/gtest.h>

#include <filesystem>
#include <iomanip>
#include <memory>
#include <sstream>
#include <string>

#include "core/ElementsFilter.h"
#include "reports/KMLGenerator.h"
#include "support/ExpectThrow.h"
#include "support/FileText.h"
#include "support/NetworkBuilder.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

// The head of every map, with the icon the generator names.
std::string head() {
  return "<?xml version = \"1.0\" encoding = \"UTF-8\"?>\n"
         "<kml xmlns = \"http://www.opengis.net/kml/2.2\">\n"
         "<Document>\n"
         "<name>Paths </name>\n"
         "<Style id=\"yellowLineGreenPoly\">\n"
         "<LineStyle>\n"
         "<color>7f000000 </color>\n"
         "<width>1 </width>\n"
         "</LineStyle>\n"
         "<PolyStyle>\n"
         "<color>7f00ff00</color>\n"
         "</PolyStyle>\n"
         "</Style>\n"
         "<Style id=\"reservoir\">\n"
         "<IconStyle>\n"
         "<Icon>\n"
         "<href>https://maps.google.com/mapfiles/kml/pushpin/blue-pushpin.png</href>\n"
         "</Icon>\n"
         "</IconStyle>\n"
         "</Style>\n";
}

const std::string kTail = "</Document>\n</kml>\n";

// A reservoir's placemark as a map lists its lines (the style reference has no line break
// behind it); where is "x,y,2357".
std::string reservoirMark(const std::string& name, const std::string& where) {
  return "<Placemark>\n"
         "<name>" +
         name +
         "</name>\n"
         "<styleUrl>#reservoir</styleUrl><Point>\n"
         "<altitudeMode>absolute</altitudeMode>\n"
         "<coordinates>" +
         where +
         "</coordinates>\n"
         "</Point>\n"
         "</Placemark>\n";
}

std::string linkMark(const std::string& from, const std::string& to) {
  return "<Placemark>\n"
         "<name>Absolute Extruded </name>\n"
         "<description>Trecho </description>\n"
         "<styleUrl>#yellowLineGreenPoly </styleUrl>\n"
         "<LineString>\n"
         "<extrude>1 </extrude>\n"
         "<tessellate>1 </tessellate>\n"
         "<altitudeMode>absolute</altitudeMode>\n"
         "<coordinates>\n" +
         from + "\n" + to +
         "\n"
         "</coordinates>\n"
         "</LineString>\n"
         "</Placemark>\n";
}

std::shared_ptr<Node> placed(NetworkBuilder& net, ElementType type, const std::string& name,
                             double x, double y) {
  auto node = net.node(type);
  node->setName(name);
  node->setX(x);
  node->setY(y);
  return node;
}

// Três Marias and Sobradinho, with the junction of Pirapora between them and the sea below;
// x is the longitude and y the latitude.
struct River {
  NetworkBuilder net{NetworkBuilder::monthly(2001, 2001)};
  std::shared_ptr<Node> upper = placed(net, ElementType::reservoir, "Três Marias", -45.25, -18.5);
  std::shared_ptr<Node> junction = placed(net, ElementType::junction, "Pirapora", -44.9, -17.35);
  std::shared_ptr<Node> lower = placed(net, ElementType::reservoir, "Sobradinho", -40.5, -9.4);
  std::shared_ptr<Node> sea = placed(net, ElementType::drain, "Foz", -36.4, -10.5);

  River() {
    net.link(upper, junction);
    net.link(junction, lower, 1000.0, ElementType::artificialLink);
    net.link(lower, sea);
  }
  std::vector<std::shared_ptr<Node>> nodes() const {
    return ElementsFilter::filterByNodes(net.scenario->getSortedElements());
  }
};

class KMLExport : public ::testing::Test {
 protected:
  TemporaryFolder temporary{"kova_kml_"};
  const std::string path = temporary.file("mapa.kml");
};

}  // namespace

// The whole file, written by hand: the reservoirs, then every node's downstream links in the
// order of the nodes, coordinates in 17 significant digits.
TEST_F(KMLExport, TheMapHoldsTheReservoirsThenTheLinks) {
  River river;
  KMLGenerator::make(river.nodes(), path);
  EXPECT_EQ(readFile(path),
            head() + reservoirMark("Três Marias", "-45.25,-18.5,2357") +
                reservoirMark("Sobradinho", "-40.5,-9.4000000000000004,2357") +
                linkMark("-45.25,-18.5,2357", "-44.899999999999999,-17.350000000000001,2357") +
                linkMark("-44.899999999999999,-17.350000000000001,2357",
                         "-40.5,-9.4000000000000004,2357") +
                linkMark("-40.5,-9.4000000000000004,2357", "-36.399999999999999,-10.5,2357") +
                kTail);
}

TEST_F(KMLExport, AMapWithoutNodesHasItsHeadAndTail) {
  KMLGenerator::make({}, path);
  EXPECT_EQ(readFile(path), head() + kTail);
}

TEST_F(KMLExport, TheNodesGivenAreTheOnesDrawn) {
  River river;
  // Only the junction and the sea: no reservoir, and the junction's link to Sobradinho.
  KMLGenerator::make({river.junction, river.sea}, path);
  EXPECT_EQ(readFile(path), head() +
                                linkMark("-44.899999999999999,-17.350000000000001,2357",
                                         "-40.5,-9.4000000000000004,2357") +
                                kTail);
}

TEST(KMLPieces, APlacemarkTakesThePrecisionOfTheStream) {
  std::ostringstream stream;
  stream << std::setprecision(4);
  KMLGenerator::makeReservoir(stream, "Itaparica", -9.14159, -38.31);
  EXPECT_EQ(stream.str(), reservoirMark("Itaparica", "-38.31,-9.142,2357"));
  std::ostringstream line;
  KMLGenerator::makeLink(line, 1.5, 2.5, 3.5, 4.5);
  EXPECT_EQ(line.str(), linkMark("2.5,1.5,2357", "4.5,3.5,2357"));
}

// &, < and > would end a name or open a tag; XML 1.0 holds no control character but tab, line
// feed and carriage return, not even as a reference.
TEST(KMLPieces, NamesAreEscapedAsXmlText) {
  EXPECT_EQ(KMLGenerator::escape("Açude <Norte> & Sul"), "Açude &lt;Norte&gt; &amp; Sul");
  EXPECT_EQ(KMLGenerator::escape("&amp;"), "&amp;amp;");
  EXPECT_EQ(KMLGenerator::escape(std::string("a\x01"
                                             "b\tc\x1f"
                                             "d")),
            "a b\tc d");
  EXPECT_EQ(KMLGenerator::escape("\"aspas\" e 'apóstrofos'"), "\"aspas\" e 'apóstrofos'");
  std::ostringstream stream;
  KMLGenerator::makeReservoir(stream, "R&D <1>", 0.0, 0.0);
  EXPECT_EQ(stream.str(), reservoirMark("R&amp;D &lt;1&gt;", "0,0,2357"));
}

TEST_F(KMLExport, ANameWithXmlCharactersIsEscapedInTheFile) {
  River river;
  river.upper->setName("Açude <Norte> & Sul");
  KMLGenerator::make({river.upper}, path);
  EXPECT_EQ(readFile(path),
            head() + reservoirMark("Açude &lt;Norte&gt; &amp; Sul", "-45.25,-18.5,2357") +
                linkMark("-45.25,-18.5,2357", "-44.899999999999999,-17.350000000000001,2357") +
                kTail);
}

TEST_F(KMLExport, AFileThatCannotBeMadeIsAnError) {
  River river;
  EXPECT_THROW_TEXT(KMLGenerator::make(river.nodes(), temporary.file("nenhuma/mapa.kml")),
                    std::runtime_error, "KMLGenerator::make(): open file error!");
  EXPECT_THROW_TEXT(KMLGenerator::make(river.nodes(), temporary.root()), std::runtime_error,
                    "KMLGenerator::make(): open file error!");
  EXPECT_FALSE(fs::exists(temporary.file("nenhuma")));
}
