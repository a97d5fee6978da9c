#include "project/JsonSaveNode.h"

using B = JsonSaveBuilder;

JsonSaveNode::JsonSaveNode(std::shared_ptr<Node> node, std::shared_ptr<Scenario> scenario)
    : JsonSaveElement(node, std::move(scenario)), node(std::move(node)) {}

std::string JsonSaveNode::toJson() const {
  B::Members members = {B::makeJsonKeyValue("node", toJsonNode())};
  const B::Members specific = toJsonSpecific();
  members.insert(members.end(), specific.begin(), specific.end());
  return B::makeObject(members);
}

std::string JsonSaveNode::toJsonNode() const {
  return B::makeObject({B::makeJsonKeyValue("x", node->getX()),
                        B::makeJsonKeyValue("y", node->getY()),
                        B::makeJsonKeyValue("element", toJsonElement())});
}

JsonSaveBuilder::Members JsonSaveNode::toJsonSpecific() const { return {}; }

JsonSaveDemand::JsonSaveDemand(std::shared_ptr<Demand> demand, std::shared_ptr<Scenario> scenario)
    : JsonSaveNode(demand, std::move(scenario)), demand(std::move(demand)) {}

JsonSaveBuilder::Members JsonSaveDemand::toJsonSpecific() const {
  return {B::makeJsonKeyValue("demandReturn",
                              B::makeVectorOfFloatingValues(demand->getDemandReturnPercentages()))};
}
