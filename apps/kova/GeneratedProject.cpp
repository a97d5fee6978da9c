#include "GeneratedProject.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <stdexcept>

#include "common/PeriodWalker.h"
#include "core/PrioritySettings.h"
#include "core/ReservoirRuleSettings.h"
#include "core/RuleSettings.h"
#include "managers/CoreServiceManager.h"
#include "operation/ExecutionContinuous.h"
#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/NoneReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOnePeriodicReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "rules/VolDepTwoPeriodicReleaseRule.h"
#include "rules/VolDepTwoStaticReleaseRule.h"
#include "scenario/PriorityScenario.h"
#include "scenario/RuleScenario.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Monthly = std::array<double, 12>;  // January first

// A wet summer and a long dry winter; the factors average about one.
constexpr Monthly kInflowSeason = {1.6, 1.9, 2.0, 1.5, 0.9, 0.6, 0.45, 0.35, 0.3, 0.4, 0.7, 1.2};
constexpr Monthly kEvaporation = {130, 115, 120, 110, 105, 100,
                                  115, 145, 170, 185, 165, 145};                // mm
constexpr Monthly kRain = {180, 160, 170, 90, 30, 10, 5, 5, 15, 60, 110, 160};  // mm
constexpr Monthly kIrrigationSeason = {0.4, 0.4, 0.5, 0.8, 1.1, 1.4, 1.6, 1.7, 1.6, 1.3, 0.8, 0.5};
constexpr Monthly kTownSeason = {1.05, 1.05, 1.0, 0.97, 0.95, 0.93,
                                 0.93, 0.95, 1.0, 1.05, 1.07, 1.05};
constexpr Monthly kSteady = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
// Releases follow the dry-season needs downstream.
constexpr Monthly kReleaseSeason = {0.8, 0.8, 0.8, 0.9, 1.0, 1.1, 1.2, 1.25, 1.25, 1.1, 0.9, 0.8};
// How far above or below its mean a target volume stands: fuller after the rains.
constexpr Monthly kTargetSeason = {0.1, 0.15, 0.2,   0.2,  0.15, 0.1,
                                   0.0, -0.1, -0.15, -0.2, -0.1, 0.0};

constexpr double kHm3PerMonthOfOneM3s = 2.628;  // 30.4 days of 86,400 s
constexpr double kAboveAnyFlow = 100000.0;      // m³/s, the top line of every allocation matrix
constexpr unsigned int kCavRows = 8;
// Reservoirs take priorities 10 to 14, after every demand.
constexpr unsigned int kReservoirPriority = 10;
constexpr unsigned int kReservoirPriorityLevels = 5;
// The chain: a seven-year cycle of wet and dry years, demands that swing ±30 % with the seasons,
// all reservoirs after the three priorities of the demands.
constexpr double kTwoPi = 6.283185307179586;
constexpr double kChainCycleYears = 7.0;
constexpr double kChainCycleDepth = 0.3;
constexpr double kChainNoise = 0.2;
constexpr double kChainDemandSwing = 0.3;
constexpr double kChainTarget = 0.9;              // of the maximum volume
constexpr double kChainRiverLimit = 100000.0;     // m³/s, never reached
constexpr unsigned int kChainReservoirPriority = 4;
constexpr unsigned int kMostOwnPriorities = 98;  // 1 to 98, below the drain's 99

// What each kind of demand is like. Towns and industries return what they do not consume; the
// little that fields and herds return is left out.
struct DemandKind {
  ElementType type;
  double shareOfRiver;           // of the mean flow at its reach
  double returnLow, returnHigh;  // %, of what it takes
  const Monthly* season;
  unsigned int priority, priorityRange;  // in priority mode: priority .. priority + range - 1
};

const std::array<DemandKind, 4>& demandKinds() {
  static const std::array<DemandKind, 4> kinds = {{
      {ElementType::humanDemand, 0.06, 50.0, 80.0, &kTownSeason, 1, 1},
      {ElementType::animalDemand, 0.01, 0.0, 0.0, &kSteady, 2, 1},
      {ElementType::industrialDemand, 0.04, 40.0, 70.0, &kSteady, 3, 2},
      {ElementType::irrigationDemand, 0.12, 0.0, 0.0, &kIrrigationSeason, 5, 3},
  }};
  return kinds;
}

double monthly(const Monthly& table, const Date& date) { return table[date.getMonth() - 1]; }

