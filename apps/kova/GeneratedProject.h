#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include "common/Point2D.h"
#include "core/Demand.h"
#include "core/Link.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"

// How a generated scenario is operated.
enum class GeneratedMode { rule, priority };

// The shape of a generated network: a basin of tributaries, or one river of lakes in a row.
enum class GeneratedLayout { tree, chain };

// What to generate.
struct GeneratedProjectOptions {
  unsigned int reservoirs = 5;
  unsigned int demands = 10;
  unsigned int periods = 1200;  // months, from January 1901
  GeneratedMode mode = GeneratedMode::rule;
  std::uint64_t seed = 1;
  GeneratedLayout layout = GeneratedLayout::tree;
  // In a chain: every reservoir and demand a priority of its own, upstream first.
  bool ownPriorities = false;
};

// A synthetic but plausible river basin, for benchmarks and for trying the program out.
//
// The reservoirs stand in a tree: the first ones form the main stem, each later one joins the
// river above a reservoir already placed, so tributaries branch off the stem and off each other.
// Below each dam an outlet junction serves the demands of that reach and passes the rest down to
// the confluence above the next reservoir; the last outlet reaches the drain at the mouth. Some
// demands draw straight from a lake. Human and industrial demands return a share of what they
// take to the confluence below them (or the drain). Rivers are natural links with small losses
// and limits far above any flood; supply canals are artificial links with larger losses, sized
// at 1.6 times their demand's peak.
//
// Inflows are monthly: a seasonal pattern of a wet summer, a regional sequence of years in which
// multi-year droughts cut every river at once, and a local persistent noise. Evaporation and
// rain follow the seasons. In rule mode every reservoir gets a release rule (the nine kinds
// take turns) and every node with a way out an allocation matrix; in priority mode demands take
// priorities by kind (a demand that returns water never comes after what lies below it) and
// reservoirs seasonal target volumes at lower priorities.
//
// The chain layout is the benchmark network of priority runs: reservoir i (from 0, at the head)
// flows into reservoir i + 1 by a natural link and the last one into the drain. Reservoir i has a
// mean natural inflow m = 100 + 20 (i mod 5) hm³ a month (seasonal, in a seven-year cycle, with
// noise, never negative), holds up to 6 m, at least a tenth of that, starts half full and has no
// evaporation or rain. Demand j draws from reservoir j mod N through a canal of capacity 1.2 d,
// d being 0.9 m shared among the demands of that reservoir, ±30 % with the seasons. Demands take
// priorities 1 + (j mod 3) and the reservoirs 4, after them; with ownPriorities each reach, from
// the head down, gives its demands and then its reservoir the next priority.
//
// The random numbers are the raw output of std::mt19937_64, turned into numbers here with
// arithmetic alone, so that one seed gives one project on every platform.
class GeneratedProject {
 public:
  using Options = GeneratedProjectOptions;

  // The scenario (not yet in the ScenarioManager). Throws std::invalid_argument
  // "GeneratedProject::make(): at least one reservoir", "... at least one period",
  // "... a chain is operated by priorities", "... priorities of their own only in a chain" or
  // "... at most 98 reservoirs and demands with priorities of their own".
  [[nodiscard]] static std::shared_ptr<Scenario> make(const Options& options);

 private:
  // A reach of the river: the lake, the junction below its dam and the confluence above it.
  struct Site {
    std::shared_ptr<Reservoir> reservoir;
    std::shared_ptr<Node> outlet;
    std::shared_ptr<Node> inlet;   // null for a headwater lake
    std::shared_ptr<Link> river;   // the natural link from the dam to the outlet
    std::shared_ptr<Link> onward;  // the natural link from the outlet downstream
    int parent = -1;               // the site downstream, -1 at the mouth
    double incrementalFlow = 0.0;  // m³/s, mean natural inflow of the lake's own basin
    double meanFlow = 0.0;         // m³/s, mean natural flow at the dam, tributaries included
    Point2D position;
  };
  struct GeneratedDemand {
    std::shared_ptr<Demand> demand;
    std::shared_ptr<Link> supply;  // from the lake or from the outlet
    std::shared_ptr<Link> back;    // the return, or null
    unsigned int site = 0;
    unsigned int kind = 0;     // the demand's place in the table of kinds
    double meanFlow = 0.0;     // m³/s
    double returnShare = 0.0;  // %
    bool fromLake = false;
  };
  // Uniform numbers from the engine's raw 64 bits.
  class Random {
   public:
    explicit Random(std::uint64_t seed) : engine(seed) {}
    double uniform();  // [0, 1)
    double between(double low, double high);
    unsigned int below(unsigned int count);  // 0 .. count - 1
    double normal();                         // mean 0, deviation 1 (sum of twelve uniforms)

   private:
    std::mt19937_64 engine;
  };

  explicit GeneratedProject(const Options& options);

  void makeScenario();
  void makeChain();
  void makeChainReservoir(unsigned int index);
  void makeChainDemand(unsigned int index);
  void prioritiseChain();
  void layOutSites();
  void chooseYearFactors();
  void makeNodes();
  void makeRivers();
  void makeDemands();
  void fillReservoirs();
  void fillDemands();
  void fillDrain();
  void configureRules();
  std::vector<double> flowsLeft() const;  // m³/s, by site
  void giveRule(unsigned int site, double release);
  void shareLake(unsigned int site, double release);
  void shareOutlet(unsigned int site);
  void shareReturns();
  void configurePriorities();
  void prioritiseDemands();
  void prioritiseReservoirs();

  std::shared_ptr<Node> node(ElementType type, const Point2D& position);
  std::shared_ptr<Link> link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down,
                             ElementType type, double limit, double lossPercentage);
  // Where a site's demands and its outlet send water down: the next confluence, or the drain.
  std::shared_ptr<Node> downstreamOf(const Site& site) const;
  void fillReservoir(Site& site);
  void makeCav(Reservoir& reservoir, double maxVol);
  double yearFactor(const Date& date) const;
  // The demands of a site that draw from its lake, or from its outlet.
  std::vector<const GeneratedDemand*> demandsAt(unsigned int site, bool fromLake) const;
  static double meanFlowOf(const std::vector<const GeneratedDemand*>& group);  // m³/s

  const Options options;
  Random random;
  std::shared_ptr<Scenario> scenario;
  std::vector<Site> sites;
  std::vector<GeneratedDemand> demands;
  std::shared_ptr<Node> drain;
  std::vector<double> regionalYears;  // factor of the inflows of each year
  std::vector<std::shared_ptr<Reservoir>> chain;  // in a chain, from the head down
};
