#include "core/MementoChangeLinkType.h"

#include <utility>

#include "core/Demand.h"

MementoChangeLinkType::MementoChangeLinkType(std::shared_ptr<Link> link,
                                             std::shared_ptr<Scenario> scenario)
    : link(std::move(link)), scenario(std::move(scenario)) {}

template <typename T>
std::shared_ptr<T> MementoChangeLinkType::settingsOf(unsigned int id) const {
  const SettingsManager& manager = scenario->getSettingsManager();
  if (!manager.contains(id)) return nullptr;
  return std::dynamic_pointer_cast<T>(manager.getSettings(id));
}

void MementoChangeLinkType::save() {
  static constexpr Step kSteps[] = {&MementoChangeLinkType::demandReturnSave,
                                    &MementoChangeLinkType::allocationMatrixSave,
                                    &MementoChangeLinkType::linkSettingsSave};
  for (Step step : kSteps) (this->*step)();
}

void MementoChangeLinkType::restore() {
  static constexpr Step kSteps[] = {&MementoChangeLinkType::demandReturnRestore,
                                    &MementoChangeLinkType::allocationMatrixRestore,
                                    &MementoChangeLinkType::linkSettingsRestore};
  for (Step step : kSteps) (this->*step)();
}

void MementoChangeLinkType::demandReturnSave() {
  if (auto demand = std::dynamic_pointer_cast<Demand>(link->getUpstream())) {
    demandReturnPercentage = demand->getDemandReturnPercentage(link);
  }
}

void MementoChangeLinkType::demandReturnRestore() {
  auto demand = std::dynamic_pointer_cast<Demand>(link->getUpstream());
  if (demand && demandReturnPercentage) {
    demand->setDemandReturnPercentage(link, *demandReturnPercentage);
  }
}

// Every kind of scenario run by rules gives its nodes rule settings, not only the simulator.
void MementoChangeLinkType::allocationMatrixSave() {
  const auto upstream = link->getUpstream();
  if (!upstream) return;
  if (auto settings = settingsOf<RuleSettings>(upstream->getId())) {
    allocationMatrix = settings->getAllocation();
  }
}

void MementoChangeLinkType::allocationMatrixRestore() {
  const auto upstream = link->getUpstream();
  if (!upstream || !allocationMatrix) return;
  if (auto settings = settingsOf<RuleSettings>(upstream->getId())) {
    settings->setAllocation(*allocationMatrix);
  }
}

void MementoChangeLinkType::linkSettingsSave() {
  if (auto settings = settingsOf<Settings>(link->getId())) linkSettings = settings->copy();
}

void MementoChangeLinkType::linkSettingsRestore() {
  auto settings = settingsOf<Settings>(link->getId());
  if (settings && linkSettings) settings->copyFrom(linkSettings);
}
