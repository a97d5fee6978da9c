#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"
#include "core/Link.h"
#include "core/Node.h"
#include "core/SettingsManager.h"
#include "vocabulary/Enum.h"

// What happens at one date of a run. The execution method sets the date, window and interval
// and calls runModel(); the concrete operation decides the flows (by rules or by priorities), and
// postProcessing() visits the nodes upstream first, sending each node's flows into its links
// and closing its results before its downstream neighbours read them.
class ResultsWriter;

class OperationSystem {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;
  using Callback = std::function<bool(long, long)>;

  OperationSystem(const SettingsManager& settingsManager, const Elements& elements,
                  const Interval& interval, bool zeroContribution,
                  const Enum<ScenarioType>& scenarioType);
  virtual ~OperationSystem() = default;

  // The flow to send into link at the current date, m³/s.
  virtual double release(const std::shared_ptr<Link>& link) = 0;
  // The spill to add to a natural link of a reservoir, m³/s.
  virtual double spill(const std::shared_ptr<Link>& link) = 0;
  // The links among which a node shares its water: its enabled outgoing links, in order.
  virtual std::vector<std::shared_ptr<Link>> allocation(const std::shared_ptr<Node>& node);
  // Writes the element's results at the current date through the writer of its kind.
  virtual void updateResults(const std::shared_ptr<Element>& element);
  // Visits the enabled nodes in level order, that of the network's present shape. callback receives (position, total) after each
  // node and stops the pass by answering false.
  virtual void postProcessing(const Callback& callback);
  // One period at the current date.
  virtual void runModel() = 0;
  // Every period of runInterval in window 0, without progress: one whole simulation of a search.
  void runInterval(const Interval& runInterval);

  // Writes flow as the link's "Vazão afluente" at the current date.
  void allocReleaseValue(const std::shared_ptr<Link>& link, double flow);
  // Adds flow to the link's "Vazão afluente" at the current date.
  void allocSpillValue(const std::shared_ptr<Link>& link, double flow);

  // True when the enabled network has a loop; its ids are kept in getIdsOfElementsInLoop().
  bool hasLoop();

  const Date& getDate() const { return date; }
  void setDate(const Date& value) { date = value; }
  unsigned int getWindowIndex() const { return windowIndex; }
  void setWindowIndex(unsigned int value) { windowIndex = value; }
  const Interval& getInterval() const { return interval; }
  void setInterval(const Interval& value) { interval = value; }
  void setHasBidirectionalLink(bool value) { hasBidirectionalLink = value; }
  bool getHasBidirectionalLink() const { return hasBidirectionalLink; }
  const std::vector<unsigned int>& getIdsOfElementsInLoop() const { return idsOfElementsInLoop; }

 protected:
  const SettingsManager& getSettingsManager() const { return settingsManager; }
  const Elements& getElements() const { return elements; }
  bool getZeroContribution() const { return zeroContribution; }
  const Enum<ScenarioType>& getScenarioType() const { return scenarioType; }

 private:
  // The visiting order of the network as it stands at the current date.
  const Elements& levelOrder();
  static bool anyBidirectional(const Elements& elements);
  ResultsWriter& writerOf(ElementType type);

  Date date;
  unsigned int windowIndex = 0;
  const SettingsManager& settingsManager;
  Elements elements;
  // The visiting order of each shape the network takes: keyed by the ids of the links that run
  // inverted (none for the stored network).
  std::map<std::vector<unsigned int>, Elements> nodesInLevelOrder;
  std::map<ElementType, std::shared_ptr<ResultsWriter>> writers;
  Interval interval;
  bool zeroContribution;
  Enum<ScenarioType> scenarioType;
  bool hasBidirectionalLink = false;
  std::vector<unsigned int> idsOfElementsInLoop;
};
