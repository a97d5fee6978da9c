#pragma once

#include <cstdint>
#include <memory>

// The numbers that size a swarm run. The algorithm reads them through pointers into this object,
// so it must outlive the run, and later edits are seen by the next run.
class AlgorithmParameters {
 public:
  virtual ~AlgorithmParameters() = default;
  virtual std::uint32_t getMaxIterations() const = 0;
  // The number of progress steps of a run.
  virtual std::uint32_t getNumberOfRuns() const = 0;
  // Copies what both objects have.
  virtual void copyFrom(const std::shared_ptr<AlgorithmParameters>& other) = 0;
};

// A single-objective swarm: particles and iterations.
class PSOParameters : public AlgorithmParameters {
 public:
  std::uint32_t getMaxIterations() const override { return maxIterations; }
  // swarmSize * maxIterations.
  std::uint32_t getNumberOfRuns() const override { return swarmSize * maxIterations; }
  void copyFrom(const std::shared_ptr<AlgorithmParameters>& other) override;

  std::uint32_t swarmSize = 0;
  std::uint32_t maxIterations = 0;
};

// A multi-objective swarm: also the size of the archive of non-dominated solutions.
class MPSOParameters : public PSOParameters {
 public:
  void copyFrom(const std::shared_ptr<AlgorithmParameters>& other) override;

  std::uint32_t archiveSize = 0;
};
