#pragma once

#include <string>
#include <vector>

class Comparator;
class Solution;

// An ordered set of solutions with a capacity. The set owns its solutions and deletes them when
// it is destroyed; remove(), clear() and replace() hand them back without deleting.
class SolutionSet {
 public:
  SolutionSet() : capacity(0) {}
  explicit SolutionSet(int maximumSize) : capacity(maximumSize) {}
  SolutionSet(const SolutionSet&) = delete;
  SolutionSet& operator=(const SolutionSet&) = delete;
  virtual ~SolutionSet();

  // Appends and gives true; at capacity prints the fault and throws KernelException.
  bool add(Solution* solution);
  // Inserts at index (0..size) without testing the capacity; another index is a fault.
  void add(int index, Solution* solution);
  // Bad indices print the fault and throw KernelException.
  Solution* get(int i) const;
  void remove(int i);
  void replace(int i, Solution* solution);
  int getMaxSize() const { return capacity; }
  int size() const { return static_cast<int>(solutionsList.size()); }
  void clear() { solutionsList.clear(); }

  // Exchange sort: every pair i < j is swapped when compare(s[i], s[j]) is 1. Quadratic, meant for
  // the small sets of the swarms; not stable. A null comparator is a fault (KernelException).
  void sort(Comparator* comparator);
  // Index of the first best (worst) member, -1 for an empty set.
  int indexBest(Comparator* comparator) const;
  Solution* best(Comparator* comparator) const;
  int indexWorst(Comparator* comparator) const;
  Solution* worst(Comparator* comparator) const;

  // A new set of capacity size() + other->size() with deep copies of this set's solutions and then
  // of other's; the caller owns it.
  SolutionSet* join(const SolutionSet* other) const;

  // Each solution's toString() on its own line of standard output.
  void printObjectives() const;
  // One line per solution, each objective followed by a blank. Truncates the file unless append.
  void printObjectivesToFile(const std::string& path) const;
  void printObjectivesToFile(const std::string& path, bool append) const;
  // One line per solution: its toString(). Truncates the file unless append.
  void printVariablesToFile(const std::string& path) const;
  void printVariablesToFile(const std::string& path, bool append) const;
  // One row of objectives per solution.
  std::vector<std::vector<double>> writeObjectivesToMatrix() const;

 protected:
  std::vector<Solution*> solutionsList;
  int capacity;

 private:
  void checkIndex(int i) const;
};
