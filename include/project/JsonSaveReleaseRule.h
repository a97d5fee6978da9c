#pragma once

#include <memory>
#include <string>

#include "core/ReleaseRule.h"

// Writes a release rule object. A rule without parameters ("Nenhuma regra de liberação") is
// written {} by this class; each other rule has a writer deriving from it. Simulation rules spell
// the key "Release" with a capital, as the format has it.
class JsonSaveReleaseRule {
 public:
  explicit JsonSaveReleaseRule(std::shared_ptr<ReleaseRule> rule);
  virtual ~JsonSaveReleaseRule() = default;

  // The rule object. Throws std::bad_cast when the rule is not of the writer's class.
  virtual std::string toJson() const;

 protected:
  // The rule as T.
  template <typename T>
  const T& getRule() const {
    return dynamic_cast<const T&>(*rule);
  }

 private:
  std::shared_ptr<ReleaseRule> rule;
};

// {"Release":<m³/s>}
class JsonSaveConstReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;
};

// {"Release":[twelve releases, January first, m³/s]}
class JsonSavePeriodicReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;
};

// {"Vazão liberada":[{"julianDay":..,"value":..},...]}: the series of releases (m³/s) under its
// own name.
class JsonSaveSerieReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;
};
