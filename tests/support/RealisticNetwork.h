#pragma once

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "common/PeriodWalker.h"
#include "common/StringUtils.h"
#include "core/Demand.h"
#include "core/ReservoirRuleSettings.h"
#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/NoneReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOnePeriodicReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "rules/VolDepTwoPeriodicReleaseRule.h"
#include "rules/VolDepTwoStaticReleaseRule.h"
#include "support/NetworkBuilder.h"

// Reading the example data of the São Francisco.
namespace realistic {

inline const std::string kData = std::string(KOVA_EXAMPLES_DIR) + "/sao_francisco/";

inline std::vector<std::vector<std::string>> readCsv(const std::string& name) {
  std::ifstream file(kData + name);
  std::vector<std::vector<std::string>> rows;
  std::string line;
  while (std::getline(file, line)) rows.push_back(StringUtils::split(StringUtils::trim(line), ','));
  return rows;
}

// Monthly natural flows by column name and "YYYY-MM".
inline std::map<std::string, std::map<std::string, double>> naturalFlows() {
  const auto rows = readCsv("sf_natural_inflow_monthly_m3s.csv");
  std::map<std::string, std::map<std::string, double>> flows;
  for (std::size_t row = 1; row < rows.size(); ++row) {
    for (std::size_t column = 1; column < rows[0].size(); ++column) {
      flows[rows[0][column]][rows[row][0]] = std::stod(rows[row][column]);
    }
  }
  return flows;
}

inline std::string monthKey(const Date& date) { return date.toString("%Y-%m"); }

}  // namespace realistic

// The São Francisco from Retiro Baixo to its mouth on the real monthly inflows (ONS), with a
// synthetic tributary system of four reservoirs shaped on Queimado and Retiro Baixo, every demand
// kind, a basin, junctions, natural and artificial links with losses and limits, and one
// reservoir under each of the nine simulation rules.
class RealisticNetwork {
 public:
  explicit RealisticNetwork(const Interval& interval)
      : net(interval), flows(realistic::naturalFlows()) {
    // Main stem.
    auto retiro = reservoir("cav_retiro_baixo.csv", 200.72, 241.59, 230.0, [&](const Date& d) {
      return flow("retiro_baixo_155", d);
    });
    auto tresMarias = reservoir("cav_tres_marias.csv", 4250.0, 19528.0, 15000.0, [&](const Date& d) {
      return std::max(0.0, flow("tres_marias_156", d) - flow("retiro_baixo_155", d));
    });
    auto queimado = reservoir("cav_queimado.csv", 95.25, 557.0, 400.0, [&](const Date& d) {
      return flow("queimado_158", d);
    });
    auto sobradinho = reservoir("cav_sobradinho.csv", 5447.0, 34116.0, 25000.0, [&](const Date& d) {
      return flow("sobradinho_incremental_168", d);
    });
    auto itaparica = reservoir("cav_itaparica.csv", 7234.0, 10782.0, 9000.0, [&](const Date& d) {
      return flow("itaparica_incremental_171", d);
    });
    // A tributary system: two headwater reservoirs in parallel, then two in series.
    auto headA = reservoir("cav_queimado.csv", 95.25, 557.0, 300.0, [&](const Date& d) {
      return 0.4 * flow("queimado_158", d);
    });
    auto headB = reservoir("cav_retiro_baixo.csv", 200.72, 241.59, 220.0, [&](const Date& d) {
      return 0.2 * flow("retiro_baixo_155", d);
    });
    auto middle = reservoir("cav_queimado.csv", 95.25, 557.0, 350.0, [&](const Date& d) {
      return 0.1 * flow("queimado_158", d);
    });
    auto lower = reservoir("cav_retiro_baixo.csv", 200.72, 241.59, 230.0, [&](const Date& d) {
      return 0.05 * flow("retiro_baixo_155", d);
    });

    auto j1 = net.node(ElementType::junction);
    auto j2 = net.node(ElementType::junction);
    auto j3 = net.node(ElementType::junction);
    auto basin = net.node(ElementType::basin);
    auto supply = demand(ElementType::humanDemand, 26.4);
    auto irrigation = demand(ElementType::irrigationDemand, 40.0);
    auto livestock = demand(ElementType::animalDemand, 2.0);
    auto industry = demand(ElementType::industrialDemand, 5.0);
    auto mouth = net.node(ElementType::drain);

    single(retiro, link(retiro, tresMarias, 0.5));
    single(tresMarias, link(tresMarias, j1, 1.0));
    single(queimado, link(queimado, j1, 2.0));
    single(basin, link(basin, j1, 0.0, ElementType::artificialLink));
    single(j1, link(j1, sobradinho, 2.0));
    auto toItaparica = link(sobradinho, itaparica, 0.5);
    auto toSupply = link(sobradinho, supply, 1.0, ElementType::artificialLink, 30.0);
    split(sobradinho, {1000, 3000}, {{toItaparica, {970, 2900}}, {toSupply, {30, 100}}});
    single(itaparica, link(itaparica, j2, 0.0));
    returning(supply, link(supply, j2, 0.0), 10.0);
    auto toIrrigation = link(j2, irrigation, 3.0, ElementType::artificialLink, 60.0);
    auto toMouth = link(j2, mouth, 0.0);
    split(j2, {0, 50, 10000}, {{toIrrigation, {0, 50, 60}}, {toMouth, {0, 0, 9940}}});
    returning(irrigation, link(irrigation, mouth, 5.0), 5.0);

    single(headA, link(headA, j3, 1.0));
    single(headB, link(headB, j3, 1.0));
    auto toLivestock = link(j3, livestock, 0.0, ElementType::artificialLink);
    auto toMiddle = link(j3, middle, 1.5);
    split(j3, {0, 10, 1000}, {{toLivestock, {0, 2, 10}}, {toMiddle, {0, 8, 990}}});
    returning(livestock, link(livestock, middle, 0.0), 0.0);
    single(middle, link(middle, lower, 1.0));
    auto lowerToJ1 = link(lower, j1, 1.0);
    auto toIndustry = link(lower, industry, 0.0, ElementType::artificialLink, 8.0);
    split(lower, {100, 1000}, {{lowerToJ1, {95, 950}}, {toIndustry, {5, 50}}});
    returning(industry, link(industry, j1, 0.0), 30.0);

    giveRules(retiro, tresMarias, queimado, sobradinho, itaparica, headA, headB, middle, lower);
  }

