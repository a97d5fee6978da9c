#pragma once

#include <memory>

#include "core/Reservoir.h"
#include "hydrology/HydrologicalBalance.h"
#include "operation/ResultsWriter.h"

// Closes a reservoir's period, the one place where a final volume is stored. The balance is
// taken with what the links released, before any spill; the final volume is then capped at the
// capacity, which removes the spilled water from the lake. Level, area, evaporation and
// precipitation are those of the start of the period.
class ReservoirResultsWriter : public ResultsWriter {
 public:
  void write(const Date& date, unsigned int windowIndex, const std::shared_ptr<Element>& element,
             const Interval& interval, bool zeroContribution) override;

 protected:
  // Writes released and spilled flows and volumes, given the volume the reservoir could not hold
  // (excess, hm³).
  virtual void writeReleaseAndSpill(const std::shared_ptr<Reservoir>& reservoir, double excess,
                                    const HydrologicalBalance& hb, const Date& date,
                                    unsigned int windowIndex) = 0;
  // Stores the four release and spill series.
  static void writeReleased(const std::shared_ptr<Reservoir>& reservoir,
                            const HydrologicalBalance& hb, const Date& date,
                            unsigned int windowIndex, double released, double spilled);
};

// In a rule operation all that left by links counts as released, and only the excess beyond it
// as spill: a full reservoir that releases its excess does not spill.
class ReservoirRuleResultsWriter : public ReservoirResultsWriter {
 protected:
  void writeReleaseAndSpill(const std::shared_ptr<Reservoir>& reservoir, double excess,
                            const HydrologicalBalance& hb, const Date& date,
                            unsigned int windowIndex) override;
};
