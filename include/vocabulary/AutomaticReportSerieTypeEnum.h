#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "vocabulary/Enum.h"

// The operations a user's report may apply to the values of one series of an element. The
// display name of an operation is the name the user writes in a report expression.
enum class SerieOperationType : int32_t {
  min = 0,
  max = 1,
  sum = 2,
  average = 3,
  variancePopulation = 4,
  varianceSample = 5,
  stdDeviationPopulation = 6,
  stdDeviationSample = 7,
};

// An operation over a series; one leaf class per operation.
class AutomaticReportSerieTypeEnum : public Enum<SerieOperationType> {
 public:
  virtual ~AutomaticReportSerieTypeEnum() = default;

 protected:
  AutomaticReportSerieTypeEnum(SerieOperationType type, std::string name)
      : Enum(type, std::move(name)) {}
};

#define KOVA_SERIE_OPERATION_KIND(Leaf, value, text)                          \
  class Leaf : public AutomaticReportSerieTypeEnum {                          \
   public:                                                                    \
    Leaf() : AutomaticReportSerieTypeEnum(SerieOperationType::value, text) {} \
  }

KOVA_SERIE_OPERATION_KIND(MinSerieOperationEnum, min, "Min");
KOVA_SERIE_OPERATION_KIND(MaxSerieOperationEnum, max, "Max");
KOVA_SERIE_OPERATION_KIND(SumSerieOperationEnum, sum, "Sum");
KOVA_SERIE_OPERATION_KIND(AverageSerieOperationEnum, average, "Average");
KOVA_SERIE_OPERATION_KIND(VariancePopulationSerieOperationEnum, variancePopulation,
                          "VariancePopulation");
KOVA_SERIE_OPERATION_KIND(VarianceSampleSerieOperationEnum, varianceSample, "VarianceSample");
KOVA_SERIE_OPERATION_KIND(StdDeviationPopulationSerieOperationEnum, stdDeviationPopulation,
                          "StdDeviationPopulation");
KOVA_SERIE_OPERATION_KIND(StdDeviationSampleSerieOperationEnum, stdDeviationSample,
                          "StdDeviationSample");

#undef KOVA_SERIE_OPERATION_KIND
