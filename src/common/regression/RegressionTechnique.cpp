#include "common/regression/RegressionTechnique.h"

#include <utility>

RegressionTechnique::RegressionTechnique(RegressionType type, std::string name)
    : type(type), name(std::move(name)) {}
