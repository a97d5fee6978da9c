#pragma once

#include <memory>
#include <vector>

#include "vocabulary/EnumTypes.h"
#include "vocabulary/ReportMetricTypeEnum.h"

// The report metrics that apply to each element type. Reservoirs have those of releases
// ("Vazão liberada"), of the minimum volume and of spills; every demand, drains included, those
// of shortage ("Escassez de oferta") and of the time it is met. Junctions, basins and links have
// none: what these metrics measure is no result of theirs, and series operations reach their
// series. No type has "Nome de métrica 1" to "3", which only name metrics a user makes.
class FactoryOfElementTypeToVectorOfReportMetricTypeEnum {
 public:
  using Kinds = std::vector<std::shared_ptr<ReportMetricTypeEnum>>;

  // The metrics of an element type, in the order of their numbers. Throws std::invalid_argument
  // "FactoryOfElementTypeToVectorOfReportMetricTypeEnum::make(): invalid elementType" for a
  // value outside the vocabulary.
  static Kinds make(ElementType type);
  // Whether the metric applies to the element type; false outside the vocabulary.
  static bool allows(ElementType type, ReportMetricType metric);

  static Kinds makeVectorOfReservoirReportMetrics();
  static Kinds makeVectorOfDemandReportMetrics();
  static Kinds makeVectorOfHumanDemandReportMetrics();
  static Kinds makeVectorOfAnimalDemandReportMetrics();
  static Kinds makeVectorOfIndustrialDemandReportMetrics();
  static Kinds makeVectorOfAgricultureDemandReportMetrics();
  static Kinds makeVectorOfDrainReportMetrics();
  static Kinds makeVectorOfJunctionReportMetrics();
  static Kinds makeVectorOfBasinReportMetrics();
  static Kinds makeVectorOfLinkReportMetrics();
  static Kinds makeVectorOfArtificialLinkReportMetrics();
  static Kinds makeVectorOfNaturalLinkReportMetrics();
};
