#include "machinelearning/KNNRegressionAlgorithm.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "common/NumericalUtils.h"

double KNNRegressionAlgorithm::run(const std::vector<double>& x) {
  if (x.size() != getNumberOfAttributes()) {
    throw std::invalid_argument("KNNAlgorithm::run(): attributes");
  }
  if (getNumberOfEntriesForAverage() > getWorkDataset().size()) {
    throw std::runtime_error("KNNAlgorithm::run(): numberOfEntriesForAverage > DataSet size");
  }
  std::vector<double> query = x;
  std::vector<Entry> stored;
  if (normalize) {
    stored = getWorkDataset();
    normalizeRunDataset(query);
  }
  calculateDistances(query);
  sortDatasetByDistance();
  createKDataset();
  if (normalize) workEntries() = std::move(stored);
  return average(kDataset);
}

void KNNRegressionAlgorithm::build() {}

void KNNRegressionAlgorithm::buildOptimize() {}

void KNNRegressionAlgorithm::copyFrom(const MachineLearningRegressionAlgorithm& other) {
  MachineLearningRegressionAlgorithm::copyFrom(other);
  if (const auto* knn = dynamic_cast<const KNNRegressionAlgorithm*>(&other)) {
    normalize = knn->normalize;
  }
}

const Enum<MachineLearningRegressionAlgorithmType>& KNNRegressionAlgorithm::getType() const {
  return MachineLearningVocabulary::of(MachineLearningRegressionAlgorithmType::knn);
}

std::shared_ptr<MachineLearningRegressionAlgorithm> KNNRegressionAlgorithm::clone() const {
  return std::make_shared<KNNRegressionAlgorithm>(*this);
}

bool KNNRegressionAlgorithm::isNormalize() const { return normalize; }

void KNNRegressionAlgorithm::setNormalize(bool value) { normalize = value; }

const std::vector<MachineLearningRegressionAlgorithm::Entry>& KNNRegressionAlgorithm::getKDataset()
    const {
  return kDataset;
}

void KNNRegressionAlgorithm::normalizeRunDataset(std::vector<double>& x) {
  std::vector<Entry>& entries = workEntries();
  for (std::size_t a = 0; a < x.size(); ++a) {
    double largest = std::numeric_limits<double>::min();
    const auto widen = [&largest](double value) {
      if (NumericalUtils::subtractDoubles(value, largest, 1e-6) > 0.0) largest = value;
    };
    for (const Entry& entry : entries) widen(entry.attributes[a]);
    widen(x[a]);
    const bool positive = NumericalUtils::subtractDoubles(largest, 0.0, 1e-6) > 0.0;
    const auto scale = [positive, largest](double& value) {
      value = positive ? value / largest : 0.0;
    };
    for (Entry& entry : entries) scale(entry.attributes[a]);
    scale(x[a]);
  }
}

void KNNRegressionAlgorithm::sortDatasetByDistance() {
  // workDataset stays sorted after a query; the index keeps equal distances in dataset order at
  // the next one.
  std::sort(workEntries().begin(), workEntries().end(), [](const Entry& a, const Entry& b) {
    return a.distance < b.distance || (a.distance == b.distance && a.index < b.index);
  });
}

void KNNRegressionAlgorithm::createKDataset() {
  const auto& entries = getWorkDataset();
  kDataset.assign(entries.begin(), entries.begin() + getNumberOfEntriesForAverage());
}
