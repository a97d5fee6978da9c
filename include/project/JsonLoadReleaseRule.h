#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "common/Serie.h"
#include "core/ReleaseRule.h"

class Scenario;

// Reads a release rule object into a rule of its type. A rule without parameters ("Nenhuma regra
// de liberação") reads nothing, by this class; each other rule has a reader deriving from it.
// The keys of a rule are required.
class JsonLoadReleaseRule {
 public:
  // A reader into rule, a rule of the reader's type held in scenario.
  JsonLoadReleaseRule(std::shared_ptr<ReleaseRule> rule, std::shared_ptr<Scenario> scenario);
  virtual ~JsonLoadReleaseRule() = default;

  // Reads object into the rule. Throws JsonLoadException for a missing key,
  // nlohmann::json::type_error for a value of the wrong type, the rule's own exceptions for values
  // it refuses, and std::bad_cast when the rule is not of the reader's class.
  virtual void load(const nlohmann::json& object) const;

 protected:
  // The rule as T.
  template <typename T>
  T& getRule() const {
    return dynamic_cast<T&>(*rule);
  }
  const Scenario& getScenario() const { return *scenario; }
  // A series of releases (m³/s) over the scenario's interval from the list
  // [{"julianDay":..,"value":..},...] of member key.
  std::shared_ptr<Serie> loadReleaseSerie(const nlohmann::json& object,
                                          const std::string& key) const;

 private:
  std::shared_ptr<ReleaseRule> rule;
  std::shared_ptr<Scenario> scenario;
};

// Reads {"Release":<m³/s>}.
class JsonLoadConstReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;
};

// Reads {"Release":[twelve releases, m³/s]}.
class JsonLoadPeriodicReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;
};

// Reads the series of releases under the name "Vazão liberada", giving it the scenario's interval.
class JsonLoadSerieReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;
};
