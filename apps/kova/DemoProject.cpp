#include "DemoProject.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <stdexcept>

#include "CsvTable.h"
#include "HostText.h"
#include "NewProjectTarget.h"
#include "ScenarioFindings.h"
#include "common/PeriodWalker.h"
#include "core/Demand.h"
#include "core/PrioritySettings.h"
#include "core/Reservoir.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "core/ReservoirRuleSettings.h"
#include "managers/CoreServiceManager.h"
#include "operation/ExecutionContinuous.h"
#include "operation/ExecutionMethodFactoryByType.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptVolDepOneStaticReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "scenario/PriorityScenario.h"
#include "scenario/RuleScenario.h"
#include "vocabulary/Vocabulary.h"

namespace {

using NodePtr = std::shared_ptr<Node>;
using LinkPtr = std::shared_ptr<Link>;
using ReservoirPtr = std::shared_ptr<Reservoir>;
using DemandPtr = std::shared_ptr<Demand>;

constexpr double kUnlimited = 99999.0;     // m³/s, a link without a limit
constexpr double kInitialShare = 0.7;      // of the useful volume, at the start of the record
constexpr unsigned int kWindowMonth = 11;  // the wet season, and the hydrological year, begin
// The swarm of the optimisation: 16 particles over 15 iterations, 256 simulations in all.
constexpr std::uint32_t kSwarm = 16;
constexpr std::uint32_t kIterations = 15;
// The levels of the guarantee curve, %, and the trials of each lake at each level.
const std::vector<double> kCurveLevels = {50, 80, 90, 95, 100};
constexpr std::uint32_t kCurveIterations = 15;
constexpr std::uint32_t kSystemSwarm = 6;
constexpr std::uint32_t kSystemIterations = 3;
constexpr double kSystemMostFlow = 3000.0;  // m³/s

// The data files, read once.
struct DemoData {
  explicit DemoData(const std::filesystem::path& folder)
      : folder(folder),
        inflows(folder / "sf_natural_inflow_monthly_m3s.csv"),
        evaporation(folder / "sf_net_evaporation_monthly_mm.csv"),
        reservoirs(folder / "sf_reservoirs.csv") {}

  Date month(std::size_t row) const {
    return Date::fromString(inflows.text(row, 0) + "-01", "%Y-%m-%d");
  }

  // The months of the inflow file up to December of lastYear.
  Interval record(unsigned int lastYear) const {
    const Date end = std::min(month(inflows.rows() - 1), Date(lastYear, 12, 1));
    if (end < month(0)) {
      throw std::runtime_error(tr("the inflow record starts in {1}, after {2}",
                                  {inflows.text(0, 0), std::to_string(lastYear)}));
    }
    return Interval(month(0), end, Vocabulary::of(Periodicity::monthly));
  }

  std::filesystem::path folder;
  CsvTable inflows, evaporation, reservoirs;
};

// A reservoir of the cascade: where its data are and where it stands.
struct Site {
  std::string name, key;  // key: its line in sf_reservoirs.csv, its evaporation column
  std::vector<std::string> plus, minus;  // inflow columns added and taken away: its own catchment
  Point2D position;                      // longitude, latitude
};

// Every element of the network, for the settings of each kind of scenario.
struct Network {
  ReservoirPtr retiroBaixo, tresMarias, queimado, sobradinho, itaparica;
  NodePtr pirapora, saoRomao, juazeiro, cabrobo, moxoto, foz;
  DemandPtr upperIrrigation, industry, cities, lowerIrrigation, transfer, livestock, minimumFlow;
  std::map<std::string, LinkPtr> links;  // by "<upstream>-><downstream>"
};

class NetworkMaker {
 public:
  NetworkMaker(const DemoData& data, const std::shared_ptr<Scenario>& scenario)
      : data(data), scenario(scenario) {}

