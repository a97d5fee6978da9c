#include "machinelearning/RegressionTreeAlgorithm.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "machinelearning/MachineLearningRegressionAverageCalculator.h"

namespace {

constexpr double kTolerance = 1e-6;
constexpr int kUnlimitedSplits = 99999;

// The square of y - around, differences within the tolerance counting as 0.
double squaredResidual(double y, double around) {
  const double d = NumericalUtils::subtractDoubles(y, around, kTolerance);
  return d * d;
}

}  // namespace

double RegressionTreeAlgorithm::run(const std::vector<double>& x) {
  if (x.size() != getNumberOfAttributes()) {
    throw std::invalid_argument("RegressionTreeAlgorithm::run(): attributes");
  }
  if (getNumberOfEntriesForAverage() > getWorkDataset().size()) {
    throw std::runtime_error("RegressionTreeAlgorithm::run(): minSplitValue > DataSet size");
  }
  if (getNumberOfEntriesForAverage() == 0) return 0.0;
  if (isWeightedAverage()) {
    calculateDistances(x);
    buildOptimize();
  }
  if (!regressionTree.getRoot()) {
    throw std::runtime_error("RegressionTreeAlgorithm::run(): tree not built");
  }
  return getValue(regressionTree.getRoot(), x);
}

void RegressionTreeAlgorithm::build() {
  workEntries() = getDataset();
  buildOptimize();
}

void RegressionTreeAlgorithm::buildOptimize() {
  if (getNumberOfEntriesForAverage() > getWorkDataset().size()) {
    throw std::runtime_error(
        "RegressionTreeAlgorithm::buildOptimize(): minSplitValue > DataSet size");
  }
  regressionTree.setRoot(nullptr);
  if (getNumberOfEntriesForAverage() == 0) return;
  if (NumericalUtils::compareDoubles(cp, 0.0, kTolerance)) {
    maxNumberOfSplits = kUnlimitedSplits;
    growTree();
  } else {
    searchComplexity();
  }
}

void RegressionTreeAlgorithm::copyFrom(const MachineLearningRegressionAlgorithm& other) {
  MachineLearningRegressionAlgorithm::copyFrom(other);
  if (const auto* tree = dynamic_cast<const RegressionTreeAlgorithm*>(&other)) {
    regressionTree = tree->regressionTree;
    numberOfLeaves = tree->numberOfLeaves;
    maxNumberOfLeaves = tree->maxNumberOfLeaves;
    maxDepth = tree->maxDepth;
    cp = tree->cp;
    maxNumberOfSplits = tree->maxNumberOfSplits;
    numberOfSplits = tree->numberOfSplits;
  }
}

const Enum<MachineLearningRegressionAlgorithmType>& RegressionTreeAlgorithm::getType() const {
  return MachineLearningVocabulary::of(MachineLearningRegressionAlgorithmType::regressionTree);
}

std::shared_ptr<MachineLearningRegressionAlgorithm> RegressionTreeAlgorithm::clone() const {
  return std::make_shared<RegressionTreeAlgorithm>(*this);
}

RegressionTreeNodeInfo RegressionTreeAlgorithm::getRegressionTreeNodeInfo(
    uint32_t attribute, const std::vector<uint32_t>& indexes) const {
  RegressionTreeNodeInfo info;
  info.attribute = attribute;
  if (indexes.empty()) return info;
  const std::vector<Entry>& entries = getWorkDataset();
  std::vector<uint32_t> sorted = indexes;
  std::stable_sort(sorted.begin(), sorted.end(), [&entries, attribute](uint32_t a, uint32_t b) {
    return entries[a].attributes[attribute] < entries[b].attributes[attribute];
  });
  const bool weighted = isWeightedAverage();
  std::vector<double> values;
  std::vector<double> weights;
  for (uint32_t index : sorted) {
    values.push_back(entries[index].value);
    if (weighted)
      weights.push_back(MachineLearningRegressionAverageCalculator::weight(entries[index]));
  }
  // The sides are copied into buffers that keep their room from trial to trial: the sweep is
  // quadratic, and fresh vectors at every trial would cost more than the arithmetic.
  std::vector<double> side;
  std::vector<double> sideWeights;
  const auto averageOf = [&](std::size_t from, std::size_t to) {
    side.assign(values.begin() + from, values.begin() + to);
    if (weighted) sideWeights.assign(weights.begin() + from, weights.begin() + to);
    return MachineLearningRegressionAverageCalculator::make(getAverageCalculatorType().getType(),
                                                            side, sideWeights);
  };
  const auto ssrOf = [&values](std::size_t from, std::size_t to, double around) {
    double sum = 0.0;
    for (std::size_t i = from; i < to; ++i) sum += squaredResidual(values[i], around);
    return sum;
  };
  const std::size_t n = sorted.size();
  std::size_t cut = 0;
  // Each trial moves one more entry to the lower side, the last leaving the upper side empty.
  for (std::size_t leftSize = 1; leftSize <= n; ++leftSize) {
    const double ssr =
        ssrOf(0, leftSize, averageOf(0, leftSize)) + ssrOf(leftSize, n, averageOf(leftSize, n));
    if (NumericalUtils::subtractDoubles(info.bestSSR, ssr, kTolerance) > 0.0) {
      info.bestSSR = ssr;
      cut = leftSize - 1;
    }
  }
  info.leftIndexes.assign(sorted.begin(), sorted.begin() + cut + 1);
  info.rightIndexes.assign(sorted.begin() + cut + 1, sorted.end());
  info.average = averageOf(0, n);
  return info;
}

