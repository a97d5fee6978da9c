#include "checks/DemandCheck.h"

#include <numeric>

#include "common/NumericalUtils.h"
#include "core/Link.h"

DemandCheck::DemandCheck(std::shared_ptr<Element> element, std::weak_ptr<Scenario> scenario)
    : NodeCheck(std::move(element), {SerieType::demand}, std::move(scenario)) {}

void DemandCheck::runChecks() {
  NodeCheck::runChecks();
  static const std::vector<void (DemandCheck::*)()> table = {
      &DemandCheck::checkNegativeDemandReturn,
      &DemandCheck::checkSumDemandReturn,
      &DemandCheck::checkDrainDownstream,
  };
  runTable(this, table);
}

void DemandCheck::checkNegativeDemandReturn() {
  for (double share : demand().getDemandReturnPercentages()) {
    if (NumericalUtils::subtractDoubles(share, 0.0, 1e-6) < 0.0) {
      report("Valor negativo no retorno de demanda:");
      return;
    }
  }
}

void DemandCheck::checkSumDemandReturn() {
  const auto& shares = demand().getDemandReturnPercentages();
  if (NumericalUtils::subtractDoubles(std::accumulate(shares.begin(), shares.end(), 0.0), 100.0,
                                      1e-6) > 0.0) {
    report("O somatário das porcentagens de retorno de demanda excede o valor de 100%:");
  }
}

void DemandCheck::checkDrainDownstream() {
  for (const auto& link : demand().getEnabledDownstreamLinks()) {
    if (reachesDrain(link)) continue;
    const auto up = link->getUpstream();
    const auto down = link->getDownstream();
    report("Trecho de demanda sem um dreno a jusante:" + (up ? up->getName() : std::string()) +
           "," + (down ? down->getName() : std::string()));
  }
}