  Network make() {
    Network n;
    n.retiroBaixo =
        reservoir({"Retiro Baixo", "retiro_baixo", {"retiro_baixo_155"}, {}, {-44.78, -18.88}});
    n.tresMarias = reservoir({"Três Marias",
                              "tres_marias",
                              {"tres_marias_156"},
                              {"retiro_baixo_155"},
                              {-45.27, -18.21}});
    n.queimado = reservoir({"Queimado", "queimado", {"queimado_158"}, {}, {-47.32, -16.21}});
    n.sobradinho = reservoir({"Sobradinho",
                              "sobradinho",
                              {"sobradinho_incremental_168"},
                              {"queimado_158"},
                              {-40.83, -9.43}});
    n.itaparica =
        reservoir({"Itaparica", "itaparica", {"itaparica_incremental_171"}, {}, {-38.31, -9.14}});
    n.pirapora = node(ElementType::junction, "Pirapora", {-44.94, -17.35});
    n.saoRomao = node(ElementType::junction, "São Romão", {-45.07, -16.37});
    n.juazeiro = node(ElementType::junction, "Juazeiro-Petrolina", {-40.50, -9.41});
    n.cabrobo = node(ElementType::junction, "Cabrobó", {-39.31, -8.51});
    n.moxoto = node(ElementType::junction, "Moxotó", {-38.22, -9.36});
    n.foz = node(ElementType::drain, "Foz", {-36.40, -10.50});
    n.foz->getInputSerie(SerieType::demand)->fill(kUnlimited, scenario->getInterval());
    // Seasonal figures are (dry months May-October, wet months).
    n.upperIrrigation = demand(ElementType::irrigationDemand, "Irrigação Alto São Francisco", 30.0,
                               10.0, {-44.9, -17.0});
    n.industry =
        demand(ElementType::industrialDemand, "Indústria de Três Marias", 3.0, 3.0, {-45.2, -18.1});
    n.cities = demand(ElementType::humanDemand, "Abastecimento Juazeiro-Petrolina", 2.5, 2.5,
                      {-40.5, -9.3});
    n.lowerIrrigation =
        demand(ElementType::irrigationDemand, "Irrigação do Submédio", 60.0, 30.0, {-40.3, -9.2});
    n.transfer = demand(ElementType::humanDemand, "Transposição (PISF)", 26.4, 26.4, {-39.3, -8.3});
    n.livestock =
        demand(ElementType::animalDemand, "Dessedentação animal", 1.5, 1.5, {-39.0, -8.7});
    n.minimumFlow = demand(ElementType::industrialDemand, "Vazão mínima de Xingó", 1300.0, 1300.0,
                           {-37.8, -9.6});

    link(n.retiroBaixo, n.tresMarias, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.tresMarias, n.pirapora, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.pirapora, n.upperIrrigation, ElementType::artificialLink, 0.0, 40.0);
    link(n.pirapora, n.industry, ElementType::artificialLink, 0.0, 5.0);
    link(n.pirapora, n.saoRomao, ElementType::naturalLink, 1.0, kUnlimited);
    link(n.upperIrrigation, n.saoRomao, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.industry, n.saoRomao, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.queimado, n.saoRomao, ElementType::naturalLink, 0.5, kUnlimited);
    link(n.saoRomao, n.sobradinho, ElementType::naturalLink, 2.0, kUnlimited);
    link(n.sobradinho, n.juazeiro, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.juazeiro, n.cities, ElementType::artificialLink, 0.0, 5.0);
    link(n.juazeiro, n.lowerIrrigation, ElementType::artificialLink, 0.0, 80.0);
    link(n.juazeiro, n.cabrobo, ElementType::naturalLink, 0.5, kUnlimited);
    link(n.cities, n.cabrobo, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.lowerIrrigation, n.cabrobo, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.cabrobo, n.transfer, ElementType::artificialLink, 0.0, 127.0);
    link(n.cabrobo, n.livestock, ElementType::artificialLink, 0.0, 3.0);
    link(n.cabrobo, n.itaparica, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.itaparica, n.moxoto, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.moxoto, n.minimumFlow, ElementType::artificialLink, 0.0, kUnlimited);
    link(n.minimumFlow, n.foz, ElementType::naturalLink, 0.0, kUnlimited);
    link(n.moxoto, n.foz, ElementType::naturalLink, 0.0, kUnlimited);
    n.links = links;

    returns(n.upperIrrigation, n.saoRomao, 20.0);
    returns(n.industry, n.saoRomao, 80.0);
    returns(n.cities, n.cabrobo, 60.0);
    returns(n.lowerIrrigation, n.cabrobo, 10.0);
    // The minimum flow is not consumed: all of it goes on to the mouth, and its guarantee is
    // measured like any demand's.
    returns(n.minimumFlow, n.foz, 100.0);
    return n;
  }

