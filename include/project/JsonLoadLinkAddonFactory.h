#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonLoadLinkAddon.h"

// Chooses the reader of a link's add-on by the name of its type ("Nenhum").
class JsonLoadLinkAddonFactory {
 public:
  // The reader of an add-on of type for link. Throws std::invalid_argument
  // "JsonLoadLinkAddonFactory::make(): invalid linkAddonType" for a name without a reader.
  static std::shared_ptr<JsonLoadLinkAddon> make(const std::string& type,
                                                 const std::shared_ptr<Link>& link);
  // The names of the types that have a reader.
  static std::vector<std::string> keys();
};
