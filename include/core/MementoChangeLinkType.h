#pragma once

#include <memory>
#include <optional>

#include "core/Link.h"
#include "core/RuleSettings.h"
#include "core/Scenario.h"
#include "core/Settings.h"

// What a scenario holds about a link outside the link object itself, kept while the link is
// replaced by one of the other type (natural or artificial) with the same id and ends: the
// return share of its upstream demand, the allocation matrix of its upstream node in a rule
// scenario, and the link's own settings. Removing the old link drops all three.
class MementoChangeLinkType {
 public:
  MementoChangeLinkType(std::shared_ptr<Link> link, std::shared_ptr<Scenario> scenario);

  // Keeps the state of the link now held; a part the scenario does not have is skipped.
  void save();
  // Gives the kept state to the link now held, which must have the saved link's id and ends.
  void restore();

  const std::shared_ptr<Link>& getLink() const { return link; }
  // The link that restore() gives the state to: the replacement of the saved one.
  void setLink(const std::shared_ptr<Link>& replacement) { link = replacement; }

 private:
  using Step = void (MementoChangeLinkType::*)();

  void demandReturnSave();
  void demandReturnRestore();
  void allocationMatrixSave();
  void allocationMatrixRestore();
  void linkSettingsSave();
  void linkSettingsRestore();

  // The settings of the element with id when the scenario has them as T, or null.
  template <typename T>
  std::shared_ptr<T> settingsOf(unsigned int id) const;

  std::shared_ptr<Link> link;
  std::shared_ptr<Scenario> scenario;
  std::optional<double> demandReturnPercentage;  // %
  std::optional<RuleSettings::AllocationMatrix> allocationMatrix;
  std::shared_ptr<Settings> linkSettings;
};
