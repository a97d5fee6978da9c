#pragma once

#include <string>
#include <vector>

#include "shapes/ShapeLayer.h"

class Scenario;

// Brings shapefile layers into a scenario. A scenario keeps its layers as the names and absolute
// paths of their files, drawn behind the network; the files stay where they are. A point layer
// whose table names the nodes can also place them: each node named by a feature moves to that
// feature's point.
//
// A node's position is in the scenario's coordinate system (its EPSG code, SIRGAS 2000 longitude
// and latitude unless set otherwise): X is the longitude or easting, Y the latitude or northing.
// A layer in another system is converted with PROJ on the way, so a layer in UTM places nodes in
// degrees.
class ShapeImport {
 public:
  // What placing the nodes did. Names are in the layers' order, nodes in the order of their ids.
  struct Placement {
    std::vector<std::string> placed;            // the nodes moved
    std::vector<std::string> nodesNotInLayers;  // the nodes no feature names; they keep their place
    std::vector<std::string> namesWithoutNode;  // the layers' names that no node has; ignored
  };

  // Adds layer's file to the scenario's layers, with its absolute path; false, changing nothing,
  // when the scenario has that file already. Throws std::runtime_error "<file>: <reason>" when
  // the path holds a double quote, a backslash or a control character, which the project file
  // cannot keep.
  static bool attach(Scenario& scenario, const ShapeLayer& layer);
  // Moves every node of scenario named, in column nameColumn, by a feature of one of the point
  // layers to that feature's point in the scenario's coordinate system. Features without a point
  // or without a name are skipped. Nothing moves when it throws: std::invalid_argument
  // "ShapeImport::placeNodes(): <file> is a <kind> layer, not a point layer"; std::runtime_error
  // "<file>: no column ..." when a layer lacks the column, "<file>: \"<name>\" names two points
  // (<file> feature i and <file> feature j)" (also across two layers), "<file> feature i: " and
  // the converter's failure for a point outside its layer's system.
  static Placement placeNodes(Scenario& scenario, const std::vector<ShapeLayer>& pointLayers,
                              const std::string& nameColumn);
};
