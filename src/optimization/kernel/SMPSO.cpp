#include "optimization/kernel/SMPSO.h"

#include <cmath>

#include "ParameterReading.h"
#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/CrowdingArchive.h"
#include "optimization/kernel/Distance.h"
#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/Operator.h"
#include "optimization/kernel/Problem.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/SolutionSet.h"
#include "optimization/kernel/XReal.h"

SMPSO::SMPSO(Problem* problem) : Algorithm(problem) {}

SMPSO::~SMPSO() { deleteParams(); }

void SMPSO::initParams() {
  // A run left by an exception from evaluate still holds its state: free it before rebuilding.
  deleteParams();
  swarmSize = requireParameter<int>(inputParameters, "swarmSize", "SMPSO");
  archiveSize = requireParameter<int>(inputParameters, "archiveSize", "SMPSO");
  maxIterations = requireParameter<int>(inputParameters, "maxIterations", "SMPSO");
  if (swarmSize < 1) KernelException::raise("SMPSO: parameter swarmSize below 1");
  if (archiveSize < 1) KernelException::raise("SMPSO: parameter archiveSize below 1");
  polynomialMutation = getOperator("mutation");
  if (polynomialMutation == nullptr) KernelException::raise("SMPSO: operator mutation not set");
  setAlgParams();
  iteration = 0;

  particles = new SolutionSet(swarmSize);
  best = new Solution*[swarmSize]();
  leaders = new CrowdingArchive(archiveSize, problem->getNumberOfObjectives());
  speed = new double*[swarmSize]();
  allocatedParticles = swarmSize;
  dominance = new DominanceComparator();
  crowdingDistanceComparator = new CrowdingDistanceComparator();
  distance = new Distance();

  const int n = problem->getNumberOfVariables();
  deltaMax = new double[n];
  deltaMin = new double[n];
  for (int j = 0; j < n; ++j) {
    const double range = problem->getUpperLimit(j) - problem->getLowerLimit(j);
    deltaMax[j] = range * 0.5;
    deltaMin[j] = -range * 0.5;
  }
}

void SMPSO::setAlgParams() {
  r1Max = readParameter<double>(inputParameters, "r1Max", r1Max);
  r1Min = readParameter<double>(inputParameters, "r1Min", r1Min);
  r2Max = readParameter<double>(inputParameters, "r2Max", r2Max);
  r2Min = readParameter<double>(inputParameters, "r2Min", r2Min);
  c1FirstBound = readParameter<double>(inputParameters, "C1Min", c1FirstBound);
  c1SecondBound = readParameter<double>(inputParameters, "C1Max", c1SecondBound);
  c2FirstBound = readParameter<double>(inputParameters, "C2Max", c2FirstBound);
  c2SecondBound = readParameter<double>(inputParameters, "C2Min", c2SecondBound);
  WMax = readParameter<double>(inputParameters, "WMax", WMax);
  WMin = readParameter<double>(inputParameters, "WMin", WMin);
  ChVel1 = readParameter<double>(inputParameters, "ChVel1", ChVel1);
  ChVel2 = readParameter<double>(inputParameters, "ChVel2", ChVel2);
}

void SMPSO::deleteParams() {
  for (int i = 0; i < allocatedParticles; ++i) {
    delete[] speed[i];
    delete best[i];
  }
  allocatedParticles = 0;
  delete[] speed;
  delete[] best;
  delete particles;
  delete leaders;
  delete dominance;
  delete crowdingDistanceComparator;
  delete distance;
  delete[] deltaMax;
  delete[] deltaMin;
  speed = nullptr;
  best = nullptr;
  particles = nullptr;
  leaders = nullptr;
  dominance = nullptr;
  crowdingDistanceComparator = nullptr;
  distance = nullptr;
  deltaMax = nullptr;
  deltaMin = nullptr;
}

double SMPSO::inertiaWeight(int, int, double wma, double) const { return wma; }

