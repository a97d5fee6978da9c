#include "machinelearning/RegressionRandomForestAlgorithm.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>
#include <stdexcept>

#include "machinelearning/MinimalStandardGenerator.h"

namespace {

// The seed the next choice of TreeInfos is drawn with, if the process asked for repeatable draws.
struct ForestSeed {
  std::optional<unsigned long> base;
  unsigned long forestsSeeded = 0;
};

ForestSeed& forestSeed() {
  static ForestSeed seed;
  return seed;
}

unsigned long nextSeed() {
  ForestSeed& seed = forestSeed();
  if (!seed.base) return std::random_device{}();
  return *seed.base + seed.forestsSeeded++;
}

std::vector<uint32_t> firstIndexes(uint32_t n) {
  std::vector<uint32_t> indexes(n);
  std::iota(indexes.begin(), indexes.end(), 0u);
  return indexes;
}

}  // namespace

RegressionRandomForestAlgorithm::RegressionRandomForestAlgorithm(
    const RegressionRandomForestAlgorithm& other)
    : MachineLearningRegressionAlgorithm(other),
      numberOfTrees(other.numberOfTrees),
      numberOfAttributesInTree(other.numberOfAttributesInTree),
      datasetPercentInTree(other.datasetPercentInTree),
      replacement(other.replacement),
      vecOfTreeInfo(other.vecOfTreeInfo),
      maxNumberOfLeaves(other.maxNumberOfLeaves),
      maxDepth(other.maxDepth),
      cp(other.cp) {
  copyTrees(other);
}

RegressionRandomForestAlgorithm& RegressionRandomForestAlgorithm::operator=(
    const RegressionRandomForestAlgorithm& other) {
  if (this != &other) copyFrom(other);
  return *this;
}

void RegressionRandomForestAlgorithm::setSeed(std::optional<unsigned long> seed) {
  forestSeed() = ForestSeed{seed, 0};
}

double RegressionRandomForestAlgorithm::run(const std::vector<double>& x) {
  if (x.size() != getNumberOfAttributes()) {
    throw std::invalid_argument("RegressionRandomForestAlgorithm::run(): attributes");
  }
  if (vectorOfRegressionTree.size() != vecOfTreeInfo.size()) {
    throw std::runtime_error(
        "RegressionRandomForestAlgorithm::run(): trees and vecOfTreeInfo differ");
  }
  double sum = 0.0;
  for (std::size_t i = 0; i < vectorOfRegressionTree.size(); ++i) {
    std::vector<double> attributes;
    for (uint32_t attribute : vecOfTreeInfo[i].attributes) attributes.push_back(x[attribute]);
    sum += vectorOfRegressionTree[i]->runNormal(attributes);
  }
  // No tree gives 0 / 0: a forest that was never grown has no answer.
  return sum / static_cast<double>(vectorOfRegressionTree.size());
}

void RegressionRandomForestAlgorithm::build() {
  workEntries() = getDataset();
  buildTrees();
}

void RegressionRandomForestAlgorithm::buildOptimize() {
  buildTreesInfoOptimize();
  buildTrees();
}

void RegressionRandomForestAlgorithm::copyFrom(const MachineLearningRegressionAlgorithm& other) {
  if (&other == this) return;
  MachineLearningRegressionAlgorithm::copyFrom(other);
  if (const auto* forest = dynamic_cast<const RegressionRandomForestAlgorithm*>(&other)) {
    numberOfTrees = forest->numberOfTrees;
    numberOfAttributesInTree = forest->numberOfAttributesInTree;
    datasetPercentInTree = forest->datasetPercentInTree;
    replacement = forest->replacement;
    vecOfTreeInfo = forest->vecOfTreeInfo;
    maxNumberOfLeaves = forest->maxNumberOfLeaves;
    maxDepth = forest->maxDepth;
    cp = forest->cp;
    copyTrees(*forest);
  }
}

const Enum<MachineLearningRegressionAlgorithmType>& RegressionRandomForestAlgorithm::getType()
    const {
  return MachineLearningVocabulary::of(MachineLearningRegressionAlgorithmType::randomForest);
}

std::shared_ptr<MachineLearningRegressionAlgorithm> RegressionRandomForestAlgorithm::clone() const {
  return std::make_shared<RegressionRandomForestAlgorithm>(*this);
}

void RegressionRandomForestAlgorithm::buildTreesInfo() {
  workEntries() = getDataset();
  buildTreesInfoOptimize();
}

void RegressionRandomForestAlgorithm::buildTreesInfoOptimize() {
  vecOfTreeInfo.clear();
  MinimalStandardGenerator generator(nextSeed());
  const auto n = static_cast<uint32_t>(getWorkDataset().size());
  const auto rowsInTree = static_cast<uint32_t>(std::trunc(n * datasetPercentInTree / 100.0));
  for (uint32_t tree = 0; tree < numberOfTrees; ++tree) {
    TreeInfo info;
    info.attributes = firstIndexes(getNumberOfAttributes());
    generator.shuffle(info.attributes);
    info.attributes.resize(std::min(numberOfAttributesInTree, getNumberOfAttributes()));
    std::sort(info.attributes.begin(), info.attributes.end());
    if (replacement) {
      for (uint32_t row = 0; row < n; ++row) info.rows.push_back(generator.indexBelow(n));
    } else {
      info.rows = firstIndexes(n);
    }
    generator.shuffle(info.rows);
    info.rows.resize(rowsInTree);
    vecOfTreeInfo.push_back(std::move(info));
  }
}

