#include "managers/InputSeriesCopy.h"

#include <stdexcept>
#include <utility>

#include "core/Element.h"
#include "core/ElementSets.h"
#include "core/Scenario.h"
#include "vocabulary/Vocabulary.h"

namespace {

bool sameCategory(ElementType one, ElementType other) {
  return &ElementSetFactoryByCategory::getSetFromElementType(one) ==
         &ElementSetFactoryByCategory::getSetFromElementType(other);
}

// The target's series takes the source's values and keeps its own interval, which is its
// scenario's.
void copyValues(const Serie& source, Serie& target) {
  target.clear();
  target.reserve(source.size());
  for (const auto& [julian, value] : source.getMapOfJulianToValues()) {
    target.setValue(julian, value);
  }
}

// Copying a scenario into itself would clear each series before reading it.
void requireTwoScenariosOfOneStep(const Scenario& source, const Scenario& target) {
  if (&source == &target) {
    throw std::invalid_argument("InputSeriesCopy::copy(): scenario \"" + source.getName() +
                                "\" is both the source and the target");
  }
  const auto& from = source.getInterval().getPeriodicity();
  const auto& to = target.getInterval().getPeriodicity();
  if (from.getType() == to.getType()) return;
  throw std::invalid_argument("InputSeriesCopy::copy(): scenario \"" + source.getName() + "\" is " +
                              from.getName() + " and scenario \"" + target.getName() + "\" " +
                              to.getName());
}

}  // namespace

InputSeriesCopy::InputSeriesCopy(std::set<SerieType> asked) : kinds(std::move(asked)) {
  for (const SerieType kind : kinds) {
    if (Vocabulary::inputSerieTypes().count(kind) == 0) {
      throw std::invalid_argument("InputSeriesCopy: not an input series kind: " +
                                  std::to_string(static_cast<int>(kind)));
    }
  }
}

InputSeriesCopy::Outcome InputSeriesCopy::copy(const Scenario& source, Scenario& target) const {
  requireTwoScenariosOfOneStep(source, target);
  Outcome outcome;
  for (const auto& from : source.getElements()) {
    const auto to = target.getElement(from->getName());
    if (!to) {
      outcome.unmatched.push_back(from->getName());
      continue;
    }
    if (!sameCategory(from->getType(), to->getType())) {
      outcome.skipped.push_back({from->getName(), Skip::otherKind, from->getType(), to->getType()});
      continue;
    }
    const auto chosen = kindsToCopy(*from);
    if (chosen.empty()) {
      outcome.skipped.push_back(
          {from->getName(), Skip::nothingToCopy, from->getType(), to->getType()});
      continue;
    }
    for (const SerieType kind : chosen) {
      copyValues(*from->getInputSerie(kind), *to->getInputSerie(kind));
    }
    outcome.copied.push_back({to, chosen});
  }
  return outcome;
}

std::optional<SerieType> InputSeriesCopy::inputKindNamed(const std::string& text) {
  for (const SerieType kind : Vocabulary::inputSerieTypes()) {
    if (text == Vocabulary::of(kind).getName() || text == std::to_string(static_cast<int>(kind))) {
      return kind;
    }
  }
  return std::nullopt;
}

std::vector<SerieType> InputSeriesCopy::kindsToCopy(const Element& source) const {
  std::vector<SerieType> chosen;
  for (const auto& entry : source.getInputSeries()->getSeries()) {
    if (isAsked(entry.first) && !entry.second->isEmpty()) chosen.push_back(entry.first);
  }
  return chosen;
}

bool InputSeriesCopy::isAsked(SerieType kind) const { return kinds.empty() || kinds.count(kind); }
