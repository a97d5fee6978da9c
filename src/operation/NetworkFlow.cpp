#include "operation/NetworkFlow.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "common/StringUtils.h"
#include "core/ConfigurationHeader.h"
#include "core/Demand.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/PrioritySettings.h"
#include "core/Reservoir.h"
#include "core/ReservoirOperationUtils.h"
#include "core/Scenario.h"
#include "operation/LinearProgramSolverFactory.h"
#include "operation/PriorityCalculator.h"
#include "operation/ReservoirHydrologicalStateCalculator.h"

namespace {

constexpr double kTolerance = 1e-06;
constexpr double kSlackPenalty = -100000000.0;
constexpr double kReturnReward = 1.0;
constexpr double kReturnCap = 99999.0;  // m³/s
constexpr int kMaximise = 2;

std::shared_ptr<Reservoir> asReservoir(const std::shared_ptr<Element>& element) {
  return std::static_pointer_cast<Reservoir>(element);
}

std::string goalName(const std::shared_ptr<Element>& reservoir) {
  return KLPKUtils::oneVar(reservoir) + "_volGoal";
}

std::string fileName(unsigned int priority, const char* kind, const Date& date) {
  return StringUtils::getFolderToSaveGenericFile(std::to_string(priority) + kind +
                                                 date.toString("%d-%m-%Y") + ".txt");
}

}  // namespace

NetworkFlow::NetworkFlow(const SettingsManager& settingsManager, const Date& date,
                         const Interval& interval,
                         const std::shared_ptr<HydrologicalStateCalculator>& calculator,
                         unsigned int windowIndex)
    : problem(KLPKUtils::slp_create_prob()),
      hydrologicalBalance(HydrologicalBalanceFactory::make(interval.getPeriodicity().getType())),
      hydrologicalStateCalculator(calculator),
      settingsManager(&settingsManager),
      date(date),
      interval(interval),
      windowIndex(windowIndex) {
  if (problem == nullptr) throw std::invalid_argument("Error on creating GLPK problem.");
  KLPKUtils::slp_term_out(problem, KLPKRepresentation::KLPK_OFF);
}

NetworkFlow::~NetworkFlow() { KLPKUtils::slp_delete_prob(problem); }

double NetworkFlow::priority(unsigned int value) const {
  return static_cast<double>(static_cast<uint32_t>(10000000u - 100000u * value));
}

unsigned int NetworkFlow::priorityOf(const std::shared_ptr<Element>& element) const {
  return PriorityCalculator::getPriority(
      element, Scenario::getSettings<PrioritySettings>(element, *settingsManager),
      hydrologicalStateCalculator, element->getType(), interval, date, windowIndex);
}

const std::vector<VariableInfo>& NetworkFlow::upstreamOf(const std::shared_ptr<Element>& element) {
  auto found = upstreamVariables.find(element.get());
  if (found == upstreamVariables.end()) {
    found = upstreamVariables.emplace(element.get(), KLPKUtils::makeUpstreamVariables(element, date))
                .first;
  }
  return found->second;
}

const std::vector<VariableInfo>& NetworkFlow::downstreamOf(
    const std::shared_ptr<Element>& element) {
  auto found = downstreamVariables.find(element.get());
  if (found == downstreamVariables.end()) {
    found =
        downstreamVariables.emplace(element.get(), KLPKUtils::makeDownstreamVariables(element)).first;
  }
  return found->second;
}

std::vector<unsigned int> NetworkFlow::makePriorities(const Elements& elements) const {
  std::set<unsigned int> priorities;
  for (const auto& element :
       ElementsFilter::filterByType(elements, ElementSets::demandsWithReservoir())) {
    if (element->isEnabled()) priorities.insert(priorityOf(element));
  }
  return {priorities.begin(), priorities.end()};
}

NetworkFlow::MapOfPriority NetworkFlow::makeMapOfPriority(const Elements& elements) const {
  MapOfPriority map;
  for (const auto& element :
       ElementsFilter::filterByType(elements, ElementSets::demandsWithReservoir())) {
    if (!element->isEnabled()) continue;
    const unsigned int value = priorityOf(element);
    const auto node = std::static_pointer_cast<Node>(element);
    for (const auto& link : node->getDownstreamLinks()) {
      map[KLPKUtils::twoVar(link->getUpstream(), link->getDownstream())] = {value, 0.0};
    }
    for (const auto& link : node->getUpstreamLinks()) {
      map[KLPKUtils::twoVar(link->getUpstream(), link->getDownstream())] = {value, 0.0};
    }
    if (element->getType() == ElementType::reservoir) map[goalName(element)] = {value, 0.0};
  }
  return map;
}

