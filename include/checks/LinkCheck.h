#pragma once

#include "checks/ElementCheck.h"
#include "core/Link.h"

// A link's ends, its kind against bidirectionality and its loss percentages.
class LinkCheck : public ElementCheck {
 public:
  LinkCheck(std::shared_ptr<Element> element, std::weak_ptr<Scenario> scenario);

 protected:
  void runChecks() override;
  const Link& link() const { return static_cast<const Link&>(*getElement()); }

 private:
  void checkUpstream();
  void checkDownstream();
  void checkNumberOfLinesLinkAddonPumping();
  void checkLinkAddonPumpingFirstLine();
  void checkLinkAddonPumpingLines();
  void checkNaturalBidirectionalLink();
  void checkLinkLossSerie();
};

// In a priority scenario a link has no settings to check: its series and the common checks.
class PriorityLinkCheck : public LinkCheck {
 public:
  using LinkCheck::LinkCheck;
};

// In a rule scenario, a bidirectional link's own allocation row against the matrix of the
// reservoir it leaves when inverted.
class RuleLinkCheck : public LinkCheck {
 public:
  using LinkCheck::LinkCheck;

 protected:
  void runChecks() override;

 private:
  void checkBidirectionalVector();
  void checkSumOfAllocationMatrix();
};
