#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"

#include <stdexcept>

#include "core/Reservoir.h"
#include "core/ReservoirOperationUtils.h"
#include "core/Scenario.h"

MachineLearningRegressionColVolumesReleaseRule::MachineLearningRegressionColVolumesReleaseRule(
    std::shared_ptr<MachineLearningRegressionAlgorithm> algorithm)
    : algorithm(std::move(algorithm)) {}

double MachineLearningRegressionColVolumesReleaseRule::getRelease(const Date& date) const {
  std::vector<double> volumes;
  for (const auto& element : reservoirs) {
    if (!element->isEnabled()) continue;
    volumes.push_back(ReservoirOperationUtils::currentReservoirVolume(
        std::static_pointer_cast<Reservoir>(element), getInterval(), date, getWindowIndex()));
  }
  return algorithm->runNormal(volumes);
}

void MachineLearningRegressionColVolumesReleaseRule::loadAfterScenarioInstantiated(
    const std::shared_ptr<Scenario>& scenario) {
  reservoirs.clear();
  for (const unsigned int id : reservoirsIds) reservoirs.push_back(scenario->getElement(id));
  buildAlgorithm();
}

std::shared_ptr<ReleaseRule> MachineLearningRegressionColVolumesReleaseRule::copy() const {
  auto rule =
      std::static_pointer_cast<MachineLearningRegressionColVolumesReleaseRule>(ReleaseRule::copy());
  rule->reservoirsIds = reservoirsIds;
  rule->algorithm = algorithm->clone();
  return rule;
}

void MachineLearningRegressionColVolumesReleaseRule::buildAlgorithm() { algorithm->build(); }

void MachineLearningRegressionColVolumesReleaseRule::setReservoirsIdsOfSystem(
    const std::vector<unsigned int>& ids) {
  std::vector<std::string> names;
  for (const unsigned int id : ids) names.push_back(std::to_string(id));
  auto remade = makeAlgorithmInstance(static_cast<uint32_t>(ids.size()), names);
  remade->setErrorType(algorithm->getErrorType().getType());
  if (ids.size() == reservoirsIds.size()) remade->setDataset(algorithm->getDataset());
  algorithm = remade;
  reservoirsIds = ids;
  reservoirs.clear();
}

void MachineLearningRegressionColVolumesReleaseRule::setReservoirsOfSystem(
    const std::vector<std::shared_ptr<Element>>& elements) {
  std::vector<unsigned int> ids;
  for (const auto& element : elements) {
    if (!isReservoir(element)) {
      throw std::invalid_argument(
          "MachineLearningRegressionColVolumesReleaseRule::setReservoirsOfSystem(): every element "
          "must be a reservoir");
    }
    ids.push_back(element->getId());
  }
  setReservoirsIdsOfSystem(ids);
  reservoirs = elements;
}

unsigned int MachineLearningRegressionColVolumesReleaseRule::getNumberOfEntriesForAverage() const {
  return algorithm->getNumberOfEntriesForAverage();
}

void MachineLearningRegressionColVolumesReleaseRule::setNumberOfEntriesForAverage(
    unsigned int value) {
  algorithm->setNumberOfEntriesForAverage(value);
}

const Enum<MachineLearningRegressionDistanceCalculatorType>&
MachineLearningRegressionColVolumesReleaseRule::getDistanceCalculatorType() const {
  return algorithm->getDistanceCalculatorType();
}

void MachineLearningRegressionColVolumesReleaseRule::setDistanceCalculatorType(
    MachineLearningRegressionDistanceCalculatorType type) {
  algorithm->setDistanceCalculatorType(type);
}

const Enum<MachineLearningRegressionAverageCalculatorType>&
MachineLearningRegressionColVolumesReleaseRule::getAverageCalculatorType() const {
  return algorithm->getAverageCalculatorType();
}

void MachineLearningRegressionColVolumesReleaseRule::setAverageCalculatorType(
    MachineLearningRegressionAverageCalculatorType type) {
  algorithm->setAverageCalculatorType(type);
}

const Enum<MachineLearningRegressionErrorType>&
MachineLearningRegressionColVolumesReleaseRule::getErrorType() const {
  return algorithm->getErrorType();
}

void MachineLearningRegressionColVolumesReleaseRule::setErrorType(
    MachineLearningRegressionErrorType type) {
  algorithm->setErrorType(type);
}

const std::vector<MachineLearningRegressionDatasetEntry>&
MachineLearningRegressionColVolumesReleaseRule::getDataset() const {
  return algorithm->getDataset();
}

std::vector<std::vector<double>> MachineLearningRegressionColVolumesReleaseRule::getDatasetMatrix()
    const {
  std::vector<std::vector<double>> matrix;
  for (const auto& entry : algorithm->getDataset()) {
    matrix.push_back(entry.attributes);
    matrix.back().push_back(entry.value);
  }
  return matrix;
}

void MachineLearningRegressionColVolumesReleaseRule::setDatasetFromMatrix(
    const std::vector<std::vector<double>>& matrix) {
  algorithm->clearDataset();
  for (const auto& row : matrix) {
    if (row.empty()) {
      throw std::invalid_argument(
          "MachineLearningRegressionColVolumesReleaseRule::setDatasetFromMatrix(): empty row");
    }
    algorithm->addEntry(std::vector<double>(row.begin(), row.end() - 1), row.back());
  }
}

void MachineLearningRegressionColVolumesReleaseRule::addEntryOfDataSet(const Entry& entry) {
  algorithm->addEntry(entry.attributes, entry.value);
}
