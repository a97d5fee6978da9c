#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"
#include "core/Link.h"
#include "core/SettingsManager.h"
#include "vocabulary/Enum.h"

class OperationSystem;

// How a scenario walks its interval: continuously, in yearly windows, or under an optimiser or
// a guarantee search. It also prepares the elements before a run.
class ExecutionMethod {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;
  using Progress = std::function<bool(long, long)>;

  virtual ~ExecutionMethod() = default;

  // Gives each enabled element empty result containers for the run, with the interval's dates.
  virtual void createResults(const Elements& elements, const Interval& interval,
                             const Enum<ScenarioType>& scenarioType) = 0;
  // Runs the operation at each date; false when the progress callback cancelled.
  virtual bool run(const Interval& interval, const std::shared_ptr<OperationSystem>& operation,
                   const Progress& progress) = 0;

  // A copy of the concrete method with the same settings.
  std::shared_ptr<ExecutionMethod> copy() const;

  // Lists the candidate windows of interval: one starting in startMonth of each year whose
  // window of windowSize periods ends within the interval, each kept or not by checked.
  void initializeYearsWindow(const Interval& interval, unsigned int startMonth, bool checked);
  // Keeps or drops a candidate window. Throws std::out_of_range
  // "ExecutionMethod::setYearCheckByIndex: invalid index".
  void setYearCheckByIndex(unsigned int index, bool checked);

  // Each enabled drain demands 99999.0 m³/s on every period of interval, so it takes whatever
  // reaches it.
  // Gives each enabled element one set of continuous result series over interval.
  static void createContinuousResults(const Elements& elements, const Interval& interval,
                                      ScenarioType scenarioType);
  // Empty continuous result series for one more simulation of a search: those of the previous
  // one emptied, keeping the room of their values, where every enabled element has them; new
  // ones otherwise.
  static void restartContinuousResults(const Elements& elements, const Interval& interval,
                                       ScenarioType scenarioType);
  static void configureDrainDemands(const Elements& drains, const Interval& interval);
  // Rebuilds each reservoir's working table, unique in volume.
  static void configureReservoirsCav(const Elements& reservoirs);
  // Hands zeroContribution to each reservoir's rule. Throws std::invalid_argument
  // "Passed element is not valid for element setting" for a reservoir without rule settings.
  void configureZeroContribution(const SettingsManager& settingsManager,
                                 const Elements& reservoirs) const;
  // Prepares the cost tables of every pumping line among links.
  static void configureLinkAddonPumping(const std::vector<std::shared_ptr<Link>>& links);
  // Keeps each reservoir's link lists, from which inversions are undone.
  static void backupReservoirsLinks(const Elements& reservoirs);

  const Enum<ExecutionType>& getExecutionType() const { return executionType; }
  unsigned int getWindowSize() const { return windowSize; }
  // Throws std::invalid_argument "ExecutionMethod::setWindowSize(): the window size must be at
  // least 1" for 0.
  void setWindowSize(unsigned int value);
  bool getZeroContribution() const { return zeroContribution; }
  void setZeroContribution(bool value) { zeroContribution = value; }
  const std::vector<std::pair<Date, bool>>& getYearsDate() const { return yearsDate; }
  void setYearsDate(const std::vector<std::pair<Date, bool>>& value) { yearsDate = value; }
  unsigned int getInitialMonth() const { return initialMonth; }
  void setInitialMonth(unsigned int value) { initialMonth = static_cast<unsigned char>(value); }

 protected:
  explicit ExecutionMethod(ExecutionType type);
  virtual std::shared_ptr<ExecutionMethod> copySpecific() const = 0;

 private:
  Enum<ExecutionType> executionType;
  unsigned int windowSize = 1;  // periods of a window
  bool zeroContribution = false;
  std::vector<std::pair<Date, bool>> yearsDate;  // start of each window, and whether it runs
  unsigned char initialMonth = 1;                // month in which windows start
};
