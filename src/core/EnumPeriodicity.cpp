#include "core/EnumPeriodicity.h"

#include "core/Vocabulary.h"

EnumPeriodicity::EnumPeriodicity() : EnumPeriodicity(Vocabulary::of(Periodicity::monthly)) {}