double id(const std::shared_ptr<Element>& element) { return element->getId(); }

// What a release rule is built from: a typical release and the lakes it may look at.
struct RuleInputs {
  double release = 0.0;  // m³/s
  std::shared_ptr<Reservoir> own, other;
  std::vector<std::shared_ptr<Element>> system;
  Interval interval;
  std::function<double(const Date&)> wetness;  // 1 in an ordinary year, less in a drought
};

using RuleMaker = std::function<std::shared_ptr<ReleaseRule>(const RuleInputs&)>;

Monthly scaled(const Monthly& table, double factor) {
  Monthly result = table;
  for (double& value : result) value *= factor;
  return result;
}

std::vector<double> asVector(const Monthly& table) { return {table.begin(), table.end()}; }

std::shared_ptr<ReleaseRule> constantRule(const RuleInputs& in) {
  auto rule = std::make_shared<ConstReleaseRule>();
  rule->setRelease(in.release);
  return rule;
}

std::shared_ptr<ReleaseRule> periodicRule(const RuleInputs& in) {
  auto rule = std::make_shared<PeriodicReleaseRule>();
  rule->setRelease(asVector(scaled(kReleaseSeason, in.release)));
  return rule;
}

// A schedule agreed year by year: less in dry years.
std::shared_ptr<ReleaseRule> serieRule(const RuleInputs& in) {
  auto releases = std::make_shared<Serie>(in.interval, Vocabulary::of(SerieType::releasedFlow),
                                          Vocabulary::of(Unit::cubicMetresPerSecond));
  PeriodWalker::forEach(in.interval, [&](const Date& date) {
    const double year = 0.7 + 0.3 * std::min(1.0, in.wetness(date));
    releases->setValue(date, in.release * monthly(kReleaseSeason, date) * year);
  });
  auto rule = std::make_shared<SerieReleaseRule>();
  rule->setReleaseSerie(releases);
  return rule;
}

std::shared_ptr<ReleaseRule> hydrologicalStateRule(const RuleInputs& in) {
  auto rule = std::make_shared<HydrologicalStateReleaseRule>();
  rule->setReservoirsOfSystem(in.system);
  rule->setStates(3, {0.3, 0.4}, {0.5 * in.release, 0.8 * in.release, 1.1 * in.release});
  return rule;
}

// Hedging: the emptier the lake it watches, the less it releases.
std::shared_ptr<ReleaseRule> staticOneRule(const RuleInputs& in) {
  auto rule = std::make_shared<VolDepOneStaticReleaseRule>();
  rule->setReservoirDependency(in.other);
  rule->setVectorOfVolDepOneReleaseStruct(
      {{30, {0.5 * in.release}}, {70, {0.8 * in.release}}, {100, {1.1 * in.release}}});
  return rule;
}

std::shared_ptr<ReleaseRule> periodicOneRule(const RuleInputs& in) {
  auto rule = std::make_shared<VolDepOnePeriodicReleaseRule>();
  rule->setReservoirDependency(in.other);
  rule->setVectorOfVolDepOneReleaseStruct({{50, asVector(scaled(kReleaseSeason, 0.6 * in.release))},
                                           {100, asVector(scaled(kReleaseSeason, in.release))}});
  return rule;
}

std::vector<std::vector<double>> twoByTwo(double release) {
  return {{0.5 * release, 0.7 * release}, {0.8 * release, 1.0 * release}};
}

std::shared_ptr<ReleaseRule> staticTwoRule(const RuleInputs& in) {
  auto rule = std::make_shared<VolDepTwoStaticReleaseRule>();
  rule->setReservoirDependency(in.own, in.other);
  rule->setVolDepTwoReleaseStruct({{40, 100}, {50, 100}, {twoByTwo(in.release)}});
  return rule;
}

std::shared_ptr<ReleaseRule> periodicTwoRule(const RuleInputs& in) {
  std::vector<std::vector<std::vector<double>>> months;
  for (double factor : kReleaseSeason) months.push_back(twoByTwo(factor * in.release));
  auto rule = std::make_shared<VolDepTwoPeriodicReleaseRule>();
  rule->setReservoirDependency(in.own, in.other);
  rule->setVolDepTwoReleaseStruct({{40, 100}, {50, 100}, months});
  return rule;
}

