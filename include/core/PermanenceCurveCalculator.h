#pragma once

#include <map>
#include <memory>
#include <vector>

#include "common/Point2D.h"
#include "core/Element.h"

// The flow-duration curve of each link, by link id: points (percentage of time the flow is equalled
// or exceeded, flow in m³/s).
using PermanenceCurve = std::map<unsigned int, std::vector<Point2D>>;

class PermanenceCurveCalculator {
 public:
  // Adds the curve of one link's "Vazão afluente" in a window: the values sorted in descending
  // order, point i of n at (i / n * 100, i-th value). Throws std::invalid_argument
  // "Invalid index value!" for a window without results.
  static void makeLink(PermanenceCurve& curve, const std::shared_ptr<Element>& link,
                       unsigned int windowIndex);
  // The curves of every link among elements, in one window / in each of windows.
  static PermanenceCurve make(const std::vector<std::shared_ptr<Element>>& elements,
                              unsigned int windowIndex);
  static std::vector<PermanenceCurve> makeVector(const std::vector<std::shared_ptr<Element>>& elements,
                                                 unsigned int windows);
};