void NetworkFlow::createModel(const Elements& elements, const MapOfPriority& map, unsigned int pass,
                              bool zeroContribution) {
  initProblem();
  const Elements demands = ElementsFilter::filterByType(elements, ElementSets::demands());
  const Elements reservoirs = ElementsFilter::filterByType(elements, ElementSets::reservoir());
  const Elements junctions = ElementsFilter::filterByType(elements, ElementSets::junction());
  makeObjectiveFunctionDemand(demands);
  makeObjectiveFunctionReservoir(reservoirs);
  makeSupplySubjects(reservoirs, zeroContribution);
  makeReservoirSubjects(reservoirs, map, pass);
  makeDemandSubjects(demands, map, pass);
  makeJunctionSubjects(junctions);
  makeReservoirMaxReleaseSubject(reservoirs);
  makeLinkMinMaxSlackSubject(ElementsFilter::filterByNodesElements(elements));
  // Bounds come last: a later lowColValue() on a bounded column would drop its upper bound.
  makeBoundSubjects(reservoirs);
  makeBoundSubjects(junctions);
}

bool NetworkFlow::executeModel() {
  if (!solverChosen) {
    problem->useSolver(
        LinearProgramSolverFactory::make(ConfigurationHeader::getLinearProgramSolver()));
    solverChosen = true;
  }
  if (KLPKUtils::slp_simplex(problem) != 0) throw NetflowOptimalException();
  return true;
}

void NetworkFlow::adoptSolverModel(NetworkFlow& previous) {
  if (!previous.solverChosen) return;
  problem->adoptKeptModel(*previous.problem);
  solverChosen = true;
}

void NetworkFlow::writeModel(unsigned int value) const {
  if (!ConfigurationHeader::getKeepTheSimulationFilesAfterExecution()) return;
  KLPKUtils::slp_write_lp(problem, getModelFilename(value, date));
}

void NetworkFlow::writeSolution(unsigned int value) const {
  if (!ConfigurationHeader::getKeepTheSimulationFilesAfterExecution()) return;
  KLPKUtils::slp_print_sol(problem, getModelSolutionFilename(value, date));
}

void NetworkFlow::updateMapOfPriority(MapOfPriority& map) const {
  for (auto& [name, record] : map) {
    const int column = KLPKUtils::slp_find_col(problem, name);
    if (column >= 0) record.value = KLPKUtils::slp_get_col_prim(problem, column);
  }
}

double NetworkFlow::releaseLinkValue(const std::shared_ptr<Link>& link) const {
  const int column = KLPKUtils::slp_find_col(
      problem, KLPKUtils::twoVar(link->getUpstream(), link->getDownstream()));
  if (column < 0) return 0.0;
  const double volume = std::max(0.0, KLPKUtils::slp_get_col_prim(problem, column));
  return hydrologicalBalance->m3s(date, volume);
}

std::string NetworkFlow::getModelFilename(unsigned int value, const Date& when) {
  return fileName(value, "-zonebased-model-", when);
}

std::string NetworkFlow::getModelSolutionFilename(unsigned int value, const Date& when) {
  return fileName(value, "-zonebased-solution-", when);
}

double NetworkFlow::getJunctionSubjectValue(const std::shared_ptr<Element>&, RowVectors&) {
  return 0.0;
}

void NetworkFlow::addRow(int row, const RowVectors& terms) {
  KLPKUtils::slp_set_mat_row(problem, row, terms.count(), terms.indexes.data(), terms.coefs.data());
}

void NetworkFlow::initProblem() {
  KLPKUtils::sglp_erase_prob(problem);
  KLPKUtils::slp_set_prob_name(problem, "NetworkFlow");
  KLPKUtils::slp_set_obj_dir(problem, kMaximise);
}

void NetworkFlow::makeObjectiveFunctionDemand(const Elements& demands) {
  for (const auto& demand : demands) {
    if (!demand->isEnabled()) continue;
    const double weight = priority(priorityOf(demand));
    for (const auto& variable : upstreamOf(demand)) {
      KLPKUtils::slp_set_obj_coef(problem, KLPKUtils::lowColValue(problem, variable.name, 0.0),
                                  weight);
    }
  }
}

void NetworkFlow::makeObjectiveFunctionReservoir(const Elements& reservoirs) {
  for (const auto& reservoir : reservoirs) {
    if (!reservoir->isEnabled()) continue;
    KLPKUtils::slp_set_obj_coef(problem, KLPKUtils::lowColValue(problem, goalName(reservoir), 0.0),
                                priority(priorityOf(reservoir)));
  }
}

