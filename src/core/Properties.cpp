#include "core/Properties.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace {

constexpr ContentType kText = ContentType::stringType;
constexpr ContentType kReal = ContentType::doubleType;
constexpr ContentType kInteger = ContentType::intType;

}  // namespace

ReservoirProperties::ReservoirProperties()
    : Properties({{"name", "Nome", kText, ""},
                  {"initialVolume", "Volume inicial", kReal, "hm³"},
                  {"minimumVolume", "Volume mínimo", kReal, "hm³"},
                  {"maximumVolume", "Volume máximo", kReal, "hm³"},
                  {"maxRelease", "Liberação máxima", kReal, "m³/s"},
                  {"cav", "Tabela cota-área-volume", kReal, ""},
                  {"enabled", "Habilitado", kInteger, ""}}) {}

DemandProperties::DemandProperties()
    : Properties({{"name", "Nome", kText, ""},
                  {"demandReturn", "Retorno", kReal, "%"},
                  {"enabled", "Habilitado", kInteger, ""}}) {}

LinkProperties::LinkProperties()
    : Properties({{"name", "Nome", kText, ""},
                  {"bidirectional", "Bidirecional", kInteger, ""},
                  {"linkAddon", "Complemento", kText, ""},
                  {"enabled", "Habilitado", kInteger, ""}}) {}

JunctionProperties::JunctionProperties()
    : Properties({{"name", "Nome", kText, ""}, {"enabled", "Habilitado", kInteger, ""}}) {}

std::shared_ptr<Properties> PropertiesFactory::make(const ElementType& type) {
  using E = ElementType;
  using Maker = std::function<std::shared_ptr<Properties>()>;
  const Maker demand = [] { return std::make_shared<DemandProperties>(); };
  const Maker link = [] { return std::make_shared<LinkProperties>(); };
  static const std::map<ElementType, Maker> makers = {
      {E::reservoir, [] { return std::make_shared<ReservoirProperties>(); }},
      {E::humanDemand, demand},
      {E::animalDemand, demand},
      {E::industrialDemand, demand},
      {E::irrigationDemand, demand},
      {E::drain, demand},
      {E::junction, [] { return std::make_shared<JunctionProperties>(); }},
      {E::naturalLink, link},
      {E::artificialLink, link},
  };
  auto it = makers.find(type);
  if (it == makers.end()) throw std::invalid_argument("PropertiesFactory::make(): invalid elementType");
  return it->second();
}
