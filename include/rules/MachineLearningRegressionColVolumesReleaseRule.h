#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/ReleaseRule.h"
#include "machinelearning/MachineLearningRegressionAlgorithm.h"

// A release read from a regression model of the volumes of a group of reservoirs: at each date the
// model answers, from the volumes with which the period begins (hm³, one attribute per reservoir
// of the group, in order), the flow to release (m³/s). The model learns from entries of (volumes,
// release), the periods of a run by priorities. No limit is applied here: the rule operation
// limits what the reservoir can give.
class MachineLearningRegressionColVolumesReleaseRule : public ReleaseRule {
 public:
  struct Entry {
    std::vector<double> attributes;
    double value = 0.0;
  };

  double getRelease(const Date& date) const override;
  // Finds the reservoirs of the ids in scenario, then trains the model on its entries.
  void loadAfterScenarioInstantiated(const std::shared_ptr<Scenario>& scenario) override;
  std::vector<std::shared_ptr<Element>> getDependencies() const override { return reservoirs; }
  // ReleaseRule::copy(), the ids and a model of its own with the same settings and entries.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;
  // Trains the model on its entries.
  virtual void buildAlgorithm();

  const std::vector<std::shared_ptr<Element>>& getReservoirs() const { return reservoirs; }
  const std::vector<unsigned int>& getReservoirsIds() const { return reservoirsIds; }
  // A new model with one attribute per id, keeping the settings and, when the number of
  // attributes is unchanged, the entries.
  void setReservoirsIdsOfSystem(const std::vector<unsigned int>& ids);
  // Throws std::invalid_argument "MachineLearningRegressionColVolumesReleaseRule::
  // setReservoirsOfSystem(): every element must be a reservoir" otherwise.
  void setReservoirsOfSystem(const std::vector<std::shared_ptr<Element>>& elements);

  unsigned int getNumberOfEntriesForAverage() const;
  void setNumberOfEntriesForAverage(unsigned int value);
  const Enum<MachineLearningRegressionDistanceCalculatorType>& getDistanceCalculatorType() const;
  void setDistanceCalculatorType(MachineLearningRegressionDistanceCalculatorType type);
  const Enum<MachineLearningRegressionAverageCalculatorType>& getAverageCalculatorType() const;
  void setAverageCalculatorType(MachineLearningRegressionAverageCalculatorType type);
  const Enum<MachineLearningRegressionErrorType>& getErrorType() const;
  void setErrorType(MachineLearningRegressionErrorType type);

  const std::vector<MachineLearningRegressionDatasetEntry>& getDataset() const;
  // One row per entry: its volumes, then its release.
  std::vector<std::vector<double>> getDatasetMatrix() const;
  // Replaces the entries by the rows of matrix, read as getDatasetMatrix() writes them. Throws
  // std::invalid_argument for a row of the wrong length.
  void setDatasetFromMatrix(const std::vector<std::vector<double>>& matrix);
  void addEntryOfDataSet(const Entry& entry);

  const std::shared_ptr<MachineLearningRegressionAlgorithm>& getAlgorithm() const {
    return algorithm;
  }

 protected:
  // The model of the subclass's kind, made at construction.
  explicit MachineLearningRegressionColVolumesReleaseRule(
      std::shared_ptr<MachineLearningRegressionAlgorithm> algorithm);

  // A new model of the rule's kind over numberOfAttributes attributes named by names, with the
  // settings of the present one but no entries.
  virtual std::shared_ptr<MachineLearningRegressionAlgorithm> makeAlgorithmInstance(
      uint32_t numberOfAttributes, const std::vector<std::string>& names) const = 0;
  // A new model of class Algorithm with the present one's value name, number of entries, average
  // and distance; makeAlgorithmInstance() adds the settings of its kind.
  template <typename Algorithm>
  std::shared_ptr<Algorithm> makeLikePresent(uint32_t numberOfAttributes,
                                             const std::vector<std::string>& names) const {
    return std::make_shared<Algorithm>(numberOfAttributes, names, algorithm->getValueName(),
                                       algorithm->getNumberOfEntriesForAverage(),
                                       algorithm->getAverageCalculatorType().getType(),
                                       algorithm->getDistanceCalculatorType().getType());
  }
  // A model of class Algorithm over no attribute yet, on the released flow, of one entry.
  template <typename Algorithm>
  static std::shared_ptr<Algorithm> makeBlankAlgorithm() {
    return std::make_shared<Algorithm>(0, std::vector<std::string>{}, kValueName, 1,
                                       MachineLearningRegressionAverageCalculatorType::arithmetic,
                                       MachineLearningRegressionDistanceCalculatorType::euclidean);
  }

  template <typename Algorithm>
  Algorithm& algorithmAs() const {
    return static_cast<Algorithm&>(*algorithm);
  }

 private:
  static constexpr const char* kValueName = "Vazão liberada";

  std::vector<std::shared_ptr<Element>> reservoirs;
  std::vector<unsigned int> reservoirsIds;
  std::shared_ptr<MachineLearningRegressionAlgorithm> algorithm;
};
