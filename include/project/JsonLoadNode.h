#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <vector>

#include "core/Demand.h"
#include "core/Node.h"
#include "project/JsonLoadElement.h"

// Reads a node's item: the wrapper "node" (required), whose "element" is required and whose "x"
// and "y" are optional, then the keys of the node's kind. Junctions and basins have none and are
// read by this class.
class JsonLoadNode : public JsonLoadElement {
 public:
  JsonLoadNode(std::shared_ptr<Node> node, std::shared_ptr<Scenario> scenario);

  void load(const nlohmann::json& item) override;
  // Completes the node once the scenario's links have been read; nothing here.
  virtual void loadAfterLinks();

 protected:
  // Reads the keys of the node's kind; none here.
  virtual void loadSpecific(const nlohmann::json& item);

 private:
  std::shared_ptr<Node> node;
};

// Reads a demand's item: the wrapper and the optional "demandReturn". The percentages belong to
// the outgoing links, which do not exist yet: the demand keeps them aside until its links are
// read.
class JsonLoadDemand : public JsonLoadNode {
 public:
  JsonLoadDemand(std::shared_ptr<Demand> demand, std::shared_ptr<Scenario> scenario);

  // Puts the percentages read in place; a demand without them keeps those its links gave it.
  void loadAfterLinks() override;

 protected:
  void loadSpecific(const nlohmann::json& item) override;

 private:
  std::shared_ptr<Demand> demand;
  bool hasReturns = false;
};
