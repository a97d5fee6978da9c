#pragma once

#include <cstdint>

// The plain values of every vocabulary family. Their numbers are stored in project files and in
// the database, so they must never change; gaps in the numbering are deliberate.

enum class ElementType : int32_t {
  reservoir = 0,
  genericDemand = 1,
  humanDemand = 2,
  animalDemand = 3,
  industrialDemand = 4,
  irrigationDemand = 5,
  drain = 6,
  junction = 7,
  basin = 8,
  genericLink = 9,
  artificialLink = 10,
  naturalLink = 11,
};

enum class SerieType : int32_t {
  precipitation = 0,               // mm
  evaporation = 1,                 // mm
  naturalIncrementalFlow = 2,      // m³/s
  targetVolume = 3,                // dimensionless
  demand = 5,                      // m³/s
  transitLossPercentage = 7,       // %
  initialVolume = 9,               // hm³
  finalVolume = 10,                // hm³
  upstreamControlledFlow = 11,     // m³/s
  upstreamControlledVolume = 12,   // hm³
  upstreamUncontrolledFlow = 13,   // m³/s
  upstreamUncontrolledVolume = 14, // hm³
  inflow = 15,                     // m³/s
  transitLoss = 16,                // m³/s
  outflow = 17,                    // m³/s
  outflowVolume = 18,              // hm³
  level = 19,                      // m
  area = 20,                       // km²
  attendedDemand = 21,             // m³/s
  attendedDemandVolume = 22,       // hm³
  attendedDemandPercentage = 23,   // %
  consumedDemand = 24,             // m³/s
  consumedDemandVolume = 25,       // hm³
  supplyShortage = 26,             // m³/s
  supplyShortageVolume = 27,       // hm³
  targetDemand = 28,               // m³/s
  targetDemandVolume = 29,         // hm³
  supplyFailure = 30,              // dimensionless
  supplyExcess = 31,               // m³/s
  supplyExcessVolume = 32,         // hm³
  precipitatedVolume = 33,         // hm³
  evaporatedVolume = 34,           // hm³
  releasedFlow = 35,               // m³/s
  releasedVolume = 36,             // hm³
  spilledFlow = 37,                // m³/s
  spilledVolume = 38,              // hm³
  priority = 39,                   // dimensionless
  pumpingCost = 40,                // R$
  linkSense = 41,                  // dimensionless
  linkLimit = 42,                  // m³/s
};

// "Mg" and "Kg" share the number 13 on purpose; 14 is free.
enum class Unit : int32_t {
  dimensionless = 0,
  hours = 1,
  hoursPerDay = 2,
  cubicMetresPerSecond = 3,
  cubicHectometres = 4,
  millimetres = 5,
  metres = 6,
  cubicMetres = 7,
  squareKilometres = 8,
  reais = 9,
  percentage = 10,
  centimetres = 11,
  degreesCelsius = 12,
  milligrams = 13,
  kilograms = 13,
  litres = 15,
  litresPerSecond = 16,
};

enum class Periodicity : int32_t { daily = 0, monthly = 1, yearly = 2 };

enum class ScenarioType : int32_t {
  priorityOptimizer = 0,
  ruleSimulator = 1,
  ruleOptimizer = 2,
  guaranteeCurve = 3,
  systemGuaranteeCurve = 4,
};

// Tells a scenario's kind in light project descriptions; it shares the scenario types' numbers.
enum class SceneryIndicator : int32_t {
  priorityOptimizer = 0,
  ruleSimulator = 1,
  ruleOptimizer = 2,
  guaranteeCurve = 3,
  systemGuaranteeCurve = 4,
};

enum class ExecutionType : int32_t {
  continuous = 0,
  windowed = 1,
  optimization = 2,
  guaranteeCurve = 3,
  systemGuaranteeCurve = 4,
};

enum class ReleaseRuleType : int32_t {
  none = 0,
  constant = 1,
  periodic = 2,
  serie = 3,
  hydrologicalState = 4,
  staticVolumeDependence1 = 5,
  periodicVolumeDependence1 = 6,
  staticVolumeDependence2 = 7,
  periodicVolumeDependence2 = 8,
  knnRegression = 9,
  regressionTree = 10,
  randomForest = 11,
  optNone = 12,
  optConstant = 13,
  optPeriodic = 14,
  optSerie = 15,
  optStaticVolumeDependence1 = 16,
  optPeriodicVolumeDependence1 = 17,
  optStaticVolumeDependence2 = 18,
  optPeriodicVolumeDependence2 = 19,
  optHydrologicalState = 20,
};

enum class LinkAddonType : int32_t { none = 0, propagation = 1, pumping = 2 };

enum class Sense : int32_t { original = 0, inverted = 1 };

enum class SceneryStatus : int32_t {
  configurationError = 0,
  success = 1,
  cancelled = 2,
  bidirectionalLoop = 3,
};

// How a priority scenario takes its goals from the water available: not at all, by one state of
// the whole system, by zones of each reservoir, or by zones of each reservoir for each month.
enum class HydrologicalStateType : int32_t {
  none = 0,
  standard = 1,
  perReservoir = 2,
  perReservoirMonthly = 3,
};

enum class ContentType : int32_t { intType = 0, doubleType = 1, stringType = 2 };

enum class RegressionType : int32_t { cubicSpline = 0 };

// The categories of elements by which sets, metrics and checks are chosen.
struct ElementGroup {
  enum class ElementCategoriesEnum : int32_t {
    demand = 0,
    reservoir = 1,
    junction = 2,
    links = 3,
    basin = 4,
  };
};
