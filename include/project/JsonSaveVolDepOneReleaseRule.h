#pragma once

#include <memory>
#include <string>

#include "core/Element.h"
#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveReleaseRule.h"

// Writes a rule by the volume of one other reservoir, static or periodic alike (their rows differ
// only in length): {"Reservoir":<id or null>,"VolDepOneVector":[{"Percentage":<%>,
// "Release":[m³/s...]},...]}.
class JsonSaveVolDepOneReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;

  // The value of a dependency: its element id, or null without one.
  static std::string dependencyValue(const std::shared_ptr<Element>& dependency);

 protected:
  // The rule's members, in order.
  JsonSaveBuilder::Members members() const;
};
