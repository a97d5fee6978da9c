#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "core/ExecutionMethod.h"
#include "core/SettingsManager.h"

class ConstReleaseRule;
class ReleaseRule;
class KOVACoreProgressBar;

// The guarantee curve of the marked reservoirs: for each level G (%) of a list, the largest
// constant release each can deliver in at least G % of the periods. For each level and reservoir,
// upstream first, a stochastic search of fixed steps tries releases, each trial a whole simulation
// of the network with the reservoir on a constant rule; a level that a reservoir cannot reach
// names that reservoir and adds no row. The reservoirs' own rules are given back after the run,
// cancelled or not.
class ExecutionGuaranteeCurve : public ExecutionMethod {
 public:
  // The curve: one row of releases (m³/s) per level reached, one column per reservoir.
  struct GuaranteeStr {
    std::vector<double> guarantees;           // %, the levels with a row
    std::vector<std::uint32_t> reservoirIds;  // the reservoirs, upstream first
    std::vector<std::vector<double>> values;  // [level][reservoir], m³/s
    bool operator==(const GuaranteeStr& other) const {
      return guarantees == other.guarantees && reservoirIds == other.reservoirIds &&
             values == other.values;
    }
  };
  // What one trial gave a reservoir.
  struct ReservoirStr {
    bool found = false;
    double q = 0.0;          // m³/s, the release tried when it reached the level, else 0
    double guarantee = 0.0;  // %, the share of periods that delivered it
  };

  ExecutionGuaranteeCurve();

  // One set of continuous result series per enabled element, over interval.
  void createResults(const Elements& elements, const Interval& interval,
                     const Enum<ScenarioType>& scenarioType) override;
  // Runs the search for every level; false, with no curve, when progress cancelled it.
  bool run(const Interval& interval, const std::shared_ptr<OperationSystem>& operation,
           const Progress& progress) override;

  std::uint32_t getNumberOfIterations() const { return numberOfIterations; }
  // The trials per reservoir and level. Throws std::invalid_argument
  // "ExecutionGuaranteeCurve::setNumberOfIterations(): the number of iterations must be positive"
  // for 0.
  void setNumberOfIterations(std::uint32_t value);
  // The reservoirs that failed a level in the last run, by id, with their names.
  const std::map<unsigned int, std::string>& getReservoirFailMap() const {
    return reservoirFailMap;
  }
  bool isOnlyQ90() const { return onlyQ90; }
  // Only the level 90 %, whatever the list.
  void setOnlyQ90(bool value) { onlyQ90 = value; }
  // The release of reservoirId at the level guarantee (within 1e-6), or 0.0 without one.
  double getQGuarantee(unsigned int reservoirId, double guarantee) const;
  const GuaranteeStr& getGuaranteeStr() const { return guaranteeStr; }
  void setGuaranteeStr(const GuaranteeStr& value) { guaranteeStr = value; }
  void clearGuaranteeStr() { guaranteeStr = GuaranteeStr(); }
  // Whether each trial runs the network by isolated networks: the current scenario of the
  // ScenarioManager, turned into a rule scenario, runs piece by piece and hands the release of
  // the reservoir under trial back.
  void setIsolated(bool value) { isolated = value; }
  bool isIsolated() const { return isolated; }
  // The whole simulations of the last run: a trial each.
  unsigned long getNumberOfSimulations() const { return simulations; }
  const std::vector<double>& getGuaranteeValues() const { return guaranteeValues; }
  // The levels, %, in the order they are run. Throws std::invalid_argument
  // "ExecutionGuaranteeCurve::setGuaranteeValues(): a guarantee must be above 0 and at most 100"
  // for a level outside (0, 100].
  void setGuaranteeValues(const std::vector<double>& values);
  const Elements& getElements() const { return elements; }
  void setElements(const Elements& value) { elements = value; }
  // The settings that mark the reservoirs of the curve and hold their rules.
  void setSettingsManager(const SettingsManager* value) { settingsManager = value; }

  // Every later run draws from a generator seeded with n, the k-th run after this call with n + k,
  // so that runs repeat draw for draw; without it each run is seeded from the clock.
  static void setSeed(std::uint64_t n);

 protected:
  std::shared_ptr<ExecutionMethod> copySpecific() const override;

 private:
  using Rules = std::map<unsigned int, std::shared_ptr<ConstReleaseRule>>;

  Elements curveReservoirs() const;
  void giveConstantRules(const Elements& reservoirs, Rules& rules);
  void restoreRules();
  // The release the search starts from at the first level: 90 % of the mean natural inflow,
  // scaled by that level.
  double startValue(const Element& reservoir, double firstLevel) const;
  // The best release of reservoir at target (%) from q, or 0 when no trial reached it. Throws
  // KOVACoreProgressBar::ProgressCancelException when progress cancels between trials.
  double search(const Element& reservoir, ConstReleaseRule& rule, double q, double target,
                const KOVACoreProgressBar& bar);
  ReservoirStr trial(const Element& reservoir, const ConstReleaseRule& rule, double target) const;
  // One whole simulation of the stored interval with the stored operation system, or by isolated
  // networks for reservoir.
  void simulate(const Element& reservoir);
  // The isolated trial: runs the current scenario as a rule scenario by isolated networks and
  // copies reservoir's "Vazão liberada" back. Throws std::runtime_error with the status text when
  // that run is refused.
  void runIsolated(const Element& reservoir);
  double draw();
  static std::uint32_t nextSeed();

  Elements elements;
  std::shared_ptr<OperationSystem> operationSystem;
  const SettingsManager* settingsManager = nullptr;
  Interval interval;
  Enum<ScenarioType> scenarioType;
  std::vector<double> guaranteeValues;
  std::uint32_t numberOfIterations = 1;
  GuaranteeStr guaranteeStr;
  std::map<unsigned int, std::string> reservoirFailMap;
  bool onlyQ90 = false;
  bool isolated = false;
  unsigned long simulations = 0;
  std::map<unsigned int, std::shared_ptr<ReleaseRule>> backup;
  std::mt19937 generator;
};