 private:
  ReservoirPtr reservoir(const Site& site) {
    auto r =
        std::static_pointer_cast<Reservoir>(node(ElementType::reservoir, site.name, site.position));
    const std::size_t row = data.reservoirs.rowOf(site.key);
    ReservoirInfo& info = r->getReservoirInfo();
    info.minVol = data.reservoirs.number(row, data.reservoirs.column("volume_min_hm3"));
    info.maxVol = data.reservoirs.number(row, data.reservoirs.column("volume_max_hm3"));
    info.initVol = info.minVol + kInitialShare * (info.maxVol - info.minVol);
    info.cav =
        cavOf(site.key, data.reservoirs.number(row, data.reservoirs.column("tailwater_mean_m")));
    fillInflow(r, site);
    fillEvaporation(r, site.key);
    return r;
  }

  // The table holds the operating range only; below it the lake empties at the river bed, for
  // which the mean tailwater level stands.
  std::vector<std::vector<double>> cavOf(const std::string& key, double riverBed) const {
    const CsvTable table(data.folder / ("cav_" + key + ".csv"));
    std::vector<std::vector<double>> cav = {{riverBed, 0.0, 0.0}};
    for (std::size_t row = 0; row < table.rows(); ++row) {
      cav.push_back({table.number(row, 0), table.number(row, 1), table.number(row, 2)});
    }
    return cav;
  }

  // Each reservoir receives its own catchment only: the flow at its site less what the sites
  // upstream already receive.
  void fillInflow(const ReservoirPtr& r, const Site& site) const {
    const auto& inflows = data.inflows;
    const auto serie = r->getInputSerie(SerieType::naturalIncrementalFlow);
    const Date end = scenario->getInterval().getEnd();
    for (std::size_t row = 0; row < inflows.rows() && !(end < data.month(row)); ++row) {
      double flow = 0.0;
      for (const auto& column : site.plus) flow += inflows.number(row, inflows.column(column));
      for (const auto& column : site.minus) flow -= inflows.number(row, inflows.column(column));
      serie->setValue(data.month(row), std::max(flow, 0.0));
    }
  }

  // The coefficients are net of rain on the lake and negative in wet months: the positive part
  // is evaporation and the negative part rain, so that both series stay non-negative.
  void fillEvaporation(const ReservoirPtr& r, const std::string& key) const {
    const auto& table = data.evaporation;
    std::map<unsigned int, double> net;
    for (std::size_t row = 0; row < table.rows(); ++row) {
      net[static_cast<unsigned int>(table.number(row, 0))] = table.number(row, table.column(key));
    }
    PeriodWalker::forEach(scenario->getInterval(), [&](const Date& date) {
      const double value = net.at(date.getMonth());
      r->getInputSerie(SerieType::evaporation)->setValue(date, std::max(value, 0.0));
      r->getInputSerie(SerieType::precipitation)->setValue(date, std::max(-value, 0.0));
    });
  }

  NodePtr node(ElementType type, const std::string& name, const Point2D& position) {
    auto made = CoreServiceManager::createNodeNoDatabase(scenario, type, position, false);
    made->setName(name);
    return made;
  }

