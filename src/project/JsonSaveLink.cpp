#include "project/JsonSaveLink.h"

#include <stdexcept>
#include <vector>

#include "core/Node.h"
#include "project/JsonSaveLinkAddonFactory.h"
#include "vocabulary/Vocabulary.h"

using B = JsonSaveBuilder;

JsonSaveLink::JsonSaveLink(std::shared_ptr<Link> link, std::shared_ptr<Scenario> scenario)
    : JsonSaveElement(link, std::move(scenario)), link(std::move(link)) {}

std::string JsonSaveLink::toJson() const {
  const auto upstream = link->getUpstream();
  const auto downstream = link->getDownstream();
  if (!upstream || !downstream) {
    throw std::invalid_argument("JsonSaveLink::toJson(): the link lacks an end");
  }
  B::Members members = {
      B::makeJsonKeyValue("upstream", upstream->getId()),
      B::makeJsonKeyValue("downstream", downstream->getId()),
      B::makeJsonKeyValue("linkAddon",
                          JsonSaveLinkAddonFactory::make(link->getLinkAddon())->toJson()),
      B::makeJsonKeyValue("union", link->getIsUnion()),
      B::makeJsonKeyValue("bidirectional", link->getIsBidirectional()),
      B::makeJsonKeyValue("senseInfo", toJsonSenseInfo())};
  const B::Members specific = specificToJson();
  members.insert(members.end(), specific.begin(), specific.end());
  members.push_back(B::makeJsonKeyValue("element", toJsonElement()));
  return B::makeObject(members);
}

std::string JsonSaveLink::toJsonSenseInfo() const {
  const SenseInfo& info = link->getSenseInfo();
  const auto sense = [](int value) {
    return B::makeStringValue(Vocabulary::of(static_cast<Sense>(value)).getName());
  };
  const auto row = [&](const std::vector<int>& senses) { return B::makeArray(senses, sense); };
  return B::makeObject(
      {B::makeJsonKeyValue("originalSourceVolumesRange",
                           B::makeVectorOfFloatingValues(info.originalSourceVolumesRange)),
       B::makeJsonKeyValue("originalDestinyVolumesRange",
                           B::makeVectorOfFloatingValues(info.originalDestinyVolumesRange)),
       B::makeJsonKeyValue("senses", B::makeArray(info.senses, row))});
}

JsonSaveBuilder::Members JsonSaveLink::specificToJson() const { return {}; }

JsonSaveNaturalLink::JsonSaveNaturalLink(std::shared_ptr<NaturalLink> link,
                                         std::shared_ptr<Scenario> scenario)
    : JsonSaveLink(link, std::move(scenario)), naturalLink(std::move(link)) {}

JsonSaveBuilder::Members JsonSaveNaturalLink::specificToJson() const {
  return {B::makeJsonKeyValue("lateralContribution", naturalLink->getLateralContribution())};
}
