#pragma once

#include <memory>

#include "core/Settings.h"

// The settings of an element that takes no part in the priorities of a priority scenario: it
// has neither priority nor goal, so there is nothing to hold or copy.
class PriorityPassiveSettings : public Settings {
 public:
  // Nothing to take from other.
  void copyFrom(const std::shared_ptr<Settings>& other) override;
};

class PriorityJunctionSettings
    : public CopyableSettings<PriorityJunctionSettings, PriorityPassiveSettings> {};
class PriorityBasinSettings
    : public CopyableSettings<PriorityBasinSettings, PriorityPassiveSettings> {};
class PriorityLinkSettings
    : public CopyableSettings<PriorityLinkSettings, PriorityPassiveSettings> {};
