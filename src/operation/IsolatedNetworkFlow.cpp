#include "operation/IsolatedNetworkFlow.h"

#include <stdexcept>

#include "core/Junction.h"

namespace {

constexpr double kUnionSlackWeight = -10000000.0;

}  // namespace

IsolatedNetworkFlow::IsolatedNetworkFlow(
    const SettingsManager& settingsManager, const Date& date, const Interval& interval,
    const std::shared_ptr<HydrologicalStateCalculator>& hydrologicalStateCalculator,
    unsigned int windowIndex, const SceneryIsolatedData& isolatedData)
    : NetworkFlow(settingsManager, date, interval, hydrologicalStateCalculator, windowIndex),
      isolatedData(isolatedData) {}

double IsolatedNetworkFlow::getJunctionSubjectValue(const std::shared_ptr<Element>& element,
                                                    RowVectors& row) {
  const auto junction = std::static_pointer_cast<Junction>(element);
  if (!junction->getIsUnion()) return NetworkFlow::getJunctionSubjectValue(element, row);
  const auto& links = junction->getDownstreamLinks();
  if (links.size() != 1) {
    throw std::runtime_error(
        "IsolatedNetworkFlow::getJunctionSubjectValue: invalid virtual junction");
  }
  KLPKRepresentation* problem = getMutableProblem();
  const int slackColumn =
      KLPKUtils::lowColValue(problem, KLPKUtils::oneVar(element) + separator + slack, 0.0);
  KLPKUtils::slp_set_obj_coef(problem, slackColumn, kUnionSlackWeight);
  row.add(slackColumn, 1.0);
  return hm3(isolatedData.getUnionFlow(links.front()->getId(), getDate()));
}
