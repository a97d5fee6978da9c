#pragma once

#include <memory>
#include <string>

#include "core/Reservoir.h"
#include "project/JsonSaveNode.h"

// Writes a reservoir's item: the node wrapper, then initVol, minVol, maxVol (hm³), isolated,
// maxRelease (m³/s), the institutional ids under the key "InstutionalID" (so spelt by the format)
// and the interpolator of the level-area-volume table under "regressionTech". The table itself is
// kept with the series, not in the project file.
class JsonSaveReservoir : public JsonSaveNode {
 public:
  JsonSaveReservoir(std::shared_ptr<Reservoir> reservoir, std::shared_ptr<Scenario> scenario);

 protected:
  // Throws std::invalid_argument from JsonSaveRegressionTechniqueFactory for an interpolator
  // without a writer.
  JsonSaveBuilder::Members toJsonSpecific() const override;

 private:
  std::shared_ptr<Reservoir> reservoir;
};
