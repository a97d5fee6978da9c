#include <benchmark/benchmark.h>

#include "common/Calendar.h"
#include "common/Serie.h"
#include "core/Vocabulary.h"
#include "support/NetworkBuilder.h"

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
  Date date(1931, 1, 1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(Date::julian(date));
    date += 1;
    if (date.getYear() > 2019) date = Date(1931, 1, 1);
  }
}
BENCHMARK(BM_DateJulian);

void BM_SerieGetValue(benchmark::State& state) {
  const Interval interval = monthlyYears(100);
  auto serie = filledSerie(interval);
  Date date = interval.getBegin();
  for (auto _ : state) {
    benchmark::DoNotOptimize(serie->getValue(date));
    date += Calendar::incMonth(date);
    if (date > interval.getEnd()) date = interval.getBegin();
  }
}
BENCHMARK(BM_SerieGetValue);

void BM_SerieSetValue(benchmark::State& state) {
  const Interval interval = monthlyYears(100);
  auto serie = filledSerie(interval);
  Date date = interval.getBegin();
  double value = 0.0;
  for (auto _ : state) {
    serie->setValue(date, value += 1.0);
    date += Calendar::incMonth(date);
    if (date > interval.getEnd()) date = interval.getBegin();
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