std::shared_ptr<ReleaseRule> noRule(const RuleInputs&) {
  return std::make_shared<NoneReleaseRule>();
}

// The kinds of rule in the order the reservoirs take them; the two-lake rules stand where a
// reservoir always has another one upstream of it in the order of making.
const std::vector<std::pair<ReleaseRuleType, RuleMaker>>& ruleCycle() {
  using R = ReleaseRuleType;
  static const std::vector<std::pair<ReleaseRuleType, RuleMaker>> cycle = {
      {R::constant, constantRule},
      {R::periodic, periodicRule},
      {R::staticVolumeDependence1, staticOneRule},
      {R::serie, serieRule},
      {R::hydrologicalState, hydrologicalStateRule},
      {R::staticVolumeDependence2, staticTwoRule},
      {R::none, noRule},
      {R::periodicVolumeDependence1, periodicOneRule},
      {R::periodicVolumeDependence2, periodicTwoRule},
  };
  return cycle;
}

ReleaseRuleType ruleKindOf(unsigned int site) {
  return ruleCycle()[site % ruleCycle().size()].first;
}

// The numeric form of an allocation matrix: a row of ids, then one row per line.
class MatrixRows {
 public:
  MatrixRows(const std::shared_ptr<Element>& node, const std::vector<double>& totals)
      : rows(totals.size() + 1) {
    rows[0].push_back(id(node));
    for (std::size_t line = 0; line < totals.size(); ++line) rows[line + 1].push_back(totals[line]);
  }
  void add(const std::shared_ptr<Link>& link, const std::vector<double>& flows) {
    rows[0].push_back(id(link));
    for (std::size_t line = 0; line < flows.size(); ++line) rows[line + 1].push_back(flows[line]);
  }
  const std::vector<std::vector<double>>& get() const { return rows; }

 private:
  std::vector<std::vector<double>> rows;
};

void setMatrix(Scenario& scenario, const std::shared_ptr<Node>& node, const MatrixRows& matrix) {
  Scenario::getSettings<RuleSettings>(node, scenario.getSettingsManager())
      ->setAllocationByMatrixOfDouble(matrix.get());
}

// A node with one way out sends all it has: a single line shared in full.
void sendAll(Scenario& scenario, const std::shared_ptr<Node>& node) {
  MatrixRows matrix(node, {100.0});
  matrix.add(node->getDownstreamLinks().front(), {100.0});
  setMatrix(scenario, node, matrix);
}

}  // namespace

double GeneratedProject::Random::uniform() {
  return static_cast<double>(engine() >> 11) * 0x1.0p-53;
}

double GeneratedProject::Random::between(double low, double high) {
  return low + (high - low) * uniform();
}

unsigned int GeneratedProject::Random::below(unsigned int count) {
  return static_cast<unsigned int>(engine() % count);
}

double GeneratedProject::Random::normal() {
  double sum = 0.0;
  for (int i = 0; i < 12; ++i) sum += uniform();
  return sum - 6.0;
}

std::shared_ptr<Scenario> GeneratedProject::make(const Options& options) {
  if (options.reservoirs == 0) {
    throw std::invalid_argument("GeneratedProject::make(): at least one reservoir");
  }
  if (options.periods == 0) {
    throw std::invalid_argument("GeneratedProject::make(): at least one period");
  }
  const bool chain = options.layout == GeneratedLayout::chain;
  if (chain && options.mode != GeneratedMode::priority) {
    throw std::invalid_argument("GeneratedProject::make(): a chain is operated by priorities");
  }
  if (options.ownPriorities && !chain) {
    throw std::invalid_argument("GeneratedProject::make(): priorities of their own only in a chain");
  }
  if (options.ownPriorities && options.reservoirs + options.demands > kMostOwnPriorities) {
    throw std::invalid_argument(
        "GeneratedProject::make(): at most 98 reservoirs and demands with priorities of their own");
  }
  GeneratedProject project(options);
  return project.scenario;
}

GeneratedProject::GeneratedProject(const Options& options)
    : options(options), random(options.seed) {
  makeScenario();
  if (options.layout == GeneratedLayout::chain) {
    makeChain();
    return;
  }
  layOutSites();
  chooseYearFactors();
  makeNodes();
  makeRivers();
  makeDemands();
  fillReservoirs();
  fillDemands();
  fillDrain();
  if (options.mode == GeneratedMode::rule) {
    configureRules();
  } else {
    configurePriorities();
  }
}

