#pragma once

#include <memory>
#include <string>

#include "core/Link.h"
#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveElement.h"

// Writes a link's item: {"upstream":..,"downstream":..,"linkAddon":{...},"union":..,
// "bidirectional":..,"senseInfo":{...},<keys of the kind>"element":{...}}, the ends given by
// their element ids. Artificial links have no keys of their own and are written by this class.
class JsonSaveLink : public JsonSaveElement {
 public:
  JsonSaveLink(std::shared_ptr<Link> link, std::shared_ptr<Scenario> scenario);

  // Throws std::invalid_argument "JsonSaveLink::toJson(): the link lacks an end" for a link not
  // joined to two nodes, and as the writer factories of its add-on and settings.
  std::string toJson() const override;
  // The sense table of a bidirectional link, with "Original" and "Invertido" for 0 and 1.
  std::string toJsonSenseInfo() const;

 protected:
  // The members of the link's kind, which stand just before the element object; none here.
  virtual JsonSaveBuilder::Members specificToJson() const;

 private:
  std::shared_ptr<Link> link;
};

// Writes a natural link's item, with "lateralContribution" just before the element object, where
// the format has it.
class JsonSaveNaturalLink : public JsonSaveLink {
 public:
  JsonSaveNaturalLink(std::shared_ptr<NaturalLink> link, std::shared_ptr<Scenario> scenario);

 protected:
  JsonSaveBuilder::Members specificToJson() const override;

 private:
  std::shared_ptr<NaturalLink> naturalLink;
};
