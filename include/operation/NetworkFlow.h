#pragma once

// The network-flow model of one date of a priority run.
//
// The network is not solved as one weighted programme but as a chain of linear programmes, one
// per distinct priority of the date, smallest number first; after each solution what that
// priority obtained is pinned, so that a later pass may only use what is left. The weights of the
// objective matter within a pass and against the penalties, never across passes.
//
// Variables, all volumes of the period in hm³ and all at least 0:
//   "R1_D2"          the water a link takes at its source (source and target by letter and id);
//   "R1_volGoal"     what a reservoir keeps above its minimum volume;
//   "R1_s"           what a reservoir misses of its minimum volume (supply slack);
//   "R1_D2_s"        a slack beside each link;
//   "D2_J3_drs"      the return water of a demand that is not sent down that link.
// The objective, maximised, weighs each demand's incoming links and each reservoir's goal by
// 10,000,000 - 100,000 * priority, every slack by -100,000,000, each return slack by +1.
//
// Rows, named "r_0", "r_1", ... in the order they are made, in nine families:
//   1. supply: a reservoir's releases plus its goal minus what arrives through its incoming links
//      is at most what it holds above its minimum after rain, evaporation and natural inflow;
//   2. supply slack: where that is negative, "R1_s" widens row 1, itself at most the shortfall;
//   3. goal: in the reservoir's own pass at most its target above the minimum, otherwise exactly
//      what the earlier passes gave it (0 before its pass);
//   4. demand: in its own pass what arrives is at most the demand, otherwise the sum of its links
//      is exactly what earlier passes gave them;
//   5. return: each return link carries its share of what arrived, less its return slack;
//   6. junction: what leaves equals what arrives;
//   7. link slack: each link plus its slack is at least 0;
//   8. maximum release of a reservoir through its artificial links;
//   9. link limits of the links leaving reservoirs and junctions, as column bounds.
// Basins have no row: a link leaving a basin is limited only by what it feeds. lp_solve receives
// every column bound as a row of its own, except for goals and slacks, which rest on its default
// bounds; CLP receives the same bounds as bounds (LpSolveSolver, ClpSolver).
//
// A pass without an optimal solution means the pinned values of earlier passes, the demands and
// the limits cannot all hold on that date: NetflowOptimalException, with no relaxation or retry.
// The flows of the date are those of the last pass, which holds every link.

#include <exception>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"
#include "core/Link.h"
#include "core/SettingsManager.h"
#include "hydrology/HydrologicalBalance.h"
#include "operation/HydrologicalStateCalculator.h"
#include "operation/KLPKRepresentation.h"
#include "operation/KLPKUtils.h"

class NetworkFlow {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;

  // The terms of a row being built, from position 1; position 0 is a placeholder.
  struct RowVectors {
    std::vector<double> coefs = {1.0};
    std::vector<int> indexes = {0};

    void add(int column, double coefficient) {
      indexes.push_back(column);
      coefs.push_back(coefficient);
    }
    int count() const { return static_cast<int>(indexes.size()) - 1; }
  };

  // The priority under which a column was put in the map and its solved volume, hm³.
  struct PriorityRecord {
    unsigned int priority = 0;
    double value = 0.0;
  };
  using MapOfPriority = std::map<std::string, PriorityRecord>;

  // How the name of a slack column is made: the column's name, separator, slack ("R1_s").
  static constexpr const char* separator = "_";
  static constexpr const char* slack = "s";

  class NetflowOptimalException : public std::exception {
   public:
    const char* what() const noexcept override { return "It did not found a valid solution"; }
  };

  // The model of date in a run over interval (window windowIndex). Throws std::invalid_argument
  // "Error on creating GLPK problem." when the programme cannot be made.
  NetworkFlow(const SettingsManager& settingsManager, const Date& date, const Interval& interval,
              const std::shared_ptr<HydrologicalStateCalculator>& hydrologicalStateCalculator,
              unsigned int windowIndex);
  virtual ~NetworkFlow();
  NetworkFlow(const NetworkFlow&) = delete;
  NetworkFlow& operator=(const NetworkFlow&) = delete;

