#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/Problem.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/SolutionSet.h"
#include "optimization/kernel/SolutionType.h"
#include "optimization/kernel/Variable.h"
#include "optimization/kernel/XReal.h"

// Asserts that statement prints exactly one line, line, and throws KernelException with that text.
#define EXPECT_KERNEL_FAULT(statement, line)                                         \
  do {                                                                               \
    ::testing::internal::CaptureStdout();                                            \
    bool kernelFaultThrown = false;                                                  \
    try {                                                                            \
      statement;                                                                     \
    } catch (const KernelException& fault) {                                         \
      kernelFaultThrown = true;                                                      \
      EXPECT_EQ(std::string(fault.what()), std::string(line));                       \
    }                                                                                \
    const std::string kernelFaultPrinted = ::testing::internal::GetCapturedStdout(); \
    EXPECT_TRUE(kernelFaultThrown) << "no KernelException from " #statement;         \
    EXPECT_EQ(kernelFaultPrinted, std::string(line) + "\n");                         \
  } while (false)

// Standard output printed by statement, which must not throw.
#define PRINTED_BY(statement, printed)                  \
  do {                                                  \
    ::testing::internal::CaptureStdout();               \
    statement;                                          \
    printed = ::testing::internal::GetCapturedStdout(); \
  } while (false)

// A problem with every variable in [lower, upper], real-coded unless another solution type is
// installed, whose evaluation writes nothing: tests set the objectives themselves.
class FixedProblem : public Problem {
 public:
  FixedProblem(int variables, int objectives, double lower = 0.0, double upper = 1.0) {
    numberOfVariables = variables;
    numberOfObjectives = objectives;
    problemName = "Fixed";
    lowerLimit.assign(variables, lower);
    upperLimit.assign(variables, upper);
    solutionType = new RealSolutionType(this);
  }
  void evaluate(Solution*) override {}
  void setLimits(int i, double lower, double upper) {
    lowerLimit[i] = lower;
    upperLimit[i] = upper;
  }
};

// A solution of problem with the given objectives and constraint violation; the caller owns it.
inline Solution* solutionWith(Problem* problem, const std::vector<double>& objectives,
                              double violation = 0.0) {
  Solution* solution = new Solution(problem);
  for (std::size_t i = 0; i < objectives.size(); ++i) {
    solution->setObjective(static_cast<int>(i), objectives[i]);
  }
  solution->setOverallConstraintViolation(violation);
  return solution;
}

inline std::vector<double> variablesOf(Solution* solution) {
  XReal x(solution);
  std::vector<double> values;
  for (int i = 0; i < x.getNumberOfDecisionVariables(); ++i) values.push_back(x.getValue(i));
  return values;
}

inline std::vector<double> objectivesOf(const Solution* solution) {
  std::vector<double> values;
  for (int i = 0; i < solution->getNumberOfObjectives(); ++i) {
    values.push_back(solution->getObjective(i));
  }
  return values;
}

// Counts its evaluations; variables in [lower, upper].
class CountingProblem : public Problem {
 public:
  CountingProblem(int variables, int objectives, double lower, double upper) {
    numberOfVariables = variables;
    numberOfObjectives = objectives;
    lowerLimit.assign(variables, lower);
    upperLimit.assign(variables, upper);
    solutionType = new RealSolutionType(this);
  }
  void evaluate(Solution* solution) override {
    ++evaluations;
    XReal x(solution);
    objectives(x, solution);
  }
  long evaluations = 0;

 protected:
  virtual void objectives(const XReal& x, Solution* solution) = 0;
};

// Sum of squares, minimum 0 at the origin.
class Sphere : public CountingProblem {
 public:
  explicit Sphere(int variables) : CountingProblem(variables, 1, -5.12, 5.12) {}

 protected:
  void objectives(const XReal& x, Solution* solution) override {
    double sum = 0.0;
    for (int i = 0; i < numberOfVariables; ++i) sum += x.getValue(i) * x.getValue(i);
    solution->setObjective(0, sum);
  }
};