void GeneratedProject::makeScenario() {
  const unsigned int last = options.periods - 1;
  const Interval interval(Date(1901, 1, 1), Date(1901 + last / 12, 1 + last % 12, 1),
                          Vocabulary::of(Periodicity::monthly));
  const auto method = std::make_shared<ExecutionContinuous>();
  if (options.mode == GeneratedMode::rule) {
    scenario = std::make_shared<RuleScenario>(method, 1, interval, "Regras");
  } else {
    scenario = std::make_shared<PriorityScenario>(method, 1, interval, "Prioridades");
  }
}

void GeneratedProject::makeChain() {
  drain = node(ElementType::drain, {0.3 * options.reservoirs, 0.0});
  for (unsigned int i = 0; i < options.reservoirs; ++i) makeChainReservoir(i);
  for (unsigned int i = 0; i < options.reservoirs; ++i) {
    const std::shared_ptr<Node> below =
        i + 1 < options.reservoirs ? std::static_pointer_cast<Node>(chain[i + 1]) : drain;
    link(chain[i], below, ElementType::naturalLink, kChainRiverLimit, 0.0);
  }
  for (unsigned int j = 0; j < options.demands; ++j) makeChainDemand(j);
  fillDrain();
  prioritiseChain();
}

// Volumes of the chain are in hm³ a month; the inflow series holds m³/s.
void GeneratedProject::makeChainReservoir(unsigned int index) {
  const auto reservoir =
      std::static_pointer_cast<Reservoir>(node(ElementType::reservoir, {0.3 * index, 0.0}));
  const double mean = 100.0 + 20.0 * (index % 5);  // hm³ a month
  ReservoirInfo& info = reservoir->getReservoirInfo();
  info.maxVol = 6.0 * mean;
  info.minVol = 0.1 * info.maxVol;
  info.initVol = 0.5 * info.maxVol;
  makeCav(*reservoir, info.maxVol);
  reservoir->getInputSerie(SerieType::evaporation)->fill(0.0);
  reservoir->getInputSerie(SerieType::precipitation)->fill(0.0);
  reservoir->getInputSerie(SerieType::targetVolume)->fill(kChainTarget);
  const auto inflow = reservoir->getInputSerie(SerieType::naturalIncrementalFlow);
  PeriodWalker::forEach(scenario->getInterval(), [&](const Date& date) {
    const double cycle = 1.0 + kChainCycleDepth * std::sin(kTwoPi * (date.getYear() - 1901) /
                                                           kChainCycleYears);
    const double noise = std::max(0.0, 1.0 + kChainNoise * random.normal());
    inflow->setValue(date,
                     mean / kHm3PerMonthOfOneM3s * monthly(kInflowSeason, date) * cycle * noise);
  });
  chain.push_back(reservoir);
}

void GeneratedProject::makeChainDemand(unsigned int index) {
  const unsigned int site = index % options.reservoirs;
  const unsigned int sharing =
      options.demands / options.reservoirs + (site < options.demands % options.reservoirs ? 1 : 0);
  const double mean = 0.9 * (100.0 + 20.0 * (site % 5)) / sharing / kHm3PerMonthOfOneM3s;  // m³/s
  const auto demand = std::static_pointer_cast<Demand>(
      node(demandKinds()[index % demandKinds().size()].type, {0.3 * site, -0.1 * (1 + index)}));
  link(chain[site], demand, ElementType::artificialLink, 1.2 * mean, 0.0);
  const auto serie = demand->getInputSerie(SerieType::demand);
  PeriodWalker::forEach(scenario->getInterval(), [&](const Date& date) {
    const double season = std::sin(kTwoPi * (date.getMonth() - 1) / 12.0);
    serie->setValue(date, mean * (1.0 + kChainDemandSwing * season));
  });
  GeneratedDemand made;
  made.demand = demand;
  made.site = site;
  demands.push_back(made);
}

