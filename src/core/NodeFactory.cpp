#include "core/NodeFactory.h"

std::shared_ptr<Reservoir> NodeFactory::makeReservoir(const Point2D& position,
                                                      const std::vector<InstitutionalID>& ids) {
  return std::make_shared<Reservoir>(position, ids);
}

std::shared_ptr<HumanDemand> NodeFactory::makeHumanDemand(const Point2D& position) {
  return std::make_shared<HumanDemand>(position);
}

std::shared_ptr<AnimalDemand> NodeFactory::makeAnimalDemand(const Point2D& position) {
  return std::make_shared<AnimalDemand>(position);
}

std::shared_ptr<IndustrialDemand> NodeFactory::makeIndustrialDemand(const Point2D& position) {
  return std::make_shared<IndustrialDemand>(position);
}

std::shared_ptr<AgricultureDemand> NodeFactory::makeAgricultureDemand(const Point2D& position) {
  return std::make_shared<AgricultureDemand>(position);
}

std::shared_ptr<DrainDemand> NodeFactory::makeDrainDemand(const Point2D& position) {
  return std::make_shared<DrainDemand>(position);
}

std::shared_ptr<Junction> NodeFactory::makeJunction(const Point2D& position) {
  return std::make_shared<Junction>(position);
}

std::shared_ptr<Basin> NodeFactory::makeBasin(const Point2D& position) {
  return std::make_shared<Basin>(position);
}
