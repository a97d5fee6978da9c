#pragma once

#include <array>
#include <memory>
#include <vector>

#include "core/LinkAddonPumping.h"

// A row of a pumping table while a user edits it: the values, whether the row counts, and the
// row it came from (none for a new row), into which dumpToSource() writes the edit back.
template <typename Source>
class TransientPumpingStructure {
 public:
  virtual ~TransientPumpingStructure() = default;
  virtual void dumpToSource() = 0;
  virtual bool isEnabled() const = 0;
  const std::shared_ptr<Source>& getSource() const { return source; }

 protected:
  explicit TransientPumpingStructure(std::shared_ptr<Source> source) : source(std::move(source)) {}
  std::shared_ptr<Source>& mutableSource() { return source; }

 private:
  std::shared_ptr<Source> source;
};

class TransientPumpingPeriod : public TransientPumpingStructure<PumpingPeriod> {
 public:
  TransientPumpingPeriod(std::shared_ptr<PumpingPeriod> source, bool enabled);
  void dumpToSource() override;
  bool isEnabled() const override { return enabled; }

  unsigned int initialValue;  // min
  unsigned int finalValue;    // min
  bool enabled;
};

class TransientPumpingAddon : public TransientPumpingStructure<PumpingAddon> {
 public:
  TransientPumpingAddon(std::shared_ptr<PumpingAddon> source, bool enabled);
  void dumpToSource() override;
  bool isEnabled() const override { return enabled; }

  double flow;  // m³/s
  std::vector<std::shared_ptr<TransientPumpingPeriod>> periods;
  bool enabled;
};

class TransientPumpingFlowCost : public TransientPumpingStructure<PumpingFlowCost> {
 public:
  explicit TransientPumpingFlowCost(std::shared_ptr<PumpingFlowCost> source);
  // A blank row: every value empty (-999.0).
  void init();
  void dumpToSource() override;
  // True when the row holds a flow and all twelve costs.
  bool isEnabled() const override;

  // Column 0 is the flow, column c from 1 the cost of month c.
  double getColumn(std::size_t column) const;
  void setColumn(std::size_t column, double value);

  double flow;                  // m³/s
  std::array<double, 12> costs;  // R$
};
