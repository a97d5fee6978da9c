#include "core/CavManager.h"

#include "common/Point2D.h"

double CavManager::calculateInterpolation(const Cav& cav, double x) {
  if (cav.needsPreparing()) {
    std::vector<Point2D> points;
    points.reserve(cav.getMatrix().size());
    for (const auto& row : cav.getMatrix()) points.push_back({row[0], row[1]});
    cav.getRegressionTechnique()->calculate(points);
    cav.markPrepared();
  }
  return cav.getRegressionTechnique()->fit(x);
}
