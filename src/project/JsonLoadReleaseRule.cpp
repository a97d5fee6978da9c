#include "project/JsonLoadReleaseRule.h"

#include <vector>

#include "common/SerieFactory.h"
#include "core/Scenario.h"
#include "project/JsonLoadHelper.h"
#include "rules/ConstReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "vocabulary/Vocabulary.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

JsonLoadReleaseRule::JsonLoadReleaseRule(std::shared_ptr<ReleaseRule> rule,
                                         std::shared_ptr<Scenario> scenario)
    : rule(std::move(rule)), scenario(std::move(scenario)) {}

void JsonLoadReleaseRule::load(const json&) const {}

void JsonLoadConstReleaseRule::load(const json& object) const {
  getRule<ConstReleaseRule>().setRelease(Helper::getRequired<double>(object, "Release"));
}

void JsonLoadPeriodicReleaseRule::load(const json& object) const {
  getRule<PeriodicReleaseRule>().setRelease(
      Helper::getRequired<std::vector<double>>(object, "Release"));
}

std::shared_ptr<Serie> JsonLoadReleaseRule::loadReleaseSerie(const json& object,
                                                             const std::string& key) const {
  const SerieType type = SerieType::releasedFlow;
  auto serie = SerieFactory::make(Vocabulary::of(type), Vocabulary::of(Vocabulary::unitOf(type)),
                                  getScenario().getInterval());
  for (const json& item : Helper::asArray(Helper::findRequired(object, key))) {
    serie->setValue(Helper::getRequired<unsigned int>(item, "julianDay"),
                    Helper::getRequired<double>(item, "value"));
  }
  return serie;
}

void JsonLoadSerieReleaseRule::load(const json& object) const {
  const std::string key = Vocabulary::of(SerieType::releasedFlow).getName();
  getRule<SerieReleaseRule>().setReleaseSerie(loadReleaseSerie(object, key));
}