  NetworkBuilder net;
  std::vector<std::shared_ptr<Reservoir>> reservoirs;

 private:
  using Inflow = std::function<double(const Date&)>;

  double flow(const std::string& column, const Date& date) const {
    return flows.at(column).at(realistic::monthKey(date));
  }

  static double id(const std::shared_ptr<Element>& element) { return element->getId(); }

  std::shared_ptr<Reservoir> reservoir(const std::string& cavFile, double minVol, double maxVol,
                                       double initVol, const Inflow& inflow) {
    auto r = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    ReservoirInfo& info = r->getReservoirInfo();
    const auto rows = realistic::readCsv(cavFile);
    info.cav.push_back({std::stod(rows[1][0]), 0.0, 0.0});
    for (std::size_t i = 1; i < rows.size(); ++i) {
      info.cav.push_back({std::stod(rows[i][0]), std::stod(rows[i][1]), std::stod(rows[i][2])});
    }
    info.minVol = minVol;
    info.maxVol = maxVol;
    info.initVol = initVol;
    PeriodWalker::forEach(net.scenario->getInterval(), [&](const Date& date) {
      r->getInputSerie(SerieType::naturalIncrementalFlow)->setValue(date, inflow(date));
      r->getInputSerie(SerieType::evaporation)->setValue(date, 40.0 + 10.0 * (date.getMonth() % 6));
      r->getInputSerie(SerieType::precipitation)->setValue(date, date.getMonth() <= 4 ? 30.0 : 0.0);
    });
    reservoirs.push_back(r);
    return r;
  }

  std::shared_ptr<Demand> demand(ElementType type, double target) {
    auto d = std::static_pointer_cast<Demand>(net.node(type));
    d->getInputSerie(SerieType::demand)->fill(target, net.scenario->getInterval());
    return d;
  }

