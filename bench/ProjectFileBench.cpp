#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>

#include "common/PeriodWalker.h"
#include "core/ReservoirRuleSettings.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "scenario/ScenarioManager.h"
#include "support/NetworkBuilder.h"

namespace {

// A project of 400 elements over ten monthly years: a chain of 44 units, each a reservoir that
// feeds a junction serving a town (which returns to the next reservoir) and an irrigated area,
// then a basin at the head, an outlet and a spare junction. The reservoirs cycle through four
// rules, one of them a dated series of 120 releases.
class GeneratedProject {
 public:
  GeneratedProject()
      : net(Interval(Date(1991, 1, 1), Date(2000, 12, 1), Vocabulary::of(Periodicity::monthly))) {
    std::vector<std::shared_ptr<Reservoir>> reservoirs;
    for (int unit = 0; unit < 44; ++unit) {
      reservoirs.push_back(std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir)));
    }
    const auto mouth = net.node(ElementType::drain);
    for (int unit = 0; unit < 44; ++unit) {
      const auto next =
          unit + 1 < 44 ? std::static_pointer_cast<Node>(reservoirs[unit + 1]) : mouth;
      const auto junction = net.node(ElementType::junction);
      const auto town = net.node(ElementType::humanDemand);
      const auto field = net.node(ElementType::irrigationDemand);
      net.link(reservoirs[unit], junction);
      net.link(junction, town, 50.0, ElementType::artificialLink);
      net.link(junction, field, 80.0, ElementType::artificialLink);
      net.link(junction, next);
      net.link(town, next);
      giveRule(reservoirs, unit);
    }
    net.link(net.node(ElementType::basin), reservoirs[0]);
    net.node(ElementType::junction);
  }

  NetworkBuilder net;

 private:
  void giveRule(const std::vector<std::shared_ptr<Reservoir>>& reservoirs, int unit) {
    std::shared_ptr<ReleaseRule> rule;
    const Interval& interval = net.scenario->getInterval();
    if (unit % 4 == 0) {
      auto periodic = std::make_shared<PeriodicReleaseRule>();
      periodic->setRelease(std::vector<double>(12, 5.0 + unit));
      rule = periodic;
    } else if (unit % 4 == 1) {
      auto serie = std::make_shared<SerieReleaseRule>();
      auto releases = std::make_shared<Serie>(interval, Vocabulary::of(SerieType::releasedFlow),
                                              Vocabulary::of(Unit::cubicMetresPerSecond));
      PeriodWalker::forEach(interval, [&](const Date& date) {
        releases->setValue(date, 10.0 + std::sin(date.getMonth() * 0.5236));
      });
      serie->setReleaseSerie(releases);
      rule = serie;
    } else if (unit % 4 == 2) {
      auto byVolume = std::make_shared<VolDepOneStaticReleaseRule>();
      byVolume->setReservoirDependency(reservoirs[unit - 1]);
      byVolume->setVectorOfVolDepOneReleaseStruct({{30, {2.0}}, {70, {6.0}}, {100, {9.0}}});
      rule = byVolume;
    } else {
      auto state = std::make_shared<HydrologicalStateReleaseRule>();
      state->setReservoirsOfSystem({reservoirs[unit - 2], reservoirs[unit - 1]});
      state->setStates(3, {0.3, 0.4}, {4.0, 7.0, 11.0});
      rule = state;
    }
    Scenario::getSettings<ReservoirRuleSettings>(reservoirs[unit],
                                                 net.scenario->getSettingsManager())
        ->setRule(rule);
  }
};

std::string projectPath() {
  return (std::filesystem::temp_directory_path() / "kova_project_file_bench.sjson").string();
}

void BM_ProjectSave400Elements(benchmark::State& state) {
  GeneratedProject project;
  ScenarioManager::getInstance().addScenery(0, project.net.scenario);
  for (auto _ : state) {
    if (!JsonSaveBuilder::save(projectPath())) state.SkipWithError("save failed");
  }
  state.counters["elements"] = static_cast<double>(project.net.scenario->getElements().size());
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(projectPath()));
  ScenarioManager::getInstance().clear();
  std::filesystem::remove(projectPath());
}
BENCHMARK(BM_ProjectSave400Elements)->Unit(benchmark::kMillisecond);

void BM_ProjectLoad400Elements(benchmark::State& state) {
  GeneratedProject project;
  ScenarioManager::getInstance().addScenery(0, project.net.scenario);
  if (!JsonSaveBuilder::save(projectPath())) state.SkipWithError("save failed");
  ScenarioManager::getInstance().clear();
  for (auto _ : state) {
    benchmark::DoNotOptimize(JsonProjectLoader::load(projectPath()));
  }
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(projectPath()));
  std::filesystem::remove(projectPath());
}
BENCHMARK(BM_ProjectLoad400Elements)->Unit(benchmark::kMillisecond);

}  // namespace
