#include "rules/OptSerieReleaseRule.h"

#include <stdexcept>

#include "rules/SerieReleaseRule.h"
#include "vocabulary/Vocabulary.h"

namespace {

constexpr double kFlag = 1.0;

std::shared_ptr<Serie> emptyReleaseSerie() {
  return std::make_shared<Serie>(Interval(), Vocabulary::of(SerieType::releasedFlow),
                                 Vocabulary::of(Vocabulary::unitOf(SerieType::releasedFlow)));
}

}  // namespace

OptSerieReleaseRule::OptSerieReleaseRule()
    : releaseSerie(emptyReleaseSerie()), toOptSerie(emptyReleaseSerie()) {}

Enum<ReleaseRuleType> OptSerieReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::optSerie);
}

double OptSerieReleaseRule::getRelease(const Date& date) const {
  return releaseSerie->getValue(date);
}

std::shared_ptr<ReleaseRule> OptSerieReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<OptSerieReleaseRule>(ReleaseRule::copy());
  rule->releaseSerie = releaseSerie->copy();
  rule->toOptSerie = toOptSerie->copy();
  rule->maxRelease = maxRelease;
  return rule;
}

template <typename Visit>
void OptSerieReleaseRule::forEachFlaggedDate(Visit visit) const {
  for (const auto& [julian, flag] : toOptSerie->getMapOfJulianToValues()) {
    if (flag == kFlag) visit(julian);
  }
}

unsigned int OptSerieReleaseRule::getNumOfDecisionVars() const {
  unsigned int count = 0;
  forEachFlaggedDate([&](unsigned int) { ++count; });
  return count;
}

void OptSerieReleaseRule::setDecisionVars(const std::vector<double>& values) {
  checkDecisionVarsSize(values, "OptSerieReleaseRule");
  auto value = values.begin();
  forEachFlaggedDate(
      [&](unsigned int julian) { releaseSerie->setValue(julian, *value++ * maxRelease); });
}

std::shared_ptr<ReleaseRule> OptSerieReleaseRule::convertToReleaseRule() const {
  auto rule = std::make_shared<SerieReleaseRule>();
  rule->setReleaseSerie(releaseSerie->copy());
  return rule;
}

void OptSerieReleaseRule::setReleaseSerie(const std::shared_ptr<Serie>& serie) {
  if (!serie) {
    throw std::invalid_argument("OptSerieReleaseRule::setReleaseSerie(): the serie is nullptr");
  }
  releaseSerie = serie;
}

void OptSerieReleaseRule::setToOptSerie(const std::shared_ptr<Serie>& serie) {
  if (!serie) {
    throw std::invalid_argument("OptSerieReleaseRule::setToOptSerie(): the serie is nullptr");
  }
  toOptSerie = serie;
}

void OptSerieReleaseRule::setMaxRelease(double value) {
  checkMaxRelease(value, "OptSerieReleaseRule");
  maxRelease = value;
}

void OptSerieReleaseRule::setSeriesInterval(const Interval& value) {
  releaseSerie->setInterval(value);
  toOptSerie->setInterval(value);
}