  DemandPtr demand(ElementType type, const std::string& name, double dry, double wet,
                   const Point2D& position) {
    auto d = std::static_pointer_cast<Demand>(node(type, name, position));
    PeriodWalker::forEach(scenario->getInterval(), [&](const Date& date) {
      const bool dryMonth = date.getMonth() >= 5 && date.getMonth() <= 10;
      d->getInputSerie(SerieType::demand)->setValue(date, dryMonth ? dry : wet);
    });
    return d;
  }

  void link(const NodePtr& up, const NodePtr& down, ElementType type, double loss, double limit) {
    auto made = CoreServiceManager::createLinkNoDatabase(scenario, type, up, down, false);
    made->setName(up->getName() + " - " + down->getName());
    made->getInputSerie(SerieType::transitLossPercentage)->fill(loss, scenario->getInterval());
    made->getInputSerie(SerieType::linkLimit)->fill(limit, scenario->getInterval());
    links[up->getName() + "->" + down->getName()] = made;
  }

  void returns(const DemandPtr& d, const NodePtr& to, double percentage) {
    d->setDemandReturnPercentage(links.at(d->getName() + "->" + to->getName()), percentage);
  }

  const DemoData& data;
  std::shared_ptr<Scenario> scenario;
  std::map<std::string, LinkPtr> links;
};

// Operating rules: what the rule scenarios share.
class RuleSettingsMaker {
 public:
  RuleSettingsMaker(const std::shared_ptr<Scenario>& scenario, const Network& n)
      : scenario(scenario), n(n) {}

  void apply() {
    allocateReleases();
    allocateJunctions();
    giveRules();
  }

 private:
  const LinkPtr& link(const NodePtr& up, const NodePtr& down) const {
    return n.links.at(up->getName() + "->" + down->getName());
  }

  // A matrix of two lines: up to the first total the needs are served in proportion; above it
  // they are served whole and the rest goes to the last link, which carries the river on. A
  // node without needs passes everything to the river.
  void allocate(const NodePtr& node, const std::vector<std::pair<NodePtr, double>>& needs,
                const NodePtr& river) {
    std::vector<std::vector<double>> matrix = {{double(node->getId())}, {0.0}, {kUnlimited}};
    double served = 0.0;
    for (const auto& [to, need] : needs) {
      matrix[0].push_back(link(node, to)->getId());
      matrix[1].push_back(need);
      matrix[2].push_back(need);
      served += need;
    }
    const double riverFirst = needs.empty() ? kUnlimited : 0.0;
    matrix[0].push_back(link(node, river)->getId());
    matrix[1].push_back(riverFirst);
    matrix[2].push_back(kUnlimited - served);
    matrix[1][0] = served + riverFirst;
    if (needs.empty()) matrix.pop_back();
    settings(node)->setAllocationByMatrixOfDouble(matrix);
  }

  void passOn(const NodePtr& node, const NodePtr& to) { allocate(node, {}, to); }

  void allocateReleases() {
    passOn(n.retiroBaixo, n.tresMarias);
    passOn(n.tresMarias, n.pirapora);
    passOn(n.queimado, n.saoRomao);
    passOn(n.sobradinho, n.juazeiro);
    passOn(n.itaparica, n.moxoto);
    for (const auto& [demand, to] :
         std::vector<std::pair<DemandPtr, NodePtr>>{{n.upperIrrigation, n.saoRomao},
                                                    {n.industry, n.saoRomao},
                                                    {n.cities, n.cabrobo},
                                                    {n.lowerIrrigation, n.cabrobo},
                                                    {n.minimumFlow, n.foz}}) {
      passOn(demand, to);
    }
  }

  void allocateJunctions() {
    allocate(n.pirapora, {{n.upperIrrigation, 30.0}, {n.industry, 3.0}}, n.saoRomao);
    passOn(n.saoRomao, n.sobradinho);
    allocate(n.juazeiro, {{n.cities, 2.5}, {n.lowerIrrigation, 60.0}}, n.cabrobo);
    allocate(n.cabrobo, {{n.transfer, 26.4}, {n.livestock, 1.5}}, n.itaparica);
    allocate(n.moxoto, {{n.minimumFlow, 1300.0}}, n.foz);
  }

