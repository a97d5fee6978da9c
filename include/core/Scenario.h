#pragma once

#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/Interval.h"
#include "core/Element.h"
#include "core/SettingsManager.h"
#include "vocabulary/Enum.h"

class ExecutionMethod;
class HydrologicalStateConfiguration;
class Link;
class OperationSystem;
class SceneryCheck;

// One way of operating the network over an interval. A scenario owns its elements, the settings
// of each, its execution method and the operation of its last run. run() prepares the elements,
// validates, creates empty results, and hands an operation system to the execution method,
// which walks the dates. Its outcome is the scenario's status.
//
// The check and the operation system of a run belong to floors above this one; each kind of
// scenario makes them (makeSceneryCheck, getOperationSystem) and runs its check
// (passesSceneryCheck), so the model itself never includes them.
class Scenario : public std::enable_shared_from_this<Scenario> {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;
  using Progress = std::function<bool(long, long)>;
  // A background layer: a shape file's name and its full path.
  struct PathInfo {
    std::string filename;
    std::string fullpath;
  };

  Scenario(const std::shared_ptr<ExecutionMethod>& executionMethod, unsigned int id,
           const Interval& interval, const std::string& name);
  virtual ~Scenario() = default;

  virtual Enum<ScenarioType> getScenarioType() const = 0;

  // Adds element with the next free id (renamed "<type name><id>" when rename is true), makes
  // its settings and gives its series the scenario's interval.
  virtual void addElement(const std::shared_ptr<Element>& element, bool rename);
  // As above with a given id; later ids stay above it.
  virtual void addElement(const std::shared_ptr<Element>& element, bool rename, unsigned int id);
  // Detaches and removes the element with id and its settings. Throws std::invalid_argument
  // "Scenario::removeElement(): invalid elementId" for an unknown id.
  virtual void removeElement(unsigned int id);
  // Completes an element once it is attached to the network (links to their nodes).
  virtual void posAddElement(const std::shared_ptr<Element>& element, bool rename);
  void addElements(const Elements& newElements, bool rename);
  void addElementsKeepingIDs(const Elements& newElements, bool rename);

  // Runs the scenario; false when it was refused by its checks, cancelled or stopped by a loop.
  // Results of a refused run are left as they were; those of a cancelled run are dropped.
  virtual bool run(const Progress& progress);
  // Runs the scenario piece by piece, one piece per isolated reservoir and one for the rest,
  // handing the flows of the union links from piece to piece, and copies the pieces' results
  // back; false when it was refused, a piece failed its check or the run was cancelled (the
  // pieces already run keep their results). This kind of scenario has no such run: it is
  // refused with status 0.
  virtual bool runIsolated(const Progress& progress);
  // The operation system of a piece of an isolated run whose flows are those of the isolated
  // data of the scenario with id isolatedScenarioId. Throws std::logic_error for a kind of
  // scenario that has none.
  virtual std::shared_ptr<OperationSystem> getIsolatedOperationSystem(
      unsigned int isolatedScenarioId);
  // Takes copies of the results of the piece's elements, except the virtual ones (union
  // junctions and the elements this scenario does not have).
  void copyResultsFromIsolatedScenery(const std::shared_ptr<Scenario>& piece);
  // Unmarks every isolated reservoir and union link.
  void cleanIsolatedConfigurations();
  // The links of the last split into isolated networks.
  const std::vector<std::shared_ptr<Link>>& getUnionLinks() const { return unionLinks; }
  void addUnionLink(const std::shared_ptr<Link>& link) { unionLinks.push_back(link); }
  void clearUnionLinks() { unionLinks.clear(); }
  // A deep copy: elements, links, settings, rules and execution method.
  std::shared_ptr<Scenario> copy() const;
  // Lets every reservoir rule find the elements it depends on by id, after loading or copying.
  void resolveRuleReferences();
  // Gives target a deep copy of this scenario's elements, their links and settings, and the
  // scenario-wide data (ids, labels, pumping costs, layers, EPSG code), whatever target's kind.
  void copyNetworkInto(Scenario& target) const;

  // Drops every element's settings and gives each the new settings of this kind of scenario, as
  // a new element gets them (nodes first, so that links find their nodes' settings).
  void remakeSettings();

  // Prepares the elements for a run: drains, storage tables, the rules' zeroContribution,
  // bidirectional links.
  virtual void preRun();
  void createResults();
  void clearResultSeries();
  virtual void clearAllResults();
  // Checks the scenario with the check of its kind (made on first use): 1 without a check
  // object, 0 when the check passes, 2 when it fails.
  int executeSceneryCheck();

