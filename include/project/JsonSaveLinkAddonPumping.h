#pragma once

#include "project/JsonSaveLinkAddon.h"

// Writes a pumping add-on: after its type, "pumps", one {"periods":[{"initialValue":min,
// "finalValue":min},...],"flows":[m³/s]} per pump, the flow standing alone in its list, and
// "flowCosts", one {"costFlow":m³/s,"costsPerMonth":[12 costs, January first]} per row of the
// cost table, in the table's order.
class JsonSaveLinkAddonPumping : public JsonSaveLinkAddon {
 public:
  using JsonSaveLinkAddon::JsonSaveLinkAddon;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