  // The distinct priorities of the enabled reservoirs and demands at the date, ascending.
  std::vector<unsigned int> makePriorities(const Elements& elements) const;
  // One record per link touching an enabled reservoir or demand and per reservoir goal, with
  // that element's priority and volume 0.0.
  MapOfPriority makeMapOfPriority(const Elements& elements) const;
  // Builds the programme of the pass of priority, pinning the volumes of map. Throws
  // std::invalid_argument "Invalid serie type!" for a link without a limit series.
  void createModel(const Elements& elements, const MapOfPriority& map, unsigned int priority,
                   bool zeroContribution);
  // Solves the programme with the solver of the configuration, or with the one taken over from
  // the date before: true, or NetflowOptimalException without an optimal solution.
  bool executeModel();
  // Write the programme / its solution to getModelFilename() / getModelSolutionFilename() when
  // the configuration keeps simulation files; otherwise nothing.
  void writeModel(unsigned int priority) const;
  void writeSolution(unsigned int priority) const;
  // Stores the solved volume of each column of the map that the programme holds, hm³.
  void updateMapOfPriority(MapOfPriority& map) const;
  // The flow of the link after the last pass, m³/s, never negative; 0.0 for a link the programme
  // does not hold.
  double releaseLinkValue(const std::shared_ptr<Link>& link) const;
  // The objective weight of a priority: 10,000,000 - 100,000 * priority, in unsigned 32-bit
  // arithmetic (0 for priority 100).
  double priority(unsigned int value) const;

  // "<priority>-zonebased-model-<dd-mm-yyyy>.txt" / "...-zonebased-solution-..." in the folder
  // for working files.
  static std::string getModelFilename(unsigned int priority, const Date& date);
  static std::string getModelSolutionFilename(unsigned int priority, const Date& date);

  // The programme of the last pass.
  const KLPKRepresentation& getProblem() const { return *problem; }
  // Takes over the solver, and the model it keeps, of the network flow of the previous date, so
  // that this date's passes reuse it where their programmes have its shape.
  void adoptSolverModel(NetworkFlow& previous);

 protected:
  // The value of a junction's row, to which terms may be added first; 0.0 here.
  virtual double getJunctionSubjectValue(const std::shared_ptr<Element>& junction, RowVectors& row);
  KLPKRepresentation* getMutableProblem() { return problem; }
  const Date& getDate() const { return date; }
  // A flow of the date as a volume, hm³.
  double hm3(double flow) const { return hydrologicalBalance->hm3(date, flow); }

 private:
  unsigned int priorityOf(const std::shared_ptr<Element>& element) const;
  // The links of a node as columns, made once for the date: which links carry water and what
  // they lose do not change within a date, while every pass asks for them several times.
  const std::vector<VariableInfo>& upstreamOf(const std::shared_ptr<Element>& element);
  const std::vector<VariableInfo>& downstreamOf(const std::shared_ptr<Element>& element);
  void addRow(int row, const RowVectors& terms);

  void initProblem();
  void makeObjectiveFunctionDemand(const Elements& demands);
  void makeObjectiveFunctionReservoir(const Elements& reservoirs);
  void makeSupplySubjects(const Elements& reservoirs, bool zeroContribution);
  void makeReservoirSubjects(const Elements& reservoirs, const MapOfPriority& map,
                             unsigned int pass);
  void makeDemandSubjects(const Elements& demands, const MapOfPriority& map, unsigned int pass);
  void makeDemandReturnSubjects(const std::shared_ptr<Element>& demand,
                                const std::vector<VariableInfo>& upstream);
  void makeJunctionSubjects(const Elements& junctions);
  void makeReservoirMaxReleaseSubject(const Elements& reservoirs);
  void makeLinkMinMaxSlackSubject(const Elements& nodes);
  void makeBoundSubjects(const Elements& nodes);

  KLPKRepresentation* problem;
  bool solverChosen = false;
  std::shared_ptr<HydrologicalBalance> hydrologicalBalance;
  std::shared_ptr<HydrologicalStateCalculator> hydrologicalStateCalculator;
  const SettingsManager* settingsManager;
  Date date;
  Interval interval;
  unsigned int windowIndex;
  std::unordered_map<const Element*, std::vector<VariableInfo>> upstreamVariables;
  std::unordered_map<const Element*, std::vector<VariableInfo>> downstreamVariables;
};
