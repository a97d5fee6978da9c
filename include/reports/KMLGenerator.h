#pragma once

#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

class Node;

// The reservoirs and links of a network as a KML map: a document "Paths " with two
// styles, one point placemark per reservoir and one line placemark per downstream link of each
// node. Positions are Node::getX() as longitude and Node::getY() as latitude, as the nodes hold
// them (no conversion whatever the coordinate system), written "x,y,2357" with the precision of
// the stream (make sets 17 significant digits and the classic locale); 2357 is a constant
// altitude. Every line is written as the format of our maps has it, blanks included (the names
// "Paths " and "Absolute Extruded ", the width "1 ", the style "#yellowLineGreenPoly "); the
// reservoir's "<styleUrl>#reservoir</styleUrl>" has no line break behind it, so "<Point>"
// follows on its line.
//
// Names are written as XML text: '&' as "&amp;", '<' as "&lt;", '>' as "&gt;", and a control
// character that XML 1.0 cannot hold (below 0x20, but tab, line feed and carriage return) as a
// blank, so that no name breaks the file.
class KMLGenerator {
 public:
  // The icon of the reservoirs' style; the file only names it.
  static const std::string reservoirIcon;

  // Writes the map of nodes to path: the reservoirs among nodes, in their order, then for each
  // node in order each of its downstream links whose downstream node is still there. Throws
  // std::runtime_error "KMLGenerator::make(): open file error!" when the file cannot be made,
  // and "KMLGenerator::make(): write file error!: <path>" when a write or the closing fails (a
  // full disk), after removing the file.
  static void make(const std::vector<std::shared_ptr<Node>>& nodes,
                   const std::filesystem::path& path);
  // The placemark of a reservoir at longitude x, latitude y, its name escaped.
  static void makeReservoir(std::ostream& stream, const std::string& name, double y, double x);
  // The placemark of a line from (x1, y1) to (x2, y2).
  static void makeLink(std::ostream& stream, double y1, double x1, double y2, double x2);

  // text as XML character data, as above.
  static std::string escape(const std::string& text);
};
