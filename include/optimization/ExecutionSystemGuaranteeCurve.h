#pragma once

#include <cstdint>
#include <vector>

#include "optimization/SwarmExecution.h"

// The guarantee curve of a system of reservoirs: for each level G (%), the largest constant flow
// its out reservoir delivers in at least G % of the periods while a swarm adjusts the optimisable
// rules of the others. The out reservoir holds a constant rule whose release is a decision
// variable too; the single objective is the negated flow of a candidate that reaches the level,
// 0.0 for one that does not. Once a candidate hits the reachable level exactly, the rest of the
// level's candidates take its flow without a simulation.
class ExecutionSystemGuaranteeCurve : public SwarmExecution {
 public:
  // The curve: the levels reached and the flow of the out reservoir at each.
  struct SystemGuaranteeCurveStr {
    std::vector<double> guarantees;            // %, the levels with a flow
    std::vector<double> guaranteeCurveValues;  // m³/s, one per level
    std::uint32_t outSystemReservoirId = 0;
    bool operator==(const SystemGuaranteeCurveStr& other) const {
      return guarantees == other.guarantees && guaranteeCurveValues == other.guaranteeCurveValues &&
             outSystemReservoirId == other.outSystemReservoirId;
    }
  };

  ExecutionSystemGuaranteeCurve();

  // Runs one swarm per level; false, with no curve, when progress cancelled it. The progress bar
  // counts the evaluations of the whole list of levels, also when only Q90 runs. Throws
  // std::runtime_error "ExecutionSystemGuaranteeCurve::run: The algorithm not is configured"
  // without an algorithm.
  bool run(const Interval& interval, const std::shared_ptr<OperationSystem>& operation,
           const Progress& progress) override;
  using SwarmExecution::run;

  // A new single-objective swarm of type over the present rules, initialised; it keeps the
  // numbers of the present parameters (1 each the first time).
  void configureAlgorithm(OptimizationAlgorithmType type);

  std::uint32_t getOutSystemReservoirId() const { return curve.outSystemReservoirId; }
  void setOutSystemReservoirId(std::uint32_t id) { curve.outSystemReservoirId = id; }
  const SystemGuaranteeCurveStr& getSystemGuaranteeCurveStr() const { return curve; }
  void setSystemGuaranteeCurveStr(const SystemGuaranteeCurveStr& value) { curve = value; }
  // Empties the curve and keeps the out reservoir.
  void clearSystemGuaranteeCurveStr();
  // The flow at the level guarantee (within 1e-6), or 0.0 without one.
  double getQGuarantee(double guarantee) const;
  bool isOnlyQ90() const { return onlyQ90; }
  // Only the level 90 %.
  void setOnlyQ90(bool value) { onlyQ90 = value; }
  // The levels, %, in the order they are run.
  static const std::vector<double>& getGuaranteeValues();

 protected:
  std::shared_ptr<ExecutionMethod> copySpecific() const override;
  // The out reservoir's constant release q and the share of periods, %, that delivered it.
  std::vector<double> measure() const override;
  void setObjectiveFunctionValue(Solution* solution, const std::vector<double>& measures) override;
  bool needsSimulation() const override { return !found; }
  int numberOfObjectives() const override { return 1; }

 private:
  std::shared_ptr<Element> outReservoir() const;
  // The flow of the level's swarm, or 0 when no candidate reached it.
  double runLevel(double level, unsigned int periods);

  SystemGuaranteeCurveStr curve;
  double nearGuarantee = 0.0;
  double currentGuarantee = 0.0;
  bool found = false;
  double foundValue = 0.0;
  bool onlyQ90 = false;
};
