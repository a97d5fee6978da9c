#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "optimization/kernel/OMOPSO.h"
#include "optimization/kernel/PSO.h"
#include "optimization/kernel/SMPSO.h"
#include "optimization/kernel/SwarmTestSupport.h"

namespace {

// A fault case: how to spoil a correct configuration, and the line it must give.
struct FaultCase {
  std::string name;
  std::function<void(Algorithm&, SwarmSetup&)> spoil;
  std::string line;
};

template <typename Swarm>
void expectFaults(const std::vector<FaultCase>& cases) {
  for (const FaultCase& c : cases) {
    SCOPED_TRACE(c.name);
    Zdt problem(Zdt::Kind::kZdt1, 4);
    SwarmSetup setup(4, 4, 2, 0.25);
    Swarm swarm(&problem);
    setup.configure(swarm);
    c.spoil(swarm, setup);
    EXPECT_KERNEL_FAULT(swarm.execute(), c.line);
  }
}

void unset(Algorithm& algorithm, const std::string& name) {
  algorithm.setInputParameter(name, nullptr);
}

TEST(AlgorithmFaults, PSO) {
  expectFaults<PSO>({
      {"no swarmSize", [](Algorithm& a, SwarmSetup&) { unset(a, "swarmSize"); },
       "PSO: parameter swarmSize not set"},
      {"no maxIterations", [](Algorithm& a, SwarmSetup&) { unset(a, "maxIterations"); },
       "PSO: parameter maxIterations not set"},
      {"swarmSize 0", [](Algorithm&, SwarmSetup& s) { s.swarmSize = 0; },
       "PSO: parameter swarmSize below 1"},
      {"swarmSize -3", [](Algorithm&, SwarmSetup& s) { s.swarmSize = -3; },
       "PSO: parameter swarmSize below 1"},
  });
}

TEST(AlgorithmFaults, SMPSO) {
  expectFaults<SMPSO>({
      {"no swarmSize", [](Algorithm& a, SwarmSetup&) { unset(a, "swarmSize"); },
       "SMPSO: parameter swarmSize not set"},
      {"no archiveSize", [](Algorithm& a, SwarmSetup&) { unset(a, "archiveSize"); },
       "SMPSO: parameter archiveSize not set"},
      {"no maxIterations", [](Algorithm& a, SwarmSetup&) { unset(a, "maxIterations"); },
       "SMPSO: parameter maxIterations not set"},
      {"swarmSize 0", [](Algorithm&, SwarmSetup& s) { s.swarmSize = 0; },
       "SMPSO: parameter swarmSize below 1"},
      {"archiveSize 0", [](Algorithm&, SwarmSetup& s) { s.archiveSize = 0; },
       "SMPSO: parameter archiveSize below 1"},
      {"no mutation", [](Algorithm& a, SwarmSetup&) { a.addOperator("mutation", nullptr); },
       "SMPSO: operator mutation not set"},
  });
}

TEST(AlgorithmFaults, OMOPSO) {
  expectFaults<OMOPSO>({
      {"no swarmSize", [](Algorithm& a, SwarmSetup&) { unset(a, "swarmSize"); },
       "OMOPSO: parameter swarmSize not set"},
      {"no archiveSize", [](Algorithm& a, SwarmSetup&) { unset(a, "archiveSize"); },
       "OMOPSO: parameter archiveSize not set"},
      {"no maxIterations", [](Algorithm& a, SwarmSetup&) { unset(a, "maxIterations"); },
       "OMOPSO: parameter maxIterations not set"},
      {"swarmSize 0", [](Algorithm&, SwarmSetup& s) { s.swarmSize = 0; },
       "OMOPSO: parameter swarmSize below 1"},
      {"archiveSize -1", [](Algorithm&, SwarmSetup& s) { s.archiveSize = -1; },
       "OMOPSO: parameter archiveSize below 1"},
      {"no uniform mutation",
       [](Algorithm& a, SwarmSetup&) { a.addOperator("uniformMutation", nullptr); },
       "OMOPSO: operator uniformMutation not set"},
      {"no non-uniform mutation",
       [](Algorithm& a, SwarmSetup&) { a.addOperator("nonUniformMutation", nullptr); },
       "OMOPSO: operator nonUniformMutation not set"},
  });
}

TEST(AlgorithmFaults, PsoNeedsNoMutationOperator) {
  Sphere sphere(2);
  int swarmSize = 3;
  int maxIterations = 2;
  PSO pso(&sphere);
  pso.setInputParameter("swarmSize", &swarmSize);
  pso.setInputParameter("maxIterations", &maxIterations);
  std::unique_ptr<SolutionSet> result(pso.execute());
  EXPECT_EQ(result->size(), 1);
  EXPECT_EQ(pso.getOperator("mutation"), nullptr);
}

// Throws from the n-th evaluation, as a user's cancellation does.
class CancelledZdt : public Zdt {
 public:
  CancelledZdt(long cancelAt) : Zdt(Zdt::Kind::kZdt1, 4), cancelAt(cancelAt) {}
  void evaluate(Solution* solution) override {
    if (evaluations == cancelAt) throw std::runtime_error("cancelled");
    Zdt::evaluate(solution);
  }
  long cancelAt;
};

template <typename Swarm>
void expectCancellationPassesThrough() {
  for (long cancelAt : {0L, 2L, 9L, 15L}) {
    SCOPED_TRACE(cancelAt);
    CancelledZdt problem(cancelAt);
    SwarmSetup setup(4, 4, 3, 0.25);
    Swarm swarm(&problem);
    setup.configure(swarm);
    EXPECT_THROW(swarm.execute(), std::runtime_error);
    // The same instance runs again; nothing of the broken run leaks (checked under ASan).
    problem.cancelAt = -1;
    std::unique_ptr<SolutionSet> result(swarm.execute());
    EXPECT_GE(result->size(), 1);
  }
}

TEST(AlgorithmFaults, AnEvaluationExceptionLeavesTheRunAndTheInstanceReusable) {
  expectCancellationPassesThrough<PSO>();
  expectCancellationPassesThrough<SMPSO>();
  expectCancellationPassesThrough<OMOPSO>();
}

}  // namespace