// The two-objective test problems of Zitzler, Deb and Thiele: f1 = x1,
// g = 1 + 9 * sum(x2..xn) / (n - 1), f2 = g * h(f1 / g), variables in [0, 1]. The Pareto front is
// g = 1: h = 1 - sqrt(f) (ZDT1, convex), 1 - f^2 (ZDT2, concave), 1 - sqrt(f) - f sin(10 pi f)
// (ZDT3, five disconnected pieces).
class Zdt : public CountingProblem {
 public:
  enum class Kind { kZdt1, kZdt2, kZdt3 };
  Zdt(Kind kind, int variables) : CountingProblem(variables, 2, 0.0, 1.0), kind(kind) {}

  static double h(Kind kind, double f) {
    switch (kind) {
      case Kind::kZdt1:
        return 1.0 - std::sqrt(f);
      case Kind::kZdt2:
        return 1.0 - f * f;
      case Kind::kZdt3:
        return 1.0 - std::sqrt(f) - f * std::sin(10.0 * M_PI * f);
    }
    return 0.0;
  }

 protected:
  void objectives(const XReal& x, Solution* solution) override {
    const double f1 = x.getValue(0);
    double sum = 0.0;
    for (int i = 1; i < numberOfVariables; ++i) sum += x.getValue(i);
    const double g = 1.0 + 9.0 * sum / (numberOfVariables - 1);
    solution->setObjective(0, f1);
    solution->setObjective(1, g * h(kind, f1 / g));
  }

 private:
  Kind kind;
};

// Area dominated by the points (minimisation) and bounded by the reference point. Points that do
// not dominate the reference point add nothing.
inline double hypervolume2d(std::vector<std::pair<double, double>> points,
                            std::pair<double, double> reference) {
  std::sort(points.begin(), points.end());
  double area = 0.0;
  double ceiling = reference.second;  // lowest f2 met so far, left to right
  for (const auto& point : points) {
    if (point.first >= reference.first || point.second >= ceiling) continue;
    area += (reference.first - point.first) * (ceiling - point.second);
    ceiling = point.second;
  }
  return area;
}

inline double hypervolume2d(const SolutionSet& set, std::pair<double, double> reference) {
  std::vector<std::pair<double, double>> points;
  for (int i = 0; i < set.size(); ++i) {
    points.emplace_back(set.get(i)->getObjective(0), set.get(i)->getObjective(1));
  }
  return hypervolume2d(points, reference);
}

// The hypervolume of the true front, from a dense sample of f1 in [0, 1] (g = 1): the sample's
// error is below 1e-5 at 200,001 points, far inside the tolerances of the tests.
inline double trueFrontHypervolume(Zdt::Kind kind, std::pair<double, double> reference) {
  const int samples = 200001;
  std::vector<std::pair<double, double>> front;
  front.reserve(samples);
  for (int i = 0; i < samples; ++i) {
    const double f1 = static_cast<double>(i) / (samples - 1);
    front.emplace_back(f1, Zdt::h(kind, f1));
  }
  return hypervolume2d(front, reference);
}

// True when the two sets hold the same solutions in the same order, bit for bit.
inline bool identicalSets(const SolutionSet& a, const SolutionSet& b) {
  if (a.size() != b.size()) return false;
  for (int i = 0; i < a.size(); ++i) {
    const std::vector<double> variablesA = variablesOf(a.get(i));
    const std::vector<double> variablesB = variablesOf(b.get(i));
    const std::vector<double> objectivesA = objectivesOf(a.get(i));
    const std::vector<double> objectivesB = objectivesOf(b.get(i));
    if (variablesA.size() != variablesB.size() || objectivesA.size() != objectivesB.size()) {
      return false;
    }
    if (std::memcmp(variablesA.data(), variablesB.data(), variablesA.size() * sizeof(double)) !=
            0 ||
        std::memcmp(objectivesA.data(), objectivesB.data(), objectivesA.size() * sizeof(double)) !=
            0) {
      return false;
    }
  }
  return true;
}
