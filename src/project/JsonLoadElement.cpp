#include "project/JsonLoadElement.h"

#include "core/ElementsFilter.h"
#include "core/Scenario.h"
#include "project/JsonLoadException.h"
#include "project/JsonLoadHelper.h"
#include "project/JsonLoadSettingsFactory.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

JsonLoadElement::JsonLoadElement(std::shared_ptr<Element> element,
                                 std::shared_ptr<Scenario> scenario)
    : element(std::move(element)), scenario(std::move(scenario)) {}

void JsonLoadElement::loadElement(const json& object) {
  const auto id = Helper::getRequired<unsigned int>(object, "id");
  const auto databaseId = Helper::getRequired<unsigned int>(object, "databaseId");
  // A second element under the same id would hide the first from every lookup by id.
  if (ElementsFilter::getElement(scenario->getElements(), id)) {
    throw JsonLoadException(object["id"],
                            "the id " + std::to_string(id) + " is already used by another element");
  }
  scenario->addElement(element, false, id);
  element->setDatabaseId(databaseId);
  Helper::applyOptional<std::string>(object, "name",
                                     [&](const std::string& name) { element->setName(name); });
  Helper::applyOptional<bool>(object, "enable", [&](bool enable) { element->setEnabled(enable); });
  if (extraInfo()) extraInfo()(object, id, scenario);
  const auto settingsLoader = JsonLoadSettingsFactory::make(element, scenario);
  bool found = false;
  const json& settings = Helper::findOptional(found, object, "scenarioConf");
  if (found) Helper::at(settings, [&] { settingsLoader->load(Helper::asObject(settings)); });
}

void JsonLoadElement::setLambdaExtraInfoElement(ExtraInfo hook) { extraInfo() = std::move(hook); }

JsonLoadElement::ExtraInfo& JsonLoadElement::extraInfo() {
  static ExtraInfo hook;
  return hook;
}
