#pragma once

#include <memory>

#include "optimization/ObjectiveFunction.h"

// Makes the objective functions by type. Throws std::invalid_argument
// "ObjectiveFunctionFactory::make(): invalid ObjectiveFunctionType" for a type without a maker.
class ObjectiveFunctionFactory {
 public:
  using Elements = ObjectiveFunction::Elements;

  static std::shared_ptr<ObjectiveFunction> make(ObjectiveFunctionType type, bool minimize,
                                                 const Elements& elements);
  static std::shared_ptr<ObjectiveFunction> makeEvaporationLoss(bool minimize,
                                                                const Elements& elements);
  static std::shared_ptr<ObjectiveFunction> makeNumberOfFailures(bool minimize,
                                                                 const Elements& elements);
  static std::shared_ptr<ObjectiveFunction> makeShortageVolume(bool minimize,
                                                               const Elements& elements);
  static std::shared_ptr<ObjectiveFunction> makeSpillVolume(bool minimize,
                                                            const Elements& elements);
  static std::shared_ptr<ObjectiveFunction> makePumpingCost(bool minimize,
                                                            const Elements& elements);
  static std::shared_ptr<ObjectiveFunction> makeHedgingCurve(bool minimize,
                                                             const Elements& elements);
};
