#include <benchmark/benchmark.h>

#include "common/PeriodWalker.h"
#include "common/Serie.h"
#include "support/NetworkBuilder.h"
#include "vocabulary/Vocabulary.h"

namespace {

Interval monthlyYears(unsigned int years) {
  return Interval(Date(1901, 1, 1), Date(1900 + years, 12, 1), Vocabulary::of(Periodicity::monthly));
}

std::shared_ptr<Serie> filledSerie(const Interval& interval) {
  auto serie = std::make_shared<Serie>(interval, Vocabulary::of(SerieType::inflow),
                                       Vocabulary::of(Unit::cubicMetresPerSecond));
  serie->fill(1.0);
  return serie;
}

void BM_DateJulian(benchmark::State& state) {
  std::vector<Date> dates;
  for (Date date(1931, 1, 1); date.getYear() < 1941; date += 1) dates.push_back(date);
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Date::julian(dates[i]));
    if (++i == dates.size()) i = 0;
  }
}
BENCHMARK(BM_DateJulian);

// The first of each month of the interval, walked as a run walks it.
std::vector<Date> monthsOf(const Interval& interval) {
  std::vector<Date> dates;
  PeriodWalker::forEach(interval, [&](const Date& date) { dates.push_back(date); });
  return dates;
}

void BM_SerieGetValue(benchmark::State& state) {
  const Interval interval = monthlyYears(100);
  auto serie = filledSerie(interval);
  const std::vector<Date> dates = monthsOf(interval);
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(serie->getValue(dates[i]));
    if (++i == dates.size()) i = 0;
  }
}
BENCHMARK(BM_SerieGetValue);

void BM_SerieSetValue(benchmark::State& state) {
  const Interval interval = monthlyYears(100);
  auto serie = filledSerie(interval);
  const std::vector<Date> dates = monthsOf(interval);
  std::size_t i = 0;
  double value = 0.0;
  for (auto _ : state) {
    serie->setValue(dates[i], value += 1.0);
    if (++i == dates.size()) i = 0;
  }
}
BENCHMARK(BM_SerieSetValue);

// A tree of 100 junctions joined by 99 links below a basin (200 elements), 1,200 monthly periods.
void BM_RunJunctionNetwork(benchmark::State& state) {
  NetworkBuilder net(monthlyYears(100));
  auto basin = net.node(ElementType::basin);
  std::vector<std::shared_ptr<Node>> junctions;
  for (int i = 0; i < 99; ++i) junctions.push_back(net.node(ElementType::junction));
  net.link(basin, junctions[0]);
  for (std::size_t i = 1; i < junctions.size(); ++i) net.link(junctions[(i - 1) / 2], junctions[i]);
  net.node(ElementType::junction);
  for (auto _ : state) {
    if (!net.scenario->run(nullptr)) state.SkipWithError("run failed");
  }
  state.counters["elements"] = static_cast<double>(net.scenario->getElements().size());
  state.counters["periods"] = 1200;
}
BENCHMARK(BM_RunJunctionNetwork)->Unit(benchmark::kMillisecond);

}  // namespace
