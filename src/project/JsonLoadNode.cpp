#include "project/JsonLoadNode.h"

#include "project/JsonLoadHelper.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

JsonLoadNode::JsonLoadNode(std::shared_ptr<Node> node, std::shared_ptr<Scenario> scenario)
    : JsonLoadElement(node, std::move(scenario)), node(std::move(node)) {}

void JsonLoadNode::load(const json& item) {
  const json& wrapper = Helper::findRequired(item, "node");
  loadElement(Helper::findRequired(wrapper, "element"));
  Helper::applyOptional<double>(wrapper, "x", [this](double x) { node->setX(x); });
  Helper::applyOptional<double>(wrapper, "y", [this](double y) { node->setY(y); });
  loadSpecific(item);
}

void JsonLoadNode::loadAfterLinks() {}

void JsonLoadNode::loadSpecific(const json&) {}

JsonLoadDemand::JsonLoadDemand(std::shared_ptr<Demand> demand, std::shared_ptr<Scenario> scenario)
    : JsonLoadNode(demand, std::move(scenario)), demand(std::move(demand)) {}

void JsonLoadDemand::loadAfterLinks() {
  if (hasReturns) demand->flushDemandReturnPercentagesTemp();
}

void JsonLoadDemand::loadSpecific(const json& item) {
  Helper::applyOptional<std::vector<double>>(item, "demandReturn",
                                             [this](const std::vector<double>& percentages) {
                                               demand->setDemandReturnPercentagesTemp(percentages);
                                               hasReturns = true;
                                             });
}
