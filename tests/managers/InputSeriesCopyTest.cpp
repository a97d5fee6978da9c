#include <gtest/gtest.h>

#include "common/PeriodWalker.h"
#include "managers/InputSeriesCopy.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

using Skip = InputSeriesCopy::Skip;

// base + 1 on the first period of the series' interval, base + 2 on the second, and so on.
void fillRising(Element& element, SerieType kind, double base) {
  const auto& serie = element.getInputSerie(kind);
  PeriodWalker::forEach(serie->getInterval(), [&](const Date& date) {
    base += 1.0;
    serie->setValue(date, base);
  });
}

std::shared_ptr<Node> named(NetworkBuilder& network, ElementType type, const std::string& name) {
  auto node = network.node(type);
  node->setName(name);
  return node;
}

// The source, over 2000: a reservoir with its four inputs, a city whose natural flow holds no
// value, a junction, a link and a reservoir that the target lacks.
struct Source {
  NetworkBuilder network{NetworkBuilder::monthly(2000, 2000)};
  std::shared_ptr<Node> lake = named(network, ElementType::reservoir, "Lago");
  std::shared_ptr<Node> city = named(network, ElementType::humanDemand, "Cidade");
  std::shared_ptr<Node> meeting = named(network, ElementType::junction, "Encontro");
  std::shared_ptr<Node> alone = named(network, ElementType::reservoir, "Só na fonte");
  std::shared_ptr<Link> canal = network.link(lake, city, 30.0);

  Source() {
    canal->setName("Canal");
    fillRising(*lake, SerieType::precipitation, 100.0);
    fillRising(*lake, SerieType::evaporation, 200.0);
    fillRising(*lake, SerieType::naturalIncrementalFlow, 300.0);
    fillRising(*lake, SerieType::targetVolume, 0.0);
    fillRising(*city, SerieType::demand, 10.0);
    fillRising(*meeting, SerieType::naturalIncrementalFlow, 50.0);
    fillRising(*alone, SerieType::precipitation, 0.0);
  }
};

// The target, over 2000 and 2001, every input at 7: the city irrigates, the junction's name
// belongs to a reservoir.
struct Target {
  NetworkBuilder network{NetworkBuilder::monthly(2000, 2001)};
  std::shared_ptr<Node> lake = named(network, ElementType::reservoir, "Lago");
  std::shared_ptr<Node> city = named(network, ElementType::irrigationDemand, "Cidade");
  std::shared_ptr<Node> meeting = named(network, ElementType::reservoir, "Encontro");
  std::shared_ptr<Link> canal = network.link(lake, city, 30.0);

  Target() {
    canal->setName("Canal");
    for (const auto& element : network.scenario->getElements()) {
      for (const auto& serie : element->getVectorOfInputSeries()) serie->fill(7.0);
    }
  }
};

std::vector<std::string> namesOf(const std::vector<InputSeriesCopy::Copied>& copied) {
  std::vector<std::string> names;
  for (const auto& entry : copied) names.push_back(entry.target->getName());
  return names;
}

}  // namespace

TEST(InputSeriesCopy, EveryKindTheSourceHoldsGoesToTheNamesakeValueForValue) {
  Source source;
  Target target;
  const auto before = source.network.scenario->copy();

  const auto outcome = InputSeriesCopy().copy(*source.network.scenario, *target.network.scenario);

  using S = SerieType;
  ASSERT_EQ(namesOf(outcome.copied), (std::vector<std::string>{"Lago", "Cidade", "Canal"}));
  EXPECT_EQ(outcome.copied[0].kinds, (std::vector<S>{S::precipitation, S::evaporation,
                                                     S::naturalIncrementalFlow, S::targetVolume}));
  EXPECT_EQ(outcome.copied[0].target, target.lake);
  EXPECT_EQ(outcome.copied[1].kinds, std::vector<S>{S::demand});
  EXPECT_EQ(outcome.copied[2].kinds, (std::vector<S>{S::transitLossPercentage, S::linkLimit}));
  ASSERT_EQ(outcome.skipped.size(), 1u);
  EXPECT_EQ(outcome.skipped[0].element, "Encontro");
  EXPECT_EQ(outcome.skipped[0].why, Skip::otherKind);
  EXPECT_EQ(outcome.skipped[0].sourceType, ElementType::junction);
  EXPECT_EQ(outcome.skipped[0].targetType, ElementType::reservoir);
  EXPECT_EQ(outcome.unmatched, std::vector<std::string>{"Só na fonte"});

  // March 2000 is the third month: 200 + 3 for the evaporation, 10 + 3 for the demand. The
  // target's months of 2001 held 7 and are gone with the rest of its former values.
  const Date march(2000, 3, 1);
  EXPECT_EQ(target.lake->getInputSerie(S::evaporation)->getValue(march), 203.0);
  EXPECT_EQ(target.city->getInputSerie(S::demand)->getValue(march), 13.0);
  EXPECT_EQ(target.lake->getInputSerie(S::evaporation)->getValue(Date(2001, 3, 1)),
            Serie::kEmptyValue);
  for (const auto& copied : outcome.copied) {
    const auto from = source.network.scenario->getElement(copied.target->getName());
    for (const S kind : copied.kinds) {
      SCOPED_TRACE(copied.target->getName() + " " + Vocabulary::of(kind).getName());
      EXPECT_EQ(copied.target->getInputSerie(kind)->getMapOfJulianToValues(),
                from->getInputSerie(kind)->getMapOfJulianToValues());
      EXPECT_EQ(copied.target->getInputSerie(kind)->getInterval(),
                target.network.scenario->getInterval());
    }
  }
  // What the source held no value for, and what was skipped, keep the target's 7.
  EXPECT_EQ(target.city->getInputSerie(S::naturalIncrementalFlow)->getValue(march), 7.0);
  EXPECT_EQ(target.meeting->getInputSerie(S::naturalIncrementalFlow)->getValue(march), 7.0);

  for (const auto& element : source.network.scenario->getElements()) {
    const auto& kept = before->getElement(element->getName());
    for (const auto& serie : element->getVectorOfInputSeries()) {
      SCOPED_TRACE(element->getName() + " " + serie->getName());
      EXPECT_EQ(serie->getMapOfJulianToValues(),
                kept->getInputSerie(serie->getType())->getMapOfJulianToValues());
    }
  }
}

