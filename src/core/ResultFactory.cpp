#include "core/ResultFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/ElementSets.h"
#include "core/SeriesContainers.h"

namespace {

using ContainerPtr = std::shared_ptr<Container<SerieType>>;
using Maker = std::function<ContainerPtr()>;

// The makers of one execution type, by element category.
struct CategoryMakers {
  Maker reservoir, demand, link, junction, basin;
};

void addExecution(std::map<ResultFactory::Key, Maker>& table, ExecutionType execution,
                  const CategoryMakers& makers) {
  for (ScenarioType scenario :
       {ScenarioType::priorityOptimizer, ScenarioType::ruleSimulator, ScenarioType::ruleOptimizer,
        ScenarioType::guaranteeCurve, ScenarioType::systemGuaranteeCurve}) {
    table[{execution, ElementType::reservoir, scenario}] = makers.reservoir;
    for (ElementType demand : ElementSets::demands()) table[{execution, demand, scenario}] = makers.demand;
    for (ElementType link : ElementSets::links()) table[{execution, link, scenario}] = makers.link;
    table[{execution, ElementType::junction, scenario}] = makers.junction;
    table[{execution, ElementType::basin, scenario}] = makers.basin;
  }
}

const std::map<ResultFactory::Key, Maker>& makers() {
  static const std::map<ResultFactory::Key, Maker> table = [] {
    std::map<ResultFactory::Key, Maker> result;
    addExecution(result, ExecutionType::continuous,
                 {ResultFactory::makePCR, ResultFactory::makePCD, ResultFactory::makePCL,
                  ResultFactory::makePCJ, ResultFactory::makePCB});
    addExecution(result, ExecutionType::windowed,
                 {ResultFactory::makePWR, ResultFactory::makePWD, ResultFactory::makePWL,
                  ResultFactory::makePWJ, ResultFactory::makePWB});
    return result;
  }();
  return table;
}

}  // namespace

ResultFactory::Containers ResultFactory::make(const Key& key, unsigned int windows) {
  auto it = makers().find(key);
  if (it == makers().end()) {
    throw std::invalid_argument("SettingsFactory::make(): invalid parameter key");
  }
  Containers containers;
  containers.reserve(windows);
  for (unsigned int i = 0; i < windows; ++i) containers.push_back(it->second());
  return containers;
}

ContainerPtr ResultFactory::makePCR() { return std::make_shared<ReservoirSeriesOutput>(); }
ContainerPtr ResultFactory::makePCD() { return std::make_shared<DemandSeriesOutput>(); }
ContainerPtr ResultFactory::makePCL() { return std::make_shared<LinkSeriesOutput>(); }
ContainerPtr ResultFactory::makePCJ() { return std::make_shared<JunctionSeriesOutput>(); }
ContainerPtr ResultFactory::makePCB() { return std::make_shared<BasinSeriesOutput>(); }
ContainerPtr ResultFactory::makePWR() { return makePCR(); }
ContainerPtr ResultFactory::makePWD() { return makePCD(); }
ContainerPtr ResultFactory::makePWL() { return makePCL(); }
ContainerPtr ResultFactory::makePWJ() { return makePCJ(); }
ContainerPtr ResultFactory::makePWB() { return makePCB(); }