RegressionTreeNodeInfo RegressionTreeAlgorithm::getBestRegressionTreeNodeInfo(
    const std::vector<uint32_t>& indexes) const {
  if (getNumberOfAttributes() == 0) {
    RegressionTreeNodeInfo info;
    info.leftIndexes = indexes;
    info.average = sideAverage(indexes);
    return info;
  }
  RegressionTreeNodeInfo best = getRegressionTreeNodeInfo(0, indexes);
  for (uint32_t attribute = 1; attribute < getNumberOfAttributes(); ++attribute) {
    RegressionTreeNodeInfo candidate = getRegressionTreeNodeInfo(attribute, indexes);
    if (NumericalUtils::subtractDoubles(best.bestSSR, candidate.bestSSR, kTolerance) > 0.0) {
      best = std::move(candidate);
    }
  }
  return best;
}

double RegressionTreeAlgorithm::getTotalSSR(const RegressionTreeNodeInfo& info) const {
  return sideSSR(info.leftIndexes, info.average) + sideSSR(info.rightIndexes, info.average);
}

double RegressionTreeAlgorithm::getLeftSSR(const RegressionTreeNodeInfo& info) const {
  return sideSSR(info.leftIndexes, sideAverage(info.leftIndexes));
}

double RegressionTreeAlgorithm::getRightSSR(const RegressionTreeNodeInfo& info) const {
  return sideSSR(info.rightIndexes, sideAverage(info.rightIndexes));
}

double RegressionTreeAlgorithm::getImprovement(double totalSSR,
                                               const std::vector<uint32_t>& indexes) const {
  return improvement(totalSSR, getBestRegressionTreeNodeInfo(indexes));
}

double RegressionTreeAlgorithm::improvement(double totalSSR,
                                            const RegressionTreeNodeInfo& info) const {
  return 1.0 - (getLeftSSR(info) + getRightSSR(info)) / totalSSR;
}

double RegressionTreeAlgorithm::getRelativeError() const {
  const std::vector<Entry>& entries = getWorkDataset();
  const double mean = average(entries);
  double residuals = 0.0;
  double deviations = 0.0;
  for (const Entry& entry : entries) {
    const double predicted = getValue(regressionTree.getRoot(), entry.attributes);
    residuals += (entry.value - predicted) * (entry.value - predicted);
    deviations += (entry.value - mean) * (entry.value - mean);
  }
  return 1.0 - (1.0 - residuals / deviations);
}

double RegressionTreeAlgorithm::getValue(const std::shared_ptr<RegressionTreeNode>& node,
                                         const std::vector<double>& x) const {
  if (!node) throw std::runtime_error("RegressionTreeAlgorithm::getValue(): tree not built");
  const RegressionTreeNode* at = node.get();
  while (!at->isLeaf()) {
    const bool below =
        NumericalUtils::subtractDoubles(x[at->getAttribute()], at->getValue(), kTolerance) < 0.0;
    at = (below ? at->getLeft() : at->getRight()).get();
  }
  return at->getValue();
}

const RegressionTree& RegressionTreeAlgorithm::getRegressionTree() const { return regressionTree; }

void RegressionTreeAlgorithm::setRegressionTree(const RegressionTree& tree) {
  regressionTree = tree;
}

uint32_t RegressionTreeAlgorithm::getNumberOfLeaves() const { return numberOfLeaves; }

uint32_t RegressionTreeAlgorithm::getMaxNumberOfLeaves() const { return maxNumberOfLeaves; }

void RegressionTreeAlgorithm::setMaxNumberOfLeaves(uint32_t n) { maxNumberOfLeaves = n; }

