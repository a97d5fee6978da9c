#pragma once

#include <memory>
#include <vector>

#include "core/Element.h"
#include "core/SettingsManager.h"
#include "optimization/ObjectiveFunctionTypeEnum.h"
#include "vocabulary/Enum.h"

// One number read from the results of a finished simulation, for a swarm that minimises: a
// function made with minimize false gives its value negated. Each function walks its elements in
// order from 0.0; an element of another type or a disabled one adds nothing. index is the result
// set (window) to read; an index without results throws std::invalid_argument
// "Invalid index value!", a result set without the needed kind "Invalid serie type!".
class ObjectiveFunction {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;

  ObjectiveFunction(bool minimize, Elements elements);
  virtual ~ObjectiveFunction() = default;

  double getValue(unsigned int index) const;
  virtual const ObjectiveFunctionTypeEnum& getType() const = 0;
  // The settings of the scenario whose rules a function reads, for the functions that read
  // rules; without them they read the manager's current scenario.
  virtual void bindSettings(const SettingsManager*) {}
  virtual Enum<Unit> getUnit() const = 0;

  bool isMinimization() const { return minimize; }
  const Elements& getElements() const { return elements; }

 protected:
  // The value of one enabled element of the function's types, before the sign.
  virtual double valueOf(const Element& element, unsigned int index) const = 0;
  // The sum of every value of the element's result series of kind in window index.
  static double sumOf(const Element& element, SerieType kind, unsigned int index);

 private:
  bool minimize;
  Elements elements;
};

// The volume evaporated from the reservoirs: every value of "Volume evaporado", hm³.
class EvaporationLossFunction : public ObjectiveFunction {
 public:
  using ObjectiveFunction::ObjectiveFunction;
  const ObjectiveFunctionTypeEnum& getType() const override;
  Enum<Unit> getUnit() const override;

 protected:
  double valueOf(const Element& element, unsigned int index) const override;
};

// The periods in which the demands failed: every value of "Falha no atendimento" (1 a failure).
class NumberOfFailuresFunction : public ObjectiveFunction {
 public:
  using ObjectiveFunction::ObjectiveFunction;
  const ObjectiveFunctionTypeEnum& getType() const override;
  Enum<Unit> getUnit() const override;

 protected:
  double valueOf(const Element& element, unsigned int index) const override;
};

// The volume the demands lacked: "Escassez de oferta" (m³/s) turned into hm³ period by period,
// so that months of different length weigh differently.
class ShortageVolumeFunction : public ObjectiveFunction {
 public:
  using ObjectiveFunction::ObjectiveFunction;
  const ObjectiveFunctionTypeEnum& getType() const override;
  Enum<Unit> getUnit() const override;

 protected:
  double valueOf(const Element& element, unsigned int index) const override;
};

// The volume spilled by the reservoirs: every value of "Volume vertido", hm³.
class SpillVolumeFunction : public ObjectiveFunction {
 public:
  using ObjectiveFunction::ObjectiveFunction;
  const ObjectiveFunctionTypeEnum& getType() const override;
  Enum<Unit> getUnit() const override;

 protected:
  double valueOf(const Element& element, unsigned int index) const override;
};

// The cost of pumping on the links with a pumping add-on: every value of "Custo de bombeamento".
class PumpingCostFunction : public ObjectiveFunction {
 public:
  using ObjectiveFunction::ObjectiveFunction;
  const ObjectiveFunctionTypeEnum& getType() const override;
  Enum<Unit> getUnit() const override;

 protected:
  double valueOf(const Element& element, unsigned int index) const override;
};

// How far the guarantees that the rules by hydrological state achieved lie from those they
// require: for each enabled reservoir of the current scenario whose rule is an optimisable rule
// by hydrological state, the sum over its states of (required - achieved)² / required.
class HedgingCurveFunction : public ObjectiveFunction {
 public:
  using ObjectiveFunction::ObjectiveFunction;
  const ObjectiveFunctionTypeEnum& getType() const override;
  Enum<Unit> getUnit() const override;
  void bindSettings(const SettingsManager* value) override { settings = value; }

 protected:
  double valueOf(const Element& element, unsigned int index) const override;

 private:
  const SettingsManager* settingsOfRules() const;

  const SettingsManager* settings = nullptr;
};
