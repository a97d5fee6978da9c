#include "project/JsonLoadElementFactory.h"

#include <functional>

#include "core/ElementFactory.h"
#include "project/JsonLoadReservoir.h"
#include "project/JsonMakerTable.h"
#include "vocabulary/Vocabulary.h"

namespace {

template <typename Reader>
using Maker = std::function<std::shared_ptr<Reader>(const std::shared_ptr<Scenario>&)>;

const char* const kMissText = "JsonLoadElementFactory::make(): invalid elementType";

// A new element of class Model from make() with its reader of class Reader.
template <typename Reader, typename Model, std::shared_ptr<Element> (*make)()>
std::shared_ptr<Reader> makeReader(const std::shared_ptr<Scenario>& scenario) {
  return std::make_shared<Reader>(std::static_pointer_cast<Model>(make()), scenario);
}

const std::string& nameOf(ElementType type) { return Vocabulary::of(type).getName(); }

const JsonMakerTable<Maker<JsonLoadNode>>& nodeMakers() {
  using E = ElementType;
  using F = ElementFactory;
  static const JsonMakerTable<Maker<JsonLoadNode>> table(
      {
          {nameOf(E::reservoir), makeReader<JsonLoadReservoir, Reservoir, F::makeReservoir>},
          {nameOf(E::junction), makeReader<JsonLoadNode, Node, F::makeJunction>},
          {nameOf(E::basin), makeReader<JsonLoadNode, Node, F::makeBasin>},
          {nameOf(E::humanDemand), makeReader<JsonLoadDemand, Demand, F::makeHumanDemand>},
          {nameOf(E::animalDemand), makeReader<JsonLoadDemand, Demand, F::makeAnimalDemand>},
          {nameOf(E::industrialDemand),
           makeReader<JsonLoadDemand, Demand, F::makeIndustrialDemand>},
          {nameOf(E::irrigationDemand),
           makeReader<JsonLoadDemand, Demand, F::makeAgricultureDemand>},
          {nameOf(E::drain), makeReader<JsonLoadDemand, Demand, F::makeDrainDemand>},
      },
      kMissText);
  return table;
}

const JsonMakerTable<Maker<JsonLoadLink>>& linkMakers() {
  using E = ElementType;
  using F = ElementFactory;
  static const JsonMakerTable<Maker<JsonLoadLink>> table(
      {
          {nameOf(E::naturalLink),
           makeReader<JsonLoadNaturalLink, NaturalLink, F::makeNaturalLink>},
          {nameOf(E::artificialLink), makeReader<JsonLoadLink, Link, F::makeArtificialLink>},
      },
      kMissText);
  return table;
}

}  // namespace

std::shared_ptr<JsonLoadNode> JsonLoadElementFactory::makeNode(
    const std::string& type, const std::shared_ptr<Scenario>& scenario) {
  return nodeMakers().at(type)(scenario);
}

std::shared_ptr<JsonLoadLink> JsonLoadElementFactory::makeLink(
    const std::string& type, const std::shared_ptr<Scenario>& scenario) {
  return linkMakers().at(type)(scenario);
}

std::vector<std::string> JsonLoadElementFactory::nodeKeys() { return nodeMakers().keys(); }

std::vector<std::string> JsonLoadElementFactory::linkKeys() { return linkMakers().keys(); }