  const std::shared_ptr<Element>& getElement(unsigned int id) const;
  std::shared_ptr<Element> getElement(const std::string& name) const;
  const Elements& getElements() const { return elements; }
  // The elements ordered by id.
  Elements getSortedElements() const;
  unsigned int getId() const { return id; }
  unsigned int getDatabaseId() const { return databaseId; }
  void setDatabaseId(unsigned int value) { databaseId = value; }
  const Interval& getInterval() const { return interval; }
  // Takes the new interval and drops all results.
  void setInterval(const Interval& value);
  const std::string& getName() const { return name; }
  void setName(const std::string& value) { name = value; }
  const std::shared_ptr<ExecutionMethod>& getExecutionMethod() const { return executionMethod; }
  void setExecutionMethod(const std::shared_ptr<ExecutionMethod>& method);
  const std::shared_ptr<SceneryCheck>& getSceneryCheck() const { return sceneryCheck; }
  void setSceneryCheck(const std::shared_ptr<SceneryCheck>& check) { sceneryCheck = check; }
  const Enum<SceneryStatus>& getSceneryStatus() const { return sceneryStatus; }
  const std::shared_ptr<OperationSystem>& getCurrentOperationSystem() const {
    return currentOperationSystem;
  }
  unsigned int getEPSGCode() const { return epsgCode; }
  void setEPSGCode(unsigned int value) { epsgCode = value; }
  unsigned int getMaxElementId() const { return maxElementId; }
  SettingsManager& getSettingsManager() { return settingsManager; }
  const SettingsManager& getSettingsManager() const { return settingsManager; }
  // The hydrological states of a priority scenario; null for the kinds that have none.
  virtual std::shared_ptr<HydrologicalStateConfiguration> getHydrologicalStateConfiguration()
      const {
    return nullptr;
  }
  const std::map<std::string, std::vector<int>>& getLabelElementsSelects() const {
    return labelElementsSelects;
  }
  void setLabelElementsSelects(const std::map<std::string, std::vector<int>>& value) {
    labelElementsSelects = value;
  }
  // The shape files shown behind the network, in the order they were added.
  const std::vector<PathInfo>& getVectorOfPathInfo() const { return vectorOfPathInfo; }
  void addPathInfo(const std::string& filename, const std::string& fullpath) {
    vectorOfPathInfo.push_back({filename, fullpath});
  }
  // The cost of a deficit of each demand type for the pumping study, R$.
  const std::vector<double>& getPumpingCostsConfiguration() const { return pumpingCosts; }
  void setPumpingCostsConfiguration(const std::vector<double>& value) { pumpingCosts = value; }

  // The intervals of the windows of a run with the present method (the whole interval for a
  // continuous run).
  std::vector<Interval> calcVectorOfIntervals() const;
  // True when every enabled element has results.
  bool hasResults() const;
  bool hasBidirectionalLink() const;
  // True when the enabled network has a loop; its ids are kept for getIdsOfElementsInLoop().
  bool hasLoop();
  const std::vector<unsigned int>& getIdsOfElementsInLoop() const { return idsOfElementsInLoop; }
  // The links whose inflow reached their limit on some date of window 0.
  std::vector<std::shared_ptr<Element>> getVectorOfLinksWithBurst() const;

  // The element's settings as T. Throws std::invalid_argument
  // "Passed element is not valid for element setting" when they are of another class.
  template <typename T>
  static std::shared_ptr<T> getSettings(const std::shared_ptr<Element>& element,
                                        const SettingsManager& settingsManager) {
    auto settings = std::dynamic_pointer_cast<T>(settingsManager.getSettings(element->getId()));
    if (!settings) throw std::invalid_argument("Passed element is not valid for element setting");
    return settings;
  }

 protected:
  // The operation system of one run of this kind of scenario.
  virtual std::shared_ptr<OperationSystem> getOperationSystem() = 0;
  // A new, empty scenario of the same class with the same settings of its own kind.
  virtual std::shared_ptr<Scenario> copySpecific() const = 0;
  // The check of this kind of scenario, or null for a kind without one.
  virtual std::shared_ptr<SceneryCheck> makeSceneryCheck() { return nullptr; }
  // Runs check over this scenario and tells whether it found nothing. Only called with a check,
  // so a kind without one never needs it.
  virtual bool passesSceneryCheck(SceneryCheck& check);
  // Gives the scenario's interval to every element's series.
  virtual void setSeriesIntervalsElements();
  // Hands the execution method's zeroContribution to whatever decides the reservoirs' releases
  // before a run: by default their release rules.
  virtual void configureZeroContribution(const Elements& reservoirs);
  void setSceneryStatus(SceneryStatus status);
  void setSceneryStatus(const Enum<SceneryStatus>& status) { sceneryStatus = status; }

 private:
  void insertElement(const std::shared_ptr<Element>& element, bool rename, unsigned int id);

  std::map<unsigned int, bool> usedElementIds;
  Elements elements;
  Interval interval;
  unsigned int maxElementId = 0;
  unsigned int id;
  unsigned int databaseId = 0;
  std::string name;
  std::shared_ptr<ExecutionMethod> executionMethod;
  SettingsManager settingsManager;
  std::shared_ptr<SceneryCheck> sceneryCheck;
  std::map<std::string, std::vector<int>> labelElementsSelects;
  std::vector<double> pumpingCosts;  // R$ per demand type
  std::vector<PathInfo> vectorOfPathInfo;
  unsigned int epsgCode = 4674;
  Enum<SceneryStatus> sceneryStatus;
  std::shared_ptr<OperationSystem> currentOperationSystem;
  std::vector<unsigned int> idsOfElementsInLoop;
  std::vector<std::shared_ptr<Link>> unionLinks;
};
