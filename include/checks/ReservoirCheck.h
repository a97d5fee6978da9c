#pragma once

#include "checks/ElementCheck.h"
#include "core/Reservoir.h"

// A reservoir's volumes, its level-area-volume table, its natural outlet and, with a
// bidirectional link, a drain downstream.
class ReservoirCheck : public NodeCheck {
 public:
  ReservoirCheck(std::shared_ptr<Element> element, std::set<SerieType> serieTypes,
                 std::weak_ptr<Scenario> scenario);

 protected:
  void runChecks() override;
  const Reservoir& reservoir() const { return static_cast<const Reservoir&>(*getElement()); }
  const ReservoirInfo& info() const { return reservoir().getReservoirInfo(); }

 private:
  void negativeMinVol();
  void negativeMaxVol();
  void negativeInitVol();
  void minGTMaxVolume();
  void initGTMaxVolume();
  void multiNatDownLink();
  void checkNegativeMaxRelease();
  void emptyCAV();
  void firstLineCAV();
  void minVolCAV();
  void maxVolCAV();
  void linesCAV();
  void numberOfLinesCAV();
  void checkDownstreamDrainReservoirBidirectional();
};

// In a rule scenario: the series of rain, evaporation and natural inflow, the allocation matrix,
// and the release rule.
class RuleReservoirCheck : public ReservoirCheck {
 public:
  RuleReservoirCheck(std::shared_ptr<Element> element, std::weak_ptr<Scenario> scenario);

 protected:
  void runChecks() override;

 private:
  void checkAllocationMatrix();
  void checkReleaseRule();
};