  // Three Marias and Itaparica release by their own storage, Queimado by the month, Retiro Baixo
  // a steady flow, and Sobradinho by the storage of the two big lakes together: the drought
  // release of 2017 when low, the standard minimum in between, more when full.
  void giveRules() {
    auto steady = std::make_shared<ConstReleaseRule>();
    steady->setRelease(150.0);
    setRule(n.retiroBaixo, steady);

    auto byStorage = std::make_shared<VolDepOneStaticReleaseRule>();
    byStorage->setReservoirDependency(n.tresMarias);
    byStorage->setVectorOfVolDepOneReleaseStruct({{30, {300}}, {70, {500}}, {100, {800}}});
    setRule(n.tresMarias, byStorage);

    auto monthly = std::make_shared<PeriodicReleaseRule>();
    monthly->setRelease({80, 90, 90, 70, 50, 35, 30, 25, 25, 30, 45, 70});
    setRule(n.queimado, monthly);

    auto bySystem = std::make_shared<HydrologicalStateReleaseRule>();
    bySystem->setReservoirsOfSystem({n.tresMarias, n.sobradinho});
    bySystem->setStates(3, {0.25, 0.6}, {550, 1400, 2200});
    setRule(n.sobradinho, bySystem);

    auto itaparica = std::make_shared<VolDepOneStaticReleaseRule>();
    itaparica->setReservoirDependency(n.itaparica);
    itaparica->setVectorOfVolDepOneReleaseStruct({{20, {700}}, {60, {1350}}, {100, {2100}}});
    setRule(n.itaparica, itaparica);
  }

  void setRule(const ReservoirPtr& reservoir, const std::shared_ptr<ReleaseRule>& rule) {
    Scenario::getSettings<ReservoirRuleSettings>(reservoir, scenario->getSettingsManager())
        ->setRule(rule);
  }

  std::shared_ptr<RuleSettings> settings(const NodePtr& node) {
    return Scenario::getSettings<RuleSettings>(node, scenario->getSettingsManager());
  }

