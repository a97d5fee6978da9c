#pragma once

#include <memory>
#include <string>

#include "core/ReleaseRule.h"
#include "rules/VolDepTwoReleaseStruct.h"

class Element;

// A release chosen by the volumes of two other reservoirs from a step table: the first
// dependency's volume picks the row, the second's the column, each as VolDepOneReleaseRule picks
// its row (percent of the dependency's own maximum, first limit not exceeded by more than 1e-06,
// else the last). The leaves say which month slot applies.
class VolDepTwoReleaseRule : public ReleaseRule {
 public:
  // The release of the chosen cell, m³/s; 0.0 without both dependencies or without limits.
  double getRelease(const Date& date) const final;
  // Looks each dependency up by its id in scenario; one whose id names no reservoir there is
  // dropped and its id set to 0.
  void loadAfterScenarioInstantiated(const std::shared_ptr<Scenario>& scenario) override;
  std::vector<std::shared_ptr<Element>> getDependencies() const override;
  // ReleaseRule::copy(), the ids and the table, but not the dependencies themselves.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;

  // Sets the table. Throws std::invalid_argument "VolDepTwoStaticReleaseRule:
  // setVolDepTwoReleaseStruct(): The volume percentage values must be in ascending order" when a
  // list of limits falls, "VolDepTwoStaticReleaseRule:setVolDepTwoReleaseStruct(): The releases
  // has a negative value." for a release below 0, and "VolDepTwoReleaseRule::
  // setVolDepTwoReleaseStruct(): each month slot must have one row per limit of D1 and one
  // release per limit of D2" for a month slot of another shape.
  virtual void setVolDepTwoReleaseStruct(const VolDepTwoReleaseStruct& table);
  const VolDepTwoReleaseStruct& getVolDepTwoReleaseStruct() const { return volDepTwoReleaseStruct; }

  // The reservoirs whose volumes choose the row (1) and the column (2); none until set.
  const std::shared_ptr<Element>& getReservoirDependency1() const { return reservoirDependency1; }
  const std::shared_ptr<Element>& getReservoirDependency2() const { return reservoirDependency2; }
  // Sets both dependencies and their ids. Throws std::invalid_argument, checking in this order,
  // "VolDepOneReleaseRule::setReservoirDenpendency: the reservoirD1 is nullptr", "... the
  // reservoirD2 is nullptr", "VolDepOneReleaseRule::setReservoirDependency: The element
  // reservoirD1 is not a reservoir" and "... reservoirD2 is not a reservoir".
  void setReservoirDependency(const std::shared_ptr<Element>& reservoirD1,
                              const std::shared_ptr<Element>& reservoirD2);
  // Set one dependency and its id (0 for none) without any check.
  void setReservoirDependency1(const std::shared_ptr<Element>& reservoir);
  void setReservoirDependency2(const std::shared_ptr<Element>& reservoir);

  unsigned int getReservoirDependencyId1() const { return reservoirDependencyId1; }
  unsigned int getReservoirDependencyId2() const { return reservoirDependencyId2; }
  // Set the ids that loadAfterScenarioInstantiated() resolves.
  void setReservoirDependencyId(unsigned int id1, unsigned int id2);
  void setReservoirDependencyId1(unsigned int id) { reservoirDependencyId1 = id; }
  void setReservoirDependencyId2(unsigned int id) { reservoirDependencyId2 = id; }

 protected:
  // The class names that start the failure texts of the dependencies and of the table; the
  // optimisable twin names itself.
  virtual std::string ownerOfDependencyTexts() const { return "VolDepOneReleaseRule"; }
  virtual std::string ownerOfTableTexts() const { return "VolDepTwoStaticReleaseRule"; }
  // The release of row i (first dependency) and column j (second dependency) at date, m³/s.
  virtual double doGetRelease(const Date& date, unsigned int i, unsigned int j) const = 0;

 private:
  std::shared_ptr<Element> reservoirDependency1;
  std::shared_ptr<Element> reservoirDependency2;
  unsigned int reservoirDependencyId1 = 0;
  unsigned int reservoirDependencyId2 = 0;
  VolDepTwoReleaseStruct volDepTwoReleaseStruct;
};
