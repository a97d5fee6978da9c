#pragma once

#include <nlohmann/json.hpp>

#include "project/JsonLoadLinkAddon.h"

// Reads a pumping add-on: "pumps" and "flowCosts" and every member of their items are optional.
// A pump without "periods" runs the whole day, one without "flows" pumps nothing; a cost row
// without "costFlow" or "costsPerMonth" holds zeros there.
class JsonLoadLinkAddonPumping : public JsonLoadLinkAddon {
 public:
  using JsonLoadLinkAddon::JsonLoadLinkAddon;

 protected:
  // Throws std::invalid_argument "JsonLoadLinkAddonPumping::load(): flows must hold one flow"
  // and "JsonLoadLinkAddonPumping::load(): costsPerMonth must hold 12 costs" for lists of another
  // length, and nlohmann::json::type_error for a value of the wrong type.
  void loadSpecific(const nlohmann::json& object, LinkAddon& addon) const override;
};
