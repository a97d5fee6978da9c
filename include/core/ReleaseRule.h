#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "vocabulary/Enum.h"
#include "vocabulary/EnumTypes.h"

class Element;
class Scenario;

// The release rule of a reservoir in a rule simulation: how much to release at a date. The
// operation tells the rule the interval and window of the run before each period. A release is in
// the flow unit of the reservoir's release series (m³/s): rules store and select numbers and never
// convert them.
class ReleaseRule {
 public:
  virtual ~ReleaseRule() = default;

  // The rule's type with its display name.
  virtual Enum<ReleaseRuleType> getType() const = 0;
  // The flow to release at date, m³/s.
  virtual double getRelease(const Date& date) const = 0;
  // Resolves the ids of other elements in scenario once it has been read or copied. Nothing to
  // resolve by default.
  virtual void loadAfterScenarioInstantiated(const std::shared_ptr<Scenario>& scenario);
  // The elements other than its own reservoir that the rule reads, as resolved: none by default.
  virtual std::vector<std::shared_ptr<Element>> getDependencies() const { return {}; }
  // A rule of the same type from ReleaseRuleFactory with this rule's interval, window and
  // zeroContribution; each rule adds its own fields. Other elements travel as ids only, to be
  // resolved by loadAfterScenarioInstantiated() in the scenario that holds the copy.
  [[nodiscard]] virtual std::shared_ptr<ReleaseRule> copy() const;

  const Interval& getInterval() const { return interval; }
  void setInterval(const Interval& value) { interval = value; }
  unsigned int getWindowIndex() const { return windowIndex; }
  void setWindowIndex(unsigned int value) { windowIndex = value; }
  bool getZeroContribution() const { return zeroContribution; }
  void setZeroContribution(bool value) { zeroContribution = value; }

 protected:
  // Tolerance of every comparison of volumes and percentages of the rules (hm³, %).
  static constexpr double kTolerance = 1e-06;

  // A new rule of this rule's own class, with nothing set: the start of copy().
  virtual std::shared_ptr<ReleaseRule> makeBlank() const = 0;
  // What the class names in failure texts begin with: "Opt" for the optimisable twins, which
  // share their simulation rule's checks.
  virtual std::string textPrefix() const { return ""; }

  // The volume of reservoir at the start of the period of date in the current window, as a
  // percentage of the reservoir's maximum volume (%). reservoir must be a Reservoir.
  double volumePercentage(const std::shared_ptr<Element>& reservoir, const Date& date) const;
  // The index of the first of the steps (not empty, ascending upper limits in %, limitOf(step)
  // giving the limit) that percent does not exceed by more than 1e-06; the last index when
  // percent exceeds them all.
  template <typename Step, typename LimitOf>
  static unsigned int chosenStep(const std::vector<Step>& steps, LimitOf limitOf, double percent) {
    for (unsigned int i = 0; i < steps.size(); ++i) {
      if (withinLimit(percent, limitOf(steps[i]))) return i;
    }
    return static_cast<unsigned int>(steps.size()) - 1;
  }
  // True when element is a reservoir (false for none).
  static bool isReservoir(const std::shared_ptr<Element>& element);
  // The reservoir of scenario with id, or none when the id names no element or a non-reservoir.
  static std::shared_ptr<Element> findReservoir(const Scenario& scenario, unsigned int id);

 private:
  Interval interval;
  unsigned int windowIndex = 0;
  bool zeroContribution = false;  // natural inflows count as zero

  // percent (%) does not exceed limit (%) by more than 1e-06.
  static bool withinLimit(double percent, double limit);
};
