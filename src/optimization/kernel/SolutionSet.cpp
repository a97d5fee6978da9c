#include "optimization/kernel/SolutionSet.h"

#include <fstream>
#include <iostream>
#include <utility>

#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/Solution.h"

namespace {
std::ofstream openOutput(const std::string& path, bool append) {
  return std::ofstream(path, append ? std::ios::app : std::ios::trunc);
}
}  // namespace

SolutionSet::~SolutionSet() {
  for (Solution* solution : solutionsList) delete solution;
}

bool SolutionSet::add(Solution* solution) {
  if (size() >= capacity) {
    KernelException::raise(
        "Error in class SolutionSet the maximum capacity of the set has been reached");
  }
  solutionsList.push_back(solution);
  return true;
}

void SolutionSet::add(int index, Solution* solution) {
  if (index != size()) checkIndex(index);
  solutionsList.insert(solutionsList.begin() + index, solution);
}

void SolutionSet::checkIndex(int i) const {
  if (i < 0 || i >= size()) {
    KernelException::raise(
        "Error in class SolutionSet trying to access to an element out of range");
  }
}

Solution* SolutionSet::get(int i) const {
  checkIndex(i);
  return solutionsList[i];
}

void SolutionSet::remove(int i) {
  checkIndex(i);
  solutionsList.erase(solutionsList.begin() + i);
}

void SolutionSet::replace(int i, Solution* solution) {
  checkIndex(i);
  solutionsList[i] = solution;
}

void SolutionSet::sort(Comparator* comparator) {
  if (comparator == nullptr) KernelException::raise("Error. No criterium for compare exist");
  for (int i = 0; i < size(); ++i) {
    for (int j = i + 1; j < size(); ++j) {
      if (comparator->compare(solutionsList[i], solutionsList[j]) == 1) {
        std::swap(solutionsList[i], solutionsList[j]);
      }
    }
  }
}

int SolutionSet::indexBest(Comparator* comparator) const {
  if (solutionsList.empty()) return -1;
  int index = 0;
  for (int i = 1; i < size(); ++i) {
    if (comparator->compare(solutionsList[index], solutionsList[i]) == 1) index = i;
  }
  return index;
}

Solution* SolutionSet::best(Comparator* comparator) const {
  const int index = indexBest(comparator);
  return index < 0 ? nullptr : solutionsList[index];
}

int SolutionSet::indexWorst(Comparator* comparator) const {
  if (solutionsList.empty()) return -1;
  int index = 0;
  for (int i = 1; i < size(); ++i) {
    if (comparator->compare(solutionsList[index], solutionsList[i]) == -1) index = i;
  }
  return index;
}

Solution* SolutionSet::worst(Comparator* comparator) const {
  const int index = indexWorst(comparator);
  return index < 0 ? nullptr : solutionsList[index];
}

SolutionSet* SolutionSet::join(const SolutionSet* other) const {
  SolutionSet* joined = new SolutionSet(size() + other->size());
  for (Solution* solution : solutionsList) joined->add(new Solution(solution));
  for (Solution* solution : other->solutionsList) joined->add(new Solution(solution));
  return joined;
}

void SolutionSet::printObjectives() const {
  for (Solution* solution : solutionsList) std::cout << solution->toString() << std::endl;
}

void SolutionSet::printObjectivesToFile(const std::string& path) const {
  printObjectivesToFile(path, false);
}

void SolutionSet::printObjectivesToFile(const std::string& path, bool append) const {
  std::ofstream out = openOutput(path, append);
  for (Solution* solution : solutionsList) {
    for (int i = 0; i < solution->getNumberOfObjectives(); ++i) {
      out << solution->getObjective(i) << " ";
    }
    out << "\n";
  }
}

void SolutionSet::printVariablesToFile(const std::string& path) const {
  printVariablesToFile(path, false);
}

void SolutionSet::printVariablesToFile(const std::string& path, bool append) const {
  std::ofstream out = openOutput(path, append);
  for (Solution* solution : solutionsList) out << solution->toString() << "\n";
}

std::vector<std::vector<double>> SolutionSet::writeObjectivesToMatrix() const {
  std::vector<std::vector<double>> matrix;
  for (Solution* solution : solutionsList) {
    std::vector<double> row;
    for (int i = 0; i < solution->getNumberOfObjectives(); ++i) {
      row.push_back(solution->getObjective(i));
    }
    matrix.push_back(row);
  }
  return matrix;
}
