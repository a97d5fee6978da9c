#pragma once

#include <memory>

#include "checks/ElementCheck.h"

// Makes the check of an element for the kind of its scenario. Throws std::invalid_argument
// "ElementCheckFactory::make(): invalid parameter key" for a pair without a check.
class ElementCheckFactory {
 public:
  static std::shared_ptr<ElementCheck> make(const std::shared_ptr<Element>& element,
                                            std::weak_ptr<Scenario> scenario);
  static std::shared_ptr<ElementCheck> makeReservoirCheckPriority(const std::shared_ptr<Element>&,
                                                                  std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeDemandCheckPriority(const std::shared_ptr<Element>&,
                                                               std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeDrainDemandCheckPriority(const std::shared_ptr<Element>&,
                                                                    std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeBasinCheckPriority(const std::shared_ptr<Element>&,
                                                              std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeLinkCheckPriority(const std::shared_ptr<Element>&,
                                                             std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeJunctionCheckPriority(const std::shared_ptr<Element>&,
                                                                 std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeReservoirCheckRule(const std::shared_ptr<Element>&,
                                                              std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeDemandCheckRule(const std::shared_ptr<Element>&,
                                                           std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeBasinCheckRule(const std::shared_ptr<Element>&,
                                                          std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeLinkCheckRule(const std::shared_ptr<Element>&,
                                                         std::weak_ptr<Scenario>);
  static std::shared_ptr<ElementCheck> makeJunctionCheckRule(const std::shared_ptr<Element>&,
                                                             std::weak_ptr<Scenario>);
};
