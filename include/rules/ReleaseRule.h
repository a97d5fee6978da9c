#pragma once

#include <memory>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Enum.h"
#include "core/EnumTypes.h"

class Scenario;

// The release rule of a reservoir in a rule simulation: how much to release at a date. The
// operation tells the rule the interval and window of the run before each period.
class ReleaseRule {
 public:
  virtual ~ReleaseRule() = default;

  virtual Enum<ReleaseRuleType> getType() const = 0;
  // The flow to release at date, m³/s.
  virtual double getRelease(const Date& date) const = 0;
  // Resolves references to other elements once the whole scenario exists.
  // Nothing to resolve by default.
  virtual void loadAfterScenarioInstantiated(const std::shared_ptr<Scenario>& scenario);
  virtual std::shared_ptr<ReleaseRule> copy() const = 0;

  const Interval& getInterval() const { return interval; }
  void setInterval(const Interval& value) { interval = value; }
  unsigned int getWindowIndex() const { return windowIndex; }
  void setWindowIndex(unsigned int value) { windowIndex = value; }
  bool getZeroContribution() const { return zeroContribution; }
  void setZeroContribution(bool value) { zeroContribution = value; }

 private:
  Interval interval;
  unsigned int windowIndex = 0;
  bool zeroContribution = false;
};
