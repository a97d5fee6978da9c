#include "operation/HydrologicalBalance.h"

#include <cmath>
#include <functional>
#include <map>
#include <stdexcept>

#include "common/Calendar.h"
#include "core/Link.h"
#include "core/Node.h"
#include "operation/HydrologicalConversion.h"

namespace {

// Sums the kind of series over the enabled links, converting each non-zero flow to a volume.
double sumVolume(const HydrologicalBalance& balance,
                 const std::vector<std::shared_ptr<Link>>& links, SerieType type,
                 const Date& date, unsigned int windowIndex) {
  double sum = 0.0;
  for (const auto& link : links) {
    if (!link->isEnabled()) continue;
    const double flow = link->getOutputSerie(type, windowIndex)->getValue(date);
    if (std::fabs(flow) > 1e-6) sum += balance.hm3(date, flow);
  }
  return sum;
}

}  // namespace

double HydrologicalBalance::calcTotalUpstreamVolume(const std::shared_ptr<Element>& element,
                                                    const Date& date,
                                                    unsigned int windowIndex) const {
  const auto node = std::static_pointer_cast<Node>(element);
  return sumVolume(*this, node->getUpstreamLinks(), SerieType::outflow, date, windowIndex);
}

double HydrologicalBalance::calcTotalDownStreamVolume(const std::shared_ptr<Element>& element,
                                                      const Date& date,
                                                      unsigned int windowIndex) const {
  const auto node = std::static_pointer_cast<Node>(element);
  return sumVolume(*this, node->getDownstreamLinks(), SerieType::inflow, date, windowIndex);
}

double HydrologicalBalanceDaily::hm3(const Date&, double flow) const {
  return HydrologicalConversion::volume(flow, 1);
}

double HydrologicalBalanceDaily::m3s(const Date&, double volume) const {
  return HydrologicalConversion::flow(volume, 1);
}

double HydrologicalBalanceMonthly::hm3(const Date& date, double flow) const {
  return HydrologicalConversion::volume(flow, date.daysInMonth());
}

double HydrologicalBalanceMonthly::m3s(const Date& date, double volume) const {
  return HydrologicalConversion::flow(volume, date.daysInMonth());
}

double HydrologicalBalanceYearly::hm3(const Date& date, double flow) const {
  return HydrologicalConversion::volume(flow, Calendar::daysInYear(date.getYear()));
}

double HydrologicalBalanceYearly::m3s(const Date& date, double volume) const {
  return HydrologicalConversion::flow(volume, Calendar::daysInYear(date.getYear()));
}

std::shared_ptr<HydrologicalBalance> HydrologicalBalanceFactory::make(Periodicity periodicity) {
  static const std::map<Periodicity, std::function<std::shared_ptr<HydrologicalBalance>()>>
      makers = {
          {Periodicity::daily, makeDaily},
          {Periodicity::monthly, makeMonthly},
          {Periodicity::yearly, makeYearly},
      };
  auto it = makers.find(periodicity);
  if (it == makers.end()) {
    throw std::invalid_argument("HydrologicalBalanceFactory::make(): invalid periodicity");
  }
  return it->second();
}

std::shared_ptr<HydrologicalBalance> HydrologicalBalanceFactory::makeDaily() {
  return std::make_shared<HydrologicalBalanceDaily>();
}

std::shared_ptr<HydrologicalBalance> HydrologicalBalanceFactory::makeMonthly() {
  return std::make_shared<HydrologicalBalanceMonthly>();
}

std::shared_ptr<HydrologicalBalance> HydrologicalBalanceFactory::makeYearly() {
  return std::make_shared<HydrologicalBalanceYearly>();
}
