#include "project/JsonSaveElement.h"

#include <stdexcept>

#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveSettingsFactory.h"

using B = JsonSaveBuilder;

JsonSaveElement::JsonSaveElement(std::shared_ptr<Element> element,
                                 std::shared_ptr<Scenario> scenario)
    : element(std::move(element)), scenario(std::move(scenario)) {}

std::string JsonSaveElement::toJsonElement() const {
  B::Members members = {
      B::makeJsonKeyValueString("name", element->getName()),
      B::makeJsonKeyValue("id", element->getId()),
      B::makeJsonKeyValue("databaseId", element->getDatabaseId()),
      B::makeJsonKeyValue("enable", element->isEnabled()),
      B::makeJsonKeyValueString("elementType", element->getElementType().getName())};
  if (extraInfo()) members.push_back(extraInfo()(element->getId(), scenario));
  members.push_back(B::makeJsonKeyValue("scenarioConf", toJsonScenarioConf()));
  return B::makeObject(members);
}

std::string JsonSaveElement::toJsonScenarioConf() const {
  if (!scenario) throw std::runtime_error("JsonSaveElement: scenario pointer is nullptr!");
  return JsonSaveSettingsFactory::make(element, scenario)->toJson();
}

void JsonSaveElement::setLambdaExtraInfoElement(ExtraInfo hook) { extraInfo() = std::move(hook); }

JsonSaveElement::ExtraInfo& JsonSaveElement::extraInfo() {
  static ExtraInfo hook;
  return hook;
}
