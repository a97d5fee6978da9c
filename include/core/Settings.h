#pragma once

#include <memory>

// How a scenario uses one element: its allocation and rule in a rule scenario, its priorities in
// a priority scenario. Settings belong to the scenario and are looked up by element id.
class Settings {
 public:
  virtual ~Settings() = default;
  // Takes the values of other, which must be of the same class.
  virtual void copyFrom(const std::shared_ptr<Settings>& other) = 0;
  // A deep copy of the same class.
  virtual std::shared_ptr<Settings> copy() const = 0;
};

// Gives copy() to a settings class through its copyFrom().
template <typename Derived, typename Base = Settings>
class CopyableSettings : public Base {
 public:
  std::shared_ptr<Settings> copy() const override {
    auto result = std::make_shared<Derived>();
    result->copyFrom(std::make_shared<Derived>(static_cast<const Derived&>(*this)));
    return result;
  }
};
