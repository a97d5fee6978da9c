#include "reports/KMLGenerator.h"

#include <fstream>
#include <locale>
#include <stdexcept>
#include <system_error>

#include "core/Link.h"
#include "core/Node.h"

namespace {

// The altitude of every point of the map.
constexpr int kAltitude = 2357;

void writeHead(std::ostream& stream) {
  stream << "<?xml version = \"1.0\" encoding = \"UTF-8\"?>\n"
         << "<kml xmlns = \"http://www.opengis.net/kml/2.2\">\n"
         << "<Document>\n"
         << "<name>Paths </name>\n"
         << "<Style id=\"yellowLineGreenPoly\">\n"
         << "<LineStyle>\n"
         << "<color>7f000000 </color>\n"
         << "<width>1 </width>\n"
         << "</LineStyle>\n"
         << "<PolyStyle>\n"
         << "<color>7f00ff00</color>\n"
         << "</PolyStyle>\n"
         << "</Style>\n"
         << "<Style id=\"reservoir\">\n"
         << "<IconStyle>\n"
         << "<Icon>\n"
         << "<href>" << KMLGenerator::reservoirIcon << "</href>\n"
         << "</Icon>\n"
         << "</IconStyle>\n"
         << "</Style>\n";
}

void writeTail(std::ostream& stream) {
  stream << "</Document>\n"
         << "</kml>\n";
}

}  // namespace

// A plain public map pin; the map only names it, nothing here fetches it.
const std::string KMLGenerator::reservoirIcon =
    "https://maps.google.com/mapfiles/kml/pushpin/blue-pushpin.png";

void KMLGenerator::make(const std::vector<std::shared_ptr<Node>>& nodes,
                        const std::filesystem::path& path) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) throw std::runtime_error("KMLGenerator::make(): open file error!");
  // The coordinates take their precision from the stream: 17 significant digits, "." always.
  file.imbue(std::locale::classic());
  file.precision(17);
  writeHead(file);
  for (const auto& node : nodes) {
    if (node && node->getType() == ElementType::reservoir) {
      makeReservoir(file, node->getName(), node->getY(), node->getX());
    }
  }
  for (const auto& node : nodes) {
    if (!node) continue;
    for (const auto& link : node->getDownstreamLinks()) {
      const auto down = link ? link->getDownstream() : nullptr;
      if (down) makeLink(file, node->getY(), node->getX(), down->getY(), down->getX());
    }
  }
  writeTail(file);
  file.close();
  if (file.fail()) {
    // Only a file this call made is taken back, never a device or a folder the path names.
    std::error_code ignored;
    if (std::filesystem::is_regular_file(path, ignored)) std::filesystem::remove(path, ignored);
    throw std::runtime_error("KMLGenerator::make(): write file error!: " + path.string());
  }
}

void KMLGenerator::makeReservoir(std::ostream& stream, const std::string& name, double y,
                                 double x) {
  // The map has always written the style reference with no line break behind it; the Point follows
  // on the same line.
  stream << "<Placemark>\n"
         << "<name>" << escape(name) << "</name>\n"
         << "<styleUrl>#reservoir</styleUrl>"
         << "<Point>\n"
         << "<altitudeMode>absolute</altitudeMode>\n"
         << "<coordinates>" << x << ',' << y << ',' << kAltitude << "</coordinates>\n"
         << "</Point>\n"
         << "</Placemark>\n";
}

void KMLGenerator::makeLink(std::ostream& stream, double y1, double x1, double y2, double x2) {
  stream << "<Placemark>\n"
         << "<name>Absolute Extruded </name>\n"
         << "<description>Trecho </description>\n"
         << "<styleUrl>#yellowLineGreenPoly </styleUrl>\n"
         << "<LineString>\n"
         << "<extrude>1 </extrude>\n"
         << "<tessellate>1 </tessellate>\n"
         << "<altitudeMode>absolute</altitudeMode>\n"
         << "<coordinates>\n"
         << x1 << ',' << y1 << ',' << kAltitude << '\n'
         << x2 << ',' << y2 << ',' << kAltitude << '\n'
         << "</coordinates>\n"
         << "</LineString>\n"
         << "</Placemark>\n";
}

std::string KMLGenerator::escape(const std::string& text) {
  // The characters special to XML text, and the control characters XML 1.0 cannot hold even as
  // references, so that a name never breaks the file.
  std::string escaped;
  escaped.reserve(text.size());
  for (char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '&') {
      escaped += "&amp;";
    } else if (c == '<') {
      escaped += "&lt;";
    } else if (c == '>') {
      escaped += "&gt;";
    } else if (byte < 0x20 && c != '\t' && c != '\n' && c != '\r') {
      escaped += ' ';
    } else {
      escaped += c;
    }
  }
  return escaped;
}
