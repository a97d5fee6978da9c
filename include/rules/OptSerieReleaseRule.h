#pragma once

#include <memory>

#include "common/Serie.h"
#include "rules/OptReleaseRule.h"

// The optimisable twin of the rule by series: the optimiser chooses the release of every date on
// which the flag series holds 1.0, between 0 and maxRelease; other dates keep the release series'.
class OptSerieReleaseRule : public ReleaseRule, public OptReleaseRule {
 public:
  // Starts with empty release and flag series over the default interval.
  OptSerieReleaseRule();

  Enum<ReleaseRuleType> getType() const override;
  // The release series' value at date, m³/s; -999.0 where it has none.
  double getRelease(const Date& date) const override;
  // ReleaseRule::copy() and copies of both series that the copy owns alone.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;
  // The number of dates whose flag is 1.0.
  unsigned int getNumOfDecisionVars() const override;
  // Each flagged date, in date order, takes value * maxRelease.
  void setDecisionVars(const std::vector<double>& values) override;
  // A SerieReleaseRule with the release series copied date by date.
  std::shared_ptr<ReleaseRule> convertToReleaseRule() const override;

  // The releases, m³/s, shared with whoever set them. Throws std::invalid_argument
  // "OptSerieReleaseRule::setReleaseSerie(): the serie is nullptr" for none.
  const std::shared_ptr<Serie>& getReleaseSerie() const { return releaseSerie; }
  void setReleaseSerie(const std::shared_ptr<Serie>& serie);
  // The flags: 1.0 on the dates to optimise. Throws std::invalid_argument
  // "OptSerieReleaseRule::setToOptSerie(): the serie is nullptr" for none.
  const std::shared_ptr<Serie>& getToOptSerie() const { return toOptSerie; }
  void setToOptSerie(const std::shared_ptr<Serie>& serie);
  // The largest release the optimiser may choose, m³/s. Throws std::invalid_argument
  // "OptSerieReleaseRule::setMaxRelease(): the maxRelease is a negative value" below 0.
  double getMaxRelease() const { return maxRelease; }
  void setMaxRelease(double value);
  // Gives both series the interval.
  void setSeriesInterval(const Interval& value);

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<OptSerieReleaseRule>();
  }

 private:
  template <typename Visit>
  void forEachFlaggedDate(Visit visit) const;

  std::shared_ptr<Serie> releaseSerie;
  std::shared_ptr<Serie> toOptSerie;
  double maxRelease = 0.0;  // m³/s
};
