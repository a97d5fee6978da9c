#include "optimization/kernel/ArrayReal.h"

#include <iostream>
#include <sstream>

#include "optimization/kernel/Problem.h"
#include "optimization/kernel/PseudoRandom.h"

ArrayReal::ArrayReal() : problem(nullptr), size(0) {}

ArrayReal::ArrayReal(int size, Problem* problem)
    : array(static_cast<std::size_t>(size), 0.0), problem(problem), size(size) {
  for (int i = 0; i < size; ++i) {
    const double lower = problem->getLowerLimit(i);
    array[i] = (problem->getUpperLimit(i) - lower) * PseudoRandom::randDouble() + lower;
  }
}

ArrayReal::ArrayReal(const ArrayReal* other)
    : array(other->array), problem(other->problem), size(other->size) {}

Variable* ArrayReal::deepCopy() const { return new ArrayReal(this); }

double ArrayReal::getValue() const {
  std::cout << "ERROR: ArrayReal::getValue() without index" << std::endl;
  return 0.0;
}

void ArrayReal::setValue(double) {
  std::cout << "ERROR: ArrayReal::setValue(value) without index" << std::endl;
}

double ArrayReal::getLowerBound() const {
  std::cout << "ERROR: ArrayReal::getLowerBound() without index" << std::endl;
  return 0.0;
}

double ArrayReal::getUpperBound() const {
  std::cout << "ERROR: ArrayReal::getUpperBound() without index" << std::endl;
  return 0.0;
}

std::string ArrayReal::toString() const {
  std::ostringstream out;
  for (int i = 0; i < size; ++i) out << (i == 0 ? "" : " ") << array[i];
  return out.str();
}

bool ArrayReal::validIndex(int index) const {
  if (index >= 0 && index < size) return true;
  std::cout << "ArrayReal.getValue: index value (" << index << ") invalid" << std::endl;
  return false;
}

double ArrayReal::getValue(int index) const { return validIndex(index) ? array[index] : 0.0; }

void ArrayReal::setValue(int index, double value) {
  if (validIndex(index)) array[index] = value;
}

double ArrayReal::getLowerBound(int index) const { return problem->getLowerLimit(index); }

double ArrayReal::getUpperBound(int index) const { return problem->getUpperLimit(index); }
