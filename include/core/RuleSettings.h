#pragma once

#include <map>
#include <memory>
#include <vector>

#include "core/Settings.h"

// The settings of a node in a rule scenario: its allocation matrix. matrix[nodeId] lists the
// total flows through the node at which the allocation is defined (m³/s, ascending); for each
// outgoing link, matrix[linkId] lists the flow that link takes at each of those totals (m³/s).
// All rows have the same length, the number of lines.
class RuleSettings : public Settings {
 public:
  using AllocationMatrix = std::map<unsigned int, std::vector<double>>;

  const AllocationMatrix& getAllocation() const { return allocation; }
  // Throws std::runtime_error "RuleSettings::setAllocation(): element id is not configured."
  // before setElementId.
  void setAllocation(const AllocationMatrix& matrix);
  unsigned int getElementId() const { return elementId; }
  bool isElementIdConfigured() const { return elementIdConfigured; }
  void setElementId(unsigned int id);

  // Appends a line of zeros to the node and to every link.
  void addAllocationLine();
  // A new link column with as many zeros as the node has lines.
  void addAllocationLink(unsigned int linkId);
  void removeAllocationLink(unsigned int linkId);

  // The matrix as numbers: a first row of ids (the node's first), then one row per line.
  std::vector<std::vector<double>> getMatrixFromAllocationMatrix() const;
  // Takes the numeric form; an empty matrix is ignored. Throws std::runtime_error like
  // setAllocation without an element id, and std::invalid_argument
  // "setAllocationByMatrixOfDouble(): Invalid elementId in matrix" when the first id is not the
  // node's.
  void setAllocationByMatrixOfDouble(const std::vector<std::vector<double>>& matrix);

  void copyFrom(const std::shared_ptr<Settings>& other) override;

 private:
  void requireElementId() const;

  unsigned int elementId = 0;
  bool elementIdConfigured = false;
  AllocationMatrix allocation;
};

class DemandRuleSettings : public CopyableSettings<DemandRuleSettings, RuleSettings> {};
class JunctionRuleSettings : public CopyableSettings<JunctionRuleSettings, RuleSettings> {};
class BasinRuleSettings : public CopyableSettings<BasinRuleSettings, RuleSettings> {};