double SMPSO::constrictionCoefficient(double c1, double c2) const {
  const double phi = c1 + c2;
  if (phi <= 4) return 1.0;
  return 2.0 / (2.0 - phi - std::sqrt(phi * phi - 4.0 * phi));
}

double SMPSO::velocityConstriction(double v, const double* deltaMax, const double* deltaMin,
                                   int variableIndex, int) const {
  if (v < deltaMin[variableIndex]) return deltaMin[variableIndex];
  return v > deltaMax[variableIndex] ? deltaMax[variableIndex] : v;
}

void SMPSO::computeSpeed(int iter, int miter) {
  for (int i = 0; i < swarmSize; ++i) {
    XReal particle(particles->get(i));
    XReal bestParticle(best[i]);

    Solution* one = leaders->get(PseudoRandom::randInt(0, leaders->size() - 1));
    Solution* two = leaders->get(PseudoRandom::randInt(0, leaders->size() - 1));
    XReal bestGlobal(crowdingDistanceComparator->compare(one, two) > 0 ? two : one);

    const double r1 = PseudoRandom::randDouble(r1Min, r1Max);
    const double r2 = PseudoRandom::randDouble(r2Min, r2Max);
    const double C1 = PseudoRandom::randDouble(c1SecondBound, c1FirstBound);
    const double C2 = PseudoRandom::randDouble(c2SecondBound, c2FirstBound);
    // This draw is never used, but it moves the generator and so shapes every later draw.
    PseudoRandom::randDouble(WMin, WMax);
    const double W = inertiaWeight(iter, miter, WMax, WMin);
    const double chi = constrictionCoefficient(C1, C2);

    for (int j = 0; j < particle.getNumberOfDecisionVariables(); ++j) {
      const double x = particle.getValue(j);
      const double v = chi * (W * speed[i][j] + C1 * r1 * (bestParticle.getValue(j) - x) +
                              C2 * r2 * (bestGlobal.getValue(j) - x));
      speed[i][j] = velocityConstriction(v, deltaMax, deltaMin, j, i);
    }
  }
}

void SMPSO::computeNewPositions() { moveWithinLimits(particles, swarmSize, speed, ChVel1, ChVel2); }

void SMPSO::mopsoMutation(int, int) {
  for (int i = 0; i < particles->size(); ++i) {
    if (i % 6 == 0) polynomialMutation->execute(particles->get(i));
  }
}

void SMPSO::offerToLeaders(Solution* particle) {
  Solution* copy = new Solution(particle);
  if (!leaders->add(copy)) delete copy;
}

SolutionSet* SMPSO::execute() {
  initParams();

  for (int i = 0; i < swarmSize; ++i) particles->add(new Solution(problem));
  evaluateSwarm(particles, swarmSize, true);

  const int n = problem->getNumberOfVariables();
  for (int i = 0; i < swarmSize; ++i) speed[i] = new double[n]();
  for (int i = 0; i < swarmSize; ++i) offerToLeaders(particles->get(i));
  for (int i = 0; i < swarmSize; ++i) best[i] = new Solution(particles->get(i));
  distance->crowdingDistanceAssignment(leaders, problem->getNumberOfObjectives());

  while (iteration < maxIterations) {
    computeSpeed(iteration, maxIterations);
    computeNewPositions();
    mopsoMutation(iteration, maxIterations);
    evaluateSwarm(particles, swarmSize, true);
    for (int i = 0; i < swarmSize; ++i) offerToLeaders(particles->get(i));
    for (int i = 0; i < swarmSize; ++i) {
      Solution* particle = particles->get(i);
      if (dominance->compare(particle, best[i]) != 1) {
        delete best[i];
        best[i] = new Solution(particle);
      }
    }
    distance->crowdingDistanceAssignment(leaders, problem->getNumberOfObjectives());
    ++iteration;
  }

  SolutionSet* result = new SolutionSet(leaders->size());
  for (int i = 0; i < leaders->size(); ++i) result->add(new Solution(leaders->get(i)));
  deleteParams();
  return result;
}