// With priorities of their own, the reaches come from the head down, each with its demands
// first and then its reservoir.
void GeneratedProject::prioritiseChain() {
  const auto give = [this](const std::shared_ptr<Element>& element, unsigned int priority,
                           const std::shared_ptr<Serie>& goal) {
    auto own = Scenario::getSettings<PrioritySettings>(element, scenario->getSettingsManager());
    own->setPriority(priority);
    own->copyPriority();
    own->setValueHydrologicalStateSerie(goal);
  };
  unsigned int next = 1;
  for (unsigned int site = 0; site < chain.size(); ++site) {
    for (unsigned int j = 0; j < demands.size(); ++j) {
      if (demands[j].site != site) continue;
      const auto& demand = demands[j].demand;
      give(demand, options.ownPriorities ? next++ : 1 + j % 3,
           demand->getInputSerie(SerieType::demand));
    }
    give(chain[site], options.ownPriorities ? next++ : kChainReservoirPriority,
         chain[site]->getInputSerie(SerieType::targetVolume));
  }
}

// The first sites (about the square root of their number) make the main stem; every later one
// joins the river above a site made before it.
void GeneratedProject::layOutSites() {
  const unsigned int count = options.reservoirs;
  const auto stem = static_cast<unsigned int>(std::max(1.0, std::floor(std::sqrt(count))));
  sites.resize(count);
  sites[0].position = {-40.0, -10.0};
  for (unsigned int i = 0; i < count; ++i) {
    Site& site = sites[i];
    site.incrementalFlow = 5.0 * (1.0 + 7.0 * random.uniform());
    if (i == 0) continue;
    site.parent = static_cast<int>(i < stem ? i - 1 : random.below(i));
    const Site& below = sites[static_cast<std::size_t>(site.parent)];
    site.position = {below.position.x - random.between(0.2, 0.4),
                     below.position.y + random.between(-0.3, 0.3)};
  }
  for (unsigned int i = count; i-- > 0;) {
    sites[i].meanFlow += sites[i].incrementalFlow;
    if (sites[i].parent >= 0) {
      sites[static_cast<std::size_t>(sites[i].parent)].meanFlow += sites[i].meanFlow;
    }
  }
}

// Years of a region: ordinary ones scattered around the mean, and now and then a drought of two
// to five years in which every river runs at a third to two thirds of its mean.
void GeneratedProject::chooseYearFactors() {
  const unsigned int years = (options.periods + 11) / 12;
  unsigned int droughtLeft = 0;
  double severity = 1.0;
  for (unsigned int year = 0; year < years; ++year) {
    if (droughtLeft == 0 && random.uniform() < 0.12) {
      droughtLeft = 2 + random.below(4);
      severity = random.between(0.35, 0.65);
    }
    if (droughtLeft > 0) {
      --droughtLeft;
      regionalYears.push_back(severity * random.between(0.85, 1.15));
    } else {
      regionalYears.push_back(random.between(0.8, 1.3));
    }
  }
}

double GeneratedProject::yearFactor(const Date& date) const {
  return regionalYears.at(date.getYear() - 1901);
}

std::shared_ptr<Node> GeneratedProject::node(ElementType type, const Point2D& position) {
  return CoreServiceManager::createNodeNoDatabase(scenario, type, position, true);
}

std::shared_ptr<Link> GeneratedProject::link(const std::shared_ptr<Node>& up,
                                             const std::shared_ptr<Node>& down, ElementType type,
                                             double limit, double lossPercentage) {
  auto made = CoreServiceManager::createLinkNoDatabase(scenario, type, up, down, true);
  made->getInputSerie(SerieType::linkLimit)->fill(limit);
  made->getInputSerie(SerieType::transitLossPercentage)->fill(lossPercentage);
  return made;
}

void GeneratedProject::makeNodes() {
  for (std::size_t i = 0; i < sites.size(); ++i) {
    Site& site = sites[i];
    const Point2D at = site.position;
    site.reservoir = std::static_pointer_cast<Reservoir>(node(ElementType::reservoir, at));
    site.outlet = node(ElementType::junction, {at.x + 0.05, at.y - 0.02});
    if (site.parent >= 0 && !sites[static_cast<std::size_t>(site.parent)].inlet) {
      const Point2D& below = sites[static_cast<std::size_t>(site.parent)].position;
      sites[static_cast<std::size_t>(site.parent)].inlet =
          node(ElementType::junction, {below.x - 0.06, below.y + 0.02});
    }
  }
  drain = node(ElementType::drain, {sites[0].position.x + 0.4, sites[0].position.y});
}

std::shared_ptr<Node> GeneratedProject::downstreamOf(const Site& site) const {
  return site.parent < 0 ? drain : sites[static_cast<std::size_t>(site.parent)].inlet;
}

