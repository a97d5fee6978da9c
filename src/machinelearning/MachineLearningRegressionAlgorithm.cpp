#include "machinelearning/MachineLearningRegressionAlgorithm.h"

#include <algorithm>
#include <map>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "machinelearning/MachineLearningRegressionAverageCalculator.h"
#include "machinelearning/MachineLearningRegressionDistanceCalculator.h"

namespace {

using ErrorFunction = double (*)(const std::vector<double>&, const std::vector<double>&, bool);

double meanSquaredError(const std::vector<double>& predicted, const std::vector<double>& observed,
                        bool skip) {
  return NumericalUtils::MeanSquaredError(predicted, observed, skip);
}

double nashSutcliffe(const std::vector<double>& predicted, const std::vector<double>& observed,
                     bool skip) {
  return NumericalUtils::nashSutcliffeModelEfficiencyCoefficientNSE(observed, predicted, skip);
}

ErrorFunction errorFunction(MachineLearningRegressionErrorType type) {
  static const std::map<MachineLearningRegressionErrorType, ErrorFunction> functions = {
      {MachineLearningRegressionErrorType::meanSquaredError, &meanSquaredError},
      {MachineLearningRegressionErrorType::nashSutcliffeEfficiency, &nashSutcliffe},
  };
  return functions.at(type);
}

// Puts numberOfEntriesForAverage back however the measurement ends.
class RestoreNumberOfEntries {
 public:
  RestoreNumberOfEntries(MachineLearningRegressionAlgorithm& algorithm, uint32_t temporary)
      : algorithm(algorithm), kept(algorithm.getNumberOfEntriesForAverage()) {
    algorithm.setNumberOfEntriesForAverage(temporary);
  }
  ~RestoreNumberOfEntries() { algorithm.setNumberOfEntriesForAverage(kept); }
  RestoreNumberOfEntries(const RestoreNumberOfEntries&) = delete;
  RestoreNumberOfEntries& operator=(const RestoreNumberOfEntries&) = delete;

 private:
  MachineLearningRegressionAlgorithm& algorithm;
  uint32_t kept;
};

}  // namespace

MachineLearningRegressionAlgorithm::MachineLearningRegressionAlgorithm(
    uint32_t numberOfAttributes, std::vector<std::string> attributesNames, std::string valueName,
    uint32_t numberOfEntriesForAverage, MachineLearningRegressionAverageCalculatorType averageType,
    MachineLearningRegressionDistanceCalculatorType distanceType)
    : numberOfAttributes(numberOfAttributes),
      attributesNames(std::move(attributesNames)),
      valueName(std::move(valueName)),
      numberOfEntriesForAverage(numberOfEntriesForAverage),
      averageCalculatorType(MachineLearningVocabulary::of(averageType)),
      distanceCalculatorType(MachineLearningVocabulary::of(distanceType)),
      errorType(
          MachineLearningVocabulary::of(MachineLearningRegressionErrorType::meanSquaredError)) {
  if (this->attributesNames.size() != numberOfAttributes) {
    throw std::invalid_argument(
        "MachineLearningRegressionAlgorithm(): attributesNames.size() != numberOfAttributes");
  }
}

std::pair<double, double> MachineLearningRegressionAlgorithm::getError(
    const std::vector<Validation>& validations, uint32_t numberOfEntries) {
  if (validations.empty()) return {0.0, 0.0};
  checkCovers(validations,
              "MachineLearningRegressionAlgorithm::getError(): invalid datasetIndexes size");
  RestoreNumberOfEntries restore(*this, numberOfEntries);
  double test = 0.0;
  double train = 0.0;
  for (const Validation& validation : validations) {
    test += errorOn(validation, false);
    train += errorOn(validation, true);
  }
  const auto count = static_cast<double>(validations.size());
  return {test / count, train / count};
}

void MachineLearningRegressionAlgorithm::copyFrom(const MachineLearningRegressionAlgorithm& other) {
  dataset = other.dataset;
  workDataset = other.workDataset;
  testDataset = other.testDataset;
  numberOfAttributes = other.numberOfAttributes;
  attributesNames = other.attributesNames;
  valueName = other.valueName;
  numberOfEntriesForAverage = other.numberOfEntriesForAverage;
  averageCalculatorType = other.averageCalculatorType;
  distanceCalculatorType = other.distanceCalculatorType;
  errorType = other.errorType;
}