// What the reservoir holds above its minimum once rain, evaporation and natural inflow are in;
// a shortfall opens a slack, whose own row comes first.
void NetworkFlow::makeSupplySubjects(const Elements& reservoirs, bool zeroContribution) {
  for (const auto& element : reservoirs) {
    if (!element->isEnabled()) continue;
    const auto reservoir = asReservoir(element);
    const double stored =
        ReservoirOperationUtils::currentReservoirVolume(reservoir, interval, date, windowIndex);
    const double available =
        hydrologicalBalance->balance(reservoir, date, stored, zeroContribution, 0.0, 0.0);
    const double aboveMinimum = NumericalUtils::subtractDoubles(
        available, reservoir->getReservoirInfo().minVol, kTolerance);

    RowVectors row;
    for (const auto& variable : downstreamOf(reservoir)) {
      row.add(KLPKUtils::lowColValue(problem, variable.name, 0.0), 1.0);
    }
    row.add(KLPKUtils::lowColValue(problem, goalName(reservoir), 0.0), 1.0);
    for (const auto& variable : upstreamOf(reservoir)) {
      row.add(KLPKUtils::lowColValue(problem, variable.name, 0.0), -variable.coefficient);
    }
    if (NumericalUtils::subtractDoubles(aboveMinimum, 0.0, kTolerance) < 0.0) {
      const int slack = KLPKUtils::lowColValue(problem, KLPKUtils::oneVar(reservoir) + "_s", 0.0);
      KLPKUtils::slp_set_obj_coef(problem, slack, kSlackPenalty);
      RowVectors slackRow;
      slackRow.add(slack, 1.0);
      addRow(KLPKUtils::upRowValue(problem, KLPKUtils::subject(problem), -aboveMinimum), slackRow);
      row.add(slack, -1.0);
    }
    addRow(KLPKUtils::upRowValue(problem, KLPKUtils::subject(problem), aboveMinimum), row);
  }
}

void NetworkFlow::makeReservoirSubjects(const Elements& reservoirs, const MapOfPriority& map,
                                        unsigned int pass) {
  for (const auto& element : reservoirs) {
    if (!element->isEnabled()) continue;
    const auto reservoir = asReservoir(element);
    const std::string name = goalName(reservoir);
    RowVectors row;
    row.add(KLPKUtils::lowColValue(problem, name, 0.0), 1.0);
    int index;
    if (priorityOf(reservoir) == pass) {
      const ReservoirInfo& info = reservoir->getReservoirInfo();
      const double goal =
          ReservoirHydrologicalStateCalculator::getTargetVolume(
              reservoir, Scenario::getSettings<PrioritySettings>(reservoir, *settingsManager),
              hydrologicalStateCalculator, interval, date, windowIndex)
              ->getValue(date);
      index = KLPKUtils::upRowValue(problem, KLPKUtils::subject(problem),
                                    std::max(0.0, goal * info.maxVol - info.minVol));
    } else {
      auto it = map.find(name);
      index = KLPKUtils::assignRowValue(problem, KLPKUtils::subject(problem),
                                        it == map.end() ? 0.0 : it->second.value);
    }
    addRow(index, row);
  }
}

// A demand whose pass has not come is held at zero; one whose pass has gone keeps its total but
// may draw it through other links.
void NetworkFlow::makeDemandSubjects(const Elements& demands, const MapOfPriority& map,
                                     unsigned int pass) {
  for (const auto& demand : demands) {
    if (!demand->isEnabled()) continue;
    const std::vector<VariableInfo>& upstream = upstreamOf(demand);
    const bool ownPass = priorityOf(demand) == pass;
    RowVectors row;
    double pinned = 0.0;
    for (const auto& variable : upstream) {
      row.add(KLPKUtils::lowColValue(problem, variable.name, 0.0),
              ownPass ? variable.coefficient : 1.0);
      auto it = map.find(variable.name);
      if (it != map.end()) pinned += it->second.value;
    }
    int index;
    if (ownPass) {
      const double target =
          ReservoirHydrologicalStateCalculator::getWaterDemand(
              demand, Scenario::getSettings<PrioritySettings>(demand, *settingsManager),
              hydrologicalStateCalculator)
              ->getValue(date);
      index = KLPKUtils::upRowValue(problem, KLPKUtils::subject(problem), hm3(target));
    } else {
      index = KLPKUtils::assignRowValue(problem, KLPKUtils::subject(problem), pinned);
    }
    addRow(index, row);
    if (std::static_pointer_cast<Demand>(demand)->hasDemandReturn()) {
      makeDemandReturnSubjects(demand, upstream);
    }
  }
}

