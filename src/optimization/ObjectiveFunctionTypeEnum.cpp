#include "optimization/ObjectiveFunctionTypeEnum.h"

#include <stdexcept>
#include <utility>

ObjectiveFunctionTypeEnum::ObjectiveFunctionTypeEnum(ObjectiveFunctionType type, std::string name,
                                                     std::set<ElementType> elementTypes,
                                                     bool flag)
    : type(type), name(std::move(name)), elementTypes(std::move(elementTypes)), flag(flag) {}

const std::vector<ObjectiveFunctionTypeEnum>& ObjectiveFunctionTypeEnum::all() {
  using E = ElementType;
  using T = ObjectiveFunctionType;
  static const std::vector<ObjectiveFunctionTypeEnum> table = [] {
    const std::set<ElementType> demands = {E::humanDemand, E::animalDemand, E::industrialDemand,
                                           E::irrigationDemand, E::drain};
    return std::vector<ObjectiveFunctionTypeEnum>{
        {T::evaporationLoss, "Perda por evaporação", {E::reservoir}, true},
        {T::numberOfFailures, "Número de falhas", demands, true},
        {T::shortageVolume, "Déficit no atendimento à demanda", demands, true},
        {T::spillVolume, "Volume vertido", {E::reservoir}, false},
        {T::pumpingCost, "Custo de bombeamento", {E::artificialLink, E::naturalLink}, true},
        {T::hedgingCurve, "Curva guia", {E::reservoir}, true},
    };
  }();
  return table;
}

const ObjectiveFunctionTypeEnum& ObjectiveFunctionTypeEnum::of(ObjectiveFunctionType type) {
  return all().at(static_cast<std::size_t>(type));
}

const ObjectiveFunctionTypeEnum& ObjectiveFunctionTypeEnum::byName(const std::string& name) {
  for (const auto& entry : all()) {
    if (entry.name == name) return entry;
  }
  throw std::invalid_argument("getObjectiveFunctionByString(): Invalid objective function");
}