  std::shared_ptr<Scenario> scenario;
  const Network& n;
};

// Priorities: the consumers share the first pass (the checks want no demand upstream of
// another to come after it), the minimum flow the second; the lakes aim high, the big ones
// first; the mouth takes what is left.
void givePriorities(const std::shared_ptr<Scenario>& scenario, const Network& n) {
  const auto set = [&](const NodePtr& element, unsigned int priority) {
    Scenario::getSettings<PrioritySettings>(element, scenario->getSettingsManager())
        ->setPriority(priority);
  };
  for (const auto& demand :
       {n.upperIrrigation, n.industry, n.cities, n.lowerIrrigation, n.transfer, n.livestock}) {
    set(demand, 1);
  }
  set(n.minimumFlow, 2);
  set(n.foz, 99);
  const std::vector<std::pair<ReservoirPtr, double>> goals = {{n.tresMarias, 0.8},
                                                              {n.sobradinho, 0.8},
                                                              {n.itaparica, 0.9},
                                                              {n.queimado, 0.7},
                                                              {n.retiroBaixo, 0.9}};
  for (std::size_t i = 0; i < goals.size(); ++i) {
    set(goals[i].first, 10 + 5 * static_cast<unsigned int>(i));
    goals[i]
        .first->getInputSerie(SerieType::targetVolume)
        ->fill(goals[i].second, scenario->getInterval());
  }
}

Network addNetwork(const DemoData& data, const std::shared_ptr<Scenario>& scenario) {
  return NetworkMaker(data, scenario).make();
}

void setRule(const std::shared_ptr<Scenario>& scenario, const ReservoirPtr& reservoir,
             const std::shared_ptr<ReleaseRule>& rule) {
  Scenario::getSettings<ReservoirRuleSettings>(reservoir, scenario->getSettingsManager())
      ->setRule(rule);
}

// Steps of release by the reservoir's own storage whose limits stay and whose releases a swarm
// chooses up to most.
void releaseByOwnStorage(const std::shared_ptr<Scenario>& scenario, const ReservoirPtr& reservoir,
                         const std::vector<VolDepOneReleaseStruct>& steps, double most) {
  auto rule = std::make_shared<OptVolDepOneStaticReleaseRule>();
  rule->setReservoirDependency(reservoir);
  rule->setVectorOfVolDepOneReleaseStruct(steps);
  auto marked = steps;
  for (auto& step : marked) step.releases = {OptReleaseRule::kDecisionMark};
  rule->setToOptVectorOfVolDepOneReleaseStruct(marked);
  rule->setMaxRelease(most);
  setRule(scenario, reservoir, rule);
}

// Três Marias by its own storage and Sobradinho by the storage of the system, with releases a
// swarm chooses.
void leaveUpperLakesToTheSwarm(const std::shared_ptr<Scenario>& scenario, const Network& n) {
  constexpr double mark = OptReleaseRule::kDecisionMark;
  releaseByOwnStorage(scenario, n.tresMarias, {{30, {300}}, {70, {500}}, {100, {800}}}, 1200.0);
  auto bySystem = std::make_shared<OptHydrologicalStateReleaseRule>();
  bySystem->setReservoirsOfSystem({n.tresMarias, n.sobradinho});
  bySystem->setStates(3, {0.25, 0.6}, {550, 1400, 2200});
  bySystem->setOptStates({0.25, 0.6}, {mark, mark, mark}, {80.0, 90.0, 95.0});
  bySystem->setMaxRelease(3000.0);
  setRule(scenario, n.sobradinho, bySystem);
}

// The operating rules of the rule scenario, but the releases of the three big lakes are left to
// a swarm that weighs the consumers' deficit against the water the lakes spill: the steps of
// Três Marias and Itaparica by their own storage, and those of Sobradinho by the storage of the
// system, keep their limits and let the swarm choose their releases up to a maximum.
void leaveReleasesToTheSwarm(const std::shared_ptr<RuleOptimizationScenario>& scenario,
                             const Network& n) {
  leaveUpperLakesToTheSwarm(scenario, n);
  releaseByOwnStorage(scenario, n.itaparica, {{20, {700}}, {60, {1350}}, {100, {2100}}}, 3000.0);

  auto& execution = scenario->getExecutionOptimization();
  execution.cleanObjectiveFunctions();
  scenario->addMinimizeObjectiveFunction(
      ObjectiveFunctionType::shortageVolume,
      {n.upperIrrigation, n.industry, n.cities, n.lowerIrrigation, n.transfer, n.livestock});
  scenario->addMinimizeObjectiveFunction(ObjectiveFunctionType::spillVolume,
                                         {n.tresMarias, n.sobradinho, n.itaparica});
  execution.configureAlgorithm(OptimizationAlgorithmType::smpso);
  auto& parameters = static_cast<MPSOParameters&>(*execution.getAlgorithmParameters());
  parameters.swarmSize = kSwarm;
  parameters.archiveSize = kSwarm;
  parameters.maxIterations = kIterations;
}

// The constant releases that Três Marias and Sobradinho, the two lakes that regulate the river,
// sustain at a few levels of guarantee, the other lakes on their rules.
void askForTheCurve(const std::shared_ptr<GuaranteeCurveScenario>& scenario, const Network& n) {
  for (const auto& reservoir : {n.tresMarias, n.sobradinho}) {
    Scenario::getSettings<ReservoirGuaranteeCurveSettings>(reservoir,
                                                           scenario->getSettingsManager())
        ->setIsGuaranteeCurve(true);
  }
  auto& curve = scenario->getExecutionGuaranteeCurve();
  curve.setGuaranteeValues(kCurveLevels);
  curve.setNumberOfIterations(kCurveIterations);
}

// The constant flow that Itaparica, the last lake, sustains at each level of guarantee while a
// swarm per level adjusts the releases of Três Marias and Sobradinho upstream.
void askForTheSystemCurve(const std::shared_ptr<SystemGuaranteeCurveScenario>& scenario,
                          const Network& n) {
  leaveUpperLakesToTheSwarm(scenario, n);
  auto outflow = std::make_shared<OptConstReleaseRule>();
  outflow->setLowerAndUpperRelease(0.0, kSystemMostFlow);
  outflow->setToOpt(true);
  setRule(scenario, n.itaparica, outflow);
  auto& curve = scenario->getExecutionSystemGuaranteeCurve();
  curve.setOutSystemReservoirId(n.itaparica->getId());
  auto& parameters = static_cast<PSOParameters&>(*curve.getAlgorithmParameters());
  parameters.swarmSize = kSystemSwarm;
  parameters.maxIterations = kSystemIterations;
}

// The storage at the end of the record, where the rule simulation left it.
std::map<std::string, double> storageAtTheEnd(const std::shared_ptr<Scenario>& rules) {
  if (!rules->run(nullptr)) {
    std::ostringstream findings;
    ScenarioFindings::printLast(*rules, findings);
    throw std::runtime_error(
        tr("the rule simulation of the demo did not run: {1}", {findings.str()}));
  }
  std::map<std::string, double> storage;
  for (const auto& element : rules->getElements()) {
    if (element->getElementType().getType() != ElementType::reservoir) continue;
    storage[element->getName()] =
        element->getOutputSerie(SerieType::finalVolume, 0)->getValue(rules->getInterval().getEnd());
  }
  rules->clearAllResults();
  return storage;
}

}  // namespace

