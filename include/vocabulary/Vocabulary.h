#pragma once

#include <set>
#include <string>
#include <vector>

#include "vocabulary/Enum.h"
#include "vocabulary/EnumElementType.h"
#include "vocabulary/EnumLinkAddonType.h"
#include "vocabulary/EnumPeriodicity.h"
#include "vocabulary/EnumTable.h"
#include "vocabulary/EnumTypes.h"

// The tables of every vocabulary family, built once on first use and read-only afterwards.
// Display names are part of the file format and are reproduced letter for letter.
class Vocabulary {
 public:
  static const EnumTable<EnumElementType, ElementType>& elementTypes();
  static const EnumTable<Enum<SerieType>, SerieType>& serieTypes();
  static const EnumTable<Enum<Unit>, Unit>& units();
  static const EnumTable<EnumPeriodicity, Periodicity>& periodicities();
  static const EnumTable<Enum<ScenarioType>, ScenarioType>& scenarioTypes();
  static const EnumTable<Enum<SceneryIndicator>, SceneryIndicator>& sceneryIndicators();
  static const EnumTable<Enum<ExecutionType>, ExecutionType>& executionTypes();
  static const EnumTable<Enum<ReleaseRuleType>, ReleaseRuleType>& releaseRuleTypes();
  static const EnumTable<EnumLinkAddonType, LinkAddonType>& linkAddonTypes();
  static const EnumTable<Enum<Sense>, Sense>& senses();
  static const EnumTable<Enum<SceneryStatus>, SceneryStatus>& sceneryStatuses();
  static const EnumTable<Enum<HydrologicalStateType>, HydrologicalStateType>&
  hydrologicalStateTypes();

  // The unit with which a series of this kind is created.
  static Unit unitOf(SerieType type);
  // The seven kinds that users supply: {0, 1, 2, 3, 5, 7, 42}.
  static const std::set<SerieType>& inputSerieTypes();
  // Every kind that a run fills.
  static const std::set<SerieType>& outputSerieTypes();
  // "Vazão liberada(m³/s)": the label of a reservoir's release series.
  static const std::string& releaseSerieLabel();

  // Scenario types in the order offered to users: 1, 2, 0, 3, 4.
  static const std::vector<ScenarioType>& scenarioTypesInOfferOrder();
  // Execution types that a scenario type may use.
  static const std::vector<ExecutionType>& executionTypesOf(ScenarioType type);

  // Shorthands for a row that always exists.
  static const EnumElementType& of(ElementType type);
  static const Enum<SerieType>& of(SerieType type);
  static const Enum<Unit>& of(Unit type);
  static const EnumPeriodicity& of(Periodicity type);
  static const Enum<ScenarioType>& of(ScenarioType type);
  static const Enum<ExecutionType>& of(ExecutionType type);
  static const Enum<ReleaseRuleType>& of(ReleaseRuleType type);
  static const EnumLinkAddonType& of(LinkAddonType type);
  static const Enum<Sense>& of(Sense type);
  static const Enum<SceneryStatus>& of(SceneryStatus type);
  static const Enum<HydrologicalStateType>& of(HydrologicalStateType type);
};
