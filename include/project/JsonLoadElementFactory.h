#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonLoadLink.h"
#include "project/JsonLoadNode.h"

// Makes a new element by the name of its type ("Reservatório", "Trecho natural") together with
// its reader. Nodes and links are asked for apart, as they stand in different arrays of the file.
class JsonLoadElementFactory {
 public:
  // The reader of a new node of type for scenario. Throws std::invalid_argument
  // "JsonLoadElementFactory::make(): invalid elementType" for a name that is no node type.
  static std::shared_ptr<JsonLoadNode> makeNode(const std::string& type,
                                                const std::shared_ptr<Scenario>& scenario);
  // The reader of a new link of type for scenario. Throws the same text for a name that is no
  // link type.
  static std::shared_ptr<JsonLoadLink> makeLink(const std::string& type,
                                                const std::shared_ptr<Scenario>& scenario);
  // The names of the node types and of the link types that have a reader.
  static std::vector<std::string> nodeKeys();
  static std::vector<std::string> linkKeys();
};
