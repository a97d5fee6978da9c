#pragma once

#include <memory>
#include <string>

#include "core/Demand.h"
#include "core/Node.h"
#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveElement.h"

// Writes a node's item, {"node":{"x":..,"y":..,"element":{...}}<keys of the kind>}. Junctions and
// basins have no keys of their own and are written by this class.
class JsonSaveNode : public JsonSaveElement {
 public:
  JsonSaveNode(std::shared_ptr<Node> node, std::shared_ptr<Scenario> scenario);

  std::string toJson() const override;
  // The node wrapper: position and element object.
  std::string toJsonNode() const;

 protected:
  // The members of the node's kind, after the wrapper; none here.
  virtual JsonSaveBuilder::Members toJsonSpecific() const;

 private:
  std::shared_ptr<Node> node;
};

// Writes a demand's item: the node wrapper and "demandReturn", the percentage of the inflow that
// each outgoing link returns, in the order of the links.
class JsonSaveDemand : public JsonSaveNode {
 public:
  JsonSaveDemand(std::shared_ptr<Demand> demand, std::shared_ptr<Scenario> scenario);

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;

 private:
  std::shared_ptr<Demand> demand;
};
