#include "operation/RuleReleaseDefaultAllocation.h"

#include <algorithm>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "core/Junction.h"
#include "core/Link.h"
#include "core/LinkRuleSettings.h"
#include "core/ReservoirOperationUtils.h"
#include "core/RuleSettings.h"

namespace {

constexpr double kEps = 1e-6;

const RuleReleaseDefaultAllocation::AllocationMatrix& matrixOf(
    const std::shared_ptr<Element>& node, const SettingsManager& settingsManager) {
  return std::static_pointer_cast<RuleSettings>(settingsManager.getSettings(node->getId()))
      ->getAllocation();
}

// The remainder x beyond the lines goes to the links in the proportions of one line: the first,
// except where x is 1.0 and the first breakpoint is not positive, where it is the last.
double shareOutsideLines(const RuleReleaseDefaultAllocation::AllocationMatrix& matrix,
                         const std::vector<double>& nodeRow, const std::vector<double>& linkRow,
                         double x, unsigned int nodeId) {
  const double probe = nodeRow[0] > 0.0 ? 0.0 : 1.0;
  const std::size_t line =
      NumericalUtils::subtractDoubles(x, probe, kEps) == 0.0 ? nodeRow.size() - 1 : 0;
  double sum = 0.0;
  for (const auto& entry : matrix) {
    if (entry.first != nodeId) sum += entry.second[line];
  }
  return linkRow[line] / sum * x;
}

}  // namespace

RuleReleaseDefaultAllocation::RuleReleaseDefaultAllocation(const Interval& interval,
                                                           const Date& date,
                                                           unsigned int windowIndex)
    : balance(HydrologicalBalanceFactory::make(interval.getPeriodicity().getType())),
      interval(interval),
      date(date),
      windowIndex(windowIndex) {}

double RuleReleaseDefaultAllocation::getValue(const std::shared_ptr<Element>& node,
                                              const std::shared_ptr<Element>& link, double total,
                                              const AllocationMatrix& matrix) const {
  const double share =
      GetInterpolationAllocationMatrix(matrix, total, link->getId(), node->getId());
  const std::shared_ptr<Serie> limitSerie =
      link->getInputSeries() ? link->getInputSerie(SerieType::linkLimit) : nullptr;
  const double limit = limitSerie ? limitSerie->getValue(date) : 0.0;
  return std::min(limit, share);
}

double RuleReleaseDefaultAllocation::GetInterpolationAllocationMatrix(
    const AllocationMatrix& matrix, double x, unsigned int linkId, unsigned int nodeId) {
  const std::vector<double>& nodeRow = matrix.at(nodeId);
  const std::vector<double>& linkRow = matrix.at(linkId);
  if (nodeRow.empty()) return 0.0;

  double result = 0.0;
  const double top = nodeRow.back();
  const double aboveTop = NumericalUtils::subtractDoubles(x, top, kEps);
  if (aboveTop > 0.0) {
    result = linkRow.back();
    x = aboveTop;
  }
  for (std::size_t i = nodeRow.size(); i-- > 0;) {
    if (NumericalUtils::compareDoubles(x, nodeRow[i], kEps)) return result + linkRow[i];
    if (NumericalUtils::subtractDoubles(x, nodeRow[i], kEps) > 0.0 &&
        NumericalUtils::subtractDoubles(x, top, kEps) < 0.0) {
      const double a = nodeRow[i + 1] - x;
      const double b = x - nodeRow[i];
      return result + (linkRow[i + 1] * b + linkRow[i] * a) / (b + a);
    }
  }
  if (NumericalUtils::compareDoubles(x, 0.0, kEps)) return result;
  return result + shareOutsideLines(matrix, nodeRow, linkRow, x, nodeId);
}

double RuleReleaseDefaultAllocation::upstreamFlow(const std::shared_ptr<Element>& node) const {
  return balance->m3s(date, balance->calcTotalUpstreamVolume(node, date, windowIndex));
}

double RuleReleaseReservoirAllocation::getValue(const std::shared_ptr<Element>& node,
                                                const std::shared_ptr<Element>& link,
                                                const SettingsManager& settingsManager,
                                                bool zeroContribution, const SceneryIsolatedData*) {
  const auto reservoir = std::static_pointer_cast<Reservoir>(node);
  const auto settings =
      std::static_pointer_cast<ReservoirRuleSettings>(settingsManager.getSettings(node->getId()));
  const double wanted = wantedRelease(reservoir, *settings, zeroContribution);
  const auto out = std::static_pointer_cast<Link>(link);
  const auto& backups = reservoir->getUpstreamBackupLinks();
  const bool invertedOut =
      out->getIsBidirectional() &&
      std::any_of(backups.begin(), backups.end(),
                  [&](const std::shared_ptr<Link>& l) { return l->getId() == out->getId(); });
  if (invertedOut) {
    const auto linkSettings =
        std::static_pointer_cast<LinkRuleSettings>(settingsManager.getSettings(link->getId()));
    const AllocationMatrix own = {{node->getId(), settings->getAllocation().at(node->getId())},
                                  {link->getId(), linkSettings->getValues()}};
    return getValue(node, link, wanted, own);
  }
  return getValue(node, link, wanted, settings->getAllocation());
}

double RuleReleaseReservoirAllocation::wantedRelease(const std::shared_ptr<Reservoir>& reservoir,
                                                     const ReservoirRuleSettings& settings,
                                                     bool zeroContribution) const {
  const ReservoirInfo& info = reservoir->getReservoirInfo();
  const HydrologicalBalance& hb = getBalance();
  const double volume = ReservoirOperationUtils::currentReservoirVolume(
      reservoir, getInterval(), getDate(), getWindowIndex());
  const double upstream = hb.calcTotalUpstreamVolume(reservoir, getDate(), getWindowIndex());
  const double afterInflows = hb.balance(reservoir, getDate(), volume, zeroContribution, upstream, 0.0);
  double available = NumericalUtils::subtractDoubles(afterInflows, info.minVol, kEps);
  if (available < 0.0) available = 0.0;
  double wanted = settings.getRule() ? settings.getRule()->getRelease(getDate()) : 0.0;
  if (NumericalUtils::subtractDoubles(available, hb.hm3(getDate(), wanted), kEps) < 0.0) {
    wanted = hb.m3s(getDate(), available);
  }
  return std::min(wanted, info.maxRelease);
}

double RuleReleaseJunctionAllocation::getValue(const std::shared_ptr<Element>& node,
                                               const std::shared_ptr<Element>& link,
                                               const SettingsManager& settingsManager, bool,
                                               const SceneryIsolatedData* isolatedData) {
  const auto junction = std::static_pointer_cast<Junction>(node);
  if (junction->getIsUnion()) {
    if (!isolatedData || junction->getDownstreamLinks().size() != 1) {
      throw std::runtime_error("RuleReleaseJunctionAllocation::getValue: invalid virtual junction");
    }
    return isolatedData->getUnionFlow(link->getId(), getDate());
  }
  return getValue(node, link, upstreamFlow(node), matrixOf(node, settingsManager));
}

double RuleReleaseDemandAllocation::getValue(const std::shared_ptr<Element>& node,
                                             const std::shared_ptr<Element>& link,
                                             const SettingsManager& settingsManager, bool,
                                             const SceneryIsolatedData*) {
  return getValue(node, link, upstreamFlow(node), matrixOf(node, settingsManager));
}
