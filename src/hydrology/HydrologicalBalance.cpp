#include "hydrology/HydrologicalBalance.h"

#include <cmath>
#include <functional>
#include <map>
#include <stdexcept>

#include "common/Calendar.h"
#include "common/NumericalUtils.h"
#include "core/CavManager.h"
#include "core/Link.h"
#include "core/Node.h"
#include "hydrology/HydrologicalConversion.h"

namespace {

// The given columns of every row of the reservoir's working table.
std::vector<std::vector<double>> workingColumns(const ReservoirInfo& info,
                                                const std::vector<int>& columns) {
  std::vector<std::vector<double>> matrix;
  matrix.reserve(info.workingCav.size());
  for (const auto& row : info.workingCav) {
    std::vector<double> picked;
    for (int column : columns) picked.push_back(row.at(static_cast<std::size_t>(column)));
    matrix.push_back(std::move(picked));
  }
  return matrix;
}

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

Cav HydrologicalBalance::makeCAV(const std::shared_ptr<Reservoir>& reservoir,
                                 const std::vector<int>& columns) {
  const ReservoirInfo& info = reservoir->getReservoirInfo();
  return Cav(info.regressionTech, workingColumns(info, columns));
}

namespace {

bool sameRows(const Cav& curve, const std::vector<std::vector<double>>& table,
              const std::vector<int>& columns) {
  const auto& rows = curve.getMatrix();
  if (rows.size() != table.size()) return false;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t c = 0; c < columns.size(); ++c) {
      if (rows[i][c] != table[i][static_cast<std::size_t>(columns[c])]) return false;
    }
  }
  return true;
}

}  // namespace

const Cav& HydrologicalBalance::curve(const std::shared_ptr<Reservoir>& reservoir,
                                      const std::vector<int>& columns) {
  const ReservoirInfo& info = reservoir->getReservoirInfo();
  std::shared_ptr<Cav>& kept = info.preparedCurves[columns];
  if (!kept || !sameRows(*kept, info.workingCav, columns)) {
    kept = std::make_shared<Cav>(info.regressionTech->copy(), workingColumns(info, columns));
    kept->keepBetweenLookups();
  }
  return *kept;
}

const Cav& HydrologicalBalance::areaCurve(const std::shared_ptr<Reservoir>& reservoir) {
  static const std::vector<int> columns = {ReservoirInfo::volume, ReservoirInfo::area};
  return curve(reservoir, columns);
}

const Cav& HydrologicalBalance::levelCurve(const std::shared_ptr<Reservoir>& reservoir) {
  static const std::vector<int> columns = {ReservoirInfo::volume, ReservoirInfo::level};
  return curve(reservoir, columns);
}

double HydrologicalBalance::atVolume(const Cav& cav, double volume) {
  if (NumericalUtils::compareDoubles(volume, 0.0, 0.0001)) return 0.0;
  return CavManager::calculateInterpolation(cav, volume);
}

double HydrologicalBalance::area(const Cav& cav, double volume) { return atVolume(cav, volume); }

double HydrologicalBalance::level(const Cav& cav, double volume) { return atVolume(cav, volume); }

double HydrologicalBalance::balance(const std::shared_ptr<Reservoir>& reservoir, const Date& date,
                                    double volume, bool zeroContribution, double upstreamVolume,
                                    double downstreamVolume) const {
  const double surface = area(areaCurve(reservoir), volume);
  double precipitation = 0.0;
  double naturalFlow = 0.0;
  if (!zeroContribution) {
    precipitation = reservoir->getInputSerie(SerieType::precipitation)->getValue(date) * surface / 1000.0;
    naturalFlow = reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->getValue(date);
  }
  const double inflow = upstreamVolume + (hm3(date, naturalFlow) + precipitation);
  const double evaporation =
      reservoir->getInputSerie(SerieType::evaporation)->getValue(date) * surface / 1000.0;
  const double stock = inflow + volume;
  const double loss = evaporation + downstreamVolume;
  return NumericalUtils::subtractDoubles(stock, loss, 1e-6);
}

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
