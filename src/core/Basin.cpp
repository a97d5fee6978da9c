#include "core/Basin.h"

#include "core/SeriesContainers.h"
#include "vocabulary/Vocabulary.h"

Basin::Basin(const Point2D& position)
    : Node(Vocabulary::of(ElementType::basin), std::make_shared<BasinSeriesInput>(), position) {}
