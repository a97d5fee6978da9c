#pragma once

#include <memory>
#include <nlohmann/json.hpp>

#include "core/Link.h"
#include "project/JsonLoadElement.h"

// Reads a link's item: the element object first, then the ends "upstream" and "downstream"
// (required element ids of nodes already read), the obsolete "linkTrafficLimit", the add-on, the
// flags "union" and "bidirectional", the sense table and the keys of the link's kind. The link
// joins the outgoing list of its upstream node and the incoming list of its downstream node.
// Artificial links have no keys of their own and are read by this class.
class JsonLoadLink : public JsonLoadElement {
 public:
  JsonLoadLink(std::shared_ptr<Link> link, std::shared_ptr<Scenario> scenario);

  // As JsonLoadElement::load(); an end that names no node, or a sense outside the vocabulary,
  // throws JsonLoadException at that value, and a bidirectional link whose ends are not both
  // reservoirs the exception of Link::setIsBidirectional.
  void load(const nlohmann::json& item) override;
  // Whether the item carried the obsolete limit object with a value, which then filled the
  // link's "Limite de trecho" over the scenario's interval.
  bool usedOldTrafficLimit() const { return oldTrafficLimit; }

 protected:
  // Reads the keys of the link's kind; none here.
  virtual void loadSpecific(const nlohmann::json& item);

 private:
  void loadEnds(const nlohmann::json& item);
  void loadOldTrafficLimit(const nlohmann::json& item);
  void loadAddon(const nlohmann::json& item);
  void loadSenseInfo(const nlohmann::json& item);

  std::shared_ptr<Link> link;
  bool oldTrafficLimit = false;
};

// Reads a natural link's item, with the optional "lateralContribution".
class JsonLoadNaturalLink : public JsonLoadLink {
 public:
  JsonLoadNaturalLink(std::shared_ptr<NaturalLink> link, std::shared_ptr<Scenario> scenario);

 protected:
  void loadSpecific(const nlohmann::json& item) override;

 private:
  std::shared_ptr<NaturalLink> naturalLink;
};
