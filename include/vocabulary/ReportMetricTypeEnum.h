#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "vocabulary/Enum.h"

// The kinds of metric a user's report may ask of an element. The display name of a kind is the
// name the user writes in a report expression. The last three are names a user may give to
// metrics of their own making; no metric stands behind them.
enum class ReportMetricType : int32_t {
  sumOfReleasesInM3s = 0,
  sumOfReleasesInHm3 = 1,
  sumOfReleasesInM3 = 2,
  sumOfReleasesInL = 3,
  averageReleasesInM3s = 4,
  averageReleasesInHm3 = 5,
  averageReleasesInM3 = 6,
  averageReleasesInL = 7,
  percentOfTimeAboveMinVolume = 8,
  percentOfTimeUnderMinVolume = 9,
  percentOfTimeOfWhenOcurredSpill = 10,
  averagePercentageOfMetDemand = 11,
  totalShortageInHm3 = 12,
  totalShortageInM3 = 13,
  totalShortageInL = 14,
  averageShortageInHm3 = 15,
  averageShortageInM3 = 16,
  averageShortageInL = 17,
  nameOfMetricOne = 18,
  nameOfMetricTwo = 19,
  nameOfMetricThree = 20,
};

// A kind of report metric; one leaf class per kind.
class ReportMetricTypeEnum : public Enum<ReportMetricType> {
 public:
  virtual ~ReportMetricTypeEnum() = default;

 protected:
  ReportMetricTypeEnum(ReportMetricType type, std::string name) : Enum(type, std::move(name)) {}
};

#define KOVA_REPORT_METRIC_KIND(Leaf, value, text)                  \
  class Leaf : public ReportMetricTypeEnum {                        \
   public:                                                          \
    Leaf() : ReportMetricTypeEnum(ReportMetricType::value, text) {} \
  }

KOVA_REPORT_METRIC_KIND(SumOfReleasesInM3sEnum, sumOfReleasesInM3s, "Soma de liberações em m3s");
KOVA_REPORT_METRIC_KIND(SumOfReleasesInHm3Enum, sumOfReleasesInHm3, "Soma de liberações em Hm3");
KOVA_REPORT_METRIC_KIND(SumOfReleasesInM3Enum, sumOfReleasesInM3, "Soma de liberações em m3");
KOVA_REPORT_METRIC_KIND(SumOfReleasesInLEnum, sumOfReleasesInL, "Soma de liberações em L");
KOVA_REPORT_METRIC_KIND(AverageReleasesInM3sEnum, averageReleasesInM3s,
                        "Média de liberações em M3s");
KOVA_REPORT_METRIC_KIND(AverageReleasesInHm3Enum, averageReleasesInHm3,
                        "Média de liberações em hm3");
KOVA_REPORT_METRIC_KIND(AverageReleasesInM3Enum, averageReleasesInM3, "Média de liberações em m3");
KOVA_REPORT_METRIC_KIND(AverageReleasesInLEnum, averageReleasesInL, "Média de liberações em L");
KOVA_REPORT_METRIC_KIND(PercentOfTimeAboveMinVolumeEnum, percentOfTimeAboveMinVolume,
                        "Percent. de tempo médio acima do vol. mínimo");
KOVA_REPORT_METRIC_KIND(PercentOfTimeUnderMinVolumeEnum, percentOfTimeUnderMinVolume,
                        "Percent. de tempo médio abaixo do vol. mínimo");
KOVA_REPORT_METRIC_KIND(PercentOfTimeOfWhenOcurredSpillEnum, percentOfTimeOfWhenOcurredSpill,
                        "Percent. de tempo médio no qual ocorreu vert.");
KOVA_REPORT_METRIC_KIND(AveragePercentageOfMetDemandEnum, averagePercentageOfMetDemand,
                        "Perc. médio de tempo que dem. é atend.");
KOVA_REPORT_METRIC_KIND(TotalShortageInHm3Enum, totalShortageInHm3, "Escassez total em hm3");
KOVA_REPORT_METRIC_KIND(TotalShortageInM3Enum, totalShortageInM3, "Escassez total em m3");
KOVA_REPORT_METRIC_KIND(TotalShortageInLEnum, totalShortageInL, "Escassez total em L");
KOVA_REPORT_METRIC_KIND(AverageShortageInHm3Enum, averageShortageInHm3, "Escassez média em hm3");
KOVA_REPORT_METRIC_KIND(AverageShortageInM3Enum, averageShortageInM3, "Escassez média em m3");
KOVA_REPORT_METRIC_KIND(AverageShortageInLEnum, averageShortageInL, "Escassez média em L");
KOVA_REPORT_METRIC_KIND(NameOfMetricOneEnum, nameOfMetricOne, "Nome de métrica 1");
KOVA_REPORT_METRIC_KIND(NameOfMetricTwoEnum, nameOfMetricTwo, "Nome de métrica 2");
KOVA_REPORT_METRIC_KIND(NameOfMetricThreeEnum, nameOfMetricThree, "Nome de métrica 3");

#undef KOVA_REPORT_METRIC_KIND
