#include "project/database/SerieTypeKey.h"

#include "common/Serie.h"

SerieTypeKey SerieTypeKey::of(const Serie& serie) {
  return {serie.getName(), serie.getUnit().getName()};
}