// Rivers never reach their limits: twenty times the mean flow carried.
void GeneratedProject::makeRivers() {
  for (Site& site : sites) {
    const double limit = std::max(500.0, 20.0 * site.meanFlow);
    if (site.inlet) {
      link(site.inlet, site.reservoir, ElementType::naturalLink, limit, random.between(0.5, 2.5));
    }
    site.river = link(site.reservoir, site.outlet, ElementType::naturalLink, limit,
                      random.between(0.5, 2.5));
    site.onward = link(site.outlet, downstreamOf(site), ElementType::naturalLink, limit,
                       random.between(0.5, 2.5));
  }
}

// The kinds take turns, so that each is present from four demands on. A quarter of the demands
// of a lake with a release draw from it by their own canal.
void GeneratedProject::makeDemands() {
  for (unsigned int k = 0; k < options.demands; ++k) {
    GeneratedDemand made;
    made.kind = k % static_cast<unsigned int>(demandKinds().size());
    const DemandKind& kind = demandKinds()[made.kind];
    made.site = random.below(options.reservoirs);
    const Site& site = sites[made.site];
    made.meanFlow = site.meanFlow * kind.shareOfRiver * random.between(0.6, 1.4);
    made.returnShare =
        kind.returnHigh > 0.0 ? random.between(kind.returnLow, kind.returnHigh) : 0.0;
    made.fromLake = random.uniform() < 0.25 && ruleKindOf(made.site) != ReleaseRuleType::none;
    const Point2D at = {site.position.x + random.between(-0.05, 0.05),
                        site.position.y - random.between(0.04, 0.12)};
    made.demand = std::static_pointer_cast<Demand>(node(kind.type, at));
    const double peak = made.meanFlow * *std::max_element(kind.season->begin(), kind.season->end());
    made.supply =
        link(made.fromLake ? std::static_pointer_cast<Node>(site.reservoir) : site.outlet,
             made.demand, ElementType::artificialLink, 1.6 * peak, random.between(1.0, 5.0));
    if (made.returnShare > 0.0) {
      made.back = link(made.demand, downstreamOf(site), ElementType::naturalLink,
                       std::max(50.0, 5.0 * made.meanFlow), random.between(2.0, 8.0));
      made.demand->setDemandReturnPercentage(made.back, made.returnShare);
    }
    demands.push_back(made);
  }
}

void GeneratedProject::fillReservoirs() {
  for (Site& site : sites) fillReservoir(site);
}

// A lake holds between three and fifteen months of its mean inflow; each year of its basin
// strays a little from the region's, and months carry some of the last month's anomaly.
void GeneratedProject::fillReservoir(Site& site) {
  ReservoirInfo& info = site.reservoir->getReservoirInfo();
  info.maxVol = std::max(20.0, site.meanFlow * kHm3PerMonthOfOneM3s * random.between(3.0, 15.0));
  info.minVol = info.maxVol * random.between(0.05, 0.2);
  info.initVol = info.maxVol * random.between(0.4, 0.9);
  makeCav(*site.reservoir, info.maxVol);
  const auto inflow = site.reservoir->getInputSerie(SerieType::naturalIncrementalFlow);
  const auto evaporation = site.reservoir->getInputSerie(SerieType::evaporation);
  const auto rain = site.reservoir->getInputSerie(SerieType::precipitation);
  double anomaly = 0.0;
  double localYear = 1.0;
  PeriodWalker::forEach(scenario->getInterval(), [&](const Date& date) {
    if (date.getMonth() == 1) localYear = random.between(0.85, 1.15);
    anomaly = 0.6 * anomaly + 0.25 * random.normal();
    const double year = yearFactor(date) * localYear;
    const double flow = site.incrementalFlow * monthly(kInflowSeason, date) * year;
    inflow->setValue(date, flow * std::max(0.15, 1.0 + anomaly));
    evaporation->setValue(date, monthly(kEvaporation, date) * random.between(0.9, 1.1));
    rain->setValue(date, monthly(kRain, date) * yearFactor(date) * random.between(0.7, 1.3));
  });
}

