// The metaheuristic kernel's own cost per evaluation: a whole SMPSO, OMOPSO or PSO run on ZDT1,
// whose evaluation is a few dozen flops, divided by its number of evaluations. In the system one
// evaluation is one whole simulation (a millisecond or more), against which this must vanish.
#include <benchmark/benchmark.h>

#include <memory>

#include "optimization/kernel/OMOPSO.h"
#include "optimization/kernel/PSO.h"
#include "optimization/kernel/SMPSO.h"
#include "optimization/kernel/SwarmTestSupport.h"

namespace {

template <typename Swarm>
void BM_SwarmOnZdt1(benchmark::State& state) {
  const int swarmSize = static_cast<int>(state.range(0));
  const int iterations = static_cast<int>(state.range(1));
  long evaluations = 0;
  for (auto _ : state) {
    Zdt problem(Zdt::Kind::kZdt1, 30);
    SwarmSetup setup(swarmSize, swarmSize, iterations, 1.0 / 30.0);
    std::unique_ptr<SolutionSet> front = runSwarm<Swarm>(&problem, setup, 1234);
    benchmark::DoNotOptimize(front->size());
    evaluations += problem.evaluations;
  }
  // Reported as time per evaluation (kernel overhead plus the trivial ZDT1 evaluation).
  state.counters["per_evaluation"] = benchmark::Counter(
      static_cast<double>(evaluations), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
  state.counters["evaluations"] = static_cast<double>(evaluations) / state.iterations();
}

void BM_PsoOnZdt1(benchmark::State& state) {
  const int swarmSize = static_cast<int>(state.range(0));
  const int iterations = static_cast<int>(state.range(1));
  long evaluations = 0;
  for (auto _ : state) {
    Zdt problem(Zdt::Kind::kZdt1, 30);
    PseudoRandom::setSeed(1234);
    PSO pso(&problem);
    int size = swarmSize;
    int maxIterations = iterations;
    pso.setInputParameter("swarmSize", &size);
    pso.setInputParameter("maxIterations", &maxIterations);
    std::unique_ptr<SolutionSet> result(pso.execute());
    benchmark::DoNotOptimize(result->size());
    evaluations += problem.evaluations;
  }
  state.counters["per_evaluation"] = benchmark::Counter(
      static_cast<double>(evaluations), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK_TEMPLATE(BM_SwarmOnZdt1, SMPSO)->Args({100, 250})->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_SwarmOnZdt1, OMOPSO)->Args({100, 250})->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PsoOnZdt1)->Args({100, 250})->Unit(benchmark::kMillisecond);

}  // namespace
