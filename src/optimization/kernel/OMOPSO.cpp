#include "optimization/kernel/OMOPSO.h"

#include "ParameterReading.h"
#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/CrowdingArchive.h"
#include "optimization/kernel/Distance.h"
#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/NonDominatedSolutionList.h"
#include "optimization/kernel/Operator.h"
#include "optimization/kernel/Problem.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/SolutionSet.h"
#include "optimization/kernel/XReal.h"

OMOPSO::OMOPSO(Problem* problem) : Algorithm(problem) {}

OMOPSO::~OMOPSO() { deleteParams(); }

void OMOPSO::initParams() {
  // A run left by an exception from evaluate still holds its state: free it before rebuilding.
  deleteParams();
  swarmSize = requireParameter<int>(inputParameters, "swarmSize", "OMOPSO");
  archiveSize = requireParameter<int>(inputParameters, "archiveSize", "OMOPSO");
  maxIterations = requireParameter<int>(inputParameters, "maxIterations", "OMOPSO");
  if (swarmSize < 1) KernelException::raise("OMOPSO: parameter swarmSize below 1");
  if (archiveSize < 1) KernelException::raise("OMOPSO: parameter archiveSize below 1");
  uniformMutation = getOperator("uniformMutation");
  nonUniformMutation = getOperator("nonUniformMutation");
  if (uniformMutation == nullptr) {
    KernelException::raise("OMOPSO: operator uniformMutation not set");
  }
  if (nonUniformMutation == nullptr) {
    KernelException::raise("OMOPSO: operator nonUniformMutation not set");
  }
  iteration = 0;

  particles = new SolutionSet(swarmSize);
  best = new Solution*[swarmSize]();
  leaders = new CrowdingArchive(archiveSize, problem->getNumberOfObjectives());
  epsilonDominance = new EpsilonDominanceComparator(eta);
  eArchive = new NonDominatedSolutionList(epsilonDominance);
  speed = new double*[swarmSize]();
  allocatedParticles = swarmSize;
  dominance = new DominanceComparator();
  crowdingDistanceComparator = new CrowdingDistanceComparator();
  distance = new Distance();
}

void OMOPSO::deleteParams() {
  for (int i = 0; i < allocatedParticles; ++i) {
    delete[] speed[i];
    delete best[i];
  }
  allocatedParticles = 0;
  delete[] speed;
  delete[] best;
  delete particles;
  delete leaders;
  delete eArchive;
  delete epsilonDominance;
  delete dominance;
  delete crowdingDistanceComparator;
  delete distance;
  speed = nullptr;
  best = nullptr;
  particles = nullptr;
  leaders = nullptr;
  eArchive = nullptr;
  epsilonDominance = nullptr;
  dominance = nullptr;
  crowdingDistanceComparator = nullptr;
  distance = nullptr;
}

void OMOPSO::computeSpeed() {
  for (int i = 0; i < swarmSize; ++i) {
    XReal particle(particles->get(i));
    XReal bestParticle(best[i]);

    Solution* one = leaders->get(PseudoRandom::randInt(0, leaders->size() - 1));
    Solution* two = leaders->get(PseudoRandom::randInt(0, leaders->size() - 1));
    XReal bestGlobal(crowdingDistanceComparator->compare(one, two) > 0 ? two : one);

    const double r1 = PseudoRandom::randDouble();
    const double r2 = PseudoRandom::randDouble();
    const double C1 = PseudoRandom::randDouble(1.5, 2.0);
    const double C2 = PseudoRandom::randDouble(1.5, 2.0);
    const double W = PseudoRandom::randDouble(0.1, 0.5);

    for (int j = 0; j < particle.getNumberOfDecisionVariables(); ++j) {
      const double x = particle.getValue(j);
      speed[i][j] = W * speed[i][j] + C1 * r1 * (bestParticle.getValue(j) - x) +
                    C2 * r2 * (bestGlobal.getValue(j) - x);
    }
  }
}

void OMOPSO::computeNewPositions() {
  for (int i = 0; i < swarmSize; ++i) {
    XReal particle(particles->get(i));
    for (int j = 0; j < particle.getNumberOfDecisionVariables(); ++j) {
      const double old = particle.getValue(j);
      particle.setValue(j, old + speed[i][j]);
      const double lower = problem->getLowerLimit(j);
      const double upper = problem->getUpperLimit(j);
      if (particle.getValue(j) < lower) {
        particle.setValue(j, lower + (old - lower) * PseudoRandom::randDouble());
        speed[i][j] = -speed[i][j];
      }
      if (particle.getValue(j) > upper) {
        particle.setValue(j, upper - (upper - old) * PseudoRandom::randDouble());
        speed[i][j] = -speed[i][j];
      }
    }
  }
}

void OMOPSO::mopsoMutation(int actualIteration, int) {
  iteration = actualIteration;
  nonUniformMutation->setParameter("currentIteration", &iteration);
  for (int i = 0; i < particles->size(); ++i) {
    if (i % 3 == 0) {
      nonUniformMutation->execute(particles->get(i));
    } else if (i % 3 == 1) {
      uniformMutation->execute(particles->get(i));
    }
  }
}

void OMOPSO::offerToArchives(Solution* particle) {
  Solution* copy = new Solution(particle);
  if (!leaders->add(copy)) {
    delete copy;
    return;
  }
  Solution* epsilonCopy = new Solution(particle);
  if (!eArchive->add(epsilonCopy)) delete epsilonCopy;
}

SolutionSet* OMOPSO::execute() {
  initParams();

  for (int i = 0; i < swarmSize; ++i) particles->add(new Solution(problem));
  evaluateSwarm(particles, swarmSize, true);

  const int n = problem->getNumberOfVariables();
  for (int i = 0; i < swarmSize; ++i) speed[i] = new double[n]();
  for (int i = 0; i < swarmSize; ++i) offerToArchives(particles->get(i));
  for (int i = 0; i < swarmSize; ++i) best[i] = new Solution(particles->get(i));
  distance->crowdingDistanceAssignment(leaders, problem->getNumberOfObjectives());

  while (iteration < maxIterations) {
    computeSpeed();
    computeNewPositions();
    mopsoMutation(iteration, maxIterations);
    evaluateSwarm(particles, swarmSize, true);
    for (int i = 0; i < swarmSize; ++i) offerToArchives(particles->get(i));
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
