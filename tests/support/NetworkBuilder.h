#pragma once

#include <memory>
#include <string>
#include <utility>

#include "core/ElementFactory.h"
#include "core/LinkFactory.h"
#include "core/Reservoir.h"
#include "core/RuleSettings.h"
#include "operation/ExecutionContinuous.h"
#include "scenario/RuleScenario.h"
#include "vocabulary/Vocabulary.h"

// A node of the given type added to scenario.
inline std::shared_ptr<Node> addNode(Scenario& scenario, ElementType type) {
  auto node = std::static_pointer_cast<Node>(ElementFactory::make(type));
  scenario.addElement(node, true);
  return node;
}

// A link of the given type added to scenario, with the given limit (m³/s) and loss (%) on every
// period.
inline std::shared_ptr<Link> addLink(Scenario& scenario, const std::shared_ptr<Node>& up,
                                     const std::shared_ptr<Node>& down, double limit,
                                     double lossPercentage, ElementType type) {
  std::shared_ptr<Link> link;
  if (type == ElementType::naturalLink) {
    link = LinkFactory<NaturalLink>::make(up, down, "", Vocabulary::of(LinkAddonType::none));
  } else {
    link = LinkFactory<ArtificialLink>::make(up, down, "", Vocabulary::of(LinkAddonType::none));
  }
  scenario.addElement(link, true);
  link->getInputSerie(SerieType::linkLimit)->fill(limit);
  link->getInputSerie(SerieType::transitLossPercentage)->fill(lossPercentage);
  return link;
}

// Builds rule scenarios in code: nodes and links get consecutive ids in the order they are added.
class NetworkBuilder {
 public:
  explicit NetworkBuilder(const Interval& interval)
      : scenario(std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1,
                                                interval, "Teste")) {}
  // Builds into a scenario of another rule kind.
  explicit NetworkBuilder(std::shared_ptr<RuleScenario> target) : scenario(std::move(target)) {}

  static Interval monthly(unsigned int firstYear, unsigned int lastYear) {
    return Interval(Date(firstYear, 1, 1), Date(lastYear, 12, 1),
                    Vocabulary::of(Periodicity::monthly));
  }

  std::shared_ptr<Node> node(ElementType type) { return addNode(*scenario, type); }

  // A link without loss and with the given limit (m³/s) on every period.
  std::shared_ptr<Link> link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down,
                             double limit = 1000.0, ElementType type = ElementType::naturalLink) {
    return addLink(*scenario, up, down, limit, 0.0, type);
  }

  // Replaces the node's allocation matrix by the numeric form (first row: ids).
  void allocation(const std::shared_ptr<Node>& node, const std::vector<std::vector<double>>& matrix) {
    std::static_pointer_cast<RuleSettings>(scenario->getSettingsManager().getSettings(node->getId()))
        ->setAllocationByMatrixOfDouble(matrix);
  }

  std::shared_ptr<RuleScenario> scenario;
};