// Each return link carries its share of the demand's inflow, less what its return slack keeps
// back; the slack is capped and slightly rewarded.
void NetworkFlow::makeDemandReturnSubjects(const std::shared_ptr<Element>& element,
                                           const std::vector<VariableInfo>& upstream) {
  const auto demand = std::static_pointer_cast<Demand>(element);
  for (const auto& returned : downstreamOf(demand)) {
    const double share = demand->getDemandReturnPercentage(returned.link) / 100.0;
    RowVectors row;
    row.add(KLPKUtils::lowColValue(problem, returned.name, 0.0), 1.0);
    for (const auto& variable : upstream) {
      row.add(KLPKUtils::lowColValue(problem, variable.name, 0.0), -share * variable.coefficient);
    }
    const int slack = KLPKUtils::lowColValue(problem, returned.name + "_drs", 0.0);
    KLPKUtils::slp_set_obj_coef(problem, slack, kReturnReward);
    row.add(slack, 1.0);
    addRow(KLPKUtils::assignRowValue(problem, KLPKUtils::subject(problem), 0.0), row);
    RowVectors cap;
    cap.add(slack, 1.0);
    addRow(KLPKUtils::upRowValue(problem, KLPKUtils::subject(problem), hm3(kReturnCap)), cap);
  }
}

void NetworkFlow::makeJunctionSubjects(const Elements& junctions) {
  for (const auto& junction : junctions) {
    if (!junction->isEnabled()) continue;
    const auto& downstream = downstreamOf(junction);
    const auto& upstream = upstreamOf(junction);
    if (downstream.empty() && upstream.empty()) continue;
    RowVectors row;
    for (const auto& variable : downstream) {
      row.add(KLPKUtils::lowColValue(problem, variable.name, 0.0), 1.0);
    }
    for (const auto& variable : upstream) {
      row.add(KLPKUtils::lowColValue(problem, variable.name, 0.0), -variable.coefficient);
    }
    const double value = getJunctionSubjectValue(junction, row);
    addRow(KLPKUtils::assignRowValue(problem, KLPKUtils::subject(problem), value), row);
  }
}

// Natural links are not limited here: they take the spill.
void NetworkFlow::makeReservoirMaxReleaseSubject(const Elements& reservoirs) {
  for (const auto& element : reservoirs) {
    if (!element->isEnabled()) continue;
    const auto reservoir = asReservoir(element);
    RowVectors row;
    for (const auto& variable : downstreamOf(reservoir)) {
      if (variable.link->getType() != ElementType::artificialLink) continue;
      row.add(KLPKUtils::lowColValue(problem, variable.name, 0.0), 1.0);
    }
    if (row.count() == 0) continue;
    const ReservoirInfo& info = reservoir->getReservoirInfo();
    const double limit = std::min(hm3(info.maxRelease), NumericalUtils::subtractDoubles(
                                                            info.maxVol, info.minVol, kTolerance));
    addRow(KLPKUtils::upRowValue(problem, KLPKUtils::subject(problem), limit), row);
  }
}

// Links have no minimum flow: the rows only keep every link, with its slack, in every pass.
void NetworkFlow::makeLinkMinMaxSlackSubject(const Elements& nodes) {
  for (const auto& node : nodes) {
    if (!node->isEnabled()) continue;
    for (const auto& variable : downstreamOf(node)) {
      RowVectors row;
      row.add(KLPKUtils::lowColValue(problem, variable.name, 0.0), 1.0);
      const int slack = KLPKUtils::lowColValue(problem, variable.name + "_s", 0.0);
      KLPKUtils::slp_set_obj_coef(problem, slack, kSlackPenalty);
      row.add(slack, 1.0);
      addRow(KLPKUtils::lowRowValue(problem, KLPKUtils::subject(problem), 0.0), row);
    }
  }
}

void NetworkFlow::makeBoundSubjects(const Elements& nodes) {
  for (const auto& node : nodes) {
    if (!node->isEnabled()) continue;
    for (const auto& variable : downstreamOf(node)) {
      const double limit = variable.link->getInputSerie(SerieType::linkLimit)->getValue(date);
      KLPKUtils::doubleBounded(problem, variable.name, 0.0, hm3(limit));
    }
  }
}
