#include "optimization/kernel/Variable.h"

#include <iostream>
#include <typeinfo>

#include "TypeName.h"

void Variable::setLowerBound(double) {
  std::cout << "Class " << getVariableType() << " does not implement "
            << "method setLowerBound" << std::endl;
}

void Variable::setUpperBound(double) {
  std::cout << "Class " << getVariableType() << " does not implement "
            << "method setUpperBound" << std::endl;
}

std::string Variable::getVariableType() const { return kernelTypeName(typeid(*this)); }
