#include "project/JsonSaveElementFactory.h"

#include <functional>

#include "project/JsonMakerTable.h"
#include "project/JsonSaveLink.h"
#include "project/JsonSaveNode.h"
#include "project/JsonSaveReservoir.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonSaveElement>(const std::shared_ptr<Element>&,
                                                             const std::shared_ptr<Scenario>&)>;

// The writer Writer of an element of class Model; the row's type guarantees the class.
template <typename Writer, typename Model>
std::shared_ptr<JsonSaveElement> makeWriter(const std::shared_ptr<Element>& element,
                                            const std::shared_ptr<Scenario>& scenario) {
  return std::make_shared<Writer>(std::static_pointer_cast<Model>(element), scenario);
}

const std::string& nameOf(ElementType type) { return Vocabulary::of(type).getName(); }

const JsonMakerTable<Maker>& makers() {
  using E = ElementType;
  static const JsonMakerTable<Maker> table(
      {
          {nameOf(E::reservoir), makeWriter<JsonSaveReservoir, Reservoir>},
          {nameOf(E::junction), makeWriter<JsonSaveNode, Node>},
          {nameOf(E::basin), makeWriter<JsonSaveNode, Node>},
          {nameOf(E::humanDemand), makeWriter<JsonSaveDemand, Demand>},
          {nameOf(E::animalDemand), makeWriter<JsonSaveDemand, Demand>},
          {nameOf(E::industrialDemand), makeWriter<JsonSaveDemand, Demand>},
          {nameOf(E::irrigationDemand), makeWriter<JsonSaveDemand, Demand>},
          {nameOf(E::drain), makeWriter<JsonSaveDemand, Demand>},
          {nameOf(E::naturalLink), makeWriter<JsonSaveNaturalLink, NaturalLink>},
          {nameOf(E::artificialLink), makeWriter<JsonSaveLink, Link>},
      },
      "JsonSaveElementFactory::make(): invalid elementType");
  return table;
}

}  // namespace

std::shared_ptr<JsonSaveElement> JsonSaveElementFactory::make(
    const std::shared_ptr<Element>& element, const std::shared_ptr<Scenario>& scenario) {
  return makers().at(element->getElementType().getName())(element, scenario);
}

std::vector<std::string> JsonSaveElementFactory::keys() { return makers().keys(); }