void RegressionRandomForestAlgorithm::buildTrees() {
  if (vecOfTreeInfo.empty()) return;
  vectorOfRegressionTree.clear();
  // One least split size for all trees, so that no tree is asked to split more rows than it has.
  const auto minSplitValue = std::min<uint32_t>(
      getNumberOfEntriesForAverage(), static_cast<uint32_t>(vecOfTreeInfo.front().rows.size()));
  for (const TreeInfo& info : vecOfTreeInfo) {
    vectorOfRegressionTree.push_back(makeTree(info, minSplitValue));
  }
}

uint32_t RegressionRandomForestAlgorithm::getNumberOfTrees() const { return numberOfTrees; }

void RegressionRandomForestAlgorithm::setNumberOfTrees(uint32_t n) {
  if (n == 0) {
    throw std::invalid_argument(
        "RegressionRandomForestAlgorithm::setNumberOfTrees(): numberOfTrees must be positive");
  }
  numberOfTrees = n;
}

uint32_t RegressionRandomForestAlgorithm::getNumberOfAttributesInTree() const {
  return numberOfAttributesInTree;
}

void RegressionRandomForestAlgorithm::setNumberOfAttributesInTree(uint32_t n) {
  numberOfAttributesInTree = n;
}

double RegressionRandomForestAlgorithm::getDatasetPercentInTree() const {
  return datasetPercentInTree;
}

void RegressionRandomForestAlgorithm::setDatasetPercentInTree(double percent) {
  if (!(percent >= 0.0 && percent <= 100.0)) {
    throw std::invalid_argument(
        "RegressionRandomForestAlgorithm::setDatasetPercentInTree(): percent outside [0, 100]");
  }
  datasetPercentInTree = percent;
}

bool RegressionRandomForestAlgorithm::isReplacement() const { return replacement; }

void RegressionRandomForestAlgorithm::setReplacement(bool value) { replacement = value; }

const std::vector<RegressionRandomForestAlgorithm::TreeInfo>&
RegressionRandomForestAlgorithm::getVecOfTreeInfo() const {
  return vecOfTreeInfo;
}

void RegressionRandomForestAlgorithm::setVecOfTreeInfo(const std::vector<TreeInfo>& infos) {
  for (const TreeInfo& info : infos) {
    for (uint32_t attribute : info.attributes) {
      if (attribute >= getNumberOfAttributes()) {
        throw std::out_of_range(
            "RegressionRandomForestAlgorithm::setVecOfTreeInfo(): attribute outside the "
            "attributes");
      }
    }
  }
  vecOfTreeInfo = infos;
  vectorOfRegressionTree.clear();
}

uint32_t RegressionRandomForestAlgorithm::getMaxNumberOfLeaves() const { return maxNumberOfLeaves; }

void RegressionRandomForestAlgorithm::setMaxNumberOfLeaves(uint32_t n) { maxNumberOfLeaves = n; }

uint32_t RegressionRandomForestAlgorithm::getMaxDepth() const { return maxDepth; }

void RegressionRandomForestAlgorithm::setMaxDepth(uint32_t n) { maxDepth = n; }

double RegressionRandomForestAlgorithm::getCp() const { return cp; }

void RegressionRandomForestAlgorithm::setCp(double value) { cp = std::max(value, 0.0); }

const std::vector<std::shared_ptr<RegressionTreeAlgorithm>>&
RegressionRandomForestAlgorithm::getVectorOfRegressionTree() const {
  return vectorOfRegressionTree;
}

std::shared_ptr<RegressionTreeAlgorithm> RegressionRandomForestAlgorithm::makeTree(
    const TreeInfo& info, uint32_t minSplitValue) const {
  std::vector<std::string> names;
  for (uint32_t attribute : info.attributes) names.push_back(getAttributeName(attribute));
  auto tree = std::make_shared<RegressionTreeAlgorithm>(
      static_cast<uint32_t>(info.attributes.size()), names, getValueName(), minSplitValue,
      getAverageCalculatorType().getType(), getDistanceCalculatorType().getType());
  tree->setMaxNumberOfLeaves(maxNumberOfLeaves);
  tree->setMaxDepth(maxDepth);
  tree->setCp(cp);
  const std::vector<Entry>& entries = getWorkDataset();
  for (uint32_t row : info.rows) {
    if (row >= entries.size()) {
      throw std::out_of_range(
          "RegressionRandomForestAlgorithm::buildTrees(): row outside the dataset");
    }
    std::vector<double> attributes;
    for (uint32_t attribute : info.attributes) {
      attributes.push_back(entries[row].attributes[attribute]);
    }
    tree->addEntry(attributes, entries[row].value);
  }
  tree->build();
  return tree;
}

void RegressionRandomForestAlgorithm::copyTrees(const RegressionRandomForestAlgorithm& other) {
  vectorOfRegressionTree.clear();
  for (const auto& tree : other.vectorOfRegressionTree) {
    vectorOfRegressionTree.push_back(
        std::static_pointer_cast<RegressionTreeAlgorithm>(tree->clone()));
  }
}
