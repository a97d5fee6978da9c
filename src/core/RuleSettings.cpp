#include "core/RuleSettings.h"

#include <stdexcept>

void RuleSettings::setAllocation(const AllocationMatrix& matrix) {
  requireElementId();
  allocation = matrix;
}

void RuleSettings::setElementId(unsigned int id) {
  elementId = id;
  elementIdConfigured = true;
}

void RuleSettings::addAllocationLine() {
  allocation[elementId].push_back(0.0);
  for (auto& entry : allocation) {
    if (entry.first != elementId) entry.second.push_back(0.0);
  }
}

void RuleSettings::addAllocationLink(unsigned int linkId) {
  allocation[linkId] = std::vector<double>(allocation[elementId].size(), 0.0);
}

void RuleSettings::removeAllocationLink(unsigned int linkId) { allocation.erase(linkId); }

std::vector<std::vector<double>> RuleSettings::getMatrixFromAllocationMatrix() const {
  auto node = allocation.find(elementId);
  if (node == allocation.end()) return {};
  std::vector<const std::pair<const unsigned int, std::vector<double>>*> columns = {&*node};
  for (const auto& entry : allocation) {
    if (entry.first != elementId) columns.push_back(&entry);
  }
  std::vector<std::vector<double>> matrix(node->second.size() + 1);
  for (const auto* column : columns) {
    matrix[0].push_back(static_cast<double>(column->first));
    for (std::size_t line = 0; line < node->second.size(); ++line) {
      matrix[line + 1].push_back(column->second.at(line));
    }
  }
  return matrix;
}

void RuleSettings::setAllocationByMatrixOfDouble(const std::vector<std::vector<double>>& matrix) {
  if (matrix.empty()) return;
  requireElementId();
  if (matrix[0].empty() || static_cast<unsigned int>(matrix[0][0]) != elementId) {
    throw std::invalid_argument("setAllocationByMatrixOfDouble(): Invalid elementId in matrix");
  }
  allocation.clear();
  for (std::size_t column = 0; column < matrix[0].size(); ++column) {
    std::vector<double>& values = allocation[static_cast<unsigned int>(matrix[0][column])];
    for (std::size_t row = 1; row < matrix.size(); ++row) values.push_back(matrix[row].at(column));
  }
}

void RuleSettings::copyFrom(const std::shared_ptr<Settings>& other) {
  const auto& source = static_cast<const RuleSettings&>(*other);
  elementId = source.elementId;
  elementIdConfigured = source.elementIdConfigured;
  allocation = source.allocation;
}

void RuleSettings::requireElementId() const {
  if (!elementIdConfigured) {
    throw std::runtime_error("RuleSettings::setAllocation(): element id is not configured.");
  }
}
