#pragma once

#include <memory>
#include <vector>

#include "core/ReleaseRule.h"
#include "rules/VolDepOneReleaseStruct.h"

class Element;

// A release chosen by the volume of another reservoir (the dependency) from a step table. The
// dependency's volume at the start of the period, in percent of its own maximum volume, picks
// the first row whose limit it does not exceed by more than 1e-06, or the last row when it
// exceeds them all. There is no interpolation between rows. The leaves say which of the row's
// releases applies.
class VolDepOneReleaseRule : public ReleaseRule {
 public:
  // The release of the chosen row, m³/s; 0.0 without a dependency or without rows.
  double getRelease(const Date& date) const final;
  // Looks the dependency up by its id in scenario; when the id names no reservoir there (it was
  // deleted), the dependency is dropped and the id set to 0.
  void loadAfterScenarioInstantiated(const std::shared_ptr<Scenario>& scenario) override;
  std::vector<std::shared_ptr<Element>> getDependencies() const override;
  // ReleaseRule::copy(), the dependency's id and the table, but not the dependency itself.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;

  // Sets the rows, in ascending order of limit. Throws std::invalid_argument
  // "VolDepOneReleaseRule::setVolumePeriodicReleaseStr(): All values of releases must be
  // positive" for a release below 0, then "VolDepOneReleaseRule:setVolumePeriodicReleaseStr():
  // The volume percentage values must be in ascending order." for a limit below the one before
  // by more than 1e-06 (equal limits are accepted).
  virtual void setVectorOfVolDepOneReleaseStruct(const std::vector<VolDepOneReleaseStruct>& rows);
  const std::vector<VolDepOneReleaseStruct>& getVectorOfVolDepOneReleaseStruct() const {
    return vectorOfVolDepOneReleaseStruct;
  }

  // The reservoir whose volume chooses the row; none until set or resolved.
  const std::shared_ptr<Element>& getReservoirDependency() const { return reservoirDependency; }
  // Sets the dependency and its id. Throws std::invalid_argument
  // "VolDepOneReleaseRule::setReservoirDenpendency: the reservoir is nullptr" for none and
  // "VolDepOneReleaseRule::setReservoirDependency: The element is not a reservoir".
  void setReservoirDependency(const std::shared_ptr<Element>& reservoir);
  unsigned int getReservoirDependencyId() const { return reservoirDependencyId; }
  // Sets the id that loadAfterScenarioInstantiated() resolves.
  void setReservoirDependencyId(unsigned int id) { reservoirDependencyId = id; }

 protected:
  // The release of row at date, m³/s.
  virtual double doGetRelease(const Date& date, unsigned int row) const = 0;

 private:
  std::shared_ptr<Element> reservoirDependency;
  unsigned int reservoirDependencyId = 0;
  std::vector<VolDepOneReleaseStruct> vectorOfVolDepOneReleaseStruct;
};