// A valley whose volume grows as the depth to the power 2.5: the first row is the bottom (no
// area, no volume), the last one a tenth above the capacity. The area is the volume's growth
// per metre, 2.5 V / h (hm³/m = km²).
void GeneratedProject::makeCav(Reservoir& reservoir, double maxVol) {
  const double depth = random.between(15.0, 60.0);                 // m
  const double bottom = std::round(random.between(150.0, 700.0));  // m
  auto& cav = reservoir.getReservoirInfo().cav;
  cav.clear();
  for (unsigned int row = 0; row < kCavRows; ++row) {
    const double fraction = static_cast<double>(row) / (kCavRows - 1);
    const double volume = 1.1 * maxVol * fraction * fraction * std::sqrt(fraction);
    const double height = depth * fraction;
    cav.push_back({bottom + height, row == 0 ? 0.0 : 2.5 * volume / height, volume});
  }
}

void GeneratedProject::fillDemands() {
  for (const GeneratedDemand& made : demands) {
    const DemandKind& kind = demandKinds()[made.kind];
    const auto serie = made.demand->getInputSerie(SerieType::demand);
    PeriodWalker::forEach(scenario->getInterval(), [&](const Date& date) {
      serie->setValue(date, made.meanFlow * monthly(*kind.season, date));
    });
  }
}

// The drain asks for all that reaches it, as every run gives it anyway.
void GeneratedProject::fillDrain() { drain->getInputSerie(SerieType::demand)->fill(99999.0); }

void GeneratedProject::configureRules() {
  const std::vector<double> flows = flowsLeft();
  for (unsigned int i = 0; i < sites.size(); ++i) {
    const double release = flows[i] * random.between(0.55, 0.8);
    giveRule(i, release);
    shareLake(i, release);
    shareOutlet(i);
    if (sites[i].inlet) sendAll(*scenario, sites[i].inlet);
  }
  shareReturns();
}

// The mean flow that reaches each lake once the reaches above have taken their share: what the
// demands consume (all they take but their return), and a tenth lost to evaporation and leaks.
std::vector<double> GeneratedProject::flowsLeft() const {
  std::vector<double> flows(sites.size(), 0.0);
  for (std::size_t i = sites.size(); i-- > 0;) {
    flows[i] += sites[i].incrementalFlow;
    if (sites[i].parent < 0) continue;
    double left = flows[i];
    for (const GeneratedDemand& made : demands) {
      if (made.site == i) left -= made.meanFlow * (1.0 - made.returnShare / 100.0);
    }
    flows[static_cast<std::size_t>(sites[i].parent)] += 0.9 * std::max(0.0, left);
  }
  return flows;
}

// Lakes that a rule looks at: one made before this one (itself for the first), and for the
// rules of a system this lake and up to two below it.
void GeneratedProject::giveRule(unsigned int index, double release) {
  const Site& site = sites[index];
  RuleInputs in;
  in.release = release;
  in.own = site.reservoir;
  in.other = site.reservoir;
  in.interval = scenario->getInterval();
  in.wetness = [this](const Date& date) { return yearFactor(date); };
  if (index > 0) in.other = sites[random.below(index)].reservoir;
  for (int at = static_cast<int>(index); at >= 0 && in.system.size() < 3;
       at = sites[static_cast<std::size_t>(at)].parent) {
    in.system.push_back(sites[static_cast<std::size_t>(at)].reservoir);
  }
  Scenario::getSettings<ReservoirRuleSettings>(site.reservoir, scenario->getSettingsManager())
      ->setRule(ruleCycle()[index % ruleCycle().size()].second(in));
}

std::vector<const GeneratedProject::GeneratedDemand*> GeneratedProject::demandsAt(
    unsigned int site, bool fromLake) const {
  std::vector<const GeneratedDemand*> found;
  for (const GeneratedDemand& made : demands) {
    if (made.site == site && made.fromLake == fromLake) found.push_back(&made);
  }
  return found;
}

double GeneratedProject::meanFlowOf(const std::vector<const GeneratedDemand*>& group) {
  double total = 0.0;
  for (const auto* made : group) total += made->meanFlow;
  return total;
}

// The release first serves the lake's own canals, half of what they ask at the lowest line;
// the river takes the rest.
void GeneratedProject::shareLake(unsigned int index, double release) {
  const Site& site = sites[index];
  const auto canals = demandsAt(index, true);
  if (canals.empty()) {
    sendAll(*scenario, site.reservoir);
    return;
  }
  const double asked = meanFlowOf(canals);
  MatrixRows matrix(site.reservoir, {asked, 3 * asked + release, kAboveAnyFlow});
  for (const auto* made : canals) {
    matrix.add(made->supply, {0.5 * made->meanFlow, made->meanFlow, made->meanFlow});
  }
  matrix.add(site.river, {0.5 * asked, 2 * asked + release, kAboveAnyFlow - asked});
  setMatrix(*scenario, site.reservoir, matrix);
}

