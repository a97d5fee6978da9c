#pragma once

#include <map>
#include <memory>
#include <vector>

#include "common/regression/RegressionTechnique.h"
#include "core/Cav.h"

// The physical description of a reservoir: its volumes, its level-area-volume table and the
// interpolator over that table.
struct ReservoirInfo {
  // The columns of a row of the level-area-volume table.
  enum CAV { level = 0, area = 1, volume = 2 };

  ReservoirInfo();

  // Rebuilds workingCav from cav: every row but the first (of zero area and volume), keeping only
  // the first of rows that repeat a value in column, so that column strictly increases.
  void calculateCav(CAV column);

  double initVol = 0.0;  // hm³, volume at the start of a run and of each window
  double minVol = 0.0;   // hm³, nothing is released below it
  double maxVol = 0.0;   // hm³, capacity; above it water spills
  std::vector<std::vector<double>> cav;         // rows of (m, km², hm³), as the user gave them
  std::vector<std::vector<double>> workingCav;  // the table computations use, rebuilt per run
  std::shared_ptr<RegressionTechnique> regressionTech;
  bool isolated = false;
  double maxRelease = 99999.0;  // m³/s, upper bound of any release

  // Curves of workingCav already built for lookups, by their columns; each is checked against
  // the table before use, so a table changed in any way is never read from here.
  mutable std::map<std::vector<int>, std::shared_ptr<Cav>> preparedCurves;
};
