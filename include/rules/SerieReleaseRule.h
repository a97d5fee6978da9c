#pragma once

#include <memory>

#include "common/Serie.h"
#include "core/ReleaseRule.h"

// Releases read from a dated series: the value of the series at each date.
class SerieReleaseRule : public ReleaseRule {
 public:
  // Starts with an empty "Vazão liberada" series over the default interval.
  SerieReleaseRule();

  Enum<ReleaseRuleType> getType() const override;
  // The value of the series at date, m³/s; -999.0 where the series has no value.
  double getRelease(const Date& date) const override;
  // ReleaseRule::copy() and a copy of the series that the copy owns alone.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;

  // The series of releases, m³/s, shared with whoever set it.
  const std::shared_ptr<Serie>& getReleaseSerie() const { return releaseSerie; }
  // Shares serie as the series of releases, m³/s. Throws std::invalid_argument
  // "SerieReleaseRule::setReleaseSerie(): the serie is nullptr" for none.
  void setReleaseSerie(const std::shared_ptr<Serie>& serie);

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<SerieReleaseRule>();
  }

 private:
  std::shared_ptr<Serie> releaseSerie;
};
