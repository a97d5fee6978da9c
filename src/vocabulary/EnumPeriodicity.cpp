#include "vocabulary/EnumPeriodicity.h"

#include "vocabulary/Vocabulary.h"

EnumPeriodicity::EnumPeriodicity() : EnumPeriodicity(Vocabulary::of(Periodicity::monthly)) {}
