#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "machinelearning/MachineLearningDatasetIndexesToTest.h"
#include "machinelearning/MachineLearningRegressionDatasetEntry.h"
#include "vocabulary/Enum.h"
#include "vocabulary/MachineLearningVocabulary.h"

// A regression model over numeric attribute vectors with one target value each.
//
// Three lists of entries: `dataset` holds all data; `workDataset` is what the model trains on and
// searches; `testDataset` is what the error is measured on. build() trains on the whole dataset;
// buildOptimize() trains on the workDataset that configureOptimize() cut from one validation
// split, so that the same model can be measured on data it has not seen.
//
// numberOfEntriesForAverage is the model's one size parameter: the neighbours averaged by kNN, the
// least node size that may be split by a tree. optimizeNumberOfEntriesForAverage() searches it.
//
// A model's working lists change at every run(); use one model from one thread.
class MachineLearningRegressionAlgorithm {
 public:
  using Entry = MachineLearningRegressionDatasetEntry;
  using Validation = MachineLearningDatasetIndexesToTest::ValidationStr;

  // Throws std::invalid_argument "MachineLearningRegressionAlgorithm(): attributesNames.size() !=
  // numberOfAttributes". The error type starts as "Mean Squared Error".
  MachineLearningRegressionAlgorithm(uint32_t numberOfAttributes,
                                     std::vector<std::string> attributesNames,
                                     std::string valueName, uint32_t numberOfEntriesForAverage,
                                     MachineLearningRegressionAverageCalculatorType averageType,
                                     MachineLearningRegressionDistanceCalculatorType distanceType);
  virtual ~MachineLearningRegressionAlgorithm() = default;

  // The model's answer for the attributes x, from workDataset.
  virtual double run(const std::vector<double>& x) = 0;
  // Trains on the whole dataset.
  virtual void build() = 0;
  // Trains on workDataset as it stands.
  virtual void buildOptimize() = 0;
  // The pair (mean test error, mean train error) over the validations with numberOfEntries in
  // place of numberOfEntriesForAverage, which is restored afterwards; (0, 0) without validations.
  // Throws std::invalid_argument "MachineLearningRegressionAlgorithm::getError(): invalid
  // datasetIndexes size" when the first split does not cover the dataset.
  virtual std::pair<double, double> getError(const std::vector<Validation>& validations,
                                             uint32_t numberOfEntries);
  // Takes the other's dataset and settings; a model of the same kind also gives its own settings.
  virtual void copyFrom(const MachineLearningRegressionAlgorithm& other);
  virtual const Enum<MachineLearningRegressionAlgorithmType>& getType() const = 0;
  // An independent deep copy: training either afterwards leaves the other as it was.
  virtual std::shared_ptr<MachineLearningRegressionAlgorithm> clone() const = 0;

  // Appends an entry whose index is the present dataset size. Throws std::invalid_argument
  // "MachineLearningRegressionAlgorithm::addEntry(): invalid attributes size".
  void addEntry(const std::vector<double>& attributes, double value);
  void clearDataset();
  const std::vector<Entry>& getDataset() const;
  // Replaces the dataset, each entry's index becoming its position; every entry must have
  // numberOfAttributes attributes (the addEntry() failure otherwise).
  void setDataset(const std::vector<Entry>& entries);
  const std::vector<Entry>& getWorkDataset() const;
  const std::vector<Entry>& getTestDataset() const;

  // Sets each workDataset entry's distance to x by the distance type.
  void calculateDistances(const std::vector<double>& x);
  // workDataset = dataset, then run(x).
  double runNormal(const std::vector<double>& x);
  // workDataset = the entries at trainIndexes, renumbered from 0; testDataset = those at
  // testIndexes. Throws std::out_of_range "MachineLearningRegressionAlgorithm::configureOptimize():
  // index outside the dataset".
  void configureOptimize(const Validation& validation);
  // The error of run() over testDataset, by the error type; pairs with -999 are left out.
  double getError();
  // The same over workDataset.
  double getErrorTrainDataset();
  // Sets numberOfEntriesForAverage to the k in [min, max] with the lowest mean test error over the
  // validations (the first such k on ties within 1e-6), then build(). k never goes beyond the
  // smallest training set of the validations. Nothing happens without validations. Throws
  // std::invalid_argument "MachineLearningRegressionAlgorithm::getError(): vainlid datasetIndexes
  // size" and std::runtime_error "...::optimizeNumberOfEntriesForAverage(): minNumberOfEntries
  // ForAverage > maxNumberOfEntriesForAverage" (or "maxNumberOfEntriesForAverage > DataSet size",
  // "minNumberOfEntriesForAverage > DataSet size").
  void optimizeNumberOfEntriesForAverage(const std::vector<Validation>& validations, uint32_t min,
                                         uint32_t max);

  uint32_t getNumberOfAttributes() const;
  const std::vector<std::string>& getAttributesNames() const;
  // Throws std::invalid_argument "MachineLearningRegressionAlgorithm::setAttributesNames():
  // attributesNames.size() != numberOfAttributes".
  void setAttributesNames(const std::vector<std::string>& names);
  // Throws std::out_of_range "MachineLearningRegressionAlgorithm::getAttributeName(): invalid
  // index".
  const std::string& getAttributeName(uint32_t i) const;
  const std::string& getValueName() const;
  void setValueName(const std::string& name);
  uint32_t getNumberOfEntriesForAverage() const;
  void setNumberOfEntriesForAverage(uint32_t n);
  const Enum<MachineLearningRegressionAverageCalculatorType>& getAverageCalculatorType() const;
  // The setters of the three types throw std::invalid_argument
  // "MachineLearningVocabulary::of(): value outside the vocabulary" for a value it does not hold.
  void setAverageCalculatorType(MachineLearningRegressionAverageCalculatorType type);
  const Enum<MachineLearningRegressionDistanceCalculatorType>& getDistanceCalculatorType() const;
  void setDistanceCalculatorType(MachineLearningRegressionDistanceCalculatorType type);
  const Enum<MachineLearningRegressionErrorType>& getErrorType() const;
  void setErrorType(MachineLearningRegressionErrorType type);

 protected:
  MachineLearningRegressionAlgorithm(const MachineLearningRegressionAlgorithm&) = default;
  MachineLearningRegressionAlgorithm& operator=(const MachineLearningRegressionAlgorithm&) =
      default;

  // True when the average type weighs entries by their distance to the query.
  bool isWeightedAverage() const;
  // The average of the entries by the average type.
  double average(const std::vector<Entry>& entries) const;
  // The error of the predictions against the observed values by the error type.
  double error(const std::vector<double>& predicted, const std::vector<double>& observed) const;
  std::vector<Entry>& workEntries();

 private:
  // configureOptimize(), buildOptimize(), and the test or the train error of the split.
  double errorOn(const Validation& validation, bool onTrainDataset);
  // Throws std::invalid_argument with text unless the first split covers the dataset.
  void checkCovers(const std::vector<Validation>& validations, const char* text) const;

  std::vector<Entry> dataset;
  std::vector<Entry> workDataset;
  std::vector<Entry> testDataset;
  uint32_t numberOfAttributes;
  std::vector<std::string> attributesNames;
  std::string valueName;
  uint32_t numberOfEntriesForAverage;
  Enum<MachineLearningRegressionAverageCalculatorType> averageCalculatorType;
  Enum<MachineLearningRegressionDistanceCalculatorType> distanceCalculatorType;
  Enum<MachineLearningRegressionErrorType> errorType;
};
