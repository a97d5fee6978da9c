#include "operation/JunctionResultsWriter.h"

#include "core/NetworkUtils.h"

void JunctionResultsWriter::write(const Date& date, unsigned int windowIndex,
                                  const std::shared_ptr<Element>& element, const Interval&, bool) {
  const auto node = std::static_pointer_cast<Node>(element);
  const double flow = NetworkUtils::upStreamSumFlow(node, date, windowIndex);
  node->getOutputSerie(SerieType::inflow, windowIndex)->setValue(date, flow);
  node->getOutputSerie(SerieType::outflow, windowIndex)->setValue(date, flow);
}
