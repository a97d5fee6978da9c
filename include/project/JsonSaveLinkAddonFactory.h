#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonSaveLinkAddon.h"

// Chooses the writer of a link's add-on by the name of its type ("Nenhum").
class JsonSaveLinkAddonFactory {
 public:
  // The writer of addon. Throws std::invalid_argument
  // "JsonSaveLinkAddonFactory::make(): invalid linkAddonType" for a type without a writer.
  static std::shared_ptr<JsonSaveLinkAddon> make(const std::shared_ptr<LinkAddon>& addon);
  // The names of the types that have a writer.
  static std::vector<std::string> keys();
};
