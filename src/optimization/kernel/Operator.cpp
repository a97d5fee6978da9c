#include "optimization/kernel/Operator.h"

void* Operator::getParameter(const std::string& name) { return parameters[name]; }

void Operator::setParameter(const std::string& name, void* value) { parameters[name] = value; }
