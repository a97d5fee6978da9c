#pragma once

#include <memory>

#include "rules/OptVolDepOneReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"

// The optimisable twin of the rule by the storage of one reservoir, the static form: one release
// per row.
class OptVolDepOneStaticReleaseRule : public VolDepOneStaticReleaseRule,
                                      public OptVolDepOneReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // The simulation rule's copy and the table of marks and the maximum release.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<OptVolDepOneStaticReleaseRule>();
  }
  std::string textPrefix() const override { return "Opt"; }
  VolDepOneReleaseRule& working() override { return *this; }
  std::shared_ptr<VolDepOneReleaseRule> getReleaseRuleInstance() const override {
    return std::make_shared<VolDepOneStaticReleaseRule>();
  }
  void checkRowSize(const VolDepOneReleaseStruct& row) const override { checkReleasesSize(row); }
};
