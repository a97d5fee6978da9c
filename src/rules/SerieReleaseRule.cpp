#include "rules/SerieReleaseRule.h"

#include <stdexcept>

#include "vocabulary/Vocabulary.h"

SerieReleaseRule::SerieReleaseRule()
    : releaseSerie(
          std::make_shared<Serie>(Interval(), Vocabulary::of(SerieType::releasedFlow),
                                  Vocabulary::of(Vocabulary::unitOf(SerieType::releasedFlow)))) {}

Enum<ReleaseRuleType> SerieReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::serie);
}

double SerieReleaseRule::getRelease(const Date& date) const { return releaseSerie->getValue(date); }

std::shared_ptr<ReleaseRule> SerieReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<SerieReleaseRule>(ReleaseRule::copy());
  rule->releaseSerie = releaseSerie->copy();
  return rule;
}

void SerieReleaseRule::setReleaseSerie(const std::shared_ptr<Serie>& serie) {
  if (!serie) {
    throw std::invalid_argument("SerieReleaseRule::setReleaseSerie(): the serie is nullptr");
  }
  releaseSerie = serie;
}
