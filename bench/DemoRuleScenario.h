#pragma once

#include <benchmark/benchmark.h>

#include <memory>

#include "DemoProject.h"
#include "core/Scenario.h"

// The demo's rule scenario ("Regras") over the whole record, 1931-2019, or null when the demo
// has none.
inline std::shared_ptr<Scenario> demoRuleScenario() {
  for (const auto& scenario : DemoProject::makeScenarios(KOVA_DEMO_DATA, 2019)) {
    if (scenario->getName() == "Regras") return scenario;
  }
  return nullptr;
}

// Element-periods per second of the runs timed by state: every element counts for every period
// of the scenario's interval.
inline void countElementPeriods(benchmark::State& state, const Scenario& scenario) {
  const double elements = static_cast<double>(scenario.getElements().size());
  const double periods = static_cast<double>(scenario.getInterval().period());
  state.counters["elements"] = elements;
  state.counters["periods"] = periods;
  state.counters["element_periods/s"] =
      benchmark::Counter(elements * periods, benchmark::Counter::kIsIterationInvariantRate);
}
