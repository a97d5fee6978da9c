#pragma once

#include <vector>

#include "core/Settings.h"

// A link in a rule scenario: the flows it takes at each line of its upstream reservoir's matrix
// when it is a bidirectional link running inverted (m³/s).
class LinkRuleSettings : public CopyableSettings<LinkRuleSettings> {
 public:
  const std::vector<double>& getValues() const { return values; }
  void setValues(const std::vector<double>& newValues) { values = newValues; }

  void copyFrom(const std::shared_ptr<Settings>& other) override;

 private:
  std::vector<double> values;
};
