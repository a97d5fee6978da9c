#include "core/Junction.h"

#include "core/SeriesContainers.h"
#include "vocabulary/Vocabulary.h"

Junction::Junction(const Point2D& position)
    : Node(Vocabulary::of(ElementType::junction), std::make_shared<JunctionSeriesInput>(),
           position) {}

std::shared_ptr<Element> Junction::copy() const {
  std::shared_ptr<Element> element = Node::copy();
  std::static_pointer_cast<Junction>(element)->isUnion = isUnion;
  return element;
}