std::vector<std::shared_ptr<Scenario>> DemoProject::makeScenarios(
    const std::filesystem::path& dataFolder, unsigned int lastYear) {
  const DemoData data(dataFolder);
  const Interval record = data.record(lastYear);

  auto rules =
      std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 1, record, "Regras");
  RuleSettingsMaker(rules, addNetwork(data, rules)).apply();

  auto priorities = std::make_shared<PriorityScenario>(std::make_shared<ExecutionContinuous>(), 2,
                                                       record, "Prioridades");
  givePriorities(priorities, addNetwork(data, priorities));

  auto windowedMethod = ExecutionMethodFactoryByType::makeWindowed(record);
  windowedMethod->initializeYearsWindow(record, kWindowMonth, true);
  auto windows = std::make_shared<RuleScenario>(windowedMethod, 3, record,
                                                "Janelas a partir do armazenamento atual");
  RuleSettingsMaker(windows, addNetwork(data, windows)).apply();
  const auto storage = storageAtTheEnd(rules);
  for (const auto& element : windows->getElements()) {
    if (auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
      reservoir->getReservoirInfo().initVol = storage.at(reservoir->getName());
    }
  }

  auto optimisation =
      std::make_shared<RuleOptimizationScenario>(4, record, "Otimização das regras");
  const Network optimised = addNetwork(data, optimisation);
  RuleSettingsMaker(optimisation, optimised).apply();
  leaveReleasesToTheSwarm(optimisation, optimised);

  auto curve = std::make_shared<GuaranteeCurveScenario>(5, record, "Curva de garantia");
  const Network curveNetwork = addNetwork(data, curve);
  RuleSettingsMaker(curve, curveNetwork).apply();
  askForTheCurve(curve, curveNetwork);

  auto system =
      std::make_shared<SystemGuaranteeCurveScenario>(6, record, "Curva de garantia do sistema");
  const Network systemNetwork = addNetwork(data, system);
  RuleSettingsMaker(system, systemNetwork).apply();
  askForTheSystemCurve(system, systemNetwork);
  return {rules, priorities, windows, optimisation, curve, system};
}

bool DemoProject::build(const std::filesystem::path& dataFolder, unsigned int lastYear,
                        const std::filesystem::path& path, const Progress& progress) {
  return NewProjectTarget::save(makeScenarios(dataFolder, lastYear), path, progress);
}