  std::shared_ptr<Link> link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down,
                             double lossPercentage, ElementType type = ElementType::naturalLink,
                             double limit = 99999.0) {
    auto created = net.link(up, down, limit, type);
    created->getInputSerie(SerieType::transitLossPercentage)->fill(lossPercentage);
    return created;
  }

  // A node with one way out passes on all it has, by a matrix of two lines (below the first,
  // the first line's proportions apply).
  void single(const std::shared_ptr<Node>& node, const std::shared_ptr<Link>& out) {
    split(node, {100, 100000}, {{out, {100, 100000}}});
  }

  void split(const std::shared_ptr<Node>& node, const std::vector<double>& totals,
             const std::vector<std::pair<std::shared_ptr<Link>, std::vector<double>>>& shares) {
    std::vector<std::vector<double>> matrix(totals.size() + 1);
    matrix[0].push_back(id(node));
    for (std::size_t line = 0; line < totals.size(); ++line) matrix[line + 1].push_back(totals[line]);
    for (const auto& [out, flows] : shares) {
      matrix[0].push_back(id(out));
      for (std::size_t line = 0; line < flows.size(); ++line) matrix[line + 1].push_back(flows[line]);
    }
    net.allocation(node, matrix);
  }

  // A demand passes on the returned share of its inflow through its single way out.
  void returning(const std::shared_ptr<Demand>& demand, const std::shared_ptr<Link>& out,
                 double percentage) {
    demand->setDemandReturnPercentage(out, percentage);
    split(demand, {0, 100}, {{out, {0, percentage}}});
  }

  void setRule(const std::shared_ptr<Reservoir>& reservoir, const std::shared_ptr<ReleaseRule>& rule) {
    Scenario::getSettings<ReservoirRuleSettings>(reservoir, net.scenario->getSettingsManager())
        ->setRule(rule);
  }

  void giveRules(const std::shared_ptr<Reservoir>& retiro, const std::shared_ptr<Reservoir>& tresMarias,
                 const std::shared_ptr<Reservoir>& queimado,
                 const std::shared_ptr<Reservoir>& sobradinho,
                 const std::shared_ptr<Reservoir>& itaparica, const std::shared_ptr<Reservoir>& headA,
                 const std::shared_ptr<Reservoir>& headB, const std::shared_ptr<Reservoir>& middle,
                 const std::shared_ptr<Reservoir>& lower) {
    auto serie = std::make_shared<SerieReleaseRule>();
    auto releases = std::make_shared<Serie>(net.scenario->getInterval(),
                                            Vocabulary::of(SerieType::releasedFlow),
                                            Vocabulary::of(Unit::cubicMetresPerSecond));
    PeriodWalker::forEach(net.scenario->getInterval(), [&](const Date& date) {
      releases->setValue(date, date.getMonth() >= 5 && date.getMonth() <= 10 ? 120.0 : 80.0);
    });
    serie->setReleaseSerie(releases);
    setRule(retiro, serie);

    auto byDownstream = std::make_shared<VolDepOneStaticReleaseRule>();
    byDownstream->setReservoirDependency(sobradinho);
    byDownstream->setVectorOfVolDepOneReleaseStruct({{30, {700}}, {70, {500}}, {100, {350}}});
    setRule(tresMarias, byDownstream);

    auto periodic = std::make_shared<PeriodicReleaseRule>();
    periodic->setRelease({60, 60, 60, 50, 40, 30, 30, 30, 30, 40, 50, 60});
    setRule(queimado, periodic);

    auto state = std::make_shared<HydrologicalStateReleaseRule>();
    state->setReservoirsOfSystem({tresMarias, sobradinho});
    state->setStates(3, {0.3, 0.4}, {1100, 1500, 2200});
    setRule(sobradinho, state);

    auto twoReservoirs = std::make_shared<VolDepTwoStaticReleaseRule>();
    twoReservoirs->setReservoirDependency(sobradinho, itaparica);
    twoReservoirs->setVolDepTwoReleaseStruct({{40, 100}, {50, 100}, {{{1000, 1300}, {1500, 2000}}}});
    setRule(itaparica, twoReservoirs);

    auto constant = std::make_shared<ConstReleaseRule>();
    constant->setRelease(6.0);
    setRule(headA, constant);
    setRule(headB, std::make_shared<NoneReleaseRule>());

    auto periodicByHead = std::make_shared<VolDepOnePeriodicReleaseRule>();
    periodicByHead->setReservoirDependency(headA);
    periodicByHead->setVectorOfVolDepOneReleaseStruct(
        {{50, std::vector<double>(12, 4.0)}, {100, {9, 9, 9, 8, 7, 6, 6, 6, 6, 7, 8, 9}}});
    setRule(middle, periodicByHead);

    auto periodicByTwo = std::make_shared<VolDepTwoPeriodicReleaseRule>();
    periodicByTwo->setReservoirDependency(headA, middle);
    periodicByTwo->setVolDepTwoReleaseStruct(
        {{50, 100}, {50, 100}, std::vector<std::vector<std::vector<double>>>(12, {{3, 5}, {6, 10}})});
    setRule(lower, periodicByTwo);
  }

  std::map<std::string, std::map<std::string, double>> flows;
};
