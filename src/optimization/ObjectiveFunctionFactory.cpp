#include "optimization/ObjectiveFunctionFactory.h"

#include <map>
#include <stdexcept>

namespace {

using Maker = std::shared_ptr<ObjectiveFunction> (*)(bool, const ObjectiveFunction::Elements&);

const std::map<ObjectiveFunctionType, Maker>& makers() {
  using T = ObjectiveFunctionType;
  static const std::map<ObjectiveFunctionType, Maker> table = {
      {T::evaporationLoss, ObjectiveFunctionFactory::makeEvaporationLoss},
      {T::numberOfFailures, ObjectiveFunctionFactory::makeNumberOfFailures},
      {T::shortageVolume, ObjectiveFunctionFactory::makeShortageVolume},
      {T::spillVolume, ObjectiveFunctionFactory::makeSpillVolume},
      {T::pumpingCost, ObjectiveFunctionFactory::makePumpingCost},
      {T::hedgingCurve, ObjectiveFunctionFactory::makeHedgingCurve},
  };
  return table;
}

}  // namespace

std::shared_ptr<ObjectiveFunction> ObjectiveFunctionFactory::make(ObjectiveFunctionType type,
                                                                  bool minimize,
                                                                  const Elements& elements) {
  const auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument("ObjectiveFunctionFactory::make(): invalid ObjectiveFunctionType");
  }
  return it->second(minimize, elements);
}

std::shared_ptr<ObjectiveFunction> ObjectiveFunctionFactory::makeEvaporationLoss(
    bool minimize, const Elements& elements) {
  return std::make_shared<EvaporationLossFunction>(minimize, elements);
}

std::shared_ptr<ObjectiveFunction> ObjectiveFunctionFactory::makeNumberOfFailures(
    bool minimize, const Elements& elements) {
  return std::make_shared<NumberOfFailuresFunction>(minimize, elements);
}

std::shared_ptr<ObjectiveFunction> ObjectiveFunctionFactory::makeShortageVolume(
    bool minimize, const Elements& elements) {
  return std::make_shared<ShortageVolumeFunction>(minimize, elements);
}

std::shared_ptr<ObjectiveFunction> ObjectiveFunctionFactory::makeSpillVolume(
    bool minimize, const Elements& elements) {
  return std::make_shared<SpillVolumeFunction>(minimize, elements);
}

std::shared_ptr<ObjectiveFunction> ObjectiveFunctionFactory::makePumpingCost(
    bool minimize, const Elements& elements) {
  return std::make_shared<PumpingCostFunction>(minimize, elements);
}

std::shared_ptr<ObjectiveFunction> ObjectiveFunctionFactory::makeHedgingCurve(
    bool minimize, const Elements& elements) {
  return std::make_shared<HedgingCurveFunction>(minimize, elements);
}
