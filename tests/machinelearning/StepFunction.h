#pragma once

#include <vector>

#include "machinelearning/RegressionTreeAlgorithm.h"

// A release that steps with two volumes: 10 below Volume A = 50 and Volume B = 30, 20 below
// Volume A = 50 from Volume B = 30 up, and 40 from Volume A = 50 up.
inline double stepFunction(double volumeA, double volumeB) {
  if (volumeA >= 50.0) return 40.0;
  return volumeB < 30.0 ? 10.0 : 20.0;
}

// Twelve points of the step function, no two sharing a coordinate, so that no cut can fall
// between equal volumes.
inline const std::vector<std::vector<double>>& stepPoints() {
  static const std::vector<std::vector<double>> points = {{5, 3},   {12, 47}, {18, 22}, {26, 58},
                                                          {33, 9},  {41, 35}, {55, 14}, {63, 52},
                                                          {71, 28}, {78, 40}, {86, 6},  {94, 61}};
  return points;
}

// Fills a model of the two volumes with the step points.
inline void addStepPoints(MachineLearningRegressionAlgorithm& algorithm) {
  for (const auto& point : stepPoints()) {
    algorithm.addEntry(point, stepFunction(point[0], point[1]));
  }
}

// A tree grown on the step points, splitting nodes of 2 entries or more.
inline RegressionTreeAlgorithm stepTree() {
  RegressionTreeAlgorithm tree(2, {"Volume A", "Volume B"}, "Vazão liberada", 2,
                               MachineLearningRegressionAverageCalculatorType::arithmetic,
                               MachineLearningRegressionDistanceCalculatorType::euclidean);
  addStepPoints(tree);
  tree.build();
  return tree;
}
