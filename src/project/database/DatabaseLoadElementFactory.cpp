#include "project/database/DatabaseLoadElementFactory.h"

#include <functional>
#include <map>

#include "core/Element.h"
#include "project/database/DatabaseLoadElement.h"

namespace {

using Maker = std::function<std::unique_ptr<DatabaseLoadElement>(std::shared_ptr<Element>)>;

template <typename T>
std::unique_ptr<DatabaseLoadElement> makeOf(std::shared_ptr<Element> element) {
  return std::make_unique<T>(std::move(element));
}

const std::map<ElementType, Maker>& makers() {
  using E = ElementType;
  static const std::map<ElementType, Maker> table = {
      {E::reservoir, makeOf<DatabaseLoadReservoir>},
      {E::genericDemand, makeOf<DatabaseLoadDemand>},
      {E::humanDemand, makeOf<DatabaseLoadDemand>},
      {E::animalDemand, makeOf<DatabaseLoadDemand>},
      {E::industrialDemand, makeOf<DatabaseLoadDemand>},
      {E::irrigationDemand, makeOf<DatabaseLoadDemand>},
      {E::drain, makeOf<DatabaseLoadDemand>},
      {E::junction, makeOf<DatabaseLoadJunction>},
      {E::basin, makeOf<DatabaseLoadBasin>},
      {E::genericLink, makeOf<DatabaseLoadLink>},
      {E::artificialLink, makeOf<DatabaseLoadLink>},
      {E::naturalLink, makeOf<DatabaseLoadLink>},
  };
  return table;
}

}  // namespace

std::unique_ptr<DatabaseLoadElement> DatabaseLoadElementFactory::make(
    const std::shared_ptr<Element>& element) {
  return makers().at(element->getType())(element);
}
