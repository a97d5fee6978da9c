#include "project/JsonLoadLink.h"

#include <stdexcept>
#include <string>
#include <vector>

#include "core/ElementsFilter.h"
#include "core/Node.h"
#include "core/Scenario.h"
#include "project/JsonLoadHelper.h"
#include "project/JsonLoadLinkAddonFactory.h"
#include "vocabulary/Vocabulary.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

namespace {

// The node whose id the member end of item holds.
std::shared_ptr<Node> nodeOf(const Scenario& scenario, const json& item, const char* end) {
  const json& id = Helper::findRequired(item, end);
  const auto element =
      ElementsFilter::getElement(scenario.getElements(), Helper::get<unsigned int>(id));
  if (!element) Helper::refuse(id, "the id of an element of the scenario");
  auto node = std::dynamic_pointer_cast<Node>(element);
  if (!node) Helper::refuse(id, "the id of a node (the ends of a link must be nodes)");
  return node;
}

int senseOf(const json& value) {
  const Enum<Sense>* sense = Vocabulary::senses().findByName(Helper::get<std::string>(value));
  if (sense == nullptr) Helper::refuse(value, "\"Original\" or \"Invertido\"");
  return sense->getId();
}

}  // namespace

JsonLoadLink::JsonLoadLink(std::shared_ptr<Link> link, std::shared_ptr<Scenario> scenario)
    : JsonLoadElement(link, std::move(scenario)), link(std::move(link)) {}

void JsonLoadLink::load(const json& item) {
  loadElement(Helper::findRequired(item, "element"));
  loadEnds(item);
  loadOldTrafficLimit(item);
  loadAddon(item);
  Helper::applyOptional<bool>(item, "union", [this](bool value) { link->setIsUnion(value); });
  Helper::applyOptional<bool>(item, "bidirectional",
                              [this](bool value) { link->setIsBidirectional(value); });
  loadSenseInfo(item);
  loadSpecific(item);
}

void JsonLoadLink::loadSpecific(const json&) {}

void JsonLoadLink::loadEnds(const json& item) {
  const Scenario& scenario = *getScenario();
  const auto upstream = nodeOf(scenario, item, "upstream");
  const auto downstream = nodeOf(scenario, item, "downstream");
  link->setUpstream(upstream);
  link->setDownstream(downstream);
  downstream->addUpstream(link);
  upstream->addDownstream(link);
  // The link was added before its ends were known: its column in the upstream node's allocation
  // is made now, unless the node's settings already brought it.
  getScenario()->posAddElement(link, false);
}

void JsonLoadLink::loadOldTrafficLimit(const json& item) {
  bool found = false;
  const json& limit = Helper::findOptional(found, item, "linkTrafficLimit");
  if (!found) return;
  const double maxValue = Helper::findOptional<double>(found, limit, "maxValue");
  if (!found) return;
  link->getInputSerie(SerieType::linkLimit)->fill(maxValue, getScenario()->getInterval());
  oldTrafficLimit = true;
}

void JsonLoadLink::loadAddon(const json& item) {
  bool found = false;
  const json& addon = Helper::findOptional(found, item, "linkAddon");
  if (!found) return;
  JsonLoadLinkAddonFactory::make(Helper::getRequired<std::string>(addon, "linkAddonType"), link)
      ->load(addon);
}

void JsonLoadLink::loadSenseInfo(const json& item) {
  bool found = false;
  const json& object = Helper::findOptional(found, item, "senseInfo");
  if (!found) return;
  SenseInfo info;
  Helper::applyOptional<std::vector<double>>(
      object, "originalSourceVolumesRange",
      [&](const std::vector<double>& range) { info.originalSourceVolumesRange = range; });
  Helper::applyOptional<std::vector<double>>(
      object, "originalDestinyVolumesRange",
      [&](const std::vector<double>& range) { info.originalDestinyVolumesRange = range; });
  const json& senses = Helper::findOptional(found, object, "senses");
  if (found) {
    for (const json& row : Helper::asArray(senses)) {
      info.senses.emplace_back();
      for (const json& name : Helper::asArray(row)) info.senses.back().push_back(senseOf(name));
    }
  }
  link->configureSenseInfo(info);
}

JsonLoadNaturalLink::JsonLoadNaturalLink(std::shared_ptr<NaturalLink> link,
                                         std::shared_ptr<Scenario> scenario)
    : JsonLoadLink(link, std::move(scenario)), naturalLink(std::move(link)) {}

void JsonLoadNaturalLink::loadSpecific(const json& item) {
  Helper::applyOptional<bool>(item, "lateralContribution",
                              [this](bool value) { naturalLink->setLateralContribution(value); });
}
