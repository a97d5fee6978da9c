#include "reports/automatic/FactoryOfElementTypeToVectorOfReportMetricTypeEnum.h"

#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>

#include "vocabulary/ReportMetricTypeEnumFactory.h"

namespace {

using Factory = FactoryOfElementTypeToVectorOfReportMetricTypeEnum;
using Kinds = Factory::Kinds;
using M = ReportMetricType;

Kinds kindsOf(std::initializer_list<M> types) {
  Kinds kinds;
  for (M type : types) kinds.push_back(ReportMetricTypeEnumFactory::make(type));
  return kinds;
}

const std::map<ElementType, std::function<Kinds()>>& makers() {
  using E = ElementType;
  static const std::map<ElementType, std::function<Kinds()>> mapOfCallbacks = {
      {E::reservoir, Factory::makeVectorOfReservoirReportMetrics},
      {E::genericDemand, Factory::makeVectorOfDemandReportMetrics},
      {E::humanDemand, Factory::makeVectorOfHumanDemandReportMetrics},
      {E::animalDemand, Factory::makeVectorOfAnimalDemandReportMetrics},
      {E::industrialDemand, Factory::makeVectorOfIndustrialDemandReportMetrics},
      {E::irrigationDemand, Factory::makeVectorOfAgricultureDemandReportMetrics},
      {E::drain, Factory::makeVectorOfDrainReportMetrics},
      {E::junction, Factory::makeVectorOfJunctionReportMetrics},
      {E::basin, Factory::makeVectorOfBasinReportMetrics},
      {E::genericLink, Factory::makeVectorOfLinkReportMetrics},
      {E::artificialLink, Factory::makeVectorOfArtificialLinkReportMetrics},
      {E::naturalLink, Factory::makeVectorOfNaturalLinkReportMetrics},
  };
  return mapOfCallbacks;
}

}  // namespace

Kinds Factory::make(ElementType type) {
  auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument(
        "FactoryOfElementTypeToVectorOfReportMetricTypeEnum::make(): invalid elementType");
  }
  return it->second();
}

bool Factory::allows(ElementType type, ReportMetricType metric) {
  if (makers().count(type) == 0) return false;
  const Kinds kinds = make(type);
  return std::any_of(kinds.begin(), kinds.end(),
                     [metric](const auto& kind) { return kind->getType() == metric; });
}

Kinds Factory::makeVectorOfReservoirReportMetrics() {
  return kindsOf({M::sumOfReleasesInM3s, M::sumOfReleasesInHm3, M::sumOfReleasesInM3,
                  M::sumOfReleasesInL, M::averageReleasesInM3s, M::averageReleasesInHm3,
                  M::averageReleasesInM3, M::averageReleasesInL, M::percentOfTimeAboveMinVolume,
                  M::percentOfTimeUnderMinVolume, M::percentOfTimeOfWhenOcurredSpill});
}

Kinds Factory::makeVectorOfDemandReportMetrics() {
  return kindsOf({M::averagePercentageOfMetDemand, M::totalShortageInHm3, M::totalShortageInM3,
                  M::totalShortageInL, M::averageShortageInHm3, M::averageShortageInM3,
                  M::averageShortageInL});
}

Kinds Factory::makeVectorOfHumanDemandReportMetrics() { return makeVectorOfDemandReportMetrics(); }

Kinds Factory::makeVectorOfAnimalDemandReportMetrics() { return makeVectorOfDemandReportMetrics(); }

Kinds Factory::makeVectorOfIndustrialDemandReportMetrics() {
  return makeVectorOfDemandReportMetrics();
}

Kinds Factory::makeVectorOfAgricultureDemandReportMetrics() {
  return makeVectorOfDemandReportMetrics();
}

Kinds Factory::makeVectorOfDrainReportMetrics() { return makeVectorOfDemandReportMetrics(); }

Kinds Factory::makeVectorOfJunctionReportMetrics() { return {}; }

Kinds Factory::makeVectorOfBasinReportMetrics() { return {}; }

Kinds Factory::makeVectorOfLinkReportMetrics() { return {}; }

Kinds Factory::makeVectorOfArtificialLinkReportMetrics() { return {}; }

Kinds Factory::makeVectorOfNaturalLinkReportMetrics() { return {}; }
