#include "optimization/kernel/XReal.h"

#include <typeinfo>

#include "TypeName.h"
#include "optimization/kernel/ArrayReal.h"
#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/SolutionType.h"
#include "optimization/kernel/Variable.h"

XReal::XReal(Solution* solution)
    : solution(solution),
      type(solution->getType()),
      encoding(Encoding::kPerVariable),
      array(nullptr) {
  const std::type_info& exact = typeid(*type);
  if (exact == typeid(RealSolutionType) || exact == typeid(BinaryRealSolutionType)) return;
  if (exact != typeid(ArrayRealSolutionType)) {
    encoding = Encoding::kInvalid;
    return;
  }
  encoding = Encoding::kArray;
  array = static_cast<ArrayReal*>(solution->getDecisionVariables()[0]);
}

void XReal::invalidType() const {
  KernelException::raise("ERROR GRAVE: solution type " + kernelTypeName(typeid(*type)) +
                         " invalid");
}

double XReal::getValue(int i) const {
  if (encoding == Encoding::kInvalid) invalidType();
  if (encoding == Encoding::kArray) return array->getValue(i);
  return solution->getDecisionVariables()[i]->getValue();
}

void XReal::setValue(int i, double value) {
  if (encoding == Encoding::kInvalid) invalidType();
  if (encoding == Encoding::kArray) {
    array->setValue(i, value);
  } else {
    solution->getDecisionVariables()[i]->setValue(value);
  }
}

double XReal::getLowerBound(int i) const {
  if (encoding == Encoding::kInvalid) invalidType();
  if (encoding == Encoding::kArray) return array->getLowerBound(i);
  return solution->getDecisionVariables()[i]->getLowerBound();
}

double XReal::getUpperBound(int i) const {
  if (encoding == Encoding::kInvalid) invalidType();
  if (encoding == Encoding::kArray) return array->getUpperBound(i);
  return solution->getDecisionVariables()[i]->getUpperBound();
}

int XReal::getNumberOfDecisionVariables() const {
  if (encoding == Encoding::kInvalid) invalidType();
  if (encoding == Encoding::kArray) return array->getLength();
  return solution->getNumberOfVariables();
}

int XReal::size() const { return getNumberOfDecisionVariables(); }