void MachineLearningRegressionAlgorithm::addEntry(const std::vector<double>& attributes,
                                                  double value) {
  if (attributes.size() != numberOfAttributes) {
    throw std::invalid_argument(
        "MachineLearningRegressionAlgorithm::addEntry(): invalid attributes size");
  }
  dataset.emplace_back(static_cast<uint32_t>(dataset.size()), attributes, value);
}

void MachineLearningRegressionAlgorithm::clearDataset() { dataset.clear(); }

const std::vector<MachineLearningRegressionAlgorithm::Entry>&
MachineLearningRegressionAlgorithm::getDataset() const {
  return dataset;
}

void MachineLearningRegressionAlgorithm::setDataset(const std::vector<Entry>& entries) {
  for (const Entry& entry : entries) {
    if (entry.attributes.size() != numberOfAttributes) {
      throw std::invalid_argument(
          "MachineLearningRegressionAlgorithm::addEntry(): invalid attributes size");
    }
  }
  dataset = entries;
  for (uint32_t i = 0; i < dataset.size(); ++i) dataset[i].index = i;
}

const std::vector<MachineLearningRegressionAlgorithm::Entry>&
MachineLearningRegressionAlgorithm::getWorkDataset() const {
  return workDataset;
}

const std::vector<MachineLearningRegressionAlgorithm::Entry>&
MachineLearningRegressionAlgorithm::getTestDataset() const {
  return testDataset;
}

void MachineLearningRegressionAlgorithm::calculateDistances(const std::vector<double>& x) {
  for (Entry& entry : workDataset) {
    entry.distance = MachineLearningRegressionDistanceCalculator::make(
        x, entry, distanceCalculatorType.getType());
  }
}

double MachineLearningRegressionAlgorithm::runNormal(const std::vector<double>& x) {
  workDataset = dataset;
  return run(x);
}

void MachineLearningRegressionAlgorithm::configureOptimize(const Validation& validation) {
  const auto entriesAt = [this](const std::vector<uint32_t>& indexes) {
    std::vector<Entry> entries;
    entries.reserve(indexes.size());
    for (uint32_t index : indexes) {
      if (index >= dataset.size()) {
        throw std::out_of_range(
            "MachineLearningRegressionAlgorithm::configureOptimize(): index outside the dataset");
      }
      entries.push_back(dataset[index]);
    }
    return entries;
  };
  workDataset = entriesAt(validation.trainIndexes);
  testDataset = entriesAt(validation.testIndexes);
  for (uint32_t i = 0; i < workDataset.size(); ++i) workDataset[i].index = i;
}

double MachineLearningRegressionAlgorithm::getError() {
  std::vector<double> predicted;
  std::vector<double> observed;
  for (const Entry& entry : testDataset) {
    observed.push_back(entry.value);
    predicted.push_back(run(entry.attributes));
  }
  return error(predicted, observed);
}

double MachineLearningRegressionAlgorithm::getErrorTrainDataset() {
  // run() may replace workDataset while it answers, so the loop walks a copy.
  const std::vector<Entry> trained = workDataset;
  std::vector<double> predicted;
  std::vector<double> observed;
  for (const Entry& entry : trained) {
    observed.push_back(entry.value);
    predicted.push_back(run(entry.attributes));
  }
  return error(predicted, observed);
}

void MachineLearningRegressionAlgorithm::optimizeNumberOfEntriesForAverage(
    const std::vector<Validation>& validations, uint32_t min, uint32_t max) {
  if (validations.empty()) return;
  checkCovers(validations,
              "MachineLearningRegressionAlgorithm::getError(): vainlid datasetIndexes size");
  const std::string where =
      "MachineLearningRegressionAlgorithm::optimizeNumberOfEntriesForAverage(): ";
  if (min > max) {
    throw std::runtime_error(where + "minNumberOfEntriesForAverage > maxNumberOfEntriesForAverage");
  }
  if (min > dataset.size()) {
    throw std::runtime_error(where + "minNumberOfEntriesForAverage > DataSet size");
  }
  if (max > dataset.size()) {
    throw std::runtime_error(where + "maxNumberOfEntriesForAverage > DataSet size");
  }
  // Beyond the smallest training set some validation could not average that many entries.
  std::size_t smallestTrainSet = dataset.size();
  for (const Validation& validation : validations) {
    smallestTrainSet = std::min(smallestTrainSet, validation.trainIndexes.size());
  }
  const uint32_t last = std::min<uint32_t>(max, static_cast<uint32_t>(smallestTrainSet));
  double best = NumericalUtils::getMaxDouble();
  uint32_t bestK = min;
  for (uint32_t k = min; k <= last; ++k) {
    numberOfEntriesForAverage = k;
    double error = 0.0;
    for (const Validation& validation : validations) error += errorOn(validation, false);
    error /= static_cast<double>(validations.size());
    if (NumericalUtils::subtractDoubles(best, error, 1e-6) > 0.0) {
      best = error;
      bestK = k;
    }
  }
  numberOfEntriesForAverage = bestK;
  build();
}

