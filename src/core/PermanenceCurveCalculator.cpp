#include "core/PermanenceCurveCalculator.h"

#include <algorithm>
#include <functional>

#include "core/ElementsFilter.h"
#include "core/SerieManager.h"

void PermanenceCurveCalculator::makeLink(PermanenceCurve& curve,
                                         const std::shared_ptr<Element>& link,
                                         unsigned int windowIndex) {
  std::vector<double> flows = SerieManager::values(link->getOutputSerie(SerieType::inflow, windowIndex));
  std::sort(flows.begin(), flows.end(), std::greater<double>());
  std::vector<Point2D> points;
  points.reserve(flows.size());
  for (std::size_t i = 1; i <= flows.size(); ++i) {
    points.push_back({static_cast<double>(i) / flows.size() * 100.0, flows[i - 1]});
  }
  curve[link->getId()] = std::move(points);
}

PermanenceCurve PermanenceCurveCalculator::make(const std::vector<std::shared_ptr<Element>>& elements,
                                                unsigned int windowIndex) {
  PermanenceCurve curve;
  for (const auto& link : ElementsFilter::filterByLinksElements(elements)) {
    makeLink(curve, link, windowIndex);
  }
  return curve;
}

std::vector<PermanenceCurve> PermanenceCurveCalculator::makeVector(
    const std::vector<std::shared_ptr<Element>>& elements, unsigned int windows) {
  std::vector<PermanenceCurve> curves;
  for (unsigned int window = 0; window < windows; ++window) curves.push_back(make(elements, window));
  return curves;
}
