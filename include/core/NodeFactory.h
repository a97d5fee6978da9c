#pragma once

#include <memory>
#include <vector>

#include "common/InstitutionalID.h"
#include "common/Point2D.h"
#include "core/Basin.h"
#include "core/Demand.h"
#include "core/Junction.h"
#include "core/Reservoir.h"

// Makes nodes at a position, each with its empty input container.
class NodeFactory {
 public:
  static std::shared_ptr<Reservoir> makeReservoir(const Point2D& position,
                                                  const std::vector<InstitutionalID>& ids);
  static std::shared_ptr<HumanDemand> makeHumanDemand(const Point2D& position);
  static std::shared_ptr<AnimalDemand> makeAnimalDemand(const Point2D& position);
  static std::shared_ptr<IndustrialDemand> makeIndustrialDemand(const Point2D& position);
  static std::shared_ptr<AgricultureDemand> makeAgricultureDemand(const Point2D& position);
  static std::shared_ptr<DrainDemand> makeDrainDemand(const Point2D& position);
  static std::shared_ptr<Junction> makeJunction(const Point2D& position);
  static std::shared_ptr<Basin> makeBasin(const Point2D& position);
};