uint32_t MachineLearningRegressionAlgorithm::getNumberOfAttributes() const {
  return numberOfAttributes;
}

const std::vector<std::string>& MachineLearningRegressionAlgorithm::getAttributesNames() const {
  return attributesNames;
}

void MachineLearningRegressionAlgorithm::setAttributesNames(const std::vector<std::string>& names) {
  if (names.size() != numberOfAttributes) {
    throw std::invalid_argument(
        "MachineLearningRegressionAlgorithm::setAttributesNames(): attributesNames.size() != "
        "numberOfAttributes");
  }
  attributesNames = names;
}

const std::string& MachineLearningRegressionAlgorithm::getAttributeName(uint32_t i) const {
  if (i >= attributesNames.size()) {
    throw std::out_of_range(
        "MachineLearningRegressionAlgorithm::getAttributeName(): invalid index");
  }
  return attributesNames[i];
}

const std::string& MachineLearningRegressionAlgorithm::getValueName() const { return valueName; }

void MachineLearningRegressionAlgorithm::setValueName(const std::string& name) { valueName = name; }

uint32_t MachineLearningRegressionAlgorithm::getNumberOfEntriesForAverage() const {
  return numberOfEntriesForAverage;
}

void MachineLearningRegressionAlgorithm::setNumberOfEntriesForAverage(uint32_t n) {
  numberOfEntriesForAverage = n;
}

const Enum<MachineLearningRegressionAverageCalculatorType>&
MachineLearningRegressionAlgorithm::getAverageCalculatorType() const {
  return averageCalculatorType;
}

void MachineLearningRegressionAlgorithm::setAverageCalculatorType(
    MachineLearningRegressionAverageCalculatorType type) {
  averageCalculatorType = MachineLearningVocabulary::of(type);
}

const Enum<MachineLearningRegressionDistanceCalculatorType>&
MachineLearningRegressionAlgorithm::getDistanceCalculatorType() const {
  return distanceCalculatorType;
}

void MachineLearningRegressionAlgorithm::setDistanceCalculatorType(
    MachineLearningRegressionDistanceCalculatorType type) {
  distanceCalculatorType = MachineLearningVocabulary::of(type);
}

const Enum<MachineLearningRegressionErrorType>& MachineLearningRegressionAlgorithm::getErrorType()
    const {
  return errorType;
}

void MachineLearningRegressionAlgorithm::setErrorType(MachineLearningRegressionErrorType type) {
  errorType = MachineLearningVocabulary::of(type);
}

bool MachineLearningRegressionAlgorithm::isWeightedAverage() const {
  using T = MachineLearningRegressionAverageCalculatorType;
  const T type = averageCalculatorType.getType();
  return type == T::weightedArithmetic || type == T::weightedGeometric ||
         type == T::weightedHarmonic;
}

double MachineLearningRegressionAlgorithm::average(const std::vector<Entry>& entries) const {
  return MachineLearningRegressionAverageCalculator::make(averageCalculatorType.getType(), entries);
}

double MachineLearningRegressionAlgorithm::error(const std::vector<double>& predicted,
                                                 const std::vector<double>& observed) const {
  return errorFunction(errorType.getType())(predicted, observed, true);
}

std::vector<MachineLearningRegressionAlgorithm::Entry>&
MachineLearningRegressionAlgorithm::workEntries() {
  return workDataset;
}

double MachineLearningRegressionAlgorithm::errorOn(const Validation& validation,
                                                   bool onTrainDataset) {
  configureOptimize(validation);
  buildOptimize();
  return onTrainDataset ? getErrorTrainDataset() : getError();
}

void MachineLearningRegressionAlgorithm::checkCovers(const std::vector<Validation>& validations,
                                                     const char* text) const {
  const Validation& first = validations.front();
  if (first.trainIndexes.size() + first.testIndexes.size() != dataset.size()) {
    throw std::invalid_argument(text);
  }
}