// Below the dam the demands take four fifths of what they ask while the river carries no more
// than that, and all of it from three times that on.
void GeneratedProject::shareOutlet(unsigned int index) {
  const Site& site = sites[index];
  const auto canals = demandsAt(index, false);
  if (canals.empty()) {
    sendAll(*scenario, site.outlet);
    return;
  }
  const double asked = meanFlowOf(canals);
  MatrixRows matrix(site.outlet, {0.0, asked, 3 * asked, kAboveAnyFlow});
  for (const auto* made : canals) {
    matrix.add(made->supply, {0.0, 0.8 * made->meanFlow, made->meanFlow, made->meanFlow});
  }
  matrix.add(site.onward, {0.0, 0.2 * asked, 2 * asked, kAboveAnyFlow - asked});
  setMatrix(*scenario, site.outlet, matrix);
}

// A demand sends on its return share of whatever reaches it.
void GeneratedProject::shareReturns() {
  for (const GeneratedDemand& made : demands) {
    if (!made.back) continue;
    MatrixRows matrix(made.demand, {0.0, kAboveAnyFlow});
    matrix.add(made.back, {0.0, kAboveAnyFlow * made.returnShare / 100.0});
    setMatrix(*scenario, made.demand, matrix);
  }
}

// Demands come first, by kind; what a demand returns would reach the demands of the reaches
// below too late if they came before it, so it takes the smallest priority found downstream
// when that is smaller than its own. Reservoirs come after every demand.
void GeneratedProject::configurePriorities() {
  prioritiseDemands();
  prioritiseReservoirs();
}

void GeneratedProject::prioritiseDemands() {
  constexpr unsigned int kNone = std::numeric_limits<unsigned int>::max();
  std::vector<unsigned int> chosen;
  for (const GeneratedDemand& made : demands) {
    const DemandKind& kind = demandKinds()[made.kind];
    chosen.push_back(kind.priority + random.below(kind.priorityRange));
  }
  // Sites come after the site below them, so what lies downstream is settled first.
  std::vector<unsigned int> firstBelow(sites.size(), kNone), firstHere(sites.size(), kNone);
  for (std::size_t i = 0; i < sites.size(); ++i) {
    if (sites[i].parent >= 0) {
      const auto parent = static_cast<std::size_t>(sites[i].parent);
      firstBelow[i] = std::min(firstBelow[parent], firstHere[parent]);
    }
    for (std::size_t k = 0; k < demands.size(); ++k) {
      if (demands[k].site != i) continue;
      if (demands[k].back) chosen[k] = std::min(chosen[k], firstBelow[i]);
      firstHere[i] = std::min(firstHere[i], chosen[k]);
    }
  }
  for (std::size_t k = 0; k < demands.size(); ++k) {
    auto own =
        Scenario::getSettings<PrioritySettings>(demands[k].demand, scenario->getSettingsManager());
    own->setPriority(chosen[k]);
    own->copyPriority();
    own->setValueHydrologicalStateSerie(demands[k].demand->getInputSerie(SerieType::demand));
  }
}

// Targets stay above the minimum volume, fuller after the rains.
void GeneratedProject::prioritiseReservoirs() {
  for (Site& site : sites) {
    const ReservoirInfo& info = site.reservoir->getReservoirInfo();
    const double lowest = info.minVol / info.maxVol + 0.05;
    const double mean = random.between(0.55, 0.75);
    const double swing = random.between(0.5, 1.0);
    const auto target = site.reservoir->getInputSerie(SerieType::targetVolume);
    PeriodWalker::forEach(scenario->getInterval(), [&](const Date& date) {
      target->setValue(date, std::clamp(mean + swing * monthly(kTargetSeason, date), lowest, 1.0));
    });
    auto own =
        Scenario::getSettings<PrioritySettings>(site.reservoir, scenario->getSettingsManager());
    own->setPriority(kReservoirPriority + random.below(kReservoirPriorityLevels));
    own->copyPriority();
    own->setValueHydrologicalStateSerie(target);
  }
}