TEST(InputSeriesCopy, OnlyTheKindsAskedAreCopiedAndTheOthersSaySo) {
  Source source;
  Target target;
  using S = SerieType;
  const auto outcome = InputSeriesCopy({S::evaporation, S::naturalIncrementalFlow, S::demand})
                           .copy(*source.network.scenario, *target.network.scenario);

  ASSERT_EQ(namesOf(outcome.copied), (std::vector<std::string>{"Lago", "Cidade"}));
  EXPECT_EQ(outcome.copied[0].kinds, (std::vector<S>{S::evaporation, S::naturalIncrementalFlow}));
  EXPECT_EQ(outcome.copied[1].kinds, std::vector<S>{S::demand});
  EXPECT_EQ(target.lake->getInputSerie(S::precipitation)->getValue(Date(2000, 3, 1)), 7.0);
  EXPECT_EQ(target.lake->getInputSerie(S::evaporation)->getValue(Date(2000, 3, 1)), 203.0);

  // The link has none of the kinds asked; the city's flow is empty, but it took its demand.
  ASSERT_EQ(outcome.skipped.size(), 2u);
  EXPECT_EQ(outcome.skipped[0].why, Skip::otherKind);
  EXPECT_EQ(outcome.skipped[1].element, "Canal");
  EXPECT_EQ(outcome.skipped[1].why, Skip::nothingToCopy);

  const auto flowOnly = InputSeriesCopy({S::naturalIncrementalFlow})
                            .copy(*source.network.scenario, *target.network.scenario);
  EXPECT_EQ(namesOf(flowOnly.copied), std::vector<std::string>{"Lago"});
  ASSERT_EQ(flowOnly.skipped.size(), 3u);
  EXPECT_EQ(flowOnly.skipped[0].element, "Cidade");
  EXPECT_EQ(flowOnly.skipped[0].why, Skip::nothingToCopy);
}

TEST(InputSeriesCopy, KindsAreNamedByNameOrNumberAmongTheInputKindsOnly) {
  using S = SerieType;
  const std::vector<std::pair<std::string, std::optional<S>>> cases = {
      {"Precipitação", S::precipitation},
      {"0", S::precipitation},
      {"Volume meta", S::targetVolume},
      {"5", S::demand},
      {"Perda em trânsito", S::transitLossPercentage},
      {"42", S::linkLimit},
      {"Volume final", std::nullopt},
      {"10", std::nullopt},
      {"16", std::nullopt},
      {"precipitação", std::nullopt},
      {"", std::nullopt},
  };
  for (const auto& [text, kind] : cases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(InputSeriesCopy::inputKindNamed(text), kind);
  }
}

TEST(InputSeriesCopy, RefusesResultKindsOneScenarioTwiceAndScenariosOfOtherSteps) {
  EXPECT_THROW_TEXT(InputSeriesCopy({SerieType::precipitation, SerieType::finalVolume}),
                    std::invalid_argument, "InputSeriesCopy: not an input series kind: 10");

  Source source;
  EXPECT_THROW_TEXT(
      InputSeriesCopy().copy(*source.network.scenario, *source.network.scenario),
      std::invalid_argument,
      "InputSeriesCopy::copy(): scenario \"Teste\" is both the source and the target");
  const auto before =
      source.lake->getInputSerie(SerieType::precipitation)->getMapOfJulianToValues();
  EXPECT_EQ(before.size(), 12u);

  NetworkBuilder daily(
      Interval(Date(2000, 1, 1), Date(2000, 1, 31), Vocabulary::of(Periodicity::daily)));
  named(daily, ElementType::reservoir, "Lago");
  daily.scenario->setName("Diário");
  EXPECT_THROW_TEXT(InputSeriesCopy().copy(*source.network.scenario, *daily.scenario),
                    std::invalid_argument,
                    "InputSeriesCopy::copy(): scenario \"Teste\" is Mensal and scenario "
                    "\"Diário\" Diário");
}