uint32_t RegressionTreeAlgorithm::getMaxDepth() const { return maxDepth; }

void RegressionTreeAlgorithm::setMaxDepth(uint32_t n) { maxDepth = n; }

double RegressionTreeAlgorithm::getCp() const { return cp; }

void RegressionTreeAlgorithm::setCp(double value) { cp = std::max(value, 0.0); }

int RegressionTreeAlgorithm::getMaxNumberOfSplits() const { return maxNumberOfSplits; }

int RegressionTreeAlgorithm::getNumberOfSplits() const { return numberOfSplits; }

std::shared_ptr<RegressionTreeNode> RegressionTreeAlgorithm::makeNode(
    const RegressionTreeNodeInfo& info, uint32_t depth) {
  auto node = std::make_shared<RegressionTreeNode>();
  const std::size_t size = info.leftIndexes.size() + info.rightIndexes.size();
  node->setNumberOfEntries(static_cast<uint32_t>(size));
  const double totalSSR = getTotalSSR(info);
  node->setAttribute(info.attribute);
  if (isSplit(info, size, totalSSR, depth)) {
    split(*node, info, totalSSR, depth);
  } else {
    node->setValue(info.average);
  }
  return node;
}

bool RegressionTreeAlgorithm::isSplit(const RegressionTreeNodeInfo& info, std::size_t size,
                                      double totalSSR, uint32_t depth) const {
  return size >= getNumberOfEntriesForAverage() && size >= 2 &&
         NumericalUtils::subtractDoubles(totalSSR, 0.0, kTolerance) > 0.0 &&
         !info.rightIndexes.empty() && numberOfLeaves + 1 <= maxNumberOfLeaves &&
         depth + 1 <= maxDepth && numberOfSplits < maxNumberOfSplits;
}

void RegressionTreeAlgorithm::split(RegressionTreeNode& node, const RegressionTreeNodeInfo& info,
                                    double totalSSR, uint32_t depth) {
  node.setValue(getWorkDataset()[info.rightIndexes.front()].attributes[info.attribute]);
  ++numberOfSplits;
  ++numberOfLeaves;
  // Each side's best cut tells its improvement and is the start of its own node.
  const RegressionTreeNodeInfo left = getBestRegressionTreeNodeInfo(info.leftIndexes);
  const RegressionTreeNodeInfo right = getBestRegressionTreeNodeInfo(info.rightIndexes);
  if (NumericalUtils::subtractDoubles(improvement(totalSSR, left), improvement(totalSSR, right),
                                      kTolerance) < 0.0) {
    node.setLeft(makeNode(left, depth + 1));
    node.setRight(makeNode(right, depth + 1));
  } else {
    node.setRight(makeNode(right, depth + 1));
    node.setLeft(makeNode(left, depth + 1));
  }
}

void RegressionTreeAlgorithm::growTree() {
  numberOfLeaves = 1;
  numberOfSplits = 0;
  std::vector<uint32_t> indexes(getWorkDataset().size());
  std::iota(indexes.begin(), indexes.end(), 0u);
  regressionTree.setRoot(makeNode(getBestRegressionTreeNodeInfo(indexes), 0));
}

void RegressionTreeAlgorithm::searchComplexity() {
  maxNumberOfSplits = -1;
  double previous = NumericalUtils::getMaxDouble();
  double reduction = 0.0;
  do {
    ++maxNumberOfSplits;
    growTree();
    const double relative = getRelativeError();
    reduction = NumericalUtils::subtractDoubles(previous, relative, kTolerance);
    previous = relative;
  } while (reduction > cp);
  --maxNumberOfSplits;
  growTree();
}

double RegressionTreeAlgorithm::sideSSR(const std::vector<uint32_t>& indexes, double around) const {
  const std::vector<Entry>& entries = getWorkDataset();
  double sum = 0.0;
  for (uint32_t index : indexes) sum += squaredResidual(entries[index].value, around);
  return sum;
}

double RegressionTreeAlgorithm::sideAverage(const std::vector<uint32_t>& indexes) const {
  const std::vector<Entry>& entries = getWorkDataset();
  std::vector<double> values;
  std::vector<double> weights;
  values.reserve(indexes.size());
  const bool weighted = isWeightedAverage();
  for (uint32_t index : indexes) {
    values.push_back(entries[index].value);
    if (weighted)
      weights.push_back(MachineLearningRegressionAverageCalculator::weight(entries[index]));
  }
  return MachineLearningRegressionAverageCalculator::make(getAverageCalculatorType().getType(),
                                                          values, weights);
}
